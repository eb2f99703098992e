// SPDX-License-Identifier: MIT
/// @file
/// Numbers in a font file.
#ifndef TOVANGL_TEXT_FONT_NUMBERS_H
#define TOVANGL_TEXT_FONT_NUMBERS_H

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tovangl {

/// Some bytes of a file, which may be too short for them.
struct CFilePart
{
    std::size_t offset = 0;
    std::size_t length = 0;
};

/// The numbers of a font file, or of a part of one: they begin with their highest byte, and are 0
/// beyond the end. The bytes are borrowed.
class CFontNumbers
{
public:
    explicit CFontNumbers(std::string_view file)
        : m_file(file)
    {}

    [[nodiscard]] bool has(const CFilePart& part) const
    {
        return part.offset <= m_file.size() && part.length <= m_file.size() - part.offset;
    }
    [[nodiscard]] unsigned at16(std::size_t offset) const
    {
        return static_cast<unsigned>(number(offset, 2));
    }
    [[nodiscard]] std::uint32_t at32(std::size_t offset) const { return number(offset, 4); }
    /// Empty if the file does not have all of the part.
    [[nodiscard]] std::string_view bytes(const CFilePart& part) const
    {
        return has(part) ? m_file.substr(part.offset, part.length) : std::string_view();
    }

private:
    [[nodiscard]] std::uint32_t number(std::size_t offset, std::size_t length) const
    {
        std::uint32_t value = 0;
        for (const char byte : bytes({offset, length}))
            value = value << 8 | static_cast<unsigned char>(byte);
        return value;
    }

    std::string_view m_file;
};

} // namespace tovangl

#endif
