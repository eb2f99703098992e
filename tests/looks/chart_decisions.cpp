// SPDX-License-Identifier: MIT
// What a layout decided, apart from where it put things.
#include "looks/chart_decisions.h"

#include <sstream>

namespace tovangl {

namespace {

void writeTexts(std::ostream& stream, const std::vector<CPlacedText>& texts)
{
    for (const CPlacedText& text : texts)
        stream << "  \"" << text.text.toStdString() << '"' << (text.isTurned ? " turned" : "")
               << '\n';
}

void writeAxis(std::ostream& stream, const char* name, const CAxisLayout& axis)
{
    stream << name << " labels " << static_cast<int>(axis.shape.direction)
           << (axis.areLabelsHidden ? " hidden" : "") << (axis.isTitleHidden ? " no title" : "")
           << '\n';
    for (const CBarTextLabel& label : axis.labels)
        stream << (label.isHidden ? '-' : '+');
    stream << '\n';
    writeTexts(stream, axis.texts);
}

} // namespace

std::string decisionsOf(const CBarLayout& layout)
{
    std::ostringstream stream;
    stream << (layout.fits() ? "fits\n" : "does not fit\n");
    if (!layout.fits())
        return stream.str();
    stream << "scale " << layout.scale.min << ' ' << layout.scale.max << '\n';
    writeAxis(stream, "categories", *layout.categoryAxis);
    writeAxis(stream, "numbers", *layout.numberAxis);
    for (const CBar& bar : layout.bars)
        stream << "bar " << bar.item << ' ' << bar.label.text.toStdString() << '\n';
    return stream.str();
}

std::string decisionsOf(const CPieLayout& layout)
{
    std::ostringstream stream;
    stream << (layout.fits() ? "fits" : "does not fit")
           << (layout.sizesShown ? " with sizes\n" : "\n");
    for (const CPlacedPieLabel& label : layout.labels) {
        stream << "slice " << label.item << (label.isHidden ? " hidden  \"" : "  \"");
        for (const CPlacedText& text : label.texts)
            stream << text.text.toStdString();
        stream << "\"\n";
    }
    return stream.str();
}

} // namespace tovangl
