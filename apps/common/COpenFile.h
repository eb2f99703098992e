// SPDX-License-Identifier: MIT
/// @file
/// A file that is being written.
#ifndef TOVANGL_COMMON_COPENFILE_H
#define TOVANGL_COMMON_COPENFILE_H

#include <string>
#include <string_view>
#include <sys/types.h>

namespace tovangl::program {

/// The permissions of new files and folders, before the process's mask is taken off.
inline constexpr mode_t kNewFilePermissions = 0666;
inline constexpr mode_t kNewFolderPermissions = 0777;

/// The permissions without those that the process's mask forbids.
[[nodiscard]] mode_t maskedPermissions(mode_t permissions);

/// An open file, closed at the latest with this object. Every operation throws CFailure, with the
/// name, where the system refuses it.
class COpenFile
{
public:
    /// @param file  as open() returned it; -1, with errno still set, is a failure
    /// @param name  for messages
    COpenFile(int file, std::string name);
    ~COpenFile();

    COpenFile(const COpenFile&) = delete;
    COpenFile& operator=(const COpenFile&) = delete;

    void write(std::string_view bytes) const;
    void setPermissions(mode_t permissions) const;
    /// Some file systems cannot promise anything here, which is no failure of this file.
    void bringToDisk() const;
    /// Late errors, such as those of a disk across the network, show here.
    void close();

private:
    int m_file;
    std::string m_name;
};

} // namespace tovangl::program

#endif
