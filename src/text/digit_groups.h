// SPDX-License-Identifier: MIT
/// @file
/// Numbers whose digits are all grouped.
///
/// Qt 6 leaves out the first separator where a locale wants two digits before it. It writes Spanish
/// numbers as 1234, but also as 1234.567, which nobody does. Qt 5 groups them like all others.
#ifndef TOVANGL_TEXT_DIGIT_GROUPS_H
#define TOVANGL_TEXT_DIGIT_GROUPS_H

#include <QString>

namespace tovangl {
namespace qt {

/// Separates the first run of digits into groups of three, counted from its right end. A text whose
/// runs are all shorter, as in a locale with groups of two, is returned unchanged.
[[nodiscard]] QString separateLeadingDigits(const QString& text, const QString& separator);

} // namespace qt
} // namespace tovangl

#endif
