// SPDX-License-Identifier: MIT
// Chart data: extreme values, alone and mixed, and many of them.
#include "hostile/hostile_input.h"

#include <limits>

namespace tovangl {

namespace {

using Values = std::vector<long>;

constexpr long kMin = std::numeric_limits<long>::min();
constexpr long kMax = std::numeric_limits<long>::max();
constexpr long kMin32 = std::numeric_limits<int>::min();
constexpr long kMax32 = std::numeric_limits<int>::max();
constexpr std::size_t kMany = 100000;

struct CValueCase
{
    const char* name;
    Values values;
};

const std::vector<CValueCase>& valueCases()
{
    static const std::vector<CValueCase> cases = {
        {"no items", {}},
        {"zero alone", {0}},
        {"one alone", {1}},
        {"minus one alone", {-1}},
        {"zeros only", Values(20, 0)},
        {"the most negative value alone", {kMin}},
        {"the most negative value but one", {kMin + 1}},
        {"the most positive value alone", {kMax}},
        {"the most positive value but one", {kMax - 1}},
        {"both ends", {kMin, kMax}},
        {"both ends and zero", {kMax, 0, kMin}},
        {"both ends and one", {1, kMax, kMin}},
        {"two greatest values: the sum overflows", {kMax, kMax}},
        {"two least values: the sum overflows", {kMin, kMin}},
        {"a hundred greatest values", Values(100, kMax)},
        {"a hundred least values", Values(100, kMin)},
        {"fifty of either end",
         [] {
             Values values(50, kMax);
             values.insert(values.end(), 50, kMin);
             return values;
         }()},
        {"sums that wrap to zero", {kMin, kMin, 1}},
        {"sums that wrap to a negative", {kMax, 1, 1}},
        {"one beside the greatest", {1, kMax}},
        {"one beside the least", {1, kMin}},
        {"minus one beside the greatest", {-1, kMax}},
        {"600 beside minus a billion", {600, -1000000000}},
        {"600 beside minus a million million", {600, -1000000000000}},
        {"600 beside the least", {600, kMin}},
        {"the greatest beside minus 600", {kMax, -600}},
        {"the ends of 32 bits", {kMin32, kMax32}},
        {"just beyond 32 bits", {kMin32 - 1, kMax32 + 1}},
        {"products that wrap to zero", {-(1L << 32), 1L << 32}},
        {"half the range", {kMin / 2, kMax / 2}},
        {"half the range and one", {kMin / 2 - 1, kMax / 2 + 1}},
        {"a total at the border of 31 bits", {kMax32 - 1, 1}},
        {"a total beyond the border of 31 bits", {kMax32, 1}},
        {"values beyond the precision of a double", {(1L << 53) + 1, (1L << 53), kMax - 512}},
        {"powers of two",
         [] {
             Values values;
             for (int bit = 0; bit < 63; ++bit)
                 values.push_back(1L << bit);
             return values;
         }()},
        {"powers of two, both signs",
         [] {
             Values values;
             for (int bit = 0; bit < 63; ++bit)
                 values.push_back(bit % 2 ? -(1L << bit) : 1L << bit);
             return values;
         }()},
        {"a kilo and its neighbours", {1023, 1024, 1025, 1048575, 1048576, 1048577}},
        {"labels up to the bound on their number", {-99998}},
        {"labels at the bound on their number", {-99999}},
        {"labels one beyond the bound", {-100000}},
    };
    return cases;
}

void drawValues(ChartKind kind, const Values& values)
{
    CAnyChart chart(kind, true);
    for (long value : values)
        chart.addItem(value, "caption");
    chart.setProperties(kind == ChartKind::Pie ? 0x1c8 : 0x20a7, "title");
    drawEverything(chart);
}

// At a threshold that leaves out some, and at one that leaves out all.
void drawOthers(ChartKind kind, const Values& values)
{
    CAnyChart chart(kind, true);
    for (long value : values)
        chart.addItem(value, "caption");
    chart.graph().setOthers("others");
    chart.graph().setThreshold(10);
    drawEverything(chart);
    chart.graph().setThreshold(std::numeric_limits<double>::quiet_NaN());
    drawEverything(chart);
}

void addForEveryKind(HostileTable& table, const std::string& name, const Values& values)
{
    for (ChartKind kind : kChartKinds) {
        table.push_back({nameOf(kind) + (": " + name), [=] { drawValues(kind, values); }});
        table.push_back(
            {nameOf(kind) + (", with others: " + name), [=] { drawOthers(kind, values); }});
    }
}

// The step of a scale follows the greatest value alone, so these ask for any number of labels.
void addNegativeMagnitudes(HostileTable& table)
{
    long value = 0;
    for (int zeros = 0; zeros <= 18; ++zeros) {
        value = zeros == 0 ? -1 : value * 10;
        const std::string name = "all negative, minus one with " + std::to_string(zeros) + " zeros";
        for (ChartKind kind : {ChartKind::VerticalBars, ChartKind::HorizontalBars})
            table.push_back({nameOf(kind) + (": " + name), [=] {
                                 drawValues(kind, {value, value / 3});
                             }});
    }
}

void drawManyItems(ChartKind kind, int width, int height, const std::string& caption)
{
    CAnyChart chart(kind, true);
    for (std::size_t i = 0; i < kMany; ++i)
        chart.addItem(static_cast<long>(i % 1000), caption);
    drawEverything(chart, width, height, 1);
}

void addManyItems(HostileTable& table)
{
    for (ChartKind kind : kChartKinds) {
        const std::string prefix = nameOf(kind) + std::string(": 100,000 items ");
        table.push_back({prefix + "in a small picture",
                         [=] { drawManyItems(kind, 400, 300, "caption"); }, kHeavy});
        table.push_back({prefix + "in a large picture",
                         [=] { drawManyItems(kind, 800, 600, "caption"); }, kHeavy});
        table.push_back(
            {prefix + "without captions", [=] { drawManyItems(kind, 400, 300, ""); }, kHeavy});
    }
}

} // namespace

HostileTable valueInputs()
{
    HostileTable table;
    for (const CValueCase& entry : valueCases())
        addForEveryKind(table, entry.name, entry.values);
    addNegativeMagnitudes(table);
    addManyItems(table);
    return table;
}

} // namespace tovangl
