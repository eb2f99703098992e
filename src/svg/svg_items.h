// SPDX-License-Identifier: MIT
/// @file
/// The groups of an SVG picture.
#ifndef TOVANGL_SVG_SVG_ITEMS_H
#define TOVANGL_SVG_SVG_ITEMS_H

#include <cstddef>
#include <string_view>

namespace tovangl {

struct CSvgScene;

/// Begins the group of all that belongs to one item, with what a pointer that rests on it shows.
/// Where the host gave the item an address, the group is a link.
///
/// @return the name of the element to be closed
[[nodiscard]] std::string_view beginItem(CSvgScene& scene, std::size_t item);

} // namespace tovangl

#endif
