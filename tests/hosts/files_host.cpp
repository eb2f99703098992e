// SPDX-License-Identifier: MIT
// A host that opens the library and draws when it has hardly a file descriptor left, and draws
// again when it has many.
#include "module.h"

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

void limitFiles(rlim_t files)
{
    rlimit limit = {};
    getrlimit(RLIMIT_NOFILE, &limit);
    limit.rlim_cur = files;
    setrlimit(RLIMIT_NOFILE, &limit);
}

bool isEmptyFile(const std::string& path)
{
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 && status.st_size == 0;
}

} // namespace

int main(int, char** arguments)
{
    const std::string folder = arguments[1];
    const std::string early = folder + "/early";
    if (mkdir(early.c_str(), 0700) != 0)
        return 1;
    limitFiles(5); // of which one opens the library, and then the picture
    const CModule module(MODULE);
    const bool isWritten = module.draw(early, "early");
    limitFiles(256);
    return isWritten && isEmptyFile(early + "/early.png") && module.draw(folder, "later") ? 0 : 1;
}
