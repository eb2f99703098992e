// SPDX-License-Identifier: MIT
// Takes any bytes for a chart's description: reads it, compares it with what a plain reader of JSON
// makes of it, and draws it.
#include "common/CFailure.h"
#include "common/text_checks.h"
#include "failed_promise.h"
#include "seeded_fault.h"
#include "tovangl-chart/described_chart.h"

#include <array>
#include <nlohmann/json.hpp>
#include <optional>

namespace tovangl::program {
namespace {

using Json = nlohmann::json;

constexpr PictureSize kSize = {80, 60};
constexpr std::array kFormats = {PictureFormat::Png, PictureFormat::Svg, PictureFormat::Pdf};

void requireSameItems(const ChartItems& items, const Json& described)
{
    require(items.size() == described.size(), "every item is read");
    for (std::size_t i = 0; i < items.size(); ++i) {
        require(described[i]["value"] == items[i].value, "values are exact");
        require(described[i].value("caption", "") == items[i].caption, "captions are whole");
        require(described[i].value("link", "") == items[i].link, "links are whole");
    }
}

void requireMessage(const std::string& message, std::string_view json)
{
    require(!message.empty() && makePrintable(message) == message,
            "a refusal is one line that is safe to print");
    if (message.rfind("not JSON", 0) == 0)
        require(!Json::accept(json), "only what is no JSON is refused as such");
}

std::optional<ChartDescription> read(std::string_view json)
{
    try {
        return parseDescription(json);
    } catch (const CFailure& failure) {
        requireMessage(failure.what(), json);
    }
    return std::nullopt;
}

// Large pictures would only take time: they have a target of their own.
void drawSmall(ChartDescription chart, PictureFormat format)
{
    chart.size = kSize;
    chart.printFactor.reset();
    try {
        require(!drawDescription(chart, {format}).picture.empty(), "what is drawn has bytes");
    } catch (const CFailure& failure) {
        require(makePrintable(failure.what()) == failure.what(), "a refusal is safe to print");
    }
}

void useDescription(std::string_view json)
{
    std::optional<ChartDescription> chart = read(json);
    if (!chart)
        return;
    if (isFaultSeeded() && !chart->items.empty())
        chart->items.pop_back();
    const Json described = Json::parse(json, nullptr, false);
    require(described.is_object(), "only a JSON object is a chart");
    requireSameItems(chart->items, described["items"]);
    drawSmall(std::move(*chart), kFormats[json.size() % kFormats.size()]);
}

} // namespace
} // namespace tovangl::program

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    tovangl::program::useDescription({reinterpret_cast<const char*>(data), size});
    return 0;
}
