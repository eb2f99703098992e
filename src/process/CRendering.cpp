// SPDX-License-Identifier: MIT
// What surrounds every rendering of a facade.
#include "process/CRendering.h"

#include "process/offscreen_application.h"
#include "process/process_end.h"

namespace tovangl {

Problem findObstacle()
{
    if (isProcessEnding())
        return Problem::ProcessEnding;
    return ensureApplication() ? Problem::None : Problem::NoPlatformPlugin;
}

CRendering::CRendering()
    : m_obstacle(findObstacle())
{}

CRendering::~CRendering()
{
    notePicture();
}

} // namespace tovangl
