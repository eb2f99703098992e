// SPDX-License-Identifier: MIT
/// @file
/// A chart from its constructor to its destructor, through every operation, while memory runs out.
#ifndef TOVANGL_MEMORY_CCHARTLIFE_H
#define TOVANGL_MEMORY_CCHARTLIFE_H

#include "support/CAnyChart.h"
#include "support/rendered_chart.h"

#include <functional>
#include <memory>
#include <vector>

namespace tovangl {

/// Lives once. A call that runs out of memory is made again, as a host would; whatever it left
/// behind shows in the renderings that follow.
class CChartLife
{
public:
    explicit CChartLife(ChartKind kind);

    /// Goes through the whole life.
    void live();

    /// What was rendered on the way.
    [[nodiscard]] const std::vector<CRenderedChart>& renderings() const { return m_renderings; }
    /// How many calls std::bad_alloc has left.
    [[nodiscard]] int failureCount() const { return m_failureCount; }
    /// Whether the chart itself gave that reason after each rendering that it has left.
    [[nodiscard]] bool tellsLackOfMemory() const { return m_tellsLackOfMemory; }

    // Seeded faults, for the test of the harness.
    void addItemAfterFailure() { m_addsItemAfterFailure = true; }
    void swallowFailure() { m_swallowsFailure = true; }

protected:
    using Call = std::function<void()>;

    void call(const Call& operation);
    void render(PictureKind kind);

    ChartKind m_kind;
    std::unique_ptr<CAnyChart> m_chart;

private:
    void handleFailure(const Call& operation);
    void applySettings();
    void addItems();
    CExport exportPicture(PictureKind kind);

    std::vector<CRenderedChart> m_renderings;
    int m_failureCount = 0;
    bool m_tellsLackOfMemory = true;
    bool m_addsItemAfterFailure = false;
    bool m_swallowsFailure = false;
};

/// A short one, of a page whose letters are pictures.
class CPictureLife : public CChartLife
{
public:
    explicit CPictureLife(ChartKind kind);

    void live();
};

} // namespace tovangl

#endif
