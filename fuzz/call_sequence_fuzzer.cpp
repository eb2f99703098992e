// SPDX-License-Identifier: MIT
// Reads a sequence of public calls from the input and makes them on several charts that live side
// by side.
#include "CWatchedChart.h"

#include <algorithm>
#include <array>
#include <fuzzer/FuzzedDataProvider.h>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace tovangl {
namespace {

constexpr std::size_t kCharts = 4;
constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();
constexpr double kMostDrawnPixels = 300000; // larger pictures only take time, ...
constexpr double kMostPixels = 1 << 29;     // ... until they cannot be made

class CCallSequence
{
public:
    CCallSequence(const std::uint8_t* data, std::size_t size)
        : m_input(data, size)
    {}

    void run()
    {
        while (m_input.remaining_bytes() > 0) {
            callOnce(readSlot());
            for (const auto& chart : m_charts) {
                if (chart)
                    chart->checkPromises();
            }
        }
    }

private:
    enum Call
    {
        Make,
        Destroy,
        AddItem,
        AddColoredItem,
        AddManyItems,
        Clear,
        FreePixmap,
        SetThreshold,
        SetFont,
        SetLocale,
        SetColors,
        SetProperties,
        SetPosition,
        SetBarWidth,
        SetTitle,
        SetOthers,
        SetPalette,
        SetTheme,
        SetScale,
        SetByName,
        SetLink,
        Render,
        kMaxValue = Render
    };

    std::unique_ptr<CWatchedChart>& readSlot()
    {
        return m_charts[m_input.ConsumeIntegralInRange<std::size_t>(0, kCharts - 1)];
    }

    void callOnce(std::unique_ptr<CWatchedChart>& chart)
    {
        const Call call = m_input.ConsumeEnum<Call>();
        if (call == Make || !chart) {
            const auto kind = m_input.PickValueInArray(kChartKinds);
            chart = std::make_unique<CWatchedChart>(kind, m_input.ConsumeBool());
        } else if (call == Destroy) {
            chart.reset();
        } else {
            callOn(*chart, call);
        }
    }

    void callOn(CWatchedChart& chart, Call call)
    {
        switch (call) {
        case AddItem:
            return chart.addItem(readValue(), readText());
        case AddColoredItem:
            return chart.addItem(readValue(), readText(), readColor(), readColor());
        case AddManyItems:
            return addManyItems(chart);
        case Clear:
            return chart.clear();
        case FreePixmap:
            return chart.freePixmap();
        case SetThreshold:
            return chart.setThreshold(readThreshold());
        case SetFont:
            return chart.chart().graph().setFont(readText(), readFontSize());
        case SetLocale:
            return chart.chart().graph().setLocale(readText(), readText());
        case SetColors:
            return chart.chart().setColors(readColor(), readColor(), readColor());
        case SetProperties:
            return chart.chart().setProperties(readInt(), readText());
        case SetPosition:
            return chart.setPosition(readInt(), readInt());
        case SetBarWidth:
            return chart.setBarWidth(readInt());
        case SetTitle:
            return chart.chart().graph().setTitle(readText());
        case SetOthers:
            return chart.setOthers(readText());
        case SetPalette:
            return setPalette(chart);
        case SetTheme:
            return chart.chart().graph().setTheme(static_cast<Theme>(readInt()));
        case SetScale:
            return chart.setScale(readFactor());
        case SetByName:
            return setByName(chart);
        case SetLink:
            return setLink(chart);
        default:
            return render(chart);
        }
    }

    void addManyItems(CWatchedChart& chart)
    {
        constexpr int kMany = 60;
        const int count = m_input.ConsumeIntegralInRange(0, kMany);
        const long value = readValue();
        const std::string text = readText();
        for (int i = 0; i < count; ++i)
            chart.addItem(value / (i + 1), text);
    }

    void setPalette(CWatchedChart& chart)
    {
        constexpr int kMany = 9;
        std::vector<Color> colors;
        for (int count = m_input.ConsumeIntegralInRange(0, kMany); count > 0; --count)
            colors.push_back(readColor());
        chart.chart().graph().setPalette(colors);
    }

    void setByName(CWatchedChart& chart)
    {
        const SettingTable table = settings();
        const auto count = static_cast<std::size_t>(table.end() - table.begin());
        const std::size_t row = m_input.ConsumeIntegralInRange<std::size_t>(0, count);
        const std::string name = row < count ? table.begin()[row].name : readText();
        chart.setByName(name, readSettingValue());
    }

    void setLink(CWatchedChart& chart)
    {
        constexpr std::size_t kMany = 9;
        const std::size_t item = m_input.ConsumeIntegralInRange<std::size_t>(0, kMany);
        const bool isRead = m_input.ConsumeBool();
        chart.chart().graph().setLink(item, isRead ? readText() : "#" + std::to_string(item));
    }

    void render(CWatchedChart& chart)
    {
        const int width = readSide();
        const int height = readSide();
        const int factor = m_input.ConsumeBool() ? 0 : readFactor();
        const double scale = factor == 0 ? chart.scale() : std::max(factor, 1);
        const double pixels = 1.0 * width * height * scale * scale;
        if (pixels <= kMostDrawnPixels || pixels > kMostPixels)
            chart.render(width, height, factor);
    }

    // --- arguments: mostly of an ordinary size, sometimes from the ends of their type

    int readSide()
    {
        constexpr int kOrdinary = 700;
        return m_input.ConsumeProbability<float>() < 0.9F
                   ? m_input.ConsumeIntegralInRange(-2, kOrdinary)
                   : m_input.ConsumeIntegral<int>();
    }

    int readFactor()
    {
        constexpr int kOrdinary = 5;
        return m_input.ConsumeBool() ? m_input.ConsumeIntegralInRange(-2, kOrdinary)
                                     : m_input.PickValueInArray({kMin, kMax, 1000, 65536});
    }

    int readInt()
    {
        constexpr int kOrdinary = 8191;
        return m_input.ConsumeBool() ? m_input.ConsumeIntegralInRange(-1, kOrdinary)
                                     : m_input.ConsumeIntegral<int>();
    }

    int readFontSize()
    {
        constexpr int kOrdinary = 60;
        constexpr int kHuge = 30000;
        return m_input.ConsumeProbability<float>() < 0.95F
                   ? m_input.ConsumeIntegralInRange(-1, kOrdinary)
                   : m_input.PickValueInArray({kMin, kMax, 300, kHuge});
    }

    long readValue()
    {
        const long value = m_input.ConsumeIntegral<long>();
        return value >> m_input.ConsumeIntegralInRange(0, 63);
    }

    double readThreshold()
    {
        return m_input.ConsumeBool() ? m_input.ConsumeFloatingPointInRange(-1.0, 101.0)
                                     : m_input.ConsumeFloatingPoint<double>();
    }

    Color readColor()
    {
        const int red = readInt();
        const int green = readInt();
        return Color{red, green, readInt()};
    }

    // One that some setting takes, or any text.
    std::string readSettingValue()
    {
        static constexpr std::array kValues = {"true",
                                               "false",
                                               "none",
                                               "default",
                                               "transparent",
                                               "dark",
                                               "1",
                                               "3",
                                               "-1",
                                               "1000",
                                               "1024",
                                               "12.5",
                                               "nan",
                                               "#104080",
                                               "de_AT",
                                               "#104080,#fa0",
                                               "#104080,#ffaa00",
                                               "60,200",
                                               "line,title",
                                               "colour-blind"};
        return m_input.ConsumeBool() ? readText() : m_input.PickValueInArray(kValues);
    }

    std::string readText()
    {
        constexpr std::size_t kLongest = 80;
        return m_input.ConsumeRandomLengthString(kLongest);
    }

    FuzzedDataProvider m_input;
    std::array<std::unique_ptr<CWatchedChart>, kCharts> m_charts;
};

} // namespace
} // namespace tovangl

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    tovangl::CCallSequence(data, size).run();
    return 0;
}
