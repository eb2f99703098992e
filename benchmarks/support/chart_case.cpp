// SPDX-License-Identifier: MIT
// The chart that a measuring program draws, read from its command line.
#include "support/chart_case.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace tovangl {
namespace bench {

namespace {

constexpr int kWrongUsage = 2;

[[noreturn]] void refuse(const std::string& message)
{
    std::fprintf(stderr, "%s\n", message.c_str());
    std::exit(kWrongUsage);
}

ChartKind kindOf(const std::string& name)
{
    if (name == "bars")
        return Bars;
    if (name == "hbars")
        return LyingBars;
    if (name == "pie")
        return Pie;
    refuse("no kind of chart: " + name);
}

std::vector<CCaseItem> readItems(const std::string& path)
{
    std::vector<CCaseItem> items;
    std::ifstream file(path);
    CCaseItem item;
    while (file >> item.value && file.ignore() && std::getline(file, item.caption))
        items.push_back(item);
    if (items.empty())
        refuse("no items in " + path);
    return items;
}

} // namespace

long numberArgument(int count, char** arguments, int place)
{
    if (place >= count)
        refuse("too few arguments");
    return std::atol(arguments[place]);
}

CChartCase readChartCase(int count, char** arguments)
{
    if (count < kCaseArguments)
        refuse("usage: PROGRAM bars|hbars|pie DATA WIDTH HEIGHT FACTOR ...");
    CChartCase result;
    result.kind = kindOf(arguments[1]);
    result.items = readItems(arguments[2]);
    result.width = static_cast<int>(numberArgument(count, arguments, 3));
    result.height = static_cast<int>(numberArgument(count, arguments, 4));
    result.factor = static_cast<int>(numberArgument(count, arguments, 5));
    return result;
}

} // namespace bench
} // namespace tovangl
