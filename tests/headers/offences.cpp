// SPDX-License-Identifier: MIT
// What a host must not be able to write. Each offence stands behind a macro of its own.
#include <tovangl/tovangl.h>

namespace {

[[maybe_unused]] void offend(tovangl::PieGraph& pie)
{
#if defined(OFFENCE_COPY)
    tovangl::PieGraph copy(pie);
#elif defined(OFFENCE_ASSIGN)
    tovangl::PieGraph other(true);
    other = pie;
#elif defined(OFFENCE_QT_TYPE)
    pie.setFont(QString(), 11);
#elif defined(OFFENCE_CHART)
    pie.getGraph();
#else
    pie.clear();
#endif
}

} // namespace
