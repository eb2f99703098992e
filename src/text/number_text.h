// SPDX-License-Identifier: MIT
/// @file
/// Numbers as text, in a locale and with unit prefixes.
#ifndef TOVANGL_TEXT_NUMBER_TEXT_H
#define TOVANGL_TEXT_NUMBER_TEXT_H

#include "base/CKilo.h"

class QLocale;
class QString;

namespace tovangl {

/// How a number is written.
enum NumberFormat
{
    PlainNumber = 0,       ///< 12,345
    PrefixedWhole = 1,     ///< 12 K, scaled from one kilo on
    PrefixedFromTen = 2,   ///< 0.01 M, scaled from 10 on, with one decimal (kilo 1000) or two
    PrefixedOneDecimal = 3 ///< 12.1 K or 146 K, scaled from one kilo on
};

/// Writes a value in the locale's digits, with its separators, scaled by powers of a kilo and
/// followed by a space and the prefix letter where the format asks for it.
///
/// @param format  a NumberFormat; any other number leaves the value unscaled, but still adds a
///                sign and a letter
[[nodiscard]] QString numberText(long long value, int format, const QLocale& locale,
                                 const CKilo& kilo);

} // namespace tovangl

#endif
