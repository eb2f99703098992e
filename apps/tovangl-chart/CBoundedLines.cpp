// SPDX-License-Identifier: MIT
// Reads lines that may be too long, from a file or a pipe that stays open.
#include "tovangl-chart/CBoundedLines.h"

#include "common/CFailure.h"
#include "common/interruption.h"
#include "common/text_checks.h"

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tovangl::program {

namespace {

constexpr std::size_t kChunkBytes = std::size_t{64} << 10;
constexpr int kInterruptionDelay = 100; // milliseconds until a signal is seen
constexpr const char* kStandardInput = "-";

// Where standard input was closed, the windowing system's library has put an event counter in its
// place before the program began. Nothing would ever come from it. Such files have no type.
int openStandardInput()
{
    struct stat status = {};
    if (::fstat(STDIN_FILENO, &status) != 0 || (status.st_mode & S_IFMT) == 0)
        throw systemFailure("standard input", EBADF);
    return STDIN_FILENO;
}

int openInput(const std::string& path)
{
    if (path == kStandardInput)
        return openStandardInput();
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        throw systemFailure(path);
    return file;
}

std::optional<std::uintmax_t> sizeOf(int file)
{
    struct stat status = {};
    if (::fstat(file, &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return static_cast<std::uintmax_t>(status.st_size);
}

bool isBlank(const NumberedLine& line)
{
    return !line.isTooLong && line.text.find_first_not_of(" \t\r") == std::string::npos;
}

} // namespace

CBoundedLines::CBoundedLines(const std::string& path, std::size_t longestLine)
    : m_name(path == kStandardInput ? "standard input" : makePrintable(path))
    , m_longestLine(longestLine)
    , m_file(openInput(path))
    , m_size(sizeOf(m_file))
{}

CBoundedLines::~CBoundedLines()
{
    if (m_file != STDIN_FILENO)
        ::close(m_file);
}

std::optional<NumberedLine> CBoundedLines::next(const IsWanted& isWanted)
{
    std::optional<NumberedLine> line = readLine(isWanted);
    while (line && isBlank(*line))
        line = readLine(isWanted);
    return line;
}

std::optional<NumberedLine> CBoundedLines::readLine(const IsWanted& isWanted)
{
    NumberedLine line;
    std::size_t end = m_buffer.find('\n', m_next);
    bool isThere = m_next < m_buffer.size();
    while (end == std::string::npos) {
        append(line, m_buffer.size());
        if (!fillBuffer(isWanted))
            break;
        isThere = true;
        end = m_buffer.find('\n');
    }
    if (!isThere)
        return std::nullopt;
    if (end != std::string::npos) {
        append(line, end);
        m_next = end + 1;
        ++m_end;
    }
    if (!line.text.empty() && line.text.back() == '\r')
        line.text.pop_back();
    line.number = ++m_number;
    line.end = m_end;
    return line;
}

// The part of a line that the buffer holds.
void CBoundedLines::append(NumberedLine& line, std::size_t end)
{
    const std::size_t count = end - m_next;
    line.isTooLong = line.isTooLong || line.text.size() + count > m_longestLine;
    if (line.isTooLong)
        line.text = std::string();
    else
        line.text.append(m_buffer, m_next, count);
    m_next = end;
    m_end += count;
}

// Replaces what the buffer holds; false at the end of the input.
bool CBoundedLines::fillBuffer(const IsWanted& isWanted)
{
    m_buffer.resize(kChunkBytes);
    m_next = 0;
    ssize_t count = -1;
    do {
        count = waitForInput(isWanted) ? ::read(m_file, m_buffer.data(), kChunkBytes) : 0;
    } while (count < 0 && (errno == EINTR || errno == EAGAIN));
    if (count < 0)
        throw systemFailure(m_name);
    m_buffer.resize(static_cast<std::size_t>(count));
    return count > 0;
}

// False if no more input is wanted.
bool CBoundedLines::waitForInput(const IsWanted& isWanted) const
{
    pollfd input = {m_file, POLLIN, 0};
    do {
        stopIfInterrupted();
        if (!isWanted())
            return false;
    } while (::poll(&input, 1, kInterruptionDelay) <= 0);
    return true;
}

} // namespace tovangl::program
