// SPDX-License-Identifier: MIT
/// @file
/// The steps of every chart: from input to layout to picture.
#ifndef TOVANGL_CHART_CGRAPH1D_H
#define TOVANGL_CHART_CGRAPH1D_H

#include "chart/CGraph1dBase.h"
#include "layout/CChartOutput.h"
#include "layout/captions.h"

#include <utility>

namespace tovangl {

/// A chart made of an input struct and a layout struct. computeLayout(), captionRects() and
/// CChartOutput::paint() are overloaded for them.
template <typename Input, typename Layout>
class CGraph1d : public CGraph1dBase
{
public:
    [[nodiscard]] Input& input() override { return m_input; }
    [[nodiscard]] const Input& input() const override { return m_input; }
    /// The last layout; empty before the first rendering.
    [[nodiscard]] const Layout& layout() const { return m_layout; }

protected:
    explicit CGraph1d(Input input)
        : m_input(std::move(input))
    {}

    [[nodiscard]] CSettingTarget settingTarget() final { return CSettingTarget(m_input); }
    std::optional<CDrawnTexts> layOutContents(CTextMeasurer& measurer, const CRequest& request,
                                              const std::vector<std::size_t>& drawn,
                                              const std::optional<CGraph1dItem>& others) final
    {
        m_layout = others ? layOutWith(m_input, *others, drawn, request, measurer)
                          : computeLayout(m_input, drawn, request, measurer);
        if (!m_layout.fits())
            return std::nullopt;
        return CDrawnTexts{titleRect(m_layout), captionRects(m_layout)};
    }
    void paintContents(CChartOutput& output) const final { output.paint(m_layout); }
    void paintInTheme(std::string_view theme, CTextMeasurer& measurer, const CRequest& request,
                      const std::vector<std::size_t>& drawn,
                      const std::optional<CGraph1dItem>& others, CChartOutput& output) const final
    {
        Input input = m_input;
        static_cast<void>(applySetting(CSettingTarget(input), "theme", theme));
        output.paint(others ? layOutWith(std::move(input), *others, drawn, request, measurer)
                            : computeLayout(input, drawn, request, measurer));
    }
    void forgetLayout() final { m_layout = Layout(); }

private:
    // The layout of a chart with one more item. The host's own items stay as they are.
    static Layout layOutWith(Input input, const CGraph1dItem& others,
                             std::vector<std::size_t> drawn, const CRequest& request,
                             CTextMeasurer& measurer)
    {
        drawn.push_back(input.items.size());
        input.items.push_back(others);
        return computeLayout(input, drawn, request, measurer);
    }

    Input m_input;
    Layout m_layout;
};

} // namespace tovangl

#endif
