// SPDX-License-Identifier: MIT
// tovangl-chart: draws a chart of numbers as a PNG picture.
#include "common/program_frame.h"
#include "tovangl-chart/command_line.h"
#include <tovangl/Version.h>

int main(int count, char** arguments)
{
    return tovangl::program::runProgram("tovangl-chart", [count, arguments] {
        return tovangl::program::runCommandLine(count, arguments, tovangl::version());
    });
}
