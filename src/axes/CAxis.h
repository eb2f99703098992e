// SPDX-License-Identifier: MIT
/// @file
/// The base of the axes of a bar chart.
#ifndef TOVANGL_AXES_CAXIS_H
#define TOVANGL_AXES_CAXIS_H

#include "axes/COrientedCoord.h"
#include "axes/label_direction.h"

#include <QColor>
#include <QFlags>
#include <QRect>
#include <QSize>

#include <cstdint>
#include <memory>
#include <vector>

class QLocale;
class QPainter;
class QString;
class QTextOption;

namespace tovangl {

class CBarTextLabel;

/// An axis line with labels and a title on one side of it.
///
/// Geometry is told along the axis and across it; the axis applies its signs and turns it into
/// pixels of the picture when it draws. One axis serves one rendering: it is made, filled, given
/// its line, measured as often as the layout needs, fitted to its rectangle, and drawn. What a fit
/// has hidden for want of room stays hidden: no later fit clears those flags.
class CAxis
{
public:
    enum Orientation
    {
        LeftToRight = 0,
        RightToLeft = 1,
        BottomToTop = 2,
        TopToBottom = 3
    };

    /// The side of the axis line on which labels and title stand.
    enum LegendLocation
    {
        Top = 0,
        Bottom = 1,
        Left = 2,
        Right = 3
    };

    enum Property
    {
        ShowLine = 1,
        ShowLabels = 2,
        ShowTitle = 4,
        BoldLabels = 8,
        BoldTitle = 16,
        UnitPrefixes = 32,
        HideOverlapped = 128,
        ShiftLastLabel = 4096
    };
    Q_DECLARE_FLAGS(Properties, Property)

    /// What takes room across the axis, and the sums in use.
    enum Element
    {
        Line = 1,
        Ticks = 2, ///< the gap between line and labels
        Label = 4, ///< one row of labels
        Spare = 8, ///< nothing; part of the sums all the same
        Labels = 16,
        LabelTitleGap = 32,
        Title = 64,

        LineAndTicks = Line | Ticks,
        UpToFirstRow = Line | Ticks | Label,
        SecondRowOffset = Label | Spare,
        UpToTitle = Line | Ticks | Spare | Labels | LabelTitleGap,
        WholeThickness = UpToTitle | Title
    };
    Q_DECLARE_FLAGS(Elements, Element)

    // NOLINTBEGIN(readability-identifier-naming): the enumerators, by their own names
    static constexpr LabelDirection Across = LabelDirection::Across;
    static constexpr LabelDirection Along = LabelDirection::Along;
    static constexpr LabelDirection AlongTwoRows = LabelDirection::AlongTwoRows;
    // NOLINTEND(readability-identifier-naming)

    /// A location that does not suit the orientation becomes Bottom or Left.
    ///
    /// @param locale  borrowed; it must outlive the axis
    CAxis(Orientation orientation, LegendLocation location, Properties properties,
          const QLocale* locale, const QString& title);
    virtual ~CAxis();
    Q_DISABLE_COPY(CAxis)

    virtual void draw(QPainter& painter);
    /// Runs whenever the length of the axis is set.
    virtual void initAfterAxisLength();
    /// Places the labels, hides those that overlap, and all of them where they do not fit.
    virtual void processLabels(QPainter& painter, const QRect& rect);
    virtual void placeAcrossLabels() = 0;
    virtual void placeAlongLabels() = 0;
    /// Pixels kept free before the first tick.
    [[nodiscard]] virtual int labelShiftAtBegin() const;
    /// Pixels added behind the last tick; negative where they are kept free.
    [[nodiscard]] virtual int labelShiftAtEnd() const;
    /// Whether there is nothing to label.
    [[nodiscard]] virtual bool isGraphEmpty() const;
    /// A place for a listing of the labels while debugging; it does nothing.
    virtual void debugLabels() const;
    /// A place for layout aids while debugging; it paints nothing.
    void debugDraw(QPainter&) const {}

    void initLabelDirection();
    /// The sum of the elements' extents across the axis, in pixels.
    [[nodiscard]] int getElementHeight(Elements elements) const;
    void initAxisLength(int start, int length);
    /// Puts the axis line at its edge of the rectangle.
    void initCoordinates(const QRect& rect);
    /// The signed distance across the axis from its line to the labels' reference edge.
    [[nodiscard]] int getAxisToLabelShift() const;
    [[nodiscard]] int getAxisToTitleShift() const;
    /// The rectangle's size as (along, across) the axis.
    [[nodiscard]] QSize getSpaceForLabels(const QRect& rect) const;
    [[nodiscard]] QSize getSpaceForTitle(const QRect& rect) const;
    /// The point on the picture for a coordinate before the axis's signs are applied.
    [[nodiscard]] QPoint resolveOrientedCoordSigned(const COrientedCoord& coord) const;
    [[nodiscard]] QPoint resolveOrientedCoordSigned(int along, int across) const;
    [[nodiscard]] QTextOption getTextOption() const;
    void initAxis(QPainter& painter, int length);
    /// How thick the axis is at that length, in pixels.
    [[nodiscard]] int getSizeForLength(QPainter& painter, int length);
    /// The same for a horizontal axis; 0 for a vertical one.
    [[nodiscard]] int getHeightForWidth(QPainter& painter, int width);
    /// The same for a vertical axis; 0 for a horizontal one.
    [[nodiscard]] int getWidthForHeight(QPainter& painter, int height);
    /// Fixes the geometry. Labels and title that do not fit into the rectangle are hidden.
    void fitToRect(QPainter& painter, const QRect& rect);

    void setLabelBoundingRect(QPainter& painter);
    void setTitleBoundingRect(QPainter& painter);
    void processAlongLabels(QPainter& painter, const QRect& rect);
    void processAcrossLabels(QPainter& painter, const QRect& rect);
    void processTitle(QPainter& painter, const QRect& rect);
    void hideOverlappedLabels();
    /// Whether the ticks of the first label and of the one that many places later are at least one
    /// label apart.
    [[nodiscard]] bool checkRealDistance(int step) const;
    void clearLabels();

    void drawLine(QPainter& painter) const;
    void drawLabels(QPainter& painter);
    void drawTitle(QPainter& painter);

    /// @param width  pixels
    void setLineWidth(int width) { m_lineWidth = width; }
    [[nodiscard]] int lineWidth() const { return m_lineWidth; }
    /// The colour of line, ticks and labels.
    void setLineColor(const QColor& color) { m_lineColor = color; }
    [[nodiscard]] const QColor& lineColor() const { return m_lineColor; }

    [[nodiscard]] Orientation orientation() const { return m_orientation; }
    [[nodiscard]] LegendLocation legendLocation() const { return m_legendLocation; }
    [[nodiscard]] Properties properties() const { return m_properties; }
    [[nodiscard]] LabelDirection labelDirection() const { return m_labelDirection; }
    [[nodiscard]] bool isHorizontal() const { return m_horizontal; }
    [[nodiscard]] int alongSign() const { return m_alongSign; }
    [[nodiscard]] int acrossSign() const { return m_acrossSign; }
    /// A distance along the axis in the picture's direction: rightward or downward.
    [[nodiscard]] int signedAlong(int along) const;
    [[nodiscard]] int axisStart() const { return m_axisStart; }
    [[nodiscard]] int axisLength() const { return m_axisLength; }
    /// Where the axis starts, signs applied.
    [[nodiscard]] COrientedCoord origin() const { return {m_originAlong, m_originAcross}; }
    [[nodiscard]] const QRect& axisRect() const { return m_axisRect; }
    /// The size that every label's box has.
    [[nodiscard]] const QRect& labelRect() const { return m_labelRect; }
    [[nodiscard]] const QRect& titleRect() const { return m_titleRect; }
    [[nodiscard]] const std::vector<CBarTextLabel*>& labels() const { return m_labels; }
    [[nodiscard]] const CBarTextLabel& titleLabel() const { return *m_titleLabel; }
    [[nodiscard]] bool isLineHidden() const { return m_lineHidden; }
    [[nodiscard]] bool areLabelsHidden() const { return m_labelsHidden; }
    [[nodiscard]] bool isTitleHidden() const { return m_titleHidden; }

protected:
    /// Takes over a label, as the last one.
    void appendLabel(std::unique_ptr<CBarTextLabel> label);
    [[nodiscard]] const QLocale* locale() const { return m_locale; }
    /// Pixels from the first tick to the end of the last one's range; negative where the shifts
    /// leave none.
    [[nodiscard]] std::int64_t usableSpan() const;
    /// Pixels that a label's box covers along the axis.
    [[nodiscard]] int labelExtentAlong() const;
    /// Half of it, with the sign of the axis's direction.
    [[nodiscard]] int halfLabelSigned() const;
    [[nodiscard]] QPoint originOnPicture() const;
    /// Puts the labels at their ticks, the visible ones in two rows by turns. Hidden ones stay in
    /// the first row.
    ///
    /// @param ticks      along the axis, one for each label
    /// @param secondRow  pixels across the axis from the first row; 0 makes it the same one
    void placeInRows(const std::vector<int>& ticks, bool isRotated, int secondRow);

    std::vector<CBarTextLabel*> m_labels; // owned, in axis order

private:
    void construct();
    [[nodiscard]] bool isTopOrLeft() const;
    [[nodiscard]] bool hasLabels() const;
    [[nodiscard]] int gap() const;
    [[nodiscard]] int labelExtentAcross() const;
    [[nodiscard]] int labelBandHeight() const;
    [[nodiscard]] std::int64_t usableSpan(LabelDirection direction);
    [[nodiscard]] QSize orientedSize(const QRect& rect) const;
    [[nodiscard]] int roomForLabels(const QRect& rect) const;

    std::unique_ptr<CBarTextLabel> m_titleLabel;
    QRect m_labelRect;
    QRect m_titleRect;
    QRect m_axisRect;
    Orientation m_orientation;
    LegendLocation m_legendLocation;
    Properties m_properties;
    LabelDirection m_labelDirection = Across;
    QColor m_lineColor = Qt::black;
    bool m_horizontal = true;
    int m_alongSign = 1;
    int m_acrossSign = 1;
    int m_lineWidth = 1; // pixels
    int m_axisStart = 0; // pixels, as all below
    int m_axisLength = 0;
    int m_originAlong = 0; // signs applied
    int m_originAcross = 0;
    const QLocale* m_locale; // borrowed from the chart
    bool m_lineHidden = false;
    bool m_labelsHidden = false;
    bool m_titleHidden = false;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(CAxis::Properties)
Q_DECLARE_OPERATORS_FOR_FLAGS(CAxis::Elements)

static_assert(CAxis::LineAndTicks == 3);
static_assert(CAxis::UpToFirstRow == 7);
static_assert(CAxis::SecondRowOffset == 12);
static_assert(CAxis::UpToTitle == 59);
static_assert(CAxis::WholeThickness == 123);

} // namespace tovangl

#endif
