// SPDX-License-Identifier: MIT
// Calls in unusual orders and numbers.
#include "hostile/hostile_input.h"

namespace tovangl {

namespace {

using Steps = std::function<void(ChartKind)>;

void addForEveryKind(HostileTable& table, const char* name, const Steps& steps,
                     bool isHeavy = !kHeavy)
{
    for (ChartKind kind : kChartKinds)
        table.push_back({nameOf(kind) + std::string(": ") + name, [=] { steps(kind); }, isHeavy});
}

void useChartWithoutKind()
{
    Graph graph;
    graph.clear();
    graph.freePixmap();
    graph.setThreshold(1);
    graph.setFont("Tahoma", 11);
    graph.setLocale("de", "at");
    graph.setTitle("title");
    graph.setOthers("others");
    (void)graph.titleRectangle();
    (void)graph.threshold();
    (void)graph.getRectangle();
    unsigned char* data = nullptr;
    int size = 0;
    graph.createPixmap(400, 300, &data, &size);
    graph.createPixmapForPrinter(400, 300, 2, &data, &size);
    graph.createPdf(400, 300, &data, &size);
}

void drawEmptied(ChartKind kind)
{
    CAnyChart chart(kind, true);
    addOrdinaryItems(chart);
    drawEverything(chart);
    chart.graph().clear();
    drawEverything(chart);
    chart.graph().clear();
    addOrdinaryItems(chart);
    drawEverything(chart);
}

void freeRepeatedly(ChartKind kind)
{
    CAnyChart chart(kind);
    chart.graph().freePixmap();
    chart.graph().freePixmap();
    drawEverything(chart);
    chart.graph().freePixmap();
    chart.graph().freePixmap();
    drawEverything(chart);
}

void changeSettingsOften(ChartKind kind)
{
    constexpr int kTimes = 20000;
    CAnyChart chart(kind);
    for (int i = 0; i < kTimes; ++i) {
        chart.graph().setFont("family " + std::to_string(i), i);
        chart.graph().setLocale(std::to_string(i), "at");
        chart.setProperties(i, "title " + std::to_string(i));
    }
    drawEverything(chart);
}

void growAndClear(ChartKind kind)
{
    constexpr int kTimes = 50;
    constexpr int kItems = 1000;
    CAnyChart chart(kind);
    for (int i = 0; i < kTimes; ++i) {
        for (int k = 0; k < kItems; ++k)
            chart.addItem(k, "caption");
        chart.graph().clear();
    }
    drawEverything(chart);
}

void keepManyCharts(ChartKind kind)
{
    constexpr int kCharts = 2000;
    std::vector<std::unique_ptr<CAnyChart>> charts;
    for (int i = 0; i < kCharts; ++i) {
        charts.push_back(std::make_unique<CAnyChart>(kind));
        addOrdinaryItems(*charts.back());
        (void)charts.back()->createPixmap(40, 30);
    }
}

void alternateSizes(ChartKind kind)
{
    CAnyChart chart(kind, true);
    addOrdinaryItems(chart);
    for (int i = 0; i < 20; ++i) {
        drawEverything(chart, 1 + i * 37 % 500, 1 + i * 53 % 400, i % 4);
        drawEverything(chart, -i, i, -i);
    }
}

void useManyFontSizes(ChartKind kind)
{
    constexpr int kLargest = 300;
    CAnyChart chart(kind);
    addOrdinaryItems(chart);
    for (int size = 1; size <= kLargest; ++size) {
        chart.graph().setFont("DejaVu Sans", size);
        (void)chart.createPixmap(300, 200);
    }
}

} // namespace

HostileTable sequenceInputs()
{
    HostileTable table;
    table.push_back({"a chart that is no chart", useChartWithoutKind});
    addForEveryKind(table, "made and destroyed", [](ChartKind kind) { CAnyChart chart(kind); });
    addForEveryKind(table, "destroyed with items", [](ChartKind kind) {
        CAnyChart chart(kind);
        addOrdinaryItems(chart);
    });
    addForEveryKind(table, "rectangles before any picture", [](ChartKind kind) {
        CAnyChart chart(kind);
        addOrdinaryItems(chart);
        (void)chart.itemRectangles();
        (void)chart.barRectangles();
    });
    addForEveryKind(table, "emptied and filled again", drawEmptied);
    addForEveryKind(table, "bytes freed again and again", freeRepeatedly);
    addForEveryKind(table, "settings changed 20,000 times", changeSettingsOften);
    addForEveryKind(table, "filled and emptied 50 times", growAndClear);
    addForEveryKind(table, "2,000 charts alive", keepManyCharts, kHeavy);
    addForEveryKind(table, "pictures of changing sizes", alternateSizes);
    addForEveryKind(table, "300 font sizes", useManyFontSizes, kHeavy);
    table.push_back({"messages silenced twice", [] {
                         installEmptyMsgHandler();
                         installEmptyMsgHandler();
                         drawEmptied(ChartKind::Pie);
                     }});
    return table;
}

} // namespace tovangl
