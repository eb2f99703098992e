// SPDX-License-Identifier: MIT
/// @file
/// One label's slot, or a block of slots made of two zones.
#ifndef TOVANGL_PIE_CZONE_H
#define TOVANGL_PIE_CZONE_H

#include "pie/zone_arithmetic.h"

#include <QtGlobal>

namespace tovangl {

class CPieTextLabel;

/// A vertical block of label slots. A merged zone keeps its two parts, so that the block can be
/// handed back down to the labels.
class CZone
{
public:
    /// A zone of one slot, centred on the end of the label's text line. The label is borrowed.
    explicit CZone(CPieTextLabel* label);
    /// The zone that takes the place of two neighbours. It owns them from then on.
    CZone(CZone* upper, CZone* lower, double height, double min, double max);
    /// Destroys the parts too, however deep they are nested, without recursion.
    virtual ~CZone();
    Q_DISABLE_COPY(CZone)

    /// Orders by weight, ascending.
    [[nodiscard]] static bool compareZones(const CZone* a, const CZone* b);

    [[nodiscard]] CZoneBlock block() const { return CZoneBlock{m_avg, m_count, m_shift}; }
    [[nodiscard]] double avg() const { return m_avg; }
    [[nodiscard]] double weight() const { return m_weight; }
    [[nodiscard]] int count() const { return m_count; }
    /// The label of a label's zone; null for a merged zone.
    [[nodiscard]] CPieTextLabel* label() const { return m_label; }
    /// A zone has both parts or none.
    [[nodiscard]] bool isMerged() const { return m_parent1 != nullptr; }
    /// The parts of a merged zone, the upper one first; null for a label's zone.
    [[nodiscard]] CZone* parent1() const { return m_parent1; }
    [[nodiscard]] CZone* parent2() const { return m_parent2; }

private:
    static void destroyTree(CZone* zone);

    double m_avg = 0;                 // y relative to the pie's centre
    double m_weight = 0;              // merged zones are never weighed
    int m_count = 1;                  // slots
    double m_shift = 0;               // pixels
    CPieTextLabel* m_label = nullptr; // borrowed from the chart
    CZone* m_parent1 = nullptr;       // owned
    CZone* m_parent2 = nullptr;       // owned
};

} // namespace tovangl

#endif
