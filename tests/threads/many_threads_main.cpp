// SPDX-License-Identifier: MIT
// Renders mixed charts from many threads at once, while other threads add fonts: every picture must
// be that of one thread alone.
//
// many_threads [--pictures N] [--threads N] [--seed-fault pixel|race]
// The last line of the output sums up.
#include "support/mixed_charts.h"
#include "support/small_font.h"
#include <tovangl/Font.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

namespace tovangl {
namespace {

constexpr unsigned kFontThreads = 2;

struct COptions
{
    unsigned pictures = 2000;
    unsigned threads = 8;
    bool seedsWrongPixel = false;
    bool seedsRace = false;
};

CRenderedChart drawMixedChart(unsigned number)
{
    constexpr int kWidth = 300; // points
    constexpr int kHeight = 200;
    CRenderedChart drawn = renderMixedChart(number);
    drawn.pdf = makeMixedChart(number).createPdf(kWidth, kHeight).bytes();
    return drawn;
}

// Hands out the charts, and takes the verdicts, of all threads.
class CCommonWork
{
public:
    CCommonWork(const std::vector<CRenderedChart>& expected, const COptions& options)
        : m_expected(expected)
        , m_options(options)
    {}

    // Renders charts until none is left.
    void help()
    {
        for (unsigned number = m_next++; number < m_expected.size(); number = m_next++) {
            CRenderedChart rendering = drawMixedChart(number);
            if (m_options.seedsWrongPixel && number == m_expected.size() / 2)
                rendering.png = renderMixedChart(number + 1).png;
            if (m_options.seedsRace)
                ++m_unprotected;
            if (!isSameRendering(rendering, m_expected[number])) {
                ++m_differences;
                std::printf("FAIL  chart %u differs\n", number);
            }
        }
    }

    // Adds a font for every few charts that the others render.
    void addFonts()
    {
        constexpr unsigned kChartsForAFont = 20;
        while (m_next < m_expected.size()) {
            const unsigned number = m_nextFont++;
            while (m_next < m_expected.size() && m_next < number * kChartsForAFont)
                std::this_thread::yield();
            const std::string file = smallFont("Font " + std::to_string(number));
            if (addFont(reinterpret_cast<const unsigned char*>(file.data()), file.size()).empty())
                ++m_differences;
        }
    }

    [[nodiscard]] int differences() const { return m_differences; }

private:
    const std::vector<CRenderedChart>& m_expected;
    const COptions& m_options;
    std::atomic<unsigned> m_next{0};
    std::atomic<unsigned> m_nextFont{0};
    std::atomic<int> m_differences{0};
    int m_unprotected = 0; // written by all threads where a race is seeded
};

COptions parseOptions(int count, char** arguments)
{
    COptions options;
    for (int i = 1; i + 1 < count; i += 2) {
        const std::string name = arguments[i];
        const std::string value = arguments[i + 1];
        if (name == "--pictures")
            options.pictures = static_cast<unsigned>(std::atoi(value.c_str()));
        else if (name == "--threads")
            options.threads = static_cast<unsigned>(std::atoi(value.c_str()));
        options.seedsWrongPixel |= name == "--seed-fault" && value == "pixel";
        options.seedsRace |= name == "--seed-fault" && value == "race";
    }
    return options;
}

std::vector<CRenderedChart> drawAlone(unsigned pictures)
{
    std::vector<CRenderedChart> renderings;
    for (unsigned number = 0; number < pictures; ++number)
        renderings.push_back(drawMixedChart(number));
    return renderings;
}

int runThreads(const COptions& options)
{
    const std::vector<CRenderedChart> expected = drawAlone(options.pictures);
    CCommonWork work(expected, options);
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < options.threads; ++i)
        threads.emplace_back([&work] { work.help(); });
    for (unsigned i = 0; i < kFontThreads; ++i)
        threads.emplace_back([&work] { work.addFonts(); });
    for (std::thread& thread : threads)
        thread.join();
    std::printf("%u pictures from %u threads, %d differ from those of one thread\n",
                options.pictures, options.threads, work.differences());
    return options.pictures > 0 && work.differences() == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace
} // namespace tovangl

int main(int count, char** arguments)
{
    return tovangl::runThreads(tovangl::parseOptions(count, arguments));
}
