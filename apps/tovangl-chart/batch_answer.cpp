// SPDX-License-Identifier: MIT
// What becomes of one line of a batch.
#include "tovangl-chart/batch_answer.h"

#include "common/CFailure.h"
#include "common/text_checks.h"
#include "tovangl-chart/described_chart.h"

#include <new>

namespace tovangl::program {

namespace {

std::string mapOf(const ChartDescription& chart, const ChartRegions& regions, MapForm form)
{
    return form == MapForm::File ? regionMapJson(chart.items, regions)
                                 : regionMapLine(chart.items, regions);
}

void draw(const ChartDescription& chart, const AnswerRules& rules, BatchAnswer& answer)
{
    DrawnChart drawn =
        drawDescription(chart, {rules.format, rules.family, rules.map != MapForm::None});
    answer.picture = std::move(drawn.picture);
    answer.problem = std::move(drawn.problem);
    if (!drawn.regions)
        return;
    answer.map = mapOf(chart, *drawn.regions, rules.map);
    answer.description = std::move(drawn.regions->description);
}

void fill(BatchAnswer& answer, const NumberedLine& line, const AnswerRules& rules)
{
    if (line.isTooLong)
        throw CFailure("the line has more than " + std::to_string(rules.longestLine) + " bytes");
    const ChartDescription chart = parseDescription(line.text);
    answer.id = chart.id;
    if (rules.needsId && chart.id.empty())
        throw CFailure("/id: is missing, and would name the file");
    answer.isThere = rules.isThere && rules.isThere(chart.id);
    if (!answer.isThere)
        draw(chart, rules, answer);
}

} // namespace

BatchAnswer answerLine(const NumberedLine& line, const AnswerRules& rules)
{
    BatchAnswer answer;
    answer.line = line.number;
    answer.end = line.end;
    try {
        fill(answer, line, rules);
    } catch (const std::bad_alloc&) {
        answer.failure = "out of memory";
    } catch (const std::exception& failure) {
        answer.failure = makePrintable(failure.what());
    }
    return answer;
}

} // namespace tovangl::program
