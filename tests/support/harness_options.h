// SPDX-License-Identifier: MIT
/// @file
/// The options of the harnesses that draw many charts.
#ifndef TOVANGL_SUPPORT_HARNESS_OPTIONS_H
#define TOVANGL_SUPPORT_HARNESS_OPTIONS_H

#include <cstdlib>
#include <string>

namespace tovangl {

struct CHarnessOptions
{
    unsigned charts;
    std::string seededFault; ///< empty if none is to be seeded
};

/// Reads --charts COUNT and --seed-fault NAME, as the scripts write them.
inline CHarnessOptions parseHarnessOptions(int count, char** arguments, unsigned defaultCharts)
{
    CHarnessOptions options{defaultCharts, ""};
    for (int i = 1; i + 1 < count; i += 2) {
        const std::string name = arguments[i];
        if (name == "--charts")
            options.charts = static_cast<unsigned>(std::atoi(arguments[i + 1]));
        if (name == "--seed-fault")
            options.seededFault = arguments[i + 1];
    }
    return options;
}

} // namespace tovangl

#endif
