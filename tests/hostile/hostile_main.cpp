// SPDX-License-Identifier: MIT
// Runs the hostile table: each input in a process of its own.
//
// hostile_inputs [--short | --self-test | --list] [--seconds N] [NAME...]
// A NAME runs every input whose name contains it. The last line of the output sums up.
#include "hostile/child_run.h"
#include "hostile/hostile_input.h"

#include <cstdio>
#include <cstdlib>

namespace tovangl {
namespace {

struct COptions
{
    bool isShort = false;
    bool isSelfTest = false;
    bool isList = false;
    CLimits limits;
    std::vector<std::string> names;
};

struct CSummary
{
    int inputs = 0;
    int outOfMemory = 0;
    int failures = 0;
    double mostSeconds = 0;
    double mostMegabytes = 0;
    std::string slowest;
    std::string largest;
};

COptions parseOptions(int count, char** arguments)
{
    COptions options;
    for (int i = 1; i < count; ++i) {
        const std::string option = arguments[i];
        if (option == "--short")
            options.isShort = true;
        else if (option == "--self-test")
            options.isSelfTest = true;
        else if (option == "--list")
            options.isList = true;
        else if (option == "--seconds" && i + 1 < count)
            options.limits.seconds = static_cast<unsigned>(std::atoi(arguments[++i]));
        else
            options.names.push_back(option);
    }
    return options;
}

HostileTable wholeTable()
{
    HostileTable table;
    for (const auto& part : {valueInputs(), textInputs(), settingInputs(), fontInputs(),
                             pictureInputs(), sequenceInputs(), inputsInC()})
        table.insert(table.end(), part.begin(), part.end());
    return table;
}

bool isWanted(const CHostileInput& input, const COptions& options)
{
    if (options.isShort && input.isHeavy)
        return false;
    for (const std::string& name : options.names) {
        if (input.name.find(name) != std::string::npos)
            return true;
    }
    return options.names.empty();
}

void report(const CHostileInput& input, const CChildReport& child)
{
    std::printf("FAIL  %s: %s after %.1f s and %.0f MB\n", input.name.c_str(), nameOf(child.ending),
                child.seconds, child.peakMegabytes);
    if (!child.output.empty())
        std::printf("%s\n", child.output.c_str());
    std::fflush(stdout);
}

void addToSummary(CSummary& summary, const CHostileInput& input, const CChildReport& child)
{
    ++summary.inputs;
    summary.outOfMemory += child.ending == Ending::OutOfMemory ? 1 : 0;
    summary.failures += child.isAcceptable() ? 0 : 1;
    if (child.seconds > summary.mostSeconds) {
        summary.mostSeconds = child.seconds;
        summary.slowest = input.name;
    }
    if (child.peakMegabytes > summary.mostMegabytes) {
        summary.mostMegabytes = child.peakMegabytes;
        summary.largest = input.name;
    }
}

int runTable(const COptions& options)
{
    CSummary summary;
    for (const CHostileInput& input : wholeTable()) {
        if (!isWanted(input, options))
            continue;
        const CChildReport child = runInChild(input.run, options.limits);
        addToSummary(summary, input, child);
        if (!child.isAcceptable())
            report(input, child);
    }
    std::printf("%d hostile inputs, %d ended by std::bad_alloc, %d failed; slowest %.1f s (%s), "
                "largest %.0f MB (%s)\n",
                summary.inputs, summary.outOfMemory, summary.failures, summary.mostSeconds,
                summary.slowest.c_str(), summary.mostMegabytes, summary.largest.c_str());
    return summary.inputs > 0 && summary.failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

int runSelfTest()
{
    CLimits limits;
    limits.seconds = 1;
    int missed = 0;
    const HostileTable faults = seededFaults();
    for (const CHostileInput& fault : faults) {
        const CChildReport child = runInChild(fault.run, limits);
        if (fault.name == nameOf(child.ending))
            continue;
        ++missed;
        std::printf("FAIL  seeded \"%s\" was taken for \"%s\"\n", fault.name.c_str(),
                    nameOf(child.ending));
    }
    std::printf("self-test: %zu seeded endings, %d missed\n", faults.size(), missed);
    return missed == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

int listTable(const COptions& options)
{
    for (const CHostileInput& input : wholeTable()) {
        if (isWanted(input, options))
            std::puts(input.name.c_str());
    }
    return EXIT_SUCCESS;
}

int runHostile(const COptions& options)
{
    if (options.isSelfTest)
        return runSelfTest();
    return options.isList ? listTable(options) : runTable(options);
}

} // namespace
} // namespace tovangl

int main(int count, char** arguments)
{
    return tovangl::runHostile(tovangl::parseOptions(count, arguments));
}
