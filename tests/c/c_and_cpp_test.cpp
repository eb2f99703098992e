// SPDX-License-Identifier: MIT
// What a chart of the C interface draws and tells, beside the same chart of the C++ interface.
#include "c/chart_handle.h"
#include "chart/CGraph1dBase.h"
#include "input/CGraph1dInput.h"
#include "support/host_pictures.h"
#include <tovangl/tovangl.h>
#include <tovangl/tovangl_c.h>

#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>

namespace tovangl {
namespace {

constexpr int kWidth = 420;
constexpr int kHeight = 300;
constexpr int kFactor = 2;

struct CNamedValue
{
    const char* name;
    const char* value;
};

constexpr CNamedValue kSettings[] = {
    {"font", "DejaVu Sans"}, {"font_size", "12"},  {"background", "true"},
    {"locale", "de_AT"},     {"threshold", "1.5"}, {"text_color", "#203040"},
};

struct CItem
{
    long value;
    const char* caption;
    std::uint32_t fill;
};

constexpr CItem kItems[] = {
    {52000, "Miete", TOVANGL_NO_COLOR},
    {7, "Kleinkram", TOVANGL_NO_COLOR},
    {-9000,
     "R\xc3\xbc"
     "ckgabe",
     0xc02020},
    {31000, "Essen", 0x20a0c0},
};

Color toColor(std::uint32_t color)
{
    constexpr std::uint32_t kChannel = 0xff;
    return Color{static_cast<int>(color >> 16), static_cast<int>(color >> 8 & kChannel),
                 static_cast<int>(color & kChannel)};
}

template <typename Bars>
void addTo(Bars& bars, const CItem& item)
{
    if (item.fill == TOVANGL_NO_COLOR)
        bars.addItem(item.value, item.caption);
    else
        bars.addItem(item.value, item.caption, toColor(item.fill), Color::notSet());
}

void addTo(PieGraph& pie, const CItem& item)
{
    if (item.fill == TOVANGL_NO_COLOR)
        pie.addItem(item.value, item.caption);
    else
        pie.addItem(item.value, item.caption, toColor(item.fill));
}

template <typename Chart>
std::unique_ptr<Graph> makeGraph()
{
    auto chart = std::make_unique<Chart>(false);
    for (const CNamedValue& setting : kSettings)
        EXPECT_EQ(chart->setByName(setting.name, setting.value), "");
    for (const CItem& item : kItems)
        addTo(*chart, item);
    return chart;
}

std::vector<Rectangle> barsOf(Graph& graph, int kind)
{
    return kind == TOVANGL_BARS
               ? copied(static_cast<VerticalBarGraph&>(graph).getItemBarRectangle())
               : copied(static_cast<HorizontalBarGraph&>(graph).getItemBarRectangle());
}

struct CDestroyed
{
    void operator()(tovangl_chart* chart) const { tovangl_chart_destroy(chart); }
};

using CHandle = std::unique_ptr<tovangl_chart, CDestroyed>;

CHandle makeHandle(int kind)
{
    tovangl_chart* chart = nullptr;
    EXPECT_EQ(tovangl_chart_create(kind, &chart), TOVANGL_OK);
    CHandle handle(chart);
    for (const CNamedValue& setting : kSettings)
        EXPECT_EQ(tovangl_chart_set(chart, setting.name, setting.value), TOVANGL_OK);
    for (const CItem& item : kItems)
        EXPECT_EQ(
            tovangl_chart_add_item(chart, item.value, item.caption, item.fill, TOVANGL_NO_COLOR),
            TOVANGL_OK);
    return handle;
}

struct CKind
{
    const char* name;
    int kind;
    std::unique_ptr<Graph> (*make)();
};

void PrintTo(const CKind& kind, std::ostream* stream)
{
    *stream << kind.name;
}

std::string toBytes(const CHostPicture& picture)
{
    return {reinterpret_cast<const char*>(picture.data), static_cast<std::size_t>(picture.size)};
}

std::vector<Rectangle> toRectangles(const tovangl_rectangle* first, std::size_t count)
{
    std::vector<Rectangle> rectangles;
    for (std::size_t i = 0; i < count; ++i)
        rectangles.push_back({first[i].x, first[i].y, first[i].width, first[i].height});
    return rectangles;
}

class ChartOfC : public ::testing::TestWithParam<CKind>
{
protected:
    [[nodiscard]] std::string render(int width, int height) const
    {
        const unsigned char* data = nullptr;
        std::size_t size = 0;
        EXPECT_EQ(tovangl_chart_render(chart.get(), width, height, &data, &size), TOVANGL_OK);
        return {reinterpret_cast<const char*>(data), size};
    }

    std::unique_ptr<Graph> graph = GetParam().make();
    CHandle chart = makeHandle(GetParam().kind);
};

INSTANTIATE_TEST_SUITE_P(
    Graph, ChartOfC,
    ::testing::Values(CKind{"Pie", TOVANGL_PIE, makeGraph<PieGraph>},
                      CKind{"VerticalBars", TOVANGL_BARS, makeGraph<VerticalBarGraph>},
                      CKind{"HorizontalBars", TOVANGL_HBARS, makeGraph<HorizontalBarGraph>}),
    [](const auto& info) { return info.param.name; });

TEST_P(ChartOfC, IsTheSameFileOnScreen)
{
    EXPECT_EQ(render(kWidth, kHeight), toBytes(exported(*graph, kWidth, kHeight)));
}

TEST_P(ChartOfC, IsTheSameFileInPrint)
{
    const unsigned char* data = nullptr;
    std::size_t size = 0;
    ASSERT_EQ(tovangl_chart_render_for_print(chart.get(), kWidth, kHeight, kFactor, &data, &size),
              TOVANGL_OK);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(data), size),
              toBytes(printed(*graph, kWidth, kHeight, kFactor)));
}

TEST_P(ChartOfC, HasTheSameCaptionRectangles)
{
    (void)exported(*graph, kWidth, kHeight);
    (void)render(kWidth, kHeight);
    const tovangl_rectangle* first = nullptr;
    std::size_t count = 0;
    ASSERT_EQ(tovangl_chart_caption_rectangles(chart.get(), &first, &count), TOVANGL_OK);
    EXPECT_EQ(toRectangles(first, count), copied(graph->getRectangle()));
    EXPECT_FALSE(toRectangles(first, count)[0] == kNoRectangle);
}

TEST_P(ChartOfC, HasTheSameDescription)
{
    (void)exported(*graph, kWidth, kHeight);
    (void)render(kWidth, kHeight);
    const char* text = nullptr;
    ASSERT_EQ(tovangl_chart_describe(chart.get(), &text), TOVANGL_OK);
    EXPECT_EQ(text, graph->describe());
}

TEST_P(ChartOfC, HasTheSameProblem)
{
    constexpr int kTooSmall = 12;
    (void)exported(*graph, kTooSmall, kTooSmall);
    (void)render(kTooSmall, kTooSmall);
    EXPECT_EQ(int{tovangl_chart_problem(chart.get())}, static_cast<int>(graph->problem()));
    EXPECT_EQ(tovangl_chart_problem_text(chart.get()), graph->problemText());
    EXPECT_NE(graph->problem(), Problem::None);
}

TEST_P(ChartOfC, HasTheSameBarsOrSlices)
{
    (void)exported(*graph, kWidth, kHeight);
    (void)render(kWidth, kHeight);
    std::size_t count = 0;
    if (GetParam().kind != TOVANGL_PIE) {
        const tovangl_rectangle* bars = nullptr;
        ASSERT_EQ(tovangl_chart_bar_rectangles(chart.get(), &bars, &count), TOVANGL_OK);
        EXPECT_EQ(toRectangles(bars, count), barsOf(*graph, GetParam().kind));
        return;
    }
    const tovangl_slice* slices = nullptr;
    ASSERT_EQ(tovangl_chart_slices(chart.get(), &slices, &count), TOVANGL_OK);
    const std::vector<Slice> expected = copied(static_cast<PieGraph&>(*graph).getSlice());
    ASSERT_EQ(count, expected.size());
    for (std::size_t i = 0; i < count; ++i) {
        const tovangl_slice& slice = slices[i];
        EXPECT_EQ((Slice{slice.x, slice.y, slice.width, slice.height, slice.start, slice.span}),
                  expected[i]);
    }
}

TEST_P(ChartOfC, TakesValuesOfTheWholeRange)
{
    constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();
    constexpr std::int64_t kGreatest = std::numeric_limits<std::int64_t>::max();
    for (const std::int64_t value : {kLeast, kGreatest})
        EXPECT_EQ(
            tovangl_chart_add_item(chart.get(), value, "end", TOVANGL_NO_COLOR, TOVANGL_NO_COLOR),
            TOVANGL_OK);
    const std::vector<CGraph1dItem>& items = chart->graph.input().items;
    EXPECT_EQ(items[items.size() - 2].value, kLeast);
    EXPECT_EQ(items.back().value, kGreatest);
}

TEST(SettingTableOfC, IsThatOfTheCppInterface)
{
    std::size_t index = 0;
    for (const Setting& row : settings()) {
        tovangl_setting copy;
        ASSERT_EQ(tovangl_setting_at(index++, &copy), TOVANGL_OK);
        EXPECT_STREQ(copy.name, row.name);
        EXPECT_STREQ(copy.choices, row.choices);
        EXPECT_STREQ(copy.default_value, row.defaultValue);
        EXPECT_STREQ(copy.summary, row.summary);
        EXPECT_EQ(copy.minimum, row.minimum);
        EXPECT_EQ(copy.maximum, row.maximum);
        EXPECT_EQ(copy.type, static_cast<int>(row.type));
        EXPECT_EQ(copy.charts, row.charts);
    }
    EXPECT_EQ(index, tovangl_setting_count());
}

TEST(SliceOfC, HasTheSamePolygon)
{
    const CHandle chart = makeHandle(TOVANGL_PIE);
    const tovangl_slice slice = {10, 20, 300, 200, 30, 100};
    const std::vector<Point> expected = getPolygon({10, 20, 300, 200, 30, 100});
    const tovangl_point* points = nullptr;
    std::size_t count = 0;
    ASSERT_EQ(tovangl_chart_slice_polygon(chart.get(), &slice, &points, &count), TOVANGL_OK);
    ASSERT_EQ(count, expected.size());
    for (std::size_t i = 0; i < count; ++i) {
        EXPECT_EQ(points[i].x, expected[i].x);
        EXPECT_EQ(points[i].y, expected[i].y);
    }
}

TEST(CallOfC, EndsEveryExceptionAsLackOfMemory)
{
    const CHandle chart = makeHandle(TOVANGL_PIE);
    const auto fail = [](tovangl_chart&) -> COutcome { throw std::length_error("too many"); };
    EXPECT_EQ(callChart(chart.get(), fail), TOVANGL_NO_MEMORY);
    EXPECT_STREQ(tovangl_chart_error(chart.get()), "There is not enough memory.");
}

TEST(CallOfC, RefusesMoreItemsThanAnyMemoryHolds)
{
    const CHandle chart = makeHandle(TOVANGL_PIE);
    const std::int64_t value = 1;
    const char* const caption = "";
    EXPECT_EQ(tovangl_chart_add_items(chart.get(), std::numeric_limits<std::size_t>::max(), &value,
                                      &caption, nullptr, nullptr),
              TOVANGL_NO_MEMORY);
}

} // namespace
} // namespace tovangl
