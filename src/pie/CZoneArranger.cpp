// SPDX-License-Identifier: MIT
// Moves the labels of one half of a pie apart.
#include "pie/CZoneArranger.h"

#include "pie/CPieTextLabel.h"
#include "pie/CZone.h"
#include "pie/zone_arithmetic.h"

#include <QtDebug>

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

namespace tovangl {

CZoneArranger::CZoneArranger(CPieGraph*, double min, double max, double height)
    : m_min(min)
    , m_max(max)
    , m_height(height)
{
    checkAllPairs();
}

CZoneArranger::~CZoneArranger()
{
    qDeleteAll(m_zones);
    m_zones.clear();
}

void CZoneArranger::addZoneBack(CPieTextLabel* label)
{
    auto zone = std::make_unique<CZone>(label);
    m_zones.push_back(zone.get());
    zone.release();
    checkAllPairs();
}

void CZoneArranger::addZoneFront(CPieTextLabel* label)
{
    auto zone = std::make_unique<CZone>(label);
    m_zones.push_front(zone.get());
    zone.release();
    checkAllPairs();
}

void CZoneArranger::arrange(double radius)
{
    reduceZones();
    // Deliberate: the passes take turns, so that the topmost and the bottommost overlapping pair
    // are merged alternately.
    while (processZonesForward() && processZonesBackward()) {
    }
    updateLabels(radius);
}

// Hides the lightest labels, and of equally light ones the topmost, until the rest fits.
void CZoneArranger::reduceZones()
{
    const std::size_t surplus =
        countSurplusSlots(m_zones.size(), m_height, CZoneRange{m_min, m_max});
    if (surplus == 0)
        return;

    std::vector<Zones::iterator> order;
    order.reserve(m_zones.size());
    for (auto zone = m_zones.begin(); zone != m_zones.end(); ++zone)
        order.push_back(zone);
    std::stable_sort(order.begin(), order.end(), [](Zones::iterator a, Zones::iterator b) {
        return CZone::compareZones(*a, *b);
    });

    for (std::size_t i = 0; i < surplus; ++i) {
        (*order[i])->label()->setHidden(true);
        delete *order[i];
        m_zones.erase(order[i]);
    }
    checkAllPairs();
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

void CZoneArranger::updateLabels(double radius) const
{
    for (CZone* zone : m_zones)
        updateLabel(zone, zone->block().top(m_height), radius);
}

// Hands a block down to its labels, slot by slot. The zones that wait are kept beside, not in the
// calls: merged zones may be nested as deep as there are labels.
void CZoneArranger::updateLabel(CZone* zone, double top, double radius) const
{
    std::vector<std::pair<CZone*, double>> waiting{{zone, top}};
    while (!waiting.empty()) {
        const auto [part, partTop] = waiting.back();
        waiting.pop_back();
        if (part->isMerged()) {
            const double middle = partTop + part->parent1()->count() * m_height;
            waiting.emplace_back(part->parent2(), middle);
            waiting.emplace_back(part->parent1(), partTop);
        } else {
            CPieTextLabel* label = part->label();
            const double y = partTop + 0.5 * m_height;
            const double x = circleX(radius, y);
            label->updateArrangedPosition(label->isOnRightHalf() ? x : -x, y);
        }
    }
}

void CZoneArranger::debugZones() const
{
    qDebug("debugZones()");
    int index = 0;
    for (const CZone* zone : m_zones) {
        const QString line = QString(QLatin1String("%1: avg %2, weight %3"))
                                 .arg(index++)
                                 .arg(zone->avg())
                                 .arg(zone->weight());
        qDebug("%s", line.toUtf8().constData());
        if (zone->isMerged())
            qDebug("parent zone: avg %g\nparent zone: avg %g", zone->parent1()->avg(),
                   zone->parent2()->avg());
    }
}

void CZoneArranger::checkAllPairs()
{
    m_firstUnchecked = m_zones.begin();
    m_lastUnchecked = m_zones.empty() ? m_zones.begin() : std::prev(m_zones.end());
}

bool CZoneArranger::isOverlapAt(Zones::const_iterator upper) const
{
    return isOverlap((*upper)->block(), (*std::next(upper))->block(), m_height);
}

// Puts one zone in the place of a zone and the one below it. That makes the new zone's own pairs,
// with the neighbours above and below, unknown.
void CZoneArranger::mergeAt(Zones::iterator upper)
{
    const auto lower = std::next(upper);
    *upper = new CZone(*upper, *lower, m_height, m_min, m_max);

    if (m_lastUnchecked == lower) {
        const auto below = std::next(lower);
        m_lastUnchecked = below == m_zones.end() ? upper : below;
    }
    if (m_firstUnchecked == upper && upper != m_zones.begin())
        m_firstUnchecked = std::prev(upper);
    m_zones.erase(lower);
}

} // namespace tovangl
