// SPDX-License-Identifier: MIT
/// @file
/// The colours of an SVG picture, in one theme or in two.
#ifndef TOVANGL_SVG_CSVGCOLORS_H
#define TOVANGL_SVG_CSVGCOLORS_H

#include <QColor>

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace tovangl {

class CSvgMarkup;

/// What an element's colour is for.
struct CSvgPaint
{
    std::string_view property; ///< "fill", "stroke" or "stop-color"
    QColor color;
};

/// Gives elements their colours, in the order in which the picture is written. Where the same
/// picture has other colours in a dark theme, the elements get classes too, and a style sheet gives
/// these their dark colours on a dark display.
class CSvgColors
{
public:
    /// @param dark  the colours of the dark theme, in that order; none: there is one theme only
    explicit CSvgColors(std::vector<QColor> dark);

    void paint(CSvgMarkup& markup, std::initializer_list<CSvgPaint> paints);
    /// The rules for a dark display; empty where no colour differs.
    [[nodiscard]] std::string styleSheet() const;
    /// All colours so far, in that order.
    [[nodiscard]] const std::vector<QColor>& used() const { return m_used; }

private:
    // A colour that some elements have on a dark display.
    struct CRule
    {
        std::string_view property;
        QColor color;
    };

    // The class of the next element, as far as this property goes; empty where it needs none.
    [[nodiscard]] std::string classOf(const CSvgPaint& paint);

    std::vector<QColor> m_dark;
    std::vector<CRule> m_rules; // by the number of their classes
    std::vector<QColor> m_used;
};

} // namespace tovangl

#endif
