// SPDX-License-Identifier: MIT
/// @file
/// Whether a chart's texts are in the font that was asked for.
#ifndef TOVANGL_CHART_FONT_PROBLEM_H
#define TOVANGL_CHART_FONT_PROBLEM_H

#include <tovangl/Problem.h>

#include <QString>

namespace tovangl {

struct CGraph1dSettings;

/// What is wrong with a chart in a font of the machine's: there is none, another family takes the
/// place of the one that the host set, or nothing.
///
/// It loads no font that a chart uses, because that would change which fonts Qt takes characters
/// from in later charts.
[[nodiscard]] Problem installedFontProblem(const CGraph1dSettings& settings);

/// Likewise of a chart in a font of the host's own, with Qt's names for families.
///
/// @param used   the family that the chart is drawn with; empty: there is none
/// @param added  the one that it should be
[[nodiscard]] Problem addedFontProblem(const QString& used, const QString& added);

} // namespace tovangl

#endif
