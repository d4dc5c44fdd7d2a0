#pragma once

// No edit changes an object where it stands. Each gives a rule, and this writes what the rule makes of every
// selected object as a new object, turns the old ones where the edit moves rather than copies, and logs both
// in one group, so that undo needs nothing from any edit.

#include "model/insertion.h"
#include "model/room.h"
#include "render/canvas.h"
#include "tables/kinds.h"

namespace mirtane {

// What becomes of the selected objects themselves.
enum class Sources {
    stay,   // selected
    comeOn, // "on", which is no action that undo would take back
    goOut,  // deleted, logged in the group
};

// The slots that are "sel", of kinds 1 to 10 alone, in their order.
std::vector<std::int32_t> selectedSlots(const EntityStore& store);

// How many of them are of a kind that takes says yes to.
std::int64_t countSelected(const EntityStore& store, bool (*takes)(Kind));

// Writes the fields of the object's kind into the next slot, "on", and commits it in the group under way. The
// caller has asked for room.
void addObject(Session& s, const EntityRecord& r);

void turnSources(Session& s, const std::vector<std::int32_t>& selected, Sources to);

// rule gives the changed object for each selected one that takes, a test of the kind, says yes to.
// All selected objects then become what sources says. The group stays open. False if there is no room for all
// of them: then nothing was done.
template <class Rule>
[[nodiscard]] bool runOnSelection(Session& s, Sources sources, Rule rule, bool (*takes)(Kind) = isDrawnKind)
{
    if (!hasRoomFor(s, countSelected(s.store, takes))) return false;
    const std::vector<std::int32_t> selected = selectedSlots(s.store);
    for (const std::int32_t slot : selected) {
        if (takes(s.store.kind[EntityStore::at(slot)])) addObject(s, rule(s.store.record(slot)));
    }
    turnSources(s, selected, sources);
    return true;
}

// Ends the group, also one in which nothing was written, and shows the gauge and the whole picture.
void closeGroup(Session& s, Canvas& pic1);

// The common end of an edit: closes the group, brings a selection that followed the pointer back, and returns
// to the function that the edit was chosen in.
void endRun(Session& s, Canvas& pic1);

} // namespace mirtane
