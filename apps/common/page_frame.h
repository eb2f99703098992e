// SPDX-License-Identifier: MIT
/// @file
/// What surrounds every page that the programs write.
#ifndef TOVANGL_COMMON_PAGE_FRAME_H
#define TOVANGL_COMMON_PAGE_FRAME_H

#include <string>

namespace tovangl::program {

/// What a page is made of. All of it is HTML, and escaped already.
struct PageParts
{
    std::string generator; ///< the program and its version
    std::string title;
    std::string style; ///< the element that holds the styles, or leads to them
    std::string body;  ///< what stands between the tags
};

[[nodiscard]] std::string pageHtml(const PageParts& parts);

} // namespace tovangl::program

#endif
