// SPDX-License-Identifier: MIT
// Reads what a font file says about itself.
#include "pdf/font_tables.h"

namespace tovangl {

namespace {

constexpr int kPermissionOffset = 8; // in the table "OS/2"
constexpr int kUsage = 0x000f;
constexpr int kRestricted = 0x0002;
constexpr int kBitmapsOnly = 0x0200;

constexpr int kCountOffset = 2; // in the table "name"
constexpr int kTextsOffset = 4;
constexpr int kHeaderLength = 6;
constexpr int kEntryLength = 12;
constexpr int kKindInEntry = 6;
constexpr int kLengthInEntry = 8;
constexpr int kTextInEntry = 10;
constexpr int kPostScriptName = 6;

// Two bytes; 0 behind the end.
int numberAt(const QByteArray& table, int offset)
{
    if (offset < 0 || offset + 1 >= table.size())
        return 0;
    return static_cast<unsigned char>(table[offset]) << 8 |
           static_cast<unsigned char>(table[offset + 1]);
}

} // namespace

bool allowsEmbedding(const QByteArray& os2)
{
    const int permission = numberAt(os2, kPermissionOffset);
    return (permission & kUsage) != kRestricted && (permission & kBitmapsOnly) == 0;
}

QByteArray postScriptName(const QByteArray& name)
{
    const int texts = numberAt(name, kTextsOffset);
    for (int i = 0; i < numberAt(name, kCountOffset); ++i) {
        const int entry = kHeaderLength + i * kEntryLength;
        if (numberAt(name, entry + kKindInEntry) != kPostScriptName)
            continue;
        // It is in ASCII, which some platforms spell with a zero before each letter.
        return name.mid(texts + numberAt(name, entry + kTextInEntry),
                        numberAt(name, entry + kLengthInEntry));
    }
    return QByteArray();
}

} // namespace tovangl
