// SPDX-License-Identifier: MIT
// A whole chart as data.
#include "tovangl-chart/chart_description.h"

#include "common/CFailure.h"
#include "common/text_checks.h"
#include "tovangl-chart/CDescriptionBuilder.h"

#include <limits>
#include <nlohmann/json.hpp>

namespace tovangl::program {

namespace {

using Json = nlohmann::json;

constexpr int kNumberOverflow = 406; // the parser's name for a number that no double can hold

constexpr FieldValue kObject = {FieldValue::Composite, "an object"};
constexpr FieldValue kArray = {FieldValue::Composite, "an array"};

/// Follows the structure of the JSON while it is read, and passes the fields on. No tree of it is
/// ever built. The names of the operations are those that the parser calls.
class CDescriptionEvents
{
public:
    using Float = Json::number_float_t;
    using Text = Json::string_t;

    // NOLINTBEGIN(readability-identifier-naming)
    bool null() { return take({FieldValue::Null, "null"}); }
    bool boolean(bool value) { return take({FieldValue::Boolean, value ? "true" : "false"}); }
    bool number_integer(std::int64_t value)
    {
        const std::string text = std::to_string(value);
        return take({FieldValue::Whole, text, value});
    }
    bool number_unsigned(std::uint64_t value)
    {
        constexpr std::uint64_t kGreatest = std::numeric_limits<std::int64_t>::max();
        if (value <= kGreatest)
            return number_integer(static_cast<std::int64_t>(value));
        const std::string text = std::to_string(value);
        return take({FieldValue::Other, text});
    }
    bool number_float(Float /*value*/, const Text& text) { return take({FieldValue::Other, text}); }
    bool string(const Text& value) { return take({FieldValue::Text, value}); }
    bool binary(const Json::binary_t& /*bytes*/) { return false; } // never in JSON

    bool start_object(std::size_t /*size*/)
    {
        if (m_level == Level::Outside)
            m_level = Level::Chart;
        else if (m_level == Level::Items) {
            m_builder.startItem();
            m_level = Level::Item;
        } else
            return take(kObject);
        return true;
    }
    bool key(const Text& name)
    {
        if (m_level == Level::Item)
            m_builder.enterItemField(name);
        else
            m_builder.enterField(name);
        return true;
    }
    bool end_object()
    {
        if (m_level == Level::Item) {
            m_builder.endItem();
            m_level = Level::Items;
        }
        return true;
    }
    bool start_array(std::size_t /*size*/)
    {
        if (m_level != Level::Chart || !m_builder.isAtItems())
            return take(kArray);
        m_level = Level::Items;
        return true;
    }
    bool end_array()
    {
        m_level = Level::Chart;
        return true;
    }
    bool parse_error(std::size_t position, const std::string& token, const Json::exception& error)
    {
        if (error.id == kNumberOverflow)
            take({FieldValue::Overflow, token});
        throw CFailure("not JSON: wrong at byte " + std::to_string(position));
    }
    // NOLINTEND(readability-identifier-naming)

    [[nodiscard]] ChartDescription result() { return m_builder.take(); }

private:
    enum class Level
    {
        Outside,
        Chart,
        Items,
        Item
    };

    bool take(const FieldValue& value)
    {
        if (m_level == Level::Outside)
            throw CFailure("a chart is a JSON object: {\"chart\": ..., \"items\": [...]}");
        if (m_level == Level::Items)
            m_builder.refuseItem();
        if (m_level == Level::Item)
            m_builder.setItemField(value);
        else
            m_builder.setField(value);
        return true;
    }

    CDescriptionBuilder m_builder;
    Level m_level = Level::Outside;
};

// The parser would take a zero byte for the end.
void requireNoZero(std::string_view json)
{
    const std::size_t zero = json.find('\0');
    if (zero != std::string_view::npos)
        throw CFailure("byte " + std::to_string(zero + 1) + " is zero");
}

void requireUtf8(std::string_view json)
{
    const std::size_t broken = findBrokenUtf8(json);
    if (broken != std::string_view::npos)
        throw CFailure("byte " + std::to_string(broken + 1) + " is not UTF-8");
}

} // namespace

ChartDescription parseDescription(std::string_view json)
{
    requireNoZero(json);
    requireUtf8(json);
    CDescriptionEvents events;
    Json::sax_parse(json.begin(), json.end(), &events);
    return events.result();
}

} // namespace tovangl::program
