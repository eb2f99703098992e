// SPDX-License-Identifier: MIT
// What a batch comes to.
#include "apps/support/CTemporaryFolder.h"
#include "tovangl-chart/CBatchRun.h"

#include <gtest/gtest.h>

namespace tovangl::program {
namespace {

class CNoSink : public CBatchSink
{
public:
    void put(const BatchAnswer&) override {}
    void finish() override {}
};

constexpr const char* kThereMadeAndBroken = "{\"id\": \"a\", \"chart\": \"pie\", \"items\": []}\n"
                                            "{\"id\": \"b\", \"chart\": \"pie\", \"items\": []}\n"
                                            "{\"id\": \"c\", \"chart\": \"pie\", \"items\": []}\n"
                                            "[]\n";

TEST(BatchRun, CountsApartWhatItMakesWhatIsThereAndWhatFails)
{
    const CTemporaryFolder folder;
    folder.write("lines", kThereMadeAndBroken);
    AnswerRules rules;
    rules.longestLine = 1000;
    rules.isThere = [](const std::string& id) { return id == "a"; };
    CBoundedLines lines(folder.pathOf("lines"), rules.longestLine);
    CNoSink sink;
    const BatchCounts counts = CBatchRun(lines, rules, sink, nullptr, 1).run();
    EXPECT_EQ(counts.charts, 2U);
    EXPECT_EQ(counts.passedOver, 1U);
    EXPECT_EQ(counts.errors, 1U);
    EXPECT_EQ(counts.end, lines.size());
}

} // namespace
} // namespace tovangl::program
