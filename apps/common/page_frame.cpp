// SPDX-License-Identifier: MIT
// What surrounds every page that the programs write.
#include "common/page_frame.h"

namespace tovangl::program {

std::string pageHtml(const PageParts& parts)
{
    return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta name=\"generator\" content=\"" +
           parts.generator +
           "\">\n<meta name=\"viewport\" content=\"width=device-width\">\n<title>" + parts.title +
           "</title>\n" + parts.style + "\n</head>\n<body>\n" + parts.body + "</body>\n</html>\n";
}

} // namespace tovangl::program
