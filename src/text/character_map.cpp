// SPDX-License-Identifier: MIT
// How long the characters of a font take to read.
#include "text/character_map.h"

namespace tovangl {

namespace {

// Where the fields of each structure lie, and how long it is, in bytes.
constexpr std::size_t kMapCountInCmap = 2;
constexpr std::size_t kMapsInCmap = 4;
constexpr std::size_t kMapLength = 8;
constexpr std::size_t kOffsetInMap = 4;
constexpr std::size_t kSegmentCountInMap = 6; // in bytes, two for each
constexpr std::size_t kSegmentsInMap = 14;
constexpr std::size_t kVariantCountInMap = 6;
constexpr std::size_t kVariantsInMap = 10;
constexpr std::size_t kListsInVariant = 3;
constexpr std::size_t kVariantLength = 11;
constexpr std::size_t kGroupsInMap = 12;
constexpr std::size_t kMixedGroupsInMap = 8204;
constexpr std::size_t kGlyphCountInMap = 16;
constexpr std::size_t kGroupLength = 12;
constexpr std::size_t kOffsetLength = 4;

// All of these count what a reader of a map goes through, and stop counting where it is too much.
using Steps = std::uint64_t;

constexpr Steps kCharacters = 0x110000; // that there are
constexpr Steps kCharactersIn16Bits = 0x10000;
constexpr Steps kTooMany = 1'000'000'000;

// Groups of a first character, a last one, and a glyph. Readers give up where they do not ascend.
Steps stepsInGroups(const CFontNumbers& file, std::size_t groups)
{
    const std::size_t count = file.at32(groups);
    Steps steps = 0;
    std::uint32_t next = 0;
    for (std::size_t i = 0; i < count && steps <= kCharacters; ++i) {
        const std::size_t group = groups + 4 + i * kGroupLength;
        const std::uint32_t first = file.at32(group);
        const std::uint32_t last = file.at32(group + 4);
        if (first < next || last < first)
            break;
        steps += Steps{last - first} + 1;
        next = last + 1;
    }
    return steps;
}

// Segments of 16-bit characters: all last ones, two bytes of nothing, and all first ones. Readers
// search them one by one for each character where they do not ascend.
Steps stepsInSegments(const CFontNumbers& file, std::size_t map)
{
    const std::size_t length = file.at16(map + kSegmentCountInMap) / 2 * 2;
    const std::size_t lasts = map + kSegmentsInMap;
    const std::size_t firsts = lasts + length + 2;
    for (std::size_t i = 2; i < length; i += 2) {
        if (file.at16(firsts + i) < file.at16(firsts + i - 2) ||
            file.at16(lasts + i) < file.at16(lasts + i - 2))
            return kCharactersIn16Bits * (length / 2);
    }
    return kCharactersIn16Bits;
}

// Selectors of variants, each with up to two lists of characters.
Steps stepsInVariants(const CFontNumbers& file, std::size_t map)
{
    const std::size_t count = file.at32(map + kVariantCountInMap);
    Steps steps = 0;
    for (std::size_t i = 0; i < count && steps <= kCharacters; ++i) {
        const std::size_t lists = map + kVariantsInMap + i * kVariantLength + kListsInVariant;
        steps += 1;
        for (const std::size_t place : {lists, lists + kOffsetLength}) {
            const std::size_t list = file.at32(place);
            steps += list > 0 ? file.at32(map + list) : 0;
        }
    }
    return steps;
}

Steps stepsInMap(const CFontNumbers& file, std::size_t map)
{
    switch (file.at16(map)) {
    case 4:
        return stepsInSegments(file, map);
    case 8:
        return stepsInGroups(file, map + kMixedGroupsInMap);
    case 10:
        return file.at32(map + kGlyphCountInMap);
    case 12:
    case 13:
        return stepsInGroups(file, map + kGroupsInMap);
    case 14:
        return stepsInVariants(file, map);
    default:
        return kCharactersIn16Bits;
    }
}

} // namespace

std::uint64_t stepsThroughCharacters(const CFontNumbers& file, const CFilePart& cmap)
{
    const std::size_t count = file.at16(cmap.offset + kMapCountInCmap);
    Steps steps = 0;
    for (std::size_t i = 0; i < count && steps < kTooMany; ++i) {
        const std::size_t map = cmap.offset + kMapsInCmap + i * kMapLength;
        const Steps inMap = stepsInMap(file, cmap.offset + file.at32(map + kOffsetInMap));
        steps += inMap <= kCharacters ? inMap : kTooMany;
    }
    return steps;
}

} // namespace tovangl
