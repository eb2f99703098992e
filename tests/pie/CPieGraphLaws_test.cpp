// SPDX-License-Identifier: MIT
// What holds for every pie, tried on random ones.
#include "pie/CTestPie.h"

#include <gtest/gtest.h>
#include <list>
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
        pie.setOptions(CPieGraph::Options(QFlag(static_cast<int>(m_random() & 0x148))) |
                       CPieGraph::RemoveLabelOverlaps);
        pie.setThreshold(static_cast<double>(m_random() % 3));
        width = 110 + static_cast<int>(m_random() % 700);
        height = 60 + static_cast<int>(m_random() % 600);
        factor = 1 + static_cast<int>(m_random() % 2);
    }

    QImage render() { return pie.getImageForPrinter(width, height, factor); }

    std::mt19937 m_random;
    CTestPie pie;
    int width;
    int height;
    int factor;
};

TEST_P(PieLaws, SpansAddUpToAFullCircle)
{
    (void)render();
    int sum = 0;
    for (const CPieBaseItem* item : pie.selectedItems())
        sum += item->spanAngle();
    EXPECT_EQ(sum, pie.selectedItems().empty() ? 0 : -5760);
}

TEST_P(PieLaws, ArrangedLabelsOfAHalfDoNotOverlap)
{
    (void)render();
    const double slot = pie.labelRect().height();
    std::list<double> halves[2];
    for (const CPieTextLabel* label : pie.labels()) {
        if (!label->isHidden())
            halves[label->isOnRightHalf() ? 1 : 0].push_back(label->lineEnd().y());
    }
    bool isMoved = false;
    for (const CPieTextLabel* label : pie.labels())
        isMoved = isMoved || label->isHidden() || label->lineEnd().y() != label->elbow().y();
    for (std::list<double>& half : halves) {
        half.sort();
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
    const QRect picture = render().rect();
    std::list<QRect> rects;
    pie.putItemRectangle(rects);
    for (const QRect& rect : rects)
        EXPECT_TRUE(rect.isNull() ||
                    (rect.top() >= picture.top() - 1 && rect.bottom() <= picture.bottom() + 1));
}

TEST_P(PieLaws, TwoRenderingsAreEqual)
{
    const QImage first = render();
    std::list<QRect> firstRects;
    pie.putItemRectangle(firstRects);
    EXPECT_EQ(render(), first);
    std::list<QRect> secondRects;
    pie.putItemRectangle(secondRects);
    EXPECT_EQ(secondRects, firstRects);
}

INSTANTIATE_TEST_SUITE_P(RandomCharts, PieLaws, testing::Range(0u, 60u));

} // namespace
} // namespace tovangl
