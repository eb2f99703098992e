// SPDX-License-Identifier: MIT
/// @file
/// A new file that has no name until all of it is there.
#ifndef TOVANGL_COMMON_CWHOLEFILE_H
#define TOVANGL_COMMON_CWHOLEFILE_H

#include "common/COpenFile.h"

#include <string>
#include <string_view>

namespace tovangl::program {

/// Until publish(), nothing is to be seen, not even if the process is killed; on a file system that
/// has no files without a name (NFS), a killed process leaves a ".tovangl-XXXXXX". Two processes
/// can write the same path: each file is whole, and the later one stays. Every operation throws
/// CFailure if the system refuses it.
class CWholeFile
{
public:
    /// @param path  a link there is replaced, not followed
    explicit CWholeFile(const std::string& path);
    ~CWholeFile();

    CWholeFile(const CWholeFile&) = delete;
    CWholeFile& operator=(const CWholeFile&) = delete;

    void write(std::string_view bytes) const { m_file.write(bytes); }
    /// Waits until what was written survives a failure of the machine.
    void bringToDisk() const { m_file.bringToDisk(); }

    /// Gives the file its name, and replaces what was there.
    void publish();

private:
    [[nodiscard]] int open();
    [[nodiscard]] int openNamed();
    [[nodiscard]] bool link(const std::string& name) const;
    [[nodiscard]] std::string linkProvisionally() const;

    std::string m_path;
    std::string m_provisional; // empty: no name yet, or no more
    int m_descriptor;          // owned by m_file
    COpenFile m_file;
};

} // namespace tovangl::program

#endif
