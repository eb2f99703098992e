// SPDX-License-Identifier: MIT
// Collects the lines of a layout as text.
#include "layout/CDump.h"

#include <cmath>
#include <cstdio>

namespace tovangl {

namespace {

std::string hundredths(double value)
{
    constexpr double kHundred = 100.0;
    // Adding 0 makes a positive zero of a negative one.
    const double rounded = std::round(value * kHundred) / kHundred + 0.0;
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.2f", rounded);
    return buffer;
}

} // namespace

CDump& CDump::line(const char* name, int indent)
{
    if (!m_text.empty())
        m_text += '\n';
    m_text.append(static_cast<std::size_t>(2 * indent), ' ');
    m_text += name;
    return *this;
}

CDump& CDump::word(const char* word)
{
    m_text += ' ';
    m_text += word;
    return *this;
}

CDump& CDump::flag(const char* word, bool isSet)
{
    return isSet ? this->word(word) : *this;
}

CDump& CDump::number(long long value)
{
    return word(std::to_string(value).c_str());
}

CDump& CDump::fraction(double value)
{
    return word(hundredths(value).c_str());
}

CDump& CDump::quoted(const QString& text)
{
    QString shown = text;
    shown.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    shown.replace(QChar(QChar::LineSeparator), QLatin1String("\\n"));
    return word(('"' + shown.toStdString() + '"').c_str());
}

CDump& CDump::point(const QPoint& point)
{
    return number(point.x()).number(point.y());
}

CDump& CDump::point(const QPointF& point)
{
    return fraction(point.x()).fraction(point.y());
}

CDump& CDump::rect(const QRect& rect)
{
    if (rect.isNull())
        return word("none");
    return point(rect.topLeft()).size(rect.size());
}

CDump& CDump::rect(const QRectF& rect)
{
    if (rect.isNull())
        return word("none");
    return point(rect.topLeft()).word("+").fraction(rect.width()).fraction(rect.height());
}

CDump& CDump::size(const QSize& size)
{
    return word("+").number(size.width()).number(size.height());
}

} // namespace tovangl
