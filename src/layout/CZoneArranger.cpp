// SPDX-License-Identifier: MIT
// Moves the labels of one half of a pie apart.
#include "layout/CZoneArranger.h"

#include <iterator>
#include <utility>

namespace tovangl {

CZoneArranger::CZoneArranger(const CZoneRange& range, double height)
    : m_range(range)
    , m_height(height)
{
    checkAllPairs();
}

void CZoneArranger::addZoneBack(std::size_t label, double y)
{
    m_zones.push_back(&m_made.emplace_back(label, y));
}

void CZoneArranger::addZoneFront(std::size_t label, double y)
{
    m_zones.push_front(&m_made.emplace_back(label, y));
}

std::vector<CArrangedLabel> CZoneArranger::arrange(double radius)
{
    reduceZones();
    checkAllPairs();
    // Deliberate: the passes take turns, so that they merge the topmost and the bottommost
    // overlapping pair alternately.
    while (processZonesForward() && processZonesBackward()) {
    }
    updateLabels(radius);
    return std::move(m_arranged);
}

// Hides the topmost labels until the others fit.
void CZoneArranger::reduceZones()
{
    std::size_t surplus = countSurplusSlots(m_zones.size(), m_height, m_range);
    for (; surplus > 0; --surplus) {
        m_arranged.push_back({m_zones.front()->label, std::nullopt});
        m_zones.pop_front();
    }
}

// Merges the topmost overlapping pair. Returns whether there was one.
bool CZoneArranger::processZonesForward()
{
    for (; m_firstUnchecked != m_lastUnchecked; ++m_firstUnchecked) {
        if (isOverlapAt(m_firstUnchecked)) {
            mergeAt(m_firstUnchecked);
            return true;
        }
    }
    return false;
}

// Merges the bottommost overlapping pair. Returns whether there was one.
bool CZoneArranger::processZonesBackward()
{
    for (; m_lastUnchecked != m_firstUnchecked; --m_lastUnchecked) {
        const auto upper = std::prev(m_lastUnchecked);
        if (isOverlapAt(upper)) {
            mergeAt(upper);
            return true;
        }
    }
    return false;
}

void CZoneArranger::updateLabels(double radius)
{
    for (const CZone* zone : m_zones)
        updateLabel(*zone, zone->block.top(m_height), radius);
}

// Assigns a block's slots to its labels. An explicit stack replaces recursion, because merged zones
// can be nested as deep as there are labels.
void CZoneArranger::updateLabel(const CZone& zone, double top, double radius)
{
    std::vector<std::pair<const CZone*, double>> waiting{{&zone, top}};
    while (!waiting.empty()) {
        const auto [part, partTop] = waiting.back();
        waiting.pop_back();
        if (part->isMerged()) {
            const double middle = partTop + part->parent1->block.count * m_height;
            waiting.emplace_back(part->parent2, middle);
            waiting.emplace_back(part->parent1, partTop);
        } else {
            const double y = partTop + 0.5 * m_height;
            m_arranged.push_back({part->label, QPointF(circleX(radius, y), y)});
        }
    }
}

void CZoneArranger::checkAllPairs()
{
    m_firstUnchecked = m_zones.begin();
    m_lastUnchecked = m_zones.empty() ? m_zones.begin() : std::prev(m_zones.end());
}

bool CZoneArranger::isOverlapAt(Zones::const_iterator upper) const
{
    return isOverlap((*upper)->block, (*std::next(upper))->block, m_height);
}

// Merges a zone with the one below it. The new zone's overlaps with its neighbours above and below
// are then unknown.
void CZoneArranger::mergeAt(Zones::iterator upper)
{
    const auto lower = std::next(upper);
    *upper = &m_made.emplace_back(**upper, **lower, m_height, m_range);

    if (m_lastUnchecked == lower) {
        const auto below = std::next(lower);
        m_lastUnchecked = below == m_zones.end() ? upper : below;
    }
    if (m_firstUnchecked == upper && upper != m_zones.begin())
        m_firstUnchecked = std::prev(upper);
    m_zones.erase(lower);
}

} // namespace tovangl
