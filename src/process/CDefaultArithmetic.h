// SPDX-License-Identifier: MIT
/// @file
/// Calculates as a new process does, whatever the host has set.
#ifndef TOVANGL_PROCESS_CDEFAULTARITHMETIC_H
#define TOVANGL_PROCESS_CDEFAULTARITHMETIC_H

#include <QtGlobal>

#include <cfenv>

namespace tovangl {

/// While this object lives, the calling thread rounds floating-point numbers to the nearest, keeps
/// the tiny ones, and has no traps. Then the host's settings are in force again, with its flags.
///
/// A host that rounds otherwise would get other pixels, and one with traps a signal. Scopes can
/// nest. Each takes less than half a microsecond.
class CDefaultArithmetic
{
public:
    CDefaultArithmetic();
    ~CDefaultArithmetic();
    Q_DISABLE_COPY(CDefaultArithmetic)

private:
    std::fenv_t m_host = {};
};

} // namespace tovangl

#endif
