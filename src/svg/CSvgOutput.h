// SPDX-License-Identifier: MIT
/// @file
/// A picture of shapes as an SVG file.
#ifndef TOVANGL_SVG_CSVGOUTPUT_H
#define TOVANGL_SVG_CSVGOUTPUT_H

#include "layout/CChartOutput.h"
#include "output/CPictureFile.h"
#include "svg/CSvgMarkup.h"

namespace tovangl {

struct CSvgFrame;

/// Writes a layout as shapes that cover the pixels which the painted picture has.
class CSvgOutput : public CChartOutput
{
public:
    /// @param frame  must outlive the output
    explicit CSvgOutput(const CSvgFrame& frame);

    void paint(const CBarLayout& layout) override;
    void paint(const CPieLayout& layout) override;
    /// Ends the picture.
    [[nodiscard]] CPictureFile finish();

private:
    const CSvgFrame& m_frame;
    CSvgMarkup m_markup;
};

} // namespace tovangl

#endif
