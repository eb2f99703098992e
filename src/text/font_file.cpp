// SPDX-License-Identifier: MIT
// Reads and replaces the family names in a font file.
#include "text/font_file.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace tovangl {

namespace {

constexpr std::size_t kLargestFile = 1U << 28; // bytes
constexpr std::uint32_t kMostFonts = 256;      // in a collection
constexpr int kLongestName = 256;              // characters, as many as a chart keeps of a family

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
constexpr std::size_t kMapCountInCmap = 2;
constexpr std::size_t kMapsInCmap = 4;
constexpr std::size_t kMapLength = 8;
constexpr std::size_t kOffsetInMap = 4;
constexpr std::size_t kSegmentCountInMap = 6; // in bytes, two for each
constexpr std::size_t kSegmentsInMap = 14;
constexpr std::size_t kVariantCountInMap = 6;
constexpr std::size_t kVariantsInMap = 10;
constexpr std::size_t kVariantLength = 11;
constexpr std::size_t kGroupsInMap = 12;
constexpr std::size_t kMixedGroupsInMap = 8204;
constexpr std::size_t kGlyphCountInMap = 16;
constexpr std::size_t kGroupLength = 12;
constexpr std::size_t kNamesInNameTable = 6;
constexpr std::size_t kNameLength = 12;

// What the format allows for the square in which glyphs are designed.
constexpr unsigned kFewestUnits = 16;
constexpr unsigned kMostUnits = 16384;

// Fonts are read by going through all characters that they map to glyphs, and twelve bytes can
// claim four thousand million. A map has at most all characters that there are; the largest
// collections have ten million together.
constexpr std::uint64_t kMostStepsInMap = 0x110000;
constexpr std::uint64_t kMostStepsInFile = 20'000'000;
constexpr std::uint64_t kCharactersIn16Bits = 0x10000;

// What names are of, and for whom.
constexpr unsigned kFamilyName = 1;
constexpr unsigned kStyleName = 2;
constexpr unsigned kUnicodePlatform = 0;
constexpr unsigned kMacintoshPlatform = 1;
constexpr unsigned kWindowsPlatform = 3;
constexpr unsigned kUnicodeOfWindows = 1;
constexpr unsigned kEnglishOfWindows = 0x409;

struct CPart
{
    std::size_t offset = 0;
    std::size_t length = 0;
};

// Numbers of a file, which begin with their highest byte; 0 beyond its end.
class CFileNumbers
{
public:
    explicit CFileNumbers(std::string_view file)
        : m_file(file)
    {}

    [[nodiscard]] bool has(const CPart& part) const
    {
        return part.offset <= m_file.size() && part.length <= m_file.size() - part.offset;
    }
    [[nodiscard]] unsigned at16(std::size_t offset) const
    {
        return static_cast<unsigned>(number(offset, 2));
    }
    [[nodiscard]] std::uint32_t at32(std::size_t offset) const { return number(offset, 4); }
    [[nodiscard]] std::string_view bytes(const CPart& part) const
    {
        return has(part) ? m_file.substr(part.offset, part.length) : std::string_view();
    }

private:
    [[nodiscard]] std::uint32_t number(std::size_t offset, std::size_t length) const
    {
        std::uint32_t value = 0;
        for (const char byte : bytes({offset, length}))
            value = value << 8 | static_cast<unsigned char>(byte);
        return value;
    }

    std::string_view m_file;
};

// --- tables

// Where the fonts begin.
std::vector<std::size_t> fontsIn(const CFileNumbers& file)
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
std::optional<std::size_t> findEntry(const CFileNumbers& file, std::size_t font, std::uint32_t name)
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
CPart findTable(const CFileNumbers& file, std::size_t font, std::uint32_t name)
{
    const auto entry = findEntry(file, font, name);
    if (!entry)
        return {};
    const CPart table{file.at32(*entry + kOffsetInTable), file.at32(*entry + kLengthInTable)};
    return file.has(table) ? table : CPart();
}

bool hasTable(const CFileNumbers& file, std::size_t font, std::uint32_t name)
{
    return findTable(file, font, name).length > 0;
}

bool isFont(const CFileNumbers& file, std::size_t font)
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

// --- characters

// All of these count what a reader of a map goes through, and stop counting where it is too much.
using Steps = std::uint64_t;

// Groups of a first character, a last one, and a glyph. Readers give up where they do not ascend.
Steps stepsInGroups(const CFileNumbers& file, std::size_t groups)
{
    const std::size_t count = file.at32(groups);
    Steps steps = 0;
    std::uint32_t next = 0;
    for (std::size_t i = 0; i < count && steps <= kMostStepsInMap; ++i) {
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
Steps stepsInSegments(const CFileNumbers& file, std::size_t map)
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
Steps stepsInVariants(const CFileNumbers& file, std::size_t map)
{
    const std::size_t count = file.at32(map + kVariantCountInMap);
    Steps steps = 0;
    for (std::size_t i = 0; i < count && steps <= kMostStepsInMap; ++i) {
        const std::size_t lists = map + kVariantsInMap + i * kVariantLength + 3;
        steps += 1;
        for (const std::size_t place : {lists, lists + kOffsetLength}) {
            const std::size_t list = file.at32(place);
            steps += list > 0 ? file.at32(map + list) : 0;
        }
    }
    return steps;
}

Steps stepsInMap(const CFileNumbers& file, std::size_t map)
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

Steps stepsInFont(const CFileNumbers& file, std::size_t font)
{
    const CPart cmap = findTable(file, font, tag("cmap"));
    const std::size_t count = file.at16(cmap.offset + kMapCountInCmap);
    Steps steps = 0;
    for (std::size_t i = 0; i < count && steps <= kMostStepsInFile; ++i) {
        const std::size_t map = cmap.offset + kMapsInCmap + i * kMapLength;
        const Steps inMap = stepsInMap(file, cmap.offset + file.at32(map + kOffsetInMap));
        steps += inMap <= kMostStepsInMap ? inMap : kMostStepsInFile + 1;
    }
    return steps;
}

bool canBeReadInTime(const CFileNumbers& file, const std::vector<std::size_t>& fonts)
{
    Steps steps = 0;
    for (const std::size_t font : fonts)
        steps += stepsInFont(file, font);
    return steps <= kMostStepsInFile;
}

// --- names

// One entry of a name table.
struct CNameEntry
{
    unsigned platform = 0;
    unsigned language = 0;
    unsigned kind = 0;
    CPart text;
};

CNameEntry nameEntry(const CFileNumbers& file, std::size_t entry, std::size_t texts)
{
    return {file.at16(entry),
            file.at16(entry + 4),
            file.at16(entry + 6),
            {texts + file.at16(entry + 10), file.at16(entry + 8)}};
}

// The best is the lowest.
int rank(const CNameEntry& name)
{
    if (name.platform == kWindowsPlatform)
        return name.language == kEnglishOfWindows ? 0 : 1;
    return name.platform == kUnicodePlatform ? 2 : 3;
}

// Names for old Macintosh computers are in its own encodings, which agree on the letters of ASCII.
QString decoded(std::string_view bytes, unsigned platform)
{
    if (platform == kMacintoshPlatform)
        return QString::fromLatin1(bytes.data(), static_cast<int>(bytes.size()));
    QString text;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
        text +=
            QChar(static_cast<unsigned char>(bytes[i + 1]), static_cast<unsigned char>(bytes[i]));
    return text;
}

// As a host can pass it on: with nothing that UTF-8 cannot hold, and short enough.
QString usableName(const QString& name)
{
    return QString::fromUtf8(name.toUtf8()).left(kLongestName).trimmed();
}

QString nameInFont(const CFileNumbers& file, std::size_t font, unsigned kind)
{
    const CPart table = findTable(file, font, tag("name"));
    const std::size_t count = file.at16(table.offset + 2);
    const std::size_t texts = table.offset + file.at16(table.offset + 4);
    std::optional<CNameEntry> best;
    for (std::size_t i = 0; table.length > 0 && i < count; ++i) {
        const auto name =
            nameEntry(file, table.offset + kNamesInNameTable + i * kNameLength, texts);
        if (name.kind == kind && name.platform <= kWindowsPlatform &&
            (!best || rank(name) < rank(*best)))
            best = name;
    }
    return best ? usableName(decoded(file.bytes(best->text), best->platform)) : QString();
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
    const CFileNumbers file(bytes);
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
    const CFileNumbers file(bytes);
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
