// SPDX-License-Identifier: MIT
/// @file
/// The smallest chart there is, for tests of what all charts share.
#ifndef TOVANGL_SUPPORT_CTESTCHART_H
#define TOVANGL_SUPPORT_CTESTCHART_H

#include "core/CBarGraphItem.h"
#include "core/CGraph1d.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QString>

#include <functional>
#include <iterator>
#include <vector>

namespace tovangl {

/// A bar chart whose contents are whatever the test draws. It counts the calls of its virtual
/// operations and shows what is protected.
class CTestChart : public CGraph1d<CBarGraphItem>
{
public:
    using Contents = std::function<void(QPainter&)>;

    explicit CTestChart(Contents contents = Contents())
        : m_contents(std::move(contents))
    {}

    void drawContents(QPainter& painter) override
    {
        ++drawings;
        if (m_contents)
            m_contents(painter);
    }
    void selectItems() override
    {
        ++selections;
        CGraph1d::selectItems();
    }
    void initDefaultColor() override
    {
        ++palettes;
        CGraph1d::initDefaultColor();
    }
    QImage getImage(int width, int height) override
    {
        ++images;
        return CGraph1d::getImage(width, height);
    }
    QPixmap getPixmap(int width, int height) override
    {
        ++pixmaps;
        return CGraph1d::getPixmap(width, height);
    }

    bool add(long long value, const char* text = "", const QColor& color = QColor())
    {
        return addItem(value, QString::fromUtf8(text), color);
    }
    [[nodiscard]] CBarGraphItem* item(int index) const
    {
        return *std::next(m_items.begin(), index);
    }
    [[nodiscard]] std::vector<long long> selectedValues() const
    {
        std::vector<long long> values;
        for (const CBarGraphItem* chosen : m_selectedItems)
            values.push_back(chosen->value());
        return values;
    }
    void setScale(int scale) { m_scale = scale; }
    void setOutputDevice(OutputDevice device) { m_outputDevice = device; }

    int drawings = 0;
    int selections = 0;
    int palettes = 0;
    int images = 0;
    int pixmaps = 0;

private:
    Contents m_contents;
};

} // namespace tovangl

#endif
