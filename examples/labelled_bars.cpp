// SPDX-License-Identifier: MIT
// Horizontal bars with their values, in custom colours: labelled_bars [FILE]
#include <tovangl/tovangl.h>

#include <fstream>
#include <string>

namespace {

struct Language
{
    long files;
    std::string name;
};

} // namespace

int main(int count, char** arguments)
{
    const Language languages[] = {
        {12481, "C++"}, {9034, "Python"}, {4410, "Shell"}, {2207, "CMake"}, {31, "Fortran"}};
    const tovangl::Color fill = {46, 125, 50};
    const tovangl::Color outline = {27, 94, 32};

    tovangl::HorizontalBarGraph chart(true);
    chart.setVerticalAxis(tovangl::AxisProperty::ShowLine | tovangl::AxisProperty::ShowLabels |
                              tovangl::AxisProperty::ShowTitle | tovangl::AxisProperty::BoldTitle,
                          "Language");
    chart.setLocale("de", "de"); // 12.481
    chart.setBarWidth(18);
    chart.setThreshold(1.0); // leaves Fortran out
    for (const Language& language : languages)
        chart.addItem(language.files, language.name, fill, outline);

    unsigned char* data = nullptr;
    int size = 0;
    chart.createPixmap(500, 180, &data, &size);

    std::ofstream file(count > 1 ? arguments[1] : "labelled_bars.png", std::ios::binary);
    file.write(reinterpret_cast<const char*>(data), size);
    return size > 0 && file.flush() ? 0 : 1;
}
