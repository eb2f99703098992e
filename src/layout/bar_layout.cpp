// SPDX-License-Identifier: MIT
// Lays out a bar chart.
#include "layout/bar_layout.h"

#include "layout/CCategoryAxis.h"
#include "layout/CNumberAxis.h"
#include "layout/axis_spaces.h"
#include "layout/bar_items.h"
#include "layout/chart_title.h"
#include "layout/grid_lines.h"
#include "text/CTextMeasurer.h"

#include <algorithm>

namespace tovangl {

namespace {

const QColor kBackgroundTop(224, 238, 255);
const QColor kBackgroundBottom(255, 255, 255);

// The input that every step shares.
struct CBarTask
{
    const CBarInput& input;
    const std::vector<std::size_t>& drawn;
    const CRequest& request;
    CTextMeasurer& measurer;
    int top; // the first row of the picture that belongs to the chart, below its title

    [[nodiscard]] const CChartColors& colors() const { return input.settings.colors; }
    [[nodiscard]] int margin() const { return request.scaled(kMargin); }
    [[nodiscard]] int height() const { return request.height - top; }
    // The host counts rows from the picture's top, the layout from the chart's. A line that would
    // run through the title moves below it.
    [[nodiscard]] QPoint position() const
    {
        const int y = request.scaled(input.position.y());
        return QPoint(request.scaled(input.position.x()), y < 0 ? y : std::max(y - top, 0));
    }
};

QColor textColor(const CBarTask& task)
{
    return orElse(task.colors().text, Qt::black);
}

CAxisLook axisLook(const CBarTask& task)
{
    const QColor text = textColor(task);
    // Deliberate: titles are black whatever the colour of the texts, so that they stand out from
    // labels whose colour was set.
    return {task.request.scale, orElse(task.colors().axis, text), text,
            orElse(task.colors().axisTitle, Qt::black)};
}

CCategoryAxis createCategoryAxis(const CBarTask& task, const CAxisFrame& frame,
                                 const CAxisSettings& settings)
{
    std::vector<QString> captions;
    captions.reserve(task.drawn.size());
    for (const std::size_t item : task.drawn)
        captions.push_back(task.input.items[item].text);
    const int barWidth = task.request.scaled(task.input.barWidth);
    return {frame, settings, axisLook(task), captions, barWidth, task.measurer};
}

CDataRange dataRange(const CBarTask& task)
{
    const auto isLess = [&task](std::size_t a, std::size_t b) {
        return task.input.items[a].value < task.input.items[b].value;
    };
    const auto [least, greatest] =
        std::minmax_element(task.drawn.begin(), task.drawn.end(), isLess);
    return {task.input.items[*least].value, task.input.items[*greatest].value};
}

CNumberAxis createNumberAxis(const CBarTask& task, const CAxisFrame& frame,
                             const CAxisSettings& settings, int endShift)
{
    CNumbers numbers;
    numbers.isEmpty = task.drawn.empty();
    numbers.endShift = endShift;
    if (!numbers.isEmpty)
        numbers.data = dataRange(task);
    return {frame,
            settings,
            axisLook(task),
            numbers,
            task.input.settings.locale,
            task.request.kilo,
            task.measurer};
}

CAxisSpace getTopAxisSpace(const CBarTask& task, const CAxis& axis, int width)
{
    const CEdgeOfPicture edge{task.height(), task.margin(), axis.lineShare()};
    const int position = task.position().y();
    return isFixedPosition(position, edge.extent) ? fixedNearSpace(position, edge)
                                                  : freeSpace(axis.getHeightForWidth(width), edge);
}

CAxisSpace getBottomAxisSpace(const CBarTask& task, const CAxis& axis, int width)
{
    const CEdgeOfPicture edge{task.height(), task.margin(), axis.lineShare()};
    const int position = task.position().y();
    return isFixedPosition(position, edge.extent) ? fixedFarSpace(position, edge)
                                                  : freeSpace(axis.getHeightForWidth(width), edge);
}

CAxisSpace getLeftAxisSpace(const CBarTask& task, const CAxis& axis, int height)
{
    const CEdgeOfPicture edge{task.request.width, task.margin(), axis.lineShare()};
    const int position = task.position().x();
    return isFixedPosition(position, edge.extent) ? fixedNearSpace(position, edge)
                                                  : freeSpace(axis.getWidthForHeight(height), edge);
}

// Both kinds of chart begin with a margin at every edge.
CBarLayout emptyLayout(const CBarTask& task)
{
    const int margin = task.margin();
    CBarLayout layout;
    layout.spaces = {margin, task.top + margin, margin, margin};
    layout.lineWidth = task.request.scale;
    return layout;
}

void setAxes(CBarLayout& layout, const CCategoryAxis& categoryAxis, const QRect& categoryRect,
             const CNumberAxis& numberAxis, const QRect& numberRect, CTextMeasurer& measurer)
{
    layout.categoryAxis = categoryAxis.fitToRect(categoryRect, measurer);
    layout.barWidth = categoryAxis.drawBarWidth(layout.categoryAxis->length);
    layout.numberAxis = numberAxis.fitToRect(numberRect, measurer);
    layout.scale = numberAxis.valueScale(*layout.numberAxis);
}

// The background for print is white, to save ink.
void setBackground(CBarLayout& layout, const CBarTask& task)
{
    if (!task.input.settings.hasBackground)
        return;
    const bool isOnScreen = task.request.device == OutputDevice::Screen;
    const QColor& plot = task.colors().plot;
    layout.background = CVerticalFade{orElse(plot, isOnScreen ? kBackgroundTop : kBackgroundBottom),
                                      orElse(plot, kBackgroundBottom)};
}

// Of the border or the grid.
CVerticalFade lineColors(const QColor& ofHost)
{
    return {orElse(ofHost, kBorderTop), orElse(ofHost, kBorderBottom)};
}

// Standing bars: categories below, numbers at the left, grid lines behind the bars.
CBarLayout layOutStandingBars(const CBarTask& task)
{
    const CCategoryAxis categoryAxis = createCategoryAxis(
        task, {CAxisFrame::LeftToRight, CAxisFrame::Bottom}, task.input.horizontalAxis);
    const CNumberAxis numberAxis = createNumberAxis(
        task, {CAxisFrame::BottomToTop, CAxisFrame::Left}, task.input.verticalAxis, 0);

    CBarLayout layout = emptyLayout(task);
    // Half of the topmost number rises above its grid line.
    const int halfFont = task.drawn.empty() ? 0 : (task.measurer.fontHeight() + 1) / 2;
    const int top = layout.spaces.top + halfFont;
    const CAxisSpace ofNumbers =
        getLeftAxisSpace(task, numberAxis, task.request.height - top - layout.spaces.bottom);
    layout.spaces.left = ofNumbers.space;
    const int left = ofNumbers.space + ofNumbers.thickness;
    const int right = task.request.width - 1 - layout.spaces.right;
    const CAxisSpace ofCategories =
        getBottomAxisSpace(task, categoryAxis, task.request.width - left - layout.spaces.right);
    layout.spaces.bottom = ofCategories.space;
    const int bottom = task.request.height - (ofCategories.space + ofCategories.thickness) - 1;

    layout.plotRect = QRect(QPoint(left, top), QPoint(right, bottom));
    if (!layout.fits())
        return layout;
    setAxes(layout, categoryAxis,
            QRect(QPoint(left, bottom + 1), QPoint(right, bottom + ofCategories.thickness)),
            numberAxis, QRect(QPoint(ofNumbers.space, top), QPoint(left - 1, bottom + 1)),
            task.measurer);
    setBackground(layout, task);
    layout.gridLines =
        drawLabelLines(*layout.numberAxis, layout.plotRect.width() - task.request.scale,
                       lineColors(task.colors().grid));
    if (task.input.settings.hasBackground)
        layout.border = CPlotBorder{lineColors(task.colors().border), std::nullopt};
    layout.bars = setItemBars(layout, task.input, task.drawn);
    return layout;
}

// The values that are written beside the bars.
std::vector<CTextLabel> createValueLabels(const CBarTask& task)
{
    std::vector<CTextLabel> labels;
    labels.reserve(task.drawn.size());
    for (const std::size_t item : task.drawn) {
        const QString text = numberText(task.input.items[item].value, PlainNumber,
                                        task.input.settings.locale, task.request.kilo);
        labels.emplace_back(text, CTextStyle(), task.measurer);
    }
    return labels;
}

QSize initBarLabelBoundingRect(const std::vector<CTextLabel>& labels)
{
    QSize largest(0, 0);
    for (const CTextLabel& label : labels)
        largest = largest.expandedTo(label.wholePixelRect().size());
    return largest;
}

// The border of lying bars, on screens only.
void setBorder(CBarLayout& layout, const CBarTask& task)
{
    if (!task.input.settings.hasBackground || task.request.device != OutputDevice::Screen)
        return;
    const CVerticalFade colors = lineColors(task.colors().border);
    layout.border = CPlotBorder{colors, CStraightLine{layout.plotRect.bottomLeft(),
                                                      layout.plotRect.bottomRight(), colors.bottom,
                                                      layout.lineWidth}};
}

// Lying bars: numbers above, categories at the left, each bar's value beyond its end.
CBarLayout layOutLyingBars(const CBarTask& task)
{
    const int margin = task.margin();
    const std::vector<CTextLabel> valueLabels = createValueLabels(task);
    const QSize labelSize = initBarLabelBoundingRect(valueLabels);
    // A value has a margin on either side.
    const int labelSpace = addPixels(scalePixels(margin, 2), labelSize.width());
    const CNumberAxis numberAxis = createNumberAxis(
        task, {CAxisFrame::LeftToRight, CAxisFrame::Top}, task.input.horizontalAxis, labelSpace);
    const CCategoryAxis categoryAxis = createCategoryAxis(
        task, {CAxisFrame::TopToBottom, CAxisFrame::Left}, task.input.verticalAxis);

    CBarLayout layout = emptyLayout(task);
    const CAxisSpace ofCategories =
        getLeftAxisSpace(task, categoryAxis, task.height() - 2 * margin);
    layout.spaces.left = ofCategories.space;
    const int left = ofCategories.space + ofCategories.thickness;
    const CAxisSpace ofNumbers =
        getTopAxisSpace(task, numberAxis, task.request.width - left - margin + 1);
    layout.spaces.top = task.top + ofNumbers.space;
    const int top = layout.spaces.top + ofNumbers.thickness;
    const int right = task.request.width - 1 - margin;
    const int bottom = task.request.height - 1 - margin;

    layout.plotRect = QRect(QPoint(left, top), QPoint(right, bottom));
    if (!layout.fits())
        return layout;
    // Deliberate: the value axis begins one pixel to the left, so that its zero stands on the
    // vertical axis line.
    setAxes(layout, categoryAxis, QRect(QPoint(ofCategories.space, top), QPoint(left - 1, bottom)),
            numberAxis, QRect(QPoint(left - 1, layout.spaces.top), QPoint(right, top - 1)),
            task.measurer);
    setBackground(layout, task);
    setBorder(layout, task);
    layout.bars = setItemBars(layout, task.input, task.drawn);
    setItemLabels(layout, valueLabels,
                  {labelSize, margin, orElse(task.colors().value, textColor(task))}, task.measurer);
    return layout;
}

} // namespace

CBarLayout computeLayout(const CBarInput& input, const std::vector<std::size_t>& drawn,
                         const CRequest& request, CTextMeasurer& measurer)
{
    return layOutBelowTitle(input.settings, request, measurer, [&](int top) {
        const CBarTask task{input, drawn, request, measurer, top};
        return input.kind == BarKind::Standing ? layOutStandingBars(task) : layOutLyingBars(task);
    });
}

} // namespace tovangl
