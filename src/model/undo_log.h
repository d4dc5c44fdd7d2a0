#pragma once

#include "model/entity_store.h"

namespace mirtane {

// Undo keeps no copies: every change is a slot that came "on" or went "out", logged in groups, a group to an
// action. Undo and redo flip the slots of a group, and log their own flips as a new group.
struct UndoLog {
    static constexpr std::int32_t wrapAt = 40000; // index 40000 is allocated and never used

    UndoLog();

    std::vector<std::int32_t> logSlot;
    std::vector<Stat> logStat;
    std::vector<std::int32_t> logGroup;
    std::int32_t undoLogCount = 0;  // next free index
    std::int32_t undoGroupNext = 0; // group of the action under way
    std::int32_t undoGroupTop = 0;  // one above the group that undo takes next
    std::int32_t redoGroupTop = 0;  // one above the group that redo takes next
};

// Adds (slot, stat, undoGroupNext); the log wraps to 0 on reaching 40000.
void logFlip(UndoLog& log, std::int32_t slot, Stat stat);

// Ends the action under way: its group is what undo takes next.
void endGroup(UndoLog& log);

// Flip the group that undo (redo) takes next. In an empty drawing nothing happens, and false comes back.
bool undo(EntityStore& store, UndoLog& log);
bool redo(EntityStore& store, UndoLog& log);

// Forgets all records, so that old ones can't flip slots of another drawing. Group serials go on.
void clearRecords(UndoLog& log);

} // namespace mirtane
