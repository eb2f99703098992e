// SPDX-License-Identifier: MIT
// The name table of a font file.
#include "text/font_names.h"

#include <optional>

namespace tovangl {

namespace {

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

} // namespace

std::size_t nameCount(const CFontNumbers& file, const CFilePart& table)
{
    return table.length > 0 ? file.at16(table.offset + 2) : 0;
}

CNameEntry nameAt(const CFontNumbers& file, const CFilePart& table, std::size_t i)
{
    const std::size_t entry = table.offset + kNamesInNameTable + i * kNameLength;
    const std::size_t texts = table.offset + file.at16(table.offset + 4);
    return {file.at16(entry),
            file.at16(entry + 4),
            file.at16(entry + 6),
            {texts + file.at16(entry + 10), file.at16(entry + 8)}};
}

QString bestName(const CFontNumbers& file, const CFilePart& table, unsigned kind)
{
    std::optional<CNameEntry> best;
    for (std::size_t i = 0; i < nameCount(file, table); ++i) {
        const CNameEntry name = nameAt(file, table, i);
        if (name.kind == kind && name.platform <= kWindowsPlatform &&
            (!best || rank(name) < rank(*best)))
            best = name;
    }
    return best ? decoded(file.bytes(best->text), best->platform) : QString();
}

} // namespace tovangl
