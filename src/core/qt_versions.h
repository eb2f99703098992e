// SPDX-License-Identifier: MIT
/// @file
/// Everything that differs between Qt 4.8, 5.15 and 6. No other file asks for a Qt version.
#ifndef TOVANGL_CORE_QT_VERSIONS_H
#define TOVANGL_CORE_QT_VERSIONS_H

#include <QFontMetrics>
#include <QLocale>
#include <QPainter>
#include <QString>
#include <QTextOption>

#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
#include <QApplication>
#else
#include <QGuiApplication>
#endif

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include "core/whole_pixel_text.h"

#include <QThreadPool>
#endif

namespace tovangl {
namespace qt {

// --- messages

#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
using MessageHandler = QtMsgHandler;
inline void discardMessage(QtMsgType, const char*) {}
inline MessageHandler installMessageHandler(MessageHandler handler)
{
    return qInstallMsgHandler(handler);
}
#else
using MessageHandler = QtMessageHandler;
inline void discardMessage(QtMsgType, const QMessageLogContext&, const QString&) {}
inline MessageHandler installMessageHandler(MessageHandler handler)
{
    return qInstallMessageHandler(handler);
}
#endif

// --- the application object

#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
inline constexpr bool kNeedsPlatformPlugin = false;

/// Whether fonts and painting work: there is an application object.
inline bool canPaint()
{
    return QCoreApplication::instance() != nullptr;
}

/// Pixmaps live in the window system, which an application without a GUI has none of.
inline bool hasPixmaps()
{
    return QApplication::type() != QApplication::Tty;
}

/// Makes the application object, which lasts until the process ends.
inline void makeApplication()
{
    static int count = 1;
    static char empty[] = "";
    static char* arguments[] = {empty, nullptr};
    constexpr bool kWithoutGui = false;
    [[maybe_unused]] static QApplication* application = nullptr; // where leak checkers find it
    application = new QApplication(count, arguments, kWithoutGui);
}
#else
inline constexpr bool kNeedsPlatformPlugin = true;

/// Whether fonts and painting work: there is an application object with a platform.
inline bool canPaint()
{
    return !QGuiApplication::platformName().isEmpty();
}

inline bool hasPixmaps()
{
    return canPaint();
}

/// Makes the application object, which lasts until the process ends. Its arguments win over
/// QT_QPA_PLATFORM. The platform plugin must be there: Qt ends the process otherwise.
inline void makeApplication()
{
    static int count = 3;
    static char empty[] = "";
    static char option[] = "-platform";
    static char platform[] = "offscreen";
    static char* arguments[] = {empty, option, platform, nullptr};
    [[maybe_unused]] static QGuiApplication* application = nullptr; // where leak checkers find it
    application = new QGuiApplication(count, arguments);
}
#endif

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

// --- locales

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
inline QString decimalPoint(const QLocale& locale)
{
    return QString(locale.decimalPoint());
}
#else
inline QString decimalPoint(const QLocale& locale)
{
    return locale.decimalPoint();
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
