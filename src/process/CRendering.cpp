// SPDX-License-Identifier: MIT
// What surrounds every rendering of a facade.
#include "process/CRendering.h"

#include "process/CInstalledFonts.h"
#include "process/free_descriptors.h"
#include "process/offscreen_application.h"
#include "process/process_end.h"
#include "process/qt_threads.h"

namespace tovangl {

Problem findObstacle()
{
    if (isProcessEnding())
        return Problem::ProcessEnding;
    if (!areDescriptorsFree() || !qt::canStartPaintThreads())
        return Problem::NoMemory;
    if (!ensureApplication())
        return Problem::NoPlatformPlugin;
    CInstalledFonts::ofProcess().load();
    return Problem::None;
}

CRendering::CRendering()
    : m_obstacle(findObstacle())
{}

CRendering::~CRendering()
{
    notePicture();
}

} // namespace tovangl
