#include "library/associates.h"

#include "library_desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::LibraryDesk;

// "Create Associate" with a name typed, waiting for the reference point.
struct CreateDesk : LibraryDesk {
    explicit CreateDesk(const char* name = "Door") : LibraryDesk("Create Associate")
    {
        typeIn(name);
        EXPECT_EQ(s.stepNo, 1);
    }
};

TEST(CreateAssociate, TakesTheCoordinatesRelativeToTheReferencePoint)
{
    struct Row {
        Kind kind;
        int movedPairs; // as bits, the first pair lowest
    };
    const Row rows[] = {
        {Kind::line, 0b00011},
        {Kind::circle, 0b00001},
        {Kind::arc, 0b01111},
        {Kind::ellipse, 0b00011},
        {Kind::point, 0b00001},
        {Kind::text, 0b01001},
        {Kind::linearDimension, 0b11111},
        {Kind::radialDimension, 0b11111},
        {Kind::leader, 0b11111},
        {Kind::angularDimension, 0b11111},
    };
    static_assert(std::size(rows) == drawnKinds, "a row for each kind");
    for (const Row& row : rows) {
        CreateDesk desk;
        const EntityRecord source = fake::filled(row.kind);
        desk.add(source);
        desk.click(100, 200);
        ASSERT_EQ(desk.s.store.entCount, 3) << numberOf(row.kind);
        const EntityRecord piece = desk.slot(2);
        const Point before[] = {source.p1, source.p2, source.p3, source.p4, source.p5};
        const Point after[] = {piece.p1, piece.p2, piece.p3, piece.p4, piece.p5};
        for (int i = 0; i < 5; ++i) {
            if ((row.movedPairs >> i & 1) == 0) continue;
            EXPECT_EQ(after[i], (Point{before[i].x - 100, before[i].y - 200}))
                << numberOf(row.kind) << " pair " << i + 1;
        }
        EXPECT_EQ(numberOf(piece.kind), numberOf(row.kind) + 10);
        EXPECT_EQ(piece.color, source.color) << numberOf(row.kind);
        EXPECT_EQ(piece.style, source.style) << numberOf(row.kind);
        EXPECT_EQ(piece.layer, 1) << numberOf(row.kind);
        EXPECT_EQ(desk.stat(2), Stat::out) << numberOf(row.kind);
        EXPECT_EQ(desk.owner(2), "Door") << numberOf(row.kind);
    }
}

// Half a symbol under its name would be of no use, and be saved like a whole one.
TEST(CreateAssociate, IsRefusedWholeWhereTheTableHasTooLittleRoom)
{
    struct Row {
        std::int32_t freeSlots; // of 1,500 pieces
        const char* said;
    };
    const Row rows[] = {{-40, "Not done: room for 1,500 more objects is missing"},
                        {0, "Not done: room for 1,500 more objects is missing"},
                        {500, "Not done: room for 1,000 more objects is missing"},
                        {501, "Not done: room for 999 more objects is missing"},
                        {1499, "Not done: room for 1 more object is missing"}};
    for (const Row& row : rows) {
        CreateDesk desk;
        for (int i = 0; i < 1500; ++i) desk.add(fake::circle({0, 0}, 1));
        desk.s.store.entCount = EntityStore::slotCount - row.freeSlots;
        desk.click(100, 200);
        EXPECT_EQ(desk.text("entry"_c), row.said) << row.freeSlots;
        EXPECT_EQ(desk.s.store.entCount, EntityStore::slotCount - row.freeSlots);
        EXPECT_EQ(desk.s.curFunc, "Create Associate") << row.freeSlots;
        EXPECT_EQ(desk.s.stepNo, 1) << row.freeSlots;
        EXPECT_EQ(desk.s.associateName, "Door") << row.freeSlots;
        for (const std::int32_t slot : {1, 700, 1500}) EXPECT_EQ(desk.stat(slot), Stat::sel) << row.freeSlots;
        desk.s.store.entCount = EntityStore::slotCount - 1500; // room was made
        desk.click(100, 200);
        EXPECT_EQ(desk.s.store.entCount, EntityStore::slotCount);
        EXPECT_EQ(desk.owner(EntityStore::slotCount - 1), "Door");
        EXPECT_EQ(desk.list(), std::vector<std::string>{"Door"});
    }
}

TEST(CreateAssociate, KeepsTheOtherFieldsOfTheKind)
{
    CreateDesk desk;
    desk.add(fake::filled(Kind::arc));
    desk.add(fake::filled(Kind::ellipse));
    desk.add(fake::filled(Kind::text));
    desk.add(fake::filled(Kind::angularDimension));
    desk.click(100, 200);
    const EntityRecord arc = desk.slot(5);
    EXPECT_EQ(arc.rad, 13);
    EXPECT_EQ(arc.a1, 0.25);
    EXPECT_EQ(arc.a2, 0.5);
    EXPECT_EQ(desk.slot(6).p3.x, 5); // a ratio is no coordinate
    const EntityRecord text = desk.slot(7);
    EXPECT_EQ(text.p2, (Point{3, 4})); // size and justification
    EXPECT_EQ(text.p3.x, 5);
    EXPECT_EQ(text.rad, 13);
    EXPECT_EQ(text.a1, 0.25);
    EXPECT_EQ(text.t1, "words");
    EXPECT_EQ(text.t2, "Garamond");
    const EntityRecord dimension = desk.slot(8);
    EXPECT_EQ(dimension.s1, 11);
    EXPECT_EQ(dimension.s2, 12);
    EXPECT_EQ(dimension.rad, 13);
    EXPECT_EQ(dimension.a3, 0.75);
    EXPECT_EQ(dimension.t1, "words");
}

TEST(CreateAssociate, LeavesTheSourceInTheDrawingAndNothingToUndo)
{
    CreateDesk desk;
    const EntityRecord source = fake::line({10, 10}, {20, 30});
    desk.add(source);
    desk.add(fake::line({0, 0}, {1, 1}), Stat::on);
    desk.click(10, 10);
    EXPECT_EQ(desk.slot(1), source);
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.s.log.undoLogCount, 0);
    EXPECT_EQ(desk.s.log.undoGroupNext, 0);
    EXPECT_EQ(desk.s.store.entCount, 4) << "what is not selected makes no piece";
    EXPECT_EQ(desk.slot(3).p2, (Point{10, 20}));
}

TEST(CreateAssociate, PassesOverOtherKindsButDeselectsThem)
{
    CreateDesk desk;
    for (const Kind kind : {Kind{0}, Kind{11}, Kind{24}, Kind{25}}) desk.add(fake::filled(kind));
    desk.click(10, 10);
    EXPECT_EQ(desk.s.store.entCount, 5);
    for (int i = 1; i < 5; ++i) EXPECT_EQ(desk.stat(i), Stat::on) << i;
}

TEST(CreateAssociate, GoesOnTheWorkingLayerAndMarksItUsed)
{
    CreateDesk desk;
    desk.s.workLayer = 3;
    desk.add(fake::filled(Kind::line));
    desk.click(1, 1);
    EXPECT_EQ(desk.slot(2).layer, 3);
    EXPECT_EQ(desk.used(3), "Yes:");
    EXPECT_EQ(desk.used(7), "No :");
}

TEST(CreateAssociate, EndsWithTheNamesInTheListAndNoneChosen)
{
    CreateDesk desk;
    desk.s.baseFunc = desk.s.lastFunc = "Window Select";
    desk.add(fake::filled(Kind::line));
    desk.click(5, 5);
    EXPECT_EQ(desk.s.curFunc, "Window Select");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.caption("Label3"_c), "Select Associate");
    EXPECT_EQ(desk.list(), std::vector<std::string>{"Door"});
    EXPECT_EQ(desk.s.associateName, "??????");
}

// Removed pieces are called so, in a drawing that was closed all slots.
TEST(CreateAssociate, TakesNoNameThatStandsForNone)
{
    LibraryDesk desk("Create Associate");
    desk.typeIn("??????");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.text("entry"_c), "Name already exists!");
    EXPECT_EQ(desk.s.curFunc, "Create Associate");
    desk.add(fake::filled(Kind::line));
    desk.click(5, 5);
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.stat(1), Stat::sel);
}

TEST(CreateAssociate, TheReferencePointIsTheSecondPointOfTheFunction)
{
    CreateDesk desk;
    desk.s.pickFirst = {1000, 1000}; // left over from another function
    desk.add(fake::line({10, 10}, {20, 30}));
    desk.click(10, 10);
    EXPECT_EQ(desk.slot(2).p1, (Point{0, 0}));
}

} // namespace
} // namespace mirtane
