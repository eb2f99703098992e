// SPDX-License-Identifier: MIT
/// @file
/// The fonts of the machine.
#ifndef TOVANGL_PROCESS_CINSTALLEDFONTS_H
#define TOVANGL_PROCESS_CINSTALLEDFONTS_H

#include <QString>

#include <cstddef>
#include <map>
#include <mutex>

namespace tovangl {

/// What the machine answered when it was asked for fonts. Asking takes a tenth of the time of a
/// small chart, and its fonts stay the same. Any thread may call any operation. Only std::bad_alloc
/// can leave one.
class CInstalledFonts
{
public:
    /// Those of this process.
    [[nodiscard]] static CInstalledFonts& ofProcess();

    /// Has Qt read fontconfig's settings and caches, unless that is done. What fontconfig has to
    /// say about them is discarded.
    void load();

    /// Whether the machine knows the name: as a family, as another name of one, or as one for which
    /// its configuration has a family.
    ///
    /// @param name  with or without a foundry in brackets
    [[nodiscard]] bool hasFamily(const QString& name);

    /// Whether there is any font. Asked again while there is none, because a host can add one.
    [[nodiscard]] bool isAnyThere();

private:
    static constexpr std::size_t kMostNames = 256;

    std::mutex m_mutex;
    std::map<QString, bool> m_families;
    bool m_isLoaded = false;
    bool m_isAnyThere = false;
};

} // namespace tovangl

#endif
