// SPDX-License-Identifier: MIT
/// @file
/// What every chart is drawn from.
#ifndef TOVANGL_INPUT_CGRAPH1DINPUT_H
#define TOVANGL_INPUT_CGRAPH1DINPUT_H

#include "input/CGraph1dItem.h"
#include "input/CGraph1dSettings.h"
#include "input/CLeftOut.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace tovangl {

/// Settings and items as the host gave them. No rendering changes them.
struct CGraph1dInput
{
    /// Adds an item at the end. An invalid colour is not set.
    void addItem(long long value, const QString& text, const QColor& color,
                 const QColor& outlineColor);
    /// Gives an item an address, or takes it away where that is empty. The item behind the last one
    /// is that of the others, if the host wants one.
    ///
    /// @param address  UTF-8
    /// @return whether there is such an item, and isLinkAddress()
    bool setLink(std::size_t item, std::string_view address);
    /// The colour that an item is filled with: its own, or else the palette's.
    [[nodiscard]] QColor fillColor(std::size_t item) const;
    /// The colour of a bar's outline: its own, or else the chart's, or else a darker fill colour.
    [[nodiscard]] QColor outlineColor(std::size_t item) const;

    /// The item that gathers what the threshold leaves out; none if that is nothing, or to be
    /// dropped.
    [[nodiscard]] std::optional<CGraph1dItem> gatherOthers(const CLeftOut& leftOut) const;

    CGraph1dSettings settings;
    std::vector<CGraph1dItem> items; ///< in the order of adding
};

} // namespace tovangl

#endif
