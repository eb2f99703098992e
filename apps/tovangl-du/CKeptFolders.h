// SPDX-License-Identifier: MIT
/// @file
/// The folders that get pages.
#ifndef TOVANGL_DU_CKEPTFOLDERS_H
#define TOVANGL_DU_CKEPTFOLDERS_H

#include "tovangl-du/FolderSummary.h"

#include <memory>
#include <vector>

namespace tovangl::program {

/// Limits on the folders that are kept: how many, and how deep.
struct PageLimits
{
    std::size_t pages = 300;
    int depth = 1000000;
};

/// Keeps the largest folders, and the root of the walk. A folder is at least as large as any folder
/// in it, so the parents of a kept folder are kept too.
class CKeptFolders
{
public:
    explicit CKeptFolders(const PageLimits& limits)
        : m_limits(limits)
    {}

    /// Folders can be added in any order; those without bytes are ignored.
    void add(std::unique_ptr<FolderSummary> folder);

    /// Null if that folder is not kept.
    [[nodiscard]] const FolderSummary* find(FolderId id) const;
    [[nodiscard]] std::size_t size() const { return m_folders.size(); }

    /// Must be called after all folders were added and before find().
    void sortById();

private:
    PageLimits m_limits;
    std::vector<std::unique_ptr<FolderSummary>> m_folders; // a heap, the first to go at its front
};

} // namespace tovangl::program

#endif
