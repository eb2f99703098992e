// SPDX-License-Identifier: MIT
// The JSON Schema of a chart's description.
#include "tovangl-chart/description_schema.h"

#include "tovangl-chart/chart_description.h"

#include <limits>
#include <nlohmann/json.hpp>

namespace tovangl::program {

namespace {

// Keys keep the order in which they are written.
using Json = nlohmann::ordered_json;

constexpr int kIndent = 2;
constexpr const char* kColorPattern = "^#[0-9a-fA-F]{6}$";
constexpr const char* kColorOrDefaultPattern = "^(#[0-9a-fA-F]{6}|default)$";
// As far as a pattern can tell: one of three schemes, or none; not two slashes, nor white space.
constexpr const char* kLinkPattern =
    R"(^(?![/\\]{2})([hH][tT][tT][pP][sS]?:|[mM][aA][iI][lL][tT][oO]:|(?![^:/\\?#]*:))\S*$)";
constexpr const char* kPictureColorPattern = "^(#[0-9a-fA-F]{6}|transparent|default)$";

Json textSchema(const char* description)
{
    return {{"description", description}, {"type", "string"}};
}

Json colorSchema(const char* description)
{
    Json schema = textSchema(description);
    schema["pattern"] = kColorPattern;
    return schema;
}

Json linkSchema()
{
    Json schema = textSchema("An address that the bar or slice leads to in an SVG picture.");
    schema["pattern"] = kLinkPattern;
    return schema;
}

Json wholeSchema(const char* description, long minimum, long maximum)
{
    return {{"description", description},
            {"type", "integer"},
            {"minimum", minimum},
            {"maximum", maximum}};
}

Json sideSchema(const char* description, int defaultValue)
{
    Json schema = wholeSchema(description, 1, kGreatestSide);
    schema["default"] = defaultValue;
    return schema;
}

Json idSchema()
{
    Json schema = textSchema("The chart's name among others, and the name of its files.");
    schema["pattern"] = "^[A-Za-z0-9_][A-Za-z0-9_.-]*$";
    schema["maxLength"] = kLongestId;
    return schema;
}

Json kindSchema()
{
    Json names = Json::array();
    for (const ChartKind& kind : kChartKinds)
        names.push_back(kind.name);
    return {{"description", "A pie, vertical bars, or horizontal bars."},
            {"enum", std::move(names)}};
}

Json itemSchema()
{
    using Limits = std::numeric_limits<std::int64_t>;
    Json schema = {{"type", "object"}};
    Json& fields = schema["properties"];
    fields[item_key::kValue] =
        wholeSchema("The bar's length or the slice's share.", Limits::min(), Limits::max());
    fields[item_key::kCaption] = textSchema("Beside the bar or slice.");
    fields[item_key::kColor] = colorSchema("Of the bar or slice; by default of the palette.");
    fields[item_key::kOutline] = colorSchema("Of a bar, beside a color.");
    fields[item_key::kLink] = linkSchema();
    schema["required"] = {item_key::kValue};
    schema["dependentRequired"] = {{item_key::kOutline, Json::array({item_key::kColor})}};
    schema["additionalProperties"] = false;
    return schema;
}

Json splitChoices(std::string_view choices)
{
    Json list = Json::array();
    while (true) {
        const std::size_t end = choices.find(',');
        list.push_back(choices.substr(0, end));
        if (end == std::string_view::npos)
            return list;
        choices.remove_prefix(end + 1);
    }
}

// What the type of a setting demands of its value.
Json valueSchema(const Setting& setting)
{
    switch (setting.type) {
    case SettingType::Boolean:
        return {{"type", "boolean"}};
    case SettingType::Whole:
        return {{"type", "integer"}, {"minimum", setting.minimum}, {"maximum", setting.maximum}};
    case SettingType::Real:
        return {{"type", "number"}};
    case SettingType::Choice:
        return {{"enum", splitChoices(setting.choices)}};
    case SettingType::Color:
        return {{"type", "string"}, {"pattern", kColorOrDefaultPattern}};
    case SettingType::PictureColor:
        return {{"type", "string"}, {"pattern", kPictureColorPattern}};
    case SettingType::Position:
        return {{"type", "string"}, {"pattern", "^[-+]?[0-9]+,[-+]?[0-9]+$"}};
    case SettingType::Link:
        return {{"type", "string"}, {"pattern", kLinkPattern}};
    case SettingType::Text:
    case SettingType::Palette:
    case SettingType::Locale:
    case SettingType::AxisProperties:
        break;
    }
    return {{"type", "string"}};
}

// Booleans and numbers are written in the table as they are in JSON.
Json defaultValue(const Setting& setting)
{
    const bool isText = setting.type != SettingType::Boolean &&
                        setting.type != SettingType::Whole && setting.type != SettingType::Real;
    return isText ? Json(setting.defaultValue) : Json::parse(setting.defaultValue);
}

Json settingSchema(const Setting& setting)
{
    Json schema = {{"description", setting.summary}};
    schema.update(valueSchema(setting));
    schema["default"] = defaultValue(setting);
    return schema;
}

Json keySchemas()
{
    Json keys;
    keys[chart_key::kChart] = kindSchema();
    keys[chart_key::kId] = idSchema();
    keys[chart_key::kWidth] = sideSchema("In pixels.", PictureSize().width);
    keys[chart_key::kHeight] = sideSchema("In pixels.", PictureSize().height);
    keys[chart_key::kPrint] = wholeSchema(
        "Draws for print: this many pixels each way for each pixel of the size.", 1, kGreatestSide);
    keys[chart_key::kItems] = {{"type", "array"}, {"items", itemSchema()}};
    for (const Setting& setting : settings())
        keys[setting.name] = settingSchema(setting);
    return keys;
}

// What the other charts have.
Json foreignKeys(const ChartKind& kind)
{
    Json keys = Json::object();
    for (const Setting& setting : settings()) {
        if ((setting.charts & kind.bit) == 0)
            keys[setting.name] = false;
    }
    if (kind.bit == Setting::Pie)
        keys[chart_key::kItems] = {{"items", {{"properties", {{item_key::kOutline, false}}}}}};
    return keys;
}

Json kindRule(const ChartKind& kind)
{
    const Json isKind = {{chart_key::kChart, {{"const", kind.name}}}};
    return {{"if", {{"properties", isKind}}}, {"then", {{"properties", foreignKeys(kind)}}}};
}

} // namespace

std::string descriptionSchema()
{
    Json schema = {{"$schema", "https://json-schema.org/draft/2020-12/schema"},
                   {"title", "A chart"},
                   {"description", "One line of tovangl-chart batch."},
                   {"type", "object"},
                   {"properties", keySchemas()},
                   {"required", {chart_key::kChart, chart_key::kItems}},
                   {"additionalProperties", false},
                   {"allOf", Json::array()}};
    for (const ChartKind& kind : kChartKinds)
        schema["allOf"].push_back(kindRule(kind));
    return schema.dump(kIndent) + '\n';
}

} // namespace tovangl::program
