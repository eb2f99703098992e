// SPDX-License-Identifier: MIT
#include "common/base64.h"

#include <gtest/gtest.h>

namespace tovangl::program {
namespace {

TEST(Base64, EncodesTheVectorsOfTheRfc)
{
    EXPECT_EQ(encodeBase64(""), "");
    EXPECT_EQ(encodeBase64("f"), "Zg==");
    EXPECT_EQ(encodeBase64("fo"), "Zm8=");
    EXPECT_EQ(encodeBase64("foo"), "Zm9v");
    EXPECT_EQ(encodeBase64("foob"), "Zm9vYg==");
    EXPECT_EQ(encodeBase64("fooba"), "Zm9vYmE=");
    EXPECT_EQ(encodeBase64("foobar"), "Zm9vYmFy");
}

TEST(Base64, TakesBytesOfAnyValue)
{
    using namespace std::string_view_literals;
    EXPECT_EQ(encodeBase64("\x00\xff\xfe\xfb"sv), "AP/++w==");
}

} // namespace
} // namespace tovangl::program
