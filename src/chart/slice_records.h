// SPDX-License-Identifier: MIT
/// @file
/// The slices of a pie as records of the public interface.
#ifndef TOVANGL_CHART_SLICE_RECORDS_H
#define TOVANGL_CHART_SLICE_RECORDS_H

#include <tovangl/Slice.h>

#include <list>
#include <vector>

namespace tovangl {

class CPieGraph;

/// One record for each item, and one for the others.
[[nodiscard]] std::vector<Slice> sliceRecords(const CPieGraph& graph);

/// Replaces the list's content with these records. If memory runs out, the list keeps its old
/// content.
void assignSlices(std::list<Slice>& list, const CPieGraph& graph);

} // namespace tovangl

#endif
