// SPDX-License-Identifier: MIT
#include "text/one_line.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

TEST(OneLine, KeepsATextThatIsOneLine)
{
    EXPECT_EQ(oneLine("Sales, 2019 – 2024"), QString("Sales, 2019 – 2024"));
}

TEST(OneLine, MakesSpacesOfLineBreaksAndControlCharacters)
{
    EXPECT_EQ(oneLine("a\nb\r\nc\td\x01"
                      "e\x7f"
                      "f"),
              QString("a b c d e f"));
    EXPECT_EQ(oneLine(QString("a") + QChar(0) + 'b' + QChar(0x9c) + 'c'), QString("a b c"));
}

TEST(OneLine, MakesSpacesOfUnicodesLineAndParagraphSeparators)
{
    EXPECT_EQ(oneLine(QString("a") + QChar(0x2028) + 'b' + QChar(0x2029) + 'c'), QString("a b c"));
}

TEST(OneLine, HasNoSpacesAtItsEndsAndNoneInARow)
{
    EXPECT_EQ(oneLine("  a   b  "), QString("a b"));
    EXPECT_EQ(oneLine(" \n\t "), QString());
}

TEST(OneLine, KeepsJoinersAndMarksOfReadingDirection)
{
    const QString text = QString("a") + QChar(0x200d) + 'b' + QChar(0x202e) + 'c';
    EXPECT_EQ(oneLine(text), text);
}

} // namespace
} // namespace tovangl
