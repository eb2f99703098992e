// SPDX-License-Identifier: MIT
/// @file
/// Writes the results of a program so that no file is ever left half-written.
#ifndef TOVANGL_COMMON_OUTPUT_FILES_H
#define TOVANGL_COMMON_OUTPUT_FILES_H

#include <string>
#include <string_view>
#include <vector>

namespace tovangl::program {

/// Standard output, as a path.
inline constexpr const char* kStandardOutput = "-";

struct Output
{
    std::string path; ///< "-" is standard output
    std::string_view bytes;
};

/// Writes every output. Pipes and devices are written to directly. A file is first written under a
/// provisional name beside its place, and renamed when all of it is on the disk and the other
/// outputs have succeeded too; until then the old file stays, and a failure leaves nothing behind.
/// An existing file keeps its permissions, and links are followed. Throws CFailure.
void writeOutputs(const std::vector<Output>& outputs);

/// Whether a path leads to standard output, a pipe or a device, rather than to a file or to
/// nothing.
[[nodiscard]] bool isStream(const std::string& path);

/// Opens what isStream() has found; -1, with errno set, if the system refuses it.
[[nodiscard]] int openStream(const std::string& path);

/// Throws CFailure if the path leads to a terminal, which cannot show binary data.
void refuseTerminal(const std::string& path);

/// Whether two paths lead to one file, or both to standard output.
[[nodiscard]] bool isSamePlace(const std::string& first, const std::string& second);

} // namespace tovangl::program

#endif
