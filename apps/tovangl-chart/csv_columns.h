// SPDX-License-Identifier: MIT
/// @file
/// Finds the columns of a CSV file that make an item.
#ifndef TOVANGL_CHART_CSV_COLUMNS_H
#define TOVANGL_CHART_CSV_COLUMNS_H

#include "tovangl-chart/ItemSource.h"
#include "tovangl-chart/csv_records.h"

#include <cstddef>
#include <optional>

namespace tovangl::program {

/// Columns, counted from 0.
struct ItemColumns
{
    std::size_t value = 0;
    std::size_t caption = 0;
    std::optional<std::size_t> color;
};

/// The columns that are wanted. A name comes before a number: in a table with a column for each
/// year, "2020" is that year's. What is not wanted by name or number is the first column that is
/// free, first the caption and then the value; without a wanted colour there is none.
///
/// Throws CFailure, with a list of the columns, if there is no such column or more than one.
[[nodiscard]] ItemColumns findItemColumns(const CsvFields& header, const CsvColumns& wanted);

/// A column for messages: 2 "amount".
[[nodiscard]] std::string columnText(const CsvFields& header, std::size_t column);

} // namespace tovangl::program

#endif
