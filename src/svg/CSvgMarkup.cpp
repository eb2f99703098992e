// SPDX-License-Identifier: MIT
// Writes the elements of an SVG picture.
#include "svg/CSvgMarkup.h"

#include "svg/svg_values.h"

namespace tovangl {

CSvgMarkup& CSvgMarkup::begin(std::string_view element)
{
    m_text += '<';
    m_text += element;
    return *this;
}

CSvgMarkup& CSvgMarkup::attribute(std::string_view name, std::string_view value)
{
    m_text += ' ';
    m_text += name;
    m_text += "=\"";
    m_text += value;
    m_text += '"';
    return *this;
}

CSvgMarkup& CSvgMarkup::attribute(std::string_view name, double value)
{
    return attribute(name, std::string_view(svgNumber(value)));
}

CSvgMarkup& CSvgMarkup::color(std::string_view name, const QColor& value)
{
    return attribute(name, std::string_view(svgColor(value)));
}

CSvgMarkup& CSvgMarkup::textAttribute(std::string_view name, const QString& value)
{
    return attribute(name, std::string_view(svgText(value)));
}

void CSvgMarkup::end()
{
    m_text += "/>";
}

CSvgMarkup& CSvgMarkup::open()
{
    m_text += '>';
    return *this;
}

void CSvgMarkup::close(std::string_view element)
{
    m_text += "</";
    m_text += element;
    m_text += '>';
}

CSvgMarkup& CSvgMarkup::content(const QString& text)
{
    m_text += svgText(text);
    return *this;
}

void CSvgMarkup::textElement(std::string_view element, const QString& text)
{
    begin(element).open().content(text).close(element);
}

void CSvgMarkup::styleElement(std::string_view rules)
{
    if (rules.empty())
        return;
    begin("style").open();
    m_text += rules;
    close("style");
}

} // namespace tovangl
