// SPDX-License-Identifier: MIT
// What surrounds every rendering of a facade.
#include "process/CRendering.h"

#include "process/offscreen_application.h"

#include <atomic>
#include <cstdlib>

namespace tovangl {

namespace {

std::atomic<bool> processEnds{false};

void noteEnd()
{
    processEnds = true;
}

} // namespace

Problem findObstacle()
{
    if (processEnds)
        return Problem::ProcessEnding;
    return ensureApplication() ? Problem::None : Problem::NoPlatformPlugin;
}

CRendering::CRendering()
    : m_obstacle(findObstacle())
{}

// Qt creates its tables when it first paints, and registers their destruction as an exit handler.
// An exit handler registered right after that runs right before it.
CRendering::~CRendering()
{
    [[maybe_unused]] static const int isRegistered = std::atexit(noteEnd);
}

} // namespace tovangl
