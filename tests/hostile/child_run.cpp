// SPDX-License-Identifier: MIT
// Runs a function in a child process with limits, and tells how it ended.
#include "hostile/child_run.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define TOVANGL_HAS_SHADOW_MEMORY 1
#endif
#elif defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define TOVANGL_HAS_SHADOW_MEMORY 1
#endif

namespace tovangl {

namespace {

// Exit codes by which the child tells its end.
constexpr int kEndedNormally = 40;
constexpr int kRanOutOfMemory = 41;
constexpr int kThrewSomethingElse = 42;

constexpr std::size_t kKeptOutput = 4000; // bytes

struct CPipe
{
    int readEnd = -1;
    int writeEnd = -1;
};

CPipe makePipe()
{
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) {
        std::perror("pipe");
        std::exit(EXIT_FAILURE);
    }
    return {ends[0], ends[1]};
}

void setLimits(const CLimits& limits)
{
    const rlimit noCoreFile{0, 0};
    ::setrlimit(RLIMIT_CORE, &noCoreFile);
    if (limits.addressSpace > 0 && canLimitAddressSpace()) {
        const rlimit space{limits.addressSpace, limits.addressSpace};
        ::setrlimit(RLIMIT_AS, &space);
    }
    // Nothing handles these signals, so they end the process. On a machine that is shared, a child
    // may wait long for its share.
    constexpr unsigned kPatience = 6;
    const rlimit processorTime{limits.seconds, limits.seconds + 1};
    ::setrlimit(RLIMIT_CPU, &processorTime);
    ::alarm(limits.seconds * kPatience);
}

int runAndCatch(const std::function<void()>& run)
{
    try {
        run();
        return kEndedNormally;
    } catch (const std::bad_alloc&) {
        return kRanOutOfMemory;
    } catch (const std::exception& other) {
        std::fprintf(stderr, "%s\n", other.what());
    } catch (...) {
        std::fprintf(stderr, "something that is no std::exception\n");
    }
    return kThrewSomethingElse;
}

[[noreturn]] void beChild(const std::function<void()>& run, const CLimits& limits,
                          const CPipe& output)
{
    ::close(output.readEnd);
    ::dup2(output.writeEnd, STDOUT_FILENO);
    ::dup2(output.writeEnd, STDERR_FILENO);
    ::close(output.writeEnd);
    setLimits(limits);
    // The usual way out, with exit handlers: leaving is part of what must work.
    std::exit(runAndCatch(run));
}

std::string readToEnd(int file)
{
    std::string text;
    std::array<char, 4096> piece{};
    for (ssize_t count = 0; (count = ::read(file, piece.data(), piece.size())) > 0;) {
        if (text.size() < kKeptOutput)
            text.append(piece.data(), static_cast<std::size_t>(count));
    }
    return text;
}

Ending endingOf(int status, bool hasPrinted)
{
    if (WIFSIGNALED(status)) {
        const int signal = WTERMSIG(status);
        return signal == SIGXCPU || signal == SIGALRM ? Ending::TooSlow : Ending::Crashed;
    }
    switch (WEXITSTATUS(status)) {
    case kEndedNormally:
        return hasPrinted ? Ending::Printed : Ending::Normal;
    case kRanOutOfMemory:
        return hasPrinted ? Ending::Printed : Ending::OutOfMemory;
    case kThrewSomethingElse:
        return Ending::OtherException;
    default:
        return Ending::Crashed;
    }
}

double secondsOf(const timeval& time)
{
    constexpr double kMicrosecond = 1e-6;
    return static_cast<double>(time.tv_sec) + kMicrosecond * static_cast<double>(time.tv_usec);
}

} // namespace

const char* nameOf(Ending ending)
{
    switch (ending) {
    case Ending::Normal:
        return "ended normally";
    case Ending::OutOfMemory:
        return "ran out of memory";
    case Ending::OtherException:
        return "threw something else than std::bad_alloc";
    case Ending::TooSlow:
        return "took too long";
    case Ending::Printed:
        return "printed something";
    case Ending::Crashed:
        break;
    }
    return "crashed";
}

bool canLimitAddressSpace()
{
#ifdef TOVANGL_HAS_SHADOW_MEMORY
    return false;
#else
    return true;
#endif
}

CChildReport runInChild(const std::function<void()>& run, const CLimits& limits)
{
    constexpr double kKilobytesPerMegabyte = 1024;
    const CPipe output = makePipe();
    std::fflush(nullptr); // the child would write what is buffered once more
    const pid_t child = ::fork();
    if (child == 0)
        beChild(run, limits, output);
    ::close(output.writeEnd);

    CChildReport report;
    report.output = readToEnd(output.readEnd);
    ::close(output.readEnd);
    int status = 0;
    rusage usage{};
    ::wait4(child, &status, 0, &usage);
    report.ending = endingOf(status, !report.output.empty());
    report.seconds = secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime);
    report.peakMegabytes = static_cast<double>(usage.ru_maxrss) / kKilobytesPerMegabyte;
    return report;
}

} // namespace tovangl
