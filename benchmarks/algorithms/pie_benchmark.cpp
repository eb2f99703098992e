// SPDX-License-Identifier: MIT
// How fast a circle is shared out, and labels are moved apart.
#include "algorithms/random_values.h"
#include "core/CPieBaseItem.h"
#include "pie/CPieTextLabel.h"
#include "pie/CZoneArranger.h"
#include "pie/slice_angles.h"

#include <QColor>

#include <benchmark/benchmark.h>
#include <memory>

namespace tovangl {
namespace {

void shareCircle(benchmark::State& state)
{
    constexpr int kHalfTurn = 2880; // sixteenths of a degree
    const std::vector<long long> values = bench::randomValues(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(computeSliceAngles(values, -kHalfTurn, -1));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(shareCircle)->RangeMultiplier(10)->Range(10, 100000)->Complexity(benchmark::oN);

// Labels of one half of a pie, from top to bottom, all of which collide.
class CHalfOfLabels
{
public:
    explicit CHalfOfLabels(std::int64_t count)
        : m_item(1, QString(), Qt::black)
    {
        m_item.setStartAngle(0);
        m_item.setSpanAngle(0);
        for (std::int64_t i = 0; i < count; ++i)
            m_labels.push_back(std::make_unique<CPieTextLabel>(&m_item, nullptr, false));
    }

    void place()
    {
        for (const auto& label : m_labels)
            label->initPosition(kRadius, kRadius);
    }

    void arrange(double range, double height)
    {
        CZoneArranger arranger(nullptr, -range, range, height);
        for (const auto& label : m_labels)
            arranger.addZoneBack(label.get());
        arranger.arrange(kRadius);
    }

private:
    static constexpr double kRadius = 200;

    CPieBaseItem m_item;
    std::vector<std::unique_ptr<CPieTextLabel>> m_labels;
};

// The range has room for all labels, or for ten.
void moveLabelsApart(benchmark::State& state)
{
    constexpr double kHeight = 14;
    const double places = state.range(1) ? 10.0 : static_cast<double>(state.range(0)) + 1;
    CHalfOfLabels labels(state.range(0));
    for (auto _ : state) {
        labels.place();
        labels.arrange(places * kHeight / 2, kHeight);
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(moveLabelsApart)
    ->ArgNames({"labels", "mostHidden"})
    ->ArgsProduct({benchmark::CreateRange(10, 100000, 10), {0, 1}})
    ->Complexity(benchmark::oN);

} // namespace
} // namespace tovangl
