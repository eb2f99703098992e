// SPDX-License-Identifier: MIT
/// @file
/// From the host's types to the library's own, and back.
#ifndef TOVANGL_API_CONVERSIONS_H
#define TOVANGL_API_CONVERSIONS_H

#include "base/host_text.h"
#include <tovangl/Color.h>
#include <tovangl/Rectangle.h>

#include <QColor>
#include <QRect>

#include <list>
#include <vector>

namespace tovangl {

/// An opaque colour; invalid, which means not set, if a channel is outside 0 to 255.
[[nodiscard]] QColor toQColor(const Color& color);

[[nodiscard]] Rectangle toRectangle(const QRect& rect);

/// Replaces the list's content. If memory runs out, the list keeps its old content.
void assignRectangles(std::list<Rectangle>& list, const std::vector<QRect>& rects);

} // namespace tovangl

#endif
