// SPDX-License-Identifier: MIT
// Lets any allocation fail in the life of every kind of chart, Qt's included, and counts how the
// processes end. What Qt does then is not the library's to choose: this measures it.
//
// all_allocations_fail [--every N]
#include "hostile/child_run.h"
#include "memory/CChartLife.h"
#include "memory/allocation_faults.h"

#include <cstdio>
#include <cstdlib>
#include <map>
#include <stdexcept>
#include <string>

namespace tovangl {
namespace {

using Endings = std::map<std::string, long>;

long countAllocations(ChartKind kind)
{
    const CAllocationFaults faults(FaultPattern::Once, 0);
    CChartLife life(kind);
    life.live();
    return faults.count();
}

void liveWithFault(ChartKind kind, FaultPattern pattern, long failing,
                   const std::vector<CRenderedChart>& expected)
{
    const CAllocationFaults faults(pattern, failing);
    CChartLife life(kind);
    life.live();
    for (std::size_t i = 0; i < expected.size(); ++i) {
        if (!isSameRendering(life.renderings()[i], expected[i]))
            throw std::runtime_error("another picture");
    }
    if (life.failureCount() > 0)
        throw std::bad_alloc();
}

std::string endingOf(const CChildReport& child)
{
    if (child.ending == Ending::OtherException)
        return "a picture differs, no exception";
    if (child.ending == Ending::OutOfMemory)
        return "std::bad_alloc left the call, all pictures right";
    if (child.ending == Ending::Normal)
        return "nobody noticed, all pictures right";
    return nameOf(child.ending);
}

void tryKind(ChartKind kind, FaultPattern pattern, long every, Endings& endings)
{
    (void)countAllocations(kind); // fills the caches
    const long count = countAllocations(kind);
    CChartLife undisturbed(kind);
    undisturbed.live();
    for (long failing = 1; failing <= count; failing += every) {
        const CChildReport child = runInChild(
            [&] { liveWithFault(kind, pattern, failing, undisturbed.renderings()); }, CLimits());
        ++endings[endingOf(child)];
        if (!child.isAcceptable())
            std::printf("%s, allocation %ld: %s %s\n", nameOf(kind), failing,
                        endingOf(child).c_str(), child.output.c_str());
    }
}

void measure(FaultPattern pattern, const char* name, long every)
{
    Endings endings;
    for (ChartKind kind : kChartKinds)
        tryKind(kind, pattern, every, endings);
    std::printf("%s:", name);
    for (const auto& [ending, count] : endings)
        std::printf(" %ld %s;", count, ending.c_str());
    std::printf("\n");
}

} // namespace
} // namespace tovangl

int main(int count, char** arguments)
{
    long every = 1;
    for (int i = 1; i + 1 < count; ++i) {
        if (std::string(arguments[i]) == "--every")
            every = std::atol(arguments[++i]);
    }
    tovangl::measure(tovangl::FaultPattern::Once, "one allocation fails", every);
    tovangl::measure(tovangl::FaultPattern::FromThenOn, "all fail from one on", every);
    return EXIT_SUCCESS;
}
