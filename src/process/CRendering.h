// SPDX-License-Identifier: MIT
/// @file
/// What surrounds every rendering of a facade.
#ifndef TOVANGL_PROCESS_CRENDERING_H
#define TOVANGL_PROCESS_CRENDERING_H

#include "process/CDefaultArithmetic.h"
#include "process/CMessageSilencer.h"
#include "process/font_gate.h"
#include <tovangl/Problem.h>

namespace tovangl {

/// Why nothing can be painted, if so. The application object is made if there is none.
[[nodiscard]] Problem findObstacle();

/// The scope of one rendering: the application object exists, Qt's messages are discarded, the
/// fonts stay as they are, and so does how numbers are rounded.
class CRendering
{
public:
    CRendering();
    ~CRendering();
    Q_DISABLE_COPY(CRendering)

    /// Why nothing can be painted: Qt's offscreen plugin is missing, or the process is ending.
    [[nodiscard]] Problem obstacle() const { return m_obstacle; }

private:
    const CDefaultArithmetic m_arithmetic;
    const CFontUse m_fontUse; // around all else: what is inside is in no thread's hands in a fork
    const CMessageSilencer m_silencer;
    Problem m_obstacle;
};

} // namespace tovangl

#endif
