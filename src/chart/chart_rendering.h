// SPDX-License-Identifier: MIT
/// @file
/// One rendering of a chart, from its input to the bytes of a picture.
#ifndef TOVANGL_CHART_CHART_RENDERING_H
#define TOVANGL_CHART_CHART_RENDERING_H

#include "output/CPictureFile.h"

namespace tovangl {

class CGraph1dBase;

/// Renders for the screen. A picture that cannot be made has no bytes, and the chart's problem says
/// why. Only std::bad_alloc can leave this call.
///
/// @return the file, which the chart keeps until its next rendering
const CPictureFile& renderPicture(CGraph1dBase& graph, int width, int height);

/// Renders the same picture as SVG.
const CPictureFile& renderSvg(CGraph1dBase& graph, int width, int height);

/// The same for print, at factor times the resolution.
const CPictureFile& renderForPrinter(CGraph1dBase& graph, int width, int height, int factor);

/// The same for print as PDF, on a page of that many points.
const CPictureFile& renderPdf(CGraph1dBase& graph, int width, int height);

} // namespace tovangl

#endif
