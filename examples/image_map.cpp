// SPDX-License-Identifier: MIT
// A page with clickable slices and captions: image_map [FOLDER]
#include <tovangl/tovangl.h>

#include <fstream>
#include <sstream>
#include <utility>

namespace {

const std::pair<const char*, long> kSales[] = {{"north", 5200}, {"south", 7400}, {"west", 100}};

std::string cornersOf(const tovangl::Rectangle& r)
{
    std::ostringstream text;
    text << r.x << ',' << r.y << ',' << r.x + r.width << ',' << r.y + r.height;
    return r.width == 0 || r.height == 0 ? std::string() : text.str(); // empty: nothing was drawn
}

std::string cornersOf(const tovangl::Slice& slice)
{
    std::ostringstream text;
    for (const tovangl::Point& corner : getPolygon(slice))
        text << (text.tellp() > 0 ? "," : "") << corner.x << ',' << corner.y;
    return text.str();
}

void writeArea(std::ostream& page, const char* shape, const std::string& corners, const char* name)
{
    if (!corners.empty())
        page << "<area shape=\"" << shape << "\" coords=\"" << corners << "\" href=\"" << name
             << ".html\" title=\"" << name << "\" alt=\"" << name << "\">\n";
}

} // namespace

int main(int count, char** arguments)
{
    const std::string folder = count > 1 ? arguments[1] : ".";
    tovangl::PieGraph chart(true);
    chart.setThreshold(1.0); // per cent: the west is too small for a slice
    for (const auto& [name, sales] : kSales)
        chart.addItem(sales, name);
    unsigned char* data = nullptr;
    int size = 0;
    chart.createPixmap(400, 250, &data, &size);
    std::ofstream picture(folder + "/sales.png", std::ios::binary);
    picture.write(reinterpret_cast<const char*>(data), size);
    std::ofstream page(folder + "/sales.html");
    page << "<!DOCTYPE html>\n<title>Sales</title>\n<img src=\"sales.png\" usemap=\"#sales\" alt=\""
         << chart.describe() << "\">\n<map name=\"sales\">\n";
    auto caption = chart.getRectangle()->begin(); // both lists are in the order of adding
    auto slice = chart.getSlice()->begin();
    for (const auto& [name, sales] : kSales) {
        writeArea(page, "rect", cornersOf(*caption++), name);
        writeArea(page, "poly", cornersOf(*slice++), name);
    }
    page << "</map>\n" << std::flush;
    return page && picture.flush() ? 0 : 1;
}
