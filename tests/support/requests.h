// SPDX-License-Identifier: MIT
/// @file
/// The pictures that tests ask for.
#ifndef TOVANGL_SUPPORT_REQUESTS_H
#define TOVANGL_SUPPORT_REQUESTS_H

#include "layout/CRequest.h"

namespace tovangl {

[[nodiscard]] inline CRequest onScreen(int width, int height)
{
    return {width, height};
}

/// A picture so many times as large as one on a screen.
[[nodiscard]] inline CRequest inPrint(int width, int height, int factor)
{
    return {width * factor, height * factor, factor, OutputDevice::Printer};
}

} // namespace tovangl

#endif
