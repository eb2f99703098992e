// SPDX-License-Identifier: MIT
/// @file
/// Hides what differs between Qt 5.15 and 6 in texts and numbers. No other file in this folder
/// tests the Qt version.
#ifndef TOVANGL_TEXT_QT_TEXT_H
#define TOVANGL_TEXT_QT_TEXT_H

#include <QFont>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QLocale>
#include <QPaintDevice>
#include <QPainter>
#include <QString>
#include <QTextOption>

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include "text/digit_groups.h"
#include "text/whole_pixel_text.h"

#include <QGuiApplication>
#endif

namespace tovangl {
namespace qt {

// --- fonts

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
inline void setFamily(QFont& font, const QString& family)
{
    font.setFamily(family);
}

inline void setDefaultSize(QFont&, const QPaintDevice&) {}

/// Whether the machine has a family for a name, which can be another name of it.
inline bool hasFamily(const QString& name)
{
    return QFontDatabase().hasFamily(name);
}

/// Whether Qt lists a family of exactly that name.
inline bool listsFamily(const QString& name)
{
    return QFontDatabase().families().contains(name);
}
#else
/// Qt 5 reads a name with commas as a list of families, Qt 6 as one family, which nobody has.
inline void setFamily(QFont& font, const QString& family)
{
    QStringList families = family.split(QLatin1Char(','));
    for (QString& name : families)
        name = name.trimmed();
    font.setFamilies(families);
}

/// Gives the font the size that Qt 5 has by default on the offscreen platform: 12 points at 100
/// dots per inch, 16 2/3 pixels. The default of Qt 6 there is 12 pixels. On any other platform the
/// desktop chooses the size.
inline void setDefaultSize(QFont& font, const QPaintDevice& device)
{
    constexpr qreal kPoints = 12;
    constexpr qreal kDotsPerInch = 100;
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        font.setPointSizeF(kPoints * kDotsPerInch / device.logicalDpiY());
}

inline bool hasFamily(const QString& name)
{
    return QFontDatabase::hasFamily(name);
}

inline bool listsFamily(const QString& name)
{
    return QFontDatabase::families().contains(name);
}
#endif

// --- locales

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
inline QString decimalPoint(const QLocale& locale)
{
    return QString(locale.decimalPoint());
}

inline QString groupedText(long long value, const QLocale& locale)
{
    return locale.toString(value);
}

inline QString groupedText(double value, int decimals, const QLocale& locale)
{
    return locale.toString(value, 'f', decimals);
}
#else
inline QString decimalPoint(const QLocale& locale)
{
    return locale.decimalPoint();
}

inline QString groupedText(long long value, const QLocale& locale)
{
    return separateLeadingDigits(locale.toString(value), locale.groupSeparator());
}

inline QString groupedText(double value, int decimals, const QLocale& locale)
{
    return separateLeadingDigits(locale.toString(value, 'f', decimals), locale.groupSeparator());
}
#endif

// --- texts, measured with ascent and descent each rounded up to whole pixels

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
inline int fontHeight(const QPainter& painter)
{
    return painter.fontMetrics().height();
}

inline QRectF measureText(QPainter& painter, const QRectF& rect, const QString& text)
{
    return painter.boundingRect(rect, 0, text);
}

inline void drawText(QPainter& painter, const QRectF& rect, const QString& text,
                     const QTextOption& option)
{
    painter.drawText(rect, text, option);
}
#else
inline int fontHeight(const QPainter& painter)
{
    return wholePixelFontHeight(painter);
}

inline QRectF measureText(QPainter& painter, const QRectF& rect, const QString& text)
{
    return measureWholePixelText(painter, rect, text);
}

inline void drawText(QPainter& painter, const QRectF& rect, const QString& text,
                     const QTextOption& option)
{
    drawWholePixelText(painter, rect, text, option);
}
#endif

} // namespace qt
} // namespace tovangl

#endif
