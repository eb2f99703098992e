// SPDX-License-Identifier: MIT
// What was wrong with a rendering, in words.
#include "chart/problem_text.h"

namespace tovangl {

const char* problemSentence(Problem problem)
{
    switch (problem) {
    case Problem::None:
        break;
    case Problem::SizeOutOfRange:
        return "A picture measures 1 to 1,000,000 pixels a side, and has at most 2,147,483,647 "
               "bytes at four bytes a pixel.";
    case Problem::NoMemory:
        return "There is not enough memory for the picture, or no free file descriptor or thread.";
    case Problem::NoPlatformPlugin:
        return "Qt's offscreen platform plugin is not installed, or cannot be loaded.";
    case Problem::ProcessEnding:
        return "The process is ending, and Qt can no longer paint.";
    case Problem::TooSmallForChart:
        return "The picture has no room for the chart.";
    case Problem::NoGlyphs:
        return "There is no font on this machine, and the chart has no letters.";
    case Problem::FamilyReplaced:
        return "The font family is not there, and another one takes its place.";
    }
    return "";
}

const char* pageProblemSentence(Problem problem)
{
    if (problem == Problem::SizeOutOfRange)
        return "A PDF page measures 1 to 14,400 points a side.";
    return problemSentence(problem);
}

} // namespace tovangl
