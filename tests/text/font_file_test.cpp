// SPDX-License-Identifier: MIT
#include "support/small_font.h"
#include "text/font_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr unsigned kFamily = 1;

std::string_view viewOf(const QByteArray& bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

std::string fontNamed(const std::vector<CFontName>& names)
{
    return smallFont(CSmallFont{names});
}

std::string replaced(std::string text, const std::string& old, const std::string& by)
{
    return text.replace(text.find(old), old.size(), by);
}

TEST(FamiliesInFile, AreThoseOfTheNameTable)
{
    EXPECT_THAT(familiesInFile(smallFont("Rooms")), ElementsAre("Rooms"));
}

TEST(FamiliesInFile, AreOneForEachFontOfACollection)
{
    const std::string file = smallCollection({smallFont("A"), smallFont("B"), smallFont("A")});
    EXPECT_THAT(familiesInFile(file), ElementsAre("A", "B", "A"));
}

TEST(FamiliesInFile, AreEnglishWhereThereAreSeveralLanguages)
{
    const CFontName german = {3, 1, 0x407, kFamily, std::string("\0Z", 2)};
    const CFontName old = macintoshName(kFamily, "Old");
    EXPECT_THAT(familiesInFile(fontNamed({german, windowsName(kFamily, "Rooms"), old})),
                ElementsAre("Rooms"));
}

TEST(FamiliesInFile, AreTakenFromAnyPlatformThatHasSome)
{
    EXPECT_THAT(familiesInFile(fontNamed({macintoshName(kFamily, "Old Rooms")})),
                ElementsAre("Old Rooms"));
}

TEST(FamiliesInFile, CanBeInAnyScript)
{
    const CFontName name = {3, 1, 0x411, kFamily, "\x66\x0e\x67\x1d"};
    EXPECT_THAT(familiesInFile(fontNamed({name})), ElementsAre(QString::fromUtf8("明朝")));
}

TEST(FamiliesInFile, AreShortenedToWhatAChartKeeps)
{
    const auto families = familiesInFile(smallFont(std::string(300, 'x')));
    EXPECT_THAT(families, ElementsAre(QString(256, QLatin1Char('x'))));
}

TEST(FamiliesInFile, AreNoneWhereAFontHasNoName)
{
    EXPECT_THAT(familiesInFile(fontNamed({})), IsEmpty());
    EXPECT_THAT(familiesInFile(smallFont("  ")), IsEmpty());
}

TEST(FamiliesInFile, AreNoneWhereANameLiesBeyondTheEnd)
{
    CFontName name = windowsName(kFamily, "Rooms");
    const std::string file = fontNamed({name});
    EXPECT_THAT(familiesInFile(file.substr(0, file.size() - 8)), IsEmpty());
}

TEST(FamiliesInFile, AreNoneWhereOneFontOfACollectionIsBroken)
{
    const std::string broken = replaced(smallFont("B"), "glyf", "flyg");
    EXPECT_THAT(familiesInFile(smallCollection({smallFont("A"), broken})), IsEmpty());
}

TEST(FamiliesInFile, AreNoneInACollectionOfNothing)
{
    EXPECT_THAT(familiesInFile(smallCollection({})), IsEmpty());
}

class FileThatIsNoFont : public ::testing::TestWithParam<std::string>
{};

TEST_P(FileThatIsNoFont, HasNoFamilies)
{
    EXPECT_THAT(familiesInFile(GetParam()), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Files, FileThatIsNoFont,
                         ::testing::Values("", "t", "true", "ttcf", "OTTO\xff\xff", "%PDF-1.7\n",
                                           std::string(4096, '\xff'), std::string(4096, '\0'),
                                           "ttcf" + std::string(8, '\xff'),
                                           replaced(smallFont("A"), "head", "xxxx"),
                                           replaced(smallFont("A"), "cmap", "xxxx"),
                                           replaced(smallFont("A"), "maxp", "xxxx"),
                                           replaced(smallFont("A"), "name", "xxxx")));

TEST(FontFile, NeedsASensibleNumberOfUnits)
{
    CSmallFont font{{windowsName(kFamily, "A")}};
    for (const int units : {0, 15, 16385, 65535}) {
        font.unitsPerEm = units;
        EXPECT_THAT(familiesInFile(smallFont(font)), IsEmpty()) << units;
    }
}

TEST(FontFile, CanBeCutAnywhere)
{
    const std::string file = smallCollection({smallFont("A"), smallFont("B")});
    for (std::size_t size = 0; size < file.size(); ++size)
        EXPECT_LE(familiesInFile(std::string_view(file).substr(0, size)).size(), 2U);
}

TEST(RenamedFile, HasTheOtherNames)
{
    const std::string file = smallCollection({smallFont("A"), smallFont("B")});
    EXPECT_THAT(familiesInFile(viewOf(renamedFile(file, {"X", "Y"}))), ElementsAre("X", "Y"));
}

TEST(RenamedFile, CanBeRenamedAgain)
{
    const QByteArray once = renamedFile(smallFont("A"), {"B"});
    EXPECT_THAT(familiesInFile(viewOf(renamedFile(viewOf(once), {"C"}))), ElementsAre("C"));
}

TEST(RenamedFile, DiffersInTheDirectoryAloneUpToTheNewTable)
{
    const std::string file = smallFont("A");
    const std::string renamed = renamedFile(file, {"B"}).toStdString();
    const std::size_t directory = 12 + 8 * 16;
    EXPECT_EQ(renamed.substr(directory, file.size() - directory), file.substr(directory));
}

} // namespace
} // namespace tovangl
