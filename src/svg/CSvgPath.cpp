// SPDX-License-Identifier: MIT
// The commands of a path.
#include "svg/CSvgPath.h"

#include "svg/svg_values.h"

#include <cctype>

namespace tovangl {

namespace {

// Numbers one after the other, with a space where they would run together.
void append(std::string& numbers, double number)
{
    const std::string text = svgNumber(number);
    if (!numbers.empty() && text.front() != '-')
        numbers += ' ';
    numbers += text;
}

std::string shorter(const std::string& text, const std::string& other)
{
    return other.size() < text.size() ? other : text;
}

char relative(char command)
{
    return static_cast<char>(std::tolower(command));
}

} // namespace

CSvgPath& CSvgPath::move(double x, double y)
{
    return goTo('M', std::string(), placeOf(x, y));
}

CSvgPath& CSvgPath::line(double x, double y)
{
    return goTo('L', std::string(), placeOf(x, y));
}

CSvgPath& CSvgPath::across(double x)
{
    const double place = svgRounded(x);
    m_text += shorter('H' + svgNumber(place), 'h' + svgNumber(place - m_at.x));
    m_at.x = place;
    return *this;
}

CSvgPath& CSvgPath::down(double y)
{
    const double place = svgRounded(y);
    m_text += shorter('V' + svgNumber(place), 'v' + svgNumber(place - m_at.y));
    m_at.y = place;
    return *this;
}

CSvgPath& CSvgPath::arc(double radiusX, double radiusY, bool isClockwise, double x, double y)
{
    std::string shape;
    append(shape, radiusX);
    append(shape, radiusY);
    return goTo('A', shape + (isClockwise ? " 0 0 1" : " 0 0 0"), placeOf(x, y));
}

CSvgPath& CSvgPath::close()
{
    m_text += 'Z';
    return *this;
}

CSvgPath::CPlace CSvgPath::placeOf(double x, double y)
{
    return {svgRounded(x), svgRounded(y)};
}

CSvgPath& CSvgPath::goTo(char command, const std::string& parameters, const CPlace& place)
{
    std::string there = parameters;
    append(there, place.x);
    append(there, place.y);
    std::string way = parameters;
    append(way, place.x - m_at.x);
    append(way, place.y - m_at.y);
    m_text += shorter(command + there, relative(command) + way);
    m_at = place;
    return *this;
}

} // namespace tovangl
