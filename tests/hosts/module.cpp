// SPDX-License-Identifier: MIT
// A plugin that links the chart library.
#include "draw_pie.h"

extern "C" __attribute__((visibility("default"))) bool drawPieInModule(const char* folder,
                                                                       const char* name)
{
    return drawPie(folder, name);
}

extern "C" __attribute__((visibility("default"))) bool drawsPieInModule()
{
    return !exportPie().bytes.empty();
}
