// SPDX-License-Identifier: MIT
// A host that compares its own state before and after it opens the library.
#include "module.h"

#include <cfenv>
#include <clocale>
#include <csignal>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace {

struct CState
{
    std::string locale;
    std::string decimalPoint;
    std::vector<std::string> environment;
    std::vector<void (*)(int)> signalHandlers;
    std::string blockedSignals;
    std::string folder;
    mode_t mask;
    int rounding;
    int traps;
    std::size_t threads;
    int inherited;
};

std::size_t entriesOf(const char* folder)
{
    std::size_t count = 0;
    DIR* directory = opendir(folder);
    while (directory && readdir(directory))
        ++count;
    closedir(directory);
    return count;
}

mode_t currentMask()
{
    const mode_t mask = umask(0);
    umask(mask);
    return mask;
}

std::vector<void (*)(int)> currentHandlers()
{
    std::vector<void (*)(int)> handlers;
    for (int number = 1; number < NSIG; ++number) {
        struct sigaction action = {};
        handlers.push_back(sigaction(number, nullptr, &action) == 0 ? action.sa_handler : nullptr);
    }
    return handlers;
}

std::string currentlyBlocked()
{
    sigset_t blocked;
    sigprocmask(SIG_SETMASK, nullptr, &blocked);
    std::string result;
    for (int number = 1; number < NSIG; ++number)
        result += sigismember(&blocked, number) == 1 ? '1' : '0';
    return result;
}

std::vector<std::string> currentEnvironment()
{
    std::vector<std::string> result;
    for (char** entry = environ; *entry; ++entry)
        result.emplace_back(*entry);
    return result;
}

// Open files that a program started from here would get.
int inheritedFiles()
{
    constexpr int kHighest = 1024;
    int count = 0;
    for (int file = 0; file < kHighest; ++file) {
        const int flags = fcntl(file, F_GETFD);
        count += flags >= 0 && !(flags & FD_CLOEXEC);
    }
    return count;
}

CState currentState()
{
    char folder[4096] = "";
    CState state;
    state.locale = std::setlocale(LC_ALL, nullptr);
    state.decimalPoint = std::localeconv()->decimal_point;
    state.environment = currentEnvironment();
    state.signalHandlers = currentHandlers();
    state.blockedSignals = currentlyBlocked();
    state.folder = getcwd(folder, sizeof folder) ? folder : "";
    state.mask = currentMask();
    state.rounding = std::fegetround();
    state.traps = fegetexcept();
    state.threads = entriesOf("/proc/self/task");
    state.inherited = inheritedFiles();
    return state;
}

int failures = 0;

void expect(bool isSame, const char* what)
{
    if (isSame)
        return;
    ++failures;
    std::fprintf(stderr, "opening the library changed %s\n", what);
}

void compare(const CState& before, const CState& after)
{
    expect(before.locale == after.locale, "the C locale");
    expect(before.decimalPoint == after.decimalPoint, "the decimal point");
    expect(before.environment == after.environment, "the environment");
    expect(before.signalHandlers == after.signalHandlers, "a signal handler");
    expect(before.blockedSignals == after.blockedSignals, "the blocked signals");
    expect(before.folder == after.folder, "the working directory");
    expect(before.mask == after.mask, "the umask");
    expect(before.rounding == after.rounding, "the rounding mode");
    expect(before.traps == after.traps, "the traps of floating-point numbers");
    expect(before.threads == after.threads, "the number of threads");
    expect(before.inherited == after.inherited, "the files that a child inherits");
}

// States that differ from what a process starts with.
void takeUncommonState()
{
    std::setlocale(LC_NUMERIC, "C");
    std::setlocale(LC_CTYPE, "C.UTF-8");
    std::signal(SIGPIPE, SIG_IGN);
    sigset_t blocked;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGUSR1);
    sigprocmask(SIG_BLOCK, &blocked, nullptr);
    umask(0123);
    std::fesetround(FE_TOWARDZERO);
    feenableexcept(FE_ALL_EXCEPT);
}

} // namespace

int main(int, char** arguments)
{
    takeUncommonState();
    const CState before = currentState();
    const CModule module(MODULE);
    compare(before, currentState());
    std::fesetround(FE_TONEAREST);
    umask(022);
    return module.draw(arguments[1], "state") && failures == 0 ? 0 : 1;
}
