// SPDX-License-Identifier: MIT
/// @file
/// Makes untrusted text safe for a page.
#ifndef TOVANGL_COMMON_HTML_TEXT_H
#define TOVANGL_COMMON_HTML_TEXT_H

#include <string>
#include <string_view>

namespace tovangl::program {

/// The text with the characters that have a meaning in HTML escaped, so that it can stand between
/// tags and between either kind of quotation marks.
[[nodiscard]] std::string escapeHtml(std::string_view text);

/// A space, and the attribute with that value, escaped: what a tag goes on with.
[[nodiscard]] std::string htmlAttribute(std::string_view name, std::string_view value);

/// A file name, which can hold any bytes, as one readable line of UTF-8: control characters become
/// their symbols (U+2400 and on); invalid bytes and marks that change the direction of the
/// following text become U+FFFD. Two names can look the same.
[[nodiscard]] std::string displayName(std::string_view bytes);

} // namespace tovangl::program

#endif
