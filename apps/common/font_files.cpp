// SPDX-License-Identifier: MIT
// The fonts that a user brings along.
#include "common/font_files.h"

#include "common/CFailure.h"
#include "common/text_checks.h"
#include <tovangl/Font.h>

namespace tovangl::program {

CLI::Option* addFontFileOption(CLI::App& command, std::vector<std::string>& files)
{
    return command
        .add_option("--font-file", files,
                    "Use the font in this TTF or OTF file, installed or not; can be repeated")
        ->type_name("FILE")
        ->allow_extra_args(false) // what follows the file is not another one
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

std::vector<std::string> addFontFiles(const std::vector<std::string>& files)
{
    std::vector<std::string> families;
    for (const std::string& file : files) {
        const std::vector<std::string> added = addFont(file);
        if (added.empty())
            throw CFailure(makePrintable(file) + ": cannot be read, or is no TTF or OTF font");
        families.insert(families.end(), added.begin(), added.end());
    }
    return families;
}

} // namespace tovangl::program
