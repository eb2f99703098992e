// SPDX-License-Identifier: MIT
/// @file
/// Axes for tests of their layout.
#ifndef TOVANGL_LAYOUT_AXIS_SUPPORT_H
#define TOVANGL_LAYOUT_AXIS_SUPPORT_H

#include "layout/CAxis.h"
#include "support/CTestMeasurer.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace tovangl {

inline const CAxisSettings::Properties kLineAndLabels =
    CAxisSettings::ShowLine | CAxisSettings::ShowLabels;

inline const QLocale kEnglish(QLocale::English, QLocale::UnitedStates);

[[nodiscard]] inline std::string nameOf(const CAxisFrame& frame)
{
    constexpr const char* kOrientations[] = {"LeftToRight", "RightToLeft", "BottomToTop",
                                             "TopToBottom"};
    constexpr const char* kLocations[] = {"Top", "Bottom", "Left", "Right"};
    return std::string(kOrientations[frame.orientation()]) + ' ' +
           kLocations[frame.legendLocation()];
}

inline void PrintTo(const CAxisFrame& frame, std::ostream* stream)
{
    *stream << nameOf(frame);
}

inline const CAxisFrame kUpAtTheLeft(CAxisFrame::BottomToTop, CAxisFrame::Left);
inline const CAxisFrame kUpAtTheRight(CAxisFrame::BottomToTop, CAxisFrame::Right);
inline const CAxisFrame kDownAtTheLeft(CAxisFrame::TopToBottom, CAxisFrame::Left);
inline const CAxisFrame kRightAtTheTop(CAxisFrame::LeftToRight, CAxisFrame::Top);
inline const CAxisFrame kRightAtTheBottom(CAxisFrame::LeftToRight, CAxisFrame::Bottom);

/// What the labels of a laid-out axis have in a member, one by one.
template <typename Value>
[[nodiscard]] std::vector<Value> ofLabels(const CAxisLayout& axis, Value CBarTextLabel::*member)
{
    std::vector<Value> values;
    for (const CBarTextLabel& label : axis.labels)
        values.push_back(label.*member);
    return values;
}

/// How far each label stands off the first row.
[[nodiscard]] inline std::vector<int> rowsOf(const CAxisLayout& axis)
{
    std::vector<int> rows;
    for (const CBarTextLabel& label : axis.labels)
        rows.push_back(label.orientedPos.across());
    return rows;
}

[[nodiscard]] inline std::vector<std::size_t> shownLabels(const CAxisLayout& axis)
{
    std::vector<std::size_t> shown;
    for (std::size_t i = 0; i < axis.labels.size(); ++i) {
        if (!axis.labels[i].isHidden)
            shown.push_back(i);
    }
    return shown;
}

/// An axis as a test wants it: the labels stand at equal distances.
struct CAxisPlan
{
    CAxisFrame frame = kRightAtTheBottom;
    CAxisSettings settings{kLineAndLabels, QString()};
    CAxisLook look;
    std::vector<QString> labels;
    int tickDistance = 0;
    int shiftAtBegin = 0;
};

class CPlannedAxis : public CAxis
{
public:
    CPlannedAxis(const CAxisPlan& plan, CTextMeasurer& measurer)
        : CAxis(plan.frame, plan.settings, plan.look, 1, measurer)
        , m_plan(plan)
    {
        const CTextStyle style{plan.settings.has(CAxisSettings::BoldLabels), false};
        std::vector<CBarTextLabel> labels;
        for (const QString& text : plan.labels)
            labels.push_back({CTextLabel(text, style, measurer)});
        setLabels(std::move(labels), plan.labels.empty());
    }

protected:
    [[nodiscard]] CShifts labelShifts(int, int) const override { return {m_plan.shiftAtBegin, 0}; }
    [[nodiscard]] std::vector<int> ticks(const CAxisLayout& axis) const override
    {
        std::vector<int> ticks;
        for (std::size_t i = 0; i < axis.labels.size(); ++i)
            ticks.push_back(static_cast<int>(i) * m_plan.tickDistance);
        return ticks;
    }

private:
    CAxisPlan m_plan;
};

/// Measures and lays planned axes out.
class CAxisBench : public ::testing::Test
{
protected:
    [[nodiscard]] CAxisLayout fitted(const CAxisPlan& plan, const QRect& rect)
    {
        return CPlannedAxis(plan, measurer).fitToRect(rect, measurer);
    }
    /// A plan with so many labels of one text.
    [[nodiscard]] static CAxisPlan labelled(std::size_t count, const char* text = "wwwwww")
    {
        CAxisPlan plan;
        plan.labels.assign(count, QString::fromUtf8(text));
        return plan;
    }
    /// A plan of an axis with a title and nothing else.
    [[nodiscard]] static CAxisPlan titled(const CAxisFrame& frame, const char* title = "title")
    {
        CAxisPlan plan;
        plan.frame = frame;
        plan.settings = {CAxisSettings::ShowTitle, QString::fromUtf8(title)};
        return plan;
    }
    /// The box of labels of one text.
    [[nodiscard]] QSize sizeOf(const char* text = "wwwwww")
    {
        return CTextLabel(QString::fromUtf8(text), CTextStyle(), measurer).wholePixelRect().size();
    }

    CTestMeasurer measurer;
};

} // namespace tovangl

#endif
