// SPDX-License-Identifier: MIT
// What a user reads where a line of a batch cannot be answered.
#include "tovangl-chart/batch_answer.h"

#include <gmock/gmock.h>
#include <new>
#include <stdexcept>

namespace tovangl::program {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

template <typename Failure>
std::string reasonOf(const Failure& failure)
{
    AnswerRules rules;
    rules.isThere = [&failure](const std::string&) -> bool { throw failure; };
    const NumberedLine line = {7, R"({"id": "a", "chart": "pie", "items": []})", false, 40};
    const BatchAnswer answer = answerLine(line, rules);
    EXPECT_EQ(answer.line, 7U);
    EXPECT_EQ(answer.end, 40U);
    EXPECT_EQ(answer.id, "a");
    EXPECT_EQ(answer.picture, "");
    return answer.failure;
}

TEST(BatchAnswer, TellsTheLackOfMemoryInWords)
{
    EXPECT_EQ(reasonOf(std::bad_alloc()), "out of memory");
}

TEST(BatchAnswer, TellsAReasonWithoutCharactersThatATerminalObeys)
{
    EXPECT_THAT(reasonOf(std::runtime_error("folder \x1b[31m: is not there")),
                AllOf(HasSubstr("is not there"), Not(HasSubstr("\x1b"))));
}

} // namespace
} // namespace tovangl::program
