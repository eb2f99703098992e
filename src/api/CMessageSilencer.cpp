// SPDX-License-Identifier: MIT
// Keeps Qt's messages about the library's own doings out of the host's output.
#include "api/CMessageSilencer.h"

#include "api/message_filter.h"

#include <QMetaType>

namespace tovangl {

/// The filter of the copy of the library that made this object. Its name stands for its shape:
/// every copy in a process has to agree on both.
struct CMessageFilter1
{
    void (*begin)() = beginSilence;
    void (*end)() = endSilence;
};

} // namespace tovangl

Q_DECLARE_METATYPE(tovangl::CMessageFilter1)

namespace tovangl {

namespace {

// Static copies of the library in one process, each in a plugin of its own say, share one filter:
// several would pile up in front of each other without end. Qt keeps types by name, and has an
// object of this one made by the copy that came first.
CMessageFilter1 filterOfFirstCopy()
{
    CMessageFilter1 filter;
    QMetaType(qRegisterMetaType<CMessageFilter1>()).construct(&filter);
    return filter;
}

const CMessageFilter1& sharedFilter()
{
    static const CMessageFilter1 filter = filterOfFirstCopy();
    return filter;
}

} // namespace

CMessageSilencer::CMessageSilencer()
{
    sharedFilter().begin();
}

CMessageSilencer::~CMessageSilencer()
{
    sharedFilter().end();
}

} // namespace tovangl
