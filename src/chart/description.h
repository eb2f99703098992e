// SPDX-License-Identifier: MIT
/// @file
/// A chart in one sentence.
#ifndef TOVANGL_CHART_DESCRIPTION_H
#define TOVANGL_CHART_DESCRIPTION_H

#include "input/CLeftOut.h"

#include <QString>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

class QLocale;

namespace tovangl {

struct CGraph1dInput;
struct CGraph1dItem;

/// Says how many items were drawn, and names the greatest and the least of them, for a picture's
/// alternative text. UTF-8.
///
/// @param kind    the words that the sentence begins with
/// @param drawn   positions of the items drawn, ascending
/// @param others  what one more item gathers; none where there is no such item
[[nodiscard]] std::string describeChart(const char* kind, const CGraph1dInput& input,
                                        const std::vector<std::size_t>& drawn,
                                        const std::optional<CLeftOut>& others);

/// An item in a few words, such as: Rent: 1,200. For what is shown while a pointer rests on it.
[[nodiscard]] QString itemTitle(const CGraph1dItem& item, const QLocale& locale);

} // namespace tovangl

#endif
