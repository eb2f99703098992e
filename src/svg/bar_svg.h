// SPDX-License-Identifier: MIT
/// @file
/// Writes a laid-out bar chart as SVG.
#ifndef TOVANGL_SVG_BAR_SVG_H
#define TOVANGL_SVG_BAR_SVG_H

namespace tovangl {

struct CBarLayout;
struct CSvgScene;

/// @param layout  of a chart that fits into its picture
void writeBars(CSvgScene& scene, const CBarLayout& layout);

} // namespace tovangl

#endif
