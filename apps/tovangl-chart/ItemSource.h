// SPDX-License-Identifier: MIT
/// @file
/// Where the items come from, as the options say.
#ifndef TOVANGL_CHART_ITEMSOURCE_H
#define TOVANGL_CHART_ITEMSOURCE_H

#include <optional>
#include <string>

namespace tovangl::program {

/// Columns of a CSV file, each by its name in the header or by its number from 1.
struct CsvColumns
{
    std::optional<std::string> value;
    std::optional<std::string> caption;
    std::optional<std::string> color;
};

struct ItemSource
{
    std::string path = "-"; ///< standard input
    bool csv = false;       ///< rather than lines
    CsvColumns columns;
};

} // namespace tovangl::program

#endif
