// SPDX-License-Identifier: MIT
/// @file
/// The page of one folder.
#ifndef TOVANGL_DU_REPORT_PAGE_H
#define TOVANGL_DU_REPORT_PAGE_H

#include "tovangl-du/FolderSummary.h"
#include "tovangl-du/folder_walk.h"
#include "tovangl-du/report_pictures.h"
#include "tovangl-du/report_rows.h"

#include <string>
#include <vector>

namespace tovangl::program {

/// The generator that the head of a page names.
inline constexpr const char* kGenerator = "tovangl-du";
inline constexpr const char* kStyleName = "style.css";
/// The ends of the names of pictures.
inline constexpr const char* kPictureEnding = ".png";
inline constexpr const char* kDensePictureEnding = "-2x.png"; // for dense displays
/// The content of the style file.
[[nodiscard]] std::string reportStyle();

/// A folder on the way to the page's own.
struct PathPart
{
    std::string name; ///< any bytes
    std::string page; ///< its file name
};

struct PageContents
{
    const FolderSummary& folder;
    std::vector<PathPart> path; ///< from the root of the walk to this folder, both included
    std::string pictureStem;    ///< the pictures' names start with it
    const std::vector<UnreadablePlace>& unreadable; ///< listed if the folder is the root
    std::string time;                               ///< of the walk
    std::string fontFamily = kReportFontFamily;     ///< of the pictures
};

/// A file of the report.
struct ReportFile
{
    std::string name;
    std::string bytes;
};

/// The page itself, first, and its pictures.
[[nodiscard]] std::vector<ReportFile> makePage(const PageContents& contents, const PageOf& pageOf);

} // namespace tovangl::program

#endif
