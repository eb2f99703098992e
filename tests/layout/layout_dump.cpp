// SPDX-License-Identifier: MIT
// Tells the layout of a chart that was just drawn.
#include "layout/layout_dump.h"

#include "bar/CBarBase.h"
#include "labels/CBarTextLabel.h"
#include "layout/CDump.h"
#include "layout/CTextRecorder.h"
#include "pie/CPieGraph.h"
#include "pie/CPieTextLabel.h"

#include <algorithm>

namespace tovangl {

namespace {

// Slices by their places in the pie: the removal of overlaps leaves the labels in another order.
std::vector<const CPieTextLabel*> labelsByItem(const CPieGraph& chart)
{
    std::vector<const CPieTextLabel*> labels;
    for (const CPieBaseItem* item : chart.selectedItems()) {
        const auto& all = chart.labels();
        const auto found = std::find_if(all.begin(), all.end(), [item](const CPieTextLabel* label) {
            return label->getItem() == item;
        });
        if (found != all.end())
            labels.push_back(*found);
    }
    return labels;
}

void dumpSlice(const CPieTextLabel& label, CDump& dump)
{
    const auto& item = *static_cast<const CPieBaseItem*>(label.getItem());
    dump.line("slice").quoted(item.text()).number(item.value());
    dump.word("from").number(item.startAngle()).word("span").number(item.spanAngle());
    dump.line("label", 1).quoted(label.getText());
    dump.flag("hidden", label.isHidden()).flag("bold", label.isBold());
    dump.flag("cut from the left", label.isShortFromLeft());
    dump.line("caption at", 1).rect(item.itemRect());
    dump.line("beam", 1).point(label.beamStart()).word("to").point(label.elbow());
    dump.line("line to", 1).point(label.lineEnd()).word("text").point(label.labelPos());
}

const char* directionName(LabelDirection direction)
{
    switch (direction) {
    case LabelDirection::Across:
        return "across the axis";
    case LabelDirection::Along:
        return "along the axis";
    case LabelDirection::AlongTwoRows:
        return "along the axis, in two rows";
    }
    return "?";
}

void dumpTickLabel(const CBarTextLabel& label, CDump& dump)
{
    dump.line("label", 1).quoted(label.getText()).word("tick").number(label.tickCoord());
    dump.word("at").point(label.orientedPos());
    dump.flag("hidden", label.isHidden()).flag("turned", label.isRotated());
    dump.flag("bold", label.isBold());
}

void dumpAxis(const char* name, const CAxis& axis, CDump& dump)
{
    dump.line(name).rect(axis.axisRect()).word("line from").point(axis.origin());
    dump.word("start").number(axis.axisStart()).word("length").number(axis.axisLength());
    dump.word("width").number(axis.lineWidth());
    dump.line("labels", 1).word(directionName(axis.labelDirection())).size(axis.labelRect().size());
    dump.flag("hidden", axis.areLabelsHidden());
    dump.line("title", 1).quoted(axis.titleLabel().getText()).size(axis.titleRect().size());
    dump.word("at").point(axis.titleLabel().orientedPos()).flag("hidden", axis.isTitleHidden());
    for (const CBarTextLabel* label : axis.labels())
        dumpTickLabel(*label, dump);
}

} // namespace

void dumpLayout(const CPieGraph& chart, CDump& dump)
{
    dump.line("area").rect(chart.area());
    dump.line("pie").rect(chart.pieRect());
    dump.line("label box").rect(chart.labelRect());
    dump.line("sizes").word(CPieTextLabel::canDrawSizeLabel() ? "shown" : "dropped");
    for (const CPieTextLabel* label : labelsByItem(chart))
        dumpSlice(*label, dump);
}

void dumpLayout(const CBarBase& chart, CDump& dump)
{
    dump.line("spaces left").number(chart.leftAxisSpace()).word("top").number(chart.topAxisSpace());
    dump.word("right").number(chart.rightAxisSpace());
    dump.word("bottom").number(chart.bottomAxisSpace());
    dump.line("plot").rect(chart.plotRect()).flag("does not fit", !chart.plotRect().isValid());
    dumpAxis("categories", *chart.categoryAxis(), dump);
    dump.line("bar width", 1).number(chart.categoryAxis()->drawBarWidth());
    dumpAxis("values", *chart.numberAxis(), dump);
    dump.line("scale", 1).number(chart.numberAxis()->scaleMin()).word("to");
    dump.number(chart.numberAxis()->scaleMax());
    for (const CBarGraphItem* item : chart.selectedItems()) {
        dump.line("bar").quoted(item->text()).number(item->value()).rect(item->barRect());
        dump.word("value at").rect(item->barLabelRect()).word("caption at").rect(item->itemRect());
    }
}

void dumpTexts(const std::vector<CRecordedText>& texts, CDump& dump)
{
    for (const CRecordedText& text : texts) {
        dump.line("text").quoted(text.text).word("at").point(text.baseline);
        if (text.angle != 0)
            dump.word("turned by").number(text.angle);
        dump.flag("bold", text.isBold).word(text.color.toStdString().c_str());
    }
}

} // namespace tovangl
