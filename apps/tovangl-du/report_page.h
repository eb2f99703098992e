// SPDX-License-Identifier: MIT
/// @file
/// The page of one folder.
#ifndef TOVANGL_DU_REPORT_PAGE_H
#define TOVANGL_DU_REPORT_PAGE_H

#include "tovangl-du/FolderSummary.h"
#include "tovangl-du/ReportFile.h"
#include "tovangl-du/folder_walk.h"
#include "tovangl-du/report_pictures.h"
#include "tovangl-du/report_rows.h"

#include <string>
#include <vector>

namespace tovangl::program {

/// The generator that the head of a page names.
inline constexpr const char* kGenerator = "tovangl-du";
inline constexpr const char* kStyleName = "style.css";
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
    std::string pictureStem;    ///< the names of the pictures' files start with it
    const std::vector<UnreadablePlace>& unreadable; ///< listed if the folder is the root
    std::string time;                               ///< of the walk
    ReportLook look = {};
};

/// The page itself, first, and the files that its pictures need.
[[nodiscard]] ReportFiles makePage(const PageContents& contents, const PageOf& pageOf);

} // namespace tovangl::program

#endif
