// SPDX-License-Identifier: MIT
// Writes numbers of any number of bits.
#include "deflate/CBitWriter.h"

namespace tovangl {

// Near the end of the room, where a word is too long.
void CBitWriter::putBits(std::uint64_t value, int count)
{
    for (int i = 0; i < count; ++i, value >>= 1) {
        const std::size_t byte = m_position / kBitsPerByte;
        if (byte >= m_room.size) {
            m_isFull = true;
            return;
        }
        if (m_position % kBitsPerByte == 0)
            m_room.data[byte] = 0;
        if ((value & 1U) != 0)
            m_room.data[byte] = static_cast<unsigned char>(m_room.data[byte] | bitOf(m_position));
        ++m_position;
    }
}

void CBitWriter::align()
{
    m_position = (m_position + kBitsPerByte - 1) / kBitsPerByte * kBitsPerByte;
}

CByteRoom CBitWriter::rest() const
{
    const std::size_t used = m_position / kBitsPerByte;
    return {m_room.data + used, m_room.size - used};
}

void CBitWriter::clear(std::size_t position)
{
    unsigned char& byte = m_room.data[position / kBitsPerByte];
    byte = static_cast<unsigned char>(byte & ~bitOf(position));
}

} // namespace tovangl
