// SPDX-License-Identifier: MIT
// A file that is being written.
#include "common/COpenFile.h"

#include "common/CFailure.h"

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tovangl::program {

namespace {

constexpr int kNoFile = -1;

} // namespace

mode_t maskedPermissions(mode_t permissions)
{
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return permissions & ~mask;
}

COpenFile::COpenFile(int file, std::string name)
    : m_file(file)
    , m_name(std::move(name))
{
    if (m_file < 0)
        throw systemFailure(m_name);
}

COpenFile::~COpenFile()
{
    if (m_file != kNoFile)
        ::close(m_file);
}

void COpenFile::write(std::string_view bytes) const
{
    while (!bytes.empty()) {
        const ssize_t count = ::write(m_file, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            throw systemFailure(m_name);
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

void COpenFile::setPermissions(mode_t permissions) const
{
    if (::fchmod(m_file, permissions) != 0)
        throw systemFailure(m_name);
}

void COpenFile::bringToDisk() const
{
    if (::fsync(m_file) != 0 && errno != EINVAL && errno != ENOTSUP)
        throw systemFailure(m_name);
}

void COpenFile::bringFileSystemToDisk() const
{
    if (::syncfs(m_file) != 0)
        throw systemFailure(m_name);
}

void COpenFile::close()
{
    if (::close(std::exchange(m_file, kNoFile)) != 0)
        throw systemFailure(m_name);
}

} // namespace tovangl::program
