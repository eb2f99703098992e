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

    /// A style sheet; nothing where there are no rules.
    void styleElement(std::string_view rules);

    [[nodiscard]] const std::string& text() const { return m_text; }

private:
    std::string m_text;
};

} // namespace tovangl

#endif
