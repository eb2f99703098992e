// SPDX-License-Identifier: MIT
// The fonts of the machine.
#include "process/CInstalledFonts.h"

#include "process/CStderrSilencer.h"
#include "text/qt_text.h"

#include <QFont>
#include <QFontInfo>

#include <algorithm>
#include <array>
#include <memory>

namespace tovangl {

namespace {

// Names of kinds of fonts; whichever family the machine has for them is right.
constexpr std::array<const char*, 8> kKinds = {"sans-serif", "sans",    "serif",   "monospace",
                                               "mono",       "cursive", "fantasy", "system-ui"};

// A name without the foundry, which can follow in brackets.
QString familyOf(const QString& name)
{
    return name.section(QLatin1Char('['), 0, 0).trimmed();
}

bool isKind(const QString& family)
{
    return std::any_of(kKinds.begin(), kKinds.end(), [&family](const char* kind) {
        return family.compare(QLatin1String(kind), Qt::CaseInsensitive) == 0;
    });
}

// Loads the font that the system has for no name, in a size that no chart has. In the size of a
// chart it would change which fonts Qt takes characters from later.
bool isAnyFontThere()
{
    constexpr int kUnusedPixelSize = 30001;
    QFont font;
    font.setPixelSize(kUnusedPixelSize);
    return !QFontInfo(font).family().isEmpty();
}

} // namespace

// They live until the end of the process, because exit handlers can draw.
CInstalledFonts& CInstalledFonts::ofProcess()
{
    static CInstalledFonts& fonts = *std::make_unique<CInstalledFonts>().release();
    return fonts;
}

void CInstalledFonts::load()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_isLoaded)
        return;
    const CStderrSilencer silencer;
    static_cast<void>(qt::hasFamily(QString()));
    m_isLoaded = true;
}

bool CInstalledFonts::hasFamily(const QString& name)
{
    const QString family = familyOf(name);
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto known = m_families.find(family);
    if (known != m_families.end())
        return known->second;
    if (m_families.size() == kMostNames)
        m_families.clear();
    return m_families.emplace(family, isKind(family) || qt::hasFamily(family)).first->second;
}

bool CInstalledFonts::isAnyThere()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isAnyThere = m_isAnyThere || isAnyFontThere();
    return m_isAnyThere;
}

} // namespace tovangl
