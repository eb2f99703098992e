// SPDX-License-Identifier: MIT
/// @file
/// The version of the headers, and that of the library. The macros are for C as well.
#ifndef TOVANGL_VERSION_H
#define TOVANGL_VERSION_H

#include <tovangl/Export.h>

/// The version that a host is compiled with, in three numbers and as a string.
#define TOVANGL_VERSION_MAJOR 1
#define TOVANGL_VERSION_MINOR 0        ///< see TOVANGL_VERSION_MAJOR
#define TOVANGL_VERSION_PATCH 0        ///< see TOVANGL_VERSION_MAJOR
#define TOVANGL_VERSION_STRING "1.0.0" ///< see TOVANGL_VERSION_MAJOR

#ifdef __cplusplus
namespace tovangl {

/// The version of the library that the process has loaded, such as "1.0.0". It may be later than
/// TOVANGL_VERSION_STRING, which the host was compiled with.
///
/// @return a string that lives as long as the process
TOVANGL_EXPORT const char* version() noexcept;

} // namespace tovangl
#endif

#endif
