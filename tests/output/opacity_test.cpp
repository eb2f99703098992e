// SPDX-License-Identifier: MIT
#include "output/opacity.h"
#include "output/random_pictures.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

TEST(Opacity, OfAColourIsItsAlpha)
{
    EXPECT_TRUE(isOpaque(qRgb(0, 0, 0)));
    EXPECT_FALSE(isOpaque(qRgba(255, 255, 255, 254)));
    EXPECT_FALSE(isOpaque(qRgba(255, 255, 255, 0)));
}

TEST(Opacity, OfAPictureIsThatOfAllItsPixels)
{
    const QImage picture = noise(1, 21, 5);
    EXPECT_TRUE(isOpaque(picture));
    for (const QPoint place : {QPoint(0, 0), QPoint(20, 0), QPoint(9, 2), QPoint(20, 4)}) {
        QImage changed = picture;
        changed.setPixel(place, qRgba(1, 2, 3, 127));
        EXPECT_FALSE(isOpaque(changed)) << place.x();
    }
}

} // namespace
} // namespace tovangl
