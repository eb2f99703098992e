// SPDX-License-Identifier: MIT
/// @file
/// The label of a slice.
#ifndef TOVANGL_PIE_CPIETEXTLABEL_H
#define TOVANGL_PIE_CPIETEXTLABEL_H

#include "labels/CTextLabel.h"

#include <memory>

namespace tovangl {

class CPieBaseItem;

/// A slice's name and, on request, its size in bytes, at the end of a dotted beam and a short line.
///
/// All positions are relative to the pie's centre, y growing downward. The text of a label on the
/// right half of the pie begins at its anchor, that of a label on the left half ends there.
class CPieTextLabel : public CTextLabel<QPointF, QRectF>
{
public:
    /// Sets canDrawSizeLabel(): all labels of a pie are made before the first one is tested. The
    /// item's angles must be set. Item and locale must outlive the label.
    CPieTextLabel(CPieBaseItem* item, const QLocale* locale, bool withSize);
    ~CPieTextLabel() override;

    void setBold(bool bold) override;
    void setShortFromLeft(bool shortFromLeft) override;
    [[nodiscard]] CGraph1dItem* getItem() const override;
    /// The name followed by the size, whether or not the size is drawn.
    [[nodiscard]] QString getText() const override;
    /// The extent of what is drawn, at the origin, no larger than the room for it. It is computed
    /// anew at each call.
    QRectF getBoundingRect(QPainter& painter) override;
    [[nodiscard]] QRectF getBoundingRect() const override;
    [[nodiscard]] QString debug() const override;
    using CTextLabel::draw;

    /// Places the beam between two circles, and the text beside its end.
    void initPosition(double innerRadius, double outerRadius);
    /// Whether the name, shortened if need be, fits beside the size. A name that does not clears
    /// canDrawSizeLabel().
    bool isTextLabelShortenCorrectly(QPainter& painter) const;
    /// The top-left corner of the text.
    [[nodiscard]] QPointF getPosition() const;
    /// Moves text and line so that the line would begin at (x, y). The beam stays.
    void updateArrangedPosition(double x, double y);
    /// Draws beam, line and texts, and records on the item where the text is.
    void draw(QPainter& painter);

    /// The item's value as " [1.5 KB]", with a space of its own in front.
    [[nodiscard]] QString getSizeText(const CPieBaseItem* item) const;
    [[nodiscard]] QString getLabelText(const CPieBaseItem* item, bool withSize) const;
    /// The label rectangle, as wide as the room between the text anchor and the boundary.
    [[nodiscard]] QRectF getBoundingRectAdjustedToGraphBoundary() const;

    /// Where the room for labels ends on either side.
    void setBoundaries(int left, int right);
    /// The rectangle that all labels of the pie share.
    void setLabelRect(const QRectF& rect) { m_labelRect = rect; }
    void setLineColor(const QColor& color) { m_lineColor = color; }
    /// Sets the colour of both texts.
    void setTextColor(const QColor& color);

    /// The middle of the slice in sixteenths of a degree, at most half a turn either way.
    [[nodiscard]] int arc() const { return m_arc; }
    /// The unit vector from the pie's centre toward the middle of the slice.
    [[nodiscard]] QPointF direction() const { return QPointF(m_arcCos, m_arcSin); }
    [[nodiscard]] bool isOnRightHalf() const;
    [[nodiscard]] const QPointF& beamStart() const { return m_beamStart; }
    [[nodiscard]] const QPointF& elbow() const { return m_elbow; }
    [[nodiscard]] const QPointF& lineEnd() const { return m_lineEnd; }
    /// The text's near edge and its top.
    [[nodiscard]] const QPointF& labelPos() const { return m_labelPos; }
    [[nodiscard]] bool isWithSize() const { return m_withSize; }

    /// Whether labels show their sizes. It is all or nothing, and shared by all labels of a thread.
    [[nodiscard]] static bool canDrawSizeLabel() { return m_canDrawSizeLabel; }

private:
    using PartLabel = CTextLabel<QPointF, QRectF>;

    // Where the two texts are drawn, and the top-left corner of both.
    struct CParts
    {
        QPointF origin;
        QRectF name;
        QRectF size;
    };

    [[nodiscard]] QRectF measureSizeLabel(QPainter& painter) const;
    [[nodiscard]] CParts placeParts(QPainter& painter);
    void drawBeamLine(QPainter& painter) const;
    void drawTextLine(QPainter& painter) const;
    void drawParts(QPainter& painter);

    static thread_local bool m_canDrawSizeLabel;

    std::unique_ptr<PartLabel> m_nameLabel;
    std::unique_ptr<PartLabel> m_sizeLabel;
    int m_leftBoundary = 0;
    int m_rightBoundary = 0;
    bool m_withSize;
    int m_arc;
    double m_arcSin;
    double m_arcCos;
    QPointF m_beamStart;
    QPointF m_elbow;
    QPointF m_lineEnd;
    QPointF m_labelPos;
    QRectF m_labelRect;
    QRectF m_rect;
    QColor m_lineColor = Qt::white;
};

} // namespace tovangl

#endif
