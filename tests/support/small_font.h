// SPDX-License-Identifier: MIT
/// @file
/// Font files of a few hundred bytes, for tests that need many or odd ones.
#ifndef TOVANGL_SUPPORT_SMALL_FONT_H
#define TOVANGL_SUPPORT_SMALL_FONT_H

#include <cstdint>
#include <string>
#include <vector>

namespace tovangl {

/// A name in a font, by the numbers of the format.
struct CFontName
{
    unsigned platform;
    unsigned encoding;
    unsigned language;
    unsigned kind; ///< 1 is the family, 2 the style
    std::string bytes;
};

/// A name for Windows in English; the text is ASCII.
[[nodiscard]] CFontName windowsName(unsigned kind, const std::string& text);
/// A name for the Macintosh in English, in its encoding.
[[nodiscard]] CFontName macintoshName(unsigned kind, const std::string& bytes);

/// A character map in which one glyph stands for all characters from the first to the last.
[[nodiscard]] std::string charactersFrom(std::uint32_t first, std::uint32_t last);

struct CSmallFont
{
    std::vector<CFontName> names;
    bool isBold = false;
    int unitsPerEm = 1000;
    /// How wide the one glyph is that stands for all characters of ASCII, in units.
    int glyphWidth = 500;
    /// What says which characters the font has: one encoding of the format's table for them.
    std::string characterMap = charactersFrom(' ', '~');
    /// A PNG file that is shown in place of the glyph, if there is one.
    std::string picture = std::string();
    /// The size of a font in pixels that the picture is made for.
    int pictureSize = 64;
};

/// A font whose characters are rectangles.
[[nodiscard]] std::string smallFont(const CSmallFont& font);
/// The same with one name, for the family.
[[nodiscard]] std::string smallFont(const std::string& family);
/// A collection of fonts.
[[nodiscard]] std::string smallCollection(const std::vector<std::string>& fonts);

} // namespace tovangl

#endif
