// SPDX-License-Identifier: MIT
/// @file
/// Decodes the texts of the public interface.
#ifndef TOVANGL_BASE_HOST_TEXT_H
#define TOVANGL_BASE_HOST_TEXT_H

#include <QString>

#include <string_view>

namespace tovangl {

/// In UTF-8. Qt leaves it out at the beginning of a text, and nowhere else.
constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";

/// Decodes the whole length of a UTF-8 string: a NUL inside is a character. Throws std::bad_alloc
/// for a text that no QString can hold.
[[nodiscard]] QString toQString(std::string_view text);

} // namespace tovangl

#endif
