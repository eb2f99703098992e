// SPDX-License-Identifier: MIT
/// @file
/// Writes numbers of any number of bits.
#ifndef TOVANGL_DEFLATE_CBITWRITER_H
#define TOVANGL_DEFLATE_CBITWRITER_H

#include "deflate/CByteRange.h"

#include <QtEndian>

#include <cstdint>

namespace tovangl {

/// Fills bytes from their lowest bit on, as deflate streams are. What does not fit is lost, and
/// isFull() says so. Bytes behind what is written may be overwritten.
class CBitWriter
{
public:
    static constexpr int kMostBits = 56; ///< of one put()

    explicit CBitWriter(CByteRoom room)
        : m_room(room)
    {}

    /// Writes the lowest bits of a number, the lowest first.
    void put(std::uint64_t value, int count)
    {
        if (m_position / kBitsPerByte + kWordBytes <= m_room.size)
            putWord(value, count);
        else
            putBits(value, count);
    }

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
    static constexpr std::size_t kWordBytes = sizeof(std::uint64_t);

    void putWord(std::uint64_t value, int count)
    {
        unsigned char* const next = m_room.data + m_position / kBitsPerByte;
        const std::size_t used = m_position % kBitsPerByte;
        const std::uint64_t begun = *next & ((1U << used) - 1);
        const std::uint64_t word = begun | (value & ((std::uint64_t{1} << count) - 1)) << used;
        qToLittleEndian(word, next);
        m_position += static_cast<std::size_t>(count);
    }
    void putBits(std::uint64_t value, int count);
    [[nodiscard]] static unsigned char bitOf(std::size_t position)
    {
        return static_cast<unsigned char>(1U << position % kBitsPerByte);
    }

    CByteRoom m_room;
    std::size_t m_position = 0;
    bool m_isFull = false;
};

} // namespace tovangl

#endif
