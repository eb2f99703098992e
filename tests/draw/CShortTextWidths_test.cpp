// SPDX-License-Identifier: MIT
#include "draw/CShortTextWidths.h"
#include "draw/text_fitting.h"
#include "support/chart_font.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace tovangl {
namespace cdraw {
namespace {

class ShortTextWidths : public ::testing::Test
{
protected:
    ShortTextWidths() { setSize(12); }

    void setSize(int pixels) { m_painter.setFont(chartFont("DejaVu Sans", pixels)); }
    double measured(const QString& text)
    {
        return m_painter.boundingRect(QRectF(), 0, text).width();
    }
    double remembered(const QString& text) { return CShortTextWidths::widthOf(text, m_painter); }

    QImage m_image = QImage(10, 10, QImage::Format_ARGB32);
    QPainter m_painter{&m_image};
};

TEST_F(ShortTextWidths, AreThoseOfThePainter)
{
    const CShortTextWidths widths;
    for (const char* text : {"...", "M", "i", "", "longer than one", "M", "..."})
        EXPECT_EQ(remembered(QString(text)), measured(QString(text))) << text;
}

TEST_F(ShortTextWidths, AreMeasuredWhereNoneAreRemembered)
{
    EXPECT_EQ(remembered(QString("M")), measured(QString("M")));
}

TEST_F(ShortTextWidths, AreKeptApartByFont)
{
    const CShortTextWidths widths;
    const double small = remembered(ellipsis());
    setSize(24);
    EXPECT_EQ(remembered(ellipsis()), measured(ellipsis()));
    EXPECT_GT(remembered(ellipsis()), small);
    setSize(12);
    EXPECT_EQ(remembered(ellipsis()), small);
}

TEST_F(ShortTextWidths, OuterOnesServeAgainAfterInnerOnes)
{
    const CShortTextWidths outer;
    {
        const CShortTextWidths inner;
        EXPECT_EQ(remembered(ellipsis()), measured(ellipsis()));
    }
    EXPECT_EQ(remembered(ellipsis()), measured(ellipsis()));
}

} // namespace
} // namespace cdraw
} // namespace tovangl
