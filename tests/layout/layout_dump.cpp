// SPDX-License-Identifier: MIT
// Tells the layout of a chart that was just drawn.
#include "layout/layout_dump.h"

#include "base/CKilo.h"
#include "input/CBarInput.h"
#include "input/CPieInput.h"
#include "layout/CBarLayout.h"
#include "layout/CDump.h"
#include "layout/CPieLayout.h"
#include "layout/CPieTextLabel.h"
#include "layout/CTextRecorder.h"
#include "layout/captions.h"

#include <algorithm>

namespace tovangl {

namespace {

// The removal of overlaps leaves the labels in another order than the slices.
const CPlacedPieLabel& labelOf(const CPieSlice& slice, const CPieLayout& layout)
{
    return *std::find_if(layout.labels.begin(), layout.labels.end(),
                         [&slice](const auto& label) { return label.item == slice.item; });
}

// The text as it is where nothing has to be shortened or dropped.
QString wholeText(const CGraph1dItem& item, const CPieInput& input)
{
    if (!input.options.testFlag(CPieInput::ShowSizes))
        return item.text;
    return item.text + getSizeText(item.value, input.unit, input.settings.locale,
                                   input.settings.kilo.value_or(kKilo1024));
}

void dumpTitle(const std::optional<CChartTitle>& title, CDump& dump)
{
    if (title)
        dump.line("title").quoted(title->text.text).rect(title->rect);
}

void dumpSlice(const CPieSlice& slice, const CPieLayout& layout, const CPieInput& input,
               CDump& dump)
{
    const CGraph1dItem& item = input.items[slice.item];
    const CPlacedPieLabel& label = labelOf(slice, layout);
    dump.line("slice").quoted(item.text).number(item.value);
    dump.word("from").number(slice.angles.start).word("span").number(slice.angles.span);
    dump.line("label", 1).quoted(wholeText(item, input)).flag("hidden", label.isHidden);
    dump.flag("bold", input.options.testFlag(CPieInput::BoldLabels));
    dump.flag("cut from the left", input.options.testFlag(CPieInput::ShortenFromLeft));
    dump.line("caption at", 1).rect(label.itemRect);
    dump.line("beam", 1).point(label.beamStart).word("to").point(label.elbow);
    dump.line("line to", 1).point(label.lineEnd).word("text").point(label.labelPos);
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

void dumpTickLabel(const CBarTextLabel& label, const CAxisLayout& axis, CDump& dump)
{
    dump.line("label", 1).quoted(label.text.getText()).word("tick").number(label.tickCoord);
    dump.word("at").point(label.orientedPos).flag("hidden", label.isHidden);
    dump.flag("turned", axis.isRotated()).flag("bold", label.text.style().isBold);
}

void dumpAxis(const char* name, const CAxisLayout& axis, CDump& dump)
{
    dump.line(name).rect(axis.rect).word("line from").point(axis.origin);
    dump.word("length").number(axis.length).word("width").number(axis.shape.lineWidth);
    dump.line("labels", 1).word(directionName(axis.shape.direction)).size(axis.shape.labelSize);
    dump.flag("hidden", axis.areLabelsHidden);
    dump.line("title", 1).quoted(axis.title.getText()).size(axis.shape.titleRect.size());
    dump.word("at").point(axis.titlePos).flag("hidden", axis.isTitleHidden);
    for (const CBarTextLabel& label : axis.labels)
        dumpTickLabel(label, axis, dump);
}

void dumpAxes(const CBarLayout& layout, CDump& dump)
{
    dumpAxis("categories", *layout.categoryAxis, dump);
    dump.line("bar width", 1).number(layout.barWidth);
    dumpAxis("values", *layout.numberAxis, dump);
    dump.line("scale", 1).number(layout.scale.min).word("to").number(layout.scale.max);
}

} // namespace

void dumpLayout(const CPieLayout& layout, const CPieInput& input, CDump& dump)
{
    dumpTitle(layout.title, dump);
    dump.line("area").rect(layout.area);
    dump.line("pie").rect(layout.pieRect);
    dump.line("label box").rect(layout.labelRect);
    dump.line("sizes").word(layout.sizesShown ? "shown" : "dropped");
    for (const CPieSlice& slice : layout.slices)
        dumpSlice(slice, layout, input, dump);
}

void dumpLayout(const CBarLayout& layout, const CBarInput& input, CDump& dump)
{
    dumpTitle(layout.title, dump);
    const CAxisSpaces& spaces = layout.spaces;
    dump.line("spaces left").number(spaces.left).word("top").number(spaces.top);
    dump.word("right").number(spaces.right).word("bottom").number(spaces.bottom);
    dump.line("plot").rect(layout.plotRect).flag("does not fit", !layout.fits());
    if (!layout.fits())
        return;
    dumpAxes(layout, dump);
    const std::vector<QRect> captions = captionRects(layout);
    for (std::size_t i = 0; i < layout.bars.size(); ++i) {
        const CBar& bar = layout.bars[i];
        const CGraph1dItem& item = input.items[bar.item];
        dump.line("bar").quoted(item.text).number(item.value).rect(bar.rect);
        dump.word("value at").rect(bar.labelRect).word("caption at").rect(captions[i]);
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
