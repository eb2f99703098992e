// SPDX-License-Identifier: MIT
// What the tables and pictures of a folder's page show.
#include "tovangl-du/report_rows.h"

#include "common/html_text.h"
#include "tovangl-du/byte_text.h"

#include <algorithm>
#include <array>

namespace tovangl::program {

namespace {

constexpr Color kOtherColor = {176, 176, 176};
constexpr Color kMonthColor = {78, 121, 167};

// One colour for each named slice; neighbours are easy to tell apart.
constexpr std::array<Color, 11> kColors{{{78, 121, 167},
                                         {242, 142, 43},
                                         {89, 161, 79},
                                         {225, 87, 89},
                                         {118, 183, 178},
                                         {237, 201, 72},
                                         {176, 122, 161},
                                         {156, 117, 95},
                                         {255, 157, 167},
                                         {134, 188, 182},
                                         {212, 166, 200}}};

// A slice below this part of the pie is hard to see and to point at.
constexpr double kLeastSlice = 0.005;

std::string anchorOf(const char* kind, std::size_t index)
{
    return std::string(kind) + '-' + std::to_string(index + 1);
}

ReportRow makeRow(std::string name, long bytes, std::string anchor, const Color& color)
{
    ReportRow row;
    row.caption = name;
    row.name = std::move(name);
    row.link = '#' + anchor;
    row.anchor = std::move(anchor);
    row.bytes = bytes;
    row.color = color;
    return row;
}

ReportRow childRow(const ListedChild& child, std::size_t index, const Color& color,
                   const PageOf& pageOf)
{
    const bool isFolder = child.folder != 0;
    ReportRow row = makeRow(displayName(child.name) + (isFolder ? "/" : ""), child.bytes,
                            anchorOf("child", index), color);
    const std::string page = isFolder ? pageOf(child.folder) : std::string();
    if (!page.empty())
        row.link = page;
    return row;
}

bool hasOwnSlice(std::size_t index, long bytes, long total)
{
    return index < kColors.size() && bytes > 0 &&
           static_cast<double>(bytes) >= kLeastSlice * static_cast<double>(total);
}

// Everything without its own slice.
ReportRow otherSlice(const FolderSummary& folder, const ReportRows& slices, std::size_t count)
{
    long bytes = folder.bytes;
    for (const ReportRow& slice : slices)
        bytes -= std::min(slice.bytes, bytes);
    return makeRow(formatNumberOf(count - slices.size(), "other", "others"), bytes,
                   anchorOf("child", slices.size()), kOtherColor);
}

ReportRow unlistedRow(const FolderSummary& folder)
{
    return makeRow(formatCount(folder.children.otherCount()) + " more",
                   folder.children.otherBytes(), anchorOf("child", kListedChildren), kOtherColor);
}

std::string lastPart(const std::string& path)
{
    return path.substr(path.rfind('/') + 1);
}

Color colorOfChild(const ChildRows& children, const std::string& path)
{
    const auto found = children.colors.find(path.substr(0, path.find('/')));
    return found == children.colors.end() ? kOtherColor : found->second;
}

} // namespace

ChildRows childRows(const FolderSummary& folder, const PageOf& pageOf)
{
    ChildRows rows;
    const std::vector<ListedChild> children = folder.children.sorted();
    for (std::size_t i = 0; i < children.size(); ++i) {
        const bool isSlice = hasOwnSlice(i, children[i].bytes, folder.bytes);
        const Color color = isSlice ? kColors[i] : kOtherColor;
        rows.table.push_back(childRow(children[i], i, color, pageOf));
        if (isSlice) {
            rows.pie.push_back(rows.table.back());
            rows.colors[children[i].name] = color;
        }
    }
    if (folder.children.otherCount() > 0)
        rows.table.push_back(unlistedRow(folder));
    const std::size_t count = children.size() + folder.children.otherCount();
    if (rows.pie.size() < count)
        rows.pie.push_back(otherSlice(folder, rows.pie, count));
    return rows;
}

ReportRows fileRows(const FolderSummary& folder, const ChildRows& children)
{
    ReportRows rows;
    for (const ListedFile& file : folder.largestFiles.sorted()) {
        rows.push_back(makeRow(displayName(file.name), file.bytes, anchorOf("file", rows.size()),
                               colorOfChild(children, file.name)));
        rows.back().caption = displayName(lastPart(file.name));
    }
    return rows;
}

ReportRows monthRows(const FolderSummary& folder)
{
    ReportRows rows;
    for (const CMonthTable::Row& month : folder.months.rows())
        rows.push_back(makeRow(month.name, month.bytes, "month-" + month.name, kMonthColor));
    return rows;
}

} // namespace tovangl::program
