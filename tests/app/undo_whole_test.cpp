// Undo and redo flip a group whole or not at all, wherever the log wraps and however large the group is.

#include "desk.h"

#include "model/insertion.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

constexpr const char* tooLongAgo = "Too long ago to undo";

// A drawing with actions of any size, made as edits make them.
struct Actions {
    explicit Actions(std::int32_t logCount = 0)
    {
        desk.s.log.undoLogCount = logCount;
        desk.s.log.undoGroupNext = desk.s.log.undoGroupTop = 7;
    }

    void draw(std::int32_t objects)
    {
        for (std::int32_t i = 0; i < objects; ++i) {
            addPoint(desk.s);
            commitInGroup(desk.s);
        }
        endGroup(desk.s.log);
    }
    void erase(std::int32_t from, std::int32_t objects)
    {
        for (std::int32_t slot = from; slot < from + objects; ++slot) {
            desk.s.store.setStat(slot, Stat::out);
            logFlip(desk.s.log, slot, Stat::out);
        }
        endGroup(desk.s.log);
    }
    void undo() { desk.press("undu"_c); }
    void redo() { desk.press("redu"_c); }

    // How many of a run of slots are in the drawing.
    std::int32_t shown(std::int32_t from, std::int32_t objects) const
    {
        std::int32_t count = 0;
        for (std::int32_t slot = from; slot < from + objects; ++slot)
            count += desk.s.store.isShown(slot) ? 1 : 0;
        return count;
    }
    const std::string& said() const { return desk.text("entry"_c); }

    Desk desk;
};

struct Group {
    const char* what;
    std::int32_t logCount; // where its first record goes
    std::int32_t objects;
};

constexpr Group wholeGroups[] = {
    {"before the wrap", 39000, 17},
    {"one record before the wrap", 39999, 17},
    {"one record behind it", 39990, 11},
    {"a third of the log", 30000, 13333},
    {"its undo lies across the wrap", 39960, 25},
    {"half the log", 100, 20000},
    {"more than half the log", 25, 30000},
    {"the log but for one record", 5, 39999},
    {"the whole log from its start", 7, 40000},
};

TEST(UndoWhole, FlipsEveryGroupThatTheLogHoldsAndRedoBringsItBack)
{
    for (const Group& group : wholeGroups) {
        Actions d(group.logCount);
        d.draw(group.objects);
        d.undo();
        EXPECT_EQ(d.shown(1, group.objects), 0) << group.what;
        d.redo();
        EXPECT_EQ(d.shown(1, group.objects), group.objects) << group.what;
        d.undo();
        EXPECT_EQ(d.shown(1, group.objects), 0) << group.what << ", of the redo";
        EXPECT_EQ(d.said(), "") << group.what;
    }
}

TEST(UndoWhole, LeavesAGroupAloneOfWhichRecordsWereOverwritten)
{
    struct Row {
        const char* what;
        std::int32_t logCount, first, second; // objects of two actions
    };
    const Row rows[] = {
        {"by one record", 0, 20, 39981},
        {"by all but one", 5, 20, 39999},
        {"all of them", 5, 20, 40000},
        {"far from the start of the log", 31234, 9000, 31001},
    };
    for (const Row& row : rows) {
        Actions d(row.logCount);
        d.draw(row.first);
        d.draw(row.second);
        d.undo();
        EXPECT_EQ(d.shown(1 + row.first, row.second), 0) << row.what;
        EXPECT_EQ(d.said(), "") << row.what;
        d.undo();
        d.undo();
        EXPECT_EQ(d.shown(1, row.first), row.first) << row.what;
        EXPECT_EQ(d.said(), tooLongAgo) << row.what;
        d.redo();
        EXPECT_EQ(d.shown(1, row.first + row.second), row.first + row.second) << row.what;
    }
}

TEST(UndoWhole, LeavesAGroupAloneThatIsLargerThanTheLog)
{
    for (const std::int32_t objects : {40001, 40002, 52000}) {
        Actions d(300);
        d.draw(objects);
        const UndoLog before = d.desk.s.log;
        d.undo();
        EXPECT_EQ(d.said(), tooLongAgo) << objects;
        EXPECT_EQ(d.shown(1, objects), objects);
        EXPECT_EQ(d.desk.s.log.undoGroupTop, before.undoGroupTop);
        EXPECT_EQ(d.desk.s.log.undoGroupNext, before.undoGroupNext);
        EXPECT_EQ(d.desk.s.log.redoGroupTop, before.redoGroupTop);
        EXPECT_EQ(d.desk.s.log.undoLogCount, before.undoLogCount);
        EXPECT_EQ(d.desk.focused(), "pic1");
        d.draw(3); // goes on as ever
        d.undo();
        EXPECT_EQ(d.shown(1 + objects, 3), 0);
        EXPECT_EQ(d.shown(1, objects), objects);
    }
}

TEST(UndoWhole, DoesNotFindGroupsThatLieWhollyAboveTheCount)
{
    Actions d(39000);
    d.draw(400);
    d.draw(600); // up to the wrap exactly
    d.draw(5);
    for (int i = 0; i < 3; ++i) d.undo();
    EXPECT_EQ(d.shown(1001, 5), 0);
    EXPECT_EQ(d.shown(1, 1000), 1000);
    EXPECT_EQ(d.said(), "");
    for (int i = 0; i < 3; ++i) d.redo();
    EXPECT_EQ(d.shown(1, 1005), 1005);
}

TEST(UndoWhole, RedoFindsWhatWasUndoneAlsoWhenTheLogHasWrappedMeanwhile)
{
    for (const std::int32_t spare : {0, 1, 2, 3, 4, 5, 9}) {
        Actions d(39980 - spare);
        for (int i = 0; i < 10; ++i) d.draw(1);
        for (int i = 0; i < 10; ++i) d.undo();
        const std::int32_t undone = 10 - d.shown(1, 10);
        EXPECT_GT(undone, 0);
        for (int i = 0; i < 10; ++i) d.redo();
        EXPECT_EQ(d.shown(1, 10), 10) << spare;
    }
}

TEST(UndoWhole, RedoBringsASmallGroupBackBehindALargeOne)
{
    Actions d;
    d.draw(35000);
    d.draw(1);
    d.erase(100, 2);
    for (int i = 0; i < 3; ++i) d.undo();
    EXPECT_EQ(d.shown(1, 35001), 0);
    for (int i = 0; i < 3; ++i) d.redo();
    EXPECT_EQ(d.shown(1, 35001), 34999);
    EXPECT_EQ(d.desk.stat(35001), Stat::on);
    EXPECT_EQ(d.desk.stat(100), Stat::out);
    EXPECT_EQ(d.said(), "");
}

TEST(UndoWhole, RedoAfterSoMuchNewWorkThatItsRecordsAreGoneLeavesThemAlone)
{
    Actions d;
    d.draw(30);
    d.undo();
    d.draw(39990);
    d.redo();
    EXPECT_EQ(d.shown(1, 30), 0);
    EXPECT_EQ(d.said(), tooLongAgo);
    d.undo();
    EXPECT_EQ(d.shown(31, 39990), 0);
}

TEST(UndoWhole, TakesWhatAStoppedActionLeftAsAnActionOfItsOwn)
{
    Actions d;
    d.draw(2);
    addPoint(d.desk.s);
    commitInGroup(d.desk.s); // and nothing ends the group
    d.undo();
    EXPECT_EQ(d.shown(1, 3), 2);
    d.undo();
    EXPECT_EQ(d.shown(1, 3), 0);
    d.redo();
    d.redo();
    EXPECT_EQ(d.shown(1, 3), 3);
}

TEST(UndoWhole, OfTheDrawingThatIsOpenNowKnowsNothingOfTheOneBefore)
{
    Actions d;
    d.draw(40010);
    clearRecords(d.desk.s.log);
    d.desk.s.store.entCount = 1;
    d.draw(12);
    d.undo();
    EXPECT_EQ(d.shown(1, 12), 0);
    d.undo();
    d.undo();
    EXPECT_EQ(d.said(), "");
    for (int i = 0; i < 3; ++i) d.redo();
    EXPECT_EQ(d.shown(1, 12), 12);
}

} // namespace
} // namespace mirtane
