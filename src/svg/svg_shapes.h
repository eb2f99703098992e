// SPDX-License-Identifier: MIT
/// @file
/// The straight shapes of a chart as SVG, on the same pixels as when they are painted.
#ifndef TOVANGL_SVG_SVG_SHAPES_H
#define TOVANGL_SVG_SVG_SHAPES_H

#include <QColor>
#include <QRectF>

#include <string>
#include <string_view>

namespace tovangl {

class CSvgMarkup;
struct CBar;
struct CSvgScene;
struct CStraightLine;
struct CVerticalFade;

/// Writes the place of a rectangle.
void writeExtent(CSvgMarkup& markup, const QRectF& rect);
/// Writes the width of a stroke, if it is not the usual one.
void writeStrokeWidth(CSvgMarkup& markup, double width);

void writeLine(CSvgScene& scene, const CStraightLine& line);
void writeBar(CSvgScene& scene, const CBar& bar, int outlineWidth);

/// Two heights of the picture.
struct CSvgSpan
{
    double top = 0;
    double bottom = 0;
};

/// A fade from one height of the picture to another as a shape's fill or stroke.
class CSvgFade
{
public:
    /// Defines the gradient, if there is one. It must stand before the shape begins.
    ///
    /// @param span   where it begins and ends
    /// @param shape  where the shape begins and ends
    CSvgFade(CSvgScene& scene, const CVerticalFade& fade, const CSvgSpan& span,
             const CSvgSpan& shape);

    /// @param property  "fill" or "stroke"
    void paint(CSvgScene& scene, std::string_view property) const;

private:
    QColor m_color;        // of a fade between equal colours
    std::string m_address; // of the gradient; empty: none
};

/// Writes the filling of whole pixels.
void writePixels(CSvgScene& scene, const QRect& pixels, const CSvgFade& fill);

} // namespace tovangl

#endif
