// SPDX-License-Identifier: MIT
// The formats of pictures.
#include "tovangl-chart/picture_format.h"

#include "common/CFailure.h"

#include <algorithm>
#include <cctype>

namespace tovangl::program {

PictureFormat parsePictureFormat(std::string_view text)
{
    for (const PictureFormat format :
         {PictureFormat::Png, PictureFormat::Svg, PictureFormat::Pdf}) {
        if (text == formatName(format))
            return format;
    }
    throw CFailure("\"" + std::string(text) + "\" is not a format: png, svg or pdf");
}

const char* formatName(PictureFormat format)
{
    switch (format) {
    case PictureFormat::Svg:
        return "svg";
    case PictureFormat::Pdf:
        return "pdf";
    case PictureFormat::Png:
        break;
    }
    return "png";
}

PictureFormat formatOfName(std::string_view name)
{
    if (hasEnding(name, ".svg"))
        return PictureFormat::Svg;
    return hasEnding(name, ".pdf") ? PictureFormat::Pdf : PictureFormat::Png;
}

bool hasEnding(std::string_view name, std::string_view ending)
{
    return name.size() >= ending.size() &&
           std::equal(ending.rbegin(), ending.rend(), name.rbegin(), [](char expected, char found) {
               return std::tolower(static_cast<unsigned char>(found)) == expected;
           });
}

} // namespace tovangl::program
