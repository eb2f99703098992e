// SPDX-License-Identifier: MIT
// Whether a chart's texts are in the font that was asked for.
#include "chart/font_problem.h"

#include "input/CGraph1dSettings.h"
#include "process/CInstalledFonts.h"

#include <QStringList>

#include <algorithm>

namespace tovangl {

namespace {

bool isReplaced(const QString& setting)
{
    const QStringList names = setting.split(QLatin1Char(','));
    return std::none_of(names.begin(), names.end(), [](const QString& name) {
        return CInstalledFonts::ofProcess().hasFamily(name);
    });
}

} // namespace

Problem installedFontProblem(const CGraph1dSettings& settings)
{
    if (!CInstalledFonts::ofProcess().isAnyThere())
        return Problem::NoGlyphs;
    return settings.isFamilyChosen && isReplaced(settings.fontFamily) ? Problem::FamilyReplaced
                                                                      : Problem::None;
}

Problem addedFontProblem(const QString& used, const QString& added)
{
    if (used.isEmpty())
        return Problem::NoGlyphs;
    return used == added ? Problem::None : Problem::FamilyReplaced;
}

} // namespace tovangl
