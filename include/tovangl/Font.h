// SPDX-License-Identifier: MIT
/// @file
/// Fonts that the host brings along.
#ifndef TOVANGL_FONT_H
#define TOVANGL_FONT_H

#include <tovangl/Export.h>

#include <cstddef>
#include <string>
#include <vector>

namespace tovangl {

/// Makes the families of a font file usable by all charts of this process, whatever is installed on
/// the machine. Graph::setFont() then takes their names, in upper or lower case.
///
/// TTF and OTF files can be added, and collections of them (TTC). An added family goes before an
/// installed one of the same name, and before all others in a list of names. Its charts look the
/// same on every machine: neither other fonts nor the settings of fontconfig, except for forced
/// automatic hinting, change them. So a character that the family lacks is drawn as the family's
/// sign for missing ones. For bold texts, add the family's bold file too; without it, Qt makes the
/// regular letters bolder.
///
/// Add fonts before drawing: where a thread has drawn in another family while the machine had no
/// font at all, texts in that family can stay without letters.
///
/// A file is added once, however often it is passed. Fonts stay until the process ends. Any thread
/// can call this, while others draw; it waits for the pictures that are being drawn.
///
/// Only std::bad_alloc can leave the call.
///
/// @param path  of a regular file of at most 256 MB; later changes to the file have no effect
/// @return the names of the families, which are those that group regular, bold and italic; empty if
///         the file cannot be read, is no such font, or claims so many more characters than there
///         are that reading it would take minutes; or where nothing can be drawn, because Qt's
///         offscreen platform plugin is missing or the process is ending
TOVANGL_EXPORT std::vector<std::string> addFont(const std::string& path);

/// The same for a font file in memory.
///
/// @param bytes  copied; null is no font
/// @param size   number of bytes
TOVANGL_EXPORT std::vector<std::string> addFont(const unsigned char* bytes, std::size_t size);

} // namespace tovangl

#endif
