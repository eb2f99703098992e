// SPDX-License-Identifier: MIT
/// @file
/// Random inputs that depend on a seed alone.
#ifndef TOVANGL_SUPPORT_CDICE_H
#define TOVANGL_SUPPORT_CDICE_H

#include <tovangl/Color.h>

#include <array>
#include <random>

namespace tovangl {

/// Draws the same numbers from the same seed with every compiler and library.
class CDice
{
public:
    explicit CDice(unsigned seed)
        : m_engine(seed)
    {}

    /// A number from least to greatest.
    int roll(int least, int greatest)
    {
        const auto choices = static_cast<unsigned>(greatest - least) + 1;
        return least + static_cast<int>(m_engine() % choices);
    }
    bool oneIn(int chances) { return roll(1, chances) == 1; }
    /// As many small values as large ones; one in eight is negative.
    long rollValue()
    {
        const int digits = roll(0, 18);
        long value = roll(0, 9);
        for (int i = 1; i < digits; ++i)
            value = value * 10 + roll(0, 9);
        return oneIn(8) ? -value : value;
    }
    Color rollColor()
    {
        const int red = roll(0, 255);
        const int green = roll(0, 255);
        return Color{red, green, roll(0, 255)};
    }
    template <typename Value, std::size_t N>
    const Value& pick(const std::array<Value, N>& choices)
    {
        return choices[static_cast<std::size_t>(roll(0, static_cast<int>(N) - 1))];
    }

private:
    std::mt19937 m_engine;
};

} // namespace tovangl

#endif
