// SPDX-License-Identifier: MIT
/// @file
/// A chart whose promises are checked after every call.
#ifndef TOVANGL_FUZZ_CWATCHEDCHART_H
#define TOVANGL_FUZZ_CWATCHEDCHART_H

#include "support/CAnyChart.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tovangl {

struct CRenderedChart;

/// Keeps beside the chart what a host knows of it, and ends the process where the chart says
/// something else.
class CWatchedChart
{
public:
    CWatchedChart(ChartKind kind, bool background);

    [[nodiscard]] CAnyChart& chart() { return m_chart; }

    void addItem(long value, const std::string& text);
    void addItem(long value, const std::string& text, const Color& fill, const Color& outline);
    void clear();
    void freePixmap();
    void setThreshold(double percent);
    void setBarWidth(int width);
    void setPosition(int x, int y);
    void setOthers(const std::string& caption);
    void setScale(int scale);
    void setByName(const std::string& name, const std::string& value);
    /// Picture pixels for each pixel of a size on the screen.
    [[nodiscard]] int scale() const { return m_scale; }
    /// Renders twice, on the screen (factor 0) or for print.
    void render(int width, int height, int factor);

    /// What holds between any two calls, of this chart or of others.
    void checkPromises();

private:
    void noteItem(long value);
    void noteSetting(const std::string& name, const std::string& value);
    // One for each item, and one for the others where they are wanted.
    [[nodiscard]] std::size_t recordCount() const;
    CExport exportPicture(int width, int height, int factor);
    void checkThreshold() const;
    void checkBytes() const;
    void checkLists();
    void checkSvg(int width, int height, const CRenderedChart& png);
    void checkPdf(int width, int height);
    void checkPicture(std::int64_t width, std::int64_t height) const;
    void checkTitle(std::int64_t width, std::int64_t height) const;
    void checkRegions(std::int64_t width, std::int64_t height);

    CAnyChart m_chart;
    std::size_t m_itemCount = 0;
    double m_threshold = 0;
    bool m_wantsOthers = false;
    int m_scale = 1;
    // Either may put bars outside the picture: positions and bar widths of the host's own, and a
    // scale that ends below zero.
    bool m_hasFixedPlaces = false;
    bool m_hasNegativeValue = false;
    CExport m_export;
    std::string m_bytes; // a copy of what the export gave
};

} // namespace tovangl

#endif
