// SPDX-License-Identifier: MIT
// Writes the JSON Schema of a chart's description while the programs are built: chart_schema FILE
#include "common/output_files.h"
#include "common/program_frame.h"
#include "tovangl-chart/description_schema.h"

#include <cstdlib>

int main(int count, char** arguments)
{
    if (count != 2)
        return tovangl::program::kExitFailure;
    return tovangl::program::runProgram("chart_schema", [path = arguments[1]] {
        const std::string schema = tovangl::program::descriptionSchema();
        tovangl::program::writeOutputs({{path, schema}});
        return EXIT_SUCCESS;
    });
}
