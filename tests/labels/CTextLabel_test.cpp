// SPDX-License-Identifier: MIT
// What a label knows: defaults, measuring, and where it was drawn.
#include "core/CBarGraphItem.h"
#include "core/qt_versions.h"
#include "draw/CPainterSaver.h"
#include "labels/CTextLabel.h"
#include "support/chart_font.h"

#include <QImage>
#include <QLocale>
#include <QPainter>
#include <QTextOption>

#include <gtest/gtest.h>
#include <limits>

namespace tovangl {
namespace {

const QLocale kLocale(QLocale::English, QLocale::UnitedStates);

template <typename P, typename R>
class CLabel : public CTextLabel<P, R>
{
public:
    using CTextLabel<P, R>::CTextLabel;
    void setText(const char* text) { this->m_text = QString::fromUtf8(text); }
};

using PixelLabel = CLabel<QPoint, QRect>;
using PieLabel = CLabel<QPointF, QRectF>;

class TextLabel : public ::testing::Test
{
protected:
    TextLabel() { m_painter.setFont(chartFont("DejaVu Sans", 12)); }

    template <typename Label, typename R>
    QRect recorded(const R& rect, bool rotated)
    {
        Label label(&m_item, &kLocale);
        label.setRotated(rotated);
        label.draw(m_painter, rect, QTextOption());
        return m_item.itemRect();
    }

    CBarGraphItem m_item{1, QString("caption"), Qt::red};
    QImage m_image = QImage(100, 100, QImage::Format_ARGB32);
    QPainter m_painter{&m_image};
};

TEST_F(TextLabel, StartsPlainVisibleUprightAndBlack)
{
    const PixelLabel label(QString("text"), &kLocale);
    EXPECT_FALSE(label.isBold());
    EXPECT_FALSE(label.isShortFromLeft());
    EXPECT_FALSE(label.isHidden());
    EXPECT_FALSE(label.isRotated());
    EXPECT_EQ(label.scale(), 1);
    EXPECT_EQ(label.color(), QColor(Qt::black));
    EXPECT_EQ(label.position(), QPoint(0, 0));
}

TEST_F(TextLabel, StartsUnmeasured)
{
    EXPECT_EQ(PixelLabel(QString("text"), &kLocale).getBoundingRect(), QRect());
    EXPECT_EQ(PieLabel(QString("text"), &kLocale).getBoundingRect(), QRectF());
}

TEST_F(TextLabel, WithoutAnythingIsEmpty)
{
    const PieLabel label(&kLocale);
    EXPECT_EQ(label.getText(), QString());
    EXPECT_EQ(label.getItem(), nullptr);
    EXPECT_EQ(label.getValue(), 0);
}

TEST_F(TextLabel, OfNoItemIsEmpty)
{
    const PieLabel label(static_cast<CGraph1dItem*>(nullptr), &kLocale);
    EXPECT_EQ(label.getText(), QString());
}

TEST_F(TextLabel, EveryLabelHasTheSamePriorityDeliberately)
{
    EXPECT_EQ(PixelLabel(QString("a"), &kLocale).getOverlapRemovalPriority(), 1);
    EXPECT_EQ(PieLabel(QString("b"), &kLocale).getOverlapRemovalPriority(), 1);
}

TEST_F(TextLabel, DebugIsTheText)
{
    EXPECT_EQ(PixelLabel(QString("text"), &kLocale).debug(), QString("text"));
}

TEST_F(TextLabel, NumbersAreWrittenInTheProcesssKilo)
{
    const PieLabel label(&kLocale);
    EXPECT_EQ(label.numberToText(150000, PrefixedOneDecimal), QString("146 K"));
    const PieLabel number(150000, PrefixedOneDecimal, &kLocale);
    EXPECT_EQ(number.getText(), QString("146 K"));
    EXPECT_EQ(number.getValue(), 150000);
}

TEST_F(TextLabel, IsMeasuredAtTheOrigin)
{
    PixelLabel label(QString("text"), &kLocale);
    const QRect rect = label.getBoundingRect(m_painter);
    EXPECT_EQ(rect, qt::measureText(m_painter, QRect(), QString("text")));
    EXPECT_EQ(rect.topLeft(), QPoint(0, 0));
    EXPECT_EQ(label.getBoundingRect(), rect);
}

TEST_F(TextLabel, InFractionsIsMeasuredInFractions)
{
    PieLabel label(QString("text"), &kLocale);
    EXPECT_EQ(label.getBoundingRect(m_painter),
              qt::measureText(m_painter, QRectF(), QString("text")));
}

TEST_F(TextLabel, IsMeasuredWithoutItsAlignmentDeliberately)
{
    PixelLabel label(QString("one\ntwo\nthree"), &kLocale);
    PixelLabel line(QString("three"), &kLocale);
    EXPECT_EQ(label.getBoundingRect(m_painter).width(), line.getBoundingRect(m_painter).width());
    EXPECT_GT(label.getBoundingRect(m_painter).height(),
              2 * line.getBoundingRect(m_painter).height());
}

TEST_F(TextLabel, IsMeasuredOnceEvenIfItsTextChanges)
{
    PixelLabel label(QString("text"), &kLocale);
    const QRect first = label.getBoundingRect(m_painter);
    label.setText("a much longer text");
    label.setBold(true);
    EXPECT_EQ(label.getBoundingRect(m_painter), first);
}

TEST_F(TextLabel, IsMeasuredBoldWhereItIsBold)
{
    PixelLabel plain(QString("text"), &kLocale);
    PixelLabel bold(QString("text"), &kLocale);
    bold.setBold(true);
    const QFont before = m_painter.font();
    EXPECT_GT(bold.getBoundingRect(m_painter).width(), plain.getBoundingRect(m_painter).width());
    EXPECT_EQ(m_painter.font(), before);
}

TEST_F(TextLabel, AdjustedTextIsShortenedAtTheEnd)
{
    const PixelLabel label(QString("a long caption"), &kLocale);
    const QString adjusted = label.getAdjustedText(label.getText(), 50, m_painter);
    EXPECT_TRUE(adjusted.startsWith(QString("a lo"))) << adjusted.toStdString();
    EXPECT_TRUE(adjusted.endsWith(QString("...")));
}

TEST_F(TextLabel, AdjustedTextIsShortenedAtTheBeginningWhereAsked)
{
    PixelLabel label(QString("a long caption"), &kLocale);
    label.setShortFromLeft(true);
    const QString adjusted = label.getAdjustedText(label.getText(), 50, m_painter);
    EXPECT_TRUE(adjusted.startsWith(QString("...")));
    EXPECT_TRUE(adjusted.endsWith(QString("tion"))) << adjusted.toStdString();
}

TEST_F(TextLabel, AdjustedTextStaysWholeWhereNothingFits)
{
    const PixelLabel label(QString("a long caption "), &kLocale);
    EXPECT_EQ(label.getAdjustedText(label.getText(), 3, m_painter), QString("a long caption "));
}

TEST_F(TextLabel, RecordsItsRectangleOnTheItem)
{
    EXPECT_EQ(recorded<PixelLabel>(QRect(10, 20, 50, 15), false), QRect(10, 20, 50, 15));
    EXPECT_EQ(recorded<PieLabel>(QRectF(10, 20, 50, 15), false), QRect(10, 20, 50, 15));
}

TEST_F(TextLabel, RecordsImagePixelsWithTheTranslationTruncatedTowardZero)
{
    const CPainterSaver saver(m_painter);
    m_painter.translate(7.9, -3.9);
    EXPECT_EQ(recorded<PixelLabel>(QRect(10, 20, 50, 15), false), QRect(17, 17, 50, 15));
    EXPECT_EQ(recorded<PieLabel>(QRectF(10, 20, 50, 15), false), QRect(17, 17, 50, 15));
}

TEST_F(TextLabel, ATurnedLabelRecordsWhatItsTextCovers)
{
    // Room 50 wide and 15 high: the text covers 15 pixels to the right and 50 upward.
    EXPECT_EQ(recorded<PixelLabel>(QRect(10, 80, 50, 15), true),
              QRect(QPoint(10, 30), QPoint(24, 79)));
    EXPECT_EQ(recorded<PieLabel>(QRectF(10, 80, 50, 15), true), QRect(10, 30, 15, 50));
}

TEST_F(TextLabel, FractionsAreRoundedHalvesAwayFromZero)
{
    EXPECT_EQ(recorded<PieLabel>(QRectF(10.5, 20.4, 49.5, 15.4), false), QRect(11, 20, 50, 15));
    EXPECT_EQ(recorded<PieLabel>(QRectF(-10.5, -0.5, 20.6, 9.5), false), QRect(-11, -1, 21, 10));
}

TEST_F(TextLabel, AHiddenLabelClearsTheRectangleOfItsItem)
{
    m_item.setItemRect(QRect(1, 2, 3, 4));
    PixelLabel label(&m_item, &kLocale);
    label.setHidden(true);
    label.draw(m_painter, QRect(10, 20, 50, 15), QTextOption());
    EXPECT_EQ(m_item.itemRect(), QRect());
}

TEST_F(TextLabel, AnInvalidRectangleIsRecordedThoughNothingIsDrawn)
{
    const QRect invalid(QPoint(10, 20), QPoint(5, 30));
    EXPECT_EQ(recorded<PixelLabel>(invalid, false), invalid);
}

TEST_F(TextLabel, WithoutAnItemRecordsNothing)
{
    PixelLabel label(QString("text"), &kLocale);
    label.draw(m_painter, QRect(10, 20, 50, 15), QTextOption());
    EXPECT_EQ(m_item.itemRect(), QRect());
}

TEST_F(TextLabel, RectanglesAtTheEndsOfIntDoNotWrap)
{
    constexpr int kMost = std::numeric_limits<int>::max();
    constexpr int kLeast = std::numeric_limits<int>::min();
    const QRect all(QPoint(kLeast, kLeast), QPoint(kMost, kMost));
    m_painter.translate(5, 5);
    EXPECT_EQ(recorded<PixelLabel>(all, false),
              QRect(QPoint(kLeast + 5, kLeast + 5), QPoint(kMost, kMost)));
    EXPECT_EQ(recorded<PixelLabel>(all, true).top(), kLeast);
    EXPECT_EQ(recorded<PieLabel>(QRectF(-1e300, -1e300, 2e300, 2e300), false).left(), kLeast);
}

} // namespace
} // namespace tovangl
