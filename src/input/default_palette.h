// SPDX-License-Identifier: MIT
/// @file
/// The colours that items have by default.
#ifndef TOVANGL_INPUT_DEFAULT_PALETTE_H
#define TOVANGL_INPUT_DEFAULT_PALETTE_H

#include <QColor>

#include <cstddef>

namespace tovangl {

/// The colour at a position among all items of a chart, counted from 0. The palette has six colours
/// and repeats after the last.
[[nodiscard]] QColor defaultColor(std::size_t position);

/// The colour of the item that gathers what the threshold leaves out. Deliberate: grey and none of
/// the palette's, whose next colour could be that of the first slice, right beside it. The grey is
/// a bluish one, because that is furthest from the colours of all themes, whatever kind of colour
/// blindness a reader has.
[[nodiscard]] QColor othersColor();

} // namespace tovangl

#endif
