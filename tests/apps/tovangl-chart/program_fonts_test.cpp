// SPDX-License-Identifier: MIT
// Fonts that the user brings along, and what the programs say where fonts are missing.
#include "apps/support/shell.h"

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

ShellResult run(const CTemporaryFolder& folder, const std::string& command)
{
    return runShell(folder, kSetUp + command);
}

TEST(FontFile, GivesTheSamePictureWithAndWithoutInstalledFonts)
{
    const CTemporaryFolder folder;
    const ShellResult result = run(folder, "tovangl-chart pie --font-file $font items -o a.png && "
                                           "$none tovangl-chart pie --font-file $font items -o "
                                           "b.png && cmp a.png b.png");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(result.errors, IsEmpty());
}

TEST(FontFile, IsTheOneThatTheFamilyNames)
{
    const CTemporaryFolder folder;
    const ShellResult result =
        run(folder, "other=/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf; "
                    "tovangl-chart pie --font-file $font items >a.png; "
                    "tovangl-chart pie --font-file $other --font-file $font --font 'DejaVu Serif' "
                    "items >b.png; cmp a.png b.png");
    EXPECT_EQ(result.status, 0) << result.output;
}

TEST(FontFile, CanBeGivenTwiceForTheBoldLettersOfAFamily)
{
    const CTemporaryFolder folder;
    const ShellResult result =
        run(folder, "tovangl-chart pie --bold --font-file $font items >a.png; "
                    "tovangl-chart pie --bold --font-file $font --font-file $bold items >b.png; "
                    "cmp -s a.png b.png");
    EXPECT_EQ(result.status, 1);
}

TEST(FontFile, ThatIsNoneStopsEitherProgram)
{
    const CTemporaryFolder folder;
    for (const char* program : {"tovangl-chart pie items", TOVANGL_DU_PROGRAM " ."}) {
        const ShellResult result = run(folder, program + std::string(" --font-file items -o out"));
        EXPECT_EQ(result.status, 2);
        EXPECT_THAT(result.errors, HasSubstr("items: cannot be read, or is no TTF or OTF font\n"));
    }
}

TEST(MissingFonts, AreToldByEitherProgram)
{
    const CTemporaryFolder folder;
    for (const char* program : {"tovangl-chart pie items", TOVANGL_DU_PROGRAM " ."}) {
        const ShellResult result = run(folder, "$none " + std::string(program) + " -o out");
        EXPECT_EQ(result.status, 0);
        EXPECT_THAT(result.errors, HasSubstr("There is no font on this machine")) << program;
        (void)runShell(folder, "rm -rf out");
    }
}

TEST(MissingFonts, AreNotToldWhereThereIsAFile)
{
    const CTemporaryFolder folder;
    const ShellResult result =
        run(folder, "$none " TOVANGL_DU_PROGRAM
                    " . --font-file $font -o out && test -s out/1-children.png");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.errors, IsEmpty());
}

TEST(MissingFamily, IsTold)
{
    const CTemporaryFolder folder;
    const ShellResult result = run(folder, "tovangl-chart pie --font 'No Such' items -o a.png");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.errors, HasSubstr("The font family is not there"));
}

TEST(MissingFamily, IsNotToldIfItIsTheDefault)
{
    const CTemporaryFolder folder;
    const ShellResult result = run(
        folder, "echo '<fontconfig><dir>/usr/share/fonts/truetype/dejavu</dir></fontconfig>' "
                ">some.conf; FONTCONFIG_FILE=$PWD/some.conf tovangl-chart pie --font-size 14 items "
                "-o a.png");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.errors, IsEmpty());
}

} // namespace
} // namespace tovangl::program
