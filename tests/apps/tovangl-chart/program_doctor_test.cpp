// SPDX-License-Identifier: MIT
// What tovangl-chart doctor finds.
#include "apps/support/CProgramTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tovangl::program {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr const char* kWithoutFonts =
    "echo '<fontconfig/>' >none.conf; FONTCONFIG_FILE=$PWD/none.conf ";

using Doctor = CProgramTest;

TEST_F(Doctor, IsContentWhereChartsCanBeDrawn)
{
    const ShellResult result = shell("tovangl-chart doctor --font 'DejaVu Sans'");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, AllOf(HasSubstr("good  Qt: "), HasSubstr("good  platform plugin: "),
                                     HasSubstr("good  font \"DejaVu Sans\": "),
                                     HasSubstr("good  picture: "), Not(HasSubstr("bad "))));
    EXPECT_THAT(result.errors, IsEmpty());
}

TEST_F(Doctor, NamesAPackageWhereThereIsNoFont)
{
    const ShellResult result = shell(kWithoutFonts + std::string("tovangl-chart doctor"));
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.output, HasSubstr("bad   default font: no font found; install the package "
                                         "fonts-dejavu-core"));
}

TEST_F(Doctor, NamesTheFamilyThatReplacesAnother)
{
    const ShellResult result = shell("tovangl-chart doctor --font 'No Such'");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.output, HasSubstr("bad   font \"No Such\": not there, and replaced by "));
}

TEST_F(Doctor, FindsTheFamilyOfAFile)
{
    const ShellResult result = shell(kWithoutFonts + std::string("tovangl-chart doctor --font-file "
                                                                 "/usr/share/fonts/truetype/dejavu/"
                                                                 "DejaVuSerif.ttf"));
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, HasSubstr("good  font \"DejaVu Serif\": "));
}

TEST_F(Doctor, FindsThatThePlatformPluginIsMissing)
{
    const ShellResult result =
        shell("cp \"$(command -v tovangl-chart)\" . && mkdir plugins && "
              "printf '[Paths]\\nPrefix = .\\nPlugins = plugins\\n' >qt.conf && "
              "./tovangl-chart doctor");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.output, AllOf(HasSubstr("bad   platform plugin: "), HasSubstr("libqt"),
                                     HasSubstr("bad   picture: ")));
}

} // namespace
} // namespace tovangl::program
