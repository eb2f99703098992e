// SPDX-License-Identifier: MIT
#include "common/image_map.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

namespace tovangl::program {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

const RegionLink kLink{"2.html", "usr: 1 KB", "usr"};

TEST(ImageMap, WritesARectangleByItsCorners)
{
    CImageMap map("regions");
    map.addRectangle({10, 20, 30, 40}, kLink);
    EXPECT_EQ(map.html(), "<map name=\"regions\">\n"
                          "<area shape=\"rect\" coords=\"10,20,40,60\" href=\"2.html\" "
                          "title=\"usr: 1 KB\" alt=\"usr\">\n"
                          "</map>\n");
}

TEST(ImageMap, WritesASliceAsAPolygonWithTenthsOfPixels)
{
    CImageMap map("regions");
    map.addSlice({0.25, 0, 100, 100, 0, 90}, kLink);
    EXPECT_THAT(map.html(), HasSubstr("shape=\"poly\" coords=\"50.2,50.0,100.2,50.0,"));
}

TEST(ImageMap, LeavesOutWhatWasNotDrawn)
{
    CImageMap map("regions");
    map.addRectangle({0, 0, 0, 0}, kLink);
    map.addSlice({0, 0, 0, 0, 0, 0}, kLink);
    EXPECT_THAT(map.html(), Not(HasSubstr("<area")));
}

TEST(ImageMap, EscapesWhatItIsGiven)
{
    CImageMap map("regions");
    map.addRectangle({0, 0, 1, 1}, {"a&b", "\"><script>", "'x'"});
    EXPECT_THAT(map.html(), HasSubstr("href=\"a&amp;b\" title=\"&quot;&gt;&lt;script&gt;\" "
                                      "alt=\"&#39;x&#39;\""));
}

TEST(ImageMap, AddsCornersThatAnIntCannotHold)
{
    constexpr int kMost = std::numeric_limits<int>::max();
    CImageMap map("regions");
    map.addRectangle({kMost, kMost, kMost, kMost}, kLink);
    EXPECT_THAT(map.html(), HasSubstr("2147483647,2147483647,4294967294,4294967294"));
}

} // namespace
} // namespace tovangl::program
