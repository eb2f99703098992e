// SPDX-License-Identifier: MIT
// How every program starts, and how it ends on an error.
#include "common/program_frame.h"

#include "common/CFailure.h"

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <new>

namespace tovangl::program {

namespace {

/// A closed pipe and a file size limit must appear as failed writes; by default they kill the
/// process, which could then neither report them nor clean up.
void ignoreWriteSignals()
{
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
}

void requirePrinted()
{
    if (!std::cout.flush())
        throw CFailure("standard output: cannot write");
}

int fail(const char* name, const char* message)
{
    std::cerr << name << ": " << message << '\n';
    return kExitFailure;
}

} // namespace

int runProgram(const char* name, const std::function<int()>& work)
{
    ignoreWriteSignals();
    try {
        const int status = work();
        requirePrinted();
        return status;
    } catch (const std::bad_alloc&) {
        return fail(name, "out of memory");
    } catch (const std::exception& failure) {
        return fail(name, failure.what());
    }
}

} // namespace tovangl::program
