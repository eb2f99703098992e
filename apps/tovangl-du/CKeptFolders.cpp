// SPDX-License-Identifier: MIT
// The folders that get pages.
#include "tovangl-du/CKeptFolders.h"

#include <algorithm>
#include <tuple>

namespace tovangl::program {

namespace {

using Folder = std::unique_ptr<FolderSummary>;

// Of two folders of equal size the outer one stays, because it can contain the other. Otherwise the
// path decides, so that the order in which a file system lists its folders does not matter.
bool staysLonger(const Folder& a, const Folder& b)
{
    const auto rank = [](const FolderSummary& folder) {
        return std::make_tuple(folder.depth != 0, -folder.bytes, folder.depth,
                               std::cref(folder.path));
    };
    return rank(*a) < rank(*b);
}

bool hasLowerId(const Folder& folder, FolderId id)
{
    return folder->id < id;
}

} // namespace

void CKeptFolders::add(Folder folder)
{
    const bool isRoot = folder->depth == 0;
    if (!isRoot && (folder->bytes == 0 || folder->depth > m_limits.depth))
        return;
    m_folders.push_back(std::move(folder));
    std::push_heap(m_folders.begin(), m_folders.end(), staysLonger);
    if (m_folders.size() > m_limits.pages) {
        std::pop_heap(m_folders.begin(), m_folders.end(), staysLonger);
        m_folders.pop_back();
    }
}

void CKeptFolders::sortById()
{
    std::sort(m_folders.begin(), m_folders.end(),
              [](const Folder& a, const Folder& b) { return hasLowerId(a, b->id); });
}

const FolderSummary* CKeptFolders::find(FolderId id) const
{
    const auto place = std::lower_bound(m_folders.begin(), m_folders.end(), id, hasLowerId);
    return place != m_folders.end() && (*place)->id == id ? place->get() : nullptr;
}

} // namespace tovangl::program
