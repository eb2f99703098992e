// SPDX-License-Identifier: MIT
// A host whose real and effective users differ when it opens the library: user_host FOLDER
// [started] With "started" it has been so from its start, as a program with the setuid bit. Needs
// root.
#include "module.h"

#include <unistd.h>

int main(int count, char** arguments)
{
    constexpr uid_t kNobody = 65534;
    const bool startsAgain = count > 2 && getuid() == 0;
    if (getuid() == 0 && setresuid(kNobody, 0, 0) != 0)
        return 1;
    if (startsAgain)
        return execv("/proc/self/exe", arguments);
    const CModule module(MODULE);
    return module.draw(arguments[1], "user") ? 0 : 2;
}
