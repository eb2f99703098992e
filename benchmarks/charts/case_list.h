// SPDX-License-Identifier: MIT
/// @file
/// The charts that the tables of scripts/bench are about.
#ifndef TOVANGL_BENCHMARKS_CHARTS_CASE_LIST_H
#define TOVANGL_BENCHMARKS_CHARTS_CASE_LIST_H

#include "support/chart_case.h"

#include <string>
#include <vector>

namespace tovangl {
namespace bench {

struct CNamedCase
{
    std::string name;
    CChartCase chart;
};

/// The cases of cases/list.tsv.
[[nodiscard]] const std::vector<CNamedCase>& caseList();

} // namespace bench
} // namespace tovangl

#endif
