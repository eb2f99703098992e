// SPDX-License-Identifier: MIT
// Calculates as a new process does, whatever the host has set.
#include "process/CDefaultArithmetic.h"

namespace tovangl {

// Calls to another file, which the compiler moves no calculation across.
CDefaultArithmetic::CDefaultArithmetic()
{
    static_cast<void>(std::fegetenv(&m_host));
    static_cast<void>(std::fesetenv(FE_DFL_ENV));
}

CDefaultArithmetic::~CDefaultArithmetic()
{
    static_cast<void>(std::fesetenv(&m_host));
}

} // namespace tovangl
