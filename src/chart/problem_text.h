// SPDX-License-Identifier: MIT
/// @file
/// What was wrong with a rendering, in words.
#ifndef TOVANGL_CHART_PROBLEM_TEXT_H
#define TOVANGL_CHART_PROBLEM_TEXT_H

#include <tovangl/Problem.h>

namespace tovangl {

/// One English sentence; empty if there is no problem.
[[nodiscard]] const char* problemSentence(Problem problem);
/// The same of a PDF page, which has limits of its own.
[[nodiscard]] const char* pageProblemSentence(Problem problem);

} // namespace tovangl

#endif
