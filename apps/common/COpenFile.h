// SPDX-License-Identifier: MIT
/// @file
/// A file that is being written.
#ifndef TOVANGL_COMMON_COPENFILE_H
#define TOVANGL_COMMON_COPENFILE_H

#include <string>
#include <string_view>
#include <sys/types.h>

namespace tovangl::program {

/// The permissions of new files and folders, before the process's umask is applied.
inline constexpr mode_t kNewFilePermissions = 0666;
inline constexpr mode_t kNewFolderPermissions = 0777;

/// The permissions that the process's umask leaves.
[[nodiscard]] mode_t maskedPermissions(mode_t permissions);

/// An open file, which the destructor closes if it is still open. Every operation throws CFailure,
/// with the name, if the system refuses it.
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
    /// Some file systems do not support this, which does not count as a failure.
    void bringToDisk() const;
    /// The same for all files that lie on the file system of this one.
    void bringFileSystemToDisk() const;
    /// Late errors, such as those of a network file system, show here.
    void close();

private:
    int m_file;
    std::string m_name;
};

} // namespace tovangl::program

#endif
