// SPDX-License-Identifier: MIT
/// @file
/// Places a chart's title, and the chart below it.
#ifndef TOVANGL_LAYOUT_CHART_TITLE_H
#define TOVANGL_LAYOUT_CHART_TITLE_H

#include "layout/CChartTitle.h"

#include <optional>

namespace tovangl {

class CTextMeasurer;
struct CGraph1dSettings;
struct CRequest;

/// The title at the picture's top: one bold line between the margins, shortened to their distance.
///
/// @return none if the title is empty, or if not even its first character fits
[[nodiscard]] std::optional<CChartTitle>
placeTitle(const CGraph1dSettings& settings, const CRequest& request, CTextMeasurer& measurer);

/// Lays out a chart below its title. If there is no room for both, the title is left out.
///
/// @param layOut  int -> layout: lays out a chart that begins in that row of the picture
template <typename LayOut>
[[nodiscard]] auto layOutBelowTitle(const CGraph1dSettings& settings, const CRequest& request,
                                    CTextMeasurer& measurer, const LayOut& layOut)
{
    if (const auto title = placeTitle(settings, request, measurer)) {
        auto layout = layOut(title->chartTop());
        layout.title = title;
        if (layout.fits())
            return layout;
    }
    return layOut(0);
}

} // namespace tovangl

#endif
