// SPDX-License-Identifier: MIT
/// @file
/// Keeps the process's fonts as they are while charts are drawn.
#ifndef TOVANGL_PROCESS_FONT_GATE_H
#define TOVANGL_PROCESS_FONT_GATE_H

#include <QtGlobal>

namespace tovangl {

/// The scope in which a thread draws. Many threads can draw at once. Scopes must not nest.
class CFontUse
{
public:
    CFontUse();
    ~CFontUse();
    Q_DISABLE_COPY(CFontUse)
};

/// The scope in which a thread changes the fonts, and no other thread draws: fontconfig searches
/// its list of fonts without a lock. It begins when the pictures are done that were begun before
/// it, and those begun later wait, so that it comes about even if threads draw all the time.
class CFontChange
{
public:
    CFontChange();
    ~CFontChange();
    Q_DISABLE_COPY(CFontChange)
};

/// Waits until no other thread draws or changes the fonts, and keeps them from beginning. One of
/// the next two functions ends that. The calling thread must not draw itself.
void closeFontGate();

/// Lets threads draw again, in the thread that called closeFontGate().
void openFontGate();

/// The same in the child that this thread has forked since.
void renewFontGate();

} // namespace tovangl

#endif
