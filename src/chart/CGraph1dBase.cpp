// SPDX-License-Identifier: MIT
// A chart behind the public interface.
#include "chart/CGraph1dBase.h"

#include "base/CGlobal.h"
#include "chart/CChartSummary.h"
#include "chart/description.h"
#include "chart/document_texts.h"
#include "chart/font_problem.h"
#include "chart/problem_text.h"
#include "input/CGraph1dInput.h"
#include "input/setting_values.h"
#include "input/themes.h"
#include "output/png_encoding.h"
#include "output/raster_surface.h"
#include "paint/CCanvas.h"
#include "pdf/CPdfSurface.h"
#include "process/CAddedFonts.h"
#include "process/CDefaultArithmetic.h"
#include "svg/CSvgFrame.h"
#include "svg/CSvgOutput.h"

#include <algorithm>

namespace tovangl {

CGraph1dBase::CGraph1dBase() = default;

CGraph1dBase::~CGraph1dBase() = default;

void CGraph1dBase::clear()
{
    input().items.clear();
    m_itemRects.clear();
    m_selectedItems.clear();
    m_others.reset();
    forgetLayout();
}

void CGraph1dBase::setThreshold(double percent)
{
    input().settings.threshold = percent;
    m_actingThreshold.reset();
}

std::string CGraph1dBase::setByName(std::string_view name, std::string_view value)
{
    const CDefaultArithmetic arithmetic;
    std::string problem = applySetting(settingTarget(), name, value);
    if (problem.empty() && name == "threshold")
        m_actingThreshold.reset();
    return problem;
}

double CGraph1dBase::threshold() const
{
    return m_actingThreshold.value_or(input().settings.threshold);
}

QImage CGraph1dBase::getImage(int width, int height)
{
    return draw(screenRequest(width, height));
}

QImage CGraph1dBase::getImageForPrinter(int width, int height, int factor)
{
    const int scale = std::max(factor, 1);
    return draw({scalePixels(width, scale), scalePixels(height, scale), scale,
                 OutputDevice::Printer, kilo()});
}

std::vector<std::size_t> CGraph1dBase::drawnItems() const
{
    return m_isDrawn ? m_selectedItems : std::vector<std::size_t>();
}

std::vector<QRect> CGraph1dBase::itemRectangles() const
{
    std::vector<QRect> rects = m_itemRects;
    rects.resize(input().items.size());
    if (wantsOthers())
        rects.push_back(m_others ? m_others->caption : QRect());
    return rects;
}

std::size_t CGraph1dBase::recordCount() const
{
    return input().items.size() + (wantsOthers() ? 1 : 0);
}

std::optional<std::size_t> CGraph1dBase::recordOf(std::size_t item) const
{
    // The host can have added items since, which stand where the others stood.
    if (!m_others || item != m_others->item)
        return item;
    return wantsOthers() ? std::optional(input().items.size()) : std::nullopt;
}

std::string CGraph1dBase::describe() const
{
    const CDefaultArithmetic arithmetic;
    return describeChart(summary());
}

CChartSummary CGraph1dBase::summary() const
{
    const auto others = m_others ? std::optional(m_others->leftOut) : std::nullopt;
    return {kindName(), input(), drawnItems(), others};
}

void CGraph1dBase::forgetDrawing()
{
    m_isDrawn = false;
    m_problem = Problem::NoMemory;
    m_isPage = false;
    m_titleRect = QRect();
    m_others.reset();
}

const char* CGraph1dBase::problemText() const
{
    return m_isPage ? pageProblemSentence(m_problem) : problemSentence(m_problem);
}

CPictureFile CGraph1dBase::getSvg(int width, int height)
{
    const CRequest request = screenRequest(width, height);
    if (!begin(request))
        return noPictureFile();
    QImage gauge = makeRasterSurface(1, 1);
    if (gauge.isNull())
        return noPictureFile();
    CCanvas canvas(gauge, input().settings, request, addedFamily());
    m_isDrawn = layOut(canvas, request);
    CPictureFile file = writeSvg(canvas, request);
    m_problem = findProblem(canvas);
    return file;
}

CPictureFile CGraph1dBase::writeSvg(CCanvas& canvas, const CRequest& request) const
{
    CSvgFrame frame = svgFrame(summary(), request, canvas.font());
    if (frame.isOneOfTwo)
        frame.darkColors = darkColors(frame, canvas, request);
    CSvgOutput output(frame);
    if (m_isDrawn)
        paintContents(output);
    return output.finish();
}

std::vector<QColor> CGraph1dBase::darkColors(CSvgFrame frame, CCanvas& canvas,
                                             const CRequest& request) const
{
    constexpr const char* kTheme = "dark";
    // What shows through a transparent picture is the page, which has its own dark colours.
    if (frame.picture.alpha() > 0)
        frame.picture = parsePictureColor(themeValue(kTheme, "picture_color")).value_or(Qt::black);
    CSvgOutput output(frame);
    if (m_isDrawn)
        paintInTheme(kTheme, canvas.measurer(), request, m_selectedItems, gatheredItem(), output);
    return output.usedColors();
}

CPictureFile CGraph1dBase::getPdf(int width, int height)
{
    forgetDrawing();
    m_isPage = true;
    if (!isPdfSize(width, height)) {
        m_problem = Problem::SizeOutOfRange;
        return noPictureFile();
    }
    constexpr int kScale = CPdfSurface::kPixelsPerPoint;
    CPdfSurface page(width, height);
    const Problem found =
        paintOn(page, {width * kScale, height * kScale, kScale, OutputDevice::Printer, kilo()});
    CPictureFile file = page.file(pdfProperties(summary()));
    m_problem = found;
    return file;
}

const CPictureFile& CGraph1dBase::paintDevice2Bytes(QImage& image)
{
    const Problem ofDrawing = m_problem;
    m_problem = Problem::NoMemory; // in case memory runs out from here on
    m_file = encodePng(image, input().settings.compression);
    m_problem = ofDrawing;
    return m_file;
}

const CPictureFile& CGraph1dBase::keepFile(CPictureFile file)
{
    m_file = std::move(file);
    return m_file;
}

bool CGraph1dBase::wantsOthers() const
{
    return !input().settings.othersCaption.isEmpty();
}

CKilo CGraph1dBase::kilo() const
{
    return input().settings.kilo.value_or(getGlobal()->kilo());
}

CRequest CGraph1dBase::screenRequest(int width, int height) const
{
    const int scale = input().settings.scale;
    return {scalePixels(width, scale), scalePixels(height, scale), scale, OutputDevice::Screen,
            kilo()};
}

bool CGraph1dBase::begin(const CRequest& request)
{
    forgetDrawing();
    const bool isPossible = isRasterSize(request.width, request.height);
    if (!isPossible)
        m_problem = Problem::SizeOutOfRange;
    return isPossible;
}

QImage CGraph1dBase::draw(const CRequest& request)
{
    if (!begin(request))
        return QImage();
    QImage image = makeRasterSurface(request.width, request.height);
    fillBeyondPainters(image, input().settings.colors.picture);
    if (!image.isNull())
        m_problem = paintOn(image, request);
    return image;
}

Problem CGraph1dBase::paintOn(QPaintDevice& device, const CRequest& request)
{
    CCanvas canvas(device, input().settings, request, addedFamily());
    const bool fits = layOut(canvas, request);
    if (fits)
        paintContents(canvas);
    m_isDrawn = fits;
    return findProblem(canvas);
}

bool CGraph1dBase::layOut(CCanvas& canvas, const CRequest& request)
{
    CItemSelection selection = selectItems();
    m_actingThreshold = selection.threshold;
    m_selectedItems = std::move(selection.items);
    recordCaptions(std::vector<QRect>(m_selectedItems.size()));

    const auto others = input().gatherOthers(selection.leftOut);
    const auto texts = layOutContents(canvas.measurer(), request, m_selectedItems, others);
    if (!texts)
        return false;
    recordCaptions(texts->captions);
    m_titleRect = texts->title;
    if (others)
        m_others = COthers{input().items.size(), selection.leftOut, texts->captions.back()};
    return true;
}

Problem CGraph1dBase::findProblem(const CCanvas& canvas) const
{
    if (!m_isDrawn)
        return Problem::TooSmallForChart;
    const QString added = addedFamily();
    return added.isEmpty() ? installedFontProblem(input().settings)
                           : addedFontProblem(canvas.usedFamily(), added);
}

std::optional<CGraph1dItem> CGraph1dBase::gatheredItem() const
{
    return m_others ? input().gatherOthers(m_others->leftOut) : std::nullopt;
}

QString CGraph1dBase::addedFamily() const
{
    return CAddedFonts::ofProcess().qtFamily(input().settings.fontFamily);
}

void CGraph1dBase::recordCaptions(const std::vector<QRect>& captions)
{
    m_itemRects.resize(input().items.size());
    for (std::size_t i = 0; i < m_selectedItems.size(); ++i)
        m_itemRects[m_selectedItems[i]] = captions[i];
}

} // namespace tovangl
