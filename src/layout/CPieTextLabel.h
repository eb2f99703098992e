// SPDX-License-Identifier: MIT
/// @file
/// The label of a slice while the layout places it.
#ifndef TOVANGL_LAYOUT_CPIETEXTLABEL_H
#define TOVANGL_LAYOUT_CPIETEXTLABEL_H

#include "layout/CPieLayout.h"
#include "text/CTextLabel.h"

class QLocale;

namespace tovangl {

struct CKilo;

/// The value as " [1.5 KB]", with a leading space.
///
/// @param unit  what stands after the prefix, such as "B"
[[nodiscard]] QString getSizeText(long long value, const QString& unit, const QLocale& locale,
                                  const CKilo& kilo);

/// What the labels of a pie have in common.
struct CPieLabelFrame
{
    int reach = 0; ///< how far texts can extend to either side of the centre; pixels
    int scale = 1;
};

/// A slice's name and, on request, its size in bytes, at the end of a dotted beam and a short line.
///
/// All positions are relative to the pie's centre, y growing downward. The text of a label on the
/// right half of the pie begins at its anchor, that of a label on the left half ends there.
class CPieTextLabel
{
public:
    /// @param size  empty if no size is to be shown
    CPieTextLabel(const CPieSlice& slice, CTextLabel name, CTextLabel size,
                  const CPieLabelFrame& frame);

    /// Computes the extent of the texts, limited to the room at the label's current place. Before
    /// the label has its rectangle, there is no limit.
    void initBoundingRect(bool isSizeShown);
    /// That extent, at the origin.
    [[nodiscard]] const QRectF& getBoundingRect() const { return m_rect; }
    /// The rectangle that all labels of the pie share.
    void setLabelRect(const QRectF& rect) { m_labelRect = rect; }
    /// Places the beam between two circles, and the text beside its end.
    void initPosition(double innerRadius, double outerRadius);
    /// Whether the name fits beside the size, shortened if necessary.
    [[nodiscard]] bool isTextLabelShortenCorrectly(CTextMeasurer& measurer) const;
    /// The top-left corner of the text.
    [[nodiscard]] QPointF getPosition() const;
    /// Moves text and line as if the line began at (x, y). The beam stays.
    void updateArrangedPosition(double x, double y);
    /// The label rectangle, as wide as the room between the text anchor and the boundary.
    [[nodiscard]] QRectF getBoundingRectAdjustedToGraphBoundary() const;
    void setHidden(bool isHidden) { m_lines.isHidden = isHidden; }

    [[nodiscard]] bool isOnRightHalf() const;
    /// The unit vector from the pie's centre toward the middle of the slice.
    [[nodiscard]] const QPointF& direction() const { return m_direction; }
    [[nodiscard]] const QPointF& lineEnd() const { return m_lines.lineEnd; }

    /// The label without its texts.
    [[nodiscard]] const CPlacedPieLabel& lines() const { return m_lines; }
    /// The label with its final texts.
    ///
    /// @param color   of the texts
    /// @param origin  the picture's pixel at the pie's centre
    [[nodiscard]] CPlacedPieLabel withTexts(bool isSizeShown, const QColor& color,
                                            const QPoint& origin, CTextMeasurer& measurer) const;

private:
    // Where the two texts are drawn, and what they take up together.
    struct CParts
    {
        QRectF name;
        QRectF size;
        QRectF both;
    };

    [[nodiscard]] CParts placeParts(bool isSizeShown) const;
    [[nodiscard]] bool isPaintedAsOne(const CParts& parts, const CTextMeasurer& measurer) const;

    CTextLabel m_name;
    CTextLabel m_size;
    CPieLabelFrame m_frame;
    int m_arc; // the middle of the slice, at most half a turn either way
    QPointF m_direction;
    QRectF m_labelRect;
    QRectF m_rect;
    CPlacedPieLabel m_lines;
};

} // namespace tovangl

#endif
