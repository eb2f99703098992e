// SPDX-License-Identifier: MIT
// A host that draws when its system starts no more threads, and again when it does.
#include "draw_pie.h"

#include <atomic>
#include <cerrno>
#include <dlfcn.h>
#include <pthread.h>
#include <unistd.h>

namespace {

constexpr unsigned kPatience = 30; // seconds

std::atomic<bool> startsThreads{false};

} // namespace

using Create = int (*)(pthread_t*, const pthread_attr_t*, void* (*)(void*), void*);

// Stands in front of the system's.
extern "C" __attribute__((visibility("default"))) int
pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*run)(void*),
               void* argument) noexcept
{
    if (!startsThreads)
        return EAGAIN;
    static const auto create = reinterpret_cast<Create>(dlsym(RTLD_NEXT, "pthread_create"));
    return create(thread, attributes, run, argument);
}

int main(int, char** arguments)
{
    alarm(kPatience);
    const PieExport pie = exportPie();
    if (pie.bytes.empty() != (pie.problem == tovangl::Problem::NoMemory))
        return 1;
    startsThreads = true;
    return drawPie(arguments[1], "later") ? 0 : 2;
}
