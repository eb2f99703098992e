// SPDX-License-Identifier: MIT
/// @file
/// The commands of a path.
#ifndef TOVANGL_SVG_CSVGPATH_H
#define TOVANGL_SVG_CSVGPATH_H

#include <string>

namespace tovangl {

/// Writes commands with numbers of at most two decimals; pixels of the picture. Each command leads
/// to a place, of which it writes what is shorter: where it is, or how far it is from the last one.
class CSvgPath
{
public:
    CSvgPath& move(double x, double y);
    CSvgPath& line(double x, double y);
    CSvgPath& across(double x);
    CSvgPath& down(double y);
    /// An arc of up to half a turn of an ellipse with upright axes. The nearer to half a turn, the
    /// more do the decimals that are missing move its middle.
    ///
    /// @param radiusX, radiusY  of the ellipse
    /// @param x, y              where the arc ends
    CSvgPath& arc(double radiusX, double radiusY, bool isClockwise, double x, double y);
    CSvgPath& close();

    [[nodiscard]] const std::string& text() const { return m_text; }

private:
    // Where the path has come to, as it is written.
    struct CPlace
    {
        double x = 0;
        double y = 0;
    };

    [[nodiscard]] static CPlace placeOf(double x, double y);
    CSvgPath& goTo(char command, const std::string& parameters, const CPlace& place);

    std::string m_text;
    CPlace m_at;
};

} // namespace tovangl

#endif
