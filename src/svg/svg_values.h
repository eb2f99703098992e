// SPDX-License-Identifier: MIT
/// @file
/// Numbers, colours and texts as SVG has them.
#ifndef TOVANGL_SVG_SVG_VALUES_H
#define TOVANGL_SVG_SVG_VALUES_H

#include <string>

class QColor;
class QString;

namespace tovangl {

/// A number rounded to two decimals. One beyond a billion is the nearest within; NaN is 0.
[[nodiscard]] double svgRounded(double value);

/// The same number as text, no longer than it has to be.
[[nodiscard]] std::string svgNumber(double value);

/// "#rrggbb", or "#rgb" where that is the same colour. A colour that is not set is black.
[[nodiscard]] std::string svgColor(const QColor& color);

/// A text as XML can hold it, inside an element or in an attribute: in UTF-8, with no character
/// that is markup. A replacement character stands for what no XML can hold, a space for line breaks
/// and tabs.
[[nodiscard]] std::string svgText(const QString& text);

/// A list of font families, each in quotes where it is no plain word, and the kind of font that
/// takes their place where none of them is there.
[[nodiscard]] QString svgFontFamily(const QString& families);

} // namespace tovangl

#endif
