// The mark of an armed or held snap: where the click would land, and on what.

#include "desk.h"

#include "geometry/angle.h"
#include "snap/snap.h"

#include <gtest/gtest.h>

#include <random>

namespace mirtane {
namespace {

using namespace fake;

struct SnapRow {
    ControlId button;
    SnapKind snap;
};

constexpr SnapRow snaps[] = {
    {"Command35"_c, SnapKind::point},         {"Command36"_c, SnapKind::object},
    {"Command37"_c, SnapKind::intersection},  {"Command38"_c, SnapKind::percentage},
    {"Command39"_c, SnapKind::perpendicular}, {"Command40"_c, SnapKind::tangent},
    {"Command21"_c, SnapKind::midpoint},
};

class Lot {
  public:
    float between(float low, float high)
    {
        return low + (high - low) * static_cast<float>(engine_()) / 4294967296.0F; // 24 bits will do
    }
    Point near(Point centre, float away)
    {
        return {centre.x + between(-away, away), centre.y + between(-away, away)};
    }

  private:
    std::mt19937 engine_{31};
};

void fill(Desk& desk, Lot& lot, Point centre)
{
    for (int i = 0; i < 12; ++i) {
        const Point at = lot.near(centre, 900);
        desk.add(fake::line(at, lot.near(at, 700)));
        desk.add(fake::circle(lot.near(centre, 900), lot.between(30, 400)));
        desk.add(
            fake::arc(lot.near(centre, 900), lot.between(30, 400), lot.between(0, 6), lot.between(0, 6)));
        const Point middle = lot.near(centre, 900);
        desk.add(fake::ellipse(lot.near(middle, 300), middle, lot.between(0.2F, 1)));
        desk.add(fake::point(lot.near(centre, 900)));
        desk.add(fake::text(lot.near(centre, 900), "words"));
    }
}

struct Trial {
    std::optional<SnapMark> mark;
    Point free;   // where the click would have been without a snap, ortho counted
    Point landed; // the second point of the line
};

// A line from the first point to where a click at the pointer lands.
template <class Arm> Trial secondClick(Desk& desk, Point first, Point pointer, Arm arm)
{
    desk.press("Command1"_c);
    desk.click(first.x, first.y);
    desk.move(pointer.x, pointer.y);
    Trial trial;
    trial.free = desk.s.pickLast;
    EXPECT_FALSE(desk.s.snapMark);
    arm();
    desk.move(pointer.x, pointer.y);
    trial.mark = desk.s.snapMark;
    const std::int32_t slot = desk.s.store.entCount;
    desk.down(1, pointer.x, pointer.y);
    trial.landed = desk.s.store.entCount > slot ? desk.slot(slot).p2 : desk.s.pickFirst;
    EXPECT_FALSE(desk.s.snapMark && desk.s.snapKey == 0);
    desk.cancel();
    return trial;
}

void expectTrueMark(const Trial& trial, SnapKind snap, const std::string& what)
{
    if (!trial.mark) {
        EXPECT_EQ(trial.landed.x, trial.free.x) << what;
        EXPECT_EQ(trial.landed.y, trial.free.y) << what;
        return;
    }
    EXPECT_EQ(trial.mark->hit.snap, snap) << what;
    EXPECT_EQ(trial.mark->at.x, trial.landed.x) << what;
    EXPECT_EQ(trial.mark->at.y, trial.landed.y) << what;
}

TEST(SnapAim, IsWhereTheClickLandsWithEverySnapOrthoOnAndOffNearAndFar)
{
    Lot lot;
    for (const Point centre : {Point{2400, 1600}, Point{-250000, 91000}}) {
        Desk desk;
        desk.pic1.setScale({centre.x - 2400, centre.y - 1600, 4800, 3200});
        fill(desk, lot, centre);
        for (const bool ortho : {true, false}) {
            if (!ortho) desk.press("freecurs"_c);
            for (const SnapRow& row : snaps) {
                int marks = 0;
                for (int i = 0; i < 40; ++i) {
                    const Trial trial = secondClick(desk, lot.near(centre, 1200), lot.near(centre, 1200),
                                                    [&] { desk.press(row.button); });
                    expectTrueMark(trial, row.snap,
                                   std::string(row.button.row().tip) + (ortho ? " ortho" : " free"));
                    marks += trial.mark ? 1 : 0;
                }
                EXPECT_GT(marks, 0) << row.button.row().tip;
            }
        }
    }
}

TEST(SnapAim, OfAHeldKeyIsThatOfItsSnap)
{
    Lot lot;
    Desk desk;
    fill(desk, lot, {2400, 1600});
    for (const auto& [key, snap] :
         {std::pair(shiftKey, SnapKind::object), std::pair(ctrlKey, SnapKind::point)}) {
        int marks = 0;
        for (int i = 0; i < 40; ++i) {
            const Trial trial = secondClick(desk, lot.near({2400, 1600}, 1200), lot.near({2400, 1600}, 1200),
                                            [&] { desk.shell.keyDown(key); });
            desk.shell.keyUp(key);
            EXPECT_FALSE(desk.s.snapMark);
            expectTrueMark(trial, snap, "key " + std::to_string(key));
            marks += trial.mark ? 1 : 0;
        }
        EXPECT_GT(marks, 0);
    }
}

TEST(SnapAim, OfAFirstClickAndOfAConstructionLineIsWhereTheyLand)
{
    Lot lot;
    Desk desk;
    fill(desk, lot, {2400, 1600});
    for (const SnapRow& row : snaps) {
        for (int i = 0; i < 20; ++i) {
            const Point pointer = lot.near({2400, 1600}, 1200);
            desk.press("Command8"_c);
            desk.press(row.button);
            desk.move(pointer.x, pointer.y);
            const auto mark = desk.s.snapMark;
            desk.down(1, pointer.x, pointer.y);
            if (mark) {
                EXPECT_EQ(desk.last().p1, mark->at) << row.button.row().tip;
            }

            desk.press("blank"_c);
            desk.click(2000, 1000);
            desk.press(row.button);
            desk.move(pointer.x, pointer.y);
            const auto leg = desk.s.snapMark;
            desk.down(1, pointer.x, pointer.y);
            if (leg) {
                EXPECT_EQ(desk.s.blankStart, leg->at) << row.button.row().tip;
            }
            desk.cancel();
        }
    }
}

TEST(SnapAim, ShowsAtOnceWhatASnapThatIsArmedUnderTheRestingPointerWouldTake)
{
    Desk desk;
    const std::int32_t line = desk.add(fake::line({400, 400}, {1600, 1000}));
    desk.move(1010, 720);
    EXPECT_FALSE(desk.s.snapMark);
    desk.press("Command21"_c);
    ASSERT_TRUE(desk.s.snapMark);
    EXPECT_EQ(desk.s.snapMark->at, (Point{1000, 700}));
    EXPECT_EQ(desk.s.snapMark->hit, (SnapHit{SnapKind::midpoint, line}));
    EXPECT_EQ(nameOf(desk.s.store, desk.s.snapMark->hit), "line");
    desk.press("Command35"_c);
    ASSERT_TRUE(desk.s.snapMark);
    EXPECT_EQ(desk.s.snapMark->hit.snap, SnapKind::point);
    desk.cancel();
    EXPECT_FALSE(desk.s.snapMark);
}

TEST(SnapAim, IsNoneWhereNothingIsNear)
{
    Desk desk;
    desk.press("Command35"_c); // of an empty drawing the click itself is taken to the origin
    desk.move(900, 900);
    EXPECT_FALSE(desk.s.snapMark);
    desk.add(fake::line({400, 400}, {1600, 1000}));
    for (const ControlId button : {"Command36"_c, "Command37"_c, "Command38"_c}) {
        desk.press(button);
        desk.move(400, 3000);
        EXPECT_FALSE(desk.s.snapMark) << button.row().tip;
    }
}

TEST(SnapAim, IsNoneWhereClicksAreNotSnapped)
{
    Desk desk;
    desk.add(fake::line({400, 400}, {1600, 1000}));
    const ControlId functions[] = {"Command18"_c, "Command19"_c, "Command20"_c, "Command43"_c};
    for (const ControlId function : functions) {
        desk.press(function);
        desk.shell.keyDown(ctrlKey);
        desk.move(410, 410);
        EXPECT_FALSE(desk.s.snapMark) << function.row().tip;
        desk.shell.keyUp(ctrlKey);
    }
    desk.cancel();
    desk.press("Command20"_c);
    desk.click(400, 400);
    desk.press("ass7"_c); // its name has to be typed first
    desk.shell.keyDown(ctrlKey);
    desk.move(410, 410);
    EXPECT_FALSE(desk.s.snapMark);
}

TEST(SnapAim, GoesWithThePointerAndStaysWithTheDrawingWhenTheViewMoves)
{
    Desk desk;
    desk.add(fake::line({400, 400}, {1600, 1000}));
    desk.press("Command35"_c);
    desk.move(420, 440);
    ASSERT_TRUE(desk.s.snapMark);
    desk.shell.pointerLeft();
    EXPECT_FALSE(desk.s.snapMark);
    desk.move(420, 440);
    ASSERT_TRUE(desk.s.snapMark);
    desk.press("fil7"_c); // a form that has to be answered
    EXPECT_FALSE(desk.s.snapMark);
    desk.shell.closeForm("frmfile"_c);
    ASSERT_TRUE(desk.s.snapMark);
    for (int i = 0; i < 3; ++i) desk.shell.keyDown(39); // beneath the pointer the other end comes near
    ASSERT_TRUE(desk.s.snapMark);
    EXPECT_EQ(desk.s.snapMark->at, (Point{1600, 1000}));
}

TEST(SnapAim, ChangesNothing)
{
    Lot lot;
    Desk desk;
    fill(desk, lot, {2400, 1600});
    desk.press("Command1"_c);
    desk.click(1000, 1000);
    for (const SnapRow& row : snaps) {
        desk.move(2300, 1500);
        desk.press(row.button);
        const std::string armed = desk.text("snapbox"_c);
        const std::string label = desk.caption("snaplab"_c);
        const auto [first, last, mouse] = std::tuple(desk.s.pickFirst, desk.s.pickLast, desk.s.mousePos);
        const std::int32_t best = desk.s.snapBestIndex;
        desk.ops();
        for (int i = 0; i < 30; ++i) {
            const Point at = lot.near({2400, 1600}, 1000);
            desk.move(at.x, at.y);
        }
        desk.move(2300, 1500);
        EXPECT_NE(armed, "");
        EXPECT_EQ(desk.text("snapbox"_c), armed);
        EXPECT_EQ(desk.caption("snaplab"_c), label);
        EXPECT_EQ(std::tuple(desk.s.pickFirst, desk.s.pickLast, desk.s.mousePos),
                  std::tuple(first, last, mouse));
        EXPECT_EQ(desk.s.stepNo, 1);
        EXPECT_EQ(desk.s.snapBestIndex, best);
        EXPECT_FALSE(desk.s.pointWasSnapped);
        for (const std::string& op : desk.ops())
            EXPECT_TRUE(op.starts_with("line ") || op.starts_with("restoreSnapshot") || op.starts_with("set"))
                << op;
    }
}

} // namespace
} // namespace mirtane
