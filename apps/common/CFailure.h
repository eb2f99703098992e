// SPDX-License-Identifier: MIT
/// @file
/// An error that stops a program: one line for the user that says where and why.
#ifndef TOVANGL_COMMON_CFAILURE_H
#define TOVANGL_COMMON_CFAILURE_H

#include <stdexcept>
#include <string>

namespace tovangl::program {

/// The message has no line break and no program name; runProgram() adds both.
class CFailure : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The failure of the system call that has just set errno, for the named file or option.
[[nodiscard]] CFailure systemFailure(const std::string& where);

/// The same with a saved value of errno.
[[nodiscard]] CFailure systemFailure(const std::string& where, int errorNumber);

} // namespace tovangl::program

#endif
