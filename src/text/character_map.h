// SPDX-License-Identifier: MIT
/// @file
/// How long the characters of a font take to read.
#ifndef TOVANGL_TEXT_CHARACTER_MAP_H
#define TOVANGL_TEXT_CHARACTER_MAP_H

#include "text/font_numbers.h"

namespace tovangl {

/// Fonts are read by going through all characters that they map to glyphs, and twelve bytes of a
/// map can claim four thousand million. Any bytes can be passed.
///
/// @param cmap  the table of that name
/// @return about the number of characters in all maps; far more than any font has if one of them
///         claims more than there are
[[nodiscard]] std::uint64_t stepsThroughCharacters(const CFontNumbers& file, const CFilePart& cmap);

} // namespace tovangl

#endif
