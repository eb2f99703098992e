// SPDX-License-Identifier: MIT
// A chart of the C interface from its creation to its end, while memory runs out.
#include "memory/CChartLifeInC.h"

#include <array>
#include <stdexcept>
#include <string>

namespace tovangl {

namespace {

constexpr int kWidth = 240;  // pixels
constexpr int kHeight = 180; // pixels
constexpr int kFactor = 2;

struct CNamedValue
{
    const char* name;
    const char* value;
};

constexpr std::array kSettings = {
    CNamedValue{"theme", "dark"},   CNamedValue{"title", "a title of several words"},
    CNamedValue{"font_size", "9"},  CNamedValue{"font", "a font with a name too long for its text"},
    CNamedValue{"locale", "de_AT"}, CNamedValue{"palette", "#c02020,#20c020,#2020c0"},
};

int toKind(ChartKind kind)
{
    switch (kind) {
    case ChartKind::VerticalBars:
        return TOVANGL_BARS;
    case ChartKind::HorizontalBars:
        return TOVANGL_HBARS;
    case ChartKind::Pie:
        break;
    }
    return TOVANGL_PIE;
}

std::list<Rectangle> toList(const tovangl_rectangle* first, std::size_t count)
{
    std::list<Rectangle> list;
    for (std::size_t i = 0; i < count; ++i)
        list.push_back({first[i].x, first[i].y, first[i].width, first[i].height});
    return list;
}

} // namespace

CChartLifeInC::CChartLifeInC(ChartKind kind)
    : m_kind(kind)
{}

CChartLifeInC::~CChartLifeInC()
{
    tovangl_chart_destroy(m_chart);
}

void CChartLifeInC::live()
{
    call([] { return tovangl_warm_up(); });
    call([this] { return tovangl_chart_create(toKind(m_kind), &m_chart); });
    applySettings();
    addItems();
    render(PictureKind::Screen);
    render(PictureKind::Print);
    setLinks();
    render(PictureKind::Svg);
    render(PictureKind::Pdf);
    call([this] { return tovangl_chart_clear(m_chart); });
    addItems();
    render(PictureKind::Screen);
    call([this] { return tovangl_chart_free_picture(m_chart); });
}

void CChartLifeInC::requireSuccess(tovangl_status status)
{
    if (status != TOVANGL_OK)
        throw std::logic_error(tovangl_status_text(status));
}

void CChartLifeInC::applySettings()
{
    for (const CNamedValue& setting : kSettings)
        call([&] { return tovangl_chart_set(m_chart, setting.name, setting.value); });
}

void CChartLifeInC::addItems()
{
    const std::array<std::int64_t, 4> values = {34000, 12000, -4000, 11000};
    const std::array<const char*, 4> captions = {"a caption that is too long for its room", "usr",
                                                 "negative", "home"};
    const std::array<std::uint32_t, 4> fills = {TOVANGL_NO_COLOR, 0xc0a020, 0, 0x20a0c0};
    const std::string text = "a caption cut from a text, and opt";
    const std::array<std::size_t, 3> offsets = {0, 31, text.size()};
    call([&] {
        return tovangl_chart_add_items(m_chart, values.size(), values.data(), captions.data(),
                                       fills.data(), nullptr);
    });
    call([&] {
        return tovangl_chart_add_columns(m_chart, offsets.size() - 1, values.data(), text.data(),
                                         text.size(), offsets.data(), nullptr, fills.data());
    });
}

void CChartLifeInC::setLinks()
{
    const std::string text = "https://example.org/usrhome.html";
    const std::array<std::size_t, 4> offsets = {0, 23, 23, text.size()};
    call([this] { return tovangl_chart_set_link(m_chart, 0, "usr.html"); });
    call([&] {
        return tovangl_chart_set_links(m_chart, offsets.size() - 1, text.data(), text.size(),
                                       offsets.data());
    });
}

void CChartLifeInC::render(PictureKind kind)
{
    CRenderedChart rendering;
    call([&] { return exportPicture(kind, rendering.png); });
    copyRegions(rendering);
    if (m_kind == ChartKind::Pie)
        copySlices(rendering);
    rendering.problem = static_cast<Problem>(tovangl_chart_problem(m_chart));
    m_renderings.push_back(rendering);
}

tovangl_status CChartLifeInC::exportPicture(PictureKind kind, std::string& png)
{
    const unsigned char* data = nullptr;
    std::size_t size = 0;
    const auto render = [&] {
        switch (kind) {
        case PictureKind::Print:
            return tovangl_chart_render_for_print(m_chart, kWidth, kHeight, kFactor, &data, &size);
        case PictureKind::Svg:
            return tovangl_chart_render_svg(m_chart, kWidth, kHeight, &data, &size);
        case PictureKind::Pdf:
            return tovangl_chart_render_pdf(m_chart, kWidth, kHeight, &data, &size);
        case PictureKind::Screen:
            break;
        }
        return tovangl_chart_render(m_chart, kWidth, kHeight, &data, &size);
    };
    const tovangl_status status = render();
    if (status == TOVANGL_NO_MEMORY && tovangl_chart_problem(m_chart) != TOVANGL_PROBLEM_NO_MEMORY)
        m_tellsLackOfMemory = false;
    if (status == TOVANGL_OK)
        png.assign(reinterpret_cast<const char*>(data), size);
    return status;
}

void CChartLifeInC::copyRegions(CRenderedChart& rendering)
{
    const tovangl_rectangle* first = nullptr;
    std::size_t count = 0;
    call([&] { return tovangl_chart_caption_rectangles(m_chart, &first, &count); });
    rendering.items = toList(first, count);
    if (m_kind != ChartKind::Pie) {
        call([&] { return tovangl_chart_bar_rectangles(m_chart, &first, &count); });
        rendering.itemBars = toList(first, count);
    }
    const char* text = nullptr;
    call([&] { return tovangl_chart_describe(m_chart, &text); });
    rendering.description = text;
    tovangl_rectangle title{};
    call([&] { return tovangl_chart_title_rectangle(m_chart, &title); });
}

void CChartLifeInC::copySlices(CRenderedChart& rendering)
{
    const tovangl_slice* first = nullptr;
    std::size_t count = 0;
    call([&] { return tovangl_chart_slices(m_chart, &first, &count); });
    for (std::size_t i = 0; i < count; ++i) {
        const tovangl_slice& slice = first[i];
        rendering.slices.push_back(
            {slice.x, slice.y, slice.width, slice.height, slice.start, slice.span});
        const tovangl_point* points = nullptr;
        std::size_t corners = 0;
        call([&] { return tovangl_chart_slice_polygon(m_chart, &slice, &points, &corners); });
    }
}

} // namespace tovangl
