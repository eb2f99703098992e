// SPDX-License-Identifier: MIT
// A host that links the library.
#include "draw_pie.h"

int main(int, char** arguments)
{
    return drawPie(arguments[1], "linked") ? 0 : 1;
}
