// SPDX-License-Identifier: MIT
// What every chart is drawn from.
#include "input/CGraph1dInput.h"

#include "input/default_palette.h"

namespace tovangl {

void CGraph1dInput::addItem(long long value, const QString& text, const QColor& color,
                            const QColor& outlineColor)
{
    // Deliberate: the position among all items decides. An item with its own colour also uses up a
    // palette entry, so that recolouring one item leaves the others unchanged.
    const QColor fill = color.isValid() ? color : defaultColor(items.size());
    const QColor outline = outlineColor.isValid() ? outlineColor : fill.darker(kOutlineDarkness);
    items.push_back({value, text, fill, outline});
}

} // namespace tovangl
