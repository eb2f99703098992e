// SPDX-License-Identifier: MIT
/// @file
/// The different colours of a picture, numbered in the order in which they were found.
#ifndef TOVANGL_OUTPUT_CCOLORINDEX_H
#define TOVANGL_OUTPUT_CCOLORINDEX_H

#include <QRgb>

#include <array>
#include <cstddef>
#include <cstdint>

namespace tovangl {

/// A hash table with open addressing, four times as large as the largest palette.
class CColorIndex
{
public:
    static constexpr int kMaxColors = 256;

    static constexpr int kFull = -1;

    /// The number of a colour, which is added if it is new. If it would be the 257th, nothing is
    /// added and the result is kFull.
    [[nodiscard]] int add(QRgb color)
    {
        CSlot& slot = m_slots[findSlot(color)];
        if (slot.number == kFree && m_count < kMaxColors) {
            slot = {color, static_cast<std::int16_t>(m_count)};
            m_colors[static_cast<std::size_t>(m_count)] = color;
            ++m_count;
        }
        return slot.number;
    }

    /// The number of a colour that has been added.
    [[nodiscard]] int numberOf(QRgb color) const { return m_slots[findSlot(color)].number; }

    [[nodiscard]] QRgb colorAt(int number) const
    {
        return m_colors[static_cast<std::size_t>(number)];
    }

    [[nodiscard]] int count() const { return m_count; }

private:
    static constexpr unsigned kHashBits = 10;
    static constexpr std::size_t kSlots = 1U << kHashBits;
    static_assert(kSlots / 4 == kMaxColors);
    static constexpr std::int16_t kFree = kFull;

    struct CSlot
    {
        QRgb color = 0;
        std::int16_t number = kFree;
    };

    // Multiplicative hashing by the golden ratio (Knuth, The Art of Computer Programming, 6.4): the
    // upper bits of the product.
    [[nodiscard]] static std::size_t hash(QRgb color)
    {
        constexpr unsigned kGoldenRatio = 2654435769U; // 2^32 times its inverse
        constexpr unsigned kColorBits = 32;
        return (color * kGoldenRatio) >> (kColorBits - kHashBits);
    }

    // The colour's slot, or the free slot for it.
    [[nodiscard]] std::size_t findSlot(QRgb color) const
    {
        std::size_t slot = hash(color);
        while (m_slots[slot].number != kFree && m_slots[slot].color != color)
            slot = (slot + 1) % kSlots;
        return slot;
    }

    std::array<CSlot, kSlots> m_slots;
    std::array<QRgb, kMaxColors> m_colors{};
    int m_count = 0;
};

} // namespace tovangl

#endif
