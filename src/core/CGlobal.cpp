// SPDX-License-Identifier: MIT
// The one settings object of the process.
#include "core/CGlobal.h"

namespace tovangl {

namespace {

CGlobal global;

} // namespace

CGlobal* getGlobal()
{
    return &global;
}

} // namespace tovangl
