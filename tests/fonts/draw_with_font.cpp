// SPDX-License-Identifier: MIT
// Adds font files and draws charts with a family of theirs:
//   draw_with_font FOLDER FAMILY FILE...
// The pictures go to the folder.
#include "support/CAnyChart.h"

#include <fstream>

namespace tovangl {
namespace {

constexpr int kWidth = 420;  // pixels
constexpr int kHeight = 260; // pixels
constexpr int kEverythingShown = 0x1ff;

// Scripts that few families have, or that need shaping, beside what all of them have.
const char* const kCaptions[] = {"Arabic: \xd8\xa7\xd9\x84\xd8\xb3\xd9\x84\xd8\xa7\xd9\x85",
                                 "Rent & food, 12 \xe2\x82\xac",
                                 "\xe4\xb8\xad\xe6\x96\x87",
                                 "\xf0\x9f\x98\x80 smile",
                                 ("\xe0\xa4\xb9\xe0\xa4\xbf\xe0\xa4\xa8\xe0\xa5\x8d\xe0\xa4\xa6\xe0"
                                  "\xa5\x80"),
                                 "AVATAR fi ffl"};

void write(const CExport& picture, const std::string& path)
{
    std::ofstream(path, std::ios::binary) << picture.bytes();
}

void draw(ChartKind kind, const std::string& family, int size, const std::string& path)
{
    CAnyChart chart(kind, true);
    chart.graph().setFont(family, size);
    chart.graph().setLocale("de", "at");
    chart.setProperties(kEverythingShown, "A title");
    long value = 100000;
    for (const char* caption : kCaptions)
        chart.addItem(value -= 9000, caption);
    write(chart.createPixmap(kWidth, kHeight), path + ".png");
    write(chart.createPixmapForPrinter(kWidth, kHeight, 2), path + "_printed.png");
}

int drawAll(const std::string& folder, const std::string& family)
{
    for (const ChartKind kind : kChartKinds) {
        for (const int size : {0, 9, 11, 12, 17, 40})
            draw(kind, family, size,
                 folder + '/' + nameOf(kind) + ", " + std::to_string(size) + " pixels");
    }
    return 0;
}

} // namespace
} // namespace tovangl

int main(int count, char** arguments)
{
    for (int i = 3; i < count; ++i) {
        if (tovangl::addFont(arguments[i]).empty())
            return 2;
    }
    return tovangl::drawAll(arguments[1], arguments[2]);
}
