// SPDX-License-Identifier: MIT
// Reads and replaces the family names in a font file.
#include "text/font_file.h"

#include "text/character_map.h"
#include "text/font_names.h"

#include <array>
#include <cstdint>
#include <optional>

namespace tovangl {

namespace {

constexpr std::size_t kLargestFile = 1U << 28; // bytes
constexpr std::uint32_t kMostFonts = 256;      // in a collection
constexpr int kLongestName = 256;              // characters, as many as a chart keeps of a family

// The largest collections have ten million characters in all maps of all fonts together.
constexpr std::uint64_t kMostSteps = 20'000'000;

constexpr std::uint32_t tag(const char (&name)[5])
{
    std::uint32_t value = 0;
    for (int i = 0; i < 4; ++i)
        value = value << 8 | static_cast<unsigned char>(name[i]);
    return value;
}

// The first four bytes of a font, by the kind of its outlines, and of a collection.
constexpr std::uint32_t kTrueType = 0x00010000;
constexpr std::uint32_t kOldTrueType = tag("true");
constexpr std::uint32_t kOpenType = tag("OTTO");
constexpr std::uint32_t kCollection = tag("ttcf");

// Where the fields of each structure lie, and how long it is, in bytes.
constexpr std::size_t kFontCountInCollection = 8;
constexpr std::size_t kFontsInCollection = 12;
constexpr std::size_t kOffsetLength = 4;
constexpr std::size_t kTableCountInFont = 4;
constexpr std::size_t kTablesInFont = 12;
constexpr std::size_t kTableLength = 16;
constexpr std::size_t kOffsetInTable = 8;
constexpr std::size_t kLengthInTable = 12;
constexpr std::size_t kUnitsInHead = 18;

// What the format allows for the square in which glyphs are designed.
constexpr unsigned kFewestUnits = 16;
constexpr unsigned kMostUnits = 16384;

// --- tables

// Where the fonts begin.
std::vector<std::size_t> fontsIn(const CFontNumbers& file)
{
    if (file.at32(0) != kCollection)
        return {0};
    const std::uint32_t count = file.at32(kFontCountInCollection);
    if (count > kMostFonts)
        return {};
    std::vector<std::size_t> fonts;
    for (std::size_t i = 0; i < count; ++i)
        fonts.push_back(file.at32(kFontsInCollection + i * kOffsetLength));
    return fonts;
}

// Where the font's directory has the table's entry.
std::optional<std::size_t> findEntry(const CFontNumbers& file, std::size_t font, std::uint32_t name)
{
    const std::size_t count = file.at16(font + kTableCountInFont);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t entry = font + kTablesInFont + i * kTableLength;
        if (file.at32(entry) == name)
            return entry;
    }
    return std::nullopt;
}

// Empty if the font has no such table, or only a part of it.
CFilePart findTable(const CFontNumbers& file, std::size_t font, std::uint32_t name)
{
    const auto entry = findEntry(file, font, name);
    if (!entry)
        return {};
    const CFilePart table{file.at32(*entry + kOffsetInTable), file.at32(*entry + kLengthInTable)};
    return file.has(table) ? table : CFilePart();
}

bool hasTable(const CFontNumbers& file, std::size_t font, std::uint32_t name)
{
    return findTable(file, font, name).length > 0;
}

bool isFont(const CFontNumbers& file, std::size_t font)
{
    const std::uint32_t kind = file.at32(font);
    if (kind != kTrueType && kind != kOldTrueType && kind != kOpenType)
        return false;
    const bool hasOutlines = hasTable(file, font, tag("glyf")) ||
                             hasTable(file, font, tag("CFF ")) || hasTable(file, font, tag("CFF2"));
    const unsigned units = file.at16(findTable(file, font, tag("head")).offset + kUnitsInHead);
    return hasOutlines && hasTable(file, font, tag("head")) && units >= kFewestUnits &&
           units <= kMostUnits && hasTable(file, font, tag("maxp")) &&
           hasTable(file, font, tag("cmap"));
}

bool canBeReadInTime(const CFontNumbers& file, const std::vector<std::size_t>& fonts)
{
    std::uint64_t steps = 0;
    for (const std::size_t font : fonts)
        steps += stepsThroughCharacters(file, findTable(file, font, tag("cmap")));
    return steps <= kMostSteps;
}

// --- names

QString nameInFont(const CFontNumbers& file, std::size_t font, unsigned kind)
{
    const QString name = bestName(file, findTable(file, font, tag("name")), kind);
    // As a host can pass it on: with nothing that UTF-8 cannot hold, and short enough.
    return QString::fromUtf8(name.toUtf8()).left(kLongestName).trimmed();
}

// --- writing

void append16(QByteArray& bytes, std::size_t value)
{
    bytes += static_cast<char>(value >> 8 & 0xff);
    bytes += static_cast<char>(value & 0xff);
}

void write32(QByteArray& bytes, std::size_t offset, std::size_t value)
{
    for (int i = 3; i >= 0; --i, value >>= 8)
        bytes[static_cast<int>(offset) + i] = static_cast<char>(value & 0xff);
}

QByteArray encoded(const QString& text)
{
    QByteArray bytes;
    for (const QChar unit : text)
        append16(bytes, unit.unicode());
    return bytes;
}

// A name table with the family and the style, and nothing else.
QByteArray nameTable(const QString& family, const QString& style)
{
    const std::array<QByteArray, 2> texts = {encoded(family), encoded(style)};
    QByteArray table;
    append16(table, 0);
    append16(table, texts.size());
    append16(table, kNamesInNameTable + texts.size() * kNameLength);
    std::size_t offset = 0;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const auto length = static_cast<std::size_t>(texts[i].size());
        const std::array<std::size_t, 6> entry = {kWindowsPlatform,
                                                  kUnicodeOfWindows,
                                                  kEnglishOfWindows,
                                                  i == 0 ? kFamilyName : kStyleName,
                                                  length,
                                                  offset};
        for (const std::size_t field : entry)
            append16(table, field);
        offset += length;
    }
    return table + texts[0] + texts[1];
}

// Tables begin at multiples of four.
void align(QByteArray& bytes)
{
    while (bytes.size() % 4 != 0)
        bytes += '\0';
}

} // namespace

std::vector<QString> familiesInFile(std::string_view bytes)
{
    if (bytes.size() > kLargestFile)
        return {};
    const CFontNumbers file(bytes);
    const std::vector<std::size_t> fonts = fontsIn(file);
    if (!canBeReadInTime(file, fonts))
        return {};
    std::vector<QString> families;
    for (const std::size_t font : fonts) {
        families.push_back(isFont(file, font) ? nameInFont(file, font, kFamilyName) : QString());
        if (families.back().isEmpty())
            return {};
    }
    return families;
}

QByteArray renamedFile(std::string_view bytes, const std::vector<QString>& families)
{
    const CFontNumbers file(bytes);
    QByteArray renamed(bytes.data(), static_cast<int>(bytes.size()));
    const std::vector<std::size_t> fonts = fontsIn(file);
    for (std::size_t i = 0; i < fonts.size(); ++i) {
        const QByteArray table = nameTable(families[i], nameInFont(file, fonts[i], kStyleName));
        align(renamed);
        const auto entry = findEntry(file, fonts[i], tag("name"));
        write32(renamed, *entry + kOffsetInTable, static_cast<std::size_t>(renamed.size()));
        write32(renamed, *entry + kLengthInTable, static_cast<std::size_t>(table.size()));
        renamed += table;
    }
    return renamed;
}

} // namespace tovangl
