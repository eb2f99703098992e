// SPDX-License-Identifier: MIT
/// @file
/// What becomes of one line of a batch.
#ifndef TOVANGL_CHART_BATCH_ANSWER_H
#define TOVANGL_CHART_BATCH_ANSWER_H

#include "tovangl-chart/CBoundedLines.h"
#include "tovangl-chart/picture_format.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

namespace tovangl::program {

/// In which form the regions of a chart are wanted.
enum class MapForm
{
    None,
    File, ///< with line breaks
    Line  ///< without
};

/// How every line is answered.
struct AnswerRules
{
    std::string family; ///< the font's, where a chart names none; empty for the default
    PictureFormat format = PictureFormat::Png;
    MapForm map = MapForm::None;
    bool needsId = false;
    std::size_t longestLine = 0; ///< bytes
    /// Whether the files of an id are there already; called by several threads.
    std::function<bool(const std::string& id)> isThere;
};

struct BatchAnswer
{
    std::size_t line = 0;   ///< its number
    std::uintmax_t end = 0; ///< bytes of the input up to its end
    std::string id;         ///< empty: none
    std::string failure;    ///< empty, or why there is no picture
    bool isThere = false;   ///< passed over, because its files are there
    std::string picture;
    std::string map; ///< empty, like the next one: not wanted
    std::string description;
    std::string problem; ///< of the picture; empty where all is well
};

/// Draws the chart of a line. Whatever goes wrong is the answer; only where there is no memory even
/// for that, std::bad_alloc leaves.
[[nodiscard]] BatchAnswer answerLine(const NumberedLine& line, const AnswerRules& rules);

} // namespace tovangl::program

#endif
