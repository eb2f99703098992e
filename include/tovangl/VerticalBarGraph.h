// SPDX-License-Identifier: MIT
/// @file
/// The vertical bar chart.
#ifndef TOVANGL_VERTICALBARGRAPH_H
#define TOVANGL_VERTICALBARGRAPH_H

#include <tovangl/AxisProperty.h>
#include <tovangl/Color.h>
#include <tovangl/Export.h>
#include <tovangl/Graph.h>

#include <list>
#include <string>

namespace tovangl {

class CBarGraph;

/// Bars standing on a horizontal category axis, with the value scale and its grid lines at the
/// left.
class TOVANGL_EXPORT VerticalBarGraph : public Graph
{
public:
    /// @param background  paint a gradient behind the bars, and a border around them
    explicit VerticalBarGraph(bool background);
    ~VerticalBarGraph() override;

    /// Adds a bar in the next of six default colours, with a darker outline.
    ///
    /// @param value  length of the bar; a negative one hangs below zero
    /// @param text   caption, UTF-8
    /// @return true
    bool addItem(long value, const std::string& text);

    /// Adds a bar with a fill and an outline colour of its own.
    bool addItem(long value, const std::string& text, const Color& color, const Color& outline);

    /// Fixes where the axis lines stand, so that several charts line up.
    ///
    /// @param x  distance of the vertical axis line from the picture's left edge, in pixels before
    ///           the print factor
    /// @param y  distance from the top edge of the row above the horizontal axis line, likewise:
    ///           the line is one pixel thick, in row y + 1. If x or y is negative or too large,
    ///           the layout places that line. A title does not move the line; where the line
    ///           leaves no room for bars below the title, the chart is drawn without the title
    void setPosition(int x, int y);

    /// Sets the width of every bar.
    ///
    /// @param width  pixels before the print factor; 0 (the default) or less lets the bars share
    ///               the axis
    void setBarWidth(int width);

    /// The width last set; 0 where bars share the axis.
    int barWidth() const;

    /// Sets what the category axis below the bars shows, and its title.
    ///
    /// @param properties  sum of AxisProperty bits; the default is ShowLine + ShowLabels +
    ///                    HideOverlapped
    /// @param title       UTF-8; drawn with ShowTitle only
    void setHorizontalAxis(int properties, const std::string& title);

    /// Sets what the value axis at the left shows, and its title.
    ///
    /// @param properties  sum of AxisProperty bits; the default is ShowLine + ShowLabels +
    ///                    UnitPrefixes + HideOverlapped
    /// @param title       UTF-8; drawn with ShowTitle only
    void setVerticalAxis(int properties, const std::string& title);

    /// Sets the colour of axes, labels and values. There is no way back to the default, black.
    void setColor(const Color& color);

    /// Sets the colour of the axis lines. Not set: that of the texts.
    void setAxisColor(const Color& color);

    /// Sets the colour of the axis titles. Not set: black.
    void setAxisTitleColor(const Color& color);

    /// Sets the colour of the grid lines. Not set: shades of grey.
    void setGridColor(const Color& color);

    /// Where the bars were drawn in the last rendering: one rectangle for each bar that the
    /// threshold did not leave out, in the order of adding, and then the one of setOthers() where
    /// it was drawn. A bar of value 0 has height 0; all
    /// four fields are 0 where the scale has no room. Empty before the first rendering, and after
    /// one that did not fit.
    ///
    /// @return a list owned by this object and rewritten by the next call; never null
    std::list<Rectangle>* getBarRectangle();

    /// Which bar belongs to which item: one rectangle for each item, in the order of adding, and
    /// with setOthers() one more at the end.
    ///
    /// The rectangles always describe the last rendering. All four fields are 0
    /// where that rendering drew no bar: the item was below the threshold, its bar has no extent,
    /// it was added later, or the picture had no room for the chart or could not be made. A bar
    /// whose width was set can reach beyond the picture.
    ///
    /// @return a list owned by this object and rewritten by the next call; never null
    std::list<Rectangle>* getItemBarRectangle();

protected:
    /// The chart behind this facade; for the library's own use.
    CBarGraph* getGraph() const;

private:
    std::list<Rectangle>* m_barRectangles;     // owned
    std::list<Rectangle>* m_itemBarRectangles; // owned
};

} // namespace tovangl

#endif
