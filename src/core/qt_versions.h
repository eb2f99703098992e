// SPDX-License-Identifier: MIT
/// @file
/// Everything that differs between Qt 5.15 and 6. No other file asks for a Qt version.
#ifndef TOVANGL_CORE_QT_VERSIONS_H
#define TOVANGL_CORE_QT_VERSIONS_H

#include <QFont>
#include <QFontMetrics>
#include <QLocale>
#include <QPaintDevice>
#include <QPainter>
#include <QString>
#include <QTextOption>

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include "core/digit_groups.h"
#include "core/whole_pixel_text.h"

#include <QGuiApplication>
#include <QThreadPool>
#endif

namespace tovangl {
namespace qt {

// --- threads that paint

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
inline constexpr bool kPaintsInThreads = false;
inline void endPaintThreads() {}
#else
inline constexpr bool kPaintsInThreads = true;

/// Ends the idle threads of the pool that antialiased fills are handed to; the next fill starts new
/// ones. A thread that has just done its share is waited for, one that works for the host is not.
inline void endPaintThreads()
{
    constexpr int kTimeToBecomeIdle = 100; // milliseconds
    if (QThreadPool* pool = QThreadPool::globalInstance())
        pool->waitForDone(kTimeToBecomeIdle);
}
#endif

// --- fonts

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
inline void setDefaultSize(QFont&, const QPaintDevice&) {}
#else
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

inline QRect measureText(QPainter& painter, const QRect& rect, const QString& text)
{
    return painter.boundingRect(rect, 0, text);
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

inline QRect measureText(QPainter& painter, const QRect& rect, const QString& text)
{
    return measureWholePixelText(painter, QRectF(rect), text).toAlignedRect();
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
