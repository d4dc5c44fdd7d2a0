#include "edit/move_copy.h"

#include "edit_desk.h"

#include "edit/mirror.h"

namespace mirtane {
namespace {

using fake::EditDesk;
using fake::Ops;
using fake::sample;

TEST(Move, LiftsTheSelectionAtItsFirstClickAndDrawsItInPlace)
{
    EditDesk desk;
    desk.add(sample(Kind::line));
    desk.add(sample(Kind::circle), Stat::on);
    desk.s.pickLast = {900, 900}; // of an earlier function
    desk.begin("Move");
    desk.ops();
    desk.click(3, 4);
    EXPECT_EQ(desk.s.workAngle, 25);
    EXPECT_EQ(desk.s.pickLast, (Point{900, 900}));
    EXPECT_EQ(desk.s.promptText, "(Enter new reference point:)");
    const Ops expected = {"circle 100 100 30", "line 3 4 3 4", "line 10 20 40 60"};
    EXPECT_EQ(fake::marks(desk.ops()), expected); // the line is not among what is kept in the clean picture
}

TEST(Move, ShowsTheMovedObjectsAgain)
{
    EditDesk desk;
    desk.add(sample(Kind::line));
    desk.begin("Move");
    desk.click(0, 0);
    desk.ops();
    desk.click(5, 5);
    const Ops expected = {"line 15 25 45 65"};
    EXPECT_EQ(fake::marks(desk.ops()), expected);
}

TEST(Move, GhostIsTheSelectionAtThePointerInTheRubberBandPen)
{
    EditDesk desk;
    for (const Kind kind : {Kind::line, Kind::circle, Kind::arc, Kind::ellipse, Kind::point})
        desk.add(sample(kind));
    desk.add(sample(Kind::line), Stat::on);
    desk.begin("Move");
    desk.click(0, 0);
    desk.ops();
    desk.move({10, -5});
    const Ops ops = desk.ops();
    ASSERT_GE(ops.size(), 6U);
    EXPECT_EQ(ops[0], "restoreSnapshot");
    EXPECT_EQ(ops[1], "line 0 0 10 -5");
    EXPECT_EQ(ops[2], "line 20 15 50 55");
    EXPECT_EQ(ops[3], "circle 110 95 30");
    EXPECT_EQ(ops[4], "arc 210 95 50 0 1.5707963");
    EXPECT_EQ(ops.back(), "point 17 4");
    EXPECT_TRUE(fake::only(ops, "setColor").empty());
    EXPECT_TRUE(fake::only(ops, "setStyle").empty());
    EXPECT_EQ(desk.slot(1), sample(Kind::line));
}

TEST(Move, HasNoGhostBeforeItsReferencePoint)
{
    EditDesk desk;
    desk.add(sample(Kind::line));
    desk.begin("Move");
    desk.ops();
    desk.move({1, 1});
    desk.down(4, {1, 1}); // the middle button counts no step
    EXPECT_TRUE(desk.ops().empty());
    EXPECT_EQ(desk.s.store.entCount, 2);
}

TEST(Move, OfNothingLeavesTheViewAsItWas)
{
    EditDesk desk;
    desk.add(sample(Kind::line), Stat::on);
    const Scale before = desk.pic1.getScale();
    desk.begin("Move");
    desk.click(0, 0);
    desk.click(50, 50);
    EXPECT_EQ(desk.pic1.getScale().left, before.left);
    EXPECT_EQ(desk.pic1.getScale().width, before.width);
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.s.store.entCount, 2);
}

TEST(Move, ThereAndBackGivesTheSameObject)
{
    for (const Kind kind : everyKind) {
        EditDesk desk;
        desk.add(sample(kind));
        desk.begin("Move");
        desk.click(0, 0);
        desk.click(64, -32);
        desk.s.store.setStat(2, Stat::sel);
        desk.begin("Move");
        desk.click(66, -30); // on the last point it would be the cancel
        desk.click(2, 2);
        fake::expectRecord(desk.slot(3), sample(kind), 1e-4, "there and back");
    }
}

TEST(Copy, EachFurtherClickRepeatsTheFirstOffsetInAGroupOfItsOwn)
{
    EditDesk desk;
    desk.add(sample(Kind::point));
    desk.begin("Copy");
    desk.click(0, 0);
    EXPECT_EQ(desk.s.promptText, "(Enter new reference point:)");
    EXPECT_EQ(desk.s.workAngle, 0);
    desk.click(10, 20);
    EXPECT_EQ(desk.s.promptText, "(Left click for another copy:)");
    const std::int32_t group = desk.s.log.undoGroupNext;
    desk.click(-300, 77);
    desk.click(1, 1);
    EXPECT_EQ(desk.s.log.undoGroupNext, group + 2);
    EXPECT_EQ(desk.slot(2).p1, (Point{17, 29}));
    EXPECT_EQ(desk.slot(3).p1, (Point{27, 49}));
    EXPECT_EQ(desk.slot(4).p1, (Point{37, 69}));
    EXPECT_EQ(desk.stat(1), Stat::sel);
    EXPECT_EQ(desk.s.curFunc, "Copy");
    EXPECT_EQ(desk.s.stepNo, 4);
    EXPECT_EQ(desk.s.editPending, 1);
    undo(desk.s.store, desk.s.log);
    EXPECT_EQ(desk.stat(4), Stat::out);
    EXPECT_EQ(desk.stat(3), Stat::on);
}

TEST(Copy, KeepsTheOriginalsInThePictureUnderItsGhost)
{
    EditDesk desk;
    desk.add(sample(Kind::line));
    desk.begin("Copy");
    desk.ops();
    desk.click(0, 0);
    EXPECT_TRUE(desk.ops().empty());
    for (const std::int16_t step : {std::int16_t{1}, std::int16_t{2}, std::int16_t{7}}) {
        desk.s.stepNo = step;
        desk.move({1, 1});
        const Ops expected = {"restoreSnapshot", "line 0 0 1 1", "line 11 21 41 61"};
        EXPECT_EQ(desk.ops(), expected);
    }
}

TEST(MirrorBand, IsTheMirrorLineAlone)
{
    EditDesk desk;
    desk.add(sample(Kind::line));
    desk.begin("Mirror Copy");
    desk.click(1, 2);
    EXPECT_EQ(desk.s.promptText, "(Enter end of mirror line:)");
    desk.ops();
    desk.move({30, 40});
    const Ops expected = {"restoreSnapshot", "line 1 2 30 40"};
    EXPECT_EQ(desk.ops(), expected);
    desk.s.stepNo = 0;
    desk.move({30, 40});
    EXPECT_TRUE(desk.ops().empty());
}

} // namespace
} // namespace mirtane
