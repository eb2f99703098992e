// SPDX-License-Identifier: MIT
/// @file
/// Where a finished layout goes.
#ifndef TOVANGL_LAYOUT_CCHARTOUTPUT_H
#define TOVANGL_LAYOUT_CCHARTOUTPUT_H

namespace tovangl {

struct CBarLayout;
struct CPieLayout;

/// A picture in the making, of pixels or of shapes. Layouts come to it as they are: whatever the
/// picture is made of, everything in it has the same place.
class CChartOutput
{
public:
    CChartOutput() = default;
    virtual ~CChartOutput() = default;
    CChartOutput(const CChartOutput&) = delete;
    CChartOutput& operator=(const CChartOutput&) = delete;

    virtual void paint(const CBarLayout& layout) = 0;
    virtual void paint(const CPieLayout& layout) = 0;
};

} // namespace tovangl

#endif
