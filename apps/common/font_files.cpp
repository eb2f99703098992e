// SPDX-License-Identifier: MIT
// The fonts that a user brings along.
#include "common/font_files.h"

#include "common/CFailure.h"
#include "common/text_checks.h"
#include <tovangl/Font.h>

namespace tovangl::program {

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
