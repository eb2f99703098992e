// SPDX-License-Identifier: MIT
/// @file
/// Paths and pens in the operators of a PDF page.
#ifndef TOVANGL_PDF_PATH_OPERATORS_H
#define TOVANGL_PDF_PATH_OPERATORS_H

#include <string>

class QPainterPath;
class QPen;

namespace tovangl {

/// The operators that make a path; what is done with it comes after them.
[[nodiscard]] std::string pathOperators(const QPainterPath& path);

/// The operators that set a pen's width, ends, corners and dashes, but not its colour.
[[nodiscard]] std::string penOperators(const QPen& pen);

} // namespace tovangl

#endif
