// SPDX-License-Identifier: MIT
// What the ids of a picture begin with.
#include "svg/picture_id.h"

#include <cstdint>

namespace tovangl {

namespace {

constexpr char kStandIn = '\1';
constexpr char kFirstLetter = 't'; // an id that began with a digit would have to be escaped
constexpr std::size_t kIdLength = 9;
constexpr int kBitsPerDigit = 4;
constexpr std::uint64_t kDigitMask = 0xf;

// The 64-bit hash of Fowler, Noll and Vo.
std::uint64_t hashOf(const std::string& text)
{
    constexpr std::uint64_t kStart = 0xcbf29ce484222325;
    constexpr std::uint64_t kPrime = 0x100000001b3;
    std::uint64_t hash = kStart;
    for (const char byte : text)
        hash = (hash ^ static_cast<unsigned char>(byte)) * kPrime;
    return hash ^ hash >> 32; // all of it counts in the digits that are used
}

std::string idOf(const std::string& picture)
{
    std::uint64_t hash = hashOf(picture);
    std::string id(kIdLength, kFirstLetter);
    for (std::size_t i = 1; i < kIdLength; ++i) {
        id[i] = "0123456789abcdef"[hash & kDigitMask];
        hash >>= kBitsPerDigit;
    }
    return id;
}

} // namespace

std::string pictureId()
{
    return std::string(kIdLength, kStandIn);
}

void setPictureId(std::string& picture)
{
    const std::string id = idOf(picture);
    const std::string standIn = pictureId();
    for (std::size_t at = picture.find(standIn); at != std::string::npos;
         at = picture.find(standIn, at + id.size()))
        picture.replace(at, id.size(), id);
}

} // namespace tovangl
