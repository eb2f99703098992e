// SPDX-License-Identifier: MIT
/// @file
/// Reads lines that may be too long, from a file or a pipe that stays open.
#ifndef TOVANGL_CHART_CBOUNDEDLINES_H
#define TOVANGL_CHART_CBOUNDEDLINES_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace tovangl::program {

struct NumberedLine
{
    std::size_t number = 0; ///< from 1
    std::string text;       ///< without its line break ("\n" or "\r\n"); empty if it is too long
    bool isTooLong = false;
    std::uintmax_t end = 0; ///< bytes of the input up to the end of the line
};

/// Throws CFailure if the input cannot be opened or read, or if a signal to end was noted while it
/// waits (noteInterruptions()).
class CBoundedLines
{
public:
    using IsWanted = std::function<bool()>;

    /// @param path         the file; "-" is standard input
    /// @param longestLine  bytes; what is longer is read over, and never held in memory
    CBoundedLines(const std::string& path, std::size_t longestLine);
    ~CBoundedLines();

    CBoundedLines(const CBoundedLines&) = delete;
    CBoundedLines& operator=(const CBoundedLines&) = delete;

    /// Reads the next line, as soon as its end is there. Blank lines are passed over. The last line
    /// needs no line break.
    ///
    /// @param isWanted  asked while the input is waited for; once it says false, the input ends
    /// @return nothing at the end of the input
    [[nodiscard]] std::optional<NumberedLine> next(const IsWanted& isWanted = [] { return true; });

    /// The size of the input in bytes, where it is known beforehand.
    [[nodiscard]] std::optional<std::uintmax_t> size() const { return m_size; }

private:
    [[nodiscard]] std::optional<NumberedLine> readLine(const IsWanted& isWanted);
    void append(NumberedLine& line, std::size_t end);
    [[nodiscard]] bool fillBuffer(const IsWanted& isWanted);
    [[nodiscard]] bool waitForInput(const IsWanted& isWanted) const;

    std::string m_name;
    std::size_t m_longestLine;
    int m_file;
    std::optional<std::uintmax_t> m_size;
    std::string m_buffer;
    std::size_t m_next = 0; // first byte of m_buffer that belongs to no line yet
    std::size_t m_number = 0;
    std::uintmax_t m_end = 0;
};

} // namespace tovangl::program

#endif
