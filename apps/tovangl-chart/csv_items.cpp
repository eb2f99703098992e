// SPDX-License-Identifier: MIT
// Reads items from a file of comma-separated values.
#include "tovangl-chart/csv_items.h"

#include "common/CFailure.h"
#include "common/text_checks.h"
#include "tovangl-chart/csv_columns.h"
#include "tovangl-chart/option_values.h"

#include <algorithm>

namespace tovangl::program {

namespace {

constexpr std::string_view kBlanks = " \t";

struct CsvTable
{
    CsvFields header;
    ItemColumns columns;
};

std::string_view trim(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

CsvTable readHeader(const CsvFields& names, const CsvColumns& wanted)
{
    CsvTable table;
    for (const std::string& name : names)
        table.header.emplace_back(trim(name));
    table.columns = findItemColumns(table.header, wanted);
    return table;
}

long parseValue(std::string_view text)
{
    return parseItemValue(trim(text));
}

std::string parseCaption(std::string_view text)
{
    std::string caption = parseText(text);
    const auto isLineBreak = [](char character) { return character == '\n' || character == '\r'; };
    std::replace_if(caption.begin(), caption.end(), isLineBreak, ' ');
    return caption;
}

std::optional<Color> parseFill(std::string_view text)
{
    const std::string_view name = trim(text);
    const std::optional<Color> color = findColor(name);
    if (!color && !name.empty())
        throw CFailure(quote(name) + " is not a colour such as #4070c0");
    return color;
}

template <typename Parse>
auto readField(const CsvFields& fields, const CsvTable& table, std::size_t column, Parse parse)
{
    const auto place = [&] { return "column " + columnText(table.header, column) + ": "; };
    if (column >= fields.size())
        throw CFailure(place() + "there is no such field");
    try {
        return parse(fields[column]);
    } catch (const CFailure& reason) {
        throw CFailure(place() + reason.what());
    }
}

ChartItem readItem(const CsvFields& fields, const CsvTable& table)
{
    if (fields.size() > table.header.size())
        throw CFailure("there are " + std::to_string(fields.size()) + " fields below a header of " +
                       std::to_string(table.header.size()) +
                       "; a field with a comma has to be quoted");
    const ItemColumns& columns = table.columns;
    ChartItem item;
    item.value = readField(fields, table, columns.value, parseValue);
    item.caption = readField(fields, table, columns.caption, parseCaption);
    if (columns.color)
        item.fill = readField(fields, table, *columns.color, parseFill);
    return item;
}

} // namespace

ChartItems readCsvItems(const std::string& path, const CsvColumns& columns)
{
    ChartItems items;
    std::optional<CsvTable> table;
    readCsvRecords(path, [&](const CsvFields& fields) {
        if (table)
            items.push_back(readItem(fields, *table));
        else
            table = readHeader(fields, columns);
    });
    return items;
}

} // namespace tovangl::program
