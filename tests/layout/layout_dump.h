// SPDX-License-Identifier: MIT
/// @file
/// Tells the layout of a chart that was just drawn.
#ifndef TOVANGL_LAYOUT_LAYOUT_DUMP_H
#define TOVANGL_LAYOUT_LAYOUT_DUMP_H

#include <vector>

namespace tovangl {

class CDump;
struct CBarInput;
struct CBarLayout;
struct CPieInput;
struct CPieLayout;
struct CRecordedText;

void dumpLayout(const CPieLayout& layout, const CPieInput& input, CDump& dump);
void dumpLayout(const CBarLayout& layout, const CBarInput& input, CDump& dump);
void dumpTexts(const std::vector<CRecordedText>& texts, CDump& dump);

} // namespace tovangl

#endif
