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

/// The family of the texts where the user has none of their own.
inline constexpr const char* kReportFontFamily = "DejaVu Sans";

/// What to say if pictures have no letters, because there is no font; empty if they have some.
[[nodiscard]] std::string lackOfLetters(const std::string& fontFamily);

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
/// @param fontFamily  of the texts
[[nodiscard]] ReportPicture drawPie(const ReportRows& rows, long total, const char* name,
                                    const std::string& fontFamily);
[[nodiscard]] ReportPicture drawLyingBars(const ReportRows& rows, long total, const char* name,
                                          const std::string& fontFamily);
[[nodiscard]] ReportPicture drawUprightBars(const ReportRows& rows, long total, const char* name,
                                            const std::string& fontFamily);

} // namespace tovangl::program

#endif
