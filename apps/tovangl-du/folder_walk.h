// SPDX-License-Identifier: MIT
/// @file
/// Walks a folder and sums up what lies below it.
#ifndef TOVANGL_DU_FOLDER_WALK_H
#define TOVANGL_DU_FOLDER_WALK_H

#include "tovangl-du/CKeptFolders.h"

#include <functional>
#include <string>
#include <vector>

namespace tovangl::program {

struct WalkOptions
{
    std::string root;
    bool isOneFileSystem = false;
    PageLimits limits;
    std::int64_t now = 0; ///< seconds since the start of 1970
};

/// A file or folder that could not be read.
struct UnreadablePlace
{
    std::string path; ///< any bytes
    std::string reason;
};

/// How many such places are listed by name.
inline constexpr std::size_t kToldUnreadable = 20;

/// The progress of a walk.
struct WalkProgress
{
    std::uint64_t files = 0;
    std::uint64_t folders = 0;
    long bytes = 0;
    const std::string& path; ///< of the folder that is being read
};

struct WalkResult
{
    CKeptFolders folders;
    FolderId root = 0;
    std::vector<UnreadablePlace> unreadable; ///< the first of them
};

/// Symbolic links are not followed, except the root itself. Anything but files and folders is
/// ignored. A file with several hard links counts under each name. Memory does not grow with the
/// number of files and folders, and the walk goes as deep as the length of paths allows. Throws
/// CFailure if the root cannot be read.
///
/// @param report  called before each entry
[[nodiscard]] WalkResult walkFolder(const WalkOptions& options,
                                    const std::function<void(const WalkProgress&)>& report);

} // namespace tovangl::program

#endif
