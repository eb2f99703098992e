// SPDX-License-Identifier: MIT
/// @file
/// The JSON Schema of a chart's description.
#ifndef TOVANGL_CHART_DESCRIPTION_SCHEMA_H
#define TOVANGL_CHART_DESCRIPTION_SCHEMA_H

#include <string>

namespace tovangl::program {

/// The schema (draft 2020-12) of what parseDescription() reads, made from the library's table of
/// settings. It ends in a line break.
[[nodiscard]] std::string descriptionSchema();

} // namespace tovangl::program

#endif
