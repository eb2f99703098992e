// SPDX-License-Identifier: MIT
// A page whose bars can be clicked: image_map [FOLDER]
#include <tovangl/tovangl.h>

#include <fstream>
#include <string>

namespace {

const char* const kNames[] = {"north", "east", "south", "west"};
const long kSales[] = {5200, 3100, 7400, 4600};

// One region of the map: the bar itself, or the caption below it.
void writeArea(std::ostream& page, const tovangl::Rectangle& r, const std::string& name)
{
    if (r.width == 0 || r.height == 0) // nothing was drawn for this item
        return;
    page << "<area shape=\"rect\" coords=\"" << r.x << ',' << r.y << ',' << r.x + r.width << ','
         << r.y + r.height << "\" href=\"" << name << ".html\" alt=\"" << name << "\">\n";
}

} // namespace

int main(int count, char** arguments)
{
    const std::string folder = count > 1 ? arguments[1] : ".";
    tovangl::VerticalBarGraph chart(true);
    for (int i = 0; i < 4; ++i)
        chart.addItem(kSales[i], kNames[i]);

    unsigned char* data = nullptr;
    int size = 0;
    chart.createPixmap(400, 250, &data, &size);
    std::ofstream picture(folder + "/sales.png", std::ios::binary);
    picture.write(reinterpret_cast<const char*>(data), size);

    // Both lists are in the order of adding; nothing is left out here, as there is no threshold.
    std::ofstream page(folder + "/sales.html");
    page << "<!DOCTYPE html>\n<title>Sales</title>\n"
         << "<img src=\"sales.png\" usemap=\"#sales\" alt=\"Sales by region\">\n"
         << "<map name=\"sales\">\n";
    const char* const* name = kNames;
    for (const tovangl::Rectangle& bar : *chart.getBarRectangle())
        writeArea(page, bar, *name++);
    name = kNames;
    for (const tovangl::Rectangle& caption : *chart.getRectangle())
        writeArea(page, caption, *name++);
    page << "</map>\n";
    return picture.flush() && page.flush() ? 0 : 1;
}
