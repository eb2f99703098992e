// SPDX-License-Identifier: MIT
/// @file
/// Reads a file that a host names.
#ifndef TOVANGL_PROCESS_HOST_FILE_H
#define TOVANGL_PROCESS_HOST_FILE_H

#include <string>
#include <vector>

namespace tovangl {

/// The bytes of a regular file. Anything else could make the call wait, or have no end.
///
/// @return empty if it cannot be read, is no regular file, or has more than 256 MB
[[nodiscard]] std::vector<unsigned char> readHostFile(const std::string& path);

} // namespace tovangl

#endif
