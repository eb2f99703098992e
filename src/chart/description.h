// SPDX-License-Identifier: MIT
/// @file
/// A chart in one sentence.
#ifndef TOVANGL_CHART_DESCRIPTION_H
#define TOVANGL_CHART_DESCRIPTION_H

#include <QString>

#include <string>

class QLocale;

namespace tovangl {

struct CChartSummary;
struct CGraph1dItem;

/// Says how many items were drawn, and names the greatest and the least of them, for a picture's
/// alternative text. UTF-8.
[[nodiscard]] std::string describeChart(const CChartSummary& chart);

/// An item in a few words, such as: Rent: 1,200. For what is shown while a pointer rests on it.
[[nodiscard]] QString itemTitle(const CGraph1dItem& item, const QLocale& locale);

} // namespace tovangl

#endif
