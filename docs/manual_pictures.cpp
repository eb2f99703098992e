// SPDX-License-Identifier: MIT
// Draws the pictures of the manual: pictures FOLDER
#include "picture_folder.h"
#include <tovangl/tovangl.h>

#include <list>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

using tovangl::AxisProperty;
using tovangl::Color;
using tovangl::HorizontalBarGraph;
using tovangl::PieGraph;
using tovangl::Rectangle;
using tovangl::Slice;
using tovangl::VerticalBarGraph;

using Items = std::vector<std::pair<long, std::string>>;

constexpr long kKilo = 1024;
constexpr long kMega = kKilo * kKilo;
constexpr long kGiga = kMega * kKilo;
constexpr int kCaptions =
    AxisProperty::ShowLine | AxisProperty::ShowLabels | AxisProperty::HideOverlapped;
constexpr int kNumbers = kCaptions | AxisProperty::UnitPrefixes;

template <typename Chart>
void addAll(Chart& chart, const Items& items)
{
    for (const auto& [value, text] : items)
        chart.addItem(value, text);
}

const Items kMonths = {{320, "January"}, {410, "February"}, {275, "March"},
                       {180, "April"},   {505, "May"},      {460, "June"}};

// --- vertical bars

void helloBars(PictureFolder& folder)
{
    VerticalBarGraph chart(true);
    addAll(chart, {{320, "Monday"}, {410, "Tuesday"}, {275, "Wednesday"}, {180, "Thursday"}});
    folder.draw(chart, "hello_bars", 400, 250);
}

void verticalBars(PictureFolder& folder)
{
    //! [vertical_bars]
    VerticalBarGraph chart(true);
    chart.addItem(320, "January");
    chart.addItem(410, "February");
    chart.addItem(275, "March");
    chart.addItem(180, "April");
    chart.addItem(505, "May");
    chart.addItem(460, "June");
    //! [vertical_bars]
    folder.draw(chart, "vertical_bars", 500, 250);
}

void verticalColors(PictureFolder& folder)
{
    VerticalBarGraph chart(false);
    //! [vertical_colors]
    const Color grey = {200, 204, 210};
    const Color darkGrey = {150, 154, 160};
    const Color red = {214, 48, 49};
    const Color darkRed = {140, 20, 20};
    chart.addItem(320, "January", grey, darkGrey);
    chart.addItem(410, "February", grey, darkGrey);
    chart.addItem(275, "March", red, darkRed);
    chart.addItem(180, "April", grey, darkGrey);
    chart.setColor({70, 74, 80});
    //! [vertical_colors]
    folder.draw(chart, "vertical_colors", 400, 220);
}

void verticalTitles(PictureFolder& folder)
{
    VerticalBarGraph chart(true);
    addAll(chart, {{12400, "London"}, {9100, "Paris"}, {15800, "Rome"}, {4300, "Vienna"}});
    //! [vertical_titles]
    const int captions =
        AxisProperty::ShowLine | AxisProperty::ShowLabels | AxisProperty::HideOverlapped;
    const int numbers = captions; // without UnitPrefixes
    chart.setHorizontalAxis(captions | AxisProperty::ShowTitle, "City");
    chart.setVerticalAxis(numbers | AxisProperty::ShowTitle | AxisProperty::BoldTitle, "Visitors");
    //! [vertical_titles]
    folder.draw(chart, "vertical_titles", 420, 240);
}

void verticalWidth(PictureFolder& folder)
{
    VerticalBarGraph chart(true);
    addAll(chart, kMonths);
    chart.setBarWidth(12);
    folder.draw(chart, "vertical_width", 420, 200);
}

void verticalPosition(PictureFolder& folder)
{
    VerticalBarGraph bytes(true);
    addAll(bytes, {{7 * kMega, "a"}, {5 * kMega, "b"}, {9 * kMega, "c"}});
    VerticalBarGraph files(true);
    files.setVerticalAxis(kCaptions, "");
    addAll(files, {{700000, "a"}, {120000, "b"}, {530000, "c"}});
    //! [vertical_position]
    bytes.setPosition(75, -1);
    files.setPosition(75, -1);
    //! [vertical_position]
    folder.draw(bytes, "vertical_position_1", 400, 140);
    folder.draw(files, "vertical_position_2", 400, 140);
}

void verticalNegative(PictureFolder& folder)
{
    VerticalBarGraph chart(true);
    addAll(chart, {{32, "one"}, {41, "two"}, {-18, "three"}, {27, "four"}});
    folder.draw(chart, "vertical_negative", 400, 200);
}

// --- horizontal bars

void horizontalBars(PictureFolder& folder)
{
    //! [horizontal_bars]
    HorizontalBarGraph chart(true);
    chart.addItem(81203, "/usr/share/locale");
    chart.addItem(40518, "/usr/share/doc");
    chart.addItem(23442, "/usr/lib/modules");
    chart.addItem(9127, "/usr/share/fonts");
    //! [horizontal_bars]
    folder.draw(chart, "horizontal_bars", 500, 150);
}

void horizontalTitle(PictureFolder& folder)
{
    HorizontalBarGraph chart(true);
    addAll(chart, {{812, "Applications that nobody has opened for years"},
                   {405, "Documents"},
                   {234, "Photographs of the last three summers"},
                   {91, "Music"}});
    //! [horizontal_title]
    chart.setVerticalAxis(
        AxisProperty::ShowLine | AxisProperty::ShowLabels | AxisProperty::ShowTitle, "Folder");
    //! [horizontal_title]
    folder.draw(chart, "horizontal_title", 420, 150);
}

void horizontalMany(PictureFolder& folder)
{
    HorizontalBarGraph chart(true);
    for (int i = 1; i <= 30; ++i)
        chart.addItem(1000 - i * i, "row " + std::to_string(i));
    folder.draw(chart, "horizontal_many", 420, 220);
}

// --- pies

const Items kDisk = {{41 * kGiga, "home"}, {23 * kGiga, "usr"}, {12 * kGiga, "var"},
                     {6 * kGiga, "opt"},   {2 * kGiga, "srv"},  {900 * kMega, "boot"}};

void pie(PictureFolder& folder)
{
    //! [pie]
    constexpr long kGigabyte = 1024L * 1024 * 1024;
    PieGraph chart(true);
    chart.addItem(41 * kGigabyte, "home");
    chart.addItem(23 * kGigabyte, "usr");
    chart.addItem(12 * kGigabyte, "var");
    chart.addItem(6 * kGigabyte, "opt");
    //! [pie]
    folder.draw(chart, "pie", 450, 240);
    folder.print(chart, "pie_print", 450, 240, 2);
}

void pieOptions(PictureFolder& folder)
{
    PieGraph chart(false);
    addAll(chart, kDisk);
    //! [pie_options]
    chart.setProperty(PieGraph::RemoveLabelOverlaps | PieGraph::BoldLabels);
    //! [pie_options]
    folder.draw(chart, "pie_options", 400, 220);
}

void pieColors(PictureFolder& folder)
{
    PieGraph chart(false);
    //! [pie_colors]
    chart.setColors({255, 255, 255}, {60, 60, 60}, {150, 150, 150}); // outlines, texts, lines
    chart.addItem(46, "Heating", {178, 34, 34});
    chart.addItem(27, "Warm water", {230, 126, 34});
    chart.addItem(19, "Appliances", {39, 120, 180});
    chart.addItem(8, "Light", {241, 196, 15});
    //! [pie_colors]
    chart.setProperty(PieGraph::RemoveLabelOverlaps);
    folder.draw(chart, "pie_colors", 400, 220);
}

void pieOthers(PictureFolder& folder)
{
    PieGraph chart(true);
    addAll(chart, {{41 * kGiga, "home"},
                   {23 * kGiga, "usr"},
                   {12 * kGiga, "var"},
                   {6 * kGiga, "opt"},
                   {2 * kGiga, "srv"},
                   {900 * kMega, "boot"},
                   {700 * kMega, "tmp"},
                   {400 * kMega, "root"}});
    //! [others]
    chart.setThreshold(5);
    chart.setOthers("others");
    //! [others]
    folder.draw(chart, "others", 450, 240);
}

// --- all charts

void title(PictureFolder& folder)
{
    VerticalBarGraph chart(true);
    addAll(chart, kMonths);
    //! [title]
    chart.setTitle("Visitors per month");
    //! [title]
    folder.draw(chart, "title", 500, 250);
}

// --- axes

void axisScale(PictureFolder& folder)
{
    VerticalBarGraph scale(true);
    addAll(scale, {{37, "a"}, {22, "b"}, {9, "c"}});
    folder.draw(scale, "axes_scale", 300, 180);
    scale.setVerticalAxis(kNumbers | AxisProperty::ShiftLastLabel, "");
    folder.draw(scale, "axes_shift", 300, 180);

    VerticalBarGraph prefixes(true);
    addAll(prefixes, {{1234567, "a"}, {700000, "b"}, {250000, "c"}});
    folder.draw(prefixes, "axes_prefixes", 300, 180);
    prefixes.setVerticalAxis(kCaptions, "");
    folder.draw(prefixes, "axes_numbers", 300, 180);
}

void addMonths(VerticalBarGraph& chart, int count)
{
    static const char* const kNames[] = {"January",   "February", "March",    "April",
                                         "May",       "June",     "July",     "August",
                                         "September", "October",  "November", "December"};
    for (int i = 0; i < count; ++i)
        chart.addItem(100 + (i * 37) % 90, kNames[i % 12]);
}

void axisCaptions(PictureFolder& folder)
{
    VerticalBarGraph year(true);
    addMonths(year, 12);
    folder.draw(year, "axes_one_row", 860, 160);
    folder.draw(year, "axes_two_rows", 480, 160);
    folder.draw(year, "axes_turned", 300, 240);

    VerticalBarGraph years(true);
    addMonths(years, 72);
    folder.draw(years, "axes_thinned", 400, 240);
    years.setHorizontalAxis(AxisProperty::ShowLine | AxisProperty::ShowLabels, "");
    folder.draw(years, "axes_overlapping", 400, 240);
}

// --- labels of a pie

void pieLabels(PictureFolder& folder)
{
    PieGraph free(false);
    addAll(free, {{30 * kKilo, "one"}, {25 * kKilo, "two"}, {45 * kKilo, "three"}});
    folder.draw(free, "pie_labels_free", 360, 200);

    PieGraph paths(false);
    //! [pie_labels_from_left]
    paths.setProperty(PieGraph::DefaultProperties | PieGraph::ShortenFromLeft);
    paths.addItem(812, "/usr/share/icons/hicolor/scalable/apps");
    paths.addItem(640, "/usr/lib/python3/dist-packages/numpy");
    paths.addItem(388, "/usr/share/texlive/texmf-dist/fonts");
    //! [pie_labels_from_left]
    folder.draw(paths, "pie_labels_from_left", 480, 220);
}

void pieZones(PictureFolder& folder)
{
    PieGraph crowded(false);
    addAll(crowded, {{40, "forty"},
                     {1, "one"},
                     {2, "two"},
                     {1, "another"},
                     {3, "three"},
                     {2, "a pair"},
                     {50, "fifty"},
                     {1, "single"},
                     {1, "lonely"}});
    crowded.setProperty(PieGraph::RemoveLabelOverlaps);
    folder.draw(crowded, "pie_labels_zones", 360, 220);
    crowded.setProperty(0);
    folder.draw(crowded, "pie_labels_overlapping", 360, 220);

    PieGraph many(false);
    for (int i = 1; i <= 60; ++i)
        many.addItem(10 + i % 7, "slice " + std::to_string(i));
    folder.draw(many, "pie_labels_hidden", 420, 260);
}

// --- fonts and locales

void fontsAndLocales(PictureFolder& folder)
{
    VerticalBarGraph chart(true);
    addAll(chart, kMonths);
    //! [fonts]
    chart.setFont("DejaVu Serif", 14);
    //! [fonts]
    folder.draw(chart, "fonts", 500, 220);

    HorizontalBarGraph sums(true);
    //! [locale]
    sums.setLocale("de", "at");
    //! [locale]
    addAll(sums, {{12400300, "Wien"}, {9100500, "Graz"}, {1580000, "Linz"}});
    folder.draw(sums, "locale", 400, 120);
}

// --- regions

void writeFrames(std::ostream& page, const std::list<Rectangle>& regions, const char* color)
{
    for (const Rectangle& r : regions)
        page << "<div style=\"position:absolute;box-sizing:border-box;border:1px solid " << color
             << ";left:" << r.x << "px;top:" << r.y << "px;width:" << r.width
             << "px;height:" << r.height << "px\"></div>\n";
}

// The page draws the frames over the picture, at the places that the lists give.
void regionsOfBars(PictureFolder& folder)
{
    VerticalBarGraph chart(false);
    addAll(chart, kMonths);
    folder.draw(chart, "regions", 420, 220);
    std::ostringstream page;
    page << "<div style=\"position:relative;width:420px;margin:1em auto\">\n"
         << "<img src=\"regions.png\" alt=\"A bar chart with its regions\">\n";
    writeFrames(page, *chart.getItemBarRectangle(), "#d63031");
    writeFrames(page, *chart.getRectangle(), "#27ae60");
    page << "</div>\n";
    folder.write("regions.html", page.str());
}

void writeOutline(std::ostream& page, const Slice& slice, const char* color)
{
    page << "<polygon style=\"fill:none;stroke:" << color << "\" points=\"";
    for (const tovangl::Point& corner : getPolygon(slice))
        page << corner.x << ',' << corner.y << ' ';
    page << "\"/>\n";
}

void regionsOfSlices(PictureFolder& folder)
{
    PieGraph chart(false);
    addAll(chart, {{4 * kGiga, "/usr"}, {2 * kGiga, "/home"}, {kGiga, "/var"}});
    folder.draw(chart, "regions_pie", 420, 220);
    std::ostringstream page;
    page << "<div style=\"position:relative;width:420px;margin:1em auto\">\n"
         << "<img src=\"regions_pie.png\" alt=\"A pie with its regions\">\n"
         << "<svg width=\"420\" height=\"220\" style=\"position:absolute;left:0;top:0\">\n";
    for (const Slice& slice : *chart.getSlice())
        writeOutline(page, slice, "#d63031");
    page << "</svg>\n";
    writeFrames(page, *chart.getRectangle(), "#27ae60");
    page << "</div>\n";
    folder.write("regions_pie.html", page.str());
}

void regions(PictureFolder& folder)
{
    regionsOfBars(folder);
    regionsOfSlices(folder);
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 2)
        return 2;
    PictureFolder folder(arguments[1]);
    for (const auto& drawOne : {helloBars,
                                verticalBars,
                                verticalColors,
                                verticalTitles,
                                verticalWidth,
                                verticalPosition,
                                verticalNegative,
                                horizontalBars,
                                horizontalTitle,
                                horizontalMany,
                                pie,
                                pieOptions,
                                pieColors,
                                pieOthers,
                                title,
                                axisScale,
                                axisCaptions,
                                pieLabels,
                                pieZones,
                                fontsAndLocales,
                                regions})
        drawOne(folder);
    return folder.isComplete() ? 0 : 1;
}
