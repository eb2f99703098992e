// SPDX-License-Identifier: MIT
/// @file
/// Text from outside as it can stand in a page.
#ifndef TOVANGL_COMMON_HTML_TEXT_H
#define TOVANGL_COMMON_HTML_TEXT_H

#include <string>
#include <string_view>

namespace tovangl::program {

/// The text with the characters that mean something in HTML replaced, so that it can stand between
/// tags and between either kind of quotation marks.
[[nodiscard]] std::string escapeHtml(std::string_view text);

/// A file name, which may hold any bytes, as one line of UTF-8 to be looked at: control characters
/// become their pictures (U+2400 and on), broken bytes and marks that turn the direction of what
/// follows become U+FFFD. Two names may look the same.
[[nodiscard]] std::string displayName(std::string_view bytes);

} // namespace tovangl::program

#endif
