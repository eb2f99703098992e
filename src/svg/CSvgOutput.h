// SPDX-License-Identifier: MIT
/// @file
/// A picture of shapes as an SVG file.
#ifndef TOVANGL_SVG_CSVGOUTPUT_H
#define TOVANGL_SVG_CSVGOUTPUT_H

#include "layout/CChartOutput.h"
#include "output/CPictureFile.h"
#include "svg/CSvgScene.h"

namespace tovangl {

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
    /// All colours so far, in the order of writing.
    [[nodiscard]] const std::vector<QColor>& usedColors() const { return m_scene.colors.used(); }

private:
    CSvgScene m_scene;
};

} // namespace tovangl

#endif
