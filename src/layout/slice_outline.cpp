// SPDX-License-Identifier: MIT
// A slice of an ellipse as a polygon.
#include "layout/slice_outline.h"

#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>

namespace tovangl {
namespace cdraw {

namespace {

constexpr double kFullTurn = 360;     // degrees
constexpr double kFurthestEdge = 1e9; // pixels

// Parts of one curve, which spans at most a quarter turn. This many follow an arc with a radius of
// 750,000 pixels within kOutlineError; no picture holds a larger one.
constexpr int kMostParts = 1024;

struct CCurve
{
    QPointF from, control1, control2, to;

    [[nodiscard]] QPointF at(double t) const
    {
        const double s = 1 - t;
        return s * s * s * from + 3 * s * s * t * control1 + 3 * s * t * t * control2 +
               t * t * t * to;
    }
};

double lengthOf(const QPointF& vector)
{
    return std::hypot(vector.x(), vector.y());
}

// A chord over a step h of the curve's parameter deviates by at most h * h / 8 times the greatest
// second derivative, which a cubic curve has at one of its ends.
int partsOf(const CCurve& curve)
{
    const double bend = 6 * std::max(lengthOf(curve.from - 2 * curve.control1 + curve.control2),
                                     lengthOf(curve.control1 - 2 * curve.control2 + curve.to));
    const double parts = std::ceil(std::sqrt(bend / (8 * kOutlineError)));
    return static_cast<int>(std::clamp(parts, 1.0, double{kMostParts}));
}

void appendCurve(std::vector<QPointF>& points, const CCurve& curve)
{
    const int parts = partsOf(curve);
    for (int i = 1; i < parts; ++i)
        points.push_back(curve.at(double(i) / parts));
    points.push_back(curve.to);
}

// Also false for numbers that are not finite.
bool isWithin(double limit, std::initializer_list<double> numbers)
{
    return std::all_of(numbers.begin(), numbers.end(),
                       [limit](double number) { return std::fabs(number) <= limit; });
}

// Whether the arithmetic below is valid for it.
bool canOutline(const QRectF& ellipse, double start, double span)
{
    return ellipse.width() > 0 && ellipse.height() > 0 && span != 0 &&
           isWithin(kFurthestEdge,
                    {ellipse.left(), ellipse.top(), ellipse.right(), ellipse.bottom()}) &&
           isWithin(std::numeric_limits<double>::max(), {start, span});
}

// The painter's own approximation of the arc, because it draws that rather than the ellipse.
QPainterPath arcOf(const QRectF& ellipse, double start, double span)
{
    const double begin = std::fmod(start, kFullTurn);
    QPainterPath arc;
    arc.arcMoveTo(ellipse, begin);
    arc.arcTo(ellipse, begin, std::clamp(span, -kFullTurn, kFullTurn));
    return arc;
}

} // namespace

std::vector<QPointF> outlineSlice(const QRectF& ellipse, double start, double span)
{
    std::vector<QPointF> points;
    if (!canOutline(ellipse, start, span))
        return points;

    const QPainterPath arc = arcOf(ellipse, start, span);
    const bool isWholePie = std::fabs(span) >= kFullTurn;
    if (!isWholePie) {
        points.push_back(ellipse.center());
        points.push_back(arc.elementAt(0));
    }
    // The curves follow the first point; each takes three elements.
    for (int i = 1; i + 2 < arc.elementCount(); i += 3)
        appendCurve(points, {arc.elementAt(i - 1), arc.elementAt(i), arc.elementAt(i + 1),
                             arc.elementAt(i + 2)});
    return points;
}

} // namespace cdraw
} // namespace tovangl
