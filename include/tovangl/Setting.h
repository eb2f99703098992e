// SPDX-License-Identifier: MIT
/// @file
/// The table of all settings of a chart: what each is called, what it accepts, what it does.
#ifndef TOVANGL_SETTING_H
#define TOVANGL_SETTING_H

#include <tovangl/Export.h>

namespace tovangl {

/// How a setting's value is written as text.
enum class SettingType
{
    Boolean,      ///< true or false
    Whole,        ///< a whole number, such as -5 or 1024
    Real,         ///< a decimal number, such as 2 or 1.5
    Text,         ///< any text, UTF-8
    Color,        ///< `#rrggbb`, or default
    PictureColor, ///< `#rrggbb`, default, or transparent
    Palette, ///< one or more `#rrggbb` with commas between them, the name of a theme, or default
    Locale,  ///< a language and a country, such as de_AT; or C, or default
    AxisProperties, ///< some of Setting::choices with commas between them, or none
    Position,       ///< two whole numbers with a comma between them
    Choice,         ///< one of Setting::choices
    Link ///< an address of http:, https: or mailto:, or one that is relative to the page; or empty
};

/// One row of the table. Its strings live as long as the process; none is null.
struct Setting
{
    /// A kind of chart, as a bit.
    enum Chart
    {
        Pie = 1,           ///< PieGraph
        VerticalBars = 2,  ///< VerticalBarGraph
        HorizontalBars = 4 ///< HorizontalBarGraph
    };

    const char* name;    ///< lower-case words with underscores between them, such as font_size
    SettingType type;    ///< how its value is written
    int charts;          ///< sum of the Chart bits of the charts that have it
    long minimum;        ///< the least value of a number; 0 for other types
    long maximum;        ///< the greatest value of a number; 0 for other types
    const char* choices; ///< what a Choice accepts, or of what AxisProperties are made, with commas
                         ///< between; "" for other types
    const char* defaultValue; ///< the value that a new chart has
    const char* summary;      ///< what it does, in one English sentence
};

/// The rows of the table, for a range-based for.
class SettingTable
{
public:
    /// A table of the rows from first up to, and without, last.
    constexpr SettingTable(const Setting* first, const Setting* last) noexcept
        : m_first(first)
        , m_last(last)
    {}

    /// The first row.
    constexpr const Setting* begin() const noexcept { return m_first; }
    /// The place behind the last row.
    constexpr const Setting* end() const noexcept { return m_last; }

private:
    const Setting* m_first;
    const Setting* m_last;
};

/// All settings, in the order in which they are to be applied where several are: a theme comes
/// before the colours that it sets.
TOVANGL_EXPORT SettingTable settings() noexcept;

} // namespace tovangl

#endif
