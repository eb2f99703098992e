// SPDX-License-Identifier: MIT
// The colours of an SVG picture, in one theme or in two.
#include "svg/CSvgColors.h"

#include "svg/CSvgMarkup.h"
#include "svg/picture_id.h"
#include "svg/svg_values.h"

#include <algorithm>
#include <utility>

namespace tovangl {

namespace {

std::string className(std::size_t rule)
{
    return pictureId() + 'c' + std::to_string(rule);
}

} // namespace

CSvgColors::CSvgColors(std::vector<QColor> dark)
    : m_dark(std::move(dark))
{}

void CSvgColors::paint(CSvgMarkup& markup, std::initializer_list<CSvgPaint> paints)
{
    std::string classes;
    for (const CSvgPaint& paint : paints) {
        markup.color(paint.property, paint.color);
        const std::string name = classOf(paint);
        if (!name.empty())
            classes += (classes.empty() ? "" : " ") + name;
    }
    if (!classes.empty())
        markup.attribute("class", classes);
}

std::string CSvgColors::classOf(const CSvgPaint& paint)
{
    const std::size_t position = m_used.size();
    m_used.push_back(paint.color);
    if (position >= m_dark.size() || m_dark[position] == paint.color)
        return {};
    const QColor dark = m_dark[position];
    const auto isSame = [&](const CRule& rule) {
        return rule.property == paint.property && rule.color == dark;
    };
    const auto rule = std::find_if(m_rules.begin(), m_rules.end(), isSame);
    const auto number = static_cast<std::size_t>(rule - m_rules.begin());
    if (rule == m_rules.end())
        m_rules.push_back({paint.property, dark});
    return className(number);
}

std::string CSvgColors::styleSheet() const
{
    if (m_rules.empty())
        return {};
    std::string rules;
    for (std::size_t i = 0; i < m_rules.size(); ++i) {
        rules += '.' + className(i) + '{';
        rules += m_rules[i].property;
        rules += ':' + svgColor(m_rules[i].color) + '}';
    }
    return "@media(prefers-color-scheme:dark){" + rules + '}';
}

} // namespace tovangl
