// SPDX-License-Identifier: MIT
// What went wrong in a batch.
#include "tovangl-chart/CErrorRecords.h"

#include "common/output_files.h"

#include <fcntl.h>
#include <nlohmann/json.hpp>
#include <unistd.h>

namespace tovangl::program {

namespace {

constexpr int kNewFile = O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOCTTY;

int openRecords(const std::optional<std::string>& path)
{
    if (!path)
        return ::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0);
    if (*path == kStandardOutput)
        return ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0);
    return ::open(path->c_str(), kNewFile, kNewFilePermissions);
}

std::string nameOf(const std::optional<std::string>& path)
{
    if (!path)
        return "standard error";
    return *path == kStandardOutput ? "standard output" : *path;
}

} // namespace

CErrorRecords::CErrorRecords(const std::optional<std::string>& path)
    : m_file(openRecords(path), nameOf(path))
{}

void CErrorRecords::put(const BatchAnswer& answer) const
{
    m_file.write(errorRecord(answer));
}

std::string errorRecord(const BatchAnswer& answer)
{
    nlohmann::ordered_json record = {{"line", answer.line}, {"id", nullptr}};
    if (!answer.id.empty())
        record["id"] = answer.id;
    if (answer.failure.empty())
        record["problem"] = answer.problem;
    else
        record["reason"] = answer.failure;
    return record.dump() + '\n';
}

} // namespace tovangl::program
