// SPDX-License-Identifier: MIT
// Font files of a few hundred bytes, for tests that need many or odd ones.
#include "support/small_font.h"

#include <utility>

namespace tovangl {

namespace {

constexpr int kHeight = 700; // units
constexpr int kDepth = 200;  // units
constexpr int kGap = 100;    // units, between glyphs
constexpr std::size_t kDirectory = 12;
constexpr std::size_t kDirectoryEntry = 16;
constexpr std::size_t kCollectionHeader = 12;

// A table, written number by number.
class CTable
{
public:
    CTable& u8(int value)
    {
        m_bytes += static_cast<char>(value & 0xff);
        return *this;
    }
    CTable& u16(int value) { return u8(value >> 8).u8(value); }
    CTable& u32(std::size_t value)
    {
        return u16(static_cast<int>(value >> 16 & 0xffff)).u16(static_cast<int>(value & 0xffff));
    }
    CTable& text(const std::string& bytes)
    {
        m_bytes += bytes;
        return *this;
    }
    CTable& zeros(std::size_t count) { return text(std::string(count, '\0')); }
    CTable& align()
    {
        while (m_bytes.size() % 4 != 0)
            u8(0);
        return *this;
    }

    [[nodiscard]] const std::string& bytes() const { return m_bytes; }

private:
    std::string m_bytes;
};

std::string characterTable(const std::string& map)
{
    return CTable().u16(0).u16(1).u16(3).u16(10).u32(12).text(map).bytes();
}

std::string rectangleGlyph(int width)
{
    CTable table;
    table.u16(1).u16(0).u16(0).u16(width).u16(kHeight); // one contour and its bounds
    table.u16(3).u16(0);                                // four points, no instructions
    for (int point = 0; point < 4; ++point)
        table.u8(1); // on the curve, with both coordinates in full
    table.u16(0).u16(0).u16(width).u16(0);
    table.u16(0).u16(kHeight).u16(0).u16(-kHeight);
    return table.align().bytes();
}

std::string header(const CSmallFont& font)
{
    return CTable()
        .u32(0x00010000)
        .u32(0x00010000)
        .u32(0)
        .u32(0x5f0f3cf5)
        .u16(0)
        .u16(font.unitsPerEm)
        .zeros(16)
        .u16(0)
        .u16(0)
        .u16(font.glyphWidth)
        .u16(kHeight)
        .u16(font.isBold ? 1 : 0)
        .u16(8)
        .u16(2)
        .u16(0)
        .u16(0)
        .bytes();
}

std::string horizontalHeader(const CSmallFont& font)
{
    return CTable()
        .u32(0x00010000)
        .u16(kHeight)
        .u16(-kDepth)
        .u16(0)
        .u16(font.glyphWidth + kGap)
        .zeros(22)
        .u16(2)
        .bytes();
}

std::string nameTable(const std::vector<CFontName>& names)
{
    CTable table;
    table.u16(0).u16(static_cast<int>(names.size())).u16(6 + 12 * static_cast<int>(names.size()));
    std::string texts;
    for (const CFontName& name : names) {
        for (const unsigned field : {name.platform, name.encoding, name.language, name.kind})
            table.u16(static_cast<int>(field));
        table.u16(static_cast<int>(name.bytes.size())).u16(static_cast<int>(texts.size()));
        texts += name.bytes;
    }
    return table.text(texts).bytes();
}

// Pictures of one size: none for the first glyph, and this one for the second.
std::string pictureTable(const CSmallFont& font)
{
    const std::size_t begin =
        4 + 3 * 4; // in the part for the size, behind the places of three ends
    const std::size_t end = begin + 8 + font.picture.size();
    return CTable()
        .u16(1)
        .u16(1)
        .u32(1)
        .u32(12)
        .u16(font.pictureSize)
        .u16(72)
        .u32(begin)
        .u32(begin)
        .u32(end)
        .u16(0)
        .u16(0)
        .text("png ")
        .text(font.picture)
        .bytes();
}

using Tables = std::vector<std::pair<std::string, std::string>>; // by their tags

Tables tablesOf(const CSmallFont& font)
{
    const std::string glyph = rectangleGlyph(font.glyphWidth);
    const int half = static_cast<int>(glyph.size()) / 2; // places of glyphs are halved
    CTable metrics;
    for (int i = 0; i < 2; ++i)
        metrics.u16(font.glyphWidth + kGap).u16(0);
    Tables tables = {
        {"cmap", characterTable(font.characterMap)},
        {"glyf", glyph + glyph},
        {"head", header(font)},
        {"hhea", horizontalHeader(font)},
        {"hmtx", metrics.bytes()},
        {"loca", CTable().u16(0).u16(half).u16(2 * half).bytes()},
        {"maxp", CTable().u32(0x00010000).u16(2).u16(4).u16(1).zeros(22).bytes()},
        {"name", nameTable(font.names)},
    };
    if (!font.picture.empty())
        tables.emplace_back("sbix", pictureTable(font));
    return tables;
}

} // namespace

CFontName windowsName(unsigned kind, const std::string& text)
{
    std::string bytes;
    for (const char letter : text)
        bytes += {'\0', letter};
    return {3, 1, 0x409, kind, bytes};
}

CFontName macintoshName(unsigned kind, const std::string& bytes)
{
    return {1, 0, 0, kind, bytes};
}

std::string charactersFrom(std::uint32_t first, std::uint32_t last)
{
    return CTable().u16(13).u16(0).u32(28).u32(0).u32(1).u32(first).u32(last).u32(1).bytes();
}

std::string smallFont(const CSmallFont& font)
{
    const Tables tables = tablesOf(font);
    CTable directory;
    directory.u32(0x00010000).u16(static_cast<int>(tables.size())).zeros(6);
    const std::size_t begin = kDirectory + kDirectoryEntry * tables.size();
    CTable content;
    for (const auto& [tag, bytes] : tables) {
        directory.text(tag).u32(0).u32(begin + content.bytes().size()).u32(bytes.size());
        content.text(bytes).align();
    }
    return directory.bytes() + content.bytes();
}

std::string smallFont(const std::string& family)
{
    return smallFont(CSmallFont{{windowsName(1, family)}});
}

// The places of tables count from the beginning of the file, so each font's directory is moved on.
std::string smallCollection(const std::vector<std::string>& fonts)
{
    CTable file;
    file.text("ttcf").u32(0x00010000).u32(fonts.size());
    std::size_t begin = kCollectionHeader + 4 * fonts.size();
    std::string moved;
    for (const std::string& font : fonts) {
        file.u32(begin);
        const auto tables = static_cast<std::size_t>(static_cast<unsigned char>(font[5]));
        std::string copy = font;
        for (std::size_t i = 0; i < tables; ++i) {
            const std::size_t field = kDirectory + i * kDirectoryEntry + 8;
            std::size_t place = 0;
            for (std::size_t byte = 0; byte < 4; ++byte)
                place = place << 8 | static_cast<unsigned char>(font[field + byte]);
            copy.replace(field, 4, CTable().u32(place + begin).bytes());
        }
        moved += copy;
        begin += copy.size();
    }
    return file.bytes() + moved;
}

} // namespace tovangl
