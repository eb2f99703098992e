// SPDX-License-Identifier: MIT
// The one settings object of the process.
#include "base/CGlobal.h"

namespace tovangl {

namespace {

CGlobal global;

} // namespace

CGlobal* getGlobal()
{
    return &global;
}

} // namespace tovangl
