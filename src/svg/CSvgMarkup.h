// SPDX-License-Identifier: MIT
/// @file
/// Writes the elements of an SVG picture.
#ifndef TOVANGL_SVG_CSVGMARKUP_H
#define TOVANGL_SVG_CSVGMARKUP_H

#include <QString>

#include <string>
#include <string_view>

class QColor;

namespace tovangl {

/// The text of a picture, element by element.
///
/// Deliberate: it is this small class rather than Qt's writer of XML, which keeps control
/// characters that no parser accepts, gives up silently when memory runs out, and leaves the form
/// of numbers, and with it the size of the file, to its caller all the same.
class CSvgMarkup
{
public:
    /// Begins an element; attributes can follow.
    CSvgMarkup& begin(std::string_view element);
    /// @param value  as it is; it must need no escaping
    CSvgMarkup& attribute(std::string_view name, std::string_view value);
    /// A number with at most two decimals.
    CSvgMarkup& attribute(std::string_view name, double value);
    CSvgMarkup& color(std::string_view name, const QColor& value);
    /// Any text.
    CSvgMarkup& textAttribute(std::string_view name, const QString& value);
    /// Ends an element without content.
    void end();
    /// Ends the attributes of an element that close() ends.
    CSvgMarkup& open();
    void close(std::string_view element);
    /// Any text as content.
    CSvgMarkup& content(const QString& text);
    /// A whole element of nothing but text.
    void textElement(std::string_view element, const QString& text);

    [[nodiscard]] const std::string& text() const { return m_text; }

private:
    std::string m_text;
};

/// A number as the pictures have it: rounded to two decimals, and no longer than it has to be.
[[nodiscard]] std::string svgNumber(double value);
/// A colour as "#rrggbb", or "#rgb" where that is the same. A colour that is not set is black.
[[nodiscard]] std::string svgColor(const QColor& color);
/// A text as XML can hold it, inside an element or in an attribute: in UTF-8, with no character
/// that is markup. A replacement character stands for what no XML can hold, a space for white
/// space.
[[nodiscard]] std::string svgText(const QString& text);

/// The commands of a path.
class CSvgPath
{
public:
    CSvgPath& move(double x, double y) { return add('M', x).add(y); }
    CSvgPath& line(double x, double y) { return add('L', x).add(y); }
    CSvgPath& across(double x) { return add('H', x); }
    CSvgPath& down(double y) { return add('V', y); }
    /// An arc of a circle.
    CSvgPath& arc(double radius, bool isLarge, bool isClockwise, double x, double y);
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
