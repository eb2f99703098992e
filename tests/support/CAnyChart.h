// SPDX-License-Identifier: MIT
/// @file
/// A chart of any kind behind one set of operations, for tests that treat all kinds alike.
#ifndef TOVANGL_SUPPORT_CANYCHART_H
#define TOVANGL_SUPPORT_CANYCHART_H

#include <tovangl/tovangl.h>

#include <array>
#include <list>
#include <memory>
#include <string>

namespace tovangl {

enum class ChartKind
{
    VerticalBars,
    HorizontalBars,
    Pie
};

inline constexpr std::array<ChartKind, 3> kChartKinds = {ChartKind::VerticalBars,
                                                         ChartKind::HorizontalBars, ChartKind::Pie};

/// "vertical bars", "horizontal bars" or "pie".
[[nodiscard]] const char* nameOf(ChartKind kind);

/// The bytes of an export, and where the chart keeps them.
struct CExport
{
    const unsigned char* data = nullptr; // borrowed from the chart
    int size = 0;

    [[nodiscard]] std::string bytes() const;
};

/// Owns one facade of the public interface. What a kind of chart does not have is left undone.
class CAnyChart
{
public:
    explicit CAnyChart(ChartKind kind, bool background = false);

    [[nodiscard]] ChartKind kind() const { return m_kind; }
    /// The operations that all charts have.
    [[nodiscard]] Graph& graph() const { return *m_graph; }

    bool addItem(long value, const std::string& text);
    /// A pie has no use for the outline.
    bool addItem(long value, const std::string& text, const Color& fill, const Color& outline);
    /// A bar chart takes the text colour alone.
    void setColors(const Color& outline, const Color& text, const Color& line);
    /// The options of a pie, or the properties of every axis that can be set, with their titles.
    void setProperties(int properties, const std::string& title);
    /// The properties of the value axis alone, where they can be set.
    void setValueAxis(int properties, const std::string& title);
    void setPosition(int x, int y);
    void setBarWidth(int width);
    /// -1 where there are no bars.
    [[nodiscard]] int barWidth() const;

    [[nodiscard]] CExport createPixmap(int width, int height);
    [[nodiscard]] CExport createPixmapForPrinter(int width, int height, int factor);
    [[nodiscard]] CExport createSvg(int width, int height);
    [[nodiscard]] CExport createPdf(int width, int height);
    /// Where the captions are.
    [[nodiscard]] std::list<Rectangle> itemRectangles();
    /// Where the bars are, for each bar drawn and for each item; empty where there are no bars.
    [[nodiscard]] std::list<Rectangle> barRectangles();
    [[nodiscard]] std::list<Rectangle> itemBarRectangles();
    /// Where the slices are; empty where there are none.
    [[nodiscard]] std::list<Slice> slices();

private:
    // Calls an operation that both bar charts have.
    template <typename Call>
    void withBars(Call call) const
    {
        if (m_vertical)
            call(*m_vertical);
        if (m_horizontal)
            call(*m_horizontal);
    }

    ChartKind m_kind;
    // One of the three is there; the last field is that one.
    std::unique_ptr<VerticalBarGraph> m_vertical;
    std::unique_ptr<HorizontalBarGraph> m_horizontal;
    std::unique_ptr<PieGraph> m_pie;
    Graph* m_graph = nullptr; // borrowed from the owner above
};

} // namespace tovangl

#endif
