// SPDX-License-Identifier: MIT
// The formats of pictures.
#include "tovangl-chart/picture_format.h"

#include "common/CFailure.h"

#include <algorithm>
#include <cctype>

namespace tovangl::program {

PictureFormat parsePictureFormat(std::string_view text)
{
    if (text == "png")
        return PictureFormat::Png;
    if (text == "svg")
        return PictureFormat::Svg;
    throw CFailure("\"" + std::string(text) + "\" is not a format: png or svg");
}

PictureFormat formatOfName(std::string_view name)
{
    return hasEnding(name, ".svg") ? PictureFormat::Svg : PictureFormat::Png;
}

bool hasEnding(std::string_view name, std::string_view ending)
{
    return name.size() >= ending.size() &&
           std::equal(ending.rbegin(), ending.rend(), name.rbegin(), [](char expected, char found) {
               return std::tolower(static_cast<unsigned char>(found)) == expected;
           });
}

} // namespace tovangl::program
