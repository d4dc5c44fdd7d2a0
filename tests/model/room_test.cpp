#include "model/room.h"

#include <gtest/gtest.h>

#include <memory>

namespace mirtane {
namespace {

struct Room : testing::Test {
    std::unique_ptr<Session> session = std::make_unique<Session>();
    Session& s = *session;
};

TEST_F(Room, IsThereForAsManyAsTheTableHasSlots)
{
    struct Row {
        std::int32_t entCount;
        std::int64_t objects;
        const char* said;
    };
    const Row rows[] = {
        {1, 60000, ""},
        {1, 60001, "Not done: room for 1 more object is missing"},
        {59000, 1001, ""},
        {59000, 1003, "Not done: room for 2 more objects is missing"},
        {60001, 0, ""},
        {60001, 1, "Not done: room for 1 more object is missing"},
        {61500, 0, ""},
        {61500, 2, "Not done: room for 2 more objects is missing"}, // what was lost is not made up for
        {58976, 3840000, "Not done: room for 3,838,975 more objects is missing"},
    };
    for (const Row& row : rows) {
        s.store.entCount = row.entCount;
        setText(s.controls["entry"_c], "");
        EXPECT_EQ(hasRoomFor(s, row.objects), row.said[0] == '\0') << row.entCount << ", " << row.objects;
        EXPECT_EQ(s.controls["entry"_c].text, row.said);
        EXPECT_EQ(tellsNoRoom(s.controls), row.said[0] != '\0');
    }
}

TEST_F(Room, ToRegainIsThatOfObjectsThatAreOut)
{
    struct Row {
        Kind kind;
        Stat stat;
        const char* owner;
        std::int32_t slots;
    };
    const Row rows[] = {
        {Kind::line, Stat::on, "", 0},
        {Kind::line, Stat::sel, "", 0},
        {Kind::line, Stat::off, "", 0},
        {Kind::line, Stat::out, "", 1},
        {Kind::angularDimension, Stat::out, "??????", 1},
        {layerNameKind, Stat::out, "", 1}, // of a layer that lost its name
        {pieceOf(Kind::line), Stat::out, "door", 0},
        {pieceOf(Kind::angularDimension), Stat::out, "door", 0},
        {pieceOf(Kind::circle), Stat::out, "??????", 1}, // of an associate that was removed
    };
    for (const Row& row : rows) {
        for (const std::int32_t slot : {1, 777, 60000}) {
            s = Session();
            s.store.entCount = EntityStore::slotCount + 3;
            s.store.kind[EntityStore::at(slot)] = row.kind;
            s.store.setStat(slot, row.stat);
            s.store.ownerName[EntityStore::at(slot)] = row.owner;
            EXPECT_EQ(slotsToRegain(s.store), row.slots) << slot << ", kind " << numberOf(row.kind);
            s.store.entCount = slot;
            EXPECT_EQ(slotsToRegain(s.store), 0) << slot;
        }
    }
}

TEST_F(Room, ARefusedActPutsTheFunctionBackAndAnyOtherLeavesIt)
{
    const auto act = [&](std::int64_t objects) {
        return [this, objects] {
            countStep(s);
            s.pickLast = {5, 6};
            s.boundaryCount = 4;
            s.editDX = 7;
            if (hasRoomFor(s, objects)) s.curFunc = "Line";
        };
    };
    s.curFunc = "Move";
    s.stepNo = 1;
    unlessRefused(s, act(60001));
    EXPECT_EQ(s.stepNo, 1);
    EXPECT_EQ(s.pickLast, Point());
    EXPECT_EQ(s.boundaryCount, 0);
    EXPECT_EQ(s.editDX, 0);
    EXPECT_EQ(s.curFunc, "Move");
    unlessRefused(s, act(60000));
    EXPECT_EQ(s.stepNo, 2);
    EXPECT_EQ(s.pickLast, (Point{5, 6}));
    EXPECT_EQ(s.boundaryCount, 4);
    EXPECT_EQ(s.editDX, 7);
    EXPECT_EQ(s.curFunc, "Line");
}

TEST_F(Room, AnActWithinAnotherIsRefusedByItself)
{
    unlessRefused(s, [this] {
        s.curFunc = "Polygon"; // a construction line is released
        unlessRefused(s, [this] {
            countStep(s);
            EXPECT_FALSE(hasRoomFor(s, 70000));
        });
    });
    EXPECT_EQ(s.curFunc, "Polygon");
    EXPECT_EQ(s.stepNo, 0);
}

} // namespace
} // namespace mirtane
