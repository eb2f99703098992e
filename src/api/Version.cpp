// SPDX-License-Identifier: MIT
// The version of the library.
#include <tovangl/Version.h>

namespace tovangl {

const char* version() noexcept
{
    return TOVANGL_VERSION_STRING;
}

} // namespace tovangl
