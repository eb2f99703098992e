// SPDX-License-Identifier: MIT
// Draws the pictures of the gallery: gallery_pictures FOLDER
#include "picture_folder.h"
#include <tovangl/tovangl.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

namespace {

using tovangl::AxisProperty;
using tovangl::Color;
using tovangl::HorizontalBarGraph;
using tovangl::PieGraph;
using tovangl::Theme;
using tovangl::VerticalBarGraph;

using Items = std::vector<std::pair<long, std::string>>;

constexpr long kMega = 1024 * 1024;
constexpr int kPlainAxis =
    AxisProperty::ShowLine | AxisProperty::ShowLabels | AxisProperty::HideOverlapped;
constexpr int kTitledAxis = kPlainAxis | AxisProperty::ShowTitle | AxisProperty::BoldTitle;

template <typename Chart>
void addAll(Chart& chart, const Items& items)
{
    for (const auto& [value, text] : items)
        chart.addItem(value, text);
}

void bars(PictureFolder& folder)
{
    VerticalBarGraph chart(true);
    addAll(chart, {{814 * kMega, "January"},
                   {1260 * kMega, "February"},
                   {1105 * kMega, "March"},
                   {1630 * kMega, "April"},
                   {1988 * kMega, "May"},
                   {1422 * kMega, "June"},
                   {960 * kMega, "July"}});
    chart.setHorizontalAxis(kPlainAxis, "");
    chart.setVerticalAxis(kTitledAxis | AxisProperty::UnitPrefixes, "Bytes sent");
    folder.draw(chart, "bars", 520, 240);
}

void labelledBars(PictureFolder& folder)
{
    HorizontalBarGraph chart(true);
    addAll(chart, {{81203, "/usr/share/locale"},
                   {64118, "/usr/share/doc"},
                   {40311, "/usr/lib/python3/dist-packages"},
                   {23442, "/usr/lib/modules"},
                   {9127, "/usr/share/fonts"},
                   {4872, "/usr/share/man"}});
    folder.draw(chart, "labelled_bars", 520, 200);
}

void pie(PictureFolder& folder)
{
    PieGraph chart(true);
    addAll(chart, {{41200 * kMega, "home"},
                   {23100 * kMega, "usr"},
                   {12400 * kMega, "var"},
                   {6300 * kMega, "opt"},
                   {2100 * kMega, "srv"},
                   {930 * kMega, "boot"}});
    folder.draw(chart, "pie", 520, 280);
}

void shapes(PictureFolder& folder)
{
    PieGraph chart(false);
    addAll(chart, {{734 * kMega, "documents"},
                   {524 * kMega, "music"},
                   {943 * kMega, "videos"},
                   {310 * kMega, "pictures"},
                   {205 * kMega, "mail"}});
    chart.setByName("follow_display", "true");
    folder.drawSvg(chart, "shapes", 520, 280);
}

void page(PictureFolder& folder)
{
    HorizontalBarGraph chart(false);
    addAll(chart,
           {{13104177, "Москва"}, {9215000, "القاهرة"}, {3664088, "Αθήνα"}, {2103000, "Wien"}});
    chart.setTitle("Inhabitants of four cities");
    chart.setFont("DejaVu Sans", 9);
    folder.drawPdf(chart, "page", 300, 130);
}

void crowdedPie(PictureFolder& folder)
{
    PieGraph chart(false);
    addAll(chart, {{310, "icons"},
                   {14, "pixmaps"},
                   {11, "sounds"},
                   {17, "themes"},
                   {9, "wallpapers"},
                   {280, "locale"},
                   {15, "zoneinfo"},
                   {12, "perl"},
                   {19, "python"},
                   {8, "awk"},
                   {260, "doc"},
                   {13, "info"},
                   {16, "man"},
                   {10, "licences"},
                   {18, "misc"}});
    chart.setProperty(PieGraph::RemoveLabelOverlaps);
    folder.draw(chart, "crowded_pie", 440, 260);
}

void highlight(PictureFolder& folder)
{
    const Color grey = {205, 209, 214};
    const Color darkGrey = {165, 169, 174};
    VerticalBarGraph chart(false);
    chart.setColor({80, 84, 90});
    for (int hour = 0; hour < 24; ++hour) {
        const long load = std::lround(40 + 30 * std::sin(hour * 0.27 - 2.2)) + hour % 3;
        const std::string caption = std::to_string(hour) + ":00";
        if (hour == 9)
            chart.addItem(load + 35, caption, {214, 48, 49}, {140, 20, 20});
        else
            chart.addItem(load, caption, grey, darkGrey);
    }
    folder.draw(chart, "highlight", 520, 180);
}

void profit(PictureFolder& folder)
{
    const Color green = {84, 160, 90};
    const Color darkGreen = {50, 110, 56};
    const Color red = {200, 70, 60};
    const Color darkRed = {130, 36, 30};
    VerticalBarGraph chart(true);
    int year = 2016;
    for (const long value : {12L, 31L, -8L, -22L, 5L, 38L, 44L, 27L}) {
        const bool isLoss = value < 0;
        chart.addItem(value, std::to_string(year++), isLoss ? red : green,
                      isLoss ? darkRed : darkGreen);
    }
    folder.draw(chart, "profit", 420, 200);
}

void turned(PictureFolder& folder)
{
    const char* const stations[] = {"Amsterdam Centraal",
                                    "Berlin Hauptbahnhof",
                                    "Bern",
                                    "Bruxelles-Midi",
                                    "København H",
                                    "Milano Centrale",
                                    "Paris Gare du Nord",
                                    "Praha hl. n.",
                                    "Roma Termini",
                                    "Wien Hauptbahnhof",
                                    "Zürich HB"};
    VerticalBarGraph chart(true);
    long visitors = 190000;
    for (const char* station : stations) {
        visitors = (visitors * 7 + 91000) % 430000 + 60000;
        chart.addItem(visitors, station);
    }
    folder.draw(chart, "turned", 420, 300);
}

void scripts(PictureFolder& folder)
{
    HorizontalBarGraph chart(true);
    chart.setFont("DejaVu Sans", 12);
    chart.setLocale("de", "de");
    addAll(chart,
           {{13104177, "Москва"}, {9720000, "القاهرة"}, {3154152, "Αθήνα"}, {1805681, "Київ"}});
    folder.draw(chart, "scripts", 420, 150);
}

// Charts without axes, small enough for a table cell.
void thumbnails(PictureFolder& folder)
{
    VerticalBarGraph rise(false);
    VerticalBarGraph wave(false);
    for (int i = 0; i < 12; ++i) {
        rise.addItem(10 + i * i, "", {91, 115, 176}, {60, 80, 130});
        wave.addItem(std::lround(60 + 40 * std::sin(i * 0.8)), "", {254, 138, 60}, {190, 90, 20});
    }
    for (VerticalBarGraph* chart : {&rise, &wave}) {
        chart->setHorizontalAxis(AxisProperty::ShowLine, "");
        chart->setVerticalAxis(0, "");
    }
    folder.draw(rise, "thumbnail_rise", 120, 70);
    folder.draw(wave, "thumbnail_wave", 120, 70);
}

void print(PictureFolder& folder)
{
    PieGraph chart(true);
    addAll(chart, {{46, "Heating"}, {27, "Warm water"}, {19, "Appliances"}, {8, "Light"}});
    chart.setProperty(PieGraph::RemoveLabelOverlaps);
    folder.draw(chart, "for_screen", 300, 170);
    folder.print(chart, "for_print", 300, 170, 2);
}

// The same chart in every theme.
void themes(PictureFolder& folder)
{
    const std::vector<std::pair<Theme, std::string>> all = {{Theme::Light, "light"},
                                                            {Theme::Dark, "dark"},
                                                            {Theme::HighContrast, "high_contrast"},
                                                            {Theme::ColorBlind, "colour_blind"}};
    for (const auto& [theme, name] : all) {
        VerticalBarGraph bars(true);
        addAll(
            bars,
            {{320, "Jan"}, {410, "Feb"}, {275, "Mar"}, {180, "Apr"}, {505, "May"}, {460, "Jun"}});
        bars.setTheme(theme);
        folder.draw(bars, "theme_" + name + "_bars", 300, 170);
        PieGraph pie(true);
        addAll(pie,
               {{38, "Wind"}, {24, "Sun"}, {14, "Water"}, {11, "Wood"}, {8, "Gas"}, {5, "Coal"}});
        pie.setProperty(PieGraph::RemoveLabelOverlaps);
        pie.setTheme(theme);
        folder.draw(pie, "theme_" + name + "_pie", 300, 170);
    }
}

void title(PictureFolder& folder)
{
    HorizontalBarGraph chart(true);
    addAll(chart, {{412, "Monday"}, {377, "Tuesday"}, {519, "Wednesday"}, {264, "Thursday"}});
    chart.setTitle("Loans of the town library, calendar week 12");
    folder.draw(chart, "title", 420, 150);
}

void palette(PictureFolder& folder)
{
    VerticalBarGraph chart(false);
    addAll(chart,
           {{34, "red"}, {51, "amber"}, {78, "green"}, {40, "red"}, {46, "amber"}, {85, "green"}});
    chart.setPalette({{201, 62, 55}, {233, 176, 60}, {74, 148, 96}});
    folder.draw(chart, "palette", 420, 170);
}

void highDensity(PictureFolder& folder)
{
    PieGraph chart(false);
    addAll(chart, {{46, "Heating"}, {27, "Warm water"}, {19, "Appliances"}, {8, "Light"}});
    chart.setProperty(PieGraph::RemoveLabelOverlaps);
    folder.draw(chart, "scale_one", 300, 170);
    chart.setScale(2);
    folder.draw(chart, "scale_two", 300, 170);
}

void transparent(PictureFolder& folder)
{
    PieGraph chart(false);
    addAll(chart, {{61, "free"}, {39, "in use"}});
    chart.setPictureTransparent();
    chart.setTextColor({118, 118, 118});
    chart.setLineColor({118, 118, 118});
    chart.setUnit("");
    folder.draw(chart, "transparent", 300, 150);
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 2)
        return 2;
    PictureFolder folder(arguments[1]);
    for (const auto& drawOne :
         {bars, labelledBars, pie, shapes, page, crowdedPie, highlight, profit, turned, scripts,
          thumbnails, print, themes, title, palette, highDensity, transparent})
        drawOne(folder);
    return folder.isComplete() ? 0 : 1;
}
