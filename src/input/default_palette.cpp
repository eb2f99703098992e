// SPDX-License-Identifier: MIT
// The colours that items have by default.
#include "input/default_palette.h"

#include <array>

namespace tovangl {

namespace {

struct CPaletteEntry
{
    int red, green, blue;
};

// Three blues from dark to light, then three oranges.
constexpr std::array<CPaletteEntry, 6> kDefaultPalette = {{
    {23, 52, 124},
    {91, 115, 176},
    {174, 191, 234},
    {254, 102, 13},
    {254, 184, 109},
    {255, 226, 182},
}};

} // namespace

QColor defaultColor(std::size_t position)
{
    const CPaletteEntry& entry = kDefaultPalette[position % kDefaultPalette.size()];
    return QColor(entry.red, entry.green, entry.blue);
}

QColor othersColor()
{
    return QColor(114, 114, 126);
}

} // namespace tovangl
