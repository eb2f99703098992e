// SPDX-License-Identifier: MIT
// One rendering of a chart, from its input to the bytes of a picture.
#include "chart/chart_rendering.h"

#include "chart/CGraph1dBase.h"
#include "process/CRendering.h"

#include <QImage>

namespace tovangl {

namespace {

// Whether anything can be painted. If not, the chart records the reason.
bool canRender(CGraph1dBase& graph, const CRendering& rendering)
{
    if (rendering.obstacle() == Problem::None)
        return true;
    graph.setProblem(rendering.obstacle());
    return false;
}

template <typename Draw>
const CPictureFile& render(CGraph1dBase& graph, Draw draw)
{
    graph.forgetDrawing();
    const CRendering rendering;
    QImage image = canRender(graph, rendering) ? draw() : QImage();
    return graph.paintDevice2Bytes(image);
}

// The same for a file that is no raster image.
template <typename Write>
const CPictureFile& renderFile(CGraph1dBase& graph, Write write)
{
    graph.forgetDrawing();
    const CRendering rendering;
    return graph.keepFile(canRender(graph, rendering) ? write() : noPictureFile());
}

} // namespace

const CPictureFile& renderPicture(CGraph1dBase& graph, int width, int height)
{
    return render(graph, [&] { return graph.getImage(width, height); });
}

const CPictureFile& renderSvg(CGraph1dBase& graph, int width, int height)
{
    return renderFile(graph, [&] { return graph.getSvg(width, height); });
}

const CPictureFile& renderPdf(CGraph1dBase& graph, int width, int height)
{
    return renderFile(graph, [&] { return graph.getPdf(width, height); });
}

const CPictureFile& renderForPrinter(CGraph1dBase& graph, int width, int height, int factor)
{
    return render(graph, [&] { return graph.getImageForPrinter(width, height, factor); });
}

} // namespace tovangl
