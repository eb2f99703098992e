// SPDX-License-Identifier: MIT
/// @file
/// A folder of results that appears under its name when it is complete.
#ifndef TOVANGL_COMMON_CSTAGEDFOLDER_H
#define TOVANGL_COMMON_CSTAGEDFOLDER_H

#include <filesystem>
#include <string>
#include <string_view>

namespace tovangl::program {

/// Files are written into a folder under another name beside the place of the new one. It takes
/// that place, and what stood there goes, when publish() is called; without that nothing is left
/// behind. Every operation throws CFailure where the system refuses it.
class CStagedFolder
{
public:
    /// What may be replaced: told by whoever knows the results.
    using MayReplace = bool (*)(const std::filesystem::path& folder);

    /// Throws where something stands at the path that may not be replaced (an empty folder may be),
    /// or where no folder can be made. Nothing is made yet.
    CStagedFolder(const std::string& path, MayReplace mayReplace);
    ~CStagedFolder();

    CStagedFolder(const CStagedFolder&) = delete;
    CStagedFolder& operator=(const CStagedFolder&) = delete;

    void write(const std::string& name, std::string_view bytes);

    /// Moves the folder, which has files by now, to its place.
    void publish();

private:
    void makeProvisional();
    void exchange();

    std::string m_name;
    std::filesystem::path m_target;
    std::filesystem::path m_provisional; // empty: none, or moved away
    bool m_isReplacing;
};

} // namespace tovangl::program

#endif
