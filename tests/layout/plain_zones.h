// SPDX-License-Identifier: MIT
/// @file
/// The arrangement of labels in its plainest form: every pass begins at the end of the list, labels
/// are hidden one by one, and zones are handed down by recursion. What the arranger does must give
/// exactly the same.
#ifndef TOVANGL_LAYOUT_PLAIN_ZONES_H
#define TOVANGL_LAYOUT_PLAIN_ZONES_H

#include <cmath>
#include <list>
#include <memory>
#include <utility>
#include <vector>

namespace tovangl {

struct CPlainLabel
{
    double y = 0;
    bool hidden = false;
};

class CPlainArranger
{
public:
    enum Passes
    {
        InTurns,
        ForwardOnly
    };

    CPlainArranger(double min, double max, double height, Passes passes = InTurns)
        : m_min(min)
        , m_max(max)
        , m_height(height)
        , m_passes(passes)
    {}

    /// Takes labels from top to bottom; afterwards y is the centre of each one's slot.
    void arrange(std::vector<CPlainLabel>& labels)
    {
        for (CPlainLabel& label : labels)
            m_zones.push_back(std::make_shared<CPlainZone>(&label));
        reduceZones();
        while (mergeFirst(true) && mergeFirst(m_passes == ForwardOnly)) {
        }
        for (const Zone& zone : m_zones)
            handDown(*zone, zone->avg - zone->count * m_height * 0.5 + zone->shift);
    }

private:
    struct CPlainZone
    {
        explicit CPlainZone(CPlainLabel* l)
            : avg(l->y)
            , label(l)
        {}
        double avg;
        int count = 1;
        double shift = 0;
        CPlainLabel* label;
        std::shared_ptr<CPlainZone> upper, lower;
    };
    using Zone = std::shared_ptr<CPlainZone>;

    void reduceZones()
    {
        const double range = std::fabs(m_max - m_min);
        while (!m_zones.empty() && static_cast<double>(m_zones.size()) * m_height >= range) {
            m_zones.front()->label->hidden = true;
            m_zones.pop_front();
        }
    }

    [[nodiscard]] bool overlaps(const CPlainZone& upper, const CPlainZone& lower) const
    {
        const double bottom = upper.avg + upper.count * m_height / 2 + upper.shift;
        const double top = lower.avg - lower.count * m_height / 2 + lower.shift;
        return bottom >= top;
    }

    bool mergeFirst(bool forward)
    {
        std::vector<std::list<Zone>::iterator> order;
        for (auto zone = m_zones.begin(); zone != m_zones.end(); ++zone)
            order.push_back(zone);
        for (std::size_t i = 1; i < order.size(); ++i) {
            const std::size_t lower = forward ? i : order.size() - i;
            if (overlaps(**order[lower - 1], **order[lower])) {
                merge(order[lower - 1], order[lower]);
                return true;
            }
        }
        return false;
    }

    void merge(std::list<Zone>::iterator upper, std::list<Zone>::iterator lower)
    {
        auto merged = std::make_shared<CPlainZone>(**upper);
        merged->label = nullptr;
        merged->upper = *upper;
        merged->lower = *lower;
        merged->count = (*upper)->count + (*lower)->count;
        merged->avg =
            ((*upper)->count * (*upper)->avg + (*lower)->count * (*lower)->avg) / merged->count;
        const double size = m_height * merged->count;
        const double top = merged->avg - size / 2;
        merged->shift = 0;
        if (m_min > top)
            merged->shift = m_min - top;
        else if (top + size > m_max)
            merged->shift = m_max - (top + size);
        m_zones.insert(upper, merged);
        m_zones.erase(upper);
        m_zones.erase(lower);
    }

    void handDown(CPlainZone& zone, double top)
    {
        if (zone.label) {
            zone.label->y = top + 0.5 * m_height;
            return;
        }
        handDown(*zone.upper, top);
        handDown(*zone.lower, top + zone.upper->count * m_height);
    }

    double m_min, m_max, m_height;
    Passes m_passes;
    std::list<Zone> m_zones;
};

} // namespace tovangl

#endif
