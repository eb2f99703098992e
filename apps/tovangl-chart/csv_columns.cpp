// SPDX-License-Identifier: MIT
// Finds the columns of a CSV file that make an item.
#include "tovangl-chart/csv_columns.h"

#include "common/CFailure.h"
#include "common/text_checks.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>

namespace tovangl::program {

namespace {

using Column = std::optional<std::size_t>;

constexpr std::size_t kMaxListedColumns = 20;

std::string columnList(const CsvFields& header)
{
    std::string list = "; the columns are ";
    const std::size_t listed = std::min(header.size(), kMaxListedColumns);
    for (std::size_t column = 0; column < listed; ++column)
        list += (column == 0 ? "" : ", ") + columnText(header, column);
    if (listed < header.size())
        list += " and " + std::to_string(header.size() - listed) + " more";
    return list;
}

Column findByName(const CsvFields& header, const std::string& name, const std::string& option)
{
    const auto first = std::find(header.begin(), header.end(), name);
    if (first == header.end())
        return std::nullopt;
    if (std::find(first + 1, header.end(), name) != header.end())
        throw CFailure("several columns are " + quote(name) + ", so " + option + " needs a number" +
                       columnList(header));
    return static_cast<std::size_t>(first - header.begin());
}

Column findByNumber(const CsvFields& header, const std::string& text)
{
    const char* end = text.data() + text.size();
    std::size_t number = 0;
    const std::from_chars_result result = std::from_chars(text.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end || number < 1 || number > header.size())
        return std::nullopt;
    return number - 1;
}

Column findWanted(const CsvFields& header, const std::optional<std::string>& wanted,
                  const std::string& option)
{
    if (!wanted)
        return std::nullopt;
    if (const Column named = findByName(header, *wanted, option))
        return named;
    if (const Column numbered = findByNumber(header, *wanted))
        return numbered;
    throw CFailure("there is no column " + quote(*wanted) + " for " + option + columnList(header));
}

std::size_t firstFree(const CsvFields& header, std::initializer_list<Column> taken,
                      const std::string& option)
{
    for (std::size_t column = 0; column < header.size(); ++column) {
        if (std::find(taken.begin(), taken.end(), Column(column)) == taken.end())
            return column;
    }
    throw CFailure("there is no column left for " + option + columnList(header));
}

} // namespace

ItemColumns findItemColumns(const CsvFields& header, const CsvColumns& wanted)
{
    const Column value = findWanted(header, wanted.value, "--value");
    const Column caption = findWanted(header, wanted.caption, "--caption");
    ItemColumns columns;
    columns.color = findWanted(header, wanted.color, "--color");
    columns.caption = caption ? *caption : firstFree(header, {value, columns.color}, "--caption");
    columns.value = value ? *value : firstFree(header, {columns.caption, columns.color}, "--value");
    return columns;
}

std::string columnText(const CsvFields& header, std::size_t column)
{
    return std::to_string(column + 1) + ' ' + quote(header[column]);
}

} // namespace tovangl::program
