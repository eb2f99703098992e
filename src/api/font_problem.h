// SPDX-License-Identifier: MIT
/// @file
/// Whether a chart's texts are in the font that was asked for.
#ifndef TOVANGL_API_FONT_PROBLEM_H
#define TOVANGL_API_FONT_PROBLEM_H

#include <tovangl/Problem.h>

#include <QString>

namespace tovangl {

struct CGraph1dSettings;

/// What is wrong with the font that a chart is drawn with: it has no letters, another family takes
/// the place of the one that the host set, or nothing.
///
/// @param used   Qt's name for the family that the chart is drawn with; empty: there is none
/// @param added  Qt's name for the host's own family that it should be; empty: an installed one
[[nodiscard]] Problem fontProblem(const CGraph1dSettings& settings, const QString& used,
                                  const QString& added);

} // namespace tovangl

#endif
