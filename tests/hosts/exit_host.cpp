// SPDX-License-Identifier: MIT
// A host that draws while it exits: in a handler registered before its first picture, in one
// registered afterwards, and in the destructor of a static object.
#include "draw_pie.h"

#include <cstdlib>

namespace {

std::string folder;

void require(bool condition)
{
    if (!condition)
        std::_Exit(1);
}

// What painting needs is gone by now.
void requireNoPicture()
{
    const PieExport pie = exportPie();
    require(pie.bytes.empty() && pie.problem == tovangl::Problem::ProcessEnding);
}

class CDrawingAtTheEnd
{
public:
    ~CDrawingAtTheEnd() { requireNoPicture(); }
};

const CDrawingAtTheEnd drawingAtTheEnd;

void drawTooLate()
{
    requireNoPicture();
}

void drawInTime()
{
    require(drawPie(folder, "handler"));
}

} // namespace

int main(int, char** arguments)
{
    folder = arguments[1];
    require(std::atexit(drawTooLate) == 0);
    require(drawPie(folder, "main"));
    require(std::atexit(drawInTime) == 0);
    return 0;
}
