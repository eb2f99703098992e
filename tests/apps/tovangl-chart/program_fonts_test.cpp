// SPDX-License-Identifier: MIT
// Fonts that the user brings along, and what the programs say where fonts are missing.
#include "apps/support/CProgramTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tovangl::program {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

// The file's name, and those of its bold companion and of an empty configuration of fonts.
constexpr const char* kSetUp =
    "font=/usr/share/fonts/truetype/dejavu/DejaVuSerif.ttf; bold=${font%.ttf}-Bold.ttf; "
    "echo '<fontconfig/>' >none.conf; echo '3 a' >items; none=\"env "
    "FONTCONFIG_FILE=$PWD/none.conf\"; ";

class FontFile : public CProgramTest
{
protected:
    ShellResult run(const std::string& command) const { return shell(kSetUp + command); }
};

using MissingFonts = FontFile;
using MissingFamily = FontFile;

TEST_F(FontFile, GivesTheSamePictureWithAndWithoutInstalledFonts)
{
    const ShellResult result = run("tovangl-chart pie --font-file $font items -o a.png && "
                                   "$none tovangl-chart pie --font-file $font items -o "
                                   "b.png && cmp a.png b.png");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(result.errors, IsEmpty());
}

TEST_F(FontFile, IsTheOneThatTheFamilyNames)
{
    const ShellResult result =
        run("other=/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf; "
            "tovangl-chart pie --font-file $font items >a.png; "
            "tovangl-chart pie --font-file $other --font-file $font --font 'DejaVu Serif' "
            "items >b.png; cmp a.png b.png");
    EXPECT_EQ(result.status, 0) << result.output;
}

TEST_F(FontFile, CanBeGivenTwiceForTheBoldLettersOfAFamily)
{
    const ShellResult result =
        run("tovangl-chart pie --bold --font-file $font items >a.png; "
            "tovangl-chart pie --bold --font-file $font --font-file $bold items >b.png; "
            "cmp -s a.png b.png");
    EXPECT_EQ(result.status, 1);
}

TEST_F(FontFile, ThatIsNoneStopsEitherProgram)
{
    for (const char* program : {"tovangl-chart pie items", TOVANGL_DU_PROGRAM " ."}) {
        const ShellResult result = run(program + std::string(" --font-file items -o out"));
        EXPECT_EQ(result.status, 2);
        EXPECT_THAT(result.errors, HasSubstr("items: cannot be read, or is no TTF or OTF font\n"));
    }
}

TEST_F(MissingFonts, AreToldByEitherProgram)
{
    for (const char* program : {"tovangl-chart pie items", TOVANGL_DU_PROGRAM " ."}) {
        const ShellResult result = run("$none " + std::string(program) + " -o out");
        EXPECT_EQ(result.status, 0);
        EXPECT_THAT(result.errors, HasSubstr("There is no font on this machine")) << program;
        shell("rm -rf out");
    }
}

TEST_F(MissingFonts, AreNotToldWhereThereIsAFile)
{
    const ShellResult result = run("$none " TOVANGL_DU_PROGRAM
                                   " . --font-file $font -o out && test -s out/1-children.png");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.errors, IsEmpty());
}

TEST_F(MissingFamily, IsTold)
{
    const ShellResult result = run("tovangl-chart pie --font 'No Such' items -o a.png");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.errors, HasSubstr("The font family is not there"));
}

TEST_F(MissingFamily, IsNotToldIfItIsTheDefault)
{
    const ShellResult result =
        run("echo '<fontconfig><dir>/usr/share/fonts/truetype/dejavu</dir></fontconfig>' "
            ">some.conf; FONTCONFIG_FILE=$PWD/some.conf tovangl-chart pie --font-size 14 items "
            "-o a.png");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.errors, IsEmpty());
}

} // namespace
} // namespace tovangl::program
