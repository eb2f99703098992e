// SPDX-License-Identifier: MIT
/// @file
/// Fits a text into a width.
#ifndef TOVANGL_DRAW_TEXT_FITTING_H
#define TOVANGL_DRAW_TEXT_FITTING_H

#include <QString>

#include <functional>

class QPainter;

namespace tovangl {
namespace cdraw {

/// Values of shortenText's flags.
inline constexpr bool kFromLeft = true;
inline constexpr bool kFromRight = false;
inline constexpr bool kStripSpaces = true;
inline constexpr bool kKeepSpaces = false;

/// Tells how wide a text is, in pixels, at least 0. As the painter has it, only what follows the
/// last character 0x9c counts.
using TextMeasure = std::function<double(const QString&)>;

/// A text and whether it fits.
struct CFittedText
{
    bool fits = false;
    QString text;
};

/// No more than this many UTF-16 units of a text are measured or drawn. Texts of that length are
/// far wider than any picture, and the time that one takes stays bounded.
inline constexpr int kLongestMeasuredText = 1 << 16;

/// What marks a cut.
[[nodiscard]] QString ellipsis();

/// The part of a text that is measured and drawn: its first kLongestMeasuredText units, and of the
/// combining marks on one character the first 256.
[[nodiscard]] QString measuredPart(const QString& text);

/// Removes white space at one or both ends.
void stripWhiteSpaces(QString& text, bool fromLeft, bool fromRight);

/// Cuts characters off one end of a text, and marks the cut with "...", until it fits into a width.
///
/// The result is the longest one that fits, at least one character with the ellipsis. A text cut
/// character by character may break anywhere, inside a word or a surrogate pair too.
///
/// The place of the cut is found by halving, and then by trying the few greater lengths that could
/// still fit: a longer text is taken never to be narrower than a shorter one by more than three
/// ellipses. Shaping stays far below that. Of a text, no more than measuredPart() is measured, and
/// no more than kLongestMeasuredText units are kept when it is cut.
///
/// @param maxWidth  pixels; a negative width fits nothing
/// @param fromLeft  cut the beginning instead of the end
/// @param strip     first drop white space at the end that is cut
/// @return the fitted text; where it cannot be made to fit, false and the text as it was
[[nodiscard]] CFittedText fitText(const QString& text, double maxWidth, bool fromLeft, bool strip,
                                  const TextMeasure& measure);

/// Whether fitText() would succeed. Costs the least where a text has to be cut: one character and
/// the ellipsis tell.
[[nodiscard]] bool canFitText(const QString& text, double maxWidth, bool fromLeft, bool strip,
                              const TextMeasure& measure);

/// fitText() over the painter's font. The text is changed only where the result is true.
bool shortenText(QString& text, double maxWidth, QPainter& painter, bool fromLeft, bool strip);

/// canFitText() over the painter's font.
[[nodiscard]] bool canShortenText(const QString& text, double maxWidth, QPainter& painter,
                                  bool fromLeft, bool strip);

} // namespace cdraw
} // namespace tovangl

#endif
