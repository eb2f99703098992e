// SPDX-License-Identifier: MIT
/// @file
/// A line on a terminal that shows a program's progress.
#ifndef TOVANGL_COMMON_CPROGRESSLINE_H
#define TOVANGL_COMMON_CPROGRESSLINE_H

#include <chrono>
#include <functional>
#include <string>

namespace tovangl::program {

/// Rewrites one line on standard error, at most ten times a second; does nothing if that is not a
/// terminal. The destructor clears the line.
class CProgressLine
{
public:
    CProgressLine();
    ~CProgressLine();

    CProgressLine(const CProgressLine&) = delete;
    CProgressLine& operator=(const CProgressLine&) = delete;

    /// @param text  makes the line when an update is due; any bytes
    void show(const std::function<std::string()>& text);
    /// Makes room for another line on the terminal.
    void clear();

private:
    using Clock = std::chrono::steady_clock;

    bool m_isTerminal;
    bool m_isShown = false;
    Clock::time_point m_next;
};

} // namespace tovangl::program

#endif
