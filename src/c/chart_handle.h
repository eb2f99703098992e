// SPDX-License-Identifier: MIT
/// @file
/// What stands behind a handle of the C interface, and how its calls end.
#ifndef TOVANGL_C_CHART_HANDLE_H
#define TOVANGL_C_CHART_HANDLE_H

#include <tovangl/tovangl_c.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tovangl {

class CBarBase;
class CGraph1dBase;
class CPieGraph;

/// How a call of the C interface ended.
struct COutcome
{
    tovangl_status status = TOVANGL_OK;
    std::string reason = {}; ///< in English; empty where the status says it all
};

} // namespace tovangl

/// A chart, and all that a C host has borrowed from it.
struct tovangl_chart
{
    explicit tovangl_chart(std::unique_ptr<tovangl::CBarBase> barGraph);
    explicit tovangl_chart(std::unique_ptr<tovangl::CPieGraph> pieGraph);
    ~tovangl_chart();
    tovangl_chart(const tovangl_chart&) = delete;
    tovangl_chart& operator=(const tovangl_chart&) = delete;

    /// Remembers what a call has to say.
    void setError(tovangl::COutcome outcome) noexcept;
    /// The same for lack of memory, without using any.
    void setNoMemory() noexcept;

    // The owner is the first field that is not null.
    std::unique_ptr<tovangl::CBarBase> bars;
    std::unique_ptr<tovangl::CPieGraph> pie;
    tovangl::CGraph1dBase& graph;

    std::string reason; ///< of the last failure
    const char* error;  ///< what was wrong with the last call; either reason or a constant
    std::string description;
    std::vector<tovangl_rectangle> captionRectangles;
    std::vector<tovangl_rectangle> barRectangles;
    std::vector<tovangl_slice> slices;
    std::vector<tovangl_point> corners;
};

namespace tovangl {

/// Runs one call of the C interface. No exception leaves it: the only ones that the library lets
/// out mean that memory ran out.
///
/// @param operation  takes the chart, and returns its COutcome
template <typename Operation>
tovangl_status callChart(tovangl_chart* chart, Operation operation) noexcept
{
    if (!chart)
        return TOVANGL_NULL_ARGUMENT;
    try {
        COutcome outcome = operation(*chart);
        const tovangl_status status = outcome.status;
        chart->setError(std::move(outcome));
        return status;
    } catch (...) {
        chart->setNoMemory();
        return TOVANGL_NO_MEMORY;
    }
}

} // namespace tovangl

#endif
