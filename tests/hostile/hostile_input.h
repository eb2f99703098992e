// SPDX-License-Identifier: MIT
/// @file
/// One entry of the hostile table: something that a host may hand in, by accident or not.
#ifndef TOVANGL_HOSTILE_HOSTILE_INPUT_H
#define TOVANGL_HOSTILE_HOSTILE_INPUT_H

#include "support/CAnyChart.h"

#include <functional>
#include <string>
#include <vector>

namespace tovangl {

struct CHostileInput
{
    std::string name;
    std::function<void()> run;
    bool isHeavy = false; ///< takes a second or a gigabyte: left out of the short form
};

using HostileTable = std::vector<CHostileInput>;

inline constexpr bool kHeavy = true;

/// Chart data: extreme values, alone and mixed, and many of them.
[[nodiscard]] HostileTable valueInputs();
/// Captions, axis titles and their encoding.
[[nodiscard]] HostileTable textInputs();
/// Fonts, locales, thresholds, positions, widths, properties, colours.
[[nodiscard]] HostileTable settingInputs();
/// Font files, broken and odd.
[[nodiscard]] HostileTable fontInputs();
/// Picture sizes and print factors.
[[nodiscard]] HostileTable pictureInputs();
/// Calls in unusual orders and numbers.
[[nodiscard]] HostileTable sequenceInputs();

/// All of these by way of the C interface.
[[nodiscard]] HostileTable inputsInC();

/// Inputs that must be reported, each for its own reason: the table's own test.
[[nodiscard]] HostileTable seededFaults();

/// Renders the chart for the screen and for print and asks for all its rectangles. Throws
/// std::logic_error where an export breaks what is promised for every input.
void drawEverything(CAnyChart& chart, int width = 400, int height = 300, int factor = 2);

/// Fills a chart with a few ordinary items.
void addOrdinaryItems(CAnyChart& chart);

} // namespace tovangl

#endif
