#include "model/undo_log.h"

#include <algorithm>
#include <utility>

namespace mirtane {
namespace {

// Serials grow past this in long sessions, where an undo below 0 then finds no group.
constexpr std::int32_t groupBelowZero = 39999;

std::int32_t groupBelow(std::int32_t groupTop)
{
    return groupTop > 0 ? groupTop - 1 : groupBelowZero;
}

// Serials never fall along the log, so a group has lost records if a later one, or it itself, has.
bool hasLostRecords(const UndoLog& log, std::int32_t group)
{
    return group <= log.lastOverwritten;
}

// In the order in which they were logged: those from the count up are older than those below it. A group
// that lies wholly above the count is not found.
Flips recordsOf(const UndoLog& log, std::int32_t group)
{
    Flips records;
    bool reachesBelow = false;
    for (std::int32_t i = 0; i < UndoLog::wrapAt; ++i) {
        const std::int32_t index = (log.undoLogCount + i) % UndoLog::wrapAt;
        const std::size_t at = EntityStore::at(index);
        if (log.logGroup[at] != group || log.logSlot[at] == 0) continue;
        records.push_back({log.logSlot[at], log.logStat[at]});
        reachesBelow = index < log.undoLogCount;
    }
    return reachesBelow ? records : Flips{};
}

Stat otherThan(Stat stat)
{
    return stat != Stat::out ? Stat::out : Stat::on;
}

// Gives the flips that it logged. They may overwrite the records of the group, which are at hand by now.
Flips flipAndLog(EntityStore& store, UndoLog& log, const Flips& records)
{
    Flips made;
    for (const LoggedFlip& record : records) {
        if (record.slot > store.entCount - 1) continue;
        made.push_back({record.slot, otherThan(record.stat)});
        store.setStat(record.slot, made.back().stat);
        logFlip(log, record.slot, made.back().stat);
    }
    ++log.undoGroupNext;
    return made;
}

// What is undone or redone would else be logged in one group with it.
void endWhatNothingEnded(UndoLog& log)
{
    const std::size_t last = EntityStore::at((log.undoLogCount + UndoLog::wrapAt - 1) % UndoLog::wrapAt);
    if (log.logSlot[last] != 0 && log.logGroup[last] == log.undoGroupNext) endGroup(log);
}

} // namespace

UndoLog::UndoLog() : logSlot(wrapAt + 1), logStat(wrapAt + 1), logGroup(wrapAt + 1) {}

void logFlip(UndoLog& log, std::int32_t slot, Stat stat)
{
    const std::size_t at = EntityStore::at(log.undoLogCount);
    if (log.logSlot[at] != 0) log.lastOverwritten = log.logGroup[at];
    log.logSlot[at] = slot;
    log.logStat[at] = stat;
    log.logGroup[at] = log.undoGroupNext;
    ++log.undoLogCount;
    if (log.undoLogCount == UndoLog::wrapAt) log.undoLogCount = 0;
}

void endGroup(UndoLog& log)
{
    ++log.undoGroupNext;
    log.undoGroupTop = log.undoGroupNext;
    log.undone.clear();
}

Flipped undo(EntityStore& store, UndoLog& log)
{
    if (store.entCount == 1) return Flipped::nothing;
    endWhatNothingEnded(log);
    const std::int32_t group = groupBelow(log.undoGroupTop);
    if (hasLostRecords(log, group)) return Flipped::tooLongAgo;
    const bool goesOn = log.redoGroupTop == log.undoGroupNext; // an undo came right before
    if (!goesOn) log.undone.clear();
    log.undoGroupTop = group;
    log.undone.push_back(flipAndLog(store, log, recordsOf(log, group)));
    log.redoGroupTop = log.undoGroupNext;
    return Flipped::group;
}

Flipped redo(EntityStore& store, UndoLog& log)
{
    if (store.entCount == 1) return Flipped::nothing;
    endWhatNothingEnded(log);
    const std::int32_t group = groupBelow(log.redoGroupTop);
    const bool isUndone = !log.undone.empty();
    if (!isUndone && hasLostRecords(log, group)) return Flipped::tooLongAgo;
    log.redoGroupTop = group;
    flipAndLog(store, log, isUndone ? log.undone.back() : recordsOf(log, group));
    if (isUndone) log.undone.pop_back();
    log.undoGroupTop = log.undoGroupNext;
    return Flipped::group;
}

void clearRecords(UndoLog& log)
{
    std::fill(log.logSlot.begin(), log.logSlot.end(), 0);
    log.undoLogCount = 0;
    log.lastOverwritten = -1;
    log.undone.clear();
}

} // namespace mirtane
