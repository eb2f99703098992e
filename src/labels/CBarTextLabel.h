// SPDX-License-Identifier: MIT
/// @file
/// The label of bar charts and of their axes.
#ifndef TOVANGL_LABELS_CBARTEXTLABEL_H
#define TOVANGL_LABELS_CBARTEXTLABEL_H

#include "axes/COrientedCoord.h"
#include "labels/CTextLabel.h"

namespace tovangl {

/// A category name, a tick's number, an axis title or a bar's value, with its place on an axis.
class CBarTextLabel : public CTextLabel<QPoint, QRect>
{
public:
    CBarTextLabel(CGraph1dItem* item, const QLocale* locale);
    CBarTextLabel(const QString& text, const QLocale* locale);
    /// The number is written once, here; a later change of locale does not reach the label.
    CBarTextLabel(long long value, NumberFormat format, const QLocale* locale);
    ~CBarTextLabel() override;

    /// Where the label's tick stands along the axis, in pixels from the axis start.
    [[nodiscard]] int tickCoord() const { return m_tickCoord; }
    /// The label's place relative to the axis start, before the axis applies its signs.
    [[nodiscard]] const COrientedCoord& orientedPos() const { return m_orientedPos; }
    void setTickCoord(int tickCoord) { m_tickCoord = tickCoord; }
    void setOrientedPos(const COrientedCoord& pos) { m_orientedPos = pos; }

private:
    int m_tickCoord = 0;
    COrientedCoord m_orientedPos;
};

} // namespace tovangl

#endif
