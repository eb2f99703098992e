// SPDX-License-Identifier: MIT
/// @file
/// Reads what a font file says about itself.
#ifndef TOVANGL_PDF_FONT_TABLES_H
#define TOVANGL_PDF_FONT_TABLES_H

#include <QByteArray>

namespace tovangl {

/// Whether a font may be part of a document that others get. Any bytes can be passed; a font that
/// does not say may be.
///
/// @param os2  the table "OS/2"
[[nodiscard]] bool allowsEmbedding(const QByteArray& os2);

/// A font's name for printers, such as DejaVuSans-Bold. Any bytes can be passed.
///
/// @param name  the table "name"
/// @return empty if it has none
[[nodiscard]] QByteArray postScriptName(const QByteArray& name);

} // namespace tovangl

#endif
