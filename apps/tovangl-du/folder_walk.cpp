// SPDX-License-Identifier: MIT
// Walks a folder and sums up what lies below it.
#include "tovangl-du/folder_walk.h"

#include "common/CFailure.h"

#include <cerrno>
#include <filesystem>
#include <limits>
#include <optional>
#include <sys/resource.h>
#include <sys/stat.h>

namespace tovangl::program {

namespace {

namespace fs = std::filesystem;

// A folder that is being read: the walk's position in it, and what it has found so far.
struct COpenFolder
{
    fs::path path;
    fs::directory_iterator next;
    std::unique_ptr<FolderSummary> summary;
};

// Every folder on the way down stays open. A path has up to about two thousand parts, and on many
// systems a process must raise its limit to open that many files.
void allowManyOpenFiles()
{
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return;
    limit.rlim_cur = limit.rlim_max;
    ::setrlimit(RLIMIT_NOFILE, &limit);
}

std::optional<dev_t> fileSystemOf(const fs::path& path)
{
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 ? std::optional(status.st_dev) : std::nullopt;
}

long toBytes(std::uintmax_t size)
{
    constexpr long kMost = std::numeric_limits<long>::max();
    return size > static_cast<std::uintmax_t>(kMost) ? kMost : static_cast<long>(size);
}

std::string joined(const std::string& folder, const std::string& name)
{
    return folder.empty() ? name : folder + '/' + name;
}

class CWalk
{
public:
    using Report = std::function<void(const WalkProgress&)>;

    CWalk(const WalkOptions& options, const Report& report)
        : m_options(options)
        , m_report(report)
        , m_currentMonth(monthOf(options.now))
        , m_rootFileSystem(fileSystemOf(options.root))
        , m_result{CKeptFolders(options.limits), 0, {}}
    {}

    WalkResult run()
    {
        enterRoot();
        while (!m_open.empty()) {
            tell();
            if (m_open.back().next == fs::directory_iterator())
                leaveFolder();
            else
                takeEntry();
        }
        m_result.folders.sortById();
        return std::move(m_result);
    }

private:
    void enterRoot()
    {
        std::error_code error;
        fs::directory_iterator first(m_options.root, error);
        if (error)
            throw systemFailure(m_options.root, error.value());
        auto summary = std::make_unique<FolderSummary>(++m_lastId, "", 0, m_currentMonth);
        m_result.root = summary->id;
        m_open.push_back({m_options.root, std::move(first), std::move(summary)});
    }

    void takeEntry()
    {
        const fs::directory_entry entry = *m_open.back().next;
        advance(m_open.back());
        std::error_code error;
        if (entry.is_symlink(error))
            return;
        if (!error && entry.is_directory(error))
            enterFolder(entry.path());
        else if (!error && entry.is_regular_file(error))
            takeFile(entry.path());
        if (error)
            note(entry.path(), error);
    }

    void advance(COpenFolder& folder)
    {
        std::error_code error;
        folder.next.increment(error);
        if (error) {
            note(folder.path, error);
            folder.next = fs::directory_iterator();
        }
    }

    // The system's own record, because the standard library tells no time after the year 2261.
    void takeFile(const fs::path& path)
    {
        struct stat status = {};
        if (::lstat(path.c_str(), &status) != 0) {
            note(path, std::error_code(errno, std::generic_category()));
            return;
        }
        FolderSummary& folder = *m_open.back().summary;
        const long bytes = toBytes(static_cast<std::uintmax_t>(status.st_size));
        const std::string name = path.filename();
        ++folder.files;
        ++m_files;
        m_bytes = addBytes(m_bytes, bytes);
        folder.bytes = addBytes(folder.bytes, bytes);
        folder.months.add(monthOf(status.st_mtim.tv_sec), bytes);
        folder.children.add({name, bytes, 0});
        if (bytes > 0)
            folder.largestFiles.add({name, bytes});
    }

    void enterFolder(const fs::path& path)
    {
        if (m_options.isOneFileSystem && fileSystemOf(path) != m_rootFileSystem)
            return;
        std::error_code error;
        fs::directory_iterator first(path, error);
        const FolderSummary& parent = *m_open.back().summary;
        auto summary = std::make_unique<FolderSummary>(
            ++m_lastId, joined(parent.path, path.filename()), parent.depth + 1, m_currentMonth);
        ++m_folders;
        m_open.push_back({path, std::move(first), std::move(summary)});
        if (error)
            note(path, error);
    }

    void leaveFolder()
    {
        std::unique_ptr<FolderSummary> done = std::move(m_open.back().summary);
        const std::string name = m_open.back().path.filename();
        m_open.pop_back();
        if (!m_open.empty())
            absorb(*m_open.back().summary, *done, name);
        m_result.folders.add(std::move(done));
    }

    static void absorb(FolderSummary& parent, const FolderSummary& child, const std::string& name)
    {
        parent.bytes = addBytes(parent.bytes, child.bytes);
        parent.files += child.files;
        parent.folders += child.folders + 1;
        parent.unreadable += child.unreadable;
        parent.months.add(child.months);
        parent.children.add({name, child.bytes, child.id});
        for (const ListedFile& file : child.largestFiles.entries()) {
            if (parent.largestFiles.takes(file.bytes))
                parent.largestFiles.add({joined(name, file.name), file.bytes});
        }
    }

    void note(const fs::path& path, const std::error_code& error)
    {
        ++m_open.back().summary->unreadable;
        if (m_result.unreadable.size() < kToldUnreadable)
            m_result.unreadable.push_back({path, error.message()});
    }

    void tell() const { m_report({m_files, m_folders, m_bytes, m_open.back().path.native()}); }

    const WalkOptions& m_options;
    const Report& m_report;
    MonthNumber m_currentMonth;
    std::optional<dev_t> m_rootFileSystem;
    WalkResult m_result;
    std::vector<COpenFolder> m_open; // the way down
    FolderId m_lastId = 0;
    std::uint64_t m_files = 0;
    std::uint64_t m_folders = 0;
    long m_bytes = 0;
};

} // namespace

WalkResult walkFolder(const WalkOptions& options,
                      const std::function<void(const WalkProgress&)>& report)
{
    allowManyOpenFiles();
    return CWalk(options, report).run();
}

} // namespace tovangl::program
