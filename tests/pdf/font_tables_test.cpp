// SPDX-License-Identifier: MIT
#include "pdf/font_tables.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

struct CPermissionCase
{
    unsigned char high;
    unsigned char low;
    bool isAllowed;
};

class FontPermission : public testing::TestWithParam<CPermissionCase>
{};

TEST_P(FontPermission, IsReadFromTheTable)
{
    QByteArray table(10, '\0');
    table[8] = static_cast<char>(GetParam().high);
    table[9] = static_cast<char>(GetParam().low);
    EXPECT_EQ(allowsEmbedding(table), GetParam().isAllowed);
}

// Anything; restricted; preview and print, also beside the restriction; editing; bitmaps only.
INSTANTIATE_TEST_SUITE_P(Flags, FontPermission,
                         testing::Values(CPermissionCase{0, 0, true}, CPermissionCase{0, 2, false},
                                         CPermissionCase{0, 4, true}, CPermissionCase{0, 6, true},
                                         CPermissionCase{0, 8, true},
                                         CPermissionCase{2, 0, false}));

TEST(FontPermission, IsThereWhereAFontDoesNotSay)
{
    EXPECT_TRUE(allowsEmbedding(QByteArray()));
    EXPECT_TRUE(allowsEmbedding(QByteArray(9, '\x02')));
}

// A table with one name of a kind, whose text stands right behind it.
QByteArray nameTable(char kind, char length, const char* text)
{
    const char head[] = {0, 0, 0, 1, 0, 18, 0, 3, 0, 1, 4, 9, 0, kind, 0, length, 0, 0};
    return QByteArray(head, sizeof head) + text;
}

TEST(PostScriptName, IsTheNameOfItsKind)
{
    EXPECT_EQ(postScriptName(nameTable(6, 5, "Serif")), QByteArray("Serif"));
}

TEST(PostScriptName, IsEmptyWhereThereAreOtherNamesAlone)
{
    EXPECT_EQ(postScriptName(nameTable(1, 5, "Serif")), QByteArray());
}

TEST(PostScriptName, IsEmptyWhereTheTableIsCut)
{
    EXPECT_EQ(postScriptName(nameTable(6, 100, "Serif")), QByteArray());
    EXPECT_EQ(postScriptName(QByteArray("\0\0\xff\xff", 4)), QByteArray());
    EXPECT_EQ(postScriptName(QByteArray()), QByteArray());
}

} // namespace
} // namespace tovangl
