// SPDX-License-Identifier: MIT
/// @file
/// Which pixels the title and the captions of a laid-out chart cover.
#ifndef TOVANGL_LAYOUT_CAPTIONS_H
#define TOVANGL_LAYOUT_CAPTIONS_H

#include <QRect>

#include <vector>

namespace tovangl {

struct CBarLayout;
struct CPieLayout;

/// What the title covers; null where there is none.
template <typename Layout>
[[nodiscard]] QRect titleRect(const Layout& layout)
{
    return layout.title ? layout.title->rect : QRect();
}

/// One rectangle for each drawn item, in the order of adding; null if its caption is hidden.
[[nodiscard]] std::vector<QRect> captionRects(const CBarLayout& layout);
[[nodiscard]] std::vector<QRect> captionRects(const CPieLayout& layout);

} // namespace tovangl

#endif
