// SPDX-License-Identifier: MIT
// A chart from its constructor to its destructor, through every operation, while memory runs out.
#include "memory/CChartLife.h"

#include "memory/allocation_faults.h"
#include "support/small_font.h"

#include <iterator>
#include <new>
#include <string>

namespace tovangl {

namespace {

constexpr int kWidth = 240;  // pixels
constexpr int kHeight = 180; // pixels
constexpr int kFactor = 2;

// Labels, titles and everything that needs room of its own; the same word for axes and pies.
constexpr int kEverythingShown = 0x1ff;

constexpr const char* kPictureFamily = "Letters that are pictures";

// A PNG file of one red pixel.
constexpr unsigned char kRedPixel[] = {
    0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a, 0x00, 0x00, 0x00, 0x0d, 0x49, 0x48,
    0x44, 0x52, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x01, 0x08, 0x02, 0x00, 0x00,
    0x00, 0x90, 0x77, 0x53, 0xde, 0x00, 0x00, 0x00, 0x0c, 0x49, 0x44, 0x41, 0x54, 0x78,
    0x9c, 0x63, 0xf8, 0xcf, 0xc0, 0x00, 0x00, 0x03, 0x01, 0x01, 0x00, 0xc9, 0xfe, 0x92,
    0xef, 0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4e, 0x44, 0xae, 0x42, 0x60, 0x82};

// It stays for the process, and is added once.
void addPictureFont()
{
    CSmallFont font{{windowsName(1, kPictureFamily)}};
    font.picture.assign(std::begin(kRedPixel), std::end(kRedPixel));
    font.pictureSize = 4;
    const std::string file = smallFont(font);
    (void)addFont(reinterpret_cast<const unsigned char*>(file.data()), file.size());
}

} // namespace

CChartLife::CChartLife(ChartKind kind)
    : m_kind(kind)
{}

void CChartLife::live()
{
    call([this] { m_chart = std::make_unique<CAnyChart>(m_kind, true); });
    applySettings();
    addItems();
    render(PictureKind::Screen);
    render(PictureKind::Print);
    call([this] { m_chart->graph().setCompression(Compression::Fast); });
    render(PictureKind::Print);
    render(PictureKind::Svg);
    render(PictureKind::Pdf);
    call([this] { m_chart->graph().setByName("follow_display", "true"); });
    render(PictureKind::Svg);
    call([this] { m_chart->graph().setPictureTransparent(); });
    render(PictureKind::Screen);
    call([this] { m_chart->graph().clear(); });
    render(PictureKind::Screen);
    addItems();
    render(PictureKind::Screen);
    call([this] { m_chart->graph().freePixmap(); });
    call([this] { m_chart.reset(); });
}

CPictureLife::CPictureLife(ChartKind kind)
    : CChartLife(kind)
{
    addPictureFont();
}

void CPictureLife::live()
{
    call([this] { m_chart = std::make_unique<CAnyChart>(m_kind, true); });
    call([this] { m_chart->graph().setFont(kPictureFamily, 9); });
    call([this] { m_chart->addItem(34000, "usr"); });
    render(PictureKind::Pdf);
    call([this] { m_chart.reset(); });
}

void CChartLife::call(const Call& operation)
{
    try {
        const CFaultyCall faulty;
        operation();
    } catch (const std::bad_alloc&) {
        handleFailure(operation);
    }
}

// The memory is back: the same call must work now.
void CChartLife::handleFailure(const Call& operation)
{
    CAllocationFaults::end();
    if (!m_swallowsFailure)
        ++m_failureCount;
    operation();
    if (m_addsItemAfterFailure && m_chart)
        m_chart->addItem(100, "seeded");
}

void CChartLife::applySettings()
{
    call([this] { m_chart->graph().setFont("DejaVu Sans", 9); });
    call([this] { m_chart->graph().setLocale("de", "at"); });
    call([this] { m_chart->graph().setThreshold(0.6); });
    call([this] { m_chart->graph().setOthers("all that is small"); });
    call([this] { m_chart->setProperties(kEverythingShown, "a title of several words"); });
    call([this] { m_chart->setColors({60, 60, 60}, {0, 0, 90}, {90, 0, 0}); });
    call([this] { m_chart->setBarWidth(9); });
    call([this] {
        m_chart->graph().setTitle("a title that is too long for the width of the picture");
    });
}

void CChartLife::addItems()
{
    const auto add = [this](long value, const char* text) {
        call([=] { m_chart->addItem(value, text); });
    };
    const auto addColored = [this](long value, const char* text) {
        call([=] { m_chart->addItem(value, text, {200, 90, 30}, {0, 0, 0}); });
    };
    add(34000, "a caption that is too long for its room");
    addColored(12000, "usr");
    add(300, "var\nlib");
    add(-4000, "negative");
    add(11000, "home");
    addColored(9000, "opt");
    add(400, "srv");
    add(350, "tmp");
    call([this] { m_chart->graph().setLink(0, "https://example.org/?a=1&b=2"); });
}

void CChartLife::render(PictureKind kind)
{
    CExport picture;
    call([&] { picture = exportPicture(kind); });
    CRenderedChart rendering;
    call([&] { rendering = copyRendering(*m_chart, picture); });
    m_renderings.push_back(rendering);
}

CExport CChartLife::exportPicture(PictureKind kind)
{
    try {
        switch (kind) {
        case PictureKind::Print:
            return m_chart->createPixmapForPrinter(kWidth, kHeight, kFactor);
        case PictureKind::Svg:
            return m_chart->createSvg(kWidth, kHeight);
        case PictureKind::Pdf:
            return m_chart->createPdf(kWidth, kHeight);
        case PictureKind::Screen:
            break;
        }
        return m_chart->createPixmap(kWidth, kHeight);
    } catch (const std::bad_alloc&) {
        if (m_chart->graph().problem() != Problem::NoMemory)
            m_tellsLackOfMemory = false;
        throw;
    }
}

} // namespace tovangl
