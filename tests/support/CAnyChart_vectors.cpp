// SPDX-License-Identifier: MIT
// Pictures made of shapes. They are apart from the rest because that is also compiled with older
// libraries, for comparison, which make none.
#include "support/CAnyChart.h"

namespace tovangl {

CExport CAnyChart::createSvg(int width, int height)
{
    unsigned char* data = nullptr;
    int size = -1;
    m_graph->createSvg(width, height, &data, &size);
    return CExport{data, size};
}

CExport CAnyChart::createPdf(int width, int height)
{
    unsigned char* data = nullptr;
    int size = -1;
    m_graph->createPdf(width, height, &data, &size);
    return CExport{data, size};
}

} // namespace tovangl
