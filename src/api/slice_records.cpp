// SPDX-License-Identifier: MIT
// The slices of a pie as records of the public interface.
#include "api/slice_records.h"

#include "draw/circle_geometry.h"
#include "draw/slice_outline.h"
#include "pie/CPieGraph.h"

#include <algorithm>
#include <cstdlib>

namespace tovangl {

namespace {

constexpr Slice kNoSlice = {0, 0, 0, 0, 0, 0};

// The angle at which a slice begins when it is followed counter-clockwise, in [0, full circle).
int counterClockwiseStart(const CPieBaseItem& item)
{
    const int start = std::min(item.spanAngle(), 0) + item.startAngle();
    const int rest = start % cdraw::kFullCircle;
    return rest < 0 ? rest + cdraw::kFullCircle : rest;
}

double inDegrees(int angle)
{
    return angle / double{cdraw::kUnitsPerDegree};
}

Slice toSlice(const CPieBaseItem& item, const QRectF& pie)
{
    return Slice{pie.x(),
                 pie.y(),
                 pie.width(),
                 pie.height(),
                 inDegrees(counterClockwiseStart(item)),
                 inDegrees(std::abs(item.spanAngle()))};
}

} // namespace

void assignSlices(std::list<Slice>& list, const CPieGraph* graph)
{
    std::list<Slice> records;
    if (graph) {
        for (const CPieBaseItem* item : graph->drawnItems()) {
            const bool hasSlice = item && item->spanAngle() != 0;
            records.push_back(hasSlice ? toSlice(*item, graph->drawnPieRect()) : kNoSlice);
        }
    }
    list.swap(records);
}

std::vector<Point> getPolygon(const Slice& slice)
{
    const QRectF pie(slice.x, slice.y, slice.width, slice.height);
    std::vector<Point> points;
    for (const QPointF& corner : cdraw::outlineSlice(pie, slice.start, slice.span))
        points.push_back(Point{corner.x(), corner.y()});
    return points;
}

} // namespace tovangl
