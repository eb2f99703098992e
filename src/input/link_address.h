// SPDX-License-Identifier: MIT
/// @file
/// The addresses that an item can lead to.
#ifndef TOVANGL_INPUT_LINK_ADDRESS_H
#define TOVANGL_INPUT_LINK_ADDRESS_H

#include <string_view>

namespace tovangl {

/// Whether following an address shows a page, or begins a mail: it has the scheme http, https or
/// mailto, or it is a place relative to the page that the picture is in. No other scheme is, least
/// of all one that runs a script, however it is disguised: an address with white space or control
/// characters, which readers leave out, or one that begins with two slashes or backslashes is none
/// of these.
///
/// @param address  UTF-8
[[nodiscard]] bool isLinkAddress(std::string_view address);

} // namespace tovangl

#endif
