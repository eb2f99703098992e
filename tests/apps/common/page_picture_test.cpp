// SPDX-License-Identifier: MIT
#include "common/page_picture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tovangl::program {
namespace {

using ::testing::HasSubstr;

TEST(MappedPicture, NamesItsDensePictureIfThereIsOne)
{
    const CImageMap map("regions");
    MappedPicture picture{"a.png", "", 80, 60, "A chart."};
    EXPECT_THAT(mappedPictureHtml(picture, map),
                HasSubstr("<img src=\"a.png\" width=\"80\" height=\"60\" usemap=\"#regions\""));
    picture.sourceSet = denseSource("b.png", 2);
    EXPECT_THAT(mappedPictureHtml(picture, map),
                HasSubstr("<img src=\"a.png\" srcset=\"b.png 2x\" width=\"80\""));
}

TEST(EmbeddedSvg, ScrollsInTheSameBoxAsAPictureOfPixels)
{
    EXPECT_EQ(embeddedSvgHtml("<svg/>"), "<div class=\"picture\"><svg/></div>\n");
    EXPECT_THAT(mappedPictureHtml({"a.png", "", 80, 60, "A chart."}, CImageMap("regions")),
                HasSubstr("<div class=\"picture\"><img "));
}

} // namespace
} // namespace tovangl::program
