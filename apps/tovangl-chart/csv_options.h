// SPDX-License-Identifier: MIT
/// @file
/// The options that say how to read a CSV file.
#ifndef TOVANGL_CHART_CSV_OPTIONS_H
#define TOVANGL_CHART_CSV_OPTIONS_H

#include "tovangl-chart/ItemSource.h"

namespace CLI {
class App;
}

namespace tovangl::program {

/// Adds --csv and the options that choose columns.
void addCsvOptions(CLI::App& command, ItemSource& source);

} // namespace tovangl::program

#endif
