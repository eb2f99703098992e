// SPDX-License-Identifier: MIT
// The C interface: adding items, one by one and in columns.
#include "api/CGraph1dBase.h"
#include "api/c_chart.h"
#include "input/CGraph1dInput.h"
#include "input/link_address.h"
#include "input/setting_values.h"

#include <iterator>
#include <optional>
#include <string_view>
#include <utility>

namespace tovangl {

namespace {

constexpr std::uint32_t kGreatestColor = 0xffffff;

// Columns of equal length, as the host has them. Those of the colours may be null.
struct CItemColumns
{
    std::size_t count;
    const std::int64_t* values;
    const std::uint32_t* fills;
    const std::uint32_t* outlines;
};

std::uint32_t colorIn(const std::uint32_t* column, std::size_t item)
{
    return column ? column[item] : TOVANGL_NO_COLOR;
}

bool isColor(std::uint32_t color)
{
    return color <= kGreatestColor || color == TOVANGL_NO_COLOR;
}

QColor toQColor(std::uint32_t color)
{
    return color == TOVANGL_NO_COLOR ? QColor() : QColor(color);
}

COutcome wrongItem(std::size_t item, tovangl_status status, const char* what)
{
    return {status, "item " + std::to_string(item) + ": " + what};
}

// @param caption  null bytes for a caption that the host left out
COutcome makeItem(const CItemColumns& columns, std::size_t item, std::string_view caption,
                  std::vector<CGraph1dItem>& made)
{
    const std::uint32_t fill = colorIn(columns.fills, item);
    const std::uint32_t outline = colorIn(columns.outlines, item);
    if (!caption.data())
        return wrongItem(item, TOVANGL_NULL_ARGUMENT, "the caption is null");
    if (!isColor(fill) || !isColor(outline))
        return wrongItem(item, TOVANGL_BAD_ARGUMENT, "the colour is not 0xrrggbb");
    std::optional<QString> text = parseText(caption);
    if (!text)
        return wrongItem(item, TOVANGL_NOT_UTF8, "the caption is not UTF-8");
    made.push_back({columns.values[item], std::move(*text), toQColor(fill), toQColor(outline)});
    return {};
}

// Adds all items or, where one is wrong, none.
//
// @param captionAt  gives the caption of an item as a std::string_view
template <typename CaptionAt>
COutcome addItems(tovangl_chart& chart, const CItemColumns& columns, CaptionAt captionAt)
{
    std::vector<CGraph1dItem> made;
    made.reserve(columns.count);
    for (std::size_t i = 0; i < columns.count; ++i) {
        COutcome outcome = makeItem(columns, i, captionAt(i), made);
        if (outcome.status != TOVANGL_OK)
            return outcome;
    }
    std::vector<CGraph1dItem>& items = chart.graph.input().items;
    items.insert(items.end(), std::make_move_iterator(made.begin()),
                 std::make_move_iterator(made.end()));
    return {};
}

std::string_view toView(const char* text)
{
    return text ? std::string_view(text) : std::string_view();
}

// Texts that stand in one text, one behind the other, as the host has them.
struct CTextColumn
{
    const char* text;
    std::size_t size;
    const std::size_t* offsets;

    std::string_view operator()(std::size_t i) const
    {
        return {(text ? text : "") + offsets[i], offsets[i + 1] - offsets[i]};
    }
};

// Whether the offsets cut the text into count pieces.
bool isCut(const CTextColumn& column, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        if (column.offsets[i] > column.offsets[i + 1])
            return false;
    }
    return column.offsets[count] <= column.size;
}

COutcome checkColumn(const CTextColumn& column, std::size_t count)
{
    if ((count > 0 && !column.offsets) || (column.size > 0 && !column.text))
        return {TOVANGL_NULL_ARGUMENT};
    if (count > 0 && !isCut(column, count))
        return {TOVANGL_BAD_ARGUMENT, "the offsets do not cut the text into pieces"};
    return {};
}

COutcome checkLink(std::size_t item, std::string_view address)
{
    if (!parseText(address))
        return wrongItem(item, TOVANGL_NOT_UTF8, "the address is not UTF-8");
    if (!address.empty() && !isLinkAddress(address))
        return wrongItem(item, TOVANGL_BAD_ARGUMENT, "the address is none that a link can have");
    return {};
}

// Gives the first items their addresses or, where one is wrong, none of them.
COutcome setLinks(CGraph1dInput& input, std::size_t count, const CTextColumn& addresses)
{
    if (count > input.items.size())
        return {TOVANGL_BAD_ARGUMENT, "there are more addresses than items"};
    for (std::size_t i = 0; i < count; ++i) {
        COutcome outcome = checkLink(i, addresses(i));
        if (outcome.status != TOVANGL_OK)
            return outcome;
    }
    for (std::size_t i = 0; i < count; ++i)
        input.setLink(i, addresses(i));
    return {};
}

} // namespace

} // namespace tovangl

tovangl_status tovangl_chart_add_item(tovangl_chart* chart, int64_t value, const char* caption,
                                      uint32_t fill, uint32_t outline)
{
    return tovangl_chart_add_items(chart, 1, &value, &caption, &fill, &outline);
}

tovangl_status tovangl_chart_add_items(tovangl_chart* chart, size_t count, const int64_t* values,
                                       const char* const* captions, const uint32_t* fills,
                                       const uint32_t* outlines)
{
    return tovangl::callChart(chart, [=](tovangl_chart& target) -> tovangl::COutcome {
        if (count > 0 && (!values || !captions))
            return {TOVANGL_NULL_ARGUMENT};
        return tovangl::addItems(target, {count, values, fills, outlines},
                                 [=](std::size_t i) { return tovangl::toView(captions[i]); });
    });
}

tovangl_status tovangl_chart_add_columns(tovangl_chart* chart, size_t count, const int64_t* values,
                                         const char* text, size_t size, const size_t* offsets,
                                         const uint32_t* fills, const uint32_t* outlines)
{
    return tovangl::callChart(chart, [=](tovangl_chart& target) -> tovangl::COutcome {
        if (count > 0 && !values)
            return {TOVANGL_NULL_ARGUMENT};
        const tovangl::CTextColumn captions{text, size, offsets};
        tovangl::COutcome outcome = tovangl::checkColumn(captions, count);
        if (outcome.status != TOVANGL_OK)
            return outcome;
        return tovangl::addItems(target, {count, values, fills, outlines}, captions);
    });
}

tovangl_status tovangl_chart_set_link(tovangl_chart* chart, size_t item, const char* address)
{
    return tovangl::callChart(chart, [=](tovangl_chart& target) -> tovangl::COutcome {
        if (!address)
            return {TOVANGL_NULL_ARGUMENT};
        if (!target.graph.input().setLink(item, address))
            return {TOVANGL_BAD_ARGUMENT,
                    "there is no such item, or the address is none that a link can have"};
        return {};
    });
}

tovangl_status tovangl_chart_set_links(tovangl_chart* chart, size_t count, const char* text,
                                       size_t size, const size_t* offsets)
{
    return tovangl::callChart(chart, [=](tovangl_chart& target) -> tovangl::COutcome {
        const tovangl::CTextColumn addresses{text, size, offsets};
        tovangl::COutcome outcome = tovangl::checkColumn(addresses, count);
        if (outcome.status != TOVANGL_OK)
            return outcome;
        return tovangl::setLinks(target.graph.input(), count, addresses);
    });
}
