// SPDX-License-Identifier: MIT
// What holds for every pie, tried on random ones.
#include "api/CPieGraph.h"
#include "support/CTestPie.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

namespace tovangl {
namespace {

const char* const kNames[] = {"home",
                              "var",
                              "",
                              "a very long name of a folder",
                              "Größe",
                              "\u65e5\u672c\u8a9e",
                              "\u05e2\u05d1\u05e8\u05d9\u05ea",
                              "a\nb",
                              "  x  "};

class PieLaws : public testing::TestWithParam<unsigned>
{
protected:
    PieLaws()
        : m_random(GetParam())
        , pie(m_random() % 2 == 0)
    {
        const auto bits = 1 + m_random() % 40;
        const auto count = m_random() % 60;
        for (auto i = count; i > 0; --i) {
            const auto value = static_cast<long long>(m_random()) % (1LL << bits);
            pie.add(m_random() % 9 == 0 ? -value : value, kNames[m_random() % std::size(kNames)]);
        }
        pie.options = CPieInput::Options(QFlag(static_cast<int>(m_random() & 0x148))) |
                      CPieInput::RemoveLabelOverlaps;
        pie.settings.threshold = static_cast<double>(m_random() % 3);
        width = 110 + static_cast<int>(m_random() % 700);
        height = 60 + static_cast<int>(m_random() % 600);
        factor = 1 + static_cast<int>(m_random() % 2);
    }

    [[nodiscard]] CPieLayout layOut() const { return pie.layOut(inPrint(width, height, factor)); }

    std::mt19937 m_random;
    CTestPie pie;
    int width;
    int height;
    int factor;
};

TEST_P(PieLaws, SpansAddUpToAFullCircle)
{
    const CPieLayout layout = layOut();
    int sum = 0;
    for (const CPieSlice& slice : layout.slices)
        sum += slice.angles.span;
    EXPECT_EQ(sum, layout.slices.empty() ? 0 : -5760);
}

TEST_P(PieLaws, ArrangedLabelsOfAHalfDoNotOverlap)
{
    const CPieLayout layout = layOut();
    const double slot = layout.labelRect.height();
    std::vector<double> halves[2];
    bool isMoved = false;
    for (const CPlacedPieLabel& label : layout.labels) {
        isMoved = isMoved || label.isHidden || label.lineEnd.y() != label.elbow.y();
        if (!label.isHidden)
            halves[label.labelPos.x() > label.lineEnd.x() ? 1 : 0].push_back(label.lineEnd.y());
    }
    for (std::vector<double>& half : halves) {
        std::sort(half.begin(), half.end());
        double previous = -1e9;
        for (const double y : half) {
            // Labels that did not collide as rectangles may stand closer.
            EXPECT_TRUE(!isMoved || y - previous >= slot - 1e-6);
            previous = y;
        }
    }
}

TEST_P(PieLaws, DrawnLabelsStayInsideThePicture)
{
    for (const CPlacedPieLabel& label : layOut().labels) {
        if (label.itemRect.isNull())
            continue;
        EXPECT_GE(label.itemRect.top(), -1);
        EXPECT_LE(label.itemRect.bottom(), height * factor);
    }
}

TEST_P(PieLaws, BelowATitleStandsThePieOfALowerPicture)
{
    CRequest request = inPrint(width, height, factor);
    const CPieLayout plain = pie.layOut(request);
    pie.settings.title = QString("a title");
    const auto title = pie.layOut(inPrint(width, height + 100, factor)).title;
    ASSERT_EQ(title.has_value(), plain.fits());
    if (!title)
        return;
    request.height += title->chartTop();
    const CPieLayout layout = pie.layOut(request);
    ASSERT_TRUE(layout.title);
    EXPECT_EQ(layout.pieRect, plain.pieRect.translated(0, title->chartTop()));
    for (std::size_t i = 0; i < plain.labels.size(); ++i) {
        EXPECT_EQ(layout.labels[i].labelPos, plain.labels[i].labelPos);
        EXPECT_EQ(layout.labels[i].isHidden, plain.labels[i].isHidden);
        if (plain.labels[i].isHidden)
            continue;
        // The sum of a larger centre and a place can round to the other side of half a pixel.
        const QRect moved = plain.labels[i].itemRect.translated(0, title->chartTop());
        EXPECT_LE(std::abs(layout.labels[i].itemRect.top() - moved.top()), 1);
        EXPECT_EQ(layout.labels[i].itemRect.left(), moved.left());
    }
}

TEST_P(PieLaws, TwoRenderingsAreEqual)
{
    CPieGraph chart(false);
    chart.input() = pie;
    const QImage first = chart.getImageForPrinter(width, height, factor);
    const std::vector<QRect> firstRects = chart.itemRectangles();
    EXPECT_EQ(chart.getImageForPrinter(width, height, factor), first);
    EXPECT_EQ(chart.itemRectangles(), firstRects);
}

INSTANTIATE_TEST_SUITE_P(RandomCharts, PieLaws, testing::Range(0u, 60u));

} // namespace
} // namespace tovangl
