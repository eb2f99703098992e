// SPDX-License-Identifier: MIT
/// @file
/// Gathers the fields of a chart's description.
#ifndef TOVANGL_CHART_CDESCRIPTIONBUILDER_H
#define TOVANGL_CHART_CDESCRIPTIONBUILDER_H

#include "tovangl-chart/chart_description.h"

#include <set>
#include <string>
#include <string_view>

namespace tovangl::program {

/// A value of JSON that is neither an object nor an array, or stands for one that is in the wrong
/// place.
struct FieldValue
{
    enum Type
    {
        Null,
        Boolean,
        Whole,    ///< of 64 bits
        Other,    ///< a number that is not Whole
        Overflow, ///< a number beyond all others, which nothing takes
        Text,
        Composite ///< an object or an array
    };

    Type type;
    std::string_view text; ///< as it stands in the JSON; of a Text, without its quotation marks
    long whole = 0;        ///< of a Whole
};

/// Checks each field when it comes, and at the end what belongs together. Every operation throws
/// CFailure with the place and the reason.
class CDescriptionBuilder
{
public:
    /// A key of the chart. Whatever comes next belongs to it.
    void enterField(std::string_view key);
    /// The value of the chart's last key.
    void setField(const FieldValue& value);
    /// Whether the last key wants the array of items.
    [[nodiscard]] bool isAtItems() const { return m_key == chart_key::kItems; }

    /// Anything in the array of items that is not an object.
    [[noreturn]] void refuseItem() const;
    void startItem();
    void enterItemField(std::string_view key);
    void setItemField(const FieldValue& value);
    void endItem();

    /// The whole description. Nothing may be called afterwards.
    [[nodiscard]] ChartDescription take();

private:
    [[nodiscard]] std::string place() const;
    [[noreturn]] void refuse(const FieldValue& value, const std::string& wanted) const;
    [[nodiscard]] std::string text(const FieldValue& value) const;
    [[nodiscard]] int wholeUpTo(const FieldValue& value, long maximum) const;
    [[nodiscard]] Color color(const FieldValue& value) const;
    [[nodiscard]] ChartKind chartKind(const FieldValue& value) const;
    [[nodiscard]] std::string fileName(const FieldValue& value) const;
    void setSetting(const FieldValue& value);
    void requireKeys() const;
    void requireSettingsOfKind() const;
    void requireOutlinesOfKind() const;

    ChartDescription m_chart;
    std::set<std::string, std::less<>> m_keys; // of the chart
    std::string m_key;                         // the last one
    std::set<std::string, std::less<>> m_itemKeys;
    std::string m_itemKey; // empty between items
    bool m_isInItem = false;
};

} // namespace tovangl::program

#endif
