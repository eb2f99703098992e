// SPDX-License-Identifier: MIT
// The commands of a path.
#include "svg/CSvgPath.h"

#include "svg/svg_values.h"

namespace tovangl {

CSvgPath& CSvgPath::arc(double radiusX, double radiusY, bool isClockwise, double x, double y)
{
    add('A', radiusX).add(radiusY);
    m_text += isClockwise ? " 0 0 1" : " 0 0 0";
    return add(x).add(y);
}

CSvgPath& CSvgPath::close()
{
    m_text += 'Z';
    return *this;
}

CSvgPath& CSvgPath::add(char command, double number)
{
    m_text += command;
    m_text += svgNumber(number);
    return *this;
}

CSvgPath& CSvgPath::add(double number)
{
    const std::string text = svgNumber(number);
    if (text.front() != '-')
        m_text += ' ';
    m_text += text;
    return *this;
}

} // namespace tovangl
