// SPDX-License-Identifier: MIT
/// @file
/// The fonts that a user brings along.
#ifndef TOVANGL_COMMON_FONT_FILES_H
#define TOVANGL_COMMON_FONT_FILES_H

#include <string>
#include <vector>

namespace tovangl::program {

/// Makes the families of the files usable. Throws CFailure if one of them is no font file.
///
/// @return their names, in the order of the files
std::vector<std::string> addFontFiles(const std::vector<std::string>& files);

} // namespace tovangl::program

#endif
