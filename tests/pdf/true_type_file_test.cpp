// SPDX-License-Identifier: MIT
#include "pdf/true_type_file.h"

#include <cstdint>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

CFontGlyph triangle()
{
    return {{{{0, 0, true}, {500, 1000, true}, {1000, -200, true}}}, 1100};
}

CFontBox boxOf(const std::vector<CFontGlyph>& glyphs)
{
    CFontBox box;
    for (const CFontGlyph& glyph : glyphs)
        widen(box, glyph.contours);
    return box;
}

std::string fileOf(const std::vector<CFontGlyph>& glyphs)
{
    return trueTypeFile(boxOf(glyphs), glyphs);
}

std::uint32_t numberAt(const std::string& file, std::size_t offset, int bytes)
{
    std::uint32_t value = 0;
    for (int i = 0; i < bytes; ++i)
        value = value << 8 | static_cast<unsigned char>(file[offset + static_cast<std::size_t>(i)]);
    return value;
}

// Where a table begins: 0 where there is none.
std::size_t tableOffset(const std::string& file, const std::string& tag)
{
    constexpr std::size_t kList = 12;
    constexpr std::size_t kEntry = 16;
    for (std::size_t i = 0; i < numberAt(file, 4, 2); ++i) {
        if (file.compare(kList + i * kEntry, tag.size(), tag) == 0)
            return numberAt(file, kList + i * kEntry + 8, 4);
    }
    return 0;
}

TEST(TrueTypeFile, HasTheTablesThatADocumentNeeds)
{
    const std::string file = fileOf({triangle()});
    for (const char* tag : {"glyf", "head", "hhea", "hmtx", "loca", "maxp"})
        EXPECT_NE(tableOffset(file, tag), 0u) << tag;
}

TEST(TrueTypeFile, ItsNumbersAddUpToTheSumOfEveryFont)
{
    const std::string file = fileOf({triangle(), {{}, 300}, triangle()});
    ASSERT_EQ(file.size() % 4, 0u);
    std::uint32_t sum = 0;
    for (std::size_t i = 0; i < file.size(); i += 4)
        sum += numberAt(file, i, 4);
    EXPECT_EQ(sum, 0xb1b0afbau);
}

TEST(TrueTypeFile, TellsHowFarLettersReachAboveAndBelowTheBaseline)
{
    CFontBox box = boxOf({triangle()});
    box.ascent = 900;
    box.descent = 200;
    const std::string file = trueTypeFile(box, {triangle()});
    const std::size_t heights = tableOffset(file, "hhea");
    EXPECT_EQ(numberAt(file, heights + 4, 2), 900U);
    EXPECT_EQ(numberAt(file, heights + 6, 2), 0x10000U - 200U);
}

TEST(TrueTypeFile, AGlyphTellsItsBoxAndItsCorners)
{
    const std::string file = fileOf({triangle()});
    const std::size_t glyph = tableOffset(file, "glyf");
    EXPECT_EQ(numberAt(file, glyph, 2), 1u); // contour
    EXPECT_EQ(numberAt(file, glyph + 2, 2), 0u);
    EXPECT_EQ(static_cast<std::int16_t>(numberAt(file, glyph + 4, 2)), -200);
    EXPECT_EQ(numberAt(file, glyph + 6, 2), 1000u);
    EXPECT_EQ(numberAt(file, glyph + 8, 2), 1000u);
    EXPECT_EQ(numberAt(file, glyph + 10, 2), 2u); // the last corner
}

TEST(TrueTypeFile, ASpaceHasAWidthAndNoOutline)
{
    const std::string file = fileOf({triangle(), {{}, 300}});
    const std::size_t places = tableOffset(file, "loca");
    EXPECT_EQ(numberAt(file, places + 4, 4), numberAt(file, places + 8, 4));
    EXPECT_EQ(numberAt(file, tableOffset(file, "hmtx") + 4, 2), 300u);
}

TEST(TrueTypeFile, TheBoxOfTheFontHoldsAllGlyphs)
{
    const CFontBox box = boxOf({triangle(), {{{{-50, 10, true}, {20, 1200, true}}}, 0}});
    EXPECT_EQ(box.left, -50);
    EXPECT_EQ(box.bottom, -200);
    EXPECT_EQ(box.right, 1000);
    EXPECT_EQ(box.top, 1200);
}

TEST(TrueTypeFile, AnOutlineFarFromTheBaselineHasItsOwnBox)
{
    const CFontBox box = boxOf({{{{{300, 700, true}, {400, 800, true}}}, 0}});
    EXPECT_EQ(box.left, 300);
    EXPECT_EQ(box.bottom, 700);
}

} // namespace
} // namespace tovangl
