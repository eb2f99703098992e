// SPDX-License-Identifier: MIT
/// @file
/// Numbers whose digits are all grouped.
///
/// Qt 6 leaves out the first separator where a locale wants two digits before it: Spanish numbers
/// are written 1234 and, what nobody writes, 1234.567. Qt 5 groups them as any others.
#ifndef TOVANGL_CORE_DIGIT_GROUPS_H
#define TOVANGL_CORE_DIGIT_GROUPS_H

#include <QString>

namespace tovangl {
namespace qt {

/// Separates the first run of digits into groups of three, counted from its right end. A text
/// without a longer run, as of a locale with groups of two, is returned as it is.
[[nodiscard]] QString separateLeadingDigits(const QString& text, const QString& separator);

} // namespace qt
} // namespace tovangl

#endif
