// SPDX-License-Identifier: MIT
// The schema of descriptions agrees with the library's table, and with what is read.
#include "common/CFailure.h"
#include "tovangl-chart/chart_description.h"
#include "tovangl-chart/described_chart.h"
#include "tovangl-chart/description_schema.h"

#include <fstream>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <vector>

namespace tovangl::program {
namespace {

using ::testing::IsEmpty;
using ::testing::Not;

using Json = nlohmann::ordered_json;
using Keys = std::set<std::string>;

const Json& schema()
{
    static const Json result = Json::parse(descriptionSchema());
    return result;
}

DrawnChart drawn(const std::string& json)
{
    return drawDescription(parseDescription(json), {});
}

TEST(DescriptionSchema, HasEverySettingAndNoOtherKeyThanTheChartsOwn)
{
    Keys expected = {chart_key::kChart,  chart_key::kId,    chart_key::kWidth,
                     chart_key::kHeight, chart_key::kPrint, chart_key::kItems};
    for (const Setting& setting : settings())
        EXPECT_TRUE(expected.insert(setting.name).second) << "two meanings: " << setting.name;
    Keys keys;
    for (const auto& [key, value] : schema()["properties"].items())
        keys.insert(key);
    EXPECT_EQ(keys, expected);
}

TEST(DescriptionSchema, GivesEachSettingItsSummary)
{
    for (const Setting& setting : settings())
        EXPECT_EQ(schema()["properties"][setting.name]["description"], setting.summary);
}

TEST(DescriptionSchema, ForbidsEachKindTheSettingsOfOthers)
{
    for (std::size_t i = 0; i < kChartKinds.size(); ++i) {
        const Json& rule = schema()["allOf"][i];
        ASSERT_EQ(rule["if"]["properties"]["chart"]["const"], kChartKinds[i].name);
        for (const Setting& setting : settings())
            EXPECT_EQ(rule["then"]["properties"].contains(setting.name),
                      (setting.charts & kChartKinds[i].bit) == 0)
                << kChartKinds[i].name << ' ' << setting.name;
    }
}

TEST(DescriptionSchema, HasDefaultsThatChangeNoPicture)
{
    for (const ChartKind& kind : kChartKinds) {
        Json plain = {{"chart", kind.name}, {"items", {{{"value", 1}, {"caption", "a"}}}}};
        Json full = plain;
        for (const Setting& setting : settings()) {
            if ((setting.charts & kind.bit) != 0)
                full[setting.name] = schema()["properties"][setting.name]["default"];
        }
        EXPECT_EQ(drawn(full.dump()).picture, drawn(plain.dump()).picture) << kind.name;
    }
}

/// The lines of a file that the check of the schema judges too.
std::vector<std::string> examples(const std::string& name)
{
    std::ifstream file(TOVANGL_DESCRIPTIONS "/" + name);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return lines;
}

TEST(DescriptionSchema, AcceptsWhatIsDrawn)
{
    EXPECT_THAT(examples("good.jsonl"), Not(IsEmpty()));
    for (const std::string& line : examples("good.jsonl"))
        EXPECT_NO_THROW(static_cast<void>(drawn(line))) << line;
}

TEST(DescriptionSchema, RefusesWhatIsNotDrawn)
{
    EXPECT_THAT(examples("bad.jsonl"), Not(IsEmpty()));
    for (const std::string& line : examples("bad.jsonl"))
        EXPECT_THROW(static_cast<void>(drawn(line)), CFailure) << line;
}

} // namespace
} // namespace tovangl::program
