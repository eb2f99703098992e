// SPDX-License-Identifier: MIT
/// @file
/// A chart behind the public interface.
#ifndef TOVANGL_API_CGRAPH1DBASE_H
#define TOVANGL_API_CGRAPH1DBASE_H

#include "input/item_selection.h"
#include "layout/CRequest.h"
#include <tovangl/Problem.h>

#include <QImage>
#include <QRect>

#include <optional>
#include <string>
#include <vector>

namespace tovangl {

class CCanvas;
struct CGraph1dInput;

/// The host's input, and the result of the last rendering.
class CGraph1dBase
{
public:
    CGraph1dBase();
    virtual ~CGraph1dBase();
    Q_DISABLE_COPY(CGraph1dBase)

    /// Removes all items and the results of their renderings. Settings are kept.
    void clear();
    /// Items whose share of the total is smaller are left out; per cent.
    void setThreshold(double percent);
    /// The threshold that was set; after a rendering, as applied there.
    [[nodiscard]] double threshold() const;
    [[nodiscard]] virtual CGraph1dInput& input() = 0;
    [[nodiscard]] virtual const CGraph1dInput& input() const = 0;

    /// Draws the chart into a new picture; returns the null image if that cannot be made.
    [[nodiscard]] QImage getImage(int width, int height);
    /// Draws at factor times the resolution (at least 1) in the colours for print.
    [[nodiscard]] QImage getImageForPrinter(int width, int height, int factor);
    /// Whether the last rendering drew the chart: the picture could be made and had room for it.
    [[nodiscard]] bool isDrawn() const { return m_isDrawn; }
    /// What was wrong with the last rendering.
    [[nodiscard]] Problem problem() const { return m_problem; }
    void setProblem(Problem problem) { m_problem = problem; }
    /// Begins a rendering that has drawn nothing so far. Only lack of memory can end it with an
    /// exception.
    void forgetDrawing();
    /// The items drawn by the last rendering, as positions among all of them; none where isDrawn()
    /// is false.
    [[nodiscard]] std::vector<std::size_t> drawnItems() const;
    /// One caption rectangle for each item, in the order of adding; null if it was never drawn.
    [[nodiscard]] std::vector<QRect> itemRectangles() const;
    [[nodiscard]] std::string describe() const;

protected:
    /// The beginning of the chart's description.
    [[nodiscard]] virtual const char* kindName() const = 0;
    [[nodiscard]] virtual CItemSelection selectItems() const = 0;
    /// Lays out the chart and paints it if it fits.
    ///
    /// @return what each drawn item's caption covers; empty if the chart does not fit
    virtual std::optional<std::vector<QRect>>
    drawContents(CCanvas& canvas, const CRequest& request,
                 const std::vector<std::size_t>& drawn) = 0;
    /// Drops the last layout's results for removed items.
    virtual void forgetLayout() = 0;

private:
    [[nodiscard]] QImage draw(const CRequest& request);
    void drawGraph(QPaintDevice& device, const CRequest& request);
    void recordCaptions(const std::vector<QRect>& captions);

    // Apart from the last layout, only these outlive a rendering: an item that a rendering leaves
    // out keeps the caption rectangle of an earlier one.
    std::vector<QRect> m_itemRects; // by item; shorter if items were added since
    std::vector<std::size_t> m_selectedItems;
    std::optional<double> m_actingThreshold; // none since the threshold was set
    bool m_isDrawn = false;
    Problem m_problem = Problem::None;
};

} // namespace tovangl

#endif
