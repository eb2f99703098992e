// SPDX-License-Identifier: MIT
// A line on a terminal that shows a program's progress.
#include "common/CProgressLine.h"

#include "common/text_checks.h"

#include <iostream>
#include <sys/ioctl.h>
#include <unistd.h>

namespace tovangl::program {

namespace {

constexpr std::chrono::milliseconds kInterval{100};
constexpr std::size_t kDefaultColumns = 80;
constexpr const char* kClearLine = "\r\x1b[K";

std::size_t columns()
{
    winsize size{};
    if (::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0)
        return kDefaultColumns;
    return size.ws_col;
}

// Cuts by bytes, which are never fewer than the columns; a character cut in two shows as a question
// mark.
std::string fitted(const std::string& text)
{
    return makePrintable(text.substr(0, columns() - 1));
}

} // namespace

CProgressLine::CProgressLine()
    : m_isTerminal(::isatty(STDERR_FILENO) != 0)
    , m_next(Clock::now() + kInterval)
{}

CProgressLine::~CProgressLine()
{
    clear();
}

void CProgressLine::show(const std::function<std::string()>& text)
{
    if (!m_isTerminal)
        return;
    const Clock::time_point now = Clock::now();
    if (now < m_next)
        return;
    m_next = now + kInterval;
    m_isShown = true;
    std::cerr << kClearLine << fitted(text()) << std::flush;
}

void CProgressLine::clear()
{
    if (m_isShown)
        std::cerr << kClearLine << std::flush;
    m_isShown = false;
}

} // namespace tovangl::program
