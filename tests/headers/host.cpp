// SPDX-License-Identifier: MIT
// A host that knows the public headers only. It calls every public operation once.
#include <tovangl/tovangl.h>

#include <cstdio>
#include <cstring>
#include <type_traits>

#if defined(__has_include)
#if __has_include(<QString>) || __has_include(<QtCore/QString>)
#error "This program proves that a host needs no Qt, so it must not find any."
#endif
#endif

namespace {

static_assert(!std::is_copy_constructible<tovangl::Graph>::value, "Facades own a chart");
static_assert(!std::is_copy_constructible<tovangl::PieGraph>::value, "Facades own a chart");
static_assert(!std::is_copy_assignable<tovangl::VerticalBarGraph>::value, "Facades own a chart");
static_assert(!std::is_copy_assignable<tovangl::HorizontalBarGraph>::value, "Facades own a chart");
static_assert(std::has_virtual_destructor<tovangl::Graph>::value, "Facades are deleted by base");

int failures = 0;

void expect(bool condition, const char* what)
{
    if (condition)
        return;
    ++failures;
    std::fprintf(stderr, "FAIL %s\n", what);
}

void expectPng(const unsigned char* data, int size, const char* what)
{
    const unsigned char signature[] = {0x89, 'P', 'N', 'G'};
    expect(data && size > 100 && std::memcmp(data, signature, sizeof signature) == 0, what);
}

void exportBothWays(tovangl::Graph& graph, const char* what)
{
    unsigned char* data = nullptr;
    int size = 0;
    graph.createPixmap(300, 200, &data, &size);
    expectPng(data, size, what);
    graph.createPixmapForPrinter(300, 200, 2, &data, &size);
    expectPng(data, size, what);
    expect(graph.problem() == tovangl::Problem::None && graph.problemText().empty(), what);
    graph.freePixmap();
}

void setCommonSettings(tovangl::Graph& graph)
{
    graph.setFont("sans-serif", 11);
    graph.setLocale("en", "us");
    graph.setThreshold(0.5);
    expect(!(graph.threshold() < 0.5), "threshold");
}

void drawPie()
{
    tovangl::PieGraph pie(true);
    setCommonSettings(pie);
    const tovangl::Color color = {10, 20, 30};
    expect(pie.addItem(5, "five"), "pie item");
    expect(pie.addItem(7L, "seven", color), "coloured pie item");
    pie.setProperty(tovangl::PieGraph::DefaultProperties | tovangl::PieGraph::BoldLabels);
    pie.setColors(color, color, color);
    exportBothWays(pie, "pie");
    expect(pie.getRectangle()->size() == 2, "pie rectangles");
    pie.clear();
}

template <typename Bars>
void drawBars(Bars& bars, const char* what)
{
    setCommonSettings(bars);
    const tovangl::Color color = {10, 20, 30};
    expect(bars.addItem(5, "five"), what);
    expect(bars.addItem(7L, "seven", color, color), what);
    bars.setPosition(60, 150);
    bars.setBarWidth(20);
    expect(bars.barWidth() == 20, "bar width");
    bars.setVerticalAxis(tovangl::AxisProperty::ShowLine | tovangl::AxisProperty::ShowLabels, "up");
    bars.setColor(color);
    exportBothWays(bars, what);
    expect(bars.getRectangle()->size() == 2, "caption rectangles");
    expect(bars.getBarRectangle()->size() == 2, "bar rectangles");
}

} // namespace

int main()
{
    tovangl::installEmptyMsgHandler();
    expect(std::strcmp(tovangl::version(), TOVANGL_VERSION_STRING) == 0, "version");
    expect(tovangl::addFont("/nonexistent").empty(), "no font file");
    expect(tovangl::addFont(nullptr, 0).empty(), "no font");
    expect(tovangl::qtVersion()[0] != '\0', "Qt's version");
    expect(!tovangl::platformName().empty(), "platform");
    expect(!tovangl::usedFontFamily("").empty(), "font family");
    drawPie();
    tovangl::VerticalBarGraph upright(true);
    upright.setHorizontalAxis(tovangl::AxisProperty::ShowLabels, "across");
    drawBars(upright, "upright bars");
    tovangl::HorizontalBarGraph lying(false);
    drawBars(lying, "lying bars");
    return failures ? 1 : 0;
}
