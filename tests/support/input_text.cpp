// SPDX-License-Identifier: MIT
// All that a chart is drawn from, as text.
#include "support/input_text.h"

#include <sstream>

namespace tovangl {

namespace {

std::string text(const QColor& color)
{
    return color.isValid() ? color.name(QColor::HexArgb).toStdString() : "not set";
}

void writeColors(std::ostream& stream, const CChartColors& colors)
{
    stream << "picture " << text(colors.picture) << "\ntext " << text(colors.text) << "\nplot "
           << text(colors.plot) << "\nborder " << text(colors.border) << "\ngrid "
           << text(colors.grid) << "\naxis " << text(colors.axis) << "\naxis title "
           << text(colors.axisTitle) << "\nvalue " << text(colors.value) << "\noutline "
           << text(colors.outline) << "\nlabel line " << text(colors.labelLine) << "\npalette";
    for (const QColor& color : colors.palette)
        stream << ' ' << text(color);
    stream << '\n';
}

void writeSettings(std::ostream& stream, const CGraph1dSettings& settings)
{
    stream << "threshold " << settings.threshold << "\nfont " << settings.fontSize << ' '
           << settings.fontFamily.toStdString() << "\nlocale "
           << settings.locale.name().toStdString() << "\ntitle " << settings.title.toStdString()
           << "\nothers " << settings.othersCaption.toStdString() << "\nothers link "
           << settings.othersLink.toStdString() << "\nbackground " << settings.hasBackground
           << "\nscale " << settings.scale << "\nkilo " << (settings.kilo ? settings.kilo->size : 0)
           << "\ncompression " << static_cast<int>(settings.compression) << "\nfollows the display "
           << settings.followsDisplay << '\n';
    writeColors(stream, settings.colors);
}

void writeAxis(std::ostream& stream, const char* name, const CAxisSettings& axis)
{
    stream << name << ' ' << static_cast<int>(axis.properties) << ' ' << axis.title.toStdString()
           << '\n';
}

} // namespace

std::string inputText(const CPieInput& input)
{
    std::ostringstream stream;
    writeSettings(stream, input.settings);
    stream << "options " << static_cast<int>(input.options) << "\nunit " << input.unit.toStdString()
           << '\n';
    return stream.str();
}

std::string inputText(const CBarInput& input)
{
    std::ostringstream stream;
    writeSettings(stream, input.settings);
    writeAxis(stream, "horizontal axis", input.horizontalAxis);
    writeAxis(stream, "vertical axis", input.verticalAxis);
    stream << "position " << input.position.x() << ' ' << input.position.y() << "\nbar width "
           << input.barWidth << '\n';
    return stream.str();
}

} // namespace tovangl
