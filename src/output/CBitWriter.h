// SPDX-License-Identifier: MIT
/// @file
/// Writes numbers of any number of bits.
#ifndef TOVANGL_OUTPUT_CBITWRITER_H
#define TOVANGL_OUTPUT_CBITWRITER_H

#include "output/CByteRange.h"

namespace tovangl {

/// Fills bytes from their lowest bit on, as deflate streams are. What does not fit is lost, and
/// isFull() says so.
class CBitWriter
{
public:
    explicit CBitWriter(CByteRoom room)
        : m_room(room)
    {}

    /// Writes the lowest bits of a number, the lowest first.
    void put(unsigned value, int count);

    /// Writes zeros up to the end of a byte.
    void align();

    /// Where the next byte goes. The writer must be aligned.
    [[nodiscard]] CByteRoom rest() const;

    /// Goes on behind bits that somebody wrote into the rest. The unused bits of their last byte
    /// are zeros.
    void skip(std::size_t bits) { m_position += bits; }

    /// Changes a bit that was written from 1 to 0.
    ///
    /// @param position  in bits from the beginning of the room
    void clear(std::size_t position);

    /// In bits from the beginning of the room.
    [[nodiscard]] std::size_t position() const { return m_position; }
    [[nodiscard]] bool isFull() const { return m_isFull; }

private:
    CByteRoom m_room;
    std::size_t m_position = 0;
    bool m_isFull = false;
};

} // namespace tovangl

#endif
