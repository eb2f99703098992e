// SPDX-License-Identifier: MIT
/// @file
/// Text fitting in its plain form: cut one character, measure, repeat. It is quadratic, and it is
/// what the fast form is held against.
#ifndef TOVANGL_TEXT_PLAIN_TEXT_FITTING_H
#define TOVANGL_TEXT_PLAIN_TEXT_FITTING_H

#include "text/text_fitting.h"

#include <algorithm>

namespace tovangl {
namespace cdraw {

inline QString plainlyStripped(QString text, bool fromLeft)
{
    while (!text.isEmpty() && text.at(fromLeft ? 0 : text.size() - 1).isSpace())
        text.remove(fromLeft ? 0 : text.size() - 1, 1);
    return text;
}

inline CFittedText plainlyShortenText(const QString& text, double maxWidth, bool fromLeft,
                                      bool strip, const TextMeasure& measure)
{
    if (maxWidth < 0)
        return {false, text};
    const QString ellipsis = QString::fromLatin1("...");
    const double ellipsisWidth = std::max(measure(ellipsis), 0.0);
    const auto fits = [&](const QString& candidate) {
        return candidate.isEmpty() || maxWidth >= std::max(measure(candidate), 0.0);
    };

    QString copy = text;
    if (fits(copy))
        return {true, copy};
    if (strip) {
        copy = plainlyStripped(copy, fromLeft);
        if (fits(copy))
            return {true, copy};
    }
    while (copy.size() >= 2) {
        copy.remove(fromLeft ? 0 : copy.size() - 1, 1);
        if (measure(copy) + ellipsisWidth <= maxWidth)
            return {true, fromLeft ? ellipsis + copy : copy + ellipsis};
    }
    return {false, text};
}

} // namespace cdraw
} // namespace tovangl

#endif
