// SPDX-License-Identifier: MIT
/// @file
/// The fonts that a user brings along.
#ifndef TOVANGL_COMMON_FONT_FILES_H
#define TOVANGL_COMMON_FONT_FILES_H

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <string>
#include <vector>

namespace tovangl::program {

/// Adds the option --font-file, which can be given several times.
///
/// @param files  receives the paths
CLI::Option* addFontFileOption(CLI::App& command, std::vector<std::string>& files);

/// Makes the families of the files usable. Throws CFailure if one of them is no font file.
///
/// @return their names, in the order of the files
std::vector<std::string> addFontFiles(const std::vector<std::string>& files);

} // namespace tovangl::program

#endif
