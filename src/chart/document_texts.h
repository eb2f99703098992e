// SPDX-License-Identifier: MIT
/// @file
/// What SVG and PDF files say of a chart besides showing it.
#ifndef TOVANGL_CHART_DOCUMENT_TEXTS_H
#define TOVANGL_CHART_DOCUMENT_TEXTS_H

class QFont;

namespace tovangl {

struct CChartSummary;
struct CPdfProperties;
struct CRequest;
struct CSvgFrame;

/// @param font  that the layout was measured with
[[nodiscard]] CSvgFrame svgFrame(const CChartSummary& chart, const CRequest& request,
                                 const QFont& font);
[[nodiscard]] CPdfProperties pdfProperties(const CChartSummary& chart);

} // namespace tovangl

#endif
