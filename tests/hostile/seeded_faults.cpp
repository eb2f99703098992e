// SPDX-License-Identifier: MIT
// Inputs that must be reported, each for its own reason: the table's own test.
#include "hostile/hostile_input.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <unistd.h>

namespace tovangl {

HostileTable seededFaults()
{
    // Named as the runner names what it must find.
    return {
        {"ended normally", [] {}},
        {"ran out of memory", [] { throw std::bad_alloc(); }},
        {"threw something else than std::bad_alloc", [] { throw std::runtime_error("seeded"); }},
        {"took too long",
         [] {
             for (volatile bool isWorking = true; isWorking;) {
             }
         }},
        {"took too long",
         [] {
             for (;;)
                 ::pause();
         }},
        {"crashed", [] { std::raise(SIGSEGV); }},
        {"crashed", [] { std::exit(EXIT_SUCCESS); }},
        {"printed something", [] { std::puts("seeded"); }},
    };
}

} // namespace tovangl
