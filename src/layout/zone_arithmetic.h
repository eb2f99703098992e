// SPDX-License-Identifier: MIT
/// @file
/// Vertical blocks of equally high label slots: where they lie, and how two merge.
#ifndef TOVANGL_LAYOUT_ZONE_ARITHMETIC_H
#define TOVANGL_LAYOUT_ZONE_ARITHMETIC_H

#include <cstddef>

namespace tovangl {

/// The vertical range available to labels, y growing downward.
struct CZoneRange
{
    double min = 0; ///< top
    double max = 0; ///< bottom
};

/// A block of label slots.
struct CZoneBlock
{
    double avg = 0;   ///< centre y
    int count = 1;    ///< slots
    double shift = 0; ///< added to the centre to keep the block inside the range

    [[nodiscard]] double top(double slotHeight) const;
    [[nodiscard]] double bottom(double slotHeight) const;
};

/// Whether two neighbours overlap; touching counts.
[[nodiscard]] bool isOverlap(const CZoneBlock& upper, const CZoneBlock& lower, double slotHeight);

/// The block that replaces two: it has the slots of both, is centred on their mean, and is shifted
/// into the range. If it is too high for the range, it starts at the top.
[[nodiscard]] CZoneBlock mergeBlocks(const CZoneBlock& upper, const CZoneBlock& lower,
                                     double slotHeight, const CZoneRange& range);

/// How many slots have to be removed until the rest is lower than the range.
[[nodiscard]] std::size_t countSurplusSlots(std::size_t count, double slotHeight,
                                            const CZoneRange& range);

/// The horizontal distance from the centre to the circle at height y; 0 above and below it.
[[nodiscard]] double circleX(double radius, double y);

} // namespace tovangl

#endif
