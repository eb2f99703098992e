// SPDX-License-Identifier: MIT
/// @file
/// Puts a text on one line.
#ifndef TOVANGL_TEXT_ONE_LINE_H
#define TOVANGL_TEXT_ONE_LINE_H

#include <QString>

namespace tovangl {

/// The text without line breaks and control characters: each becomes a space. White space in a row
/// becomes one space, and none is left at the ends.
[[nodiscard]] QString oneLine(QString text);

} // namespace tovangl

#endif
