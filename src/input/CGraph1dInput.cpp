// SPDX-License-Identifier: MIT
// What every chart is drawn from.
#include "input/CGraph1dInput.h"

#include "base/host_text.h"
#include "input/default_palette.h"
#include "input/link_address.h"

namespace tovangl {

namespace {

// Factor of QColor::darker(): an outline has two thirds of the fill's brightness.
constexpr int kOutlineDarkness = 150;

} // namespace

void CGraph1dInput::addItem(long long value, const QString& text, const QColor& color,
                            const QColor& outlineColor)
{
    items.push_back({value, text, color, outlineColor});
}

bool CGraph1dInput::setLink(std::size_t item, std::string_view address)
{
    const bool isOthers = item == items.size() && !settings.othersCaption.isEmpty();
    if (!isOthers && item >= items.size())
        return false;
    if (!address.empty() && !isLinkAddress(address))
        return false;
    (isOthers ? settings.othersLink : items[item].link) = toQString(address);
    return true;
}

// Deliberate: the position among all items decides. An item with its own colour also uses up a
// palette entry, so that recolouring one item leaves the others unchanged.
QColor CGraph1dInput::fillColor(std::size_t item) const
{
    if (items[item].color.isValid())
        return items[item].color;
    const std::vector<QColor>& palette = settings.colors.palette;
    const QColor ofPalette = palette.empty() ? QColor() : palette[item % palette.size()];
    return ofPalette.isValid() ? ofPalette : defaultColor(item);
}

QColor CGraph1dInput::outlineColor(std::size_t item) const
{
    if (items[item].outlineColor.isValid())
        return items[item].outlineColor;
    const QColor& ofChart = settings.colors.outline;
    return ofChart.isValid() ? ofChart : fillColor(item).darker(kOutlineDarkness);
}

std::optional<CGraph1dItem> CGraph1dInput::gatherOthers(const CLeftOut& leftOut) const
{
    if (settings.othersCaption.isEmpty() || leftOut.count() == 0)
        return std::nullopt;
    return CGraph1dItem{leftOut.value(), settings.othersCaption, othersColor(), QColor(),
                        settings.othersLink};
}

} // namespace tovangl
