// SPDX-License-Identifier: MIT
/// @file
/// The commands of a path.
#ifndef TOVANGL_SVG_CSVGPATH_H
#define TOVANGL_SVG_CSVGPATH_H

#include <string>

namespace tovangl {

/// Writes commands with numbers of at most two decimals; pixels of the picture.
class CSvgPath
{
public:
    CSvgPath& move(double x, double y) { return add('M', x).add(y); }
    CSvgPath& line(double x, double y) { return add('L', x).add(y); }
    CSvgPath& across(double x) { return add('H', x); }
    CSvgPath& down(double y) { return add('V', y); }
    /// An arc of up to half a turn of an ellipse with upright axes.
    ///
    /// @param radiusX, radiusY  of the ellipse
    /// @param x, y              where the arc ends
    CSvgPath& arc(double radiusX, double radiusY, bool isClockwise, double x, double y);
    CSvgPath& close();

    [[nodiscard]] const std::string& text() const { return m_text; }

private:
    CSvgPath& add(char command, double number);
    // A number after another one.
    CSvgPath& add(double number);

    std::string m_text;
};

} // namespace tovangl

#endif
