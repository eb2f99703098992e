// SPDX-License-Identifier: MIT
// The C interface: adding items, one by one and in columns.
#include "c/chart_handle.h"
#include "chart/CGraph1dBase.h"
#include "input/CGraph1dInput.h"
#include "input/link_address.h"
#include "input/setting_values.h"

#include <algorithm>
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

using TextColumn = std::vector<std::string_view>;

// A text of texts, as the host has it.
struct CJoinedTexts
{
    const char* text;
    std::size_t size;
    const std::size_t* offsets; // null where a NUL stands between two texts
};

// Whether the offsets cut the text into count pieces.
bool areOffsets(const CJoinedTexts& joined, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        if (joined.offsets[i] > joined.offsets[i + 1])
            return false;
    }
    return joined.offsets[count] <= joined.size;
}

std::string_view textOf(const CJoinedTexts& joined)
{
    return {joined.text ? joined.text : "", joined.size};
}

bool areAtNuls(std::string_view text, std::size_t count)
{
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\0')) + 1 == count;
}

// Whether there are no more and no less than count texts.
COutcome checkCut(const CJoinedTexts& joined, std::size_t count)
{
    if (joined.size > 0 && !joined.text)
        return {TOVANGL_NULL_ARGUMENT};
    if (count == 0 ||
        (joined.offsets ? areOffsets(joined, count) : areAtNuls(textOf(joined), count)))
        return {};
    return {TOVANGL_BAD_ARGUMENT, joined.offsets
                                      ? "the offsets do not cut the text into pieces"
                                      : "the NULs do not cut the text into so many pieces"};
}

TextColumn cutAtOffsets(const CJoinedTexts& joined, std::size_t count)
{
    TextColumn texts;
    texts.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        texts.push_back(
            textOf(joined).substr(joined.offsets[i], joined.offsets[i + 1] - joined.offsets[i]));
    return texts;
}

TextColumn cutAtNuls(std::string_view rest, std::size_t count)
{
    TextColumn texts;
    texts.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t end = std::min(rest.find('\0'), rest.size());
        texts.push_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return texts;
}

// Only what checkCut() has found good is cut.
TextColumn cut(const CJoinedTexts& joined, std::size_t count)
{
    return joined.offsets ? cutAtOffsets(joined, count) : cutAtNuls(textOf(joined), count);
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
COutcome setLinks(CGraph1dInput& input, const TextColumn& addresses)
{
    if (addresses.size() > input.items.size())
        return {TOVANGL_BAD_ARGUMENT, "there are more addresses than items"};
    for (std::size_t i = 0; i < addresses.size(); ++i) {
        COutcome outcome = checkLink(i, addresses[i]);
        if (outcome.status != TOVANGL_OK)
            return outcome;
    }
    for (std::size_t i = 0; i < addresses.size(); ++i)
        input.setLink(i, addresses[i]);
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
        const tovangl::CJoinedTexts joined{text, size, offsets};
        tovangl::COutcome outcome = tovangl::checkCut(joined, count);
        if (outcome.status != TOVANGL_OK)
            return outcome;
        const tovangl::TextColumn captions = tovangl::cut(joined, count);
        return tovangl::addItems(target, {count, values, fills, outlines},
                                 [&](std::size_t i) { return captions[i]; });
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
        const tovangl::CJoinedTexts joined{text, size, offsets};
        tovangl::COutcome outcome = tovangl::checkCut(joined, count);
        if (outcome.status != TOVANGL_OK)
            return outcome;
        return tovangl::setLinks(target.graph.input(), tovangl::cut(joined, count));
    });
}
