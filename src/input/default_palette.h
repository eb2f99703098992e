// SPDX-License-Identifier: MIT
/// @file
/// The default colours of items.
#ifndef TOVANGL_INPUT_DEFAULT_PALETTE_H
#define TOVANGL_INPUT_DEFAULT_PALETTE_H

#include <QColor>

#include <cstddef>

namespace tovangl {

/// The colour at a position among all items of a chart, counted from 0. The palette has six colours
/// and repeats after the last.
[[nodiscard]] QColor defaultColor(std::size_t position);

} // namespace tovangl

#endif
