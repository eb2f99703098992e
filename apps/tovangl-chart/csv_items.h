// SPDX-License-Identifier: MIT
/// @file
/// Reads items from a file of comma-separated values.
#ifndef TOVANGL_CHART_CSV_ITEMS_H
#define TOVANGL_CHART_CSV_ITEMS_H

#include "tovangl-chart/ChartItem.h"
#include "tovangl-chart/ItemSource.h"

namespace tovangl::program {

/// Reads an item from each record after the header. An empty file has no items: some clients write
/// no header above nothing. A record may lack fields at its end that no item needs, but one with
/// more fields than the header is refused, because a comma that is not quoted moves the fields.
/// White space around numbers, colours and the names of columns is skipped. A caption may be empty,
/// and becomes one line.
///
/// Throws CFailure with the place, the column and the reason.
[[nodiscard]] ChartItems readCsvItems(const std::string& path, const CsvColumns& columns);

} // namespace tovangl::program

#endif
