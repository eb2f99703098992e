// SPDX-License-Identifier: MIT
/// @file
/// A folder of a test's own.
#ifndef TOVANGL_TESTS_APPS_CTEMPORARYFOLDER_H
#define TOVANGL_TESTS_APPS_CTEMPORARYFOLDER_H

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>

namespace tovangl::program {

using Names = std::set<std::string>;

/// Empty at first, and gone with this object.
class CTemporaryFolder
{
public:
    CTemporaryFolder()
    {
        std::string path = std::filesystem::temp_directory_path() / "tovangl-test-XXXXXX";
        if (!::mkdtemp(path.data()))
            throw std::runtime_error("cannot make a folder like " + path);
        m_path = path;
    }

    ~CTemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    CTemporaryFolder(const CTemporaryFolder&) = delete;
    CTemporaryFolder& operator=(const CTemporaryFolder&) = delete;

    [[nodiscard]] std::string path() const { return m_path; }

    [[nodiscard]] std::string pathOf(const std::string& name) const { return m_path / name; }

    void write(const std::string& name, const std::string& text) const
    {
        std::ofstream(pathOf(name), std::ios::binary) << text;
    }

    [[nodiscard]] std::string read(const std::string& name) const
    {
        std::ifstream file(pathOf(name), std::ios::binary);
        std::ostringstream bytes;
        bytes << file.rdbuf();
        return bytes.str();
    }

    /// The names of everything in the folder, or in a folder of it.
    [[nodiscard]] Names names(const std::string& below = "") const
    {
        Names result;
        for (const auto& entry : std::filesystem::directory_iterator(m_path / below))
            result.insert(entry.path().filename());
        return result;
    }

private:
    std::filesystem::path m_path;
};

} // namespace tovangl::program

#endif
