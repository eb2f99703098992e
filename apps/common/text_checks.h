// SPDX-License-Identifier: MIT
/// @file
/// Text from outside: is it UTF-8, and how is it shown in a message.
#ifndef TOVANGL_COMMON_TEXT_CHECKS_H
#define TOVANGL_COMMON_TEXT_CHECKS_H

#include <cstddef>
#include <string>
#include <string_view>

namespace tovangl::program {

/// The number of bytes of the UTF-8 character that the text, not empty, starts with; 0: it is none.
[[nodiscard]] std::size_t characterLength(std::string_view text);

/// Whether a character, whole and sound, moves a cursor or changes a terminal's state.
[[nodiscard]] bool isControl(std::string_view character);

/// The offset of the first byte that belongs to no UTF-8 character; npos where the text is sound.
/// Overlong forms, surrogates and numbers beyond the last character are no characters.
[[nodiscard]] std::size_t findBrokenUtf8(std::string_view text);

/// The text as it can stand in a line on a terminal: control characters and broken bytes become
/// question marks, so that a message stays one line and no file name can steer the terminal.
[[nodiscard]] std::string makePrintable(std::string_view text);

/// The text between quotation marks, printable, and cut after some forty characters.
[[nodiscard]] std::string quote(std::string_view text);

} // namespace tovangl::program

#endif
