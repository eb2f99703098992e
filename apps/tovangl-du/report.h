// SPDX-License-Identifier: MIT
/// @file
/// The folder of pages.
#ifndef TOVANGL_DU_REPORT_H
#define TOVANGL_DU_REPORT_H

#include "common/CStagedFolder.h"
#include "tovangl-du/folder_walk.h"
#include "tovangl-du/report_pictures.h"

#include <functional>
#include <string>

namespace tovangl::program {

/// The first page of the report.
inline constexpr const char* kFirstPage = "index.html";

/// Whether a folder holds only what this program writes, so that a new report may replace it.
[[nodiscard]] bool isReport(const std::filesystem::path& folder);

/// Writes a page for each folder that was kept and can be reached from the first one by links.
///
/// @param rootName  the name of the root of the walk
/// @param now       seconds since the start of 1970
/// @param report    called before each page with its number
/// @return the number of pages
std::size_t writeReport(const WalkResult& walk, const std::string& rootName, std::int64_t now,
                        const ReportLook& look, CStagedFolder& folder,
                        const std::function<void(std::size_t)>& report);

} // namespace tovangl::program

#endif
