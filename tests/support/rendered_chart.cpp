// SPDX-License-Identifier: MIT
// All that a host gets from one rendering, to be compared with another one.
#include "support/rendered_chart.h"

#include "support/png_decoding.h"
#include "support/public_records.h"

#include <algorithm>

namespace tovangl {

namespace {

bool isSameSlice(const Slice& a, const Slice& b)
{
    return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height &&
           a.start == b.start && a.span == b.span;
}

bool areSameSlices(const std::list<Slice>& a, const std::list<Slice>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), isSameSlice);
}

bool areSamePixels(const std::string& a, const std::string& b)
{
    if (a == b)
        return true;
    const QImage picture = decodePng(a); // null for what is no PNG
    return !picture.isNull() && picture == decodePng(b);
}

} // namespace

CRenderedChart copyRendering(CAnyChart& chart, const CExport& picture)
{
    return CRenderedChart{picture.bytes(),           chart.graph().titleRectangle(),
                          chart.itemRectangles(),    chart.barRectangles(),
                          chart.itemBarRectangles(), chart.slices(),
                          chart.graph().describe(),  chart.graph().problem()};
}

bool isSameRendering(const CRenderedChart& a, const CRenderedChart& b)
{
    return a.title == b.title && a.items == b.items && a.bars == b.bars &&
           a.itemBars == b.itemBars && areSameSlices(a.slices, b.slices) &&
           a.description == b.description && a.problem == b.problem && a.pdf == b.pdf &&
           areSamePixels(a.png, b.png);
}

} // namespace tovangl
