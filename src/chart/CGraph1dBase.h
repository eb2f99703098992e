// SPDX-License-Identifier: MIT
/// @file
/// A chart behind the public interface.
#ifndef TOVANGL_CHART_CGRAPH1DBASE_H
#define TOVANGL_CHART_CGRAPH1DBASE_H

#include "input/item_selection.h"
#include "input/setting_rules.h"
#include "layout/CRequest.h"
#include "output/CPictureFile.h"
#include <tovangl/Problem.h>

#include <QImage>
#include <QRect>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tovangl {

class CCanvas;
class CChartOutput;
class CTextMeasurer;
struct CChartSummary;
struct CGraph1dInput;
struct CSvgFrame;

/// What the texts of a drawn chart cover.
struct CDrawnTexts
{
    QRect title;                 ///< null where there is none
    std::vector<QRect> captions; ///< one for each drawn item; null where it is hidden
};

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
    /// The threshold that was set; as it was applied, once a rendering has done so.
    [[nodiscard]] double threshold() const;
    /// Sets a setting by its name; returns what is wrong with that, or nothing.
    [[nodiscard]] std::string setByName(std::string_view name, std::string_view value);
    [[nodiscard]] virtual CGraph1dInput& input() = 0;
    [[nodiscard]] virtual const CGraph1dInput& input() const = 0;

    /// Draws the chart into a new picture; returns the null image if that cannot be made.
    [[nodiscard]] QImage getImage(int width, int height);
    /// Draws at factor times the resolution (at least 1) in the colours for print.
    [[nodiscard]] QImage getImageForPrinter(int width, int height, int factor);
    /// Lays out the picture of getImage() and writes its shapes as SVG; no bytes if that cannot be
    /// made.
    [[nodiscard]] CPictureFile getSvg(int width, int height);
    /// Draws the picture of getImageForPrinter() as PDF, a point for each pixel of the size; no
    /// bytes if that cannot be made.
    [[nodiscard]] CPictureFile getPdf(int width, int height);
    /// Saves a picture as PNG with the chart's compression, and packs its pixels for that. The
    /// bytes live until the next call or freePixmap(); there are none where the picture is null.
    const CPictureFile& paintDevice2Bytes(QImage& image);
    /// Keeps the bytes of another picture in their place.
    const CPictureFile& keepFile(CPictureFile file);
    void freePixmap() { m_file = CPictureFile(); }
    /// Whether the last rendering drew the chart: the picture could be made and had room for it.
    [[nodiscard]] bool isDrawn() const { return m_isDrawn; }
    /// What was wrong with the last rendering.
    [[nodiscard]] Problem problem() const { return m_problem; }
    /// The same as a sentence; empty if nothing was.
    [[nodiscard]] const char* problemText() const;
    void setProblem(Problem problem) { m_problem = problem; }
    /// Begins a rendering that has drawn nothing so far. Only lack of memory can end it with an
    /// exception.
    void forgetDrawing();
    /// The items drawn by the last rendering, as positions among all of them; none where isDrawn()
    /// is false.
    [[nodiscard]] std::vector<std::size_t> drawnItems() const;
    /// One caption rectangle for each record; null if it was never drawn.
    [[nodiscard]] std::vector<QRect> itemRectangles() const;
    /// The records of a list: one for each item, in the order of adding, and where the host wants
    /// others, a last one for them.
    [[nodiscard]] std::size_t recordCount() const;
    /// The record of an item of the last layout; none for others that the host wants no more.
    [[nodiscard]] std::optional<std::size_t> recordOf(std::size_t item) const;
    /// What the last rendering gathered into one item; nothing where it drew no such item.
    [[nodiscard]] CLeftOut gathered() const { return m_others ? m_others->leftOut : CLeftOut(); }
    /// Where the last rendering drew the title; null where it drew none.
    [[nodiscard]] QRect titleRectangle() const { return m_titleRect; }
    [[nodiscard]] std::string describe() const;

protected:
    /// The input, for the table of settings.
    [[nodiscard]] virtual CSettingTarget settingTarget() = 0;
    /// The beginning of the chart's description.
    [[nodiscard]] virtual const char* kindName() const = 0;
    [[nodiscard]] virtual CItemSelection selectItems() const = 0;
    /// Lays out the chart.
    ///
    /// @param drawn   positions of items
    /// @param others  one more item, which is drawn after them
    /// @return where its texts are; empty if the chart does not fit
    virtual std::optional<CDrawnTexts>
    layOutContents(CTextMeasurer& measurer, const CRequest& request,
                   const std::vector<std::size_t>& drawn,
                   const std::optional<CGraph1dItem>& others) = 0;
    /// Paints the last layout.
    virtual void paintContents(CChartOutput& output) const = 0;
    /// Paints the chart as it would be in a theme.
    virtual void paintInTheme(std::string_view theme, CTextMeasurer& measurer,
                              const CRequest& request, const std::vector<std::size_t>& drawn,
                              const std::optional<CGraph1dItem>& others,
                              CChartOutput& output) const = 0;
    /// Drops the last layout's results for removed items.
    virtual void forgetLayout() = 0;

private:
    // The item that gathers what a rendering left out.
    struct COthers
    {
        std::size_t item = 0; // its position: that behind all items of the rendering
        CLeftOut leftOut;
        QRect caption;
    };

    [[nodiscard]] bool wantsOthers() const;
    [[nodiscard]] CKilo kilo() const;
    [[nodiscard]] CRequest screenRequest(int width, int height) const;
    [[nodiscard]] CChartSummary summary() const;
    // The item that the last rendering gathered, as far as the host still wants it.
    [[nodiscard]] std::optional<CGraph1dItem> gatheredItem() const;
    // Begins a rendering; whether a picture of that size can be made.
    [[nodiscard]] bool begin(const CRequest& request);
    [[nodiscard]] QImage draw(const CRequest& request);
    // Lays out with the texts measured on a canvas; whether the chart fits.
    [[nodiscard]] bool layOut(CCanvas& canvas, const CRequest& request);
    // What was wrong with a picture that could be made.
    [[nodiscard]] Problem findProblem(const CCanvas& canvas) const;
    [[nodiscard]] QString addedFamily() const;
    // Lays out and paints; returns what was wrong with that.
    [[nodiscard]] Problem paintOn(QPaintDevice& device, const CRequest& request);
    // The chart as laid out, as an SVG file.
    [[nodiscard]] CPictureFile writeSvg(CCanvas& canvas, const CRequest& request) const;
    // The colours of a picture in the dark theme, in the order in which they are written.
    [[nodiscard]] std::vector<QColor> darkColors(CSvgFrame frame, CCanvas& canvas,
                                                 const CRequest& request) const;
    void recordCaptions(const std::vector<QRect>& captions);

    // Apart from the last layout, only these outlive a rendering: an item that a rendering leaves
    // out keeps the caption rectangle of an earlier one.
    std::vector<QRect> m_itemRects; // by item; shorter if items were added since
    std::vector<std::size_t> m_selectedItems;
    std::optional<double> m_actingThreshold; // none since the threshold was set
    QRect m_titleRect;
    std::optional<COthers> m_others; // none where the last rendering drew none
    CPictureFile m_file;             // of the last rendering
    bool m_isDrawn = false;
    Problem m_problem = Problem::None;
    bool m_isPage = false; // whether the last rendering was to be a PDF page
};

} // namespace tovangl

#endif
