// SPDX-License-Identifier: MIT
// The charts that the tables of scripts/bench are about.
#include "charts/case_list.h"

#include <fstream>
#include <sstream>

namespace tovangl {
namespace bench {

namespace {

const std::string kFolder = TOVANGL_BENCH_CASES "/";

// A line holds the case's name, and then what the measuring programs take as arguments.
CNamedCase parseCase(const std::string& line)
{
    std::string words[kCaseArguments];
    std::istringstream stream(line);
    for (std::string& word : words)
        stream >> word;
    const std::string name = words[0];
    words[2] = kFolder + words[2];
    char* arguments[kCaseArguments];
    for (int i = 0; i < kCaseArguments; ++i)
        arguments[i] = words[i].data();
    return {name, readChartCase(kCaseArguments, arguments)};
}

std::vector<CNamedCase> readCaseList()
{
    std::vector<CNamedCase> cases;
    std::ifstream file(kFolder + "list.tsv");
    std::string line;
    while (std::getline(file, line))
        cases.push_back(parseCase(line));
    return cases;
}

} // namespace

const std::vector<CNamedCase>& caseList()
{
    static const std::vector<CNamedCase> cases = readCaseList();
    return cases;
}

} // namespace bench
} // namespace tovangl
