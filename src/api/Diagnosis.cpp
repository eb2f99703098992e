// SPDX-License-Identifier: MIT
// What the library finds on the machine.
#include "api/conversions.h"
#include "input/CGraph1dSettings.h"
#include "layout/CRequest.h"
#include "paint/CCanvas.h"
#include "process/CAddedFonts.h"
#include "process/CRendering.h"
#include "process/qt_threads.h"
#include <tovangl/Diagnosis.h>

#include <QGuiApplication>
#include <QImage>

namespace tovangl {

namespace {

CGraph1dSettings settingsWith(const std::string& family)
{
    CGraph1dSettings settings;
    if (!family.empty())
        settings.setFont(toQString(family), settings.fontSize);
    return settings;
}

} // namespace

const char* qtVersion() noexcept
{
    return qt::runningVersion();
}

std::string platformName()
{
    const CRendering rendering;
    return rendering.obstacle() == Problem::None ? QGuiApplication::platformName().toStdString()
                                                 : std::string();
}

std::string usedFontFamily(const std::string& family)
{
    const CRendering rendering;
    if (rendering.obstacle() != Problem::None)
        return {};
    const CGraph1dSettings settings = settingsWith(family);
    const CAddedFonts& fonts = CAddedFonts::ofProcess();
    QImage image(1, 1, QImage::Format_ARGB32);
    const CCanvas canvas(image, settings, CRequest(), fonts.qtFamily(settings.fontFamily));
    return fonts.nameOf(canvas.usedFamily()).toStdString();
}

} // namespace tovangl
