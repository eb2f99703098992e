// SPDX-License-Identifier: MIT
/// @file
/// A file of the report.
#ifndef TOVANGL_DU_REPORTFILE_H
#define TOVANGL_DU_REPORTFILE_H

#include <string>
#include <vector>

namespace tovangl::program {

struct ReportFile
{
    std::string name;
    std::string bytes;
};

using ReportFiles = std::vector<ReportFile>;

} // namespace tovangl::program

#endif
