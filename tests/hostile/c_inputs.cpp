// SPDX-License-Identifier: MIT
// What a host of the C interface may hand in: names and values of settings, columns, slices, sizes.
#include "hostile/hostile_input.h"
#include <tovangl/tovangl_c.h>

#include <array>
#include <cstdint>
#include <limits>
#include <memory>
#include <stdexcept>

namespace tovangl {

namespace {

constexpr std::array<int, 3> kKinds = {TOVANGL_PIE, TOVANGL_BARS, TOVANGL_HBARS};
constexpr std::size_t kMillion = 1000000;

void require(bool isKept, const char* promise)
{
    if (!isKept)
        throw std::logic_error(promise);
}

struct CDestroyed
{
    void operator()(tovangl_chart* chart) const { tovangl_chart_destroy(chart); }
};

using CHandle = std::unique_ptr<tovangl_chart, CDestroyed>;

CHandle makeHandle(int kind)
{
    tovangl_chart* chart = nullptr;
    require(tovangl_chart_create(kind, &chart) == TOVANGL_OK, "a chart can be made");
    CHandle handle(chart);
    constexpr std::array<std::int64_t, 3> kValues = {45000, 120, 7000};
    constexpr std::array<const char*, 3> kCaptions = {"var", "usr", "a rather long name"};
    require(tovangl_chart_add_items(chart, kValues.size(), kValues.data(), kCaptions.data(),
                                    nullptr, nullptr) == TOVANGL_OK,
            "items can be added");
    return handle;
}

// A status and the text of the last error belong together.
void checkError(const CHandle& chart, tovangl_status status)
{
    const bool isSilent = tovangl_chart_error(chart.get())[0] == '\0';
    require(isSilent == (status == TOVANGL_OK), "every failure is told in words");
}

void askForRegions(const CHandle& chart)
{
    const tovangl_rectangle* rectangles = nullptr;
    const tovangl_slice* slices = nullptr;
    const tovangl_point* points = nullptr;
    const char* text = nullptr;
    std::size_t count = 0;
    std::size_t corners = 0;
    require(tovangl_chart_describe(chart.get(), &text) == TOVANGL_OK && text[0] != '\0',
            "every chart has a description");
    require(tovangl_chart_caption_rectangles(chart.get(), &rectangles, &count) == TOVANGL_OK,
            "every chart has captions");
    (void)tovangl_chart_bar_rectangles(chart.get(), &rectangles, &count);
    (void)tovangl_chart_slices(chart.get(), &slices, &count);
    for (std::size_t i = 0; slices && i < count; ++i)
        require(tovangl_chart_slice_polygon(chart.get(), &slices[i], &points, &corners) ==
                    TOVANGL_OK,
                "every slice has an outline");
}

void drawInC(const CHandle& chart, int width = 400, int height = 300, int factor = 2)
{
    const unsigned char* data = nullptr;
    std::size_t size = 0;
    for (const bool isForPrint : {false, true}) {
        const tovangl_status status =
            isForPrint
                ? tovangl_chart_render_for_print(chart.get(), width, height, factor, &data, &size)
                : tovangl_chart_render(chart.get(), width, height, &data, &size);
        checkError(chart, status);
        require((status == TOVANGL_OK) == (data && size > 0), "a picture has bytes");
        askForRegions(chart);
    }
    const tovangl_status status =
        tovangl_chart_render_svg(chart.get(), width, height, &data, &size);
    checkError(chart, status);
    require((status == TOVANGL_OK) == (data && size > 0), "an SVG picture has bytes");
    askForRegions(chart);
}

// One input that draws every kind of chart after the steps.
void addForKinds(HostileTable& table, const std::string& name,
                 const std::function<void(const CHandle&)>& steps, bool isHeavy = !kHeavy)
{
    const auto run = [steps] {
        for (const int kind : kKinds) {
            const CHandle chart = makeHandle(kind);
            steps(chart);
            drawInC(chart);
        }
    };
    table.push_back({"C: " + name, run, isHeavy});
}

void setEverything(const CHandle& chart, const std::string& value)
{
    for (std::size_t i = 0; i < tovangl_setting_count(); ++i) {
        tovangl_setting setting;
        (void)tovangl_setting_at(i, &setting);
        checkError(chart,
                   tovangl_chart_set_sized(chart.get(), setting.name, value.data(), value.size()));
    }
}

void addSettings(HostileTable& table)
{
    const auto add = [&table](const char* name, const std::string& value) {
        addForKinds(table, std::string("every setting ") + name,
                    [=](const CHandle& chart) { setEverything(chart, value); });
    };
    add("empty", "");
    add("of broken UTF-8", "\xff\xfe\xed\xa0\x80");
    add("of NULs", std::string(3, '\0'));
    add("of a million letters", std::string(kMillion, 'x'));
    add("of a million commas", std::string(kMillion, ','));
    add("the least int", "-2147483648");
    add("the greatest int", "2147483647");
    add("beyond 64 bits", "99999999999999999999999999");
    add("not a number", "nan");
    add("infinite", "-inf");
    add("default", "default");
    add("a colour", "#000000");
    add("two numbers", "2147483647,-2147483648");
    add("none", "none");
    add("true", "true");
    addForKinds(table, "a setting whose name is a million letters", [](const CHandle& chart) {
        const std::string name(kMillion, 'x');
        require(tovangl_chart_set(chart.get(), name.c_str(), "1") == TOVANGL_UNKNOWN_SETTING,
                "no such setting");
    });
}

void addManyColumns(const CHandle& chart)
{
    constexpr std::size_t kCount = 50000;
    const std::vector<std::int64_t> values(kCount, std::numeric_limits<std::int64_t>::max());
    const std::string text(kCount, 'm');
    std::vector<std::size_t> offsets;
    for (std::size_t i = 0; i <= kCount; ++i)
        offsets.push_back(i);
    checkError(chart, tovangl_chart_add_columns(chart.get(), kCount, values.data(), text.data(),
                                                text.size(), offsets.data(), nullptr, nullptr));
}

void addItems(HostileTable& table)
{
    addForKinds(table, "a count beyond all memory", [](const CHandle& chart) {
        const std::int64_t value = 1;
        const char* const caption = "one";
        for (const std::size_t count :
             {std::numeric_limits<std::size_t>::max(), std::numeric_limits<std::size_t>::max() / 2})
            require(tovangl_chart_add_items(chart.get(), count, &value, &caption, nullptr,
                                            nullptr) == TOVANGL_NO_MEMORY,
                    "no memory holds that many items");
    });
    addForKinds(table, "offsets at the end of their type", [](const CHandle& chart) {
        const std::size_t greatest = std::numeric_limits<std::size_t>::max();
        const std::int64_t value = 1;
        const std::array<std::size_t, 2> offsets = {greatest - 1, greatest};
        require(tovangl_chart_add_columns(chart.get(), 1, &value, "abc", 3, offsets.data(), nullptr,
                                          nullptr) == TOVANGL_BAD_ARGUMENT,
                "a caption lies inside its text");
    });
    addForKinds(table, "offsets inside a character", [](const CHandle& chart) {
        const std::array<std::int64_t, 2> values = {1, 2};
        const std::array<std::size_t, 3> offsets = {0, 1, 2};
        require(tovangl_chart_add_columns(chart.get(), 2, values.data(), "\xc3\xa4", 2,
                                          offsets.data(), nullptr, nullptr) == TOVANGL_NOT_UTF8,
                "half a character is no caption");
    });
    addForKinds(table, "links that run scripts, of broken UTF-8, and of NULs",
                [](const CHandle& chart) {
                    for (const std::string& address :
                         {std::string("javascript:alert(1)"), std::string("\xff\xed\xa0\x80"),
                          std::string("a.html\0javascript:x", 19)}) {
                        const std::array<std::size_t, 2> offsets = {0, address.size()};
                        const tovangl_status status = tovangl_chart_set_links(
                            chart.get(), 1, address.data(), address.size(), offsets.data());
                        require(status != TOVANGL_OK, "no link leads there");
                        checkError(chart, status);
                    }
                });
    addForKinds(table, "values at the ends of 64 bits", [](const CHandle& chart) {
        for (const std::int64_t value :
             {std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()})
            checkError(chart, tovangl_chart_add_item(chart.get(), value, "\t\n\x7f", 0xffffff, 0));
    });
    addForKinds(table, "fifty thousand items in columns", addManyColumns, kHeavy);
}

void addSlices(HostileTable& table)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const double greatest = std::numeric_limits<double>::max();
    for (const double number : {nan, infinity, -infinity, greatest, -greatest, 1e9, -1.0, 0.0}) {
        addForKinds(table, "a slice of numbers such as " + std::to_string(number),
                    [=](const CHandle& chart) {
                        const tovangl_point* points = nullptr;
                        std::size_t count = 0;
                        for (const tovangl_slice& slice :
                             {tovangl_slice{number, number, number, number, number, number},
                              tovangl_slice{0, 0, 100, 100, number, 90},
                              tovangl_slice{0, 0, 100, 100, 0, number},
                              tovangl_slice{number, 0, 100, number, 0, 90}})
                            (void)tovangl_chart_slice_polygon(chart.get(), &slice, &points, &count);
                    });
    }
}

void addPictures(HostileTable& table)
{
    constexpr int kLeast = std::numeric_limits<std::int32_t>::min();
    constexpr int kGreatest = std::numeric_limits<std::int32_t>::max();
    for (const int side : {kLeast, -1, 0, 1, 20, kGreatest}) {
        addForKinds(table, "a picture of side " + std::to_string(side),
                    [=](const CHandle& chart) { drawInC(chart, side, side, side); });
    }
    addForKinds(table, "freeing and clearing again and again", [](const CHandle& chart) {
        for (int i = 0; i < 3; ++i) {
            checkError(chart, tovangl_chart_free_picture(chart.get()));
            checkError(chart, tovangl_chart_clear(chart.get()));
            drawInC(chart);
        }
    });
}

} // namespace

HostileTable inputsInC()
{
    HostileTable table;
    addSettings(table);
    addItems(table);
    addSlices(table);
    addPictures(table);
    return table;
}

} // namespace tovangl
