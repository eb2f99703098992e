// SPDX-License-Identifier: MIT
/// @file
/// Reads and replaces the family names in a font file.
#ifndef TOVANGL_TEXT_FONT_FILE_H
#define TOVANGL_TEXT_FONT_FILE_H

#include <QByteArray>
#include <QString>

#include <string_view>
#include <vector>

namespace tovangl {

/// The family name of each font in a TTF or OTF file, or in a collection of them (TTC, OTC).
///
/// A font's family is the one with at most four styles (regular, bold, italic, both), in English
/// where the font has an English name. Any bytes can be passed.
///
/// @return empty if the file is none of these, a font in it lacks outlines, characters or a name,
///         or its fonts claim so many characters that reading them would take minutes
[[nodiscard]] std::vector<QString> familiesInFile(std::string_view file);

/// The same file with other names for its families. The fonts' tables keep their places, except for
/// the names: those are added at the end, for every font its family and its style.
///
/// @param file      one in which familiesInFile() finds fonts
/// @param families  as many names as fonts
[[nodiscard]] QByteArray renamedFile(std::string_view file, const std::vector<QString>& families);

} // namespace tovangl

#endif
