// SPDX-License-Identifier: MIT
// Reads what a font file says about itself.
#include "pdf/font_tables.h"

#include "text/font_names.h"

namespace tovangl {

namespace {

constexpr std::size_t kPermissionOffset = 8; // in the table "OS/2"
constexpr unsigned kUsage = 0x000f;
constexpr unsigned kRestricted = 0x0002;
constexpr unsigned kBitmapsOnly = 0x0200;

std::string_view viewOf(const QByteArray& table)
{
    return {table.constData(), static_cast<std::size_t>(table.size())};
}

} // namespace

bool allowsEmbedding(const QByteArray& os2)
{
    const unsigned permission = CFontNumbers(viewOf(os2)).at16(kPermissionOffset);
    return (permission & kUsage) != kRestricted && (permission & kBitmapsOnly) == 0;
}

QByteArray postScriptName(const QByteArray& name)
{
    const std::string_view bytes = viewOf(name);
    const CFontNumbers numbers(bytes);
    const CFilePart table{0, bytes.size()};
    for (std::size_t i = 0; i < nameCount(numbers, table); ++i) {
        const CNameEntry entry = nameAt(numbers, table, i);
        if (entry.kind != kPostScriptName)
            continue;
        // It is in ASCII, which some platforms spell with a zero before each letter.
        const std::string_view text = numbers.bytes(entry.text);
        return QByteArray(text.data(), static_cast<int>(text.size()));
    }
    return QByteArray();
}

} // namespace tovangl
