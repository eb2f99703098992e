// SPDX-License-Identifier: MIT
/// @file
/// What a bar chart's axis shows.
#ifndef TOVANGL_AXISPROPERTY_H
#define TOVANGL_AXISPROPERTY_H

namespace tovangl {

/// The bits that the axis setters of the bar charts accept, as a sum.
struct AxisProperty
{
    /// One of the bits.
    enum Flag
    {
        ShowLine = 1,         ///< the axis line, and the gap between it and the labels
        ShowLabels = 2,       ///< the captions, or the numbers of the scale
        ShowTitle = 4,        ///< the axis title
        BoldLabels = 8,       ///< labels in bold type
        BoldTitle = 16,       ///< title in bold type
        UnitPrefixes = 32,    ///< numbers as 12 K or 3 M, in steps of 1024
        HideOverlapped = 128, ///< labels that would overlap are thinned out
        ShiftLastLabel = 4096 ///< the scale ends at the greatest value, with room kept behind it
    };
};

} // namespace tovangl

#endif
