// SPDX-License-Identifier: MIT
// One label's slot, or a block of slots made of two zones.
#include "pie/CZone.h"

#include "pie/CPieTextLabel.h"

#include <utility>

namespace tovangl {

CZone::CZone(CPieTextLabel* label)
    : m_avg(label->lineEnd().y())
    , m_weight(label->getOverlapRemovalPriority())
    , m_label(label)
{}

CZone::CZone(CZone* upper, CZone* lower, double height, double min, double max)
    : m_parent1(upper)
    , m_parent2(lower)
{
    const CZoneBlock merged =
        mergeBlocks(upper->block(), lower->block(), height, CZoneRange{min, max});
    m_avg = merged.avg;
    m_count = merged.count;
    m_shift = merged.shift;
}

CZone::~CZone()
{
    destroyTree(std::exchange(m_parent1, nullptr));
    destroyTree(std::exchange(m_parent2, nullptr));
}

// Turns the tree into a chain along m_parent2, one rotation at a time, and deletes the chain's
// zones once they have no parts left. It needs no memory and no depth.
void CZone::destroyTree(CZone* zone)
{
    while (zone) {
        if (CZone* upper = zone->m_parent1) {
            zone->m_parent1 = std::exchange(upper->m_parent2, zone);
            zone = upper;
        } else {
            CZone* next = std::exchange(zone->m_parent2, nullptr);
            delete zone;
            zone = next;
        }
    }
}

bool CZone::compareZones(const CZone* a, const CZone* b)
{
    return a->m_weight < b->m_weight;
}

} // namespace tovangl
