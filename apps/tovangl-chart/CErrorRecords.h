// SPDX-License-Identifier: MIT
/// @file
/// What went wrong in a batch, one line of JSON for each line of the input.
#ifndef TOVANGL_CHART_CERRORRECORDS_H
#define TOVANGL_CHART_CERRORRECORDS_H

#include "common/COpenFile.h"
#include "tovangl-chart/batch_answer.h"

#include <optional>
#include <string>

namespace tovangl::program {

/// Each record is written at once. Every operation throws CFailure if the system refuses it.
class CErrorRecords
{
public:
    /// @param path  of a file, which begins anew; "-" is standard output, nothing standard error
    explicit CErrorRecords(const std::optional<std::string>& path);

    /// Why a line has no picture, or what is wrong with the picture.
    void put(const BatchAnswer& answer) const;

private:
    COpenFile m_file;
};

/// {"line": 3, "id": "a", "reason": "..."}, or "problem" where there is a picture; with a line
/// break.
[[nodiscard]] std::string errorRecord(const BatchAnswer& answer);

} // namespace tovangl::program

#endif
