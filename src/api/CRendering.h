// SPDX-License-Identifier: MIT
/// @file
/// What surrounds every rendering of a facade.
#ifndef TOVANGL_API_CRENDERING_H
#define TOVANGL_API_CRENDERING_H

#include "api/CMessageSilencer.h"
#include "core/CGraph1dBase.h"

namespace tovangl {

/// The scope of one rendering: the application object is there, and Qt's messages are discarded.
class CRendering
{
public:
    CRendering();
    ~CRendering();
    Q_DISABLE_COPY(CRendering)

    /// Why nothing can be painted: Qt's offscreen plugin is missing, or the process has begun to
    /// end, as Qt destroys what painting needs before the exit handlers that are older than the
    /// first rendering.
    [[nodiscard]] CGraph1dBase::Problem obstacle() const { return m_obstacle; }

private:
    const CMessageSilencer m_silencer;
    CGraph1dBase::Problem m_obstacle;
};

} // namespace tovangl

#endif
