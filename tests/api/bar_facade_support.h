// SPDX-License-Identifier: MIT
/// @file
/// What the tests of both bar chart facades share.
#ifndef TOVANGL_API_BAR_FACADE_SUPPORT_H
#define TOVANGL_API_BAR_FACADE_SUPPORT_H

#include "bar/CBarGraph.h"
#include "bar/CLabeledBarGraph.h"
#include "support/public_records.h"
#include <tovangl/tovangl.h>

#include <QImage>

namespace tovangl {

/// The facade, with its chart in sight.
template <typename Facade>
class CShownFacade : public Facade
{
public:
    explicit CShownFacade(bool background = false)
        : Facade(background)
    {}
    using Facade::getGraph;

    QImage exported(int width = 400, int height = 300)
    {
        unsigned char* data = nullptr;
        int size = 0;
        this->createPixmap(width, height, &data, &size);
        return QImage::fromData(data, size, "PNG").convertToFormat(QImage::Format_ARGB32);
    }
    [[nodiscard]] const CBarGraphItem& item() const { return *this->getGraph()->items().back(); }
};

using CVerticalFacade = CShownFacade<VerticalBarGraph>;
using CHorizontalFacade = CShownFacade<HorizontalBarGraph>;

} // namespace tovangl

#endif
