// SPDX-License-Identifier: MIT
/// @file
/// An axis with labels of any size, and a painter, for tests of what all axes share.
#ifndef TOVANGL_AXES_CTESTAXIS_H
#define TOVANGL_AXES_CTESTAXIS_H

#include "axes/CAxis.h"
#include "labels/CBarTextLabel.h"
#include "support/chart_font.h"

#include <QImage>
#include <QLocale>
#include <QPainter>

#include <gtest/gtest.h>

namespace tovangl {

[[nodiscard]] inline const char* nameOf(CAxis::Orientation orientation)
{
    constexpr const char* kNames[] = {"LeftToRight", "RightToLeft", "BottomToTop", "TopToBottom"};
    return kNames[orientation];
}

[[nodiscard]] inline const char* nameOf(CAxis::LegendLocation location)
{
    constexpr const char* kNames[] = {"Top", "Bottom", "Left", "Right"};
    return kNames[location];
}

/// A label that says it has a certain size.
class CSizedLabel : public CBarTextLabel
{
public:
    CSizedLabel(const QString& text, const QSize& size)
        : CBarTextLabel(text, nullptr)
        , m_rect(QPoint(0, 0), size)
    {}
    QRect getBoundingRect(QPainter&) override { return m_rect; }
    [[nodiscard]] QRect getBoundingRect() const override { return m_rect; }

private:
    QRect m_rect;
};

/// An axis whose ticks stand where the test puts them.
class CTestAxis : public CAxis
{
public:
    explicit CTestAxis(Orientation orientation = LeftToRight, LegendLocation location = Bottom,
                       Properties properties = Properties(ShowLine | ShowLabels),
                       const QString& title = QString())
        : CAxis(orientation, location, properties, &locale(), title)
    {}

    void placeAcrossLabels() override { placeLabels(); }
    void placeAlongLabels() override { placeLabels(); }
    void initAfterAxisLength() override { ++lengthsSet; }
    [[nodiscard]] int labelShiftAtBegin() const override { return shiftAtBegin(labelDirection()); }
    [[nodiscard]] int labelShiftAtEnd() const override { return shiftAtEnd(labelDirection()); }

    void addLabel(const QSize& size, const QString& text = QString("x"))
    {
        appendLabel(std::make_unique<CSizedLabel>(text, size));
    }
    void addLabels(int count, const QSize& size)
    {
        for (int i = 0; i < count; ++i)
            addLabel(size);
    }
    /// Puts the tick of every label so many pixels after the one before.
    void placeLabels()
    {
        int tick = 0;
        for (CBarTextLabel* label : m_labels) {
            label->setTickCoord(tick);
            label->setOrientedPos(COrientedCoord(tick, 0));
            tick += tickDistance;
        }
    }
    [[nodiscard]] CBarTextLabel* label(std::size_t index) const { return m_labels[index]; }
    [[nodiscard]] std::vector<std::size_t> shownLabels() const
    {
        std::vector<std::size_t> shown;
        for (std::size_t i = 0; i < m_labels.size(); ++i) {
            if (!m_labels[i]->isHidden())
                shown.push_back(i);
        }
        return shown;
    }

    static const QLocale& locale()
    {
        static const QLocale english(QLocale::English, QLocale::UnitedStates);
        return english;
    }

    int tickDistance = 0;
    int lengthsSet = 0;
    std::function<int(LabelDirection)> shiftAtBegin = [](LabelDirection) { return 0; };
    std::function<int(LabelDirection)> shiftAtEnd = [](LabelDirection) { return 0; };
};

/// A white picture and a painter with the charts' default font.
class CAxisPicture : public ::testing::Test
{
protected:
    CAxisPicture()
        : image(400, 300, QImage::Format_ARGB32)
    {
        image.fill(kWhite);
        painter.begin(&image);
        painter.setFont(chartFont("Tahoma", 11));
    }

    static constexpr QRgb kWhite = 0xffffffff;
    static constexpr QRgb kBlack = 0xff000000;

    /// The smallest rectangle around all pixels of a colour.
    [[nodiscard]] QRect extentOf(QRgb color) const
    {
        QRect extent;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) == color)
                    extent |= QRect(x, y, 1, 1);
            }
        }
        return extent;
    }

    QImage image;
    QPainter painter;
};

} // namespace tovangl

#endif
