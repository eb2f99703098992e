// SPDX-License-Identifier: MIT
/// @file
/// What surrounds every rendering of a facade.
#ifndef TOVANGL_API_CRENDERING_H
#define TOVANGL_API_CRENDERING_H

#include "api/CMessageSilencer.h"

namespace tovangl {

/// The scope of one rendering: the application object is there, and Qt's messages are discarded.
class CRendering
{
public:
    CRendering();
    ~CRendering();
    Q_DISABLE_COPY(CRendering)

    /// False where Qt's offscreen plugin is missing, and in a process that has begun to end: Qt
    /// destroys what painting needs before the exit handlers that are older than the first
    /// rendering.
    [[nodiscard]] bool canPaint() const { return m_canPaint; }

private:
    const CMessageSilencer m_silencer;
    bool m_canPaint;
};

} // namespace tovangl

#endif
