// SPDX-License-Identifier: MIT
/// @file
/// What every chart is drawn from.
#ifndef TOVANGL_INPUT_CGRAPH1DINPUT_H
#define TOVANGL_INPUT_CGRAPH1DINPUT_H

#include "input/CGraph1dItem.h"
#include "input/CGraph1dSettings.h"

#include <vector>

namespace tovangl {

/// Settings and items as the host gave them. No rendering changes them.
struct CGraph1dInput
{
    /// Adds an item at the end. An invalid colour is replaced by the palette's, an invalid outline
    /// colour by a darker fill colour.
    void addItem(long long value, const QString& text, const QColor& color,
                 const QColor& outlineColor);

    CGraph1dSettings settings;
    std::vector<CGraph1dItem> items; ///< in the order of adding
};

} // namespace tovangl

#endif
