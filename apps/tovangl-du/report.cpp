// SPDX-License-Identifier: MIT
// The folder of pages.
#include "tovangl-du/report.h"

#include "tovangl-du/report_page.h"

#include <array>
#include <ctime>
#include <fstream>
#include <string_view>
#include <unordered_map>

namespace tovangl::program {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kFirstNumber = 1;
constexpr std::size_t kHeadBytes = 400; // of a page; they include the name of the generator

struct Page
{
    const FolderSummary* folder;
    std::size_t parent; // index among the pages; the first page is its own parent
    std::string name;   // any bytes
};

/// The pages in the order of their numbers: folders nearer to the root come first, larger ones
/// before smaller ones.
class CPageList
{
public:
    CPageList(const WalkResult& walk, const std::string& rootName)
    {
        append({walk.folders.find(walk.root), 0, rootName});
        for (std::size_t i = 0; i < m_pages.size(); ++i) {
            for (const ListedChild& child : m_pages[i].folder->children.sorted()) {
                const FolderSummary* folder = walk.folders.find(child.folder);
                if (folder)
                    append({folder, i, child.name});
            }
        }
    }

    [[nodiscard]] std::size_t size() const { return m_pages.size(); }
    [[nodiscard]] const FolderSummary& folderOf(std::size_t page) const
    {
        return *m_pages[page].folder;
    }

    [[nodiscard]] std::string fileNameOf(FolderId folder) const
    {
        const auto found = m_numbers.find(folder);
        return found == m_numbers.end() ? std::string() : fileName(found->second);
    }

    [[nodiscard]] std::vector<PathPart> pathOf(std::size_t page) const
    {
        std::vector<PathPart> path{{m_pages[page].name, fileName(page)}};
        while (page != 0) {
            page = m_pages[page].parent;
            path.insert(path.begin(), {m_pages[page].name, fileName(page)});
        }
        return path;
    }

private:
    static std::string fileName(std::size_t page)
    {
        return page == 0 ? kFirstPage : std::to_string(page + kFirstNumber) + ".html";
    }

    void append(Page page)
    {
        m_numbers[page.folder->id] = m_pages.size();
        m_pages.push_back(std::move(page));
    }

    std::vector<Page> m_pages;
    std::unordered_map<FolderId, std::size_t> m_numbers;
};

std::string timeText(std::int64_t now)
{
    const auto time = static_cast<std::time_t>(now);
    std::tm parts{};
    std::array<char, 64> text{};
    if (!::gmtime_r(&time, &parts) ||
        std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M UTC", &parts) == 0)
        return "an unknown day";
    return text.data();
}

bool isDigits(std::string_view text)
{
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

// What follows the number in the name of a picture.
bool isPictureRest(const std::string& rest)
{
    for (const char* ending : {kPictureEnding, kDensePictureEnding}) {
        for (const char* stem : {"-children", "-files", "-months"}) {
            if (rest == std::string(stem) + ending)
                return true;
        }
    }
    return false;
}

bool isReportFileName(const std::string& name)
{
    if (name == kFirstPage || name == kStyleName)
        return true;
    const std::size_t end = name.find_first_not_of("0123456789");
    if (end == std::string::npos || !isDigits(std::string_view(name).substr(0, end)))
        return false;
    const std::string rest = name.substr(end);
    return rest == ".html" || isPictureRest(rest);
}

bool namesThisProgram(const fs::path& page)
{
    std::string head(kHeadBytes, '\0');
    std::ifstream file(page, std::ios::binary);
    file.read(head.data(), static_cast<std::streamsize>(head.size()));
    return head.find(std::string("content=\"") + kGenerator + '"') != std::string::npos;
}

} // namespace

bool isReport(const fs::path& folder)
{
    std::error_code error;
    fs::directory_iterator entry(folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        std::error_code typeError;
        const bool isFile = entry->symlink_status(typeError).type() == fs::file_type::regular;
        if (!isFile || !isReportFileName(entry->path().filename()))
            return false;
    }
    return !error && namesThisProgram(folder / kFirstPage);
}

std::size_t writeReport(const WalkResult& walk, const std::string& rootName, std::int64_t now,
                        const ReportLook& look, CStagedFolder& folder,
                        const std::function<void(std::size_t)>& report)
{
    const CPageList pages(walk, rootName);
    const PageOf pageOf = [&pages](FolderId id) { return pages.fileNameOf(id); };
    const std::string time = timeText(now);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        report(i + kFirstNumber);
        const PageContents contents{pages.folderOf(i),
                                    pages.pathOf(i),
                                    std::to_string(i + kFirstNumber) + '-',
                                    walk.unreadable,
                                    time,
                                    look};
        for (const ReportFile& file : makePage(contents, pageOf))
            folder.write(file.name, file.bytes);
    }
    folder.write(kStyleName, reportStyle());
    return pages.size();
}

} // namespace tovangl::program
