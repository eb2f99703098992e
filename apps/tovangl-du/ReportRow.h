// SPDX-License-Identifier: MIT
/// @file
/// One row of a table, and its item in the picture beside it.
#ifndef TOVANGL_DU_REPORTROW_H
#define TOVANGL_DU_REPORTROW_H

#include <tovangl/Color.h>

#include <string>
#include <vector>

namespace tovangl::program {

struct ReportRow
{
    std::string name;    ///< in the table, readable, not escaped
    std::string caption; ///< in the picture, likewise
    std::string link;    ///< a page, or the row's own place
    std::string anchor;  ///< the row's place on the page
    long bytes = 0;
    Color color = {0, 0, 0};
};

using ReportRows = std::vector<ReportRow>;

} // namespace tovangl::program

#endif
