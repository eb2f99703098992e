// SPDX-License-Identifier: MIT
/// @file
/// The pie chart.
#ifndef TOVANGL_PIE_CPIEGRAPH_H
#define TOVANGL_PIE_CPIEGRAPH_H

#include "pie/CPieBase.h"
#include "pie/pie_geometry.h"

#include <QRectF>

namespace tovangl {

class CPieTextLabel;

/// A pie whose slices carry their labels around it.
class CPieGraph : public CPieBase<CPieBaseItem>
{
public:
    enum Option
    {
        BoldLabels = 0x08,
        ShortenFromLeft = 0x40,
        RemoveLabelOverlaps = 0x80,
        ShowSizes = 0x100
    };
    Q_DECLARE_FLAGS(Options, Option)

    /// @param background  paint the gradient background, on the screen device only
    explicit CPieGraph(bool background);
    ~CPieGraph() override;

    void clear() override;
    void drawContents(QPainter& painter) override;

    /// Computes slices, labels, and all places. Returns whether the picture has room for the pie;
    /// where it has not, nothing is to be drawn.
    bool computeLayout(QPainter& painter);

    /// Replaces all options; unknown bits are ignored.
    void setOptions(Options options) { m_options = options; }
    [[nodiscard]] Options options() const { return m_options; }
    /// The colours of outlines, texts and label lines; an invalid colour goes back to the default.
    void setPieOutlineColor(const QColor& color) { m_pieOutlineColor = color; }
    void setTextColor(const QColor& color) { m_textColor = color; }
    void setLabelLineColor(const QColor& color) { m_labelLineColor = color; }
    [[nodiscard]] const QColor& textColor() const { return m_textColor; }
    /// The colour set, or else one that suits the output device.
    [[nodiscard]] QColor getPieOutlineColor() const;
    /// The colour set, or else that of the outlines.
    [[nodiscard]] QColor getLabelLineColor() const;

    /// The labels of the last layout, one for each chosen item in the same order; the removal of
    /// overlaps may rotate them.
    [[nodiscard]] const std::list<CPieTextLabel*>& labels() const { return m_labels; }
    /// The rectangle that the labels share; at (0, 0).
    [[nodiscard]] const QRectF& labelRect() const { return m_labelRect; }
    /// The square that holds the pie and the beams of its labels.
    [[nodiscard]] const QRectF& area() const { return m_area; }
    [[nodiscard]] const QRectF& pieRect() const { return m_pieRect; }
    /// The pie's ellipse as last drawn, with the half pixel by which a background moves it.
    [[nodiscard]] const QRectF& drawnPieRect() const { return m_drawnPieRect; }

    /// Lists the labels on Qt's debug output.
    void debugLabels() const;

protected:
    int m_margin = 10;       // pixels before scaling
    int m_startAngle = -180; // degrees
    int m_direction = -1;    // -1 clockwise, 1 counter-clockwise

private:
    struct CPieExtent
    {
        double width;
        double radius;
    };

    void clearPrivate();

    void initSliceAngles();
    void createLabels(QPainter& painter);
    void initLabel();
    void setLabelBoundingRect(QPainter& painter);
    [[nodiscard]] CPieExtent getWidth(QPainter& painter) const;
    void layoutLabels(QPainter& painter);
    void createArea(double x, double y, double width, double height);
    void setLabelPosition();
    [[nodiscard]] bool isEnoughSpaceForSizeLabel(QPainter& painter);
    [[nodiscard]] bool isLabelOverlap() const;
    void removeLabelOverlap();
    void rotateLabelsToHalf();
    [[nodiscard]] CPieFrame frame() const;

    void drawBackground(QPainter& painter);
    void drawPies(QPainter& painter);
    // Where a developer paints layout aids, between the slices and the labels.
    void debugDraw(QPainter&) {}
    void drawLabels(QPainter& painter);

    std::list<CPieTextLabel*> m_labels; // owned
    QRectF m_labelRect;
    QRectF m_area;
    QRectF m_pieRect;
    QRectF m_drawnPieRect;
    Options m_options;
    bool m_background;
    QColor m_pieOutlineColor; // invalid: not set
    QColor m_textColor;       // invalid: not set
    QColor m_labelLineColor;  // invalid: not set
};

Q_DECLARE_OPERATORS_FOR_FLAGS(CPieGraph::Options)

} // namespace tovangl

#endif
