// SPDX-License-Identifier: MIT
/// @file
/// Labels of slices, made without a chart.
#ifndef TOVANGL_PIE_CTESTLABELS_H
#define TOVANGL_PIE_CTESTLABELS_H

#include "core/CPieBaseItem.h"
#include "pie/CPieTextLabel.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

namespace tovangl {

/// A slice's label with a priority of its own.
class CWeightedLabel : public CPieTextLabel
{
public:
    CWeightedLabel(CPieBaseItem* item, const QLocale* locale, int priority)
        : CPieTextLabel(item, locale, false)
        , m_priority(priority)
    {}
    [[nodiscard]] int getOverlapRemovalPriority() const override { return m_priority; }

private:
    int m_priority;
};

/// Where a label's line will end once its slot is found at height y, computed as the label does.
[[nodiscard]] inline QPointF arrangedLineEnd(const CPieTextLabel& label, double y, double radius)
{
    const double x = std::sqrt(std::max(0.0, radius * radius - y * y));
    return label.lineEnd() +
           QPointF((label.isOnRightHalf() ? x : -x) - label.elbow().x(), y - label.elbow().y());
}

/// Owns labels and what they point to.
class CTestLabels
{
public:
    static constexpr int kThreeOClock = 0;
    static constexpr int kNineOClock = 2880;

    /// A label whose slice has its middle at that angle.
    CPieTextLabel& addAtAngle(int arc, const char* text = "", bool withSize = false,
                              long long value = 1)
    {
        addItem(arc, text, value);
        m_labels.push_back(
            std::make_unique<CPieTextLabel>(m_items.back().get(), &m_locale, withSize));
        return *m_labels.back();
    }
    /// A label whose text line ends at height y. Its elbow is the pie's centre.
    CPieTextLabel& addAtHeight(double y, int arc = kThreeOClock, int priority = 1)
    {
        addItem(arc, "", 1);
        m_labels.push_back(
            std::make_unique<CWeightedLabel>(m_items.back().get(), &m_locale, priority));
        m_labels.back()->initPosition(0, 0);
        m_labels.back()->updateArrangedPosition(0, y);
        return *m_labels.back();
    }

    [[nodiscard]] CPieTextLabel& operator[](std::size_t index) { return *m_labels[index]; }
    [[nodiscard]] CPieBaseItem& item(std::size_t index) { return *m_items[index]; }
    [[nodiscard]] std::size_t size() const { return m_labels.size(); }

private:
    void addItem(int arc, const char* text, long long value)
    {
        m_items.push_back(std::make_unique<CPieBaseItem>(value, QString::fromUtf8(text), Qt::red));
        m_items.back()->setStartAngle(arc);
        m_items.back()->setSpanAngle(0);
    }

    QLocale m_locale = QLocale(QLocale::English, QLocale::UnitedStates);
    std::vector<std::unique_ptr<CPieBaseItem>> m_items;
    std::vector<std::unique_ptr<CPieTextLabel>> m_labels;
};

} // namespace tovangl

#endif
