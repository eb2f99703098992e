// SPDX-License-Identifier: MIT
/// @file
/// The root of all charts: the settings of one chart.
#ifndef TOVANGL_CORE_CGRAPH1DBASE_H
#define TOVANGL_CORE_CGRAPH1DBASE_H

#include <QColor>
#include <QString>

#include <list>
#include <memory>

class QImage;
class QLocale;
class QPainter;
class QPixmap;
class QRect;

namespace tovangl {

/// What every chart has: threshold, font, locale, and the size and resolution of the picture that
/// it was last drawn into.
class CGraph1dBase
{
public:
    enum OutputDevice
    {
        ScreenDevice = 0,
        PrinterDevice = 1
    };

    /// What was wrong with a rendering.
    enum class Problem
    {
        None = 0,
        SizeOutOfRange = 1,
        NoMemory = 2,
        NoPlatformPlugin = 3,
        ProcessEnding = 4,
        TooSmallForChart = 5
    };

    CGraph1dBase();
    virtual ~CGraph1dBase();
    Q_DISABLE_COPY(CGraph1dBase)

    /// Adds an item; an invalid colour is replaced by the next default colour.
    virtual bool addItem(long long value, const QString& text, const QColor& color) = 0;
    virtual void clear() = 0;
    virtual QPixmap getPixmap(int width, int height) = 0;
    virtual QPixmap getPixmapForPrinter(int width, int height, int factor) = 0;
    virtual QImage getImage(int width, int height) = 0;
    virtual QImage getImageForPrinter(int width, int height, int factor) = 0;
    /// Appends the caption rectangle of every item, drawn or not, in the order of adding.
    virtual void putItemRectangle(std::list<QRect>& rects) const = 0;
    virtual void initPainter(QPainter& painter) const = 0;

    /// Items whose share of the total is smaller are left out; per cent.
    void setThreshold(double percent) { m_threshold = percent; }
    [[nodiscard]] double threshold() const { return m_threshold; }

    /// @param pixelSize  pixels before scaling
    void setFont(const QString& family, int pixelSize);
    [[nodiscard]] const QString& fontFamily() const { return m_fontFamily; }
    [[nodiscard]] int fontSize() const { return m_fontSize; }

    /// Builds the locale from the first two characters of each; an unknown pair gives "C".
    /// Labels that still point to the old locale must be gone by then.
    void setLocale(const QString& language, const QString& country);
    [[nodiscard]] const QLocale* locale() const { return m_locale.get(); }

    [[nodiscard]] OutputDevice outputDevice() const { return m_outputDevice; }
    [[nodiscard]] int width() const { return m_width; }
    [[nodiscard]] int height() const { return m_height; }
    [[nodiscard]] int scale() const { return m_scale; }
    /// Whether the last rendering drew the chart: the picture could be made and had room for it.
    [[nodiscard]] bool isDrawn() const { return m_isDrawn; }
    /// What was wrong with the last rendering.
    [[nodiscard]] Problem problem() const { return m_problem; }
    void setProblem(Problem problem) { m_problem = problem; }
    /// Begins a rendering that has drawn nothing so far. Where an exception ends it, it is for lack
    /// of memory.
    void forgetDrawing()
    {
        m_isDrawn = false;
        m_problem = Problem::NoMemory;
    }

    /// The colour to fill with on the current device: for print, 60 % of the way toward white.
    [[nodiscard]] QColor getOutputDeviceColor(const QColor& color) const;

protected:
    OutputDevice m_outputDevice = ScreenDevice;
    double m_threshold = 0.0; // per cent
    int m_width = -1;         // device pixels; -1 before the first rendering
    int m_height = -1;
    int m_scale = 1;        // device pixels for each pixel of a setting
    bool m_isDrawn = false; // set at the end of drawContents()
    Problem m_problem = Problem::None;
    QString m_fontFamily;
    int m_fontSize;                    // pixels before scaling
    std::unique_ptr<QLocale> m_locale; // borrowed by labels and axes
};

} // namespace tovangl

#endif
