// SPDX-License-Identifier: MIT
// A host that cannot draw, or not all of a chart, and asks why:
//   problem_host FOLDER plugin|memory|fonts
#include "draw_pie.h"
#include <tovangl/Font.h>

#include <cstring>
#include <sys/resource.h>

namespace {

// Far less than the picture needs, and far more than the host.
void limitMemory()
{
    const rlimit limit = {1 << 30, 1 << 30}; // bytes
    setrlimit(RLIMIT_AS, &limit);
}

tovangl::Problem problemWithFamily(const char* family)
{
    tovangl::PieGraph pie(false);
    pie.setFont(family, 11);
    pie.addItem(1, "caption");
    unsigned char* data = nullptr;
    int size = 0;
    pie.createPixmap(200, 100, &data, &size);
    return pie.problem();
}

// Without a font on the machine there is a picture, but none of its texts. The host's own font is
// enough for the next one.
bool tellsLackOfFonts()
{
    const PieExport pie = exportPie();
    if (pie.bytes.empty() || pie.problem != tovangl::Problem::NoGlyphs)
        return false;
    return !tovangl::addFont("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf").empty() &&
           problemWithFamily("DejaVu Sans") == tovangl::Problem::None;
}

} // namespace

int main(int, char** arguments)
{
    if (std::strcmp(arguments[2], "fonts") == 0)
        return tellsLackOfFonts() ? 0 : 1;
    const bool lacksMemory = std::strcmp(arguments[2], "memory") == 0;
    if (lacksMemory)
        limitMemory();
    constexpr int kLargeSide = 20000;
    const PieExport pie = exportPie(kLargeSide, kLargeSide);
    const tovangl::Problem expected =
        lacksMemory ? tovangl::Problem::NoMemory : tovangl::Problem::NoPlatformPlugin;
    return pie.bytes.empty() && pie.problem == expected ? 0 : 1;
}
