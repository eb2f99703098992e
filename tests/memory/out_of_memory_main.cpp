// SPDX-License-Identifier: MIT
// Lets each allocation of the library's own fail once in the life of every kind of chart, through
// the C++ interface and through that of C, and while a font is added.
//
// out_of_memory [--every N] [--self-test | --seed-leak]
// --every N tries only each N-th allocation; --seed-leak does nothing but leak. The last line of
// the output sums up.
#include "memory/CChartLife.h"
#include "memory/CChartLifeInC.h"
#include "memory/allocation_faults.h"
#include "support/small_font.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace tovangl {
namespace {

enum class SeededFault
{
    None,
    Leak,
    WrongPicture,
    SwallowedFailure
};

struct CSummary
{
    long allocations = 0;
    long failuresTried = 0;
    long wrong = 0;
};

// A fewer number would mean that the counting does not work.
constexpr long kFewestAllocations = 50;

template <typename Life>
std::vector<CRenderedChart> renderUndisturbed(ChartKind kind)
{
    Life life(kind);
    life.live();
    return life.renderings();
}

bool areSameRenderings(const std::vector<CRenderedChart>& a, const std::vector<CRenderedChart>& b)
{
    bool isSame = a.size() == b.size();
    for (std::size_t i = 0; isSame && i < a.size(); ++i)
        isSame = isSameRendering(a[i], b[i]);
    return isSame;
}

void seed(CChartLife& life, SeededFault fault)
{
    if (fault == SeededFault::WrongPicture)
        life.addItemAfterFailure();
    if (fault == SeededFault::SwallowedFailure)
        life.swallowFailure();
}

// The faults of the harness are seeded in the other life alone.
void seed(CChartLifeInC& /*life*/, SeededFault /*fault*/) {}

// Tries one failing allocation, and says what went wrong; null where nothing did.
template <typename Life>
const char* findFlaw(ChartKind kind, const std::vector<CRenderedChart>& expected,
                     const CAllocationFaults& faults, SeededFault seeded)
{
    const long liveBefore = CAllocationFaults::liveCount();
    bool areEqual = false;
    int failureCount = 0;
    bool isTold = false;
    {
        Life life(kind);
        seed(life, seeded);
        life.live();
        areEqual = areSameRenderings(life.renderings(), expected);
        failureCount = life.failureCount();
        isTold = life.tellsLackOfMemory();
    }
    if (seeded == SeededFault::Leak)
        (void)CAllocationFaults::allocateAsLibrary();
    if (!areEqual)
        return "the chart renders another picture afterwards";
    if (faults.hasFailed() != (failureCount == 1))
        return "the call does not tell that memory ran out";
    if (!isTold)
        return "the chart does not say that memory ran out";
    if (CAllocationFaults::liveCount() != liveBefore)
        return "an allocation is not freed";
    return nullptr;
}

// Lets the allocations of one kind of chart fail, one after the other, until a life has no more.
template <typename Life>
void tryKind(ChartKind kind, FaultPattern pattern, long every, SeededFault seeded,
             CSummary& summary)
{
    const std::vector<CRenderedChart> expected = renderUndisturbed<Life>(kind);
    for (long failing = 1;; failing += every) {
        const CAllocationFaults faults(pattern, failing);
        const char* const flaw = findFlaw<Life>(kind, expected, faults, seeded);
        if (!faults.hasFailed()) {
            summary.allocations += CAllocationFaults::count();
            return;
        }
        ++summary.failuresTried;
        if (flaw) {
            ++summary.wrong;
            std::printf("FAIL  %s, allocation %ld: %s\n", nameOf(kind), failing, flaw);
        }
    }
}

// Adds a font that is there already, or a new one; whether that ran out of memory.
bool runsOutWhileAdding(const std::string& file)
{
    const CFaultyCall faulty;
    try {
        (void)addFont(reinterpret_cast<const unsigned char*>(file.data()), file.size());
        return false;
    } catch (const std::bad_alloc&) {
        return true;
    }
}

const char* findFlawInFonts(const std::string& file, const CAllocationFaults& faults)
{
    const long liveBefore = CAllocationFaults::liveCount();
    const bool isOut = runsOutWhileAdding(file);
    if (faults.hasFailed() != isOut)
        return "std::bad_alloc does not leave the call";
    if (isOut && CAllocationFaults::liveCount() != liveBefore)
        return "an allocation is not freed";
    return nullptr;
}

// Every time with a family of its own, because a font is added once.
void tryFonts(FaultPattern pattern, CSummary& summary)
{
    for (long failing = 1;; ++failing) {
        const std::string file = smallFont(std::to_string(summary.failuresTried));
        const CAllocationFaults faults(pattern, failing);
        const char* const flaw = findFlawInFonts(file, faults);
        if (!faults.hasFailed())
            return;
        ++summary.failuresTried;
        ++summary.allocations;
        if (flaw) {
            ++summary.wrong;
            std::printf("FAIL  adding a font, allocation %ld: %s\n", failing, flaw);
        }
    }
}

template <typename Life>
void tryEveryKind(long every, SeededFault seeded, CSummary& summary)
{
    for (ChartKind kind : kChartKinds) {
        const long before = summary.allocations;
        tryKind<Life>(kind, FaultPattern::Once, every, seeded, summary);
        if (summary.allocations - before < kFewestAllocations) {
            ++summary.wrong;
            std::printf("FAIL  %s: hardly any allocation counted\n", nameOf(kind));
        }
        tryKind<Life>(kind, FaultPattern::FromThenOn, every, seeded, summary);
    }
}

CSummary tryAll(long every, SeededFault seeded)
{
    CSummary summary;
    (void)runsOutWhileAdding(smallFont("the first")); // makes the process's list of fonts
    tryFonts(FaultPattern::Once, summary);
    tryFonts(FaultPattern::FromThenOn, summary);
    tryEveryKind<CChartLife>(every, seeded, summary);
    tryEveryKind<CChartLifeInC>(every, seeded, summary);
    tryKind<CPictureLife>(ChartKind::HorizontalBars, FaultPattern::Once, every, seeded, summary);
    return summary;
}

int runSelfTest()
{
    constexpr long kFew = 100;
    int missed = 0;
    for (SeededFault fault :
         {SeededFault::Leak, SeededFault::WrongPicture, SeededFault::SwallowedFailure})
        missed += tryAll(kFew, fault).wrong == 0 ? 1 : 0;
    std::printf("self-test: 3 seeded faults, %d missed\n", missed);
    return missed == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

int runAll(long every)
{
    const CSummary summary = tryAll(every, SeededFault::None);
    std::printf("%ld allocations in the lives of three charts in C++ and in C and for fonts, %ld "
                "failures tried, %ld wrong\n",
                summary.allocations / 2, summary.failuresTried, summary.wrong);
    return summary.wrong == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace
} // namespace tovangl

int main(int count, char** arguments)
{
    long every = 1;
    for (int i = 1; i < count; ++i) {
        const std::string option = arguments[i];
        if (option == "--self-test")
            return tovangl::runSelfTest();
        if (option == "--seed-leak") {
            (void)tovangl::CAllocationFaults::allocateAsLibrary();
            return EXIT_SUCCESS;
        }
        if (option == "--every" && i + 1 < count)
            every = std::atol(arguments[++i]);
    }
    return tovangl::runAll(every);
}
