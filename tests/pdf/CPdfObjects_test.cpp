// SPDX-License-Identifier: MIT
#include "pdf/CPdfObjects.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

std::string toString(const CPictureFile& file)
{
    return {reinterpret_cast<const char*>(file.data.get()), file.size};
}

TEST(CPdfObjects, NumbersCountFromOne)
{
    CPdfObjects objects;
    EXPECT_EQ(objects.add("1"), 1);
    EXPECT_EQ(objects.reserve(), 2);
    EXPECT_EQ(objects.add("3"), 3);
}

TEST(CPdfObjects, AReservedNumberCanBeWrittenLater)
{
    CPdfObjects objects;
    const int first = objects.reserve();
    const int second = objects.add("<</Other 1 0 R>>");
    objects.write(first, "(first)");
    EXPECT_THAT(toString(objects.finish(second, first)), HasSubstr("1 0 obj\n(first)\nendobj\n"));
}

TEST(CPdfObjects, TheTableTellsWhereEachObjectBegins)
{
    CPdfObjects objects;
    objects.add("null");
    const int last = objects.add("null");
    const std::string file = toString(objects.finish(last, last));
    const std::size_t entry = file.find("n \n", file.find("n \n") + 1) - 17;
    EXPECT_EQ(file.find("2 0 obj"), std::stoul(file.substr(entry, 10)));
}

TEST(CPdfObjects, TheFileEndsWithThePlaceOfTheTable)
{
    CPdfObjects objects;
    const int only = objects.add("null");
    const std::string file = toString(objects.finish(only, only));
    const std::size_t table = file.find("\nxref\n") + 1;
    EXPECT_THAT(file, StartsWith("%PDF-1.5\n"));
    EXPECT_THAT(file, HasSubstr("trailer\n<</Size 2/Root 1 0 R/Info 1 0 R>>"));
    EXPECT_THAT(file, EndsWith("startxref\n" + std::to_string(table) + "\n%%EOF\n"));
}

TEST(CPdfObjects, AStreamIsSmallerThanItsBytes)
{
    CPdfObjects objects;
    const int stream = objects.addStream("/Kind/Test", std::string(5000, 'x'));
    const std::string file = toString(objects.finish(stream, stream));
    EXPECT_THAT(file, HasSubstr("<</Kind/Test/Filter/FlateDecode/Length "));
    EXPECT_LT(file.size(), 500u);
}

} // namespace
} // namespace tovangl
