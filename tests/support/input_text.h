// SPDX-License-Identifier: MIT
/// @file
/// All that a chart is drawn from, as text.
#ifndef TOVANGL_SUPPORT_INPUT_TEXT_H
#define TOVANGL_SUPPORT_INPUT_TEXT_H

#include "input/CBarInput.h"
#include "input/CPieInput.h"

#include <string>

namespace tovangl {

/// Every setting on a line of its own: two inputs with the same text have the same settings.
[[nodiscard]] std::string inputText(const CPieInput& input);
[[nodiscard]] std::string inputText(const CBarInput& input);

} // namespace tovangl

#endif
