// SPDX-License-Identifier: MIT
// Lines for a batch of charts, and what becomes of them.
#include "apps/support/batch_lines.h"

namespace tovangl::program {

std::string chartLine(const std::string& id, const std::string& fields)
{
    return R"({"chart": "bars", "id": ")" + id +
           R"(", "width": 120, "height": 90, "items": [{"value": 7, "caption": "x"}])" + fields +
           "}\n";
}

std::string manyLines(int count)
{
    std::string lines;
    for (int i = 0; i < count; ++i)
        lines += chartLine("c" + std::to_string(i), ", \"title\": \"" + std::to_string(i) + '"');
    return lines;
}

ShellResult runLines(const CTemporaryFolder& folder, const std::string& lines,
                     const std::string& options)
{
    folder.write("lines", lines);
    return runShell(folder, "tovangl-chart batch lines " + options);
}

} // namespace tovangl::program
