// SPDX-License-Identifier: MIT
// A host that opens the library in a worker thread which ends, and draws in several threads.
#include "module.h"

#include <memory>
#include <thread>

int main(int, char** arguments)
{
    const std::string folder = arguments[1];
    std::unique_ptr<CModule> module;
    bool isDrawn[3] = {};
    std::thread([&] {
        module = std::make_unique<CModule>(MODULE);
        isDrawn[0] = module->draw(folder, "opener");
    }).join();
    std::thread([&] { isDrawn[1] = module->draw(folder, "worker"); }).join();
    isDrawn[2] = module->draw(folder, "main");
    return isDrawn[0] && isDrawn[1] && isDrawn[2] ? 0 : 1;
}
