// SPDX-License-Identifier: MIT
// A chart told by a number, with all that a host can learn of it.
#include "differences/random_chart.h"

#include "differences/CHash.h"
#include "differences/random_inputs.h"
#include "support/CAnyChart.h"
#include "support/png_decoding.h"
#include "support/public_records.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <sstream>

namespace tovangl {

namespace {

ChartKind kindOf(unsigned number)
{
    return kChartKinds[number % kChartKinds.size()];
}

// The pixels alone: bytes between the rows mean nothing.
std::uint64_t hashPixels(const QImage& image)
{
    CHash hash;
    for (int y = 0; y < image.height(); ++y)
        hash.addWords(reinterpret_cast<const std::uint32_t*>(image.constScanLine(y)),
                      static_cast<std::size_t>(image.width()));
    return hash.value();
}

std::uint64_t hashCorners(const std::vector<Point>& corners)
{
    CHash hash;
    for (const Point& corner : corners) {
        hash.addNumber(corner.x);
        hash.addNumber(corner.y);
    }
    return hash.value();
}

class CRandomChart
{
public:
    CRandomChart(unsigned number, std::string folder, SeededFault fault)
        : m_number(number)
        , m_folder(std::move(folder))
        , m_fault(fault)
        , m_dice(number)
        , m_inputs(m_dice)
        , m_chart(kindOf(number), m_dice.oneIn(2))
    {
        constexpr int kDigits = 17; // enough to tell any two numbers apart
        m_rectangles.precision(kDigits);
        m_settings.precision(kDigits);
    }

    CChartRecord live()
    {
        const int rounds = m_dice.oneIn(2) ? 1 : m_dice.roll(2, 4);
        for (int round = 0; round < rounds; ++round) {
            changeItems(round);
            changeSettings();
            // What an earlier rendering left behind is told here.
            note();
            render();
            note();
        }
        return CChartRecord{m_pixels.str(), m_rectangles.str(), m_descriptions.str(),
                            m_settings.str()};
    }

private:
    void changeItems(int round)
    {
        const bool isFirst = round == 0;
        const bool isCleared = !isFirst && m_dice.oneIn(3);
        if (isCleared)
            m_chart.graph().clear();
        if (isFirst || isCleared || m_dice.oneIn(3))
            addItems(m_inputs.itemCount());
    }

    void addItems(int count)
    {
        for (int i = 0; i < count; ++i) {
            const long value = m_inputs.value();
            const std::string text = m_inputs.text();
            if (m_dice.oneIn(4)) {
                const Color fill = m_inputs.color();
                m_chart.addItem(value, text, fill, m_inputs.color());
            } else {
                m_chart.addItem(value, text);
            }
        }
    }

    void changeSettings()
    {
        changeCommonSettings();
        if (m_dice.oneIn(2)) {
            const int properties = m_inputs.properties();
            m_chart.setProperties(properties, m_inputs.text());
        }
        if (m_dice.oneIn(3)) {
            const int properties = m_inputs.properties();
            m_chart.setValueAxis(properties, m_inputs.text());
        }
        if (m_dice.oneIn(4)) {
            const Color outline = m_inputs.color();
            const Color text = m_inputs.color();
            m_chart.setColors(outline, text, m_inputs.color());
        }
        if (m_dice.oneIn(6)) {
            const int x = m_inputs.pixels();
            m_chart.setPosition(x, m_inputs.pixels());
        }
        if (m_dice.oneIn(6))
            m_chart.setBarWidth(m_inputs.pixels());
    }

    void changeCommonSettings()
    {
        if (m_dice.oneIn(2)) {
            const std::string family = m_inputs.fontFamily();
            m_chart.graph().setFont(family, m_inputs.fontSize());
        }
        if (m_dice.oneIn(3)) {
            const auto [language, country] = m_inputs.locale();
            m_chart.graph().setLocale(language, country);
        }
        if (m_dice.oneIn(4))
            m_chart.graph().setThreshold(m_inputs.threshold());
        if (m_dice.oneIn(10))
            m_chart.graph().freePixmap();
    }

    void render()
    {
        const int width = m_inputs.side();
        const int height = m_inputs.side();
        const bool isPrinted = m_dice.oneIn(4);
        const int factor = m_inputs.printFactor();
        const CExport picture =
            isPrinted
                ? m_chart.createPixmapForPrinter(width, height, affordable(factor, width, height))
                : m_chart.createPixmap(width, height);
        ++m_pictures;
        notePicture(picture.bytes());
    }

    // Larger pictures only take time. Those that cannot be made take none.
    static int affordable(int factor, int width, int height)
    {
        constexpr double kMostPixels = 2000000;
        const double pixels = 1.0 * width * height;
        while (factor > 1 && pixels * factor * factor > kMostPixels)
            --factor;
        return factor;
    }

    void notePicture(const std::string& png)
    {
        QImage image = decodePng(png);
        if (m_fault == SeededFault::Pixel && !image.isNull())
            image.setPixel(image.width() / 2, image.height() / 2,
                           image.pixel(image.width() / 2, image.height() / 2) ^ 1U);
        m_pixels << image.width() << 'x' << image.height() << ' ' << std::hex << hashPixels(image)
                 << std::dec << '\n';
        if (!m_folder.empty())
            std::ofstream(m_folder + '/' + std::to_string(m_number) + '-' +
                              std::to_string(m_pictures) + ".png",
                          std::ios::binary)
                << png;
    }

    void note()
    {
        const char* fault = m_fault == SeededFault::Description ? "!" : "";
        m_descriptions << m_chart.graph().describe() << fault << '\n';
        noteRectangles("captions", m_chart.itemRectangles());
        noteRectangles("bars", m_chart.barRectangles());
        noteRectangles("items' bars", m_chart.itemBarRectangles());
        noteSlices();
        noteSettings();
    }

    void noteRectangles(const char* title, std::list<Rectangle> rectangles)
    {
        if (m_fault == SeededFault::Rectangle && !rectangles.empty())
            ++rectangles.back().width;
        m_rectangles << "after " << m_pictures << " pictures, " << title << ':';
        for (const Rectangle& rectangle : rectangles)
            m_rectangles << ' ' << rectangle;
        m_rectangles << '\n';
    }

    void noteSlices()
    {
        m_rectangles << "after " << m_pictures << " pictures, slices:";
        for (const Slice& slice : m_chart.slices()) {
            const std::vector<Point> corners = getPolygon(slice);
            m_rectangles << " (" << slice.x << ' ' << slice.y << ' ' << slice.width << ' '
                         << slice.height << ' ' << slice.start << ' ' << slice.span << ", "
                         << corners.size() << " corners " << std::hex << hashCorners(corners)
                         << std::dec << ')';
        }
        m_rectangles << '\n';
    }

    void noteSettings()
    {
        const double threshold = m_chart.graph().threshold();
        m_settings << "after " << m_pictures << " pictures, threshold ";
        if (std::isnan(threshold))
            m_settings << "nan";
        else
            m_settings << threshold + (m_fault == SeededFault::Setting ? 1 : 0);
        m_settings << ", bar width " << m_chart.barWidth() << '\n';
    }

    const unsigned m_number;
    const std::string m_folder;
    const SeededFault m_fault;
    CDice m_dice;
    CRandomInputs m_inputs;
    CAnyChart m_chart;
    int m_pictures = 0;
    std::ostringstream m_pixels;
    std::ostringstream m_rectangles;
    std::ostringstream m_descriptions;
    std::ostringstream m_settings;
};

} // namespace

CChartRecord drawRandomChart(unsigned number, const std::string& folder, SeededFault fault)
{
    return CRandomChart(number, folder, fault).live();
}

const char* nameRandomChart(unsigned number)
{
    return nameOf(kindOf(number));
}

} // namespace tovangl
