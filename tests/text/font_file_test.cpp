// SPDX-License-Identifier: MIT
#include "support/small_font.h"
#include "text/font_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <numeric>

namespace tovangl {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

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

// Of old Macintosh computers, of Unicode, and of a platform that nobody knows.
TEST(FamiliesInFile, ArePreferablyThoseWhoseLettersAreCertain)
{
    const CFontName old = macintoshName(kFamily, "Old");
    const CFontName unicode = {0, 3, 0, kFamily, std::string("\0U", 2)};
    const CFontName unknown = {4, 0, 0, kFamily, std::string("\0X", 2)};
    EXPECT_THAT(familiesInFile(fontNamed({old, unicode})), ElementsAre("U"));
    EXPECT_THAT(familiesInFile(fontNamed({unknown, old})), ElementsAre("Old"));
    EXPECT_THAT(familiesInFile(fontNamed({unknown})), IsEmpty());
}

TEST(FamiliesInFile, AreTheFirstOfSeveralThatAreAsGood)
{
    const CFontName german = {3, 1, 0x407, kFamily, std::string("\0Z", 2)};
    const CFontName french = {3, 1, 0x40c, kFamily, std::string("\0C", 2)};
    EXPECT_THAT(familiesInFile(fontNamed({german, french})), ElementsAre("Z"));
}

TEST(FamiliesInFile, HaveNoHalfCharacters)
{
    const CFontName odd = {3, 1, 0x409, kFamily, std::string("\0R\0", 3)};
    EXPECT_THAT(familiesInFile(fontNamed({odd, macintoshName(2, "Bold")})), ElementsAre("R"));
    const CFontName halfPair = {3, 1, 0x409, kFamily, std::string("\xd8\0\0R", 4)};
    const QString whole = familiesInFile(fontNamed({halfPair})).at(0);
    EXPECT_EQ(whole, QString::fromUtf8(whole.toUtf8()));
}

TEST(FamiliesInFile, AreWhereTheTableSaysThatItsTextsAre)
{
    const std::string file = fontNamed({windowsName(kFamily, "Rooms"), windowsName(2, "Bold")});
    const std::string twoNames("\0\0\0\2\0\x1e", 6);
    const std::string oneName("\0\0\0\1\0\x1e", 6);
    EXPECT_THAT(familiesInFile(replaced(file, twoNames, oneName)), ElementsAre("Rooms"));
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

TEST(FamiliesInFile, AreNoneInACollectionOfTooManyFonts)
{
    const std::vector<std::string> fonts(256, smallFont("A"));
    EXPECT_THAT(familiesInFile(smallCollection(fonts)), SizeIs(256));
    std::vector<std::string> more = fonts;
    more.push_back(smallFont("B"));
    EXPECT_THAT(familiesInFile(smallCollection(more)), IsEmpty());
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

TEST(FontFile, CanHaveOutlinesOfAnyKind)
{
    const std::string file = smallFont("A");
    for (const char* outlines : {"CFF ", "CFF2"})
        EXPECT_THAT(familiesInFile(replaced(file, "glyf", outlines)), ElementsAre("A")) << outlines;
    for (const char* kind : {"true", "OTTO"})
        EXPECT_THAT(familiesInFile(kind + file.substr(4)), ElementsAre("A")) << kind;
}

TEST(FontFile, NeedsASensibleNumberOfUnits)
{
    CSmallFont font{{windowsName(kFamily, "A")}};
    for (const int units : {0, 15, 16385, 65535}) {
        font.unitsPerEm = units;
        EXPECT_THAT(familiesInFile(smallFont(font)), IsEmpty()) << units;
    }
    for (const int units : {16, 16384}) {
        font.unitsPerEm = units;
        EXPECT_THAT(familiesInFile(smallFont(font)), ElementsAre("A")) << units;
    }
}

std::string fontMapping(const std::string& characterMap)
{
    CSmallFont font{{windowsName(kFamily, "A")}};
    font.characterMap = characterMap;
    return smallFont(font);
}

std::string numbers(std::size_t bytes, const std::vector<std::uint32_t>& values)
{
    std::string text;
    for (const std::uint32_t value : values) {
        for (std::size_t byte = bytes; byte > 0; --byte)
            text += static_cast<char>(value >> 8 * (byte - 1) & 0xff);
    }
    return text;
}

// A map of 16-bit characters, in the order of its last ones.
std::string segments(const std::vector<std::uint32_t>& lasts)
{
    const auto length = static_cast<std::uint32_t>(2 * lasts.size());
    return numbers(2, {4, 0, 0, length, 0, 0, 0}) + numbers(2, lasts) + std::string(2, '\0') +
           numbers(2, lasts) + std::string(2 * length, '\0');
}

std::vector<std::uint32_t> falling(std::size_t count)
{
    std::vector<std::uint32_t> values(count);
    std::iota(values.rbegin(), values.rend(), 0x20);
    return values;
}

class FontMapping : public ::testing::TestWithParam<std::string>
{};
class FontMappingTooMuch : public FontMapping
{};

TEST_P(FontMapping, HasAFamily)
{
    EXPECT_THAT(familiesInFile(fontMapping(GetParam())), ElementsAre("A"));
}

// Qt and fontconfig would go through all characters of the map, for minutes.
TEST_P(FontMappingTooMuch, CountsAsNoFont)
{
    EXPECT_THAT(familiesInFile(fontMapping(GetParam())), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Maps, FontMapping,
    ::testing::Values("", charactersFrom(0, 0x10ffff), charactersFrom('~', ' '),
                      numbers(2, {10, 0, 0, 20, 0, 0, 0, 32, 0, 1}),
                      segments({0x7e, 0x3000, 0xffff}), segments({0xffff, 0x7e}),
                      numbers(2, {14}) + numbers(4, {21, 1}) + std::string(11, '\0')));

INSTANTIATE_TEST_SUITE_P(
    Maps, FontMappingTooMuch,
    ::testing::Values(charactersFrom(0, 0xffffffff), charactersFrom(0, 0x110000),
                      charactersFrom(0x110000, 0x7fffffff),
                      numbers(2, {8, 0}) + std::string(8200, '\0') +
                          numbers(4, {1, 0, 0xfffffff0, 1}),
                      numbers(2, {10, 0}) + numbers(4, {20, 0, 32, 0x80000000}),
                      segments(falling(1000)),
                      numbers(2, {14}) + numbers(4, {29, 1}) + std::string(3, '\0') +
                          numbers(4, {21, 0, 0x80000000})));

TEST(FontFile, CountsTheCharactersOfAllFontsOfACollection)
{
    const std::string font = fontMapping(charactersFrom(0, 0x10ffff));
    EXPECT_EQ(familiesInFile(smallCollection(std::vector<std::string>(17, font))).size(), 17U);
    EXPECT_THAT(familiesInFile(smallCollection(std::vector<std::string>(18, font))), IsEmpty());
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

TEST(RenamedFile, HasTheNewTableAtAMultipleOfFour)
{
    const std::string renamed = renamedFile(smallFont("A") + "x", {"B"}).toStdString();
    const std::size_t offset = renamed.find("name") + 8;
    EXPECT_EQ(renamed[offset + 3] % 4, 0);
    EXPECT_THAT(familiesInFile(renamed), ElementsAre("B"));
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
