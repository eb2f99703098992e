// SPDX-License-Identifier: MIT
// A page that a chart is painted on, and its file.
#include "pdf/CPdfSurface.h"

#include "pdf/CPdfEngine.h"
#include "pdf/CPdfObjects.h"
#include "pdf/pdf_text.h"

#include <QImage>

#include <limits>

namespace tovangl {

namespace {

constexpr int kLargestSide = 14400; // points
constexpr int kBitsPerPixel = 24;
constexpr double kMillimetresPerInch = 25.4;
constexpr double kPointsPerInch = 72;

int rasterResolution()
{
    return QImage(1, 1, QImage::Format_ARGB32).logicalDpiY();
}

int toMillimetres(int points)
{
    return static_cast<int>(points * kMillimetresPerInch / kPointsPerInch);
}

// The whole page is one figure with its description.
std::string pageContent(const CPdfContent& content, int height)
{
    const double scale = 1.0 / CPdfSurface::kPixelsPerPoint;
    return "/Figure<</MCID 0>>BDC\n" + pdfNumber(scale) + " 0 0 " + pdfNumber(-scale) + " 0 " +
           std::to_string(height) + " cm\n" + content.bytes() + "EMC";
}

// The objects that name each other.
struct CPageObjects
{
    int pages;
    int page;
    int structure;
    int figure;
};

std::string pageBox(int width, int height)
{
    return "[0 0 " + std::to_string(width) + ' ' + std::to_string(height) + ']';
}

void writeStructure(CPdfObjects& objects, const CPageObjects& numbers, const std::string& box,
                    const QString& description)
{
    objects.write(numbers.figure, "<</Type/StructElem/S/Figure/P " +
                                      pdfReference(numbers.structure) + "/Pg " +
                                      pdfReference(numbers.page) + "/K 0/Alt" +
                                      pdfString(description) + "/A<</O/Layout/BBox" + box + ">>>>");
    objects.write(numbers.structure, "<</Type/StructTreeRoot/K " + pdfReference(numbers.figure) +
                                         "/ParentTree<</Nums[0[" + pdfReference(numbers.figure) +
                                         "]]>>/ParentTreeNextKey 1>>");
}

void writePage(CPdfObjects& objects, const CPageObjects& numbers, const std::string& box,
               const std::string& entries)
{
    objects.write(numbers.page, "<</Type/Page/Parent " + pdfReference(numbers.pages) + "/MediaBox" +
                                    box + "/StructParents 0" + entries + ">>");
    objects.write(numbers.pages,
                  "<</Type/Pages/Count 1/Kids[" + pdfReference(numbers.page) + "]>>");
}

int writeCatalog(CPdfObjects& objects, const CPageObjects& numbers, const QString& language)
{
    return objects.add("<</Type/Catalog/Pages " + pdfReference(numbers.pages) + "/Lang" +
                       pdfString(language) + "/MarkInfo<</Marked true>>/StructTreeRoot " +
                       pdfReference(numbers.structure) +
                       "/ViewerPreferences<</DisplayDocTitle true>>>>");
}

} // namespace

bool isPdfSize(int width, int height)
{
    return width >= 1 && height >= 1 && width <= kLargestSide && height <= kLargestSide;
}

CPdfSurface::CPdfSurface(int width, int height)
    : m_engine(std::make_unique<CPdfEngine>())
    , m_width(width)
    , m_height(height)
    , m_dotsPerInch(rasterResolution())
{}

CPdfSurface::~CPdfSurface() = default;

QPaintEngine* CPdfSurface::paintEngine() const
{
    return m_engine.get();
}

CPictureFile CPdfSurface::file(const CPdfProperties& properties) const
{
    CPdfObjects objects;
    const CPageObjects numbers{objects.reserve(), objects.reserve(), objects.reserve(),
                               objects.reserve()};
    const std::string box = pageBox(m_width, m_height);
    const CPdfContent& content = m_engine->content();
    const int shown = objects.addStream(std::string(), pageContent(content, m_height));
    const std::string resources = content.writeResources(objects);
    writePage(objects, numbers, box, "/Contents " + pdfReference(shown) + "/Resources" + resources);
    writeStructure(objects, numbers, box, properties.description);
    const int catalog = writeCatalog(objects, numbers, properties.language);
    // No date: the same chart gives the same file at all times.
    const int info = objects.add("<</Title" + pdfString(properties.title) + ">>");
    return objects.finish(catalog, info);
}

int CPdfSurface::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
        return m_width * kPixelsPerPoint;
    case PdmHeight:
        return m_height * kPixelsPerPoint;
    case PdmWidthMM:
        return toMillimetres(m_width);
    case PdmHeightMM:
        return toMillimetres(m_height);
    case PdmNumColors:
        return std::numeric_limits<int>::max();
    case PdmDepth:
        return kBitsPerPixel;
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return m_dotsPerInch;
    default:
        return QPaintDevice::metric(metric);
    }
}

} // namespace tovangl
