// SPDX-License-Identifier: MIT
/// @file
/// Writes a laid-out pie as SVG.
#ifndef TOVANGL_SVG_PIE_SVG_H
#define TOVANGL_SVG_PIE_SVG_H

namespace tovangl {

struct CPieLayout;
struct CSvgScene;

/// @param layout  of a pie that fits into its picture
void writePie(CSvgScene& scene, const CPieLayout& layout);

} // namespace tovangl

#endif
