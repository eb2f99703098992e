// SPDX-License-Identifier: MIT
/// @file
/// A folder of results that appears under its name only when it is complete.
#ifndef TOVANGL_COMMON_CSTAGEDFOLDER_H
#define TOVANGL_COMMON_CSTAGEDFOLDER_H

#include <filesystem>
#include <string>
#include <string_view>

namespace tovangl::program {

/// Files are first written into a provisional folder beside the final place. publish() moves it
/// there and removes what was there before; without publish() nothing is left behind. Every
/// operation throws CFailure if the system refuses it.
class CStagedFolder
{
public:
    /// Decides which existing folder may be replaced.
    using MayReplace = bool (*)(const std::filesystem::path& folder);

    /// Throws if something at the path may not be replaced (an empty folder always may), or if no
    /// folder can be made there. Makes nothing yet.
    CStagedFolder(const std::string& path, MayReplace mayReplace);
    ~CStagedFolder();

    CStagedFolder(const CStagedFolder&) = delete;
    CStagedFolder& operator=(const CStagedFolder&) = delete;

    void write(const std::string& name, std::string_view bytes);

    /// Moves the folder, which must contain files, to its final place.
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
