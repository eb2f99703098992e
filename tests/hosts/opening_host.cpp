// SPDX-License-Identifier: MIT
// A host that opens and closes the library three times; with "namespace" each time as a copy whose
// symbols, and those of all libraries that it needs, are its own.
#include "module.h"

namespace {

void* openInNamespace(const char* path, int mode)
{
    return dlmopen(LM_ID_NEWLM, path, mode);
}

} // namespace

int main(int count, char** arguments)
{
    const bool isInNamespace = count > 2 && std::string(arguments[2]) == "namespace";
    for (const char* name : {"first", "second", "third"}) {
        const CModule module(MODULE, isInNamespace ? openInNamespace : dlopen);
        if (!module.draw(arguments[1], name))
            return 1;
    }
    return 0;
}
