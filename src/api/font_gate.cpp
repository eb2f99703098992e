// SPDX-License-Identifier: MIT
// Keeps the process's fonts as they are while charts are drawn.
#include "api/font_gate.h"

#include <mutex>
#include <shared_mutex>

namespace tovangl {

namespace {

// Whoever wants to change the fonts holds the entrance until the room is empty.
std::mutex entrance;
std::shared_mutex room;

} // namespace

CFontUse::CFontUse()
{
    const std::lock_guard<std::mutex> lock(entrance);
    room.lock_shared();
}

CFontUse::~CFontUse()
{
    room.unlock_shared();
}

CFontChange::CFontChange()
{
    const std::lock_guard<std::mutex> lock(entrance);
    room.lock();
}

CFontChange::~CFontChange()
{
    room.unlock();
}

} // namespace tovangl
