// SPDX-License-Identifier: MIT
/// @file
/// Checks untrusted text for UTF-8, and makes it printable in messages.
#ifndef TOVANGL_COMMON_TEXT_CHECKS_H
#define TOVANGL_COMMON_TEXT_CHECKS_H

#include <cstddef>
#include <string>
#include <string_view>

namespace tovangl::program {

/// The length in bytes of the UTF-8 character that a text starts with; 0 if there is none there.
/// The text must not be empty.
[[nodiscard]] std::size_t characterLength(std::string_view text);

/// Whether a valid character moves a cursor or changes a terminal's state.
[[nodiscard]] bool isControl(std::string_view character);

/// The offset of the first byte that belongs to no UTF-8 character; npos if the text is valid.
/// Overlong forms, surrogates and numbers beyond the last character are invalid.
[[nodiscard]] std::size_t findBrokenUtf8(std::string_view text);

/// The text in a form that is safe to print on a terminal: control characters and invalid bytes
/// become question marks, so that a message stays one line and no file name can control the
/// terminal.
[[nodiscard]] std::string makePrintable(std::string_view text);

/// The text between quotation marks, printable, and cut after about forty characters.
[[nodiscard]] std::string quote(std::string_view text);

} // namespace tovangl::program

#endif
