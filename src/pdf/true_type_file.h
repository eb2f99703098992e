// SPDX-License-Identifier: MIT
/// @file
/// Makes a TrueType font of a few letters.
#ifndef TOVANGL_PDF_TRUE_TYPE_FILE_H
#define TOVANGL_PDF_TRUE_TYPE_FILE_H

#include "pdf/glyph_outline.h"

#include <string>
#include <vector>

namespace tovangl {

struct CFontGlyph
{
    std::vector<CContour> contours;
    int advance = 0; ///< font units
};

/// All of it in font units.
struct CFontBox
{
    int unitsPerEm = 1000;
    int ascent = 0;
    int descent = 0; ///< below the baseline, positive
    int left = 0;    ///< of all outlines
    int bottom = 0;
    int right = 0;
    int top = 0;
};

/// A font file with these glyphs, numbered from 0, and with no tables but those that a PDF needs.
[[nodiscard]] std::string trueTypeFile(const CFontBox& box, const std::vector<CFontGlyph>& glyphs);

/// Widens the box by what the outlines cover.
void widen(CFontBox& box, const std::vector<CContour>& contours);

} // namespace tovangl

#endif
