#pragma once

#include "model/entity_store.h"

namespace mirtane {

struct LoggedFlip {
    std::int32_t slot;
    Stat stat;
};

using Flips = std::vector<LoggedFlip>;

// Undo keeps no copies: every change is a slot that came "on" or went "out", logged in groups, a group to an
// action. Undo and redo flip the slots of a group, and log their own flips as a new group. A slot of 0 is no
// record.
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

    std::int32_t lastOverwritten =
        -1; // group of the record that the log lost last; all before it have lost some

    // What the undos in a row flipped, an entry to an undo, the last one being the group that redo takes
    // next. Redos log as much again, and would overwrite the records of the others. What is undone fits into
    // the log beside what undoing it logs, so this holds no more records than the log. New work ends the row.
    std::vector<Flips> undone;
};

// Adds (slot, stat, undoGroupNext); the log wraps to 0 on reaching 40000.
void logFlip(UndoLog& log, std::int32_t slot, Stat stat);

// Ends the action under way: its group is what undo takes next.
void endGroup(UndoLog& log);

enum class Flipped {
    nothing,    // the drawing is empty
    group,      // whole, if the log holds it below its count or across its wrap; else an empty one
    tooLongAgo, // nothing, as records of the group were overwritten. The log stays as it is.
};

// Flip the group that undo (redo) takes next. An action that nothing has ended is one of its own for them.
Flipped undo(EntityStore& store, UndoLog& log);
Flipped redo(EntityStore& store, UndoLog& log);

// Forgets all records, so that old ones can't flip slots of another drawing. Group serials go on.
void clearRecords(UndoLog& log);

} // namespace mirtane
