// SPDX-License-Identifier: MIT
// The page of one folder.
#include "tovangl-du/report_page.h"

#include "common/html_text.h"
#include "common/page_frame.h"
#include "common/page_picture.h"
#include "tovangl-du/byte_text.h"

#include <iterator>
#include <utility>

namespace tovangl::program {

namespace {

constexpr std::size_t kUnfoldedRows = 20;
constexpr std::size_t kLeastFolded = 5; // fewer are not worth a fold

std::string link(const std::string& target, const std::string& text)
{
    return "<a href=\"" + escapeHtml(target) + "\"><bdi>" + escapeHtml(text) + "</bdi></a>";
}

std::string colorText(const Color& color)
{
    return "rgb(" + std::to_string(color.red) + ',' + std::to_string(color.green) + ',' +
           std::to_string(color.blue) + ')';
}

std::string nameCell(const ReportRow& row)
{
    const bool leadsAway = row.link[0] != '#';
    return "<td><span class=\"swatch\" style=\"background:" + colorText(row.color) + "\"></span> " +
           (leadsAway ? link(row.link, row.name) : "<bdi>" + escapeHtml(row.name) + "</bdi>") +
           "</td>";
}

std::string tableRow(const ReportRow& row, long total)
{
    return "<tr id=\"" + row.anchor + "\">" + nameCell(row) + "<td>" + formatBytes(row.bytes) +
           "</td><td>" + formatCount(static_cast<std::uint64_t>(row.bytes)) + "</td><td>" +
           formatShare(row.bytes, total) + "</td></tr>\n";
}

std::string tableHead(const char* heading)
{
    return std::string("<thead><tr><th>") + heading +
           "</th><th>Size</th><th>Bytes</th><th>Share</th></tr></thead>\n";
}

std::string tableBody(const ReportRows& rows, std::size_t first, std::size_t end, long total)
{
    std::string html = "<tbody>\n";
    for (std::size_t i = first; i < end; ++i)
        html += tableRow(rows[i], total);
    return html + "</tbody>\n";
}

std::string table(const ReportRows& rows, long total, const char* heading)
{
    return "<table>\n" + tableHead(heading) + tableBody(rows, 0, rows.size(), total) + "</table>\n";
}

// The first rows, which the picture's regions can link to, and a fold with the others.
std::string foldedTable(const ReportRows& rows, long total, const char* heading)
{
    if (rows.size() <= kUnfoldedRows + kLeastFolded)
        return table(rows, total, heading);
    return "<table>\n" + tableHead(heading) + tableBody(rows, 0, kUnfoldedRows, total) +
           "</table>\n<details>\n<summary>" + formatCount(rows.size() - kUnfoldedRows) +
           " more rows</summary>\n<table>\n" + tableBody(rows, kUnfoldedRows, rows.size(), total) +
           "</table>\n</details>\n";
}

/// Builds the page, and collects its pictures.
class CPage
{
public:
    CPage(const PageContents& contents, const PageOf& pageOf)
        : m_contents(contents)
        , m_folder(contents.folder)
        , m_pageOf(pageOf)
    {}

    ReportFiles make()
    {
        m_html = header() + "<main>\n";
        if (m_folder.bytes > 0)
            addSections();
        if (m_folder.depth == 0)
            addUnreadable();
        m_html += "</main>\n" + footer();
        const std::string style =
            "<link rel=\"stylesheet\" href=\"" + std::string(kStyleName) + "\">";
        m_files.insert(m_files.begin(), {m_contents.path.back().page,
                                         pageHtml({kGenerator, title(), style, m_html})});
        return std::move(m_files);
    }

private:
    [[nodiscard]] std::string title() const
    {
        return escapeHtml(displayName(m_contents.path.back().name)) + ", " +
               formatBytes(m_folder.bytes);
    }

    [[nodiscard]] std::string header() const
    {
        return "<header>\n<h1>" + way() + "</h1>\n<p>" + formatBytes(m_folder.bytes) + " in " +
               formatNumberOf(m_folder.files, "file", "files") + " and " +
               formatNumberOf(m_folder.folders, "folder", "folders") + unreadableNote() +
               ".</p>\n</header>\n";
    }

    // The parent folders link back; the last one is this page.
    [[nodiscard]] std::string way() const
    {
        std::string html;
        for (const PathPart& part : m_contents.path) {
            const std::string name = displayName(part.name);
            const bool isThis = &part == &m_contents.path.back();
            html += isThis ? "<bdi>" + escapeHtml(name) + "</bdi>"
                           : link(part.page, name) + " <span>/</span> ";
        }
        return html;
    }

    [[nodiscard]] std::string unreadableNote() const
    {
        if (m_folder.unreadable == 0)
            return {};
        return "; " + formatNumberOf(m_folder.unreadable, "place", "places") + " could not be read";
    }

    void addSections()
    {
        const ChildRows children = childRows(m_folder, m_pageOf);
        const ReportRows files = fileRows(m_folder, children);
        const ReportRows months = monthRows(m_folder);
        addSection("Contents", drawPie(request("children", children.pie)),
                   foldedTable(children.table, m_folder.bytes, "Name"));
        addSection("Largest files", drawLyingBars(request("files", files)),
                   table(files, m_folder.bytes, "File"));
        addSection("Bytes by month of last change", drawUprightBars(request("months", months)),
                   table(months, m_folder.bytes, "Month"));
    }

    [[nodiscard]] PictureRequest request(const char* name, const ReportRows& rows) const
    {
        return {rows, m_folder.bytes, name, m_contents.pictureStem + name, m_contents.look};
    }

    void addSection(const char* title, ReportPicture picture, const std::string& rows)
    {
        m_html += std::string("<section>\n<h2>") + title + "</h2>\n" + picture.html + rows +
                  "</section>\n";
        std::move(picture.files.begin(), picture.files.end(), std::back_inserter(m_files));
    }

    void addUnreadable()
    {
        if (m_contents.unreadable.empty())
            return;
        m_html += "<section>\n<h2>Not read</h2>\n<ul>\n";
        for (const UnreadablePlace& place : m_contents.unreadable)
            m_html += "<li><bdi>" + escapeHtml(displayName(place.path)) +
                      "</bdi>: " + escapeHtml(displayName(place.reason)) + "</li>\n";
        const std::uint64_t rest = m_folder.unreadable - m_contents.unreadable.size();
        if (rest > 0)
            m_html += "<li>and " + formatCount(rest) + " more</li>\n";
        m_html += "</ul>\n</section>\n";
    }

    [[nodiscard]] std::string footer() const
    {
        return "<footer>Read on " + escapeHtml(m_contents.time) +
               ". Sizes are apparent sizes, holes included; months are in UTC.</footer>\n";
    }

    const PageContents& m_contents;
    const FolderSummary& m_folder;
    const PageOf& m_pageOf;
    std::string m_html;
    ReportFiles m_files;
};

} // namespace

std::string reportStyle()
{
    return R"(body { margin: 0 auto; max-width: 832px; padding: 0 16px; color: #222; background: #fff;
       font: 15px/1.45 sans-serif; }
h1 { font-size: 22px; overflow-wrap: anywhere; }
h1 span { color: #999; }
h2 { font-size: 17px; margin: 32px 0 8px; }
a { color: #1f5aa6; }
table { border-collapse: collapse; width: 100%; margin-top: 8px; font-size: 14px; }
th, td { padding: 2px 8px; text-align: right; white-space: nowrap; border-bottom: 1px solid #e4e4e4; }
th { font-weight: normal; color: #666; }
td { min-width: 5em; }
th:first-child, td:first-child { width: 99%; text-align: left; white-space: normal;
                                 overflow-wrap: anywhere; }
summary { margin: 8px; color: #666; }
tr:target { background: #fff3c4; }
.swatch { display: inline-block; width: 11px; height: 11px; }
footer { margin: 32px 0 16px; color: #666; font-size: 13px; }
)" + pictureStyle();
}

ReportFiles makePage(const PageContents& contents, const PageOf& pageOf)
{
    return CPage(contents, pageOf).make();
}

} // namespace tovangl::program
