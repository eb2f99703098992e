// SPDX-License-Identifier: MIT
// Reads items, one per line or from a table.
#include "tovangl-chart/item_lines.h"

#include "common/CFailure.h"
#include "common/CLineReader.h"
#include "common/text_checks.h"
#include "tovangl-chart/csv_items.h"
#include "tovangl-chart/option_values.h"

namespace tovangl::program {

namespace {

constexpr std::string_view kWhiteSpace = " \t\v\f\r";

std::string_view skipWhiteSpace(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(kWhiteSpace), text.size()));
    return text;
}

void requireUtf8(std::string_view line)
{
    const std::size_t broken = findBrokenUtf8(line);
    if (broken != std::string_view::npos)
        throw CFailure("byte " + std::to_string(broken + 1) + " of the line is not UTF-8");
}

/// Removes the colour after the last tab from the text, if there is one.
std::optional<Color> takeColor(std::string_view& text)
{
    const std::size_t tab = text.rfind('\t');
    if (tab == std::string_view::npos)
        return std::nullopt;
    const std::optional<Color> color = findColor(text.substr(tab + 1));
    if (color)
        text = text.substr(0, tab);
    return color;
}

void takeColors(std::string_view& text, LineColors colors, ChartItem& item)
{
    item.fill = takeColor(text);
    if (colors == LineColors::Fill)
        return;
    if (const std::optional<Color> before = takeColor(text)) {
        item.outline = item.fill;
        item.fill = before;
    }
}

ChartItems readItemLines(const std::string& path, LineColors colors)
{
    ChartItems items;
    CLineReader reader(path);
    std::string line;
    while (reader.readLine(line)) {
        if (isPassedOver(line))
            continue;
        try {
            items.push_back(parseItemLine(line, colors));
        } catch (const CFailure& reason) {
            throw CFailure(reader.place() + ": " + reason.what());
        }
    }
    return items;
}

} // namespace

ChartItem parseItemLine(std::string_view line, LineColors colors)
{
    requireUtf8(line);
    const std::string_view start = skipWhiteSpace(line);
    const std::size_t numberEnd = std::min(start.find_first_of(kWhiteSpace), start.size());
    ChartItem item;
    item.value = parseItemValue(start.substr(0, numberEnd));
    std::string_view rest = skipWhiteSpace(start.substr(numberEnd));
    if (rest.empty())
        throw CFailure("there is no caption behind the number");
    takeColors(rest, colors, item);
    item.caption = rest;
    return item;
}

bool isPassedOver(std::string_view line)
{
    return skipWhiteSpace(line).empty() || line == "#" || line.substr(0, 2) == "# ";
}

ChartItems readItems(const ItemSource& source, LineColors colors)
{
    return source.csv ? readCsvItems(source.path, source.columns)
                      : readItemLines(source.path, colors);
}

} // namespace tovangl::program
