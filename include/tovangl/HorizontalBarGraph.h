// SPDX-License-Identifier: MIT
/// @file
/// The horizontal bar chart.
#ifndef TOVANGL_HORIZONTALBARGRAPH_H
#define TOVANGL_HORIZONTALBARGRAPH_H

#include <tovangl/AxisProperty.h>
#include <tovangl/Color.h>
#include <tovangl/Export.h>
#include <tovangl/Graph.h>

#include <list>
#include <string>

namespace tovangl {

class CLabeledBarGraph;

/// Bars lying along a horizontal value scale, one below the other, each with its value beside it.
class TOVANGL_EXPORT HorizontalBarGraph : public Graph
{
public:
    /// @param background  paint a gradient behind the bars, and a border around them
    explicit HorizontalBarGraph(bool background);
    ~HorizontalBarGraph() override;

    /// Adds a bar in the next of six default colours, with a darker outline.
    ///
    /// @param value  length of the bar; a negative one runs to the left of zero
    /// @param text   caption, UTF-8
    /// @return true
    bool addItem(long value, const std::string& text);

    /// Adds a bar with a fill and an outline colour of its own.
    bool addItem(long value, const std::string& text, const Color& color, const Color& outline);

    /// Fixes where the axis lines stand, so that several charts line up.
    ///
    /// @param x  distance of the vertical axis line from the picture's left edge, in pixels before
    ///           the print factor
    /// @param y  distance of the horizontal axis line from the top edge, likewise. If x or y is
    ///           negative or too large, the layout places that line. A title does not move the
    ///           line, but a line in the title's place is drawn right below it
    void setPosition(int x, int y);

    /// Sets the width of every bar.
    ///
    /// @param width  pixels before the print factor; 0 (the default) or less lets the bars share
    ///               the axis
    void setBarWidth(int width);

    /// The width last set; 0 where bars share the axis.
    int barWidth() const;

    /// Sets what the category axis at the left shows, and its title. The value axis cannot be
    /// changed: the values stand beside the bars.
    ///
    /// @param properties  sum of AxisProperty bits; the default is ShowLine + ShowLabels +
    ///                    HideOverlapped
    /// @param title       UTF-8; drawn with ShowTitle only
    void setVerticalAxis(int properties, const std::string& title);

    /// Sets the colour of axes, labels and values. There is no way back to the default, black.
    void setColor(const Color& color);

    /// Sets the colour of the axis lines. Not set: that of the texts.
    void setAxisColor(const Color& color);

    /// Sets the colour of the axis titles. Not set: black.
    void setAxisTitleColor(const Color& color);

    /// Sets the colour of the values beside the bars. Not set: that of the texts.
    void setValueColor(const Color& color);

    /// Where the bars were drawn in the last rendering: one rectangle for each bar that the
    /// threshold did not leave out, in the order of adding, and then the one of setOthers() where
    /// it was drawn. A bar of value 0 has width 0; all
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
    CLabeledBarGraph* getGraph() const;

private:
    std::list<Rectangle>* m_barRectangles;     // owned
    std::list<Rectangle>* m_itemBarRectangles; // owned
};

} // namespace tovangl

#endif
