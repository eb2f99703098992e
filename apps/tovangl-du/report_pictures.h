// SPDX-License-Identifier: MIT
/// @file
/// The pictures of the report, with their links.
#ifndef TOVANGL_DU_REPORT_PICTURES_H
#define TOVANGL_DU_REPORT_PICTURES_H

#include "tovangl-du/ReportFile.h"
#include "tovangl-du/ReportRow.h"

#include <string>

namespace tovangl::program {

/// The family of the texts where the user has none of their own.
inline constexpr const char* kReportFontFamily = "DejaVu Sans";
/// The ends of the names of pictures.
inline constexpr const char* kPictureEnding = ".png";
inline constexpr const char* kDensePictureEnding = "-2x.png"; // for dense displays

/// How the pictures of a report are made.
struct ReportLook
{
    std::string fontFamily = kReportFontFamily; ///< of the texts
    bool isSvg = false; ///< whether they are parts of the pages, in shapes and texts
};

/// What to say if pictures have no letters, because there is no font; empty if they have some.
[[nodiscard]] std::string lackOfLetters(const std::string& fontFamily);

struct PictureRequest
{
    const ReportRows& rows; ///< each is an item, whose regions link to the row's target
    long total;             ///< 100 per cent of all shares; above 0
    std::string name;       ///< unique among the pictures of the page; letters only
    std::string fileStem;   ///< the names of the picture's files start with it
    const ReportLook& look;
};

struct ReportPicture
{
    std::string html;  ///< what shows it in the page
    ReportFiles files; ///< that the page needs for it
};

/// Each throws CFailure if there is no picture.
[[nodiscard]] ReportPicture drawPie(const PictureRequest& request);
[[nodiscard]] ReportPicture drawLyingBars(const PictureRequest& request);
[[nodiscard]] ReportPicture drawUprightBars(const PictureRequest& request);

} // namespace tovangl::program

#endif
