// SPDX-License-Identifier: MIT
/// @file
/// A line on a terminal that tells how far a program has come.
#ifndef TOVANGL_DU_CPROGRESSLINE_H
#define TOVANGL_DU_CPROGRESSLINE_H

#include <chrono>
#include <functional>
#include <string>

namespace tovangl::program {

/// Rewrites one line on standard error, ten times a second at most; nothing where that is no
/// terminal. The line is gone with this object.
class CProgressLine
{
public:
    CProgressLine();
    ~CProgressLine();

    CProgressLine(const CProgressLine&) = delete;
    CProgressLine& operator=(const CProgressLine&) = delete;

    /// @param text  makes the line, where it is time for one; any bytes
    void show(const std::function<std::string()>& text);

private:
    using Clock = std::chrono::steady_clock;

    bool m_isTerminal;
    bool m_isShown = false;
    Clock::time_point m_next;
};

} // namespace tovangl::program

#endif
