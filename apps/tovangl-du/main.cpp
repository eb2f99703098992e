// SPDX-License-Identifier: MIT
// tovangl-du: shows in pages where the space of a disk goes.
#include "common/program_frame.h"
#include "tovangl-du/command_line.h"
#include <tovangl/Version.h>

int main(int count, char** arguments)
{
    return tovangl::program::runProgram("tovangl-du", [count, arguments] {
        tovangl::program::runDiskUsage(count, arguments, tovangl::version());
    });
}
