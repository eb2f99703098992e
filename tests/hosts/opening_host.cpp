// SPDX-License-Identifier: MIT
// A host that opens and closes the library three times.
#include "module.h"

int main(int, char** arguments)
{
    for (const char* name : {"first", "second", "third"}) {
        const CModule module(MODULE);
        if (!module.draw(arguments[1], name))
            return 1;
    }
    return 0;
}
