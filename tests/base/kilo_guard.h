// SPDX-License-Identifier: MIT
/// @file
/// Changes the process's kilo for the length of a test.
#ifndef TOVANGL_AXES_KILO_GUARD_H
#define TOVANGL_AXES_KILO_GUARD_H

#include "base/CGlobal.h"

#include <QtGlobal>

namespace tovangl {

class CKiloGuard
{
public:
    explicit CKiloGuard(CGlobal::OneKiloBase base) { getGlobal()->initOneKilo(base); }
    ~CKiloGuard() { getGlobal()->initOneKilo(CGlobal::Base1024); }
    Q_DISABLE_COPY(CKiloGuard)
};

} // namespace tovangl

#endif
