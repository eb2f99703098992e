// SPDX-License-Identifier: MIT
/// @file
/// The base of the bar charts.
#ifndef TOVANGL_BAR_CBARBASE_H
#define TOVANGL_BAR_CBARBASE_H

#include "axes/CCategoryAxis.h"
#include "axes/CNumberAxis.h"
#include "bar/axis_spaces.h"
#include "core/CBarGraphItem.h"
#include "core/CGraph1d.h"

#include <QRect>

namespace tovangl {

/// Two axes and the plot rectangle between them, in which the bars stand. Derived charts say which
/// axis lies where.
class CBarBase : public CGraph1d<CBarGraphItem>
{
public:
    /// @param background  paint a gradient behind the bars, and a border around them
    explicit CBarBase(bool background);
    ~CBarBase() override;

    using CGraph1d<CBarGraphItem>::addItem;
    void initPainter(QPainter& painter) const override;
    void drawContents(QPainter& painter) override;

    /// Adds a bar; an invalid colour is replaced by the next default colour, an invalid outline
    /// colour by a darker fill colour. Returns true.
    virtual bool addItem(long long value, const QString& text, const QColor& color,
                         const QColor& outlineColor);
    /// Fixes the vertical axis line at x from the left, the horizontal one at y from the top;
    /// pixels before scaling. A negative number leaves it free.
    virtual void setPosition(int x, int y);
    /// Appends the rectangles of the bars last drawn. False, and nothing is appended, while there
    /// is no valid plot rectangle.
    virtual bool putBarRectangle(std::list<QRect>& rects) const;
    /// Whether every bar has its value beside it.
    [[nodiscard]] virtual bool isBarLabel() const = 0;
    virtual void createAxes(QPainter& painter) = 0;
    /// Sets the plot rectangle and fits both axes around it; false where the chart does not fit.
    virtual bool computeLayout(QPainter& painter) = 0;
    /// Draws what lies between background and bars.
    virtual void drawOnBackground(QPainter& painter) = 0;
    virtual void drawBars(QPainter& painter);
    virtual void drawAxes(QPainter& painter);
    /// Replaces the axis and fills it from the selected items.
    virtual void createCategoryAxis(CAxis::Orientation orientation, CAxis::LegendLocation location,
                                    CAxis::Properties properties, const QString& title);
    /// @param extra  pixels kept free at the end of the scale
    virtual void createNumberAxis(CAxis::Orientation orientation, CAxis::LegendLocation location,
                                  CAxis::Properties properties, const QString& title, int extra);
    /// Measures the value labels of all selected items.
    virtual void initBarLabelBoundingRect(QPainter& painter);
    virtual void drawBar(QPainter& painter, CBarGraphItem* item);
    /// The distance from the margin at the top to the axis line there; it also sets that margin.
    virtual int getTopAxisSpace(QPainter& painter, CAxis* axis, int width);
    virtual int getBottomAxisSpace(QPainter& painter, CAxis* axis, int width);
    virtual int getLeftAxisSpace(QPainter& painter, CAxis* axis, int height);
    [[nodiscard]] virtual QColor getBackgroundTopColor() const;
    [[nodiscard]] virtual QColor getBackgroundBottomColor() const;
    [[nodiscard]] virtual QColor getBackgroundLineTopColor() const;
    [[nodiscard]] virtual QColor getBackgroundLineBottomColor() const;
    virtual void initCategoryAxis();
    virtual void initNumberAxis(int extra);
    virtual void drawBackground(QPainter& painter);

    /// Appends one rectangle for each item, in the order of adding: its bar in the last rendering,
    /// the null rectangle where that has none.
    void putItemBarRectangle(std::list<QRect>& rects) const;

    void setHorizontalAxis(CAxis::Properties properties, const QString& title);
    void setVerticalAxis(CAxis::Properties properties, const QString& title);
    /// An invalid colour leaves the texts black.
    void setTextColor(const QColor& color) { m_textColor = color; }
    [[nodiscard]] const QColor& textColor() const { return m_textColor; }
    /// @param width  pixels before scaling; 0 lets the bars share the axis, and a negative number
    ///               is kept as 0
    void setBarWidth(int width);
    [[nodiscard]] int barWidth() const { return m_barWidth; }

    [[nodiscard]] QPoint position() const { return QPoint(m_positionX, m_positionY); }
    [[nodiscard]] CAxis::Properties horizontalAxisProperties() const;
    [[nodiscard]] CAxis::Properties verticalAxisProperties() const;
    [[nodiscard]] bool hasBackground() const { return m_background; }
    [[nodiscard]] const QRect& plotRect() const { return m_plotRect; }
    /// The size of the largest value label.
    [[nodiscard]] const QRect& barLabelRect() const { return m_barLabelRect; }
    [[nodiscard]] int topAxisSpace() const { return m_topAxisSpace; }
    [[nodiscard]] int bottomAxisSpace() const { return m_bottomAxisSpace; }
    [[nodiscard]] int leftAxisSpace() const { return m_leftAxisSpace; }
    [[nodiscard]] int rightAxisSpace() const { return m_rightAxisSpace; }
    /// Null before the first rendering.
    [[nodiscard]] const CCategoryAxis* categoryAxis() const { return m_categoryAxis.get(); }
    [[nodiscard]] const CNumberAxis* numberAxis() const { return m_numberAxis.get(); }

protected:
    [[nodiscard]] int scaledMargin() const;
    /// Sets all four axis spaces to the margin.
    void resetAxisSpaces();
    /// The right border of the plot, fading from top to bottom.
    void drawRightBorder(QPainter& painter) const;

    QRect m_plotRect;
    CAxis::Properties m_horizontalAxisProperties;
    QString m_horizontalAxisTitle;
    CAxis::Properties m_verticalAxisProperties;
    QString m_verticalAxisTitle;
    int m_topAxisSpace = 0; // pixels of the picture, as all four
    int m_bottomAxisSpace = 0;
    int m_leftAxisSpace = 0;
    int m_rightAxisSpace = 0;
    std::unique_ptr<CCategoryAxis> m_categoryAxis; // null before the first rendering
    std::unique_ptr<CNumberAxis> m_numberAxis;     // likewise
    QRect m_barLabelRect;

private:
    [[nodiscard]] CEdgeOfPicture edgeOfPicture(const CAxis& axis, int extent) const;
    [[nodiscard]] int lineWidth() const;
    void drawValueLabel(QPainter& painter, const CBarGraphItem& item, const QTextOption& option);

    int m_margin; // pixels before scaling
    QColor m_textColor;
    bool m_background;
    int m_positionX = -1; // pixels before scaling; -1: free
    int m_positionY = -1;
    int m_barWidth = 0; // pixels before scaling; 0: derived from the axis length
};

} // namespace tovangl

#endif
