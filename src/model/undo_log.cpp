#include "model/undo_log.h"

#include <algorithm>

namespace mirtane {
namespace {

// Serials grow past this in long sessions, where an undo below 0 then finds no group.
constexpr std::int32_t groupBelowZero = 39999;

void stepDown(std::int32_t& groupTop)
{
    --groupTop;
    if (groupTop < 0) groupTop = groupBelowZero;
}

// undoLogCount grows (and may wrap) while the loop runs; the records that it adds carry another group.
void flipGroup(EntityStore& store, UndoLog& log, std::int32_t group)
{
    for (std::int32_t i = 0; i < log.undoLogCount; ++i) {
        const std::size_t at = EntityStore::at(i);
        if (log.logGroup[at] != group) continue;
        const Stat flipped = log.logStat[at] != Stat::out ? Stat::out : Stat::on;
        const std::int32_t slot = log.logSlot[at];
        if (slot > store.entCount - 1) continue;
        store.setStat(slot, flipped);
        logFlip(log, slot, flipped);
    }
}

} // namespace

UndoLog::UndoLog() : logSlot(wrapAt + 1), logStat(wrapAt + 1), logGroup(wrapAt + 1) {}

void logFlip(UndoLog& log, std::int32_t slot, Stat stat)
{
    const std::size_t at = EntityStore::at(log.undoLogCount);
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
}

bool undo(EntityStore& store, UndoLog& log)
{
    if (store.entCount == 1) return false;
    stepDown(log.undoGroupTop);
    flipGroup(store, log, log.undoGroupTop);
    ++log.undoGroupNext;
    log.redoGroupTop = log.undoGroupNext;
    return true;
}

bool redo(EntityStore& store, UndoLog& log)
{
    if (store.entCount == 1) return false;
    stepDown(log.redoGroupTop);
    flipGroup(store, log, log.redoGroupTop);
    ++log.undoGroupNext;
    log.undoGroupTop = log.undoGroupNext;
    return true;
}

void clearRecords(UndoLog& log)
{
    std::fill(log.logSlot.begin(), log.logSlot.end(), 0);
    log.undoLogCount = 0;
}

} // namespace mirtane
