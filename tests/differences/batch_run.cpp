// SPDX-License-Identifier: MIT
// Runs numbered cases in child processes, so that a case that crashes is told like any other.
#include "differences/batch_run.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace tovangl {

namespace {

constexpr unsigned kBatch = 100;   // cases
constexpr unsigned kPatience = 60; // seconds for one case
constexpr const char* kEnded = "ended";
constexpr const char* kThrew = "threw";

struct CChild
{
    pid_t process = 0;
    int output = 0; // file descriptor to read from
};

void writeAll(int file, const std::string& text)
{
    for (std::size_t done = 0; done < text.size();) {
        const ssize_t count = ::write(file, text.data() + done, text.size() - done);
        if (count < 0)
            std::_Exit(EXIT_FAILURE);
        done += static_cast<std::size_t>(count);
    }
}

// "e" or "t" for the ending, the record and an end of line.
std::string runAndCatch(unsigned number, const std::function<std::string(unsigned)>& run)
{
    try {
        return 'e' + run(number) + '\n';
    } catch (const std::exception&) {
        return "t\n";
    }
}

[[noreturn]] void beChild(unsigned first, unsigned end,
                          const std::function<std::string(unsigned)>& run, int output)
{
    for (unsigned number = first; number < end; ++number) {
        ::alarm(kPatience);
        writeAll(output, runAndCatch(number, run));
    }
    // The usual way out, with exit handlers: leaving is part of what must stay the same.
    std::exit(EXIT_SUCCESS);
}

CChild startChild(unsigned first, unsigned end, const std::function<std::string(unsigned)>& run)
{
    std::array<int, 2> pipe{};
    if (::pipe(pipe.data()) != 0)
        throw std::system_error(errno, std::generic_category(), "pipe");
    std::fflush(nullptr); // the child would write what is buffered once more
    const pid_t process = ::fork();
    if (process < 0)
        throw std::system_error(errno, std::generic_category(), "fork");
    if (process == 0) {
        ::close(pipe[0]);
        beChild(first, end, run, pipe[1]);
    }
    ::close(pipe[1]);
    return CChild{process, pipe[0]};
}

std::string readToEnd(int file)
{
    std::string text;
    std::array<char, 4096> piece{};
    for (ssize_t count = 0; (count = ::read(file, piece.data(), piece.size())) > 0;)
        text.append(piece.data(), static_cast<std::size_t>(count));
    ::close(file);
    return text;
}

// A line that was not finished is none.
std::vector<CCaseReport> splitIntoReports(unsigned first, const std::string& text)
{
    std::vector<CCaseReport> reports;
    std::size_t begin = 0;
    for (std::size_t end = 0; (end = text.find('\n', begin)) != std::string::npos;
         begin = end + 1) {
        const auto number = first + static_cast<unsigned>(reports.size());
        reports.push_back({number, text[begin] == 'e' ? kEnded : kThrew,
                           text.substr(begin + 1, end - begin - 1)});
    }
    return reports;
}

std::string describeFailure(int status)
{
    return WIFSIGNALED(status) ? "signal " + std::to_string(WTERMSIG(status))
                               : "exit " + std::to_string(WEXITSTATUS(status));
}

std::vector<CCaseReport> runBatch(unsigned first, unsigned end,
                                  const std::function<std::string(unsigned)>& run)
{
    const CChild child = startChild(first, end, run);
    std::vector<CCaseReport> reports = splitIntoReports(first, readToEnd(child.output));
    int status = 0;
    ::waitpid(child.process, &status, 0);
    if (reports.size() < end - first)
        reports.push_back(
            {first + static_cast<unsigned>(reports.size()), describeFailure(status), ""});
    else if (status != 0)
        reports.back().ending = describeFailure(status);
    return reports;
}

} // namespace

void runInBatches(unsigned first, unsigned end, const std::function<std::string(unsigned)>& run,
                  const std::function<void(const CCaseReport&)>& report)
{
    for (unsigned next = first; next < end;) {
        for (const CCaseReport& each : runBatch(next, std::min(end, next + kBatch), run)) {
            report(each);
            ++next;
        }
    }
}

} // namespace tovangl
