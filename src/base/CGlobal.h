// SPDX-License-Identifier: MIT
/// @file
/// The settings that all charts of the process share.
#ifndef TOVANGL_BASE_CGLOBAL_H
#define TOVANGL_BASE_CGLOBAL_H

#include "base/CKilo.h"

namespace tovangl {

/// How large a kilo is, for unit prefixes and for the steps of value axes.
class CGlobal
{
public:
    /// Any int can be stored, so the type is fixed.
    enum OneKiloBase : int
    {
        Base1024 = 0,
        Base1000 = 1
    };

    constexpr CGlobal() { initOneKilo(Base1024); }

    /// Any base but 0 makes a kilo 1000; oneKiloBase() returns the number given.
    constexpr void initOneKilo(OneKiloBase base)
    {
        m_oneKiloBase = base;
        m_oneKilo = base == Base1024 ? 1024 : 1000;
    }

    [[nodiscard]] OneKiloBase oneKiloBase() const { return m_oneKiloBase; }
    [[nodiscard]] int oneKilo() const { return m_oneKilo; }
    [[nodiscard]] CKilo kilo() const { return CKilo{m_oneKiloBase, m_oneKilo}; }

private:
    OneKiloBase m_oneKiloBase = Base1024;
    int m_oneKilo = 1024;
};

/// The one settings object; it exists before any initialiser runs, and until the process ends.
[[nodiscard]] CGlobal* getGlobal();

} // namespace tovangl

#endif
