// SPDX-License-Identifier: MIT
// What fitting a huge text costs, counted in characters that are measured.
#include "support/chart_font.h"
#include "text/text_fitting.h"

#include <QImage>
#include <QPainter>
#include <QStringList>

#include <gtest/gtest.h>

namespace tovangl {
namespace cdraw {
namespace {

constexpr int kHugeText = 10000000; // UTF-16 units
// Four times the longest measured text, and the budget of one cut.
constexpr long long kMostMeasured = 8LL << 16;

struct CHugeCase
{
    const char* name;
    QString beginning;
    QString repeated;
};

std::ostream& operator<<(std::ostream& stream, const CHugeCase& huge)
{
    return stream << huge.name;
}

QString hugeText(const CHugeCase& huge)
{
    const int count = kHugeText / static_cast<int>(huge.repeated.size()) + 1;
    return (huge.beginning + huge.repeated.repeated(count)).left(kHugeText);
}

class HugeText : public ::testing::TestWithParam<CHugeCase>
{
protected:
    HugeText() { m_painter.setFont(chartFont("DejaVu Sans", 12)); }

    double measure(const QString& text)
    {
        m_measured += text.size();
        return m_painter.boundingRect(QRectF(), 0, text).width();
    }

    // Rooms in which the beginning just fits, fits without the ellipsis, and does not fit.
    void fitIntoSeveralRooms(bool fromLeft)
    {
        const QString text = hugeText(GetParam());
        const double beginning = measure(GetParam().beginning);
        for (const double room : {beginning + 40, beginning + 3, beginning - 3, 150.0}) {
            m_measured = 0;
            const CFittedText result =
                shortenText(text, room, fromLeft, kStripSpaces,
                            [this](const QString& part) { return measure(part); });
            EXPECT_LE(m_measured, kMostMeasured) << room;
            EXPECT_TRUE(!result.fits || measure(measuredPart(result.text)) <= room + 0.01) << room;
        }
    }

    long long m_measured = 0;
    QImage m_image = QImage(10, 10, QImage::Format_ARGB32);
    QPainter m_painter{&m_image};
};

TEST_P(HugeText, CutAtTheEndMeasuresABoundedPart)
{
    fitIntoSeveralRooms(kFromRight);
}

TEST_P(HugeText, CutAtTheBeginningMeasuresABoundedPart)
{
    fitIntoSeveralRooms(kFromLeft);
}

// A scale may have a hundred thousand numbers, of which none fits whole.
TEST(CanShortenText, MeasuresOneCharacterAndTheEllipsisWhereACutFits)
{
    QStringList measured;
    const auto measure = [&measured](const QString& text) {
        measured << text;
        return 10.0 * static_cast<double>(text.size());
    };
    EXPECT_TRUE(canShortenText(QString("-99,990"), 40, kFromRight, kStripSpaces, measure));
    EXPECT_EQ(measured, QStringList({"-", "..."}));
}

INSTANTIATE_TEST_SUITE_P(
    ShortenText, HugeText,
    ::testing::Values(CHugeCase{"OneLine", "begin ", "x"}, CHugeCase{"Words", "begin ", "word "},
                      CHugeCase{"Spaces", "begin", " "}, CHugeCase{"Lines", "wwwwww\n", "x\n"},
                      CHugeCase{"EmptyLines", "wwwwww", "\n"},
                      CHugeCase{"Marks", "wwwwww", QString(QChar(0x301))},
                      CHugeCase{"MarksOnLetters", "wwwwww", QString("e") + QChar(0x301)},
                      CHugeCase{"Joiners", "wwwwww", QString(QChar(0x200d))},
                      CHugeCase{"Overrides", "wwwwww", QString(QChar(0x202e))},
                      CHugeCase{"Variants", "wwwwww", QString("x") + QChar(0x9c)},
                      CHugeCase{"Separators", "wwwwww", QString(QChar(0x9c))},
                      CHugeCase{"Surrogates", "wwwwww", QString(QChar(0xd83d))},
                      CHugeCase{"Nulls", "wwwwww", QString(1, QChar(0))},
                      CHugeCase{"LateWidth", QString(60000, QChar(0x200d)), "word "}),
    [](const ::testing::TestParamInfo<CHugeCase>& info) { return info.param.name; });

} // namespace
} // namespace cdraw
} // namespace tovangl
