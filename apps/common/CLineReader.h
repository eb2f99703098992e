// SPDX-License-Identifier: MIT
/// @file
/// Reads a file or standard input line by line.
#ifndef TOVANGL_COMMON_CLINEREADER_H
#define TOVANGL_COMMON_CLINEREADER_H

#include <cstddef>
#include <string>

namespace tovangl::program {

/// Throws CFailure if the file cannot be opened or read, or if a line has no end: beyond
/// kMaxLineBytes the input is not text, and reading on would only fill the memory.
class CLineReader
{
public:
    static constexpr std::size_t kMaxLineBytes = std::size_t{64} << 20;

    /// @param path  the file; "-" is standard input
    explicit CLineReader(const std::string& path);
    ~CLineReader();

    CLineReader(const CLineReader&) = delete;
    CLineReader& operator=(const CLineReader&) = delete;

    /// Reads the next line, without its line break ("\n" or "\r\n"). The last line needs none.
    ///
    /// @return whether there was a line
    [[nodiscard]] bool readLine(std::string& line);

    /// The place of the last line read, for messages: "sizes.txt:3".
    [[nodiscard]] std::string place() const;

private:
    void fillBuffer();

    std::string m_name;
    int m_file;
    std::string m_buffer;
    std::size_t m_next = 0; // first byte of m_buffer that was not returned yet
    std::size_t m_lineNumber = 0;
    bool m_atEnd = false;
};

} // namespace tovangl::program

#endif
