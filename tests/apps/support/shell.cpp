// SPDX-License-Identifier: MIT
// Runs commands as a user types them.
#include "apps/support/shell.h"

#include <cstdlib>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tovangl::program {

namespace {

constexpr int kFirstSignalStatus = 128;

int shellStatus(int waitStatus)
{
    if (WIFSIGNALED(waitStatus))
        return kFirstSignalStatus + WTERMSIG(waitStatus);
    return WEXITSTATUS(waitStatus);
}

} // namespace

ShellResult runShell(const CTemporaryFolder& folder, const std::string& command)
{
    const CTemporaryFolder streams;
    const std::string script = "export PATH='" TOVANGL_PROGRAM_FOLDER "':\"$PATH\" "
                               "FONTCONFIG_FILE='" TOVANGL_PINNED_FONTS "'\n"
                               "exec </dev/null >'" +
                               streams.pathOf("output") + "' 2>'" + streams.pathOf("errors") +
                               "'\ncd '" + folder.path() + "'\n" + command + '\n';
    const int waitStatus = std::system(script.c_str());
    return {shellStatus(waitStatus), streams.read("output"), streams.read("errors")};
}

bool hasTerminals()
{
    const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY);
    if (terminal >= 0)
        ::close(terminal);
    return terminal >= 0;
}

} // namespace tovangl::program
