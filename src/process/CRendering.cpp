// SPDX-License-Identifier: MIT
// What surrounds every rendering of a facade.
#include "process/CRendering.h"

#include "process/CAddedFonts.h"
#include "process/CInstalledFonts.h"
#include "process/free_descriptors.h"
#include "process/offscreen_application.h"
#include "process/process_end.h"
#include "process/qt_threads.h"

namespace tovangl {

namespace {

bool areAddedFontsLost()
{
    const CFontUse use;
    return CAddedFonts::ofProcess().areLost();
}

void restoreAddedFonts()
{
    if (isProcessEnding() || !areAddedFontsLost())
        return;
    const CFontChange change;
    const CMessageSilencer silencer;
    if (ensureApplication() && CAddedFonts::ofProcess().areLost())
        CAddedFonts::ofProcess().restore();
}

CFontUse useFonts()
{
    restoreAddedFonts();
    return CFontUse();
}

} // namespace

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
    : m_fontUse(useFonts())
    , m_obstacle(findObstacle())
{}

CRendering::~CRendering()
{
    notePicture();
}

} // namespace tovangl
