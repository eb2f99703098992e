// SPDX-License-Identifier: MIT
/// @file
/// The name table of a font file. Any bytes can be passed.
#ifndef TOVANGL_TEXT_FONT_NAMES_H
#define TOVANGL_TEXT_FONT_NAMES_H

#include "text/font_numbers.h"

#include <QString>

namespace tovangl {

/// What a name is of, and for whom, by the numbers of the format.
constexpr unsigned kFamilyName = 1;
constexpr unsigned kStyleName = 2;
constexpr unsigned kPostScriptName = 6;
constexpr unsigned kUnicodePlatform = 0;
constexpr unsigned kMacintoshPlatform = 1;
constexpr unsigned kWindowsPlatform = 3;
constexpr unsigned kUnicodeOfWindows = 1;
constexpr unsigned kEnglishOfWindows = 0x409;

/// Where the entries of the table begin, and how long one is, in bytes.
constexpr std::size_t kNamesInNameTable = 6;
constexpr std::size_t kNameLength = 12;

struct CNameEntry
{
    unsigned platform = 0;
    unsigned language = 0;
    unsigned kind = 0;
    CFilePart text;
};

[[nodiscard]] std::size_t nameCount(const CFontNumbers& file, const CFilePart& table);

/// @param i  from 0 to nameCount() - 1
[[nodiscard]] CNameEntry nameAt(const CFontNumbers& file, const CFilePart& table, std::size_t i);

/// The name of a kind, in English where the font has it in English.
///
/// @return empty if there is none
[[nodiscard]] QString bestName(const CFontNumbers& file, const CFilePart& table, unsigned kind);

} // namespace tovangl

#endif
