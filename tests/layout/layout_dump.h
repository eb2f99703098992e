// SPDX-License-Identifier: MIT
/// @file
/// Tells the layout of a chart that was just drawn.
#ifndef TOVANGL_LAYOUT_LAYOUT_DUMP_H
#define TOVANGL_LAYOUT_LAYOUT_DUMP_H

#include <vector>

namespace tovangl {

class CBarBase;
class CDump;
class CPieGraph;
struct CRecordedText;

void dumpLayout(const CPieGraph& chart, CDump& dump);
void dumpLayout(const CBarBase& chart, CDump& dump);
void dumpTexts(const std::vector<CRecordedText>& texts, CDump& dump);

} // namespace tovangl

#endif
