// SPDX-License-Identifier: MIT
/// @file
/// A pie that shows what is protected, and the labels of one that was laid out.
#ifndef TOVANGL_PIE_CTESTPIE_H
#define TOVANGL_PIE_CTESTPIE_H

#include "pie/CPieGraph.h"
#include "pie/CPieTextLabel.h"

#include <QImage>
#include <QPainter>
#include <QString>

#include <iterator>
#include <vector>

namespace tovangl {

class CTestPie : public CPieGraph
{
public:
    explicit CTestPie(bool background = false)
        : CPieGraph(background)
    {
        setFont(QString(QLatin1String("DejaVu Sans")), 11);
    }

    void add(long long value, const char* text = "", const QColor& color = QColor())
    {
        addItem(value, QString::fromUtf8(text), color);
    }
    void addEqual(int count, const char* text = "")
    {
        for (int i = 0; i < count; ++i)
            add(1, text);
    }
    [[nodiscard]] CPieBaseItem* item(int index) const { return *std::next(m_items.begin(), index); }
    [[nodiscard]] CPieTextLabel* label(int index) const
    {
        return *std::next(labels().begin(), index);
    }

    /// Draws the pie and returns whether it fits.
    bool fitsInto(int width, int height)
    {
        (void)getImage(width, height);
        QPainter painter(&m_surface);
        initPainter(painter);
        return computeLayout(painter);
    }

    [[nodiscard]] std::vector<long long> selectedValues() const
    {
        std::vector<long long> values;
        for (const CPieBaseItem* chosen : m_selectedItems)
            values.push_back(chosen->value());
        return values;
    }
    void setStartAngle(int degrees) { m_startAngle = degrees; }
    void setDirection(int direction) { m_direction = direction; }
    [[nodiscard]] int margin() const { return m_margin; }
    [[nodiscard]] int startAngle() const { return m_startAngle; }
    [[nodiscard]] int direction() const { return m_direction; }

private:
    QImage m_surface = QImage(8, 8, QImage::Format_ARGB32);
};

} // namespace tovangl

#endif
