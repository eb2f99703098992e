// SPDX-License-Identifier: MIT
// The groups of an SVG picture.
#include "svg/svg_items.h"

#include "svg/CSvgScene.h"
#include "svg/picture_id.h"

#include <algorithm>

namespace tovangl {

std::string_view beginItem(CSvgScene& scene, std::size_t item)
{
    const std::vector<CSvgItem>& items = scene.frame.items;
    const auto found = std::lower_bound(
        items.begin(), items.end(), item,
        [](const CSvgItem& entry, std::size_t position) { return entry.item < position; });
    const CSvgItem entry = found == items.end() ? CSvgItem() : *found;
    const std::string_view element = entry.link.isEmpty() ? "g" : "a";
    scene.markup.begin(element)
        .attribute("id", pictureId() + '-' + std::to_string(item))
        .attribute("class", "item");
    if (!entry.link.isEmpty())
        scene.markup.textAttribute("href", entry.link);
    scene.markup.open();
    scene.markup.textElement("title", entry.title);
    return element;
}

} // namespace tovangl
