// SPDX-License-Identifier: MIT
/// @file
/// Fits a text into a width.
#ifndef TOVANGL_TEXT_TEXT_FITTING_H
#define TOVANGL_TEXT_TEXT_FITTING_H

#include <QString>

#include <functional>

namespace tovangl {
namespace cdraw {

/// Values of shortenText()'s flags.
inline constexpr bool kFromLeft = true;
inline constexpr bool kFromRight = false;
inline constexpr bool kStripSpaces = true;
inline constexpr bool kKeepSpaces = false;

/// Returns the width of a text in pixels, at least 0. Like the painter, it measures only what
/// follows the last character 0x9c.
using TextMeasure = std::function<double(const QString&)>;

/// A text and whether it fits.
struct CFittedText
{
    bool fits = false;
    QString text;
};

/// At most this many UTF-16 units of a text are measured or drawn. Texts of that length are
/// far wider than any picture, and the limit bounds the time that one takes.
inline constexpr int kLongestMeasuredText = 1 << 16;

/// What marks a cut.
[[nodiscard]] QString ellipsis();

/// The part of a text that is measured and drawn: its first kLongestMeasuredText units, with at
/// most 256 combining marks on one character.
[[nodiscard]] QString measuredPart(const QString& text);

/// Removes white space at one or both ends.
void stripWhiteSpaces(QString& text, bool fromLeft, bool fromRight);

/// Cuts characters off one end of a text, and marks the cut with "...", until it fits into a width.
///
/// The result is the longest one that fits, at least one character with the ellipsis. The cut can
/// be anywhere, even inside a word or a surrogate pair.
///
/// A binary search finds the cut; then the few greater lengths that could still fit are tried. This
/// assumes that a longer text is never narrower than a shorter one by more than three ellipses;
/// shaping stays far below that. Only measuredPart() of a text is measured, and a cut text keeps at
/// most kLongestMeasuredText units.
///
/// @param maxWidth  pixels; a negative width fits nothing
/// @param fromLeft  cut the beginning instead of the end
/// @param strip     first drop white space at the end that is cut
/// @return the fitted text; if no cut fits, false and the text unchanged
[[nodiscard]] CFittedText shortenText(const QString& text, double maxWidth, bool fromLeft,
                                      bool strip, const TextMeasure& measure);

/// Whether shortenText() would succeed. This is cheaper than cutting: a long text only takes
/// measuring one character and the ellipsis.
[[nodiscard]] bool canShortenText(const QString& text, double maxWidth, bool fromLeft, bool strip,
                                  const TextMeasure& measure);

} // namespace cdraw
} // namespace tovangl

#endif
