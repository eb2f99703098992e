// SPDX-License-Identifier: MIT
#include <tovangl/Version.h>

#include <gtest/gtest.h>
#include <string>

namespace tovangl {
namespace {

TEST(Version, OfTheHeadersIsThatOfTheProject)
{
    EXPECT_STREQ(TOVANGL_VERSION_STRING, TOVANGL_PROJECT_VERSION);
}

TEST(Version, HasTheSameNumbersAsItsString)
{
    EXPECT_EQ(std::to_string(TOVANGL_VERSION_MAJOR) + '.' + std::to_string(TOVANGL_VERSION_MINOR) +
                  '.' + std::to_string(TOVANGL_VERSION_PATCH),
              TOVANGL_VERSION_STRING);
}

TEST(Version, OfTheLibraryIsThatOfTheProject)
{
    EXPECT_STREQ(version(), TOVANGL_PROJECT_VERSION);
}

} // namespace
} // namespace tovangl
