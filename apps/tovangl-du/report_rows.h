// SPDX-License-Identifier: MIT
/// @file
/// What the tables and pictures of a folder's page show.
#ifndef TOVANGL_DU_REPORT_ROWS_H
#define TOVANGL_DU_REPORT_ROWS_H

#include "tovangl-du/FolderSummary.h"
#include "tovangl-du/ReportRow.h"

#include <functional>
#include <map>

namespace tovangl::program {

/// The page of a folder; empty if it has none.
using PageOf = std::function<std::string(FolderId)>;

struct ChildRows
{
    ReportRows table; ///< the largest first; the last row sums up what is not listed
    ReportRows pie;   ///< the largest, and one for all others
    /// The colours of the children that the pie shows, by name.
    std::map<std::string, Color> colors;
};

/// What lies directly in the folder. Folders link to their pages.
[[nodiscard]] ChildRows childRows(const FolderSummary& folder, const PageOf& pageOf);

/// The largest files below the folder, each in the colour of the child that it lies in.
[[nodiscard]] ReportRows fileRows(const FolderSummary& folder, const ChildRows& children);

[[nodiscard]] ReportRows monthRows(const FolderSummary& folder);

} // namespace tovangl::program

#endif
