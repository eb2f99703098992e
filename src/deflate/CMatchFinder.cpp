// SPDX-License-Identifier: MIT
// Finds earlier bytes of a picture that the next ones repeat.
#include "deflate/CMatchFinder.h"

#include "deflate/deflate_codes.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace tovangl {

namespace {

// A distance to the left takes few bits, one to the row above more: shorter matches do not pay.
constexpr std::size_t kShortestToTheLeft = kShortestMatch;
constexpr std::size_t kShortestAbove = 4;

// Matches elsewhere take some twenty bits. With a key of five bytes the files of 620 charts were a
// fortieth larger, because there were more distances to tell apart.
constexpr std::size_t kKeyBytes = sizeof(std::uint64_t);
constexpr int kPlaceBits = 12; // 4,096 places; more or fewer change files by less than a thousandth
constexpr std::size_t kPlaces = std::size_t{1} << kPlaceBits;

// From here on a match is not worth looking for a longer one elsewhere.
constexpr std::size_t kLongEnough = 32;

std::uint64_t keyAt(const unsigned char* bytes)
{
    return qFromLittleEndian<std::uint64_t>(bytes);
}

// How many bytes two places have in common. Most matches are either short, or the longest. There
// are at least eight bytes to read.
std::size_t countEqual(const unsigned char* a, const unsigned char* b, std::size_t most)
{
    const bool isShort = keyAt(a) != keyAt(b);
    if (!isShort && most == kLongestMatch && std::memcmp(a, b, kLongestMatch) == 0)
        return kLongestMatch;
    std::size_t count = 0;
    while (count + kKeyBytes <= most && keyAt(a + count) == keyAt(b + count))
        count += kKeyBytes;
    while (count < most && a[count] == b[count])
        ++count;
    return count;
}

} // namespace

CMatchFinder::CMatchFinder(CByteRange bytes, CRowShape shape)
    : m_bytes(bytes)
    , m_shape(shape)
    , m_places(kPlaces)
{}

CToken CMatchFinder::tokenAt(std::size_t position)
{
    const CToken byte{0, m_bytes.data[position]};
    if (m_bytes.size - position <= kKeyBytes)
        return byte;
    CMatch match = continuation(position);
    if (match.length == 0)
        match = search(position);
    m_going = match.length == kLongestMatch ? match.distance : 0;
    if (match.length == 0)
        return byte;
    return {static_cast<std::uint16_t>(match.length), static_cast<std::uint16_t>(match.distance)};
}

// What repeated the row above, or the pixel on the left, for the longest match mostly goes on doing
// so. Looking there first saves a third of the instructions in large pictures of bars. The pixel on
// the left goes before the row above, because its distance takes fewer bits.
CMatchFinder::CMatch CMatchFinder::continuation(std::size_t position) const
{
    if (m_going == 0)
        return {};
    for (const std::size_t distance : {m_shape.pixelBytes, m_going}) {
        if (goesOn(position, distance))
            return {kLongestMatch, distance};
    }
    return {};
}

bool CMatchFinder::goesOn(std::size_t position, std::size_t distance) const
{
    const unsigned char* const bytes = m_bytes.data + position;
    return m_bytes.size - position >= kLongestMatch &&
           std::memcmp(bytes, bytes - distance, kLongestMatch) == 0;
}

CMatchFinder::CMatch CMatchFinder::search(std::size_t position)
{
    CMatch best;
    consider<kShortestToTheLeft>(best, position, m_shape.pixelBytes);
    consider<kShortestAbove>(best, position, m_shape.stride);
    const std::size_t elsewhere = distanceToSame(position);
    if (best.length < kLongEnough)
        consider<kKeyBytes>(best, position, elsewhere);
    // Where a match begins, its second byte is the first of what comes after another byte.
    if (best.length > 0 && m_bytes.size - position > kKeyBytes + 1)
        placeOf(position + 1) = static_cast<std::uint32_t>(position + 1);
    return best;
}

// Takes a match that is longer by two bytes, since it usually has the larger distance.
template <std::size_t Shortest>
void CMatchFinder::consider(CMatch& best, std::size_t position, std::size_t distance) const
{
    if (distance == 0 || distance > position || distance > kFarthestMatch)
        return;
    const unsigned char* const bytes = m_bytes.data + position;
    if (std::memcmp(bytes, bytes - distance, Shortest) != 0)
        return;
    const std::size_t length =
        countEqual(bytes, bytes - distance, std::min(m_bytes.size - position, kLongestMatch));
    if (length > best.length + 1)
        best = {length, distance};
}

std::uint32_t& CMatchFinder::placeOf(std::size_t position)
{
    constexpr std::uint64_t kMixer = 0x9e3779b97f4a7c15; // of Knuth's multiplicative hashing
    const std::uint64_t mixed = keyAt(m_bytes.data + position) * kMixer;
    return m_places[mixed >> (64 - kPlaceBits)];
}

// Back to the place that was last noted for the same bytes, or for others with the same number;
// notes the position instead.
std::size_t CMatchFinder::distanceToSame(std::size_t position)
{
    std::uint32_t& place = placeOf(position);
    // Of a position, 32 bits are enough: a match cannot be farther away.
    const std::uint32_t distance = static_cast<std::uint32_t>(position) - place;
    place = static_cast<std::uint32_t>(position);
    return distance;
}

} // namespace tovangl
