// SPDX-License-Identifier: MIT
// The slices of a pie as records of the public interface.
#include "chart/slice_records.h"

#include "base/circle_geometry.h"
#include "chart/CPieGraph.h"
#include "layout/slice_outline.h"
#include "process/CDefaultArithmetic.h"

#include <algorithm>
#include <cstdlib>

namespace tovangl {

namespace {

constexpr Slice kNoSlice = {0, 0, 0, 0, 0, 0};

// The angle at which a slice begins counter-clockwise, in [0, full circle).
int counterClockwiseStart(const CSliceAngles& slice)
{
    const int start = std::min(slice.span, 0) + slice.start;
    const int rest = start % cdraw::kFullCircle;
    return rest < 0 ? rest + cdraw::kFullCircle : rest;
}

double inDegrees(int angle)
{
    return angle / double{cdraw::kUnitsPerDegree};
}

Slice toSlice(const CSliceAngles& slice, const QRectF& pie)
{
    return Slice{pie.x(),
                 pie.y(),
                 pie.width(),
                 pie.height(),
                 inDegrees(counterClockwiseStart(slice)),
                 inDegrees(std::abs(slice.span))};
}

} // namespace

std::vector<Slice> sliceRecords(const CPieGraph& graph)
{
    const CDefaultArithmetic arithmetic;
    std::vector<Slice> records(graph.recordCount(), kNoSlice);
    if (graph.isDrawn()) {
        for (const CPieSlice& slice : graph.layout().slices) {
            const std::optional<std::size_t> record = graph.recordOf(slice.item);
            if (record && slice.angles.span != 0)
                records[*record] = toSlice(slice.angles, graph.layout().drawnPieRect);
        }
    }
    return records;
}

void assignSlices(std::list<Slice>& list, const CPieGraph& graph)
{
    const std::vector<Slice> records = sliceRecords(graph);
    std::list<Slice>(records.begin(), records.end()).swap(list);
}

std::vector<Point> getPolygon(const Slice& slice)
{
    const CDefaultArithmetic arithmetic;
    const QRectF pie(slice.x, slice.y, slice.width, slice.height);
    std::vector<Point> points;
    for (const QPointF& corner : cdraw::outlineSlice(pie, slice.start, slice.span))
        points.push_back(Point{corner.x(), corner.y()});
    return points;
}

} // namespace tovangl
