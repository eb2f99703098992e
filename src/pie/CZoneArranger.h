// SPDX-License-Identifier: MIT
/// @file
/// Moves the labels of one half of a pie apart.
#ifndef TOVANGL_PIE_CZONEARRANGER_H
#define TOVANGL_PIE_CZONEARRANGER_H

#include <QtGlobal>

#include <list>

namespace tovangl {

class CPieGraph;
class CPieTextLabel;
class CZone;

/// Spreads labels over a vertical range so that none overlaps its neighbour. Labels that the range
/// has no room for are hidden.
///
/// Labels are added from top to bottom or from bottom to top, arranged once, and the arranger is
/// dropped. All positions are relative to the pie's centre, y growing downward.
class CZoneArranger
{
public:
    /// @param min, max  top and bottom of the range
    /// @param height    height of one label
    CZoneArranger(CPieGraph* graph, double min, double max, double height);
    virtual ~CZoneArranger();
    Q_DISABLE_COPY(CZoneArranger)

    /// The labels are borrowed. addZoneBack() adds below, addZoneFront() above all others.
    void addZoneBack(CPieTextLabel* label);
    void addZoneFront(CPieTextLabel* label);

    /// Resolves all overlaps, then moves each label sideways onto a circle of that radius.
    void arrange(double radius);

    /// Lists the zones on Qt's debug output.
    void debugZones() const;

private:
    using Zones = std::list<CZone*>;

    void reduceZones();
    bool processZonesForward();
    bool processZonesBackward();
    void updateLabels(double radius) const;
    void updateLabel(CZone* zone, double top, double radius) const;

    void checkAllPairs();
    [[nodiscard]] bool isOverlapAt(Zones::const_iterator upper) const;
    void mergeAt(Zones::iterator upper);

    double m_min;
    double m_max;
    double m_height;
    Zones m_zones; // owned, from top to bottom
    // Neighbours above the one and below the other are known to be apart, so that no pass has to
    // look at them again. Both point at a zone, unless there is none.
    Zones::iterator m_firstUnchecked;
    Zones::iterator m_lastUnchecked;
};

} // namespace tovangl

#endif
