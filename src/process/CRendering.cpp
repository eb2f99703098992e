// SPDX-License-Identifier: MIT
// What surrounds every rendering of a facade.
#include "process/CRendering.h"

#include "process/message_filter.h"
#include "process/offscreen_application.h"

#include <atomic>
#include <cstdlib>

namespace tovangl {

namespace {

std::atomic<bool> processEnds{false};

// What is drawn from here on is refused. Other threads finish their pictures first, because all
// that they paint with is destroyed next. A thread that ends the process while it draws itself, as
// a handler of signals may, cannot wait for its own picture.
void noteEnd()
{
    processEnds = true;
    if (!isSilenced())
        const CFontChange pictures;
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
