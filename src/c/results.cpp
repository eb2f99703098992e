// SPDX-License-Identifier: MIT
// The C interface: pictures, and what a chart tells of its last rendering.
#include "c/chart_handle.h"
#include "chart/CBarBase.h"
#include "chart/CPieGraph.h"
#include "chart/chart_rendering.h"
#include "chart/slice_records.h"

#include <utility>

namespace tovangl {

namespace {

static_assert(int{TOVANGL_PROBLEM_NONE} == static_cast<int>(Problem::None));
static_assert(int{TOVANGL_PROBLEM_SIZE_OUT_OF_RANGE} == static_cast<int>(Problem::SizeOutOfRange));
static_assert(int{TOVANGL_PROBLEM_NO_MEMORY} == static_cast<int>(Problem::NoMemory));
static_assert(int{TOVANGL_PROBLEM_NO_PLATFORM_PLUGIN} ==
              static_cast<int>(Problem::NoPlatformPlugin));
static_assert(int{TOVANGL_PROBLEM_PROCESS_ENDING} == static_cast<int>(Problem::ProcessEnding));
static_assert(int{TOVANGL_PROBLEM_TOO_SMALL_FOR_CHART} ==
              static_cast<int>(Problem::TooSmallForChart));
static_assert(int{TOVANGL_PROBLEM_NO_GLYPHS} == static_cast<int>(Problem::NoGlyphs));
static_assert(int{TOVANGL_PROBLEM_FAMILY_REPLACED} == static_cast<int>(Problem::FamilyReplaced));

// Where the host wants the records of a result, and their number.
template <typename Record>
class CResult
{
public:
    CResult(const Record** records, std::size_t* count)
        : m_records(records)
        , m_count(count)
    {}

    [[nodiscard]] bool isWanted() const { return m_records && m_count; }
    void set(const Record* first, std::size_t number) const
    {
        *m_records = first;
        *m_count = number;
    }

private:
    const Record** m_records;
    std::size_t* m_count;
};

// Runs a call that hands out records: none, where it fails.
template <typename Record, typename Operation>
tovangl_status callForRecords(tovangl_chart* chart, CResult<Record> result,
                              Operation operation) noexcept
{
    if (result.isWanted())
        result.set(nullptr, 0);
    return callChart(chart, [=](tovangl_chart& target) -> COutcome {
        return result.isWanted() ? operation(target) : COutcome{TOVANGL_NULL_ARGUMENT};
    });
}

COutcome handOver(const CPictureFile& file, const CGraph1dBase& graph,
                  CResult<unsigned char> result)
{
    if (file.size == 0)
        return {TOVANGL_NO_PICTURE, graph.problemText()};
    result.set(file.data.get(), file.size);
    return {};
}

// Runs a call that renders the chart.
//
// @param sizes  what render() takes beside the chart
template <typename... Sizes>
tovangl_status callForPicture(tovangl_chart* chart, CResult<unsigned char> result,
                              const CPictureFile& (*render)(CGraph1dBase&, Sizes...),
                              Sizes... sizes) noexcept
{
    return callForRecords(chart, result, [=](tovangl_chart& target) {
        return handOver(render(target.graph, sizes...), target.graph, result);
    });
}

tovangl_rectangle toRecord(const QRect& rect)
{
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

tovangl_slice toRecord(const Slice& slice)
{
    return {slice.x, slice.y, slice.width, slice.height, slice.start, slice.span};
}

tovangl_point toRecord(const Point& point)
{
    return {point.x, point.y};
}

// Keeps the records in the chart, and tells the host where.
template <typename Source, typename Record>
COutcome keepRecords(const std::vector<Source>& sources, std::vector<Record>& kept,
                     CResult<Record> result)
{
    std::vector<Record> records;
    records.reserve(sources.size());
    for (const Source& source : sources)
        records.push_back(toRecord(source));
    kept = std::move(records);
    result.set(kept.data(), kept.size());
    return {};
}

} // namespace

} // namespace tovangl

using tovangl::COutcome;

tovangl_status tovangl_chart_render(tovangl_chart* chart, int32_t width, int32_t height,
                                    const unsigned char** data, size_t* size)
{
    return tovangl::callForPicture(chart, {data, size}, &tovangl::renderPicture, width, height);
}

tovangl_status tovangl_chart_render_for_print(tovangl_chart* chart, int32_t width, int32_t height,
                                              int32_t factor, const unsigned char** data,
                                              size_t* size)
{
    return tovangl::callForPicture(chart, {data, size}, &tovangl::renderForPrinter, width, height,
                                   factor);
}

tovangl_status tovangl_chart_render_svg(tovangl_chart* chart, int32_t width, int32_t height,
                                        const unsigned char** data, size_t* size)
{
    return tovangl::callForPicture(chart, {data, size}, &tovangl::renderSvg, width, height);
}

tovangl_status tovangl_chart_render_pdf(tovangl_chart* chart, int32_t width, int32_t height,
                                        const unsigned char** data, size_t* size)
{
    return tovangl::callForPicture(chart, {data, size}, &tovangl::renderPdf, width, height);
}

tovangl_status tovangl_chart_free_picture(tovangl_chart* chart)
{
    return tovangl::callChart(chart, [](tovangl_chart& target) -> COutcome {
        target.graph.freePixmap();
        return {};
    });
}

tovangl_problem tovangl_chart_problem(const tovangl_chart* chart)
{
    return chart ? static_cast<tovangl_problem>(chart->graph.problem()) : TOVANGL_PROBLEM_NONE;
}

const char* tovangl_chart_problem_text(const tovangl_chart* chart)
{
    return chart ? chart->graph.problemText() : "";
}

tovangl_status tovangl_chart_describe(tovangl_chart* chart, const char** text)
{
    if (text)
        *text = nullptr;
    return tovangl::callChart(chart, [=](tovangl_chart& target) -> COutcome {
        if (!text)
            return {TOVANGL_NULL_ARGUMENT};
        target.description = target.graph.describe();
        *text = target.description.c_str();
        return {};
    });
}

tovangl_status tovangl_chart_title_rectangle(tovangl_chart* chart, tovangl_rectangle* rectangle)
{
    if (rectangle)
        *rectangle = {};
    return tovangl::callChart(chart, [=](tovangl_chart& target) -> COutcome {
        if (!rectangle)
            return {TOVANGL_NULL_ARGUMENT};
        *rectangle = tovangl::toRecord(target.graph.titleRectangle());
        return {};
    });
}

size_t tovangl_chart_others_count(const tovangl_chart* chart)
{
    return chart ? chart->graph.gathered().count() : 0;
}

int64_t tovangl_chart_others_value(const tovangl_chart* chart)
{
    return chart ? chart->graph.gathered().value() : 0;
}

tovangl_status tovangl_chart_caption_rectangles(tovangl_chart* chart,
                                                const tovangl_rectangle** rectangles, size_t* count)
{
    const tovangl::CResult result(rectangles, count);
    return tovangl::callForRecords(chart, result, [=](tovangl_chart& target) {
        return tovangl::keepRecords(target.graph.itemRectangles(), target.captionRectangles,
                                    result);
    });
}

tovangl_status tovangl_chart_bar_rectangles(tovangl_chart* chart,
                                            const tovangl_rectangle** rectangles, size_t* count)
{
    const tovangl::CResult result(rectangles, count);
    return tovangl::callForRecords(chart, result, [=](tovangl_chart& target) {
        return target.bars ? tovangl::keepRecords(target.bars->itemBarRectangles(),
                                                  target.barRectangles, result)
                           : COutcome{TOVANGL_WRONG_KIND};
    });
}

tovangl_status tovangl_chart_slices(tovangl_chart* chart, const tovangl_slice** slices,
                                    size_t* count)
{
    const tovangl::CResult result(slices, count);
    return tovangl::callForRecords(chart, result, [=](tovangl_chart& target) {
        return target.pie
                   ? tovangl::keepRecords(tovangl::sliceRecords(*target.pie), target.slices, result)
                   : COutcome{TOVANGL_WRONG_KIND};
    });
}

tovangl_status tovangl_chart_slice_polygon(tovangl_chart* chart, const tovangl_slice* slice,
                                           const tovangl_point** points, size_t* count)
{
    const tovangl::CResult result(points, count);
    return tovangl::callForRecords(chart, result, [=](tovangl_chart& target) -> COutcome {
        if (!slice)
            return {TOVANGL_NULL_ARGUMENT};
        const tovangl::Slice copy{slice->x,      slice->y,     slice->width,
                                  slice->height, slice->start, slice->span};
        return tovangl::keepRecords(tovangl::getPolygon(copy), target.corners, result);
    });
}
