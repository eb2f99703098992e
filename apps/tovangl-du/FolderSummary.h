// SPDX-License-Identifier: MIT
/// @file
/// What the report shows about one folder.
#ifndef TOVANGL_DU_FOLDERSUMMARY_H
#define TOVANGL_DU_FOLDERSUMMARY_H

#include "tovangl-du/CLargest.h"
#include "tovangl-du/CMonthTable.h"

#include <cstdint>
#include <string>

namespace tovangl::program {

/// Identifies a folder; 0 means none.
using FolderId = std::uint64_t;

/// Something that lies directly in a folder.
struct ListedChild
{
    std::string name; ///< any bytes
    long bytes;       ///< for a folder, including everything below it
    FolderId folder;  ///< 0 for a file
};

/// A file somewhere below a folder.
struct ListedFile
{
    std::string name; ///< path from the folder, any bytes
    long bytes;
};

/// How many entries of each kind a folder keeps: what a page can list.
inline constexpr std::size_t kListedChildren = 100;
inline constexpr std::size_t kListedFiles = 20;

/// Sums over everything below the folder, in memory that does not grow with its content.
struct FolderSummary
{
    FolderSummary(FolderId folder, std::string pathFromRoot, int levels, MonthNumber currentMonth)
        : id(folder)
        , path(std::move(pathFromRoot))
        , depth(levels)
        , months(currentMonth)
    {}

    FolderId id;
    std::string path; ///< from the root of the walk; empty for that
    int depth;        ///< 0: the root of the walk
    long bytes = 0;
    std::uint64_t files = 0;
    std::uint64_t folders = 0;    ///< without itself
    std::uint64_t unreadable = 0; ///< files and folders that could not be read
    CLargest<ListedChild> children{kListedChildren};
    CLargest<ListedFile> largestFiles{kListedFiles};
    CMonthTable months;
};

} // namespace tovangl::program

#endif
