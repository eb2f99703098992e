// SPDX-License-Identifier: MIT
// What holds for every pie, tried on random ones.
#include "chart/CPieGraph.h"
#include "support/CTestPie.h"

#include <algorithm>
#include <array>
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

constexpr unsigned kPies = 60;

struct CRandomPie
{
    explicit CRandomPie(unsigned seed)
    {
        std::mt19937 random(seed);
        pie = CTestPie(random() % 2 == 0);
        const auto bits = 1 + random() % 40;
        const auto count = random() % 60;
        for (auto i = count; i > 0; --i) {
            const auto value = static_cast<long long>(random()) % (1LL << bits);
            pie.add(random() % 9 == 0 ? -value : value, kNames[random() % std::size(kNames)]);
        }
        pie.options = CPieInput::Options(QFlag(static_cast<int>(random() & 0x148))) |
                      CPieInput::RemoveLabelOverlaps;
        pie.settings.threshold = static_cast<double>(random() % 3);
        width = 110 + static_cast<int>(random() % 700);
        height = 60 + static_cast<int>(random() % 600);
        factor = 1 + static_cast<int>(random() % 2);
    }

    [[nodiscard]] CRequest request(int below = 0) const
    {
        return inPrint(width, height + below, factor);
    }
    [[nodiscard]] CPieLayout layOut() const { return pie.layOut(request()); }

    CTestPie pie;
    int width;
    int height;
    int factor;
};

// Looks at random pies, each time the same ones.
template <typename Law>
void forPies(const Law& law)
{
    for (unsigned seed = 0; seed < kPies; ++seed) {
        SCOPED_TRACE(seed);
        law(CRandomPie(seed));
    }
}

TEST(PieLaws, SpansAddUpToAFullCircle)
{
    forPies([](const CRandomPie& random) {
        const CPieLayout layout = random.layOut();
        int sum = 0;
        for (const CPieSlice& slice : layout.slices)
            sum += slice.angles.span;
        EXPECT_EQ(sum, layout.slices.empty() ? 0 : -5760);
    });
}

// Where the lines to the shown labels of the left and of the right half end, from the top downward.
std::array<std::vector<double>, 2> lineEndsOfHalves(const CPieLayout& layout)
{
    std::array<std::vector<double>, 2> halves;
    for (const CPlacedPieLabel& label : layout.labels) {
        if (!label.isHidden)
            halves[label.labelPos.x() > label.lineEnd.x() ? 1 : 0].push_back(label.lineEnd.y());
    }
    for (std::vector<double>& half : halves)
        std::sort(half.begin(), half.end());
    return halves;
}

// Labels that do not collide as rectangles stay where they are, and may stand closer.
bool isArranged(const CPieLayout& layout)
{
    return std::any_of(layout.labels.begin(), layout.labels.end(),
                       [](const CPlacedPieLabel& label) {
                           return label.isHidden || label.lineEnd.y() != label.elbow.y();
                       });
}

TEST(PieLaws, ArrangedLabelsOfAHalfDoNotOverlap)
{
    forPies([](const CRandomPie& random) {
        const CPieLayout layout = random.layOut();
        if (!isArranged(layout))
            return;
        for (const std::vector<double>& half : lineEndsOfHalves(layout)) {
            for (std::size_t i = 1; i < half.size(); ++i)
                EXPECT_GE(half[i] - half[i - 1], layout.labelRect.height() - 1e-6);
        }
    });
}

TEST(PieLaws, DrawnLabelsStayInsideThePicture)
{
    forPies([](const CRandomPie& random) {
        for (const CPlacedPieLabel& label : random.layOut().labels) {
            if (label.itemRect.isNull())
                continue;
            EXPECT_GE(label.itemRect.top(), -1);
            EXPECT_LE(label.itemRect.bottom(), random.request().height);
        }
    });
}

void expectLower(const CPieLayout& lower, const CPieLayout& plain, int by)
{
    EXPECT_EQ(lower.pieRect, plain.pieRect.translated(0, by));
    for (std::size_t i = 0; i < plain.labels.size(); ++i) {
        EXPECT_EQ(lower.labels[i].labelPos, plain.labels[i].labelPos);
        EXPECT_EQ(lower.labels[i].isHidden, plain.labels[i].isHidden);
        if (plain.labels[i].isHidden)
            continue;
        // The sum of a larger centre and a place can round to the other side of half a pixel.
        const QRect moved = plain.labels[i].itemRect.translated(0, by);
        EXPECT_LE(std::abs(lower.labels[i].itemRect.top() - moved.top()), 1);
        EXPECT_EQ(lower.labels[i].itemRect.left(), moved.left());
    }
}

TEST(PieLaws, BelowATitleStandsThePieOfALowerPicture)
{
    forPies([](CRandomPie random) {
        const CPieLayout plain = random.layOut();
        random.pie.settings.title = QString("a title");
        const auto title = random.pie.layOut(random.request(100)).title;
        ASSERT_EQ(title.has_value(), plain.fits());
        if (!title)
            return;
        CRequest request = random.request();
        request.height += title->chartTop();
        const CPieLayout layout = random.pie.layOut(request);
        ASSERT_TRUE(layout.title);
        expectLower(layout, plain, title->chartTop());
    });
}

TEST(PieLaws, TwoRenderingsAreEqual)
{
    forPies([](const CRandomPie& random) {
        CPieGraph chart(false);
        chart.input() = random.pie;
        const auto draw = [&] {
            return chart.getImageForPrinter(random.width, random.height, random.factor);
        };
        const QImage first = draw();
        const std::vector<QRect> firstRects = chart.itemRectangles();
        EXPECT_EQ(draw(), first);
        EXPECT_EQ(chart.itemRectangles(), firstRects);
    });
}

} // namespace
} // namespace tovangl
