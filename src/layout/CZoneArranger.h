// SPDX-License-Identifier: MIT
/// @file
/// Moves the labels of one half of a pie apart.
#ifndef TOVANGL_LAYOUT_CZONEARRANGER_H
#define TOVANGL_LAYOUT_CZONEARRANGER_H

#include "layout/CZone.h"

#include <QPointF>

#include <deque>
#include <list>
#include <optional>
#include <vector>

namespace tovangl {

/// Where a label ended up.
struct CArrangedLabel
{
    std::size_t label = 0; ///< its number
    /// A point on the circle's right half; none if the label has no room.
    std::optional<QPointF> place;
};

/// Spreads labels over a vertical range so that none overlaps its neighbour. Labels that do not fit
/// into the range are hidden.
///
/// Add labels from top to bottom or from bottom to top, arrange them once, and discard the
/// arranger. All positions are relative to the pie's centre, y growing downward.
class CZoneArranger
{
public:
    /// @param height  height of one label
    CZoneArranger(const CZoneRange& range, double height);
    Q_DISABLE_COPY(CZoneArranger)

    /// addZoneBack() adds below, addZoneFront() above all others.
    ///
    /// @param label  any number that identifies the label for the caller
    /// @param y      height at which the label's line ends
    void addZoneBack(std::size_t label, double y);
    void addZoneFront(std::size_t label, double y);

    /// Resolves all overlaps, then moves each label sideways onto a circle of that radius. Returns
    /// every label once, in no particular order.
    [[nodiscard]] std::vector<CArrangedLabel> arrange(double radius);

private:
    using Zones = std::list<const CZone*>;

    void reduceZones();
    [[nodiscard]] bool processZonesForward();
    [[nodiscard]] bool processZonesBackward();
    void updateLabels(double radius);
    void updateLabel(const CZone& zone, double top, double radius);

    void checkAllPairs();
    [[nodiscard]] bool isOverlapAt(Zones::const_iterator upper) const;
    void mergeAt(Zones::iterator upper);

    CZoneRange m_range;
    double m_height;
    std::deque<CZone> m_made; // all zones, at stable addresses
    Zones m_zones;            // those that no merged zone has replaced, from top to bottom
    // All neighbours above the first and below the second are known not to overlap, so no pass
    // checks them again. Both point at a zone, unless there is none.
    Zones::iterator m_firstUnchecked;
    Zones::iterator m_lastUnchecked;
    std::vector<CArrangedLabel> m_arranged;
};

} // namespace tovangl

#endif
