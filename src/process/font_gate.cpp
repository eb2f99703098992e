// SPDX-License-Identifier: MIT
// Keeps the process's fonts as they are while charts are drawn.
#include "process/font_gate.h"

#include <mutex>
#include <optional>
#include <shared_mutex>

namespace tovangl {

namespace {

// Whoever wants to change the fonts holds the entrance until the room is empty.
std::mutex entrance;
std::optional<std::shared_mutex> room(std::in_place);

} // namespace

CFontUse::CFontUse()
{
    const std::lock_guard<std::mutex> lock(entrance);
    room->lock_shared();
}

CFontUse::~CFontUse()
{
    room->unlock_shared();
}

CFontChange::CFontChange()
{
    const std::lock_guard<std::mutex> lock(entrance);
    room->lock();
}

CFontChange::~CFontChange()
{
    room->unlock();
}

void closeFontGate()
{
    entrance.lock();
    room->lock();
}

void openFontGate()
{
    room->unlock();
    entrance.unlock();
}

// The room knows who locked it, and takes the child's thread for another one.
void renewFontGate()
{
    room.emplace();
    entrance.unlock();
}

} // namespace tovangl
