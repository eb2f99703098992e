// SPDX-License-Identifier: MIT
// A chart told by a number, with all that a host can learn of it.
#include "differences/random_chart.h"

#include "differences/random_inputs.h"

#include <fstream>

namespace tovangl {

namespace {

ChartKind kindOf(unsigned number)
{
    return kChartKinds[number % kChartKinds.size()];
}

class CRandomChart
{
public:
    CRandomChart(unsigned number, std::string folder, SeededFault fault)
        : m_number(number)
        , m_folder(std::move(folder))
        , m_notes(fault)
        , m_dice(number)
        , m_inputs(m_dice)
        , m_chart(kindOf(number), m_dice.oneIn(2))
    {}

    CChartRecord live()
    {
        const int rounds = m_dice.oneIn(2) ? 1 : m_dice.roll(2, 4);
        for (int round = 0; round < rounds; ++round) {
            changeItems(round);
            changeSettings();
            // What an earlier rendering left behind is told here.
            m_notes.addState(m_chart);
            render();
            m_notes.addState(m_chart);
        }
        return m_notes.record();
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
        m_notes.addPicture(picture.bytes());
        keepPicture(picture.bytes());
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

    void keepPicture(const std::string& png) const
    {
        if (m_folder.empty())
            return;
        const std::string name =
            std::to_string(m_number) + '-' + std::to_string(m_notes.pictures()) + ".png";
        std::ofstream(m_folder + '/' + name, std::ios::binary) << png;
    }

    const unsigned m_number;
    const std::string m_folder;
    CChartNotes m_notes;
    CDice m_dice;
    CRandomInputs m_inputs;
    CAnyChart m_chart;
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
