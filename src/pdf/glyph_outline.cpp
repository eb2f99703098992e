// SPDX-License-Identifier: MIT
// The outlines of letters in the form of TrueType fonts.
#include "pdf/glyph_outline.h"

#include <QPainterPath>
#include <QPointF>

#include <algorithm>
#include <cmath>

namespace tovangl {

namespace {

constexpr double kLargestCoordinate = 32767; // of a font
constexpr double kTolerance = 0.5;           // font units
constexpr int kDeepestSplit = 5;             // into 32 curves
// How far apart the best curves of the second and of the third degree are, as a part of the
// difference that their points have: the square root of 3 through 36.
constexpr double kErrorShare = 0.0481125;

struct CCubic
{
    QPointF from;
    QPointF control1;
    QPointF control2;
    QPointF to;
};

COutlinePoint toOutlinePoint(const QPointF& point, bool isOnCurve)
{
    const auto whole = [](double value) {
        return static_cast<int>(
            std::lround(std::clamp(value, -kLargestCoordinate, kLargestCoordinate)));
    };
    return {whole(point.x()), whole(-point.y()), isOnCurve};
}

QPointF middle(const QPointF& a, const QPointF& b)
{
    return (a + b) / 2;
}

void addCurve(CContour& contour, const CCubic& cubic, int depth)
{
    const QPointF bend = cubic.to - 3 * cubic.control2 + 3 * cubic.control1 - cubic.from;
    const double error = kErrorShare * std::hypot(bend.x(), bend.y());
    if (error <= kTolerance || depth == kDeepestSplit) {
        const QPointF control =
            (3 * cubic.control1 - cubic.from + 3 * cubic.control2 - cubic.to) / 4;
        contour.push_back(toOutlinePoint(control, false));
        contour.push_back(toOutlinePoint(cubic.to, true));
        return;
    }
    const QPointF first = middle(cubic.from, cubic.control1);
    const QPointF second = middle(cubic.control1, cubic.control2);
    const QPointF third = middle(cubic.control2, cubic.to);
    const QPointF left = middle(first, second);
    const QPointF right = middle(second, third);
    const QPointF half = middle(left, right);
    addCurve(contour, {cubic.from, first, left, half}, depth + 1);
    addCurve(contour, {half, right, third, cubic.to}, depth + 1);
}

// A contour ends where it begins without saying so.
void closeLast(std::vector<CContour>& contours)
{
    if (contours.empty())
        return;
    CContour& last = contours.back();
    if (last.size() > 1 && last.front().x == last.back().x && last.front().y == last.back().y &&
        last.back().isOnCurve)
        last.pop_back();
    if (last.size() < 2)
        contours.pop_back();
}

} // namespace

std::vector<CContour> toContours(const QPainterPath& path)
{
    constexpr int kStart = 0;
    std::vector<CContour> contours;
    QPointF last;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.isMoveTo()) {
            closeLast(contours);
            contours.push_back({toOutlinePoint(element, true)});
        } else if (element.isLineTo()) {
            contours.back().push_back(toOutlinePoint(element, true));
        } else if (element.isCurveTo() && i + 2 < path.elementCount()) {
            const QPointF to = path.elementAt(i + 2);
            addCurve(contours.back(), {last, element, path.elementAt(i + 1), to}, kStart);
            i += 2;
        }
        last = path.elementAt(i);
    }
    closeLast(contours);
    return contours;
}

} // namespace tovangl
