// SPDX-License-Identifier: MIT
/// @file
/// Which pixels the captions of a laid-out chart cover.
#ifndef TOVANGL_LAYOUT_CAPTIONS_H
#define TOVANGL_LAYOUT_CAPTIONS_H

#include <QRect>

#include <vector>

namespace tovangl {

struct CBarLayout;
struct CPieLayout;

/// One rectangle for each drawn item, in the order of adding; null if its caption is hidden.
[[nodiscard]] std::vector<QRect> captionRects(const CBarLayout& layout);
[[nodiscard]] std::vector<QRect> captionRects(const CPieLayout& layout);

} // namespace tovangl

#endif
