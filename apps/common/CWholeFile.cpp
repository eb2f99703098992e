// SPDX-License-Identifier: MIT
// A new file that has no name until all of it is there.
#include "common/CWholeFile.h"

#include "common/CFailure.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <random>
#include <unistd.h>

namespace tovangl::program {

namespace {

// With the slash at its end; empty for the current one.
std::string folderOf(const std::string& path)
{
    return path.substr(0, path.rfind('/') + 1);
}

} // namespace

CWholeFile::CWholeFile(const std::string& path)
    : m_path(path)
    , m_descriptor(open())
    , m_file(m_descriptor, path)
{
    if (!m_provisional.empty())
        m_file.setPermissions(maskedPermissions(kNewFilePermissions));
}

CWholeFile::~CWholeFile()
{
    if (!m_provisional.empty())
        ::unlink(m_provisional.c_str());
}

void CWholeFile::publish()
{
    if (m_provisional.empty()) {
        if (link(m_path)) {
            m_file.close();
            return;
        }
        m_provisional = linkProvisionally();
    }
    m_file.close();
    if (::rename(m_provisional.c_str(), m_path.c_str()) != 0)
        throw systemFailure(m_path);
    m_provisional.clear();
}

int CWholeFile::open()
{
    const std::string folder = folderOf(m_path);
    const int file = ::open(folder.empty() ? "." : folder.c_str(), O_WRONLY | O_TMPFILE | O_CLOEXEC,
                            kNewFilePermissions);
    const bool isUnsupported = errno == EOPNOTSUPP || errno == EISDIR || errno == EINVAL;
    return file < 0 && isUnsupported ? openNamed() : file;
}

int CWholeFile::openNamed()
{
    std::string name = folderOf(m_path) + ".tovangl-XXXXXX";
    const int file = ::mkostemp(name.data(), O_CLOEXEC);
    if (file >= 0)
        m_provisional = name;
    return file;
}

// Only the system's administrator may name a file by its descriptor itself.
bool CWholeFile::link(const std::string& name) const
{
    const std::string descriptor = "/proc/self/fd/" + std::to_string(m_descriptor);
    return ::linkat(AT_FDCWD, descriptor.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

// Another process can have the name already: in containers that share a folder, many have the same
// number, and a killed one leaves its file.
std::string CWholeFile::linkProvisionally() const
{
    constexpr int kMostNames = 100;
    std::random_device random;
    for (int names = 0; names < kMostNames; ++names) {
        std::string name = folderOf(m_path) + ".tovangl-" + std::to_string(random());
        if (link(name))
            return name;
        if (errno != EEXIST)
            break;
    }
    throw systemFailure(m_path);
}

} // namespace tovangl::program
