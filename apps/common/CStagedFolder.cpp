// SPDX-License-Identifier: MIT
// A folder of results that appears under its name only when it is complete.
#include "common/CStagedFolder.h"

#include "common/CFailure.h"
#include "common/COpenFile.h"
#include "common/text_checks.h"

#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace tovangl::program {

namespace {

namespace fs = std::filesystem;

// The absolute path, with links resolved as far as it exists. A path that ends in a slash has an
// empty last part, which cannot be renamed.
fs::path placeOf(const std::string& path)
{
    std::error_code error;
    const fs::path place = fs::weakly_canonical(fs::absolute(path, error), error);
    if (error)
        throw systemFailure(path, error.value());
    return place.has_filename() ? place : place.parent_path();
}

bool requireFree(const std::string& name, const fs::path& place,
                 CStagedFolder::MayReplace mayReplace)
{
    std::error_code error;
    const fs::file_status status = fs::symlink_status(place, error);
    if (status.type() == fs::file_type::not_found)
        return false;
    if (error)
        throw systemFailure(name, error.value());
    if (!fs::is_directory(status))
        throw CFailure(makePrintable(name) + ": exists already, and is not a folder");
    const bool isEmpty = fs::is_empty(place, error);
    if (error)
        throw systemFailure(name, error.value());
    if (!isEmpty && !mayReplace(place))
        throw CFailure(makePrintable(name) + ": the folder holds other files; name a new one");
    return true;
}

} // namespace

CStagedFolder::CStagedFolder(const std::string& path, MayReplace mayReplace)
    : m_name(path)
    , m_target(placeOf(path))
    , m_isReplacing(requireFree(m_name, m_target, mayReplace))
{
    if (::access(m_target.parent_path().c_str(), W_OK | X_OK) != 0)
        throw systemFailure(m_name);
}

CStagedFolder::~CStagedFolder()
{
    std::error_code ignored;
    if (!m_provisional.empty())
        fs::remove_all(m_provisional, ignored);
}

void CStagedFolder::write(const std::string& name, std::string_view bytes)
{
    if (m_provisional.empty())
        makeProvisional();
    constexpr int kNewFile = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
    const fs::path path = m_provisional / name;
    COpenFile file(::open(path.c_str(), kNewFile, kNewFilePermissions), m_name + '/' + name);
    file.write(bytes);
    file.close();
}

void CStagedFolder::publish()
{
    if (m_isReplacing) {
        exchange();
        return;
    }
    if (::rename(m_provisional.c_str(), m_target.c_str()) != 0)
        throw systemFailure(m_name);
    m_provisional.clear();
}

void CStagedFolder::makeProvisional()
{
    std::string path = m_target.parent_path() / ".tovangl-XXXXXX";
    if (!::mkdtemp(path.data()))
        throw systemFailure(m_name);
    m_provisional = path;
    if (::chmod(path.c_str(), maskedPermissions(kNewFolderPermissions)) != 0)
        throw systemFailure(m_name);
}

// The old folder ends up under the provisional name, and the destructor removes it. If the file
// system cannot exchange two folders atomically, neither exists for a moment.
void CStagedFolder::exchange()
{
    if (::renameat2(AT_FDCWD, m_provisional.c_str(), AT_FDCWD, m_target.c_str(), RENAME_EXCHANGE) ==
        0)
        return;
    const fs::path old = m_provisional.string() + "-old";
    std::error_code error;
    fs::rename(m_target, old, error);
    if (error)
        throw systemFailure(m_name, error.value());
    fs::rename(m_provisional, m_target, error);
    if (error) {
        std::error_code ignored;
        fs::rename(old, m_target, ignored);
        throw systemFailure(m_name, error.value());
    }
    m_provisional = old;
}

} // namespace tovangl::program
