// SPDX-License-Identifier: MIT
/// @file
/// What the library finds on the machine.
#ifndef TOVANGL_DIAGNOSIS_H
#define TOVANGL_DIAGNOSIS_H

#include <tovangl/Export.h>

#include <string>

namespace tovangl {

/// The version of Qt that the process has loaded, such as "5.15.8".
///
/// @return a string that lives as long as the process
TOVANGL_EXPORT const char* qtVersion() noexcept;

/// The platform plugin of Qt that charts are drawn with: "offscreen", unless the host has a Qt
/// application of its own.
///
/// @return empty if nothing can be drawn, because there is no plugin or the process is ending
TOVANGL_EXPORT std::string platformName();

/// The font family that charts are drawn in if this one is set, which differs from it where it is
/// not there. Takes what Graph::setFont() takes. Only std::bad_alloc can leave the call.
///
/// @param family  empty: the default family
/// @return UTF-8; empty if there is no font at all, or nothing can be drawn
TOVANGL_EXPORT std::string usedFontFamily(const std::string& family);

} // namespace tovangl

#endif
