// SPDX-License-Identifier: MIT
// An error that stops a program.
#include "common/CFailure.h"

#include "common/text_checks.h"

#include <cerrno>
#include <system_error>

namespace tovangl::program {

CFailure systemFailure(const std::string& where)
{
    return systemFailure(where, errno);
}

CFailure systemFailure(const std::string& where, int errorNumber)
{
    return CFailure(makePrintable(where) + ": " + std::generic_category().message(errorNumber));
}

} // namespace tovangl::program
