// SPDX-License-Identifier: MIT
// Fonts that the host brings along. They stay for the process, so that each test has its own
// family.
#include "process/CAddedFonts.h"
#include "support/host_pictures.h"
#include "support/small_font.h"
#include <tovangl/tovangl.h>

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace tovangl {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kRealFile = "/usr/share/fonts/truetype/dejavu/DejaVuSerif.ttf";
constexpr int kWide = 900; // units

std::vector<std::string> addBytes(const std::string& file)
{
    return addFont(reinterpret_cast<const unsigned char*>(file.data()), file.size());
}

std::string wideFont(const std::string& family, bool isBold = false)
{
    CSmallFont font{{windowsName(1, family), windowsName(2, isBold ? "Bold" : "Regular")}};
    font.glyphWidth = kWide;
    font.isBold = isBold;
    return smallFont(font);
}

QImage pictureIn(const std::string& family, bool isBold = false)
{
    PieGraph pie(false);
    pie.setFont(family, 12);
    pie.setProperty(PieGraph::DefaultProperties | (isBold ? PieGraph::BoldLabels : 0));
    pie.addItem(3, "caption");
    return render(pie);
}

TEST(AddFont, TellsTheFamiliesOfAFile)
{
    EXPECT_THAT(addFont(kRealFile), ElementsAre("DejaVu Serif"));
}

TEST(AddFont, TellsEachFamilyOfACollectionOnce)
{
    const std::string a = smallFont("Collected A");
    EXPECT_THAT(addBytes(smallCollection({a, wideFont("Collected A", true), smallFont("B")})),
                ElementsAre("Collected A", "B"));
}

TEST(AddFont, TellsTheSameWhereTheFileIsThereAlready)
{
    const std::string file = smallFont("Added Twice");
    EXPECT_EQ(addBytes(file), addBytes(file));
}

TEST(AddFont, MakesTheFamilyUsable)
{
    const QImage before = pictureIn("Usable");
    addBytes(wideFont("Usable"));
    EXPECT_NE(pictureIn("Usable"), before);
}

TEST(AddFont, TakesAFamilyInAnyCase)
{
    addBytes(wideFont("Upper And Lower"));
    EXPECT_EQ(pictureIn("UPPER and LOWER"), pictureIn("Upper And Lower"));
}

TEST(AddFont, PutsAnAddedFamilyBeforeTheOthersOfAList)
{
    addBytes(wideFont("Second In A List"));
    EXPECT_EQ(pictureIn("DejaVu Sans, Second In A List"), pictureIn("Second In A List"));
}

TEST(AddFont, TakesAFamilyWithACommaInItsName)
{
    addBytes(wideFont("Smith, Wide"));
    addBytes(wideFont("Jones"));
    EXPECT_EQ(pictureIn("Smith, Wide"), pictureIn("Jones"));
    EXPECT_EQ(pictureIn("smith, wide"), pictureIn("Jones"));
    EXPECT_NE(pictureIn("Smith"), pictureIn("Jones"));
}

TEST(AddFont, PutsAnAddedFamilyBeforeTheInstalledOneOfItsName)
{
    const QImage installed = pictureIn("Tahoma");
    const QImage installedBold = pictureIn("Tahoma", true);
    addBytes(wideFont("Tahoma"));
    EXPECT_NE(pictureIn("Tahoma"), installed);
    EXPECT_NE(pictureIn("Tahoma", true), installedBold);
}

TEST(AddFont, LeavesOtherFamiliesAsTheyAre)
{
    const QImage before = pictureIn("DejaVu Sans Not Added");
    addBytes(wideFont("One More"));
    EXPECT_EQ(pictureIn("DejaVu Sans Not Added"), before);
}

TEST(AddFont, GivesAFamilyItsBoldFileAfterAChartHasUsedIt)
{
    const std::string regular = smallFont("Late Bold");
    addBytes(regular);
    const QImage before = pictureIn("Late Bold", true);
    const QImage plain = pictureIn("Late Bold");
    EXPECT_THAT(addBytes(wideFont("Late Bold", true)), ElementsAre("Late Bold"));
    EXPECT_NE(pictureIn("Late Bold", true), before);
    EXPECT_EQ(pictureIn("Late Bold"), plain);
}

TEST(AddFont, KeepsTheFamiliesOfACollectionOfWhichOneGetsItsBoldFile)
{
    addBytes(smallCollection({smallFont("Collected C"), smallFont("Collected D")}));
    const QImage plain = pictureIn("Collected C");
    addBytes(wideFont("Collected C", true));
    EXPECT_EQ(pictureIn("Collected C"), plain);
}

// A host can add its fonts before each chart.
TEST(AddFont, KeepsAFileOnce)
{
    const std::string file = smallFont("Added Before Each Chart");
    const auto drawnIn = [] {
        return CAddedFonts::ofProcess().qtFamily(QStringLiteral("Added Before Each Chart"));
    };
    addBytes(file);
    const QString family = drawnIn();
    addBytes(file);
    EXPECT_EQ(drawnIn(), family);
}

TEST(AddFont, TakesNoCharacterFromAnotherFamily)
{
    addBytes(wideFont("Ascii Only"));
    PieGraph one(false);
    PieGraph other(false);
    one.setFont("Ascii Only", 12);
    other.setFont("Ascii Only", 12);
    one.addItem(3, "\xd0\x96");
    other.addItem(3, "\xd0\xaf");
    EXPECT_EQ(render(one), render(other));
}

TEST(AddFont, KeepsTheFontIfTheFileGoes)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("font.ttf");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(wideFont("From A File")));
    file.close();
    EXPECT_THAT(addFont(path.toStdString()), ElementsAre("From A File"));
    file.remove();
    EXPECT_NE(pictureIn("From A File"), pictureIn("Not From A File"));
}

TEST(AddFont, TellsNothingWhereThereIsNoFont)
{
    EXPECT_THAT(addFont(nullptr, 0), IsEmpty());
    EXPECT_THAT(addFont(nullptr, 100), IsEmpty());
    EXPECT_THAT(addBytes(""), IsEmpty());
    EXPECT_THAT(addBytes("this is a text"), IsEmpty());
}

TEST(AddFont, ReadsNothingButRegularFiles)
{
    const QTemporaryDir folder;
    const std::string pipe = folder.filePath("pipe").toStdString();
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    for (const std::string& path :
         {std::string(), std::string("/nonexistent"), std::string("/"), std::string("/dev/zero"),
          pipe, std::string(kRealFile) + std::string(1, '\0')})
        EXPECT_THAT(addFont(path), IsEmpty()) << path;
}

TEST(UsedFontFamily, IsTheAddedOneByItsOwnName)
{
    addBytes(smallFont("Own Name"));
    EXPECT_EQ(usedFontFamily("own name"), "Own Name");
}

TEST(UsedFontFamily, IsTheOneThatReplacesAnother)
{
    EXPECT_NE(usedFontFamily("No Such Family"), "No Such Family");
    EXPECT_NE(usedFontFamily("No Such Family"), "");
}

TEST(Platform, IsTheOneWithoutADisplay)
{
    EXPECT_EQ(platformName(), "offscreen");
}

} // namespace
} // namespace tovangl
