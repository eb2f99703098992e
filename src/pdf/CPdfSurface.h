// SPDX-License-Identifier: MIT
/// @file
/// A page that a chart is painted on, and its file.
#ifndef TOVANGL_PDF_CPDFSURFACE_H
#define TOVANGL_PDF_CPDFSURFACE_H

#include "output/CPictureFile.h"

#include <QPaintDevice>
#include <QString>

#include <memory>

namespace tovangl {

class CPdfEngine;

/// What a file says about its page.
struct CPdfProperties
{
    QString title;
    QString description; ///< for those who do not see it
    QString language;    ///< of its texts, such as de-AT
};

/// Whether a page of that size can be made: 1 to 14,400 points a side. Readers take no larger one.
[[nodiscard]] bool isPdfSize(int width, int height);

/// A page of so many points, with several pixels to a point for a painter to count in.
class CPdfSurface : public QPaintDevice
{
public:
    static constexpr int kPixelsPerPoint = 4;

    /// @param width, height  in points
    CPdfSurface(int width, int height);
    ~CPdfSurface() override;

    [[nodiscard]] QPaintEngine* paintEngine() const override;

    /// The file with all that was painted. It depends on nothing else.
    [[nodiscard]] CPictureFile file(const CPdfProperties& properties) const;

protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override;

private:
    std::unique_ptr<CPdfEngine> m_engine;
    int m_width;
    int m_height;
    int m_dotsPerInch; // of a raster image, so that a font is as large on both
};

} // namespace tovangl

#endif
