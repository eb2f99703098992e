// SPDX-License-Identifier: MIT
// Opens and closes a plugin that draws, three times.
#include <cstdio>
#include <dlfcn.h>

namespace {

int drawOnce(const char* path)
{
    using DrawPie = int (*)(const char*);
    void* plugin = dlopen(PLUGIN, RTLD_NOW);
    void* symbol = plugin ? dlsym(plugin, "drawPie") : nullptr;
    if (!symbol) {
        std::fprintf(stderr, "%s\n", dlerror());
        return 1;
    }
    const int status = reinterpret_cast<DrawPie>(symbol)(path);
    dlclose(plugin);
    return status;
}

} // namespace

int main(int count, char** arguments)
{
    int status = count == 2 ? 0 : 2;
    for (int round = 0; round < 3 && status == 0; ++round)
        status = drawOnce(arguments[1]);
    return status;
}
