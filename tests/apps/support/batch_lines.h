// SPDX-License-Identifier: MIT
/// @file
/// Lines for a batch of charts, and what becomes of them.
#ifndef TOVANGL_TESTS_APPS_BATCH_LINES_H
#define TOVANGL_TESTS_APPS_BATCH_LINES_H

#include "apps/support/shell.h"

#include <string>

namespace tovangl::program {

/// A small chart with this id, and more keys: , "title": "x"
[[nodiscard]] std::string chartLine(const std::string& id, const std::string& fields = "");

/// Charts with the ids c0, c1, ..., of which no two look the same.
[[nodiscard]] std::string manyLines(int count);

/// What a batch makes of the lines, which stay in the file "lines".
ShellResult runLines(const CTemporaryFolder& folder, const std::string& lines,
                     const std::string& options = "-o p");

} // namespace tovangl::program

#endif
