// SPDX-License-Identifier: MIT
// Whether a chart's texts are in the font that was asked for.
#include "api/font_problem.h"

#include "input/CGraph1dSettings.h"
#include "text/qt_text.h"

#include <QFont>
#include <QFontInfo>

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <mutex>

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

bool isKind(const QString& name)
{
    return std::any_of(kKinds.begin(), kKinds.end(), [&name](const char* kind) {
        return name.compare(QLatin1String(kind), Qt::CaseInsensitive) == 0;
    });
}

// Whether the machine knows the name: as another name of a family, or as one for which its
// configuration has a family.
bool isResolved(const QString& name)
{
    return isKind(name) || qt::hasFamily(name);
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

// Asking takes a tenth of the time of a small chart, and the machine's fonts stay the same.
class CKnownFonts
{
public:
    [[nodiscard]] bool isNameResolved(const QString& name)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto known = m_names.find(name);
        if (known != m_names.end())
            return known->second;
        if (m_names.size() == kMostNames)
            m_names.clear();
        return m_names.emplace(name, isResolved(name)).first->second;
    }

    // Asked again while there is none, because a host can add one.
    [[nodiscard]] bool isAnyThere()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isAnyThere = m_isAnyThere || isAnyFontThere();
        return m_isAnyThere;
    }

private:
    static constexpr std::size_t kMostNames = 256;

    std::mutex m_mutex;
    std::map<QString, bool> m_names;
    bool m_isAnyThere = false;
};

// Lives until the end of the process, because exit handlers can draw.
CKnownFonts& knownFonts()
{
    static CKnownFonts& fonts = *std::make_unique<CKnownFonts>().release();
    return fonts;
}

bool isReplaced(const QString& setting)
{
    const QStringList names = setting.split(QLatin1Char(','));
    return std::none_of(names.begin(), names.end(), [](const QString& name) {
        return knownFonts().isNameResolved(familyOf(name));
    });
}

} // namespace

Problem installedFontProblem(const CGraph1dSettings& settings)
{
    if (!knownFonts().isAnyThere())
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
