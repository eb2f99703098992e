// SPDX-License-Identifier: MIT
/// @file
/// Notes all that a host can learn of a chart.
#ifndef TOVANGL_DIFFERENCES_CCHARTNOTES_H
#define TOVANGL_DIFFERENCES_CCHARTNOTES_H

#include "support/CAnyChart.h"

#include <sstream>
#include <string>

namespace tovangl {

/// What a chart gave in its whole life, as text, sorted by kind.
struct CChartRecord
{
    std::string pixels; ///< a line for each picture: its size, and a hash of its decoded pixels
    std::string rectangles;
    std::string descriptions;
    std::string settings; ///< what the chart tells of its settings
};

/// A change that the comparison has to find, made to what a chart gave.
enum class SeededFault
{
    None,
    Pixel,
    Rectangle,
    Description,
    Setting
};

class CChartNotes
{
public:
    explicit CChartNotes(SeededFault fault);

    void addPicture(const std::string& png);
    /// All that the chart tells at this moment.
    void addState(CAnyChart& chart);
    [[nodiscard]] int pictures() const { return m_pictures; }
    [[nodiscard]] CChartRecord record() const;

private:
    std::ostream& beginLine(std::ostream& stream) const;
    void addRectangles(const char* title, std::list<Rectangle> rectangles);
    void addSlices(const std::list<Slice>& slices);
    void addSettings(const CAnyChart& chart);

    SeededFault m_fault;
    int m_pictures = 0;
    std::ostringstream m_pixels;
    std::ostringstream m_rectangles;
    std::ostringstream m_descriptions;
    std::ostringstream m_settings;
};

} // namespace tovangl

#endif
