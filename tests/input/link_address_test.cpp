// SPDX-License-Identifier: MIT
// The addresses that an item can lead to.
#include "input/link_address.h"

#include <gtest/gtest.h>
#include <string>

namespace tovangl {
namespace {

TEST(LinkAddress, IsAPageAMailOrAPlace)
{
    for (const char* address : {"http://example.org", "https://example.org/a?b=c:d#e",
                                "HTTPS://EXAMPLE.ORG", "mailto:someone@example.org", "page.html",
                                "a/b:c", "../up", "/top", "?query=a:b", "#item-1", "./javascript:x",
                                "gr\xc3\xb6\xc3\x9f"
                                "e.html"})
        EXPECT_TRUE(isLinkAddress(address)) << address;
}

TEST(LinkAddress, HasNoOtherScheme)
{
    for (const char* address :
         {"javascript:alert(1)", "JavaScript:alert(1)", "vbscript:x", "data:text/html,x", "file:/x",
          "ftp://example.org", "about:blank", ":", ":x", "blob:x", "ht tp:x"})
        EXPECT_FALSE(isLinkAddress(address)) << address;
}

TEST(LinkAddress, HoldsNothingThatReadersLeaveOut)
{
    for (const char* address :
         {"java\tscript:alert(1)", "java\nscript:alert(1)", " javascript:alert(1)", "a b",
          "\x01"
          "a",
          "a\x7f", "\xe2\x80\x8bjavascript:x",
          "a\xc2\xa0"
          "b",
          "\xef\xbb\xbfhttps://example.org", "\xef\xbb\xbfpage.html", "a\xe2\x80\xae"})
        EXPECT_FALSE(isLinkAddress(address)) << address;
    EXPECT_FALSE(isLinkAddress(std::string("a\0b", 3)));
}

TEST(LinkAddress, StaysWithTheSchemeOfThePage)
{
    for (const char* address : {"//example.org", "\\\\example.org", "/\\example.org",
                                "\\/example.org", "\xef\xbb\xbf//example.org"})
        EXPECT_FALSE(isLinkAddress(address)) << address;
}

TEST(LinkAddress, IsNotEmptyAndNotEndless)
{
    constexpr std::size_t kLongest = 8192;
    EXPECT_FALSE(isLinkAddress(""));
    EXPECT_TRUE(isLinkAddress(std::string(kLongest, 'a')));
    EXPECT_FALSE(isLinkAddress(std::string(kLongest + 1, 'a')));
}

} // namespace
} // namespace tovangl
