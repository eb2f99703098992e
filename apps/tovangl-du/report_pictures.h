// SPDX-License-Identifier: MIT
/// @file
/// The pictures of the report, with their image maps.
#ifndef TOVANGL_DU_REPORT_PICTURES_H
#define TOVANGL_DU_REPORT_PICTURES_H

#include "common/image_map.h"
#include "tovangl-du/ReportRow.h"

#include <string>

namespace tovangl::program {

/// Picture pixels, each way, for each pixel of the page, in the picture for dense displays.
inline constexpr int kDensity = 2;

struct ReportPicture
{
    std::string png;
    std::string densePng; ///< the same for dense displays
    int width;            ///< in pixels of the page
    int height;
    std::string description; ///< UTF-8, not escaped
    CImageMap map;
};

/// Each draws one item for each row, and links the item's regions to the row's target. Throws
/// CFailure if there is no picture.
///
/// @param total  100 per cent of all shares; above 0
/// @param name   of the image map
[[nodiscard]] ReportPicture drawPie(const ReportRows& rows, long total, const char* name);
[[nodiscard]] ReportPicture drawLyingBars(const ReportRows& rows, long total, const char* name);
[[nodiscard]] ReportPicture drawUprightBars(const ReportRows& rows, long total, const char* name);

} // namespace tovangl::program

#endif
