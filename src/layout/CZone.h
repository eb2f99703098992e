// SPDX-License-Identifier: MIT
/// @file
/// One label's slot, or a block of slots made of two zones.
#ifndef TOVANGL_LAYOUT_CZONE_H
#define TOVANGL_LAYOUT_CZONE_H

#include "layout/zone_arithmetic.h"

namespace tovangl {

/// A vertical block of label slots. A merged zone knows its two parts, so that the block can be
/// divided among their labels. Zones belong to the arranger that made them.
struct CZone
{
    /// A zone of one slot, centred on the end of a label's line.
    CZone(std::size_t number, double y)
        : block{y}
        , label(number)
    {}
    /// The zone that replaces two neighbours.
    CZone(const CZone& upper, const CZone& lower, double height, const CZoneRange& range)
        : block(mergeBlocks(upper.block, lower.block, height, range))
        , parent1(&upper)
        , parent2(&lower)
    {}

    /// A zone has both parts or none.
    [[nodiscard]] bool isMerged() const { return parent1 != nullptr; }

    CZoneBlock block;               ///< heights relative to the pie's centre
    std::size_t label = 0;          ///< the number of a label; meaningless in a merged zone
    const CZone* parent1 = nullptr; ///< the upper part of a merged zone
    const CZone* parent2 = nullptr; ///< the lower part of a merged zone
};

} // namespace tovangl

#endif
