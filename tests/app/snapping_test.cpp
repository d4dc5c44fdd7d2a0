#include "desk.h"

#include "geometry/angle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mirtane {
namespace {

using namespace fake;

constexpr ControlId snapButtons[] = {"Command35"_c, "Command36"_c, "Command37"_c, "Command38"_c,
                                     "Command39"_c, "Command40"_c, "Command21"_c};
// At the start of the program an object is meant within 24 pixels of 4 units, 96 units, and the view is 4800
// wide. Ortho is off.
class Snapping : public testing::Test {
  protected:
    Snapping() { desk.press("freecurs"_c); }

    std::int32_t line(Point a, Point b) { return desk.add(fake::line(a, b)); }

    std::int32_t circle(Point centre, float radius) { return desk.add(fake::circle(centre, radius)); }

    // The end of a line from (2000, 2000) whose second click, with that snap, falls at the point.
    Point secondPoint(ControlId snap, Point at)
    {
        desk.press("Command1"_c);
        desk.click(2000, 2000);
        desk.press(snap);
        desk.click(at.x, at.y);
        return desk.slot(desk.s.store.entCount - 1).p2;
    }

    std::vector<bool> pressed() const
    {
        std::vector<bool> all;
        for (const ControlId button : snapButtons) all.push_back(desk.s.controls[button].checked);
        return all;
    }

    Desk desk;
};

TEST_F(Snapping, AnArmedSnapShowsOnItsButtonAloneTheLabelAndThePointer)
{
    circle({3000, 3000}, 60);
    desk.click(2000, 2000);
    const char* labels[] = {"Snap Point is on:",      "Snap Object is on:",        "Snap Intersection is on:",
                            "Snap Percentage is on:", "Snap Perpendicular is on:", "Snap Tangent is on:",
                            "Snap Midpoint is on:"};
    for (std::size_t i = 0; i < std::size(snapButtons); ++i) {
        desk.press(snapButtons[i]);
        std::vector<bool> wanted(std::size(snapButtons), false);
        wanted[i] = true;
        EXPECT_EQ(pressed(), wanted) << labels[i];
        EXPECT_EQ(desk.caption("snaplab"_c), labels[i]);
        EXPECT_TRUE(desk.s.controls["pic1"_c].checked) << labels[i];
        EXPECT_EQ(desk.focused(), "pic1") << labels[i];
        EXPECT_EQ(desk.s.stepNo, 1) << labels[i];
    }
    desk.click(2500, 2500);
    EXPECT_EQ(pressed(), std::vector<bool>(std::size(snapButtons), false));
    EXPECT_EQ(desk.caption("snaplab"_c), "");
    EXPECT_FALSE(desk.s.controls["pic1"_c].checked);
}

TEST_F(Snapping, TheButtonOfAnArmedSnapPressedAgainLeavesItArmed)
{
    desk.press("Command35"_c);
    desk.press("Command35"_c);
    EXPECT_EQ(desk.text("snapbox"_c), "sp");
    EXPECT_TRUE(desk.s.controls["Command35"_c].checked);
}

TEST_F(Snapping, ARefusedButtonLeavesWhatIsArmedAndGivesTheDrawingTheFocus)
{
    line({100, 100}, {900, 100});
    desk.press("Command36"_c);
    for (const ControlId refused : {"Command39"_c, "Command40"_c}) {
        desk.shell.giveFocus("List1"_c);
        desk.press(refused);
        EXPECT_EQ(desk.text("snapbox"_c), "so");
        EXPECT_EQ(desk.caption("snaplab"_c), "Snap Object is on:");
        EXPECT_TRUE(desk.s.controls["Command36"_c].checked);
        EXPECT_EQ(desk.focused(), "pic1");
    }
}

TEST_F(Snapping, ATangentWithNoCircleInTheDrawingArmsNothing)
{
    line({100, 100}, {900, 100});
    desk.click(2000, 2000);
    desk.press("Command40"_c);
    EXPECT_EQ(desk.text("snapbox"_c), "");
    EXPECT_EQ(desk.caption("snaplab"_c), "");
    EXPECT_FALSE(desk.s.controls["Command40"_c].checked);
}

TEST_F(Snapping, IsForOneClick)
{
    line({1000, 1000}, {3000, 1000});
    desk.press("Command35"_c);
    desk.click(1009, 1008);
    EXPECT_EQ(desk.s.pickFirst, (Point{1000, 1000}));
    desk.click(2991, 1008);
    EXPECT_EQ(desk.slot(2).p1, (Point{1000, 1000}));
    EXPECT_EQ(desk.slot(2).p2, (Point{2991, 1008}));
}

TEST_F(Snapping, EachSnapFindsItsPointForASecondClick)
{
    line({1000, 1000}, {3000, 1000});
    circle({1000, 2500}, 300);
    line({2800, 600}, {2800, 1400});
    struct Row {
        const char* what;
        ControlId snap;
        Point at;
        Point found;
    };
    const Row rows[] = {
        {"point", "Command35"_c, {1040, 980}, {1000, 1000}},
        {"centre", "Command35"_c, {1040, 2480}, {1000, 2500}},
        {"line", "Command36"_c, {1700, 1050}, {1700, 1000}},
        {"circle", "Command36"_c, {1350, 2500}, {1300, 2500}},
        {"crossing", "Command37"_c, {2780, 980}, {2800, 1000}},
        {"quarter of a line", "Command38"_c, {1100, 1010}, {1500, 1000}},
        {"quarter from the other end", "Command38"_c, {2500, 1010}, {2500, 1000}},
        {"foot", "Command39"_c, {1200, 1010}, {2000, 1000}},
        {"middle of a line", "Command21"_c, {1200, 1010}, {2000, 1000}},
        {"leftmost point of a circle", "Command21"_c, {1310, 2500}, {700, 2500}},
    };
    for (const Row& row : rows) {
        const Point found = secondPoint(row.snap, row.at);
        EXPECT_NEAR(found.x, row.found.x, 0.01) << row.what;
        EXPECT_NEAR(found.y, row.found.y, 0.01) << row.what;
        desk.cancel();
        desk.press("undu"_c);
    }
}

TEST_F(Snapping, ATangentTouchesTheCircle)
{
    circle({1000, 1000}, 300);
    for (const float y : {800.0F, 1200.0F}) {
        const Point touch = secondPoint("Command40"_c, {1240, y});
        const Point from = desk.slot(desk.s.store.entCount - 1).p1;
        EXPECT_EQ(from, (Point{2000, 2000}));
        EXPECT_NEAR(distance(touch, Point{1000, 1000}), 300, 0.01);
        const double along =
            (touch.x - 1000.0) * (2000.0 - touch.x) + (touch.y - 1000.0) * (2000.0 - touch.y);
        EXPECT_NEAR(along, 0, 50); // a right angle: some hundredths of a unit on 300 by 1400
        desk.cancel();
        desk.press("undu"_c);
    }
}

TEST_F(Snapping, AMissLeavesTheClickAndSaysNothing)
{
    line({100, 100}, {200, 100});
    circle({100, 3000}, 50);
    for (const ControlId snap : {"Command36"_c, "Command37"_c, "Command38"_c, "Command39"_c, "Command40"_c}) {
        EXPECT_EQ(secondPoint(snap, {3000, 1500}), (Point{3000, 1500})) << snap.row().tip;
        EXPECT_EQ(desk.text("snapbox"_c), "") << snap.row().tip;
        EXPECT_EQ(desk.text("entry"_c), "") << snap.row().tip;
        desk.cancel();
        desk.press("undu"_c);
    }
}

TEST_F(Snapping, InAnEmptyDrawingSnapPointGivesTheOriginAndMidpointTheClick)
{
    desk.press("Command35"_c);
    desk.click(700, 700);
    EXPECT_EQ(desk.s.pickFirst, (Point{0, 0}));
    desk.cancel();
    desk.press("Command21"_c);
    desk.click(900, 900);
    EXPECT_EQ(desk.s.pickFirst, (Point{900, 900}));
}

TEST_F(Snapping, AHeldKeySnapsEachClickUntilAnyKeyIsLetGo)
{
    line({1000, 1000}, {3000, 1000});
    line({1000, 2000}, {3000, 2000});
    desk.shell.keyDown(ctrlKey);
    EXPECT_TRUE(desk.s.controls["pic1"_c].checked);
    desk.click(1010, 1010);
    desk.click(2990, 2010);
    EXPECT_EQ(desk.slot(3).p1, (Point{1000, 1000}));
    EXPECT_EQ(desk.slot(3).p2, (Point{3000, 2000}));
    desk.shell.keyUp(65);
    EXPECT_FALSE(desk.s.controls["pic1"_c].checked);
    desk.click(1010, 2010);
    EXPECT_EQ(desk.slot(4).p2, (Point{1010, 2010}));
    desk.shell.keyDown(shiftKey);
    desk.click(1500, 1020);
    EXPECT_EQ(desk.slot(5).p2, (Point{1500, 1000}));
}

TEST_F(Snapping, OfAHeldKeyAndAButtonTheButtonWins)
{
    line({1000, 1000}, {3000, 1000});
    desk.shell.keyDown(shiftKey);
    desk.press("Command35"_c);
    desk.click(1050, 1010);
    EXPECT_EQ(desk.s.pickFirst, (Point{1000, 1000}));
    EXPECT_EQ(desk.text("snapbox"_c), "");
    desk.click(1500, 1020); // the key is still held
    EXPECT_EQ(desk.slot(2).p2, (Point{1500, 1000}));
}

TEST_F(Snapping, ARightClickDisarms)
{
    for (const bool begun : {false, true}) {
        if (begun) desk.click(2000, 2000);
        desk.press("Command35"_c);
        desk.cancel();
        EXPECT_EQ(desk.text("snapbox"_c), "");
        EXPECT_EQ(desk.caption("snaplab"_c), "");
        EXPECT_FALSE(desk.s.controls["Command35"_c].checked);
    }
    line({1000, 1000}, {3000, 1000});
    desk.click(1010, 1010);
    EXPECT_EQ(desk.s.pickFirst, (Point{1010, 1010}));
}

TEST_F(Snapping, ASnapBackOntoTheFirstPointEndsTheAction)
{
    line({2000, 2000}, {3000, 2000});
    desk.click(2000, 2000);
    desk.press("Command35"_c);
    desk.click(2030, 2010);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.store.entCount, 2);
}

TEST_F(Snapping, AFirstClickSnappedOntoTheLastPointOfTheFunctionBeforeCancels)
{
    desk.click(1000, 1000);
    desk.click(3000, 1000);
    desk.press("Command9"_c);
    desk.press("Command35"_c);
    desk.click(2990, 1010);
    EXPECT_EQ(desk.s.curFunc, "Polygon");
    EXPECT_EQ(desk.s.stepNo, 0);
}

TEST_F(Snapping, WithOrthoOnAPointGivesItsFootOnTheLegAndAnObjectItsMeetingWithIt)
{
    desk.press("freecurs"_c);
    line({3000, 1000}, {3400, 2400});
    desk.click(1000, 2000);
    desk.press("Command35"_c);
    desk.click(3010, 1990); // to the right; the nearest end is (3400, 2400)
    EXPECT_EQ(desk.slot(2).p2, (Point{3400, 2000}));
    desk.cancel();
    desk.click(1000, 1700);
    desk.press("Command36"_c);
    desk.click(3190, 1720);
    EXPECT_NEAR(desk.slot(3).p2.x, 3200, 0.01);
    EXPECT_EQ(desk.slot(3).p2.y, 1700);
}

TEST_F(Snapping, GoesByThePointerAndNotByTheConfinedPoint)
{
    desk.press("freecurs"_c);
    line({1990, 1400}, {2010, 1400});
    line({3000, 2600}, {3100, 2600});
    desk.click(1000, 2000);
    desk.press("Command35"_c);
    desk.click(2990, 2590); // confined it is at (3076, 2000)
    EXPECT_NEAR(desk.slot(3).p2.x, 3000, 0.01);
    EXPECT_EQ(desk.slot(3).p2.y, 2000);
}

TEST_F(Snapping, ATypedDistanceRunsNoSnap)
{
    line({3210, 2000}, {3210, 2010});
    desk.click(2000, 2000);
    desk.move(2500, 2000);
    desk.press("Command35"_c);
    desk.type("100"); // inches of 12 units
    desk.enter();
    EXPECT_EQ(desk.slot(2).p2, (Point{3200, 2000}));
}

TEST_F(Snapping, APerpendicularArmedForALineDoesNothingInAnotherFunction)
{
    line({1000, 1000}, {3000, 1000});
    desk.click(2000, 2000);
    desk.press("Command39"_c);
    desk.press("Command8"_c);
    EXPECT_EQ(desk.text("snapbox"_c), "sn");
    desk.click(1200, 1010);
    EXPECT_EQ(desk.slot(2).p1, (Point{1200, 1010}));
    EXPECT_EQ(desk.text("snapbox"_c), "");
    EXPECT_EQ(desk.caption("snaplab"_c), "");
}

TEST_F(Snapping, APerpendicularLeftForTheFirstClickOfALineDoesNothing)
{
    line({1000, 1000}, {3000, 1000});
    desk.click(2000, 2000);
    desk.press("Command39"_c);
    desk.press("Command1"_c);
    desk.click(1200, 1010);
    EXPECT_EQ(desk.s.pickFirst, (Point{1200, 1010}));
    EXPECT_EQ(desk.text("snapbox"_c), "");
}

TEST_F(Snapping, TheMiddleButtonTakesTheSnapAndCountsNoStep)
{
    line({1000, 1000}, {3000, 1000});
    desk.click(2000, 2000);
    desk.press("Command35"_c);
    desk.down(4, 1010, 1010);
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.s.pickFirst, (Point{1000, 1000}));
    EXPECT_EQ(desk.text("snapbox"_c), "");
}

TEST_F(Snapping, PointWasSnappedIsOfTheLastClickAlone)
{
    line({1000, 1000}, {3000, 1000});
    desk.press("Command35"_c);
    desk.click(1010, 1010);
    EXPECT_TRUE(desk.s.pointWasSnapped);
    desk.click(2000, 2000);
    EXPECT_FALSE(desk.s.pointWasSnapped);
    desk.press("Command36"_c);
    desk.click(2500, 1010);
    EXPECT_TRUE(desk.s.pointWasSnapped);
    desk.cancel();
    EXPECT_FALSE(desk.s.pointWasSnapped);
}

TEST_F(Snapping, TheSearchGoesWithTheScale)
{
    line({1000, 1000}, {3000, 1000});
    desk.press("Command36"_c);
    desk.click(2000, 1096);
    EXPECT_EQ(desk.s.pickFirst, (Point{2000, 1096})); // exactly as far as the search goes: no hit
    desk.cancel();
    desk.press("Command36"_c);
    desk.click(2000, 1095);
    EXPECT_EQ(desk.s.pickFirst, (Point{2000, 1000}));
    desk.cancel();
    desk.press("Command43"_c);
    desk.click(1500, 500);
    desk.click(2700, 1300); // one unit to the pixel
    desk.press("Command36"_c);
    desk.click(2000, 1025);
    EXPECT_EQ(desk.s.pickFirst, (Point{2000, 1025}));
    desk.cancel();
    desk.press("Command36"_c);
    desk.click(2000, 1023);
    EXPECT_EQ(desk.s.pickFirst, (Point{2000, 1000}));
}

TEST_F(Snapping, OnAConstructionLineAndTheFunctionTakesItsStart)
{
    line({1000, 1000}, {3000, 1000});
    desk.press("blank"_c);
    desk.press("Command35"_c);
    desk.click(1010, 1010);
    EXPECT_EQ(desk.s.blankStart, (Point{1000, 1000}));
    EXPECT_FALSE(desk.s.controls["Command35"_c].checked);
    desk.press("blank"_c);
    EXPECT_EQ(desk.s.pickFirst, (Point{1000, 1000}));
    EXPECT_TRUE(desk.s.pointWasSnapped);
}

TEST_F(Snapping, OnAConstructionLinePerpendicularAndTangentAreRefused)
{
    circle({1000, 1000}, 100);
    desk.click(2000, 2000);
    desk.press("blank"_c);
    desk.click(500, 500);
    for (const ControlId refused : {"Command39"_c, "Command40"_c}) {
        desk.press(refused);
        EXPECT_EQ(desk.text("snapbox"_c), "");
        EXPECT_EQ(desk.caption("snaplab"_c), "");
    }
}

TEST_F(Snapping, AnArmedPerpendicularIsDisarmedByAClickOfAConstructionLine)
{
    line({1000, 1000}, {3000, 1000});
    desk.click(2000, 2000);
    desk.press("Command39"_c);
    desk.press("blank"_c);
    desk.click(1200, 1010);
    EXPECT_EQ(desk.s.blankStart, (Point{1200, 1010}));
    EXPECT_EQ(desk.text("snapbox"_c), "");
    EXPECT_FALSE(desk.s.controls["Command39"_c].checked);
}

// The reference point of a set, with ortho on as it starts, at an ortho angle, after a line that ended at
// (300, 250). The line of the set is slot 1; the snaps find what is there besides.
class ReferencePoint : public Desk {
  public:
    // Where the reference point goes; at is the click.
    Point taken(ControlId button, int heldKey, Point at, double orthoDegrees)
    {
        s.orthoAngle = s.orthoAngleSaved = orthoDegrees / degreesPerRadian;
        line({1000, 1000}, {1600, 1000});
        line({1900, 1300}, {2500, 1700});
        line({2500, 1300}, {1900, 1700});
        add(fake::circle({3600, 2600}, 300));
        s.store.setStat(s.store.entCount - 4, Stat::sel);
        s.pickFirst = {300, 250};
        press("ml3"_c);
        type("wall");
        enter();
        if (heldKey != 0) shell.keyDown(heldKey);
        if (heldKey == 0) press(button);
        click(at.x, at.y);
        EXPECT_EQ(s.multipleLinesLibrary.count, 1);
        EXPECT_EQ(s.curFunc, "Line");
        return s.ptA;
    }
    void line(Point a, Point b) { add(fake::line(a, b)); }
};

TEST(ReferencePointOfMultipleLines, IsWhatTheSnapFoundWhateverOrthoSays)
{
    struct Row {
        const char* what;
        ControlId button;
        int heldKey;
        Point at, reference;
    };
    const Row rows[] = {
        {"point", "Command35"_c, 0, {1585, 1011}, {1600, 1000}},
        {"point, far off", "Command35"_c, 0, {2540, 1320}, {2500, 1300}},
        {"object, level", "Command36"_c, 0, {1300, 1030}, {1300, 1000}},
        {"object, slanted", "Command36"_c, 0, {2050, 1400}, {2050, 1400}},
        {"object, circle", "Command36"_c, 0, {3600, 2940}, {3600, 2900}},
        {"intersection", "Command37"_c, 0, {2210, 1490}, {2200, 1500}},
        {"percentage", "Command38"_c, 0, {1100, 1010}, {1150, 1000}},
        {"perpendicular, which is for lines: the click", "Command39"_c, 0, {1300, 1030}, {1300, 1030}},
        {"tangent, which is for lines: the click", "Command40"_c, 0, {3500, 2900}, {3500, 2900}},
        {"midpoint", "Command21"_c, 0, {1290, 1020}, {1300, 1000}},
        {"midpoint of a circle", "Command21"_c, 0, {3620, 2890}, {3300, 2600}},
        {"held Ctrl", {}, ctrlKey, {1015, 990}, {1000, 1000}},
        {"held Shift", {}, shiftKey, {1450, 960}, {1450, 1000}},
        {"held Shift with nothing near: the click", {}, shiftKey, {4500, 300}, {4500, 300}},
    };
    for (const double degrees : {0.0, 30.0, 77.5}) {
        for (const Row& row : rows) {
            ReferencePoint desk;
            const Point p = desk.taken(row.button, row.heldKey, row.at, degrees);
            EXPECT_NEAR(p.x, row.reference.x, 1e-2) << row.what << " at " << degrees;
            EXPECT_NEAR(p.y, row.reference.y, 1e-2) << row.what << " at " << degrees;
        }
    }
}

TEST(ReferencePointOfMultipleLines, MayBeThePointOnWhichTheFunctionBeforeEnded)
{
    ReferencePoint desk;
    desk.line({300, 250}, {700, 250});
    const Point p = desk.taken("Command35"_c, 0, {310, 240}, 0);
    EXPECT_EQ(p, (Point{300, 250}));
}

TEST_F(Snapping, SelectedObjectsTakePartAndHiddenOnesDoNot)
{
    line({1000, 1000}, {3000, 1000});
    line({1000, 1020}, {3000, 1020});
    desk.s.store.setStat(1, Stat::sel);
    desk.s.store.setStat(2, Stat::off);
    desk.press("Command36"_c);
    desk.click(2000, 1019);
    EXPECT_EQ(desk.s.pickFirst, (Point{2000, 1000}));
}

TEST_F(Snapping, ANewPercentageCountsForTheNextClick)
{
    line({1000, 1000}, {3000, 1000});
    desk.click(2000, 2000);
    desk.press("Command38"_c);
    desk.press("snapper"_c);
    desk.type("10");
    desk.enter();
    EXPECT_EQ(desk.text("snapbox"_c), "sf");
    desk.click(1300, 1010);
    EXPECT_NEAR(desk.slot(2).p2.x, 1200, 0.001);
    EXPECT_EQ(desk.slot(2).p2.y, 1000);
}

TEST(ZoomWindow, GivesTheDrawingTheFocusWhenItIsDone)
{
    Desk desk;
    desk.press("Command43"_c);
    desk.click(500, 500);
    desk.shell.giveFocus("List1"_c);
    desk.down(1, 1700, 1300);
    EXPECT_EQ(desk.s.viewLeft, 500);
    EXPECT_EQ(desk.focused(), "pic1");
}

TEST(ZoomWindow, EndsWithItsTitleWhenASnapIsArmed)
{
    Desk desk;
    const std::string before(desk.title());
    desk.press("Command43"_c);
    desk.click(500, 500);
    desk.press("Command21"_c);
    EXPECT_EQ(desk.title(), before);
    EXPECT_EQ(desk.caption("snaplab"_c), "Snap Midpoint is on:");
    EXPECT_EQ(desk.s.windowStep, 0);
}

TEST(ZoomWindow, GoesBackToTheTitleOfAFunctionStartedMeanwhile)
{
    Desk desk;
    desk.press("Command43"_c);
    desk.press("Command2"_c);
    EXPECT_EQ(desk.title(), fake::titleOf("Zoom Window(Place window around area.)"));
    desk.click(500, 500);
    desk.click(1700, 1300);
    EXPECT_EQ(desk.title(), fake::titleOf("2pt. Circle(Enter center of circle:)"));
}

TEST(ZoomWindow, OnceBegunAWindowOfTheSelectionBeginsAnewAndTheTitleSaysSo)
{
    Desk desk;
    desk.drawLine(100, 100, 400, 100);
    desk.press("Command19"_c);
    const std::string first(desk.title());
    desk.click(50, 50);
    ASSERT_NE(desk.title(), first);
    desk.press("Command43"_c);
    desk.click(60, 60);
    desk.click(800, 400);
    EXPECT_EQ(desk.title(), first);
}

TEST(ZoomWindow, TheTextUnderWayIsOnTheScreenAfterAZoom)
{
    Desk desk;
    desk.drawLine(100, 100, 400, 100);
    desk.press("Command15"_c);
    desk.click(1000, 1000);
    desk.type("AB");
    desk.ops();
    desk.press("Command42"_c);
    const fake::Ops ops = desk.ops();
    EXPECT_EQ(ops.back(), "refresh");
}

} // namespace
} // namespace mirtane
