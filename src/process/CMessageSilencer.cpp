// SPDX-License-Identifier: MIT
// Keeps Qt's messages about the library's own work out of the host's output.
#include "process/CMessageSilencer.h"

#include "process/message_filter.h"

#include <QMetaType>

namespace tovangl {

/// The filter of the copy of the library that made this object. All copies in a process must agree
/// on its name and its layout, so a new layout needs a new name.
struct CMessageFilter2
{
    void (*begin)() = beginSilence;
    void (*end)() = endSilence;
    void (*silenceOthers)() = silenceOtherThreads;
};

} // namespace tovangl

Q_DECLARE_METATYPE(tovangl::CMessageFilter2)

namespace tovangl {

namespace {

// Static copies of the library in one process, for example in several plugins, share one filter:
// several filters would stack up in front of each other without end. Qt registers types by name,
// and has the first copy make an object of this one.
CMessageFilter2 filterOfFirstCopy()
{
    CMessageFilter2 filter;
    QMetaType(qRegisterMetaType<CMessageFilter2>()).construct(&filter);
    return filter;
}

const CMessageFilter2& sharedFilter()
{
    static const CMessageFilter2 filter = filterOfFirstCopy();
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

void CMessageSilencer::silenceOtherThreads()
{
    sharedFilter().silenceOthers();
}

} // namespace tovangl
