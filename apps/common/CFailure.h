// SPDX-License-Identifier: MIT
/// @file
/// What stops a program: one line for the user that says where and why.
#ifndef TOVANGL_COMMON_CFAILURE_H
#define TOVANGL_COMMON_CFAILURE_H

#include <stdexcept>
#include <string>

namespace tovangl::program {

/// The message has no line break and no name of the program; the frame of the program adds both.
class CFailure : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The failure of the system call that has just set errno, about the file or option named.
[[nodiscard]] CFailure systemFailure(const std::string& where);

/// The same with a number that was kept from errno.
[[nodiscard]] CFailure systemFailure(const std::string& where, int errorNumber);

} // namespace tovangl::program

#endif
