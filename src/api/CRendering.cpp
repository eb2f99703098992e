// SPDX-License-Identifier: MIT
// What surrounds every rendering of a facade.
#include "api/CRendering.h"

#include "api/offscreen_application.h"

#include <atomic>
#include <cstdlib>

namespace tovangl {

namespace {

std::atomic<bool> processEnds{false};

void noteEnd()
{
    processEnds = true;
}

CGraph1dBase::Problem findObstacle()
{
    using Problem = CGraph1dBase::Problem;
    if (processEnds)
        return Problem::ProcessEnding;
    return ensureApplication() ? Problem::None : Problem::NoPlatformPlugin;
}

} // namespace

CRendering::CRendering()
    : m_obstacle(findObstacle())
{}

// Qt makes its tables at the first painting and has them destroyed at the process's end. A handler
// that is registered just after that runs just before.
CRendering::~CRendering()
{
    [[maybe_unused]] static const int isRegistered = std::atexit(noteEnd);
}

} // namespace tovangl
