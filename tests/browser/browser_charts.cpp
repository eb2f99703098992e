// SPDX-License-Identifier: MIT
// Writes what a browser is to look at and no program writes: browser_charts FOLDER ADDRESS
// The pictures 0.png and so on, pairs.html with the same charts as SVG, and hostile.html with
// charts of hostile texts and links. Whoever takes one of those for more than a text asks for the
// address.
#include "support/mixed_charts.h"

#include <fstream>
#include <iostream>
#include <stdexcept>
#include <vector>

namespace tovangl {
namespace {

constexpr unsigned kPairs = 27; // of every kind the same number
constexpr int kWidth = 400;
constexpr int kHeight = 300;
constexpr int kEveryProperty = 0x1ff; // of the axes, so that their titles are drawn

void writeFile(const std::string& name, const std::string& bytes)
{
    std::ofstream file(name, std::ios::binary);
    file << bytes;
    if (!file.flush())
        throw std::runtime_error("cannot write " + name);
}

std::string pageOf(const std::string& style, const std::vector<std::string>& pictures)
{
    std::string page = "<!DOCTYPE html>\n<meta charset=\"utf-8\">\n<title>Charts</title>\n<style>" +
                       style + "</style>\n";
    for (const std::string& picture : pictures)
        page += "<div class=\"picture\">" + picture + "</div>\n";
    return page;
}

CAnyChart ordinaryPie()
{
    CAnyChart pie(ChartKind::Pie, true);
    for (const long megabytes : {734L, 524L, 943L, 310L, 250L, 205L, 120L, 104L})
        pie.addItem(megabytes << 20, "a folder");
    return pie;
}

// The pictures in the page lie side by side, without a gap.
void writePairs(const std::string& folder)
{
    std::vector<std::string> pictures;
    for (unsigned number = 0; number < kPairs; ++number) {
        CAnyChart chart = number + 1 == kPairs ? ordinaryPie() : makeMixedChart(number);
        writeFile(folder + '/' + std::to_string(number) + ".png",
                  chart.createPixmap(kWidth, kHeight).bytes());
        pictures.push_back(chart.createSvg(kWidth, kHeight).bytes());
    }
    writeFile(folder + "/pairs.html",
              pageOf("body { margin: 0; width: 1600px; } .picture { float: left; } "
                     "svg { display: block; }",
                     pictures));
}

std::vector<std::string> hostileTexts(const std::string& address)
{
    return {"</title></svg><script>alert(1)</script>",
            "\"><img src=" + address + " onerror=alert(1)>",
            "' onload='alert(1)",
            "]]><image href=\"" + address + "\"/>",
            "<style>@import url(" + address + ");</style>",
            "serif'; background: url(" + address + "); '",
            "<foreignObject><iframe src=" + address + "></iframe></foreignObject>",
            "--><script src=" + address + "></script><!--",
            "&lt;script&gt;alert(1)&lt;/script&gt;",
            "<animate onbegin=alert(1) attributeName=x dur=1s>"};
}

std::vector<std::string> hostileLinks(const std::string& address)
{
    return {"#\"onmouseover=\"alert(1)",
            "#\"><script>alert(1)</script>",
            "javascript:alert(1)",
            "JaVaScRiPt:alert(1)",
            "\tjavascript:alert(1)",
            "java\nscript:alert(1)",
            "data:text/html,<script>alert(1)</script>",
            "#'><img/src='" + address + "'>"};
}

CAnyChart hostileChart(ChartKind kind, const std::string& text,
                       const std::vector<std::string>& links)
{
    CAnyChart chart(kind, true);
    chart.graph().setTitle(text);
    chart.graph().setFont(text, 11);
    chart.setProperties(kEveryProperty, text);
    for (std::size_t i = 0; i < links.size(); ++i) {
        chart.addItem(static_cast<long>(i) + 1, text);
        chart.graph().setLink(i, links[i]); // some are refused
    }
    chart.graph().setByName("follow_display", "true");
    return chart;
}

void writeHostilePage(const std::string& folder, const std::string& address)
{
    std::vector<std::string> pictures;
    for (const std::string& text : hostileTexts(address)) {
        for (const ChartKind kind : kChartKinds)
            pictures.push_back(
                hostileChart(kind, text, hostileLinks(address)).createSvg(kWidth, kHeight).bytes());
    }
    writeFile(folder + "/hostile.html", pageOf("", pictures));
}

} // namespace
} // namespace tovangl

int main(int count, char** arguments)
{
    if (count != 3) {
        std::cerr << "usage: browser_charts FOLDER ADDRESS\n";
        return 2;
    }
    const std::string folder = arguments[1];
    tovangl::writePairs(folder);
    tovangl::writeHostilePage(folder, arguments[2]);
}
