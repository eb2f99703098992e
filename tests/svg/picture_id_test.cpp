// SPDX-License-Identifier: MIT
// What the ids of a picture begin with.
#include "svg/picture_id.h"

#include <gmock/gmock.h>
#include <set>

namespace tovangl {
namespace {

using ::testing::MatchesRegex;

std::string withId(std::string picture)
{
    setPictureId(picture);
    return picture;
}

TEST(PictureId, StandsWhereverThePictureNamesIt)
{
    const std::string picture = withId('a' + pictureId() + 'b' + pictureId() + 'c');
    EXPECT_THAT(picture, MatchesRegex("at[0-9a-f]{8}bt[0-9a-f]{8}c"));
    EXPECT_EQ(picture.substr(1, 9), picture.substr(11, 9));
}

TEST(PictureId, IsTheSameForEqualPictures)
{
    EXPECT_EQ(withId("a" + pictureId()), withId("a" + pictureId()));
}

TEST(PictureId, DiffersWhereverPicturesDo)
{
    EXPECT_NE(withId("a" + pictureId()).substr(1), withId("b" + pictureId()).substr(1));
    EXPECT_NE(withId(pictureId() + "a").substr(0, 9), withId(pictureId() + "b").substr(0, 9));
}

// A page can hold thousands of pictures.
TEST(PictureId, OfTenThousandPicturesIsTenThousandIds)
{
    constexpr std::size_t kPictures = 10000;
    std::set<std::string> ids;
    for (std::size_t i = 0; i < kPictures; ++i)
        ids.insert(withId(pictureId() + std::to_string(i)).substr(0, pictureId().size()));
    EXPECT_EQ(ids.size(), kPictures);
}

} // namespace
} // namespace tovangl
