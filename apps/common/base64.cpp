// SPDX-License-Identifier: MIT
// Encodes bytes for use in a URL.
#include "common/base64.h"

#include <algorithm>
#include <cstdint>

namespace tovangl::program {

namespace {

constexpr std::string_view kAlphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr char kFiller = '=';
constexpr std::size_t kBytes = 3; // that become a group of
constexpr std::size_t kCharacters = 4;

// One to three bytes; missing ones count as 0.
void appendGroup(std::string& text, std::string_view bytes)
{
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < kBytes; ++i)
        bits = bits << 8U | (i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U);
    for (std::size_t i = 0; i < kCharacters; ++i)
        text += i <= bytes.size() ? kAlphabet[bits >> (18U - 6U * i) & 0x3fU] : kFiller;
}

} // namespace

std::string encodeBase64(std::string_view bytes)
{
    std::string text;
    text.reserve((bytes.size() + kBytes - 1) / kBytes * kCharacters);
    for (; !bytes.empty(); bytes.remove_prefix(std::min(kBytes, bytes.size())))
        appendGroup(text, bytes.substr(0, kBytes));
    return text;
}

} // namespace tovangl::program
