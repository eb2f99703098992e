// SPDX-License-Identifier: MIT
/// @file
/// The pie chart.
#ifndef TOVANGL_PIEGRAPH_H
#define TOVANGL_PIEGRAPH_H

#include <tovangl/Color.h>
#include <tovangl/Export.h>
#include <tovangl/Graph.h>
#include <tovangl/Slice.h>

#include <list>
#include <string>

namespace tovangl {

class CPieGraph;

/// A pie with a caption, and on request the size in bytes, beside each slice.
///
/// Slices run clockwise from nine o'clock in the order of adding.
class TOVANGL_EXPORT PieGraph : public Graph
{
public:
    /// The bits of setProperty().
    enum Property
    {
        BoldLabels = 0x08,          ///< labels in bold type
        ShortenFromLeft = 0x40,     ///< long captions are cut at the beginning, not at the end
        RemoveLabelOverlaps = 0x80, ///< colliding labels are moved apart, surplus ones hidden
        ShowSizes = 0x100,          ///< labels end in the value as a size in bytes: [1.5 KB]
        DefaultProperties = RemoveLabelOverlaps | ShowSizes
    };

    /// @param background  paint a pale blue gradient behind the pie (never in print)
    explicit PieGraph(bool background);
    ~PieGraph() override;

    /// Adds a slice in the next of six default colours.
    ///
    /// @param value  any number; only values above 0 are drawn, but the magnitudes of negative ones
    ///               count toward the total that the threshold refers to
    /// @param text   caption, UTF-8
    /// @return true
    bool addItem(long value, const std::string& text);

    /// Adds a slice in a colour of its own.
    bool addItem(long value, const std::string& text, const Color& color);

    /// Replaces all options.
    ///
    /// @param options  sum of Property bits; other bits are ignored
    void setProperty(int options);

    /// Sets the colours of the slices' outlines, of the label texts and of the lines that lead to
    /// them. A colour with a channel outside 0 to 255 counts as not set: outlines are white again,
    /// dark grey in print, texts are black, and lines take the colour of the outlines.
    void setColors(const Color& outline, const Color& text, const Color& line);

    /// Sets the colour of the lines that lead to the captions. Not set: that of the outlines.
    void setLineColor(const Color& color);

    /// Sets the unit of the sizes, which stands after the number: "B" by default, as in [1.5 KB].
    void setUnit(const std::string& unit);

    /// Where the slices were drawn: one record for each item, in the order of adding, and with
    /// setOthers() one more at the end.
    ///
    /// The records always describe the last rendering. All fields are 0 where
    /// that rendering drew no slice: the value was not above 0, its share was below the threshold
    /// or rounded to no angle at all (under a sixteenth of a degree), the item was added later, or
    /// the picture had no room for the chart or could not be made.
    ///
    /// getPolygon() turns a record into an outline.
    ///
    /// @return a list owned by this object and rewritten by the next call; never null
    std::list<Slice>* getSlice();

protected:
    /// The chart behind this facade; for the library's own use.
    CPieGraph* getGraph() const;

private:
    std::list<Slice>* m_slices; // owned
};

} // namespace tovangl

#endif
