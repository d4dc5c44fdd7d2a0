#include "model/undo_log.h"

#include "model/insertion.h"

#include <gtest/gtest.h>

#include <memory>

namespace mirtane {
namespace {

struct Undo : testing::Test {
    std::int32_t addOne()
    {
        addLine(s);
        const std::int32_t slot = s.store.entCount;
        commitSlot(s);
        return slot;
    }
    Flipped undoOnce() { return undo(s.store, s.log); }
    Flipped redoOnce() { return redo(s.store, s.log); }
    Stat stat(std::int32_t slot) const { return s.store.stat[EntityStore::at(slot)]; }

    std::unique_ptr<Session> session = std::make_unique<Session>();
    Session& s = *session;
};

TEST_F(Undo, DoesNothingInAnEmptyDrawing)
{
    EXPECT_EQ(undoOnce(), Flipped::nothing);
    EXPECT_EQ(redoOnce(), Flipped::nothing);
    EXPECT_EQ(s.log.undoGroupTop, 0);
    EXPECT_EQ(s.log.undoGroupNext, 0);
    EXPECT_EQ(s.log.redoGroupTop, 0);
}

TEST_F(Undo, TakesActionsBackFromTheLastOn)
{
    addOne();
    addOne();
    EXPECT_EQ(undoOnce(), Flipped::group);
    EXPECT_EQ(stat(1), Stat::on);
    EXPECT_EQ(stat(2), Stat::out);
    undoOnce();
    EXPECT_EQ(stat(1), Stat::out);
}

TEST_F(Undo, LogsItsFlipsAsANewGroup)
{
    addOne();
    undoOnce();
    EXPECT_EQ(s.log.undoLogCount, 2);
    EXPECT_EQ(s.log.logSlot[1], 1);
    EXPECT_EQ(s.log.logStat[1], Stat::out);
    EXPECT_EQ(s.log.logGroup[1], 1);
    EXPECT_EQ(s.log.undoGroupNext, 2);
    EXPECT_EQ(s.log.redoGroupTop, 2);
    EXPECT_EQ(s.log.undoGroupTop, 0);
}

TEST_F(Undo, FlipsAllSlotsOfAGroupEachTheOtherWay)
{
    addOne();
    s.store.setStat(1, Stat::out); // an edit: a new slot in, the old one out, one group
    logFlip(s.log, 1, Stat::out);
    addLine(s);
    commitSlot(s);
    undoOnce();
    EXPECT_EQ(stat(1), Stat::on);
    EXPECT_EQ(stat(2), Stat::out);
}

TEST_F(Undo, LeavesTheCountOfSlots)
{
    addOne();
    undoOnce();
    EXPECT_EQ(s.store.entCount, 2);
}

TEST_F(Undo, SkipsALoggedSlotThatIsNoObjectOfTheDrawing)
{
    addOne();
    addOne();
    s.store.entCount = 2;
    undoOnce();
    EXPECT_EQ(s.store.stat[2], Stat::on);
    EXPECT_EQ(s.log.undoLogCount, 2); // and no record was added for it
}

TEST_F(Undo, TurnsASelectedObjectOutAndRedoBringsItBackUnselected)
{
    addOne();
    s.store.setStat(1, Stat::sel);
    undoOnce();
    EXPECT_EQ(stat(1), Stat::out);
    redoOnce();
    EXPECT_EQ(stat(1), Stat::on);
}

TEST_F(Undo, ThenRedoShowsAnObjectOfAHiddenLayer)
{
    addOne();
    s.store.setStat(1, Stat::off);
    undoOnce();
    redoOnce();
    EXPECT_EQ(stat(1), Stat::on);
}

TEST_F(Undo, WithNothingLeftWrapsTheGroupAndStillCounts)
{
    s.store.entCount = 2;
    EXPECT_EQ(undoOnce(), Flipped::group);
    EXPECT_EQ(s.log.undoGroupTop, 39999);
    EXPECT_EQ(s.log.undoGroupNext, 1);
    EXPECT_EQ(s.log.redoGroupTop, 1);
    EXPECT_EQ(s.log.undoLogCount, 0);
}

TEST_F(Undo, DoesNotFindGroupsAboveTheCountOnceTheLogHasWrapped)
{
    s.log.undoLogCount = 39999;
    addOne();
    undoOnce();
    EXPECT_EQ(stat(1), Stat::on);
}

TEST_F(Undo, WrapsTheLogWhileItFlips)
{
    s.log.undoLogCount = 39998;
    s.log.undoGroupNext = 5; // unused records carry 0
    addOne();
    undoOnce();
    EXPECT_EQ(stat(1), Stat::out);
    EXPECT_EQ(s.log.undoLogCount, 0);
    EXPECT_EQ(s.log.logStat[39999], Stat::out);
}

TEST_F(Undo, OfARedoUndoesTheRedo)
{
    addOne();
    undoOnce();
    redoOnce();
    EXPECT_EQ(stat(1), Stat::on);
    EXPECT_EQ(s.log.undoGroupTop, s.log.undoGroupNext);
    undoOnce();
    EXPECT_EQ(stat(1), Stat::out);
}

TEST_F(Undo, RedosGoDownTheGroupsOfTheUndos)
{
    addOne();
    addOne();
    undoOnce();
    undoOnce();
    redoOnce();
    EXPECT_EQ(stat(1), Stat::on);
    EXPECT_EQ(stat(2), Stat::out);
    redoOnce();
    EXPECT_EQ(stat(2), Stat::on);
}

TEST_F(Undo, RedoAfterNewWorkStillFlipsItsGroup)
{
    addOne();
    undoOnce();
    addOne();
    redoOnce();
    EXPECT_EQ(stat(1), Stat::on);
    EXPECT_EQ(stat(2), Stat::on);
}

TEST_F(Undo, DoesNotTakeBackALayerName)
{
    addOne();
    EntityRecord name;
    name.kind = layerNameKind;
    s.store.setRecord(2, name);
    s.store.setStat(2, Stat::on);
    s.store.entCount = 3;
    undoOnce();
    undoOnce();
    EXPECT_EQ(stat(2), Stat::on);
    EXPECT_EQ(stat(1), Stat::out);
}

TEST_F(Undo, OfForgottenRecordsFlipsNothingAndStillStepsDown)
{
    addOne();
    clearRecords(s.log);
    EXPECT_EQ(s.log.undoGroupNext, 1); // serials go on
    EXPECT_EQ(s.log.undoLogCount, 0);
    EXPECT_EQ(s.log.logSlot[0], 0);
    undoOnce();
    EXPECT_EQ(stat(1), Stat::on);
    EXPECT_EQ(s.log.undoGroupTop, 0);
}

TEST_F(Undo, HasFortyThousandAndOneRecords)
{
    EXPECT_EQ(s.log.logSlot.size(), 40001U);
    EXPECT_EQ(s.log.logStat.size(), 40001U);
    EXPECT_EQ(s.log.logGroup.size(), 40001U);
}

} // namespace
} // namespace mirtane
