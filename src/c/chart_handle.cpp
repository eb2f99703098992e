// SPDX-License-Identifier: MIT
// What stands behind a handle of the C interface.
#include "c/chart_handle.h"

#include "chart/CBarBase.h"
#include "chart/CPieGraph.h"

tovangl_chart::tovangl_chart(std::unique_ptr<tovangl::CBarBase> barGraph)
    : bars(std::move(barGraph))
    , graph(*bars)
    , error("")
{}

tovangl_chart::tovangl_chart(std::unique_ptr<tovangl::CPieGraph> pieGraph)
    : pie(std::move(pieGraph))
    , graph(*pie)
    , error("")
{}

tovangl_chart::~tovangl_chart() = default;

void tovangl_chart::setError(tovangl::COutcome outcome) noexcept
{
    reason = std::move(outcome.reason);
    error = reason.empty() ? tovangl_status_text(outcome.status) : reason.c_str();
}

void tovangl_chart::setNoMemory() noexcept
{
    error = tovangl_status_text(TOVANGL_NO_MEMORY);
}
