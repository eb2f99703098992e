// SPDX-License-Identifier: MIT
// A host that cannot draw, and asks why: problem_host FOLDER plugin|memory
#include "draw_pie.h"

#include <cstring>
#include <sys/resource.h>

namespace {

// Far less than the picture needs, and far more than the host.
void limitMemory()
{
    const rlimit limit = {1 << 30, 1 << 30}; // bytes
    setrlimit(RLIMIT_AS, &limit);
}

} // namespace

int main(int, char** arguments)
{
    const bool lacksMemory = std::strcmp(arguments[2], "memory") == 0;
    if (lacksMemory)
        limitMemory();
    constexpr int kLargeSide = 20000;
    const PieExport pie = exportPie(kLargeSide, kLargeSide);
    const tovangl::Problem expected =
        lacksMemory ? tovangl::Problem::NoMemory : tovangl::Problem::NoPlatformPlugin;
    return pie.bytes.empty() && pie.problem == expected ? 0 : 1;
}
