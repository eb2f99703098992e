// SPDX-License-Identifier: MIT
// What a plugin with a static copy of the library inside adds: the scope that a rendering opens.
#include "process/CMessageSilencer.h"

extern "C" __attribute__((visibility("default"))) void* openRendering()
{
    return new tovangl::CMessageSilencer;
}

extern "C" __attribute__((visibility("default"))) void closeRendering(void* rendering)
{
    delete static_cast<tovangl::CMessageSilencer*>(rendering);
}
