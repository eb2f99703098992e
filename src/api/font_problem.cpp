// SPDX-License-Identifier: MIT
// Whether a chart's texts are in the font that was asked for.
#include "api/font_problem.h"

#include "input/CGraph1dSettings.h"
#include "text/qt_text.h"

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

// Asking takes a tenth of the time of a small chart, and the machine's fonts stay the same.
class CResolvedNames
{
public:
    [[nodiscard]] bool contains(const QString& name)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto known = m_names.find(name);
        if (known != m_names.end())
            return known->second;
        if (m_names.size() == kMostNames)
            m_names.clear();
        return m_names.emplace(name, isResolved(name)).first->second;
    }

private:
    static constexpr std::size_t kMostNames = 256;

    std::mutex m_mutex;
    std::map<QString, bool> m_names;
};

// Lives until the end of the process, because exit handlers can draw.
CResolvedNames& resolvedNames()
{
    static CResolvedNames& names = *std::make_unique<CResolvedNames>().release();
    return names;
}

bool isReplaced(const QString& setting, const QString& used)
{
    const QStringList names = setting.split(QLatin1Char(','));
    const auto is = [&used](const QString& name) {
        return familyOf(name).compare(used, Qt::CaseInsensitive) == 0;
    };
    const auto resolves = [](const QString& name) {
        return resolvedNames().contains(familyOf(name));
    };
    return std::none_of(names.begin(), names.end(), is) &&
           std::none_of(names.begin(), names.end(), resolves);
}

} // namespace

Problem fontProblem(const CGraph1dSettings& settings, const QString& used, const QString& added)
{
    if (used.isEmpty())
        return Problem::NoGlyphs;
    const bool isOther = added.isEmpty()
                             ? settings.isFamilyChosen && isReplaced(settings.fontFamily, used)
                             : used != added;
    return isOther ? Problem::FamilyReplaced : Problem::None;
}

} // namespace tovangl
