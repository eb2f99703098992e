// SPDX-License-Identifier: MIT
// tovangl-du: writes pages that show what takes up the space in a folder.
#include "common/program_frame.h"
#include "tovangl-du/command_line.h"
#include <tovangl/Version.h>

#include <cstdlib>

int main(int count, char** arguments)
{
    return tovangl::program::runProgram("tovangl-du", [count, arguments] {
        tovangl::program::runDiskUsage(count, arguments, tovangl::version());
        return EXIT_SUCCESS;
    });
}
