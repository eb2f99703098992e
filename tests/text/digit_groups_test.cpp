// SPDX-License-Identifier: MIT
#include "text/digit_groups.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace qt {
namespace {

struct CGrouping
{
    const char* text;
    const char* grouped;
};

class SeparateLeadingDigits : public ::testing::TestWithParam<CGrouping>
{};

TEST_P(SeparateLeadingDigits, GroupsByThree)
{
    const QString separator = ".";
    EXPECT_EQ(separateLeadingDigits(QString::fromUtf8(GetParam().text), separator),
              QString::fromUtf8(GetParam().grouped));
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, SeparateLeadingDigits,
    ::testing::Values(CGrouping{"", ""}, CGrouping{"0", "0"}, CGrouping{"123", "123"},
                      CGrouping{"1234", "1.234"}, CGrouping{"-1234", "-1.234"},
                      CGrouping{"12345", "12.345"}, CGrouping{"123456", "123.456"},
                      CGrouping{"1234567", "1.234.567"}, CGrouping{"1234.567", "1.234.567"},
                      CGrouping{"12.345", "12.345"}, CGrouping{"12.34.567", "12.34.567"},
                      CGrouping{"1234,50", "1.234,50"}, CGrouping{"1,23456", "1,23456"},
                      CGrouping{"١٢٣٤", "١.٢٣٤"}, CGrouping{"nan", "nan"}));

} // namespace
} // namespace qt
} // namespace tovangl
