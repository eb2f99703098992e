// SPDX-License-Identifier: MIT
// What determines the thickness of an axis.
#include "layout/CAxisShape.h"

#include "layout/line_share.h"

namespace tovangl {

namespace {

constexpr int kGapInLineWidths = 5;

} // namespace

int CAxisShape::labelExtentAlong() const
{
    return direction == LabelDirection::Across ? labelSize.height() : labelSize.width();
}

int CAxisShape::labelExtentAcross() const
{
    return direction == LabelDirection::Across ? labelSize.width() : labelSize.height();
}

int CAxisShape::labelBandHeight() const
{
    return scalePixels(labelExtentAcross(), rows());
}

int CAxisShape::getElementHeight(Elements elements) const
{
    std::int64_t height = 0;
    const int gap = scalePixels(kGapInLineWidths, lineWidth);
    const bool showsLine = has(CAxisSettings::ShowLine);
    const bool showsTitle = has(CAxisSettings::ShowTitle);
    const bool showsLabels = has(CAxisSettings::ShowLabels) && !isEmpty;
    if (elements.testFlag(Line) && showsLine)
        height += lineShare(lineWidth, frame.isTopOrLeft());
    if (elements.testFlag(Label) && showsLabels)
        height += labelExtentAcross();
    if (elements.testFlag(Labels) && showsLabels)
        height += labelBandHeight();
    if (elements.testFlag(Title) && showsTitle)
        height += titleRect.height();
    if (elements.testFlag(Ticks) && showsLine && (showsLabels || showsTitle))
        height += gap;
    if (elements.testFlag(LabelTitleGap) && showsLabels && showsTitle)
        height += gap;
    return clampToInt(height);
}

// Texts hang from the upper edge of their box and start at its left edge; upright ones start at
// its lower edge. Depending on the side, that edge is the one near the axis line or the far one.
int CAxisShape::getAxisToLabelShift() const
{
    const int toLabels = getElementHeight(LineAndTicks);
    const int toFarEdge = addPixels(getElementHeight(UpToFirstRow), -lineWidth);
    if (direction == LabelDirection::Across)
        return frame.startsAtLine() ? toLabels : -toFarEdge;
    switch (frame.legendLocation()) {
    case CAxisFrame::Top:
        return toFarEdge;
    case CAxisFrame::Left:
        return -toFarEdge;
    case CAxisFrame::Right:
        return toLabels;
    case CAxisFrame::Bottom:
        break;
    }
    return -toLabels;
}

int CAxisShape::getAxisToTitleShift() const
{
    const int toTitle = getElementHeight(UpToTitle);
    const int toFarEdge = addPixels(getElementHeight(WholeThickness), -lineWidth);
    const int shift = frame.isTopOrLeft() ? toFarEdge : toTitle;
    return frame.startsAtLine() ? shift : -shift;
}

} // namespace tovangl
