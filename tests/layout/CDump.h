// SPDX-License-Identifier: MIT
/// @file
/// Collects the lines of a layout as text.
#ifndef TOVANGL_LAYOUT_CDUMP_H
#define TOVANGL_LAYOUT_CDUMP_H

#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QString>

#include <string>

namespace tovangl {

/// A text of lines, each made of words: `dump.line("bar").quoted(name).rect(rect)`.
class CDump
{
public:
    CDump& line(const char* name, int indent = 0);
    CDump& word(const char* word);
    /// The word, where the flag is set.
    CDump& flag(const char* word, bool isSet);
    CDump& number(long long value);
    /// Rounded to hundredths.
    CDump& fraction(double value);
    CDump& quoted(const QString& text);
    CDump& point(const QPoint& point);
    CDump& point(const QPointF& point);
    /// Left, top, width and height; "none" for a rectangle without extent.
    CDump& rect(const QRect& rect);
    CDump& rect(const QRectF& rect);
    CDump& size(const QSize& size);

    [[nodiscard]] std::string text() const { return m_text + '\n'; }

private:
    std::string m_text;
};

} // namespace tovangl

#endif
