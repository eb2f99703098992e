// SPDX-License-Identifier: MIT
/// @file
/// Numbers, colours and texts as a PDF file spells them.
#ifndef TOVANGL_PDF_PDF_TEXT_H
#define TOVANGL_PDF_PDF_TEXT_H

#include <cstdint>
#include <string>

class QByteArray;
class QColor;
class QPointF;
class QString;

namespace tovangl {

/// The decimals of a length: a hundredth of a pixel cannot be seen.
inline constexpr int kLengthDecimals = 2;

/// A number without an exponent, and without zeros at its end. What is not a number is 0, and what
/// no reader takes is brought into its range.
[[nodiscard]] std::string pdfNumber(double value, int decimals = kLengthDecimals);

/// Two numbers and a space behind each.
[[nodiscard]] std::string pdfPoint(const QPointF& point);

/// Red, green and blue, each from 0 to 1, and a space behind each.
[[nodiscard]] std::string pdfColor(const QColor& color);

/// Four hexadecimal digits.
[[nodiscard]] std::string pdfHex(std::uint16_t value);

/// Any text: words as they are, and all others in hexadecimal digits, so that nothing in it can be
/// taken for anything else.
[[nodiscard]] std::string pdfString(const QString& text);

/// The letters and digits of a name.
[[nodiscard]] std::string pdfName(const QByteArray& name);

/// A reference to an object.
[[nodiscard]] std::string pdfReference(int object);

} // namespace tovangl

#endif
