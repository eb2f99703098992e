// SPDX-License-Identifier: MIT
/// @file
/// A short number that stands for much data.
#ifndef TOVANGL_DIFFERENCES_CHASH_H
#define TOVANGL_DIFFERENCES_CHASH_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace tovangl {

/// The same data gives the same value in every process, other data hardly ever. Each step is
/// reversible, so that data which differs in one word never collides.
class CHash
{
public:
    void addWord(std::uint64_t word)
    {
        constexpr std::uint64_t kPrime = 0x100000001b3;
        constexpr int kHalf = 32;
        m_value = (m_value ^ word) * kPrime;
        m_value ^= m_value >> kHalf;
    }
    void addWords(const std::uint32_t* words, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            addWord(words[i]);
    }
    void addNumber(double number)
    {
        std::uint64_t bits = 0;
        static_assert(sizeof bits == sizeof number);
        std::memcpy(&bits, &number, sizeof bits);
        addWord(bits);
    }
    void addText(const std::string& text)
    {
        for (const char byte : text)
            addWord(static_cast<unsigned char>(byte));
    }

    [[nodiscard]] std::uint64_t value() const { return m_value; }

private:
    std::uint64_t m_value = 0xcbf29ce484222325;
};

} // namespace tovangl

#endif
