// SPDX-License-Identifier: MIT
// A chart described in a small text file.
#include "layout/chart_file.h"

#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <stdexcept>

namespace tovangl {

namespace {

using Line = std::istringstream;
using Setter = std::function<void(CChartFile&, Line&)>;

template <typename N>
N number(Line& line)
{
    N value = 0;
    if (!(line >> value))
        throw std::runtime_error("a number is missing");
    return value;
}

QString word(Line& line)
{
    std::string value;
    if (!(line >> value))
        throw std::runtime_error("a word is missing");
    return QString::fromStdString(value);
}

QString restOf(Line& line)
{
    std::string value;
    std::getline(line >> std::ws, value);
    return QString::fromStdString(value).replace(QLatin1String("\\n"), QLatin1String("\n"));
}

void appendRepeated(CChartFile& chart, Line& line)
{
    const int count = number<int>(line);
    const auto value = number<long long>(line);
    const auto step = number<long long>(line);
    for (int i = 0; i < count; ++i)
        chart.items.push_back({value + i * step, QString::fromLatin1("item %1").arg(i + 1), {}});
}

const std::map<std::string, Setter>& setters()
{
    static const std::map<std::string, Setter> setters = {
        {"kind", [](CChartFile& chart, Line& line) { chart.kind = word(line); }},
        {"size",
         [](CChartFile& chart, Line& line) {
             chart.size.setWidth(number<int>(line));
             chart.size.setHeight(number<int>(line));
         }},
        {"background", [](CChartFile& chart, Line&) { chart.background = true; }},
        {"print", [](CChartFile& chart, Line& line) { chart.printFactor = number<int>(line); }},
        {"item",
         [](CChartFile& chart, Line& line) {
             const auto value = number<long long>(line);
             chart.items.push_back({value, restOf(line), {}});
         }},
        {"painted",
         [](CChartFile& chart, Line& line) {
             const auto value = number<long long>(line);
             const QColor fill(word(line));
             chart.items.push_back({value, restOf(line), fill});
         }},
        {"repeat", appendRepeated},
        {"set",
         [](CChartFile& chart, Line& line) {
             const std::string name = word(line).toStdString();
             chart.settings.push_back({name, restOf(line).toStdString()});
         }},
    };
    return setters;
}

void applyLine(CChartFile& chart, const std::string& text)
{
    Line line(text);
    std::string name;
    if (!(line >> name) || name[0] == '#')
        return;
    const auto setter = setters().find(name);
    if (setter == setters().end())
        throw std::runtime_error("there is no setting \"" + name + '"');
    setter->second(chart, line);
}

} // namespace

CChartFile readChartFile(const std::string& path)
{
    std::ifstream file(path);
    if (!file)
        throw std::runtime_error(path + " cannot be read");
    CChartFile chart;
    std::string text;
    for (int number = 1; std::getline(file, text); ++number) {
        try {
            applyLine(chart, text);
        } catch (const std::runtime_error& error) {
            throw std::runtime_error(path + ':' + std::to_string(number) + ": " + error.what());
        }
    }
    if (chart.kind.isEmpty() || chart.size.isEmpty())
        throw std::runtime_error(path + ": kind and size are required");
    return chart;
}

} // namespace tovangl
