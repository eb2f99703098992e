// SPDX-License-Identifier: MIT
// Gives the pure algorithms any numbers, and holds them against their plain forms.
#include "failed_promise.h"
#include "layout/CZoneArranger.h"
#include "layout/bar_placement.h"
#include "layout/label_thinning.h"
#include "layout/plain_scale.h"
#include "layout/plain_slice_angles.h"
#include "layout/plain_zones.h"
#include "layout/value_scale.h"
#include "seeded_fault.h"

#include <algorithm>
#include <array>
#include <fuzzer/FuzzedDataProvider.h>

namespace tovangl {
namespace {

// The plain forms go tick by tick and label by label.
constexpr std::int64_t kMostPlainTicks = 3000;
constexpr int kMostLabels = 60;

long long readValue(FuzzedDataProvider& input)
{
    const auto value = input.ConsumeIntegral<long long>();
    return value >> input.ConsumeIntegralInRange(0, 63);
}

bool isSameTick(const CTick& a, const CTick& b)
{
    return a.value == b.value && a.format == b.format && a.isHidden == b.isHidden;
}

bool areSameTicks(const std::vector<CTick>& a, const std::vector<CTick>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), isSameTick);
}

void checkSteps(FuzzedDataProvider& input)
{
    const CKilo kilo = input.ConsumeBool() ? kKilo1024 : kKilo1000;
    const CStepLadder ladder = stepLadder(input.ConsumeBool(), kilo);
    const long long max = readValue(input);
    const long long seeded = isFaultSeeded() ? max / 2 : max;
    require(findStep(ladder, max) == plainStep(ladder, seeded),
            "a step is the first entry of the ladder that is great enough");
}

void checkTicks(FuzzedDataProvider& input)
{
    const CKilo kilo = input.ConsumeBool() ? kKilo1024 : kKilo1000;
    const CTickRules rules{input.ConsumeBool(), input.ConsumeBool(), input.ConsumeBool()};
    const long long a = readValue(input);
    const long long b = readValue(input);
    const CDataRange data{std::min(a, b), std::max(a, b)};
    const long long step = boundedStep(findDataStep(data.max, kilo), data, rules);
    const std::int64_t count = countTicks(step, data, rules);
    require(count <= kMostTicks, "a scale never carries more ticks than the bound");
    if (count > kMostPlainTicks)
        return;
    const auto positive = positiveTicks(step, data, rules, kilo);
    const auto negative = negativeTicks(step, data, rules);
    require(static_cast<std::int64_t>(positive.size() + negative.size()) + 1 == count,
            "there are as many ticks as were counted");
    require(areSameTicks(positive, plainPositiveTicks(step, data, rules, kilo)),
            "the ticks above zero are those of the plain form");
    require(areSameTicks(negative, plainNegativeTicks(step, data, rules)),
            "the ticks below zero are those of the plain form");
}

void checkThinning(FuzzedDataProvider& input)
{
    std::vector<int> ticks(input.ConsumeIntegralInRange<std::size_t>(1, kMostLabels));
    for (int& tick : ticks)
        tick = input.ConsumeIntegralInRange(-3000, 3000);
    const int pitch = input.ConsumeIntegralInRange(0, 2000);
    const int room = input.ConsumeIntegralInRange(-5000, 100000);
    const auto count = static_cast<std::int64_t>(ticks.size());
    const auto isFarEnough = [&](int step) {
        return step >= count || pitch <= std::abs(ticks[0] - ticks[static_cast<std::size_t>(step)]);
    };
    const std::int64_t step = findThinningStep({count, pitch, room}, isFarEnough);
    const std::vector<bool> plain = plainlyKeptLabels(ticks, pitch, room);
    for (std::int64_t i = 0; i < count; ++i)
        require(isLabelKept(i, count, step) == plain[static_cast<std::size_t>(i)],
                "the labels that stay are those of the plain form");
}

void checkSlices(FuzzedDataProvider& input)
{
    std::vector<long long> values(input.ConsumeIntegralInRange<std::size_t>(0, kMostLabels));
    for (long long& value : values)
        value = readValue(input);
    const int direction = input.ConsumeBool() ? 1 : -1;
    const auto slices = computeSliceAngles(values, 0, direction);
    const auto plain = plainSliceAngles(values, 0, direction);
    for (std::size_t i = 0; i < values.size(); ++i)
        require(slices[i].start == plain[i].start && slices[i].span == plain[i].span,
                "the slices are those of the plain form");
}

void checkZones(FuzzedDataProvider& input)
{
    const double min = input.ConsumeFloatingPointInRange(-1000.0, 1000.0);
    const double max = input.ConsumeFloatingPointInRange(-1000.0, 1000.0);
    const double height = input.ConsumeFloatingPointInRange(0.0, 60.0);
    std::vector<CPlainLabel> plain(input.ConsumeIntegralInRange<std::size_t>(0, kMostLabels));
    CZoneArranger arranger({min, max}, height);
    for (std::size_t i = 0; i < plain.size(); ++i) {
        plain[i].y = input.ConsumeFloatingPointInRange(-1500.0, 1500.0);
        arranger.addZoneBack(i, plain[i].y);
    }
    CPlainArranger(min, max, height).arrange(plain);
    const double radius = input.ConsumeFloatingPointInRange(0.0, 500.0);
    const auto arranged = arranger.arrange(radius);
    require(arranged.size() == plain.size(), "every label is told once");
    for (const CArrangedLabel& label : arranged) {
        const CPlainLabel& expected = plain.at(label.label);
        require(label.place.has_value() != expected.hidden,
                "the labels that are hidden are those of the plain form");
        require(expected.hidden || (label.place->x() == circleX(radius, expected.y) &&
                                    label.place->y() == expected.y),
                "the labels stand in the places of the plain form");
    }
}

// There is no plain form beside these: any numbers must do, without undefined behaviour.
void useAnyNumbers(FuzzedDataProvider& input)
{
    CValueScale scale;
    scale.min = readValue(input);
    scale.max = readValue(input);
    scale.start = input.ConsumeIntegral<int>();
    scale.span = input.ConsumeIntegral<int>();
    (void)scale.coord(readValue(input));
    (void)scale.size(readValue(input));

    const CBarRow bars{input.ConsumeIntegral<int>() & 0xffffff, input.ConsumeIntegral<int>(),
                       input.ConsumeIntegral<int>()};
    (void)categoryShift(bars, input.ConsumeIntegral<int>());
    (void)categoryPitch(bars.axisLength, bars.categories);
    (void)derivedBarWidth(bars.axisLength, bars.categories);
    const CBarExtent bar{input.ConsumeFloatingPoint<double>(), bars.barWidth,
                         input.ConsumeIntegral<int>(), input.ConsumeIntegral<int>()};
    (void)barRectangle(bar, input.ConsumeBool());
}

} // namespace
} // namespace tovangl

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace tovangl;
    constexpr std::array kChecks = {checkSteps,  checkTicks, checkThinning,
                                    checkSlices, checkZones, useAnyNumbers};
    FuzzedDataProvider input(data, size);
    input.PickValueInArray(kChecks)(input);
    return 0;
}
