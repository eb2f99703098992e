// SPDX-License-Identifier: MIT
// Reads a file or standard input line by line.
#include "common/CLineReader.h"

#include "common/CFailure.h"
#include "common/text_checks.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace tovangl::program {

namespace {

constexpr std::size_t kChunkBytes = std::size_t{64} << 10;
constexpr const char* kStandardInput = "-";

int openInput(const std::string& path)
{
    return path == kStandardInput ? STDIN_FILENO : ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
}

} // namespace

CLineReader::CLineReader(const std::string& path)
    : m_name(path == kStandardInput ? "standard input" : makePrintable(path))
    , m_file(openInput(path))
{
    if (m_file < 0)
        throw systemFailure(m_name);
}

CLineReader::~CLineReader()
{
    if (m_file != STDIN_FILENO)
        ::close(m_file);
}

bool CLineReader::readLine(std::string& line)
{
    std::size_t end = m_buffer.find('\n', m_next);
    while (end == std::string::npos && !m_atEnd) {
        const std::size_t searched = m_buffer.size() - m_next;
        fillBuffer();
        end = m_buffer.find('\n', m_next + searched);
    }
    if (m_next == m_buffer.size())
        return false;
    ++m_lineNumber;
    line.assign(m_buffer, m_next, end == std::string::npos ? end : end - m_next);
    m_next = end == std::string::npos ? m_buffer.size() : end + 1;
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    return true;
}

std::string CLineReader::place() const
{
    return m_name + ':' + std::to_string(m_lineNumber);
}

// Moves the remaining bytes to the front and appends the next ones.
void CLineReader::fillBuffer()
{
    m_buffer.erase(0, m_next);
    m_next = 0;
    const std::size_t kept = m_buffer.size();
    if (kept > kMaxLineBytes)
        throw CFailure(m_name + ':' + std::to_string(m_lineNumber + 1) + ": the line has no end");
    m_buffer.resize(kept + kChunkBytes);
    ssize_t count = -1;
    do {
        count = ::read(m_file, &m_buffer[kept], kChunkBytes);
    } while (count < 0 && errno == EINTR);
    if (count < 0)
        throw systemFailure(m_name);
    m_buffer.resize(kept + static_cast<std::size_t>(count));
    m_atEnd = count == 0;
}

} // namespace tovangl::program
