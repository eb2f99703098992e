// SPDX-License-Identifier: MIT
/// @file
/// A chart of the C interface from its creation to its end, while memory runs out.
#ifndef TOVANGL_MEMORY_CCHARTLIFEINC_H
#define TOVANGL_MEMORY_CCHARTLIFEINC_H

#include "memory/allocation_faults.h"
#include "support/rendered_chart.h"
#include <tovangl/tovangl_c.h>

#include <vector>

namespace tovangl {

/// Lives once. A call that runs out of memory is made again; whatever it left behind shows in the
/// renderings that follow. Throws std::logic_error where a call fails for any other reason.
class CChartLifeInC
{
public:
    explicit CChartLifeInC(ChartKind kind);
    ~CChartLifeInC();
    CChartLifeInC(const CChartLifeInC&) = delete;
    CChartLifeInC& operator=(const CChartLifeInC&) = delete;

    /// Goes through the whole life.
    void live();

    /// What was rendered on the way.
    [[nodiscard]] const std::vector<CRenderedChart>& renderings() const { return m_renderings; }
    /// How many calls have told that memory ran out.
    [[nodiscard]] int failureCount() const { return m_failureCount; }
    /// Whether the chart itself gave that reason after each rendering that failed.
    [[nodiscard]] bool tellsLackOfMemory() const { return m_tellsLackOfMemory; }

private:
    template <typename Operation>
    void call(Operation operation)
    {
        if (attempt(operation) == TOVANGL_OK)
            return;
        CAllocationFaults::end();
        ++m_failureCount;
        requireSuccess(operation());
    }

    template <typename Operation>
    tovangl_status attempt(Operation operation)
    {
        const CFaultyCall faulty;
        const tovangl_status status = operation();
        if (status != TOVANGL_NO_MEMORY)
            requireSuccess(status);
        return status;
    }

    static void requireSuccess(tovangl_status status);
    void applySettings();
    void addItems();
    void setLinks();
    void render(PictureKind kind);
    tovangl_status exportPicture(PictureKind kind, std::string& png);
    void copyRegions(CRenderedChart& rendering);
    void copySlices(CRenderedChart& rendering);

    ChartKind m_kind;
    tovangl_chart* m_chart = nullptr; // owned
    std::vector<CRenderedChart> m_renderings;
    int m_failureCount = 0;
    bool m_tellsLackOfMemory = true;
};

} // namespace tovangl

#endif
