// SPDX-License-Identifier: MIT
// Gathers the fields of a chart's description.
#include "tovangl-chart/CDescriptionBuilder.h"

#include "common/CFailure.h"
#include "common/text_checks.h"

#include <algorithm>
#include <array>

namespace tovangl::program {

namespace {

constexpr std::size_t kLongestShownKey = 100; // bytes, which a key that means harm can exceed

// A key as a part of a JSON pointer.
std::string pointerPart(std::string_view key)
{
    std::string part = "/";
    for (const char letter : key.substr(0, kLongestShownKey))
        part += letter == '~' ? "~0" : letter == '/' ? "~1" : std::string(1, letter);
    return key.size() > kLongestShownKey ? part + "..." : part;
}

std::string shown(const FieldValue& value)
{
    if (value.type == FieldValue::Text)
        return quote(value.text);
    if (value.type == FieldValue::Composite)
        return std::string(value.text);
    constexpr std::size_t kShownDigits = 40;
    return makePrintable(value.text.substr(0, kShownDigits));
}

const Setting* findSetting(std::string_view name)
{
    for (const Setting& setting : settings()) {
        if (setting.name == name)
            return &setting;
    }
    return nullptr;
}

constexpr std::array kChartKeys = {chart_key::kChart,  chart_key::kId,    chart_key::kWidth,
                                   chart_key::kHeight, chart_key::kPrint, chart_key::kItems};
constexpr std::array kItemKeys = {item_key::kValue, item_key::kCaption, item_key::kColor,
                                  item_key::kOutline, item_key::kLink};

template <typename Keys>
bool isOneOf(const Keys& keys, std::string_view key)
{
    return std::any_of(keys.begin(), keys.end(), [key](const char* known) { return key == known; });
}

bool isName(std::string_view text)
{
    return !text.empty() && text.size() <= kLongestId &&
           kIdFirst.find(text[0]) != std::string_view::npos &&
           std::all_of(text.begin(), text.end(), [](char letter) {
               return kIdFirst.find(letter) != std::string_view::npos ||
                      kIdOthers.find(letter) != std::string_view::npos;
           });
}

std::string wantedType(SettingType type)
{
    switch (type) {
    case SettingType::Boolean:
        return "true or false";
    case SettingType::Whole:
        return "a whole number of 64 bits";
    case SettingType::Real:
        return "a number of 64 bits";
    default:
        return "a text";
    }
}

bool hasType(const FieldValue& value, SettingType type)
{
    switch (type) {
    case SettingType::Boolean:
        return value.type == FieldValue::Boolean;
    case SettingType::Whole:
        return value.type == FieldValue::Whole;
    case SettingType::Real:
        return value.type == FieldValue::Whole || value.type == FieldValue::Other;
    default:
        return value.type == FieldValue::Text;
    }
}

} // namespace

void CDescriptionBuilder::enterField(std::string_view key)
{
    m_key = key;
    if (!m_keys.emplace(key).second)
        throw CFailure(place() + ": stands there twice");
    if (!isOneOf(kChartKeys, key) && !findSetting(key))
        throw CFailure(place() + ": no chart has such a setting");
}

void CDescriptionBuilder::setField(const FieldValue& value)
{
    if (m_key == chart_key::kChart)
        m_chart.kind = chartKind(value);
    else if (m_key == chart_key::kId)
        m_chart.id = fileName(value);
    else if (m_key == chart_key::kWidth)
        m_chart.size.width = wholeUpTo(value, kGreatestSide);
    else if (m_key == chart_key::kHeight)
        m_chart.size.height = wholeUpTo(value, kGreatestSide);
    else if (m_key == chart_key::kPrint)
        m_chart.printFactor = wholeUpTo(value, kGreatestSide);
    else if (m_key == chart_key::kItems)
        refuse(value, "an array of items");
    else
        setSetting(value);
}

void CDescriptionBuilder::refuseItem() const
{
    throw CFailure(place() + pointerPart(std::to_string(m_chart.items.size())) +
                   ": is not an object");
}

void CDescriptionBuilder::startItem()
{
    m_chart.items.emplace_back();
    m_itemKeys.clear();
    m_itemKey.clear();
    m_isInItem = true;
}

void CDescriptionBuilder::enterItemField(std::string_view key)
{
    m_itemKey = key;
    if (!m_itemKeys.emplace(key).second)
        throw CFailure(place() + ": stands there twice");
    if (!isOneOf(kItemKeys, key))
        throw CFailure(place() +
                       ": an item has a value, a caption, a color, an outline and a link");
}

void CDescriptionBuilder::setItemField(const FieldValue& value)
{
    ChartItem& item = m_chart.items.back();
    if (m_itemKey == item_key::kCaption)
        item.caption = text(value);
    else if (m_itemKey == item_key::kColor)
        item.fill = color(value);
    else if (m_itemKey == item_key::kOutline)
        item.outline = color(value);
    else if (m_itemKey == item_key::kLink)
        item.link = text(value);
    else if (value.type == FieldValue::Whole)
        item.value = value.whole;
    else
        refuse(value, "a whole number of 64 bits");
}

void CDescriptionBuilder::endItem()
{
    m_itemKey.clear();
    if (m_itemKeys.count(item_key::kValue) == 0)
        throw CFailure(place() + ": has no value");
    const ChartItem& item = m_chart.items.back();
    if (item.outline && !item.fill)
        throw CFailure(place() + ": has an outline, but no color");
    m_isInItem = false;
}

ChartDescription CDescriptionBuilder::take()
{
    requireKeys();
    requireSettingsOfKind();
    requireOutlinesOfKind();
    return std::move(m_chart);
}

// Where reading has arrived, as a JSON pointer.
std::string CDescriptionBuilder::place() const
{
    if (!m_isInItem)
        return makePrintable(pointerPart(m_key));
    const std::string item =
        pointerPart(m_key) + pointerPart(std::to_string(m_chart.items.size() - 1));
    return m_itemKey.empty() ? item : item + makePrintable(pointerPart(m_itemKey));
}

void CDescriptionBuilder::refuse(const FieldValue& value, const std::string& wanted) const
{
    throw CFailure(place() + ": " + shown(value) + " is not " + wanted);
}

std::string CDescriptionBuilder::text(const FieldValue& value) const
{
    if (value.type != FieldValue::Text)
        refuse(value, "a text");
    return std::string(value.text);
}

int CDescriptionBuilder::wholeUpTo(const FieldValue& value, long maximum) const
{
    if (value.type != FieldValue::Whole || value.whole < 1 || value.whole > maximum)
        refuse(value, "a whole number from 1 to " + std::to_string(maximum));
    return static_cast<int>(value.whole);
}

Color CDescriptionBuilder::color(const FieldValue& value) const
{
    const std::optional<Color> found =
        value.type == FieldValue::Text ? findColor(value.text) : std::nullopt;
    if (!found)
        refuse(value, "a colour such as #4070c0");
    return *found;
}

ChartKind CDescriptionBuilder::chartKind(const FieldValue& value) const
{
    for (const ChartKind& kind : kChartKinds) {
        if (value.type == FieldValue::Text && value.text == kind.name)
            return kind;
    }
    refuse(value, "pie, bars or hbars");
}

std::string CDescriptionBuilder::fileName(const FieldValue& value) const
{
    if (value.type != FieldValue::Text || !isName(value.text))
        refuse(value, "an id: 1 to " + std::to_string(kLongestId) +
                          " ASCII letters, digits, _, and after the first one . and -");
    return std::string(value.text);
}

void CDescriptionBuilder::setSetting(const FieldValue& value)
{
    const Setting* setting = findSetting(m_key);
    if (!hasType(value, setting->type))
        refuse(value, wantedType(setting->type));
    m_chart.settings.emplace(setting, value.text);
}

void CDescriptionBuilder::requireKeys() const
{
    for (const char* key : {chart_key::kChart, chart_key::kItems}) {
        if (m_keys.count(key) == 0)
            throw CFailure(pointerPart(key) + ": is missing");
    }
}

void CDescriptionBuilder::requireSettingsOfKind() const
{
    for (const auto& [setting, value] : m_chart.settings) {
        if ((setting->charts & m_chart.kind.bit) == 0)
            throw CFailure(pointerPart(setting->name) + ": " + m_chart.kind.name +
                           " has no such setting");
    }
}

void CDescriptionBuilder::requireOutlinesOfKind() const
{
    if (m_chart.kind.bit != Setting::Pie)
        return;
    for (std::size_t i = 0; i < m_chart.items.size(); ++i) {
        if (m_chart.items[i].outline)
            throw CFailure(pointerPart(chart_key::kItems) + pointerPart(std::to_string(i)) +
                           pointerPart(item_key::kOutline) +
                           ": slices share the setting outline_color");
    }
}

} // namespace tovangl::program
