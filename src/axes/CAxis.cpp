// SPDX-License-Identifier: MIT
// The base of the axes of a bar chart: its model and geometry.
#include "axes/CAxis.h"

#include "axes/aligned_text_option.h"
#include "axes/line_share.h"
#include "labels/CBarTextLabel.h"

namespace tovangl {

namespace {

constexpr int kGapInLineWidths = 5;

// A rectangle's edges as an axis sees them.
struct COrientedEdges
{
    int alongFirst, alongLast, acrossFirst, acrossLast;
};

COrientedEdges orientedEdges(const QRect& rect, bool horizontal)
{
    if (horizontal)
        return {rect.left(), rect.right(), rect.top(), rect.bottom()};
    return {rect.top(), rect.bottom(), rect.left(), rect.right()};
}

int applySign(int value, int sign)
{
    return clampToInt(std::int64_t{value} * sign);
}

// One less than the pixels that the edges enclose.
int edgeDistance(int first, int last)
{
    return clampToInt(std::int64_t{last} - first);
}

} // namespace

CAxis::CAxis(Orientation orientation, LegendLocation location, Properties properties,
             const QLocale* locale, const QString& title)
    : m_titleLabel(std::make_unique<CBarTextLabel>(title, locale))
    , m_orientation(orientation)
    , m_legendLocation(location)
    , m_properties(properties)
    , m_locale(locale)
{
    construct();
    m_titleLabel->setBold(m_properties.testFlag(BoldTitle));
}

CAxis::~CAxis()
{
    clearLabels();
}

void CAxis::construct()
{
    m_horizontal = m_orientation == LeftToRight || m_orientation == RightToLeft;
    m_alongSign = m_orientation == LeftToRight || m_orientation == TopToBottom ? 1 : -1;
    m_acrossSign = m_horizontal ? -1 : 1; // upward, or to the right
    m_labelDirection = Across;

    const bool isBeside = m_legendLocation == Left || m_legendLocation == Right;
    if (m_horizontal == isBeside)
        m_legendLocation = m_horizontal ? Bottom : Left;
}

void CAxis::initAfterAxisLength() {}

int CAxis::labelShiftAtBegin() const
{
    return 0;
}

int CAxis::labelShiftAtEnd() const
{
    return 0;
}

bool CAxis::isGraphEmpty() const
{
    return m_labels.empty();
}

void CAxis::debugLabels() const {}

void CAxis::initLabelDirection()
{
    m_labelDirection = Across;
    if (!m_horizontal)
        return;
    const std::int64_t oneRowSpan = usableSpan(Along);
    const std::int64_t twoRowSpan = usableSpan(AlongTwoRows);
    m_labelDirection = chooseLabelDirection(static_cast<std::int64_t>(m_labels.size()),
                                            m_labelRect.width(), oneRowSpan, twoRowSpan);
}

int CAxis::getElementHeight(Elements elements) const
{
    std::int64_t height = 0;
    const bool showsLine = m_properties.testFlag(ShowLine);
    const bool showsTitle = m_properties.testFlag(ShowTitle);
    const bool showsLabels = hasLabels();
    if (elements.testFlag(Line) && showsLine)
        height += lineShare(m_lineWidth, isTopOrLeft());
    if (elements.testFlag(Label) && showsLabels)
        height += labelExtentAcross();
    if (elements.testFlag(Labels) && showsLabels)
        height += labelBandHeight();
    if (elements.testFlag(Title) && showsTitle)
        height += m_titleRect.height();
    if (elements.testFlag(Ticks) && showsLine && (showsLabels || showsTitle))
        height += gap();
    if (elements.testFlag(LabelTitleGap) && showsLabels && showsTitle)
        height += gap();
    return clampToInt(height);
}

void CAxis::initAxisLength(int start, int length)
{
    m_axisStart = start;
    m_axisLength = length;
    initAfterAxisLength();
}

void CAxis::initCoordinates(const QRect& rect)
{
    const COrientedEdges edges = orientedEdges(rect, m_horizontal);
    const int along = m_alongSign > 0 ? edges.alongFirst : edges.alongLast;
    const int across = isTopOrLeft() ? edges.acrossLast : edges.acrossFirst;
    m_originAlong = applySign(along, m_alongSign);
    m_originAcross = applySign(across, m_acrossSign);

    const int acrossDistance = edgeDistance(edges.acrossFirst, edges.acrossLast);
    if (addPixels(acrossDistance, 1) < getElementHeight(Line))
        m_lineHidden = true;
    initAxisLength(0, edgeDistance(edges.alongFirst, edges.alongLast));
}

int CAxis::getAxisToLabelShift() const
{
    const int toLabels = getElementHeight(LineAndTicks);
    const int toFarEdge = addPixels(getElementHeight(UpToFirstRow), -m_lineWidth);
    // Texts hang from the upper edge of their box, and start at its left edge; upright ones start
    // at its lower edge.
    if (m_labelDirection == Across)
        return m_legendLocation == Top || m_legendLocation == Right ? toLabels : -toFarEdge;
    switch (m_legendLocation) {
    case Top:
        return toFarEdge;
    case Left:
        return -toFarEdge;
    case Right:
        return toLabels;
    case Bottom:
        break;
    }
    return -toLabels;
}

int CAxis::getAxisToTitleShift() const
{
    const int toTitle = getElementHeight(UpToTitle);
    const int toFarEdge = addPixels(getElementHeight(WholeThickness), -m_lineWidth);
    const int shift = isTopOrLeft() ? toFarEdge : toTitle;
    return m_legendLocation == Bottom || m_legendLocation == Left ? -shift : shift;
}

QSize CAxis::getSpaceForLabels(const QRect& rect) const
{
    return orientedSize(rect);
}

QSize CAxis::getSpaceForTitle(const QRect& rect) const
{
    return orientedSize(rect);
}

QPoint CAxis::resolveOrientedCoordSigned(const COrientedCoord& coord) const
{
    const COrientedCoord withSigns(applySign(coord.along(), m_alongSign),
                                   applySign(coord.across(), m_acrossSign));
    return withSigns.resolve(m_horizontal);
}

QPoint CAxis::resolveOrientedCoordSigned(int along, int across) const
{
    return resolveOrientedCoordSigned(COrientedCoord(along, across));
}

QTextOption CAxis::getTextOption() const
{
    if (m_labelDirection != Across)
        return alignedTextOption(Qt::AlignHCenter);
    const bool startsAtLine = m_legendLocation == Top || m_legendLocation == Right;
    return alignedTextOption((startsAtLine ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
}

void CAxis::initAxis(QPainter& painter, int length)
{
    setLabelBoundingRect(painter);
    setTitleBoundingRect(painter);
    m_titleLabel->setRotated(!m_horizontal);
    initAxisLength(0, addPixels(length, -m_lineWidth));
    initLabelDirection();
}

int CAxis::getSizeForLength(QPainter& painter, int length)
{
    initAxis(painter, length);
    return getElementHeight(WholeThickness);
}

int CAxis::getHeightForWidth(QPainter& painter, int width)
{
    return m_horizontal ? getSizeForLength(painter, width) : 0;
}

int CAxis::getWidthForHeight(QPainter& painter, int height)
{
    return m_horizontal ? 0 : getSizeForLength(painter, height);
}

void CAxis::fitToRect(QPainter& painter, const QRect& rect)
{
    const COrientedEdges edges = orientedEdges(rect, m_horizontal);
    initAxis(painter, addPixels(edgeDistance(edges.alongFirst, edges.alongLast), 1));
    initCoordinates(rect);
    processLabels(painter, rect);
    processTitle(painter, rect);
    m_axisRect = rect;
    debugLabels();
}

void CAxis::appendLabel(std::unique_ptr<CBarTextLabel> label)
{
    m_labels.push_back(label.get());
    label.release();
}

std::int64_t CAxis::usableSpan() const
{
    return std::int64_t{m_axisLength} + labelShiftAtEnd() -
           (std::int64_t{labelShiftAtBegin()} + m_axisStart);
}

// The shifts may depend on the direction.
std::int64_t CAxis::usableSpan(LabelDirection direction)
{
    m_labelDirection = direction;
    return usableSpan();
}

int CAxis::labelExtentAlong() const
{
    return m_labelDirection == Across ? m_labelRect.height() : m_labelRect.width();
}

int CAxis::halfLabelSigned() const
{
    return applySign(labelExtentAlong() / 2, m_alongSign);
}

int CAxis::signedAlong(int along) const
{
    return applySign(along, m_alongSign);
}

QPoint CAxis::originOnPicture() const
{
    // Deliberate: the origin carries the signs already; applying them again gives plain pixels.
    return resolveOrientedCoordSigned(m_originAlong, m_originAcross);
}

bool CAxis::isTopOrLeft() const
{
    return m_legendLocation == Top || m_legendLocation == Left;
}

bool CAxis::hasLabels() const
{
    return m_properties.testFlag(ShowLabels) && !isGraphEmpty();
}

int CAxis::gap() const
{
    return scalePixels(kGapInLineWidths, m_lineWidth);
}

int CAxis::labelExtentAcross() const
{
    return m_labelDirection == Across ? m_labelRect.width() : m_labelRect.height();
}

int CAxis::labelBandHeight() const
{
    const int rows = m_labelDirection == AlongTwoRows ? 2 : 1;
    return scalePixels(labelExtentAcross(), rows);
}

QSize CAxis::orientedSize(const QRect& rect) const
{
    const COrientedEdges edges = orientedEdges(rect, m_horizontal);
    return QSize(addPixels(edgeDistance(edges.alongFirst, edges.alongLast), 1),
                 addPixels(edgeDistance(edges.acrossFirst, edges.acrossLast), 1));
}

} // namespace tovangl
