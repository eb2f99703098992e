// SPDX-License-Identifier: MIT
/// @file
/// Finds earlier bytes of a picture that the next ones repeat.
#ifndef TOVANGL_DEFLATE_CMATCHFINDER_H
#define TOVANGL_DEFLATE_CMATCHFINDER_H

#include "deflate/CByteRange.h"
#include "deflate/token_block.h"

#include <cstdint>
#include <vector>

namespace tovangl {

/// How far apart pixels are in packed rows.
struct CRowShape
{
    std::size_t pixelBytes = 1; ///< to the pixel on the left; 1 where a byte holds several
    std::size_t stride = 0;     ///< to the pixel above; 0 where there are no rows
};

/// Looks where charts repeat themselves: at the pixel on the left, at the one above, and at the
/// last place that began with the same eight bytes, which finds letters.
class CMatchFinder
{
public:
    CMatchFinder(CByteRange bytes, CRowShape shape);

    /// What the bytes from a position on are. It takes positions in ascending order, each behind
    /// the token before.
    [[nodiscard]] CToken tokenAt(std::size_t position);

private:
    // A match while it is looked for.
    struct CMatch
    {
        std::size_t length = 0;
        std::size_t distance = 0;
    };

    [[nodiscard]] bool goesOn(std::size_t position, std::size_t distance) const;
    [[nodiscard]] CMatch continuation(std::size_t position) const;
    [[nodiscard]] CMatch search(std::size_t position);
    template <std::size_t Shortest>
    void consider(CMatch& best, std::size_t position, std::size_t distance) const;

    [[nodiscard]] std::uint32_t& placeOf(std::size_t position);
    [[nodiscard]] std::size_t distanceToSame(std::size_t position);

    CByteRange m_bytes;
    CRowShape m_shape;
    std::size_t m_going = 0;             // the distance of a longest match right before; else 0
    std::vector<std::uint32_t> m_places; // by a number made of eight bytes
};

} // namespace tovangl

#endif
