// SPDX-License-Identifier: MIT
// Lets a long-running program clean up when it receives a signal to end.
#include "common/interruption.h"

#include "common/CFailure.h"

#include <csignal>

namespace tovangl::program {

namespace {

volatile std::sig_atomic_t isInterrupted = 0;

} // namespace

void noteInterruptions()
{
    struct sigaction action = {};
    action.sa_handler = [](int) { isInterrupted = 1; };
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    for (const int signal : {SIGHUP, SIGINT, SIGTERM})
        ::sigaction(signal, &action, nullptr);
}

void stopIfInterrupted()
{
    if (isInterrupted != 0)
        throw CFailure("interrupted");
}

} // namespace tovangl::program
