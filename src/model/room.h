#pragma once

// Room in the table for what an action adds. What adds several objects at once, or puts one in the place of
// another, is carried out whole or refused before it has changed anything.

#include "model/session.h"

namespace mirtane {

// How many objects the table still takes.
std::int32_t slotsLeft(const EntityStore& store);

// How many slots a drawing has free that is saved and opened again: those of objects that are "out". The
// pieces of associates are no objects of the drawing; their slots don't count.
std::int32_t slotsToRegain(const EntityStore& store);

// Whether the table takes that many more objects. If not, the action is refused.
[[nodiscard]] bool hasRoomFor(Session& s, std::int64_t objects);

// The one place where an action is refused for want of room: entry says for how many objects there is none,
// and the strip how to make some.
void refuseForRoom(Session& s, std::int64_t missing);

// An object was drawn that found no slot: the strip says so, and how to make room.
void tellNotStored(Session& s);

// "Not done: room for 8,412 more objects is missing"
std::string noRoomText(std::int64_t missing);

// Whether entry says it at the moment.
bool tellsNoRoom(const Controls& controls);

// Carries out what a click or an entry does. If that is refused, the function is where it was before: the
// step and the points that were taken for it count for nothing. The next click may go on, or cancel.
template <class Act> void unlessRefused(Session& s, Act act)
{
    const FunctionState function = static_cast<const FunctionState&>(s); // the base alone, as all seven below
    const ScratchPoints points = static_cast<const ScratchPoints&>(s);
    const CanvasInput input = static_cast<const CanvasInput&>(s);
    const EditState edit = static_cast<const EditState&>(s);
    s.roomMissing = 0;
    act();
    if (s.roomMissing == 0) return;
    static_cast<FunctionState&>(s) = function;
    static_cast<ScratchPoints&>(s) = points;
    static_cast<CanvasInput&>(s) = input;
    static_cast<EditState&>(s) = edit;
    s.roomMissing = 0;
}

} // namespace mirtane
