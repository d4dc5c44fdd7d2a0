#include "desk.h"
#include "tables/shortcuts.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

TEST(MouseDown, ClearsEntryAndHidesTheFilterAndTheEdits)
{
    Desk desk;
    setText(desk.s.controls["entry"_c], "Drawing not saved!");
    desk.s.controls["frmfilter"_c].visible = true;
    desk.s.controls["frmedit"_c].visible = true;
    desk.s.controls["snaplab"_c].caption = "Snap Point is on:";
    desk.down(1, 100, 100);
    EXPECT_EQ(desk.text("entry"_c), "");
    EXPECT_FALSE(desk.visible("frmfilter"_c));
    EXPECT_FALSE(desk.visible("frmedit"_c));
    EXPECT_EQ(desk.caption("snaplab"_c), "");
}

TEST(MouseDown, StoresTheFirstClickAndLaterOnesApart)
{
    Desk desk;
    desk.press("freecurs"_c);
    desk.down(1, 100, 110);
    EXPECT_EQ(desk.s.pickFirst, (Point{100, 110}));
    EXPECT_EQ(desk.s.mousePos, (Point{100, 110}));
    desk.down(1, 200, 330);
    EXPECT_EQ(desk.s.pickLast, (Point{200, 330}));
    EXPECT_EQ(desk.s.mousePos, (Point{200, 330}));
}

TEST(MouseDown, KeepsTheRawPositionApartFromOrtho)
{
    Desk desk;
    desk.click(100, 100);
    desk.click(400, 110);
    EXPECT_EQ(desk.s.mousePos, (Point{400, 110}));
    EXPECT_EQ(desk.slot(1).p2.y, 100);
    desk.move(777, 777);
    EXPECT_EQ(desk.s.mousePos, (Point{400, 110})); // moves don't write it
}

TEST(MouseDown, EndsTheActionOnTheFirstPointInsteadOfStoringALineOfNoLength)
{
    Desk desk;
    desk.press("freecurs"_c);
    desk.click(100, 100);
    desk.down(1, 100, 100);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.store.entCount, 1);
    EXPECT_EQ(desk.s.pickLast, (Point{300, 300}));
}

TEST(MouseDown, ComparesTheConfinedPointWithTheFirst)
{
    // At a distance that is lost in the coordinate, the confined point is the first one itself.
    Desk desk;
    desk.click(16777216, 100);
    desk.move(16777216, 100.5F);
    desk.s.orthoSector = 1;
    desk.down(1, 16777216, 100.5F);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.store.entCount, 1);
}

TEST(MouseDown, FirstClickExactlyOnTheLastPointOfTheFunctionBeforeCancels)
{
    Desk desk;
    desk.press("freecurs"_c);
    desk.click(100, 100);
    desk.click(400, 300);
    desk.press("Command9"_c);
    desk.down(1, 400, 300);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.curFunc, "Polygon");
    desk.down(1, 401, 300);
    EXPECT_EQ(desk.s.stepNo, 1);
}

TEST(MouseDown, TheMiddleButtonCountsNoStepAndRunsTheOldOneAgain)
{
    Desk desk;
    desk.press("freecurs"_c);
    desk.click(100, 100);
    desk.down(4, 150, 160);
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.s.pickFirst, (Point{150, 160}));
    EXPECT_EQ(desk.s.ptA, (Point{150, 160})); // the first step of Line ran once more
    EXPECT_EQ(desk.s.mousePos, (Point{150, 160}));
}

TEST(MouseDown, TheMiddleButtonDoesNothingInAWindow)
{
    Desk desk;
    desk.press("Command43"_c);
    desk.down(4, 10, 10);
    EXPECT_EQ(desk.s.windowStep, 0);
    desk.down(1, 10, 10);
    desk.down(4, 500, 500);
    EXPECT_EQ(desk.s.windowStep, 1);
    EXPECT_EQ(desk.caption("snaplab"_c), "Zoom Window is on:");
}

TEST(MouseDown, UpdatesTheGaugeAfterTheCommit)
{
    Desk desk;
    desk.s.store.entCount = 299;
    desk.drawLine(100, 100, 400, 100);
    EXPECT_EQ(desk.text("memy"_c), "000.500");
}

TEST(MouseDown, ThatFillsSlot59899WarnsAtOnce)
{
    Desk desk;
    desk.s.store.entCount = 59899;
    desk.click(100, 100);
    EXPECT_EQ(desk.text("entry"_c), "");
    desk.click(400, 100);
    EXPECT_EQ(desk.s.store.entCount, 59900);
    EXPECT_EQ(desk.text("entry"_c), "You are out of memory! Save and exit now.");
}

// The functions that answer add nothing; the gauge, which warns at each click from there on, lets them
// answer.
TEST(MouseDown, KeepsTheAnswerOfAFunctionInANearlyFullTable)
{
    for (const std::int32_t count : {59899, 59900, 59977, 60000, 61234}) {
        Desk desk;
        desk.s.store.entCount = count;
        desk.press("freecurs"_c);
        desk.press("num3"_c);
        desk.press("ut3"_c);
        desk.click(1000, 1000);
        desk.click(1120, 1160);
        EXPECT_EQ(desk.text("entry"_c), "16.667\"") << count;
        desk.click(1120, 1280);
        EXPECT_EQ(desk.text("entry"_c), "10.000\"") << count;
        desk.press("ut4"_c);
        for (const Point p : {Point{1000, 1000}, Point{1144, 1000}, Point{1144, 1288}, Point{1000, 1000}})
            desk.click(p.x, p.y);
        EXPECT_TRUE(desk.text("entry"_c).ends_with(" Square")) << desk.text("entry"_c);
        desk.cancel();
        desk.press("Command8"_c);
        desk.click(2000, 2000);
        EXPECT_EQ(desk.text("entry"_c), "You are out of memory! Save and exit now.") << count;
        setText(desk.s.controls["entry"_c], "what an earlier function has said");
        desk.press("Command1"_c);
        desk.click(2100, 2000);
        EXPECT_EQ(desk.text("entry"_c), "You are out of memory! Save and exit now.") << count;
    }
}

TEST(MouseDown, GoesOnPastTheEndOfTheTableWithoutHarm)
{
    Desk desk;
    desk.s.store.entCount = 60000;
    desk.press("freecurs"_c);
    desk.click(100, 100);
    for (float x = 200; x < 700; x += 100) desk.click(x, 150);
    EXPECT_EQ(desk.s.store.entCount, 60005);
    EXPECT_EQ(desk.slot(60000).p2, (Point{200, 150}));
    desk.press("undu"_c);
    desk.press("Command42"_c);
    EXPECT_FALSE(desk.shell.ended());
}

TEST(Ortho, TurnsTheBandOntoTheAxisAtThePointersFullDistance)
{
    Desk desk;
    desk.click(100, 100);
    desk.ops();
    desk.move(400, -200); // 45 degrees exactly: sector 1
    EXPECT_EQ(desk.s.orthoSector, 1);
    EXPECT_NEAR(desk.s.pickLast.x, 100 + 424.2641, 0.001);
    EXPECT_EQ(desk.s.pickLast.y, 100);
    const fake::Ops bands = fake::only(desk.ops(), "line");
    ASSERT_EQ(bands.size(), 1U);
    EXPECT_TRUE(bands[0].starts_with("line 100 100 524.26"));
    EXPECT_TRUE(bands[0].ends_with(" 100"));
}

struct SectorRow {
    const char* what;
    float dx, dy; // y down
    std::int16_t sector;
    Point to; // from (1000, 1000), at distance 500
};

TEST(Ortho, ChoosesTheSectorByTheDirection)
{
    const SectorRow rows[] = {
        {"right", 500, 0, 1, {1500, 1000}},
        {"right, a little up", 400, -300, 1, {1500, 1000}},
        {"up", 0, -500, 2, {1000, 500}},
        {"up, a little left", -300, -400, 2, {1000, 500}},
        {"left", -500, 0, 3, {500, 1000}},
        {"left, a little down", -400, 300, 3, {500, 1000}},
        {"down", 0, 500, 4, {1000, 1500}},
        {"down, a little right", 300, 400, 4, {1000, 1500}},
        {"right, a little down", 400, 300, 1, {1500, 1000}},
    };
    for (const SectorRow& row : rows) {
        Desk desk;
        desk.click(1000, 1000);
        desk.move(1000 + row.dx, 1000 + row.dy);
        EXPECT_EQ(desk.s.orthoSector, row.sector) << row.what;
        EXPECT_EQ(desk.s.pickLast, row.to) << row.what;
    }
}

TEST(Ortho, StandsAtTheOrthoAngle)
{
    Desk desk;
    desk.s.orthoAngle = desk.s.orthoAngleSaved = 30 / 57.29578;
    desk.click(1000, 1000);
    desk.move(1400, 1000 - 300); // 36.9 degrees: near the axis at 30
    EXPECT_EQ(desk.s.orthoSector, 1);
    EXPECT_NEAR(desk.s.pickLast.x, 1000 + 433.0127, 0.01);
    EXPECT_NEAR(desk.s.pickLast.y, 1000 - 250, 0.01);
    desk.move(1500, 1000); // 30 degrees below the axis: still the first sector
    EXPECT_EQ(desk.s.orthoSector, 1);
    desk.move(1000, 500); // 60 above it
    EXPECT_EQ(desk.s.orthoSector, 2);
}

TEST(Ortho, OfAClickUsesTheSectorOfTheLastMoveAndItsOwnDistance)
{
    Desk desk;
    desk.click(1000, 1000);
    desk.move(1500, 1000);    // sector 1
    desk.down(1, 1000, 1300); // straight down, 300 away
    EXPECT_EQ(desk.slot(1).p2, (Point{1300, 1000}));
}

TEST(Ortho, OffLeavesBandAndClickWhereThePointerIs)
{
    Desk desk;
    desk.press("freecurs"_c);
    EXPECT_EQ(desk.caption("freecurs"_c), "Ortho/Off");
    EXPECT_EQ(desk.s.orthoCaption, "Ortho/Off");
    desk.click(100, 100);
    desk.click(250, 130);
    EXPECT_EQ(desk.slot(1).p2, (Point{250, 130}));
    desk.press("freecurs"_c);
    EXPECT_EQ(desk.caption("freecurs"_c), "Ortho/On");
    EXPECT_EQ(desk.s.orthoCaption, "Ortho/On");
    EXPECT_EQ(desk.focused(), "pic1");
}

TEST(Cancel, PutsEverythingBackToTheStartOfTheFunction)
{
    Desk desk;
    desk.click(100, 100);
    desk.s.liveAngle = desk.s.workAngle = 1;
    desk.s.windowStep = 1;
    desk.s.textLength = 4;
    desk.s.boundaryCount = 3;
    desk.s.pointWasSnapped = true;
    desk.s.orthoAngle = 0.5;
    desk.s.controls["freecurs"_c].caption = "Ortho/Off"; // borrowed
    desk.s.controls["snaplab"_c].caption = "Snap Point is on:";
    desk.s.controls["snapbox"_c].text = "sp";
    desk.ops();
    desk.cancel(700, 800);
    EXPECT_EQ(desk.s.ptA, (Point{700, 800}));
    EXPECT_EQ(desk.s.pickLast, (Point{300, 300}));
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.windowStep, 0);
    EXPECT_EQ(desk.s.textLength, 0);
    EXPECT_EQ(desk.s.boundaryCount, 0);
    EXPECT_FALSE(desk.s.pointWasSnapped);
    EXPECT_EQ(desk.s.liveAngle, 0);
    EXPECT_EQ(desk.s.workAngle, 0);
    EXPECT_EQ(desk.s.orthoAngle, 0);
    EXPECT_EQ(desk.caption("freecurs"_c), "Ortho/On");
    EXPECT_EQ(desk.caption("snaplab"_c), "");
    EXPECT_EQ(desk.text("snapbox"_c), "");
    EXPECT_EQ(desk.title(), fake::titleOf("Line(Enter beginning point of line:)"));
    EXPECT_EQ(desk.focused(), "pic1");
    const fake::Ops expected = {"setColor 16777215", "setStyle 2", "clear", "restoreSnapshot"};
    EXPECT_EQ(desk.ops(), expected);
}

TEST(Cancel, ReturnsToTheBaseFunctionAndDropsASelectionThatAnEditWaitedFor)
{
    Desk desk;
    desk.drawLine(100, 100, 400, 100);
    desk.s.store.setStat(1, Stat::sel);
    desk.s.curFunc = "Copy";
    desk.s.editPending = 1;
    desk.cancel();
    EXPECT_EQ(desk.s.curFunc, "Line");
    EXPECT_EQ(desk.s.editPending, 0);
    EXPECT_EQ(desk.stat(1), Stat::on);
}

TEST(Cancel, KeepsASelectionThatNoEditWaitsFor)
{
    Desk desk;
    desk.drawLine(100, 100, 400, 100);
    desk.s.store.setStat(1, Stat::sel);
    desk.cancel();
    EXPECT_EQ(desk.stat(1), Stat::sel);
    EXPECT_FALSE(desk.visible("frmedit"_c));
}

TEST(Cancel, WithNothingSelectedSaysSoInASelectionFunction)
{
    for (const char* name : {"Object Select", "Window Select", "Window Select Filtered"}) {
        Desk desk;
        desk.drawLine(100, 100, 400, 100);
        desk.s.curFunc = desk.s.baseFunc = desk.s.lastFunc = name;
        desk.cancel();
        EXPECT_EQ(desk.text("entry"_c), "Nothing selected!") << name;
        EXPECT_FALSE(desk.visible("frmedit"_c)) << name;
        desk.s.store.setStat(1, Stat::sel);
        desk.cancel();
        EXPECT_EQ(desk.text("entry"_c), "") << name;
        EXPECT_TRUE(desk.visible("frmedit"_c)) << name;
    }
}

TEST(Cancel, OfZoomWindowLeavesTheRunningFunctionAndTheArmedSnap)
{
    Desk desk;
    desk.click(100, 100);
    desk.s.controls["snaplab"_c].caption = "Snap Point is on:";
    desk.s.controls["snapbox"_c].text = "sp";
    const std::string title(desk.title());
    desk.press("Command43"_c);
    EXPECT_EQ(desk.title(), fake::titleOf("Zoom Window(Place window around area.)"));
    desk.down(1, 10, 10);
    desk.cancel();
    EXPECT_EQ(desk.caption("snaplab"_c), "Snap Point is on:");
    EXPECT_EQ(desk.text("snapbox"_c), "sp");
    EXPECT_EQ(desk.title(), title);
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.s.pickFirst, (Point{100, 100}));
    EXPECT_EQ(desk.s.windowStep, 0);
}

TEST(ArmedSnap, SurvivesTheClicksOfAWindowAndAChangeOfFunction)
{
    Desk desk;
    desk.s.controls["snapbox"_c].text = "sp";
    desk.s.controls["snaplab"_c].caption = "Snap Point is on:";
    desk.press("Command43"_c);
    desk.down(1, 700, 500);
    desk.down(1, 1300, 900);
    desk.press("Command8"_c);
    EXPECT_EQ(desk.text("snapbox"_c), "sp");
    EXPECT_EQ(desk.caption("snaplab"_c), "Snap Point is on:");
    desk.cancel();
    EXPECT_EQ(desk.text("snapbox"_c), "");
    EXPECT_EQ(desk.caption("snaplab"_c), "");
}

TEST(EscapeKey, DoesNothingAnywhere)
{
    Desk desk;
    desk.click(100, 100);
    desk.shell.keyDown(27);
    desk.shell.keyPress(27);
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.focused(), "pic1");
    desk.type("5");
    desk.shell.keyPress(27);
    EXPECT_EQ(desk.text("entry"_c), "5");
    EXPECT_EQ(desk.focused(), "entry");
}

TEST(MouseMove, BeforeTheFirstClickChangesNothing)
{
    Desk desk;
    desk.s.pickLast = {7, 8};
    desk.move(100, 100);
    EXPECT_EQ(desk.s.pickLast, (Point{7, 8}));
}

TEST(MouseMove, OfAWindowDrawsItsFourSidesOnceThereIsACorner)
{
    Desk desk;
    desk.press("Command43"_c);
    desk.move(50, 50);
    EXPECT_TRUE(fake::marks(desk.ops()).empty());
    desk.down(1, 10, 20);
    desk.ops();
    desk.move(110, 220);
    const fake::Ops expected = {"restoreSnapshot", "line 10 20 110 20", "line 110 20 110 220",
                                "line 110 220 10 220", "line 10 220 10 20"};
    EXPECT_EQ(desk.ops(), expected);
}

TEST(HeldKeys, ShiftAndCtrlArmASnapUntilAnyKeyIsLetGo)
{
    Desk desk;
    desk.shell.keyDown(16);
    EXPECT_EQ(desk.s.snapKey, 1);
    desk.shell.keyDown(17);
    EXPECT_EQ(desk.s.snapKey, 2);
    desk.shell.keyUp(65);
    EXPECT_EQ(desk.s.snapKey, 0);
}

struct HeldRow {
    std::int16_t before;
    bool shift, ctrl;
    std::int16_t after;
};

constexpr HeldRow heldRows[] = {
    {0, false, false, 0}, {0, true, false, 1}, {0, false, true, 2}, {0, true, true, 2},
    {1, false, false, 0}, {1, true, false, 1}, {1, false, true, 2}, {1, true, true, 1},
    {2, false, false, 0}, {2, true, false, 1}, {2, false, true, 2}, {2, true, true, 2},
};

// They went down or up in a field, and the pointer comes from there with the field still in use.
TEST(HeldKeys, AreAsThePointerTellsThemAndMoveNoFocus)
{
    for (const HeldRow& row : heldRows) {
        Desk desk;
        desk.shell.giveFocus("angle"_c);
        desk.s.snapKey = row.before;
        desk.shell.keysHeld(row.shift, row.ctrl);
        EXPECT_EQ(desk.s.snapKey, row.after) << row.before << row.shift << row.ctrl;
        EXPECT_EQ(desk.s.controls.focus, ControlId("angle"_c));
    }
}

// Held on after a shortcut, Ctrl snaps only once it was let go.
TEST(HeldKeys, ThatMadeAShortcutSnapNoMoreUntilTheyAreLetGo)
{
    for (const Shortcut& row : shortcuts) {
        Desk desk;
        desk.drawLine(100, 200, 700, 500);
        desk.shell.keyDown(17);
        desk.shell.shortcut(row);
        desk.shell.keysHeld(false, true);
        EXPECT_EQ(desk.s.snapKey, 0) << row.keys;
        desk.shell.keysHeld(true, true);
        EXPECT_EQ(desk.s.snapKey, 0) << row.keys;
        desk.shell.keysHeld(false, false);
        desk.shell.keysHeld(false, true);
        EXPECT_EQ(desk.s.snapKey, 2) << row.keys;
    }
    Desk desk;
    desk.shell.choose("ly3"_c);
    desk.shell.keyDown(17); // anew
    desk.shell.keysHeld(false, true);
    EXPECT_EQ(desk.s.snapKey, 2);
}

struct PanRow {
    const char* what;
    int code;
    float left, top;
};

TEST(ArrowKeys, PanByATenthAndRepaint)
{
    const PanRow rows[] = {
        {"left", 37, -480, 0}, {"up", 38, 0, -320}, {"right", 39, 480, 0}, {"down", 40, 0, 320}};
    for (const PanRow& row : rows) {
        Desk desk;
        desk.shell.giveFocus("angle"_c);
        desk.shell.keyDown(row.code);
        EXPECT_EQ(desk.pic1.getScale().left, row.left) << row.what;
        EXPECT_EQ(desk.pic1.getScale().top, row.top) << row.what;
        EXPECT_EQ(desk.s.viewLeft, row.left) << row.what;
        EXPECT_EQ(desk.s.viewRight, row.left + 4800) << row.what;
        EXPECT_EQ(desk.s.viewBottom, row.top + 3200) << row.what;
        EXPECT_EQ(fake::only(desk.ops(), "snapshot").size(), 1U) << row.what;
        EXPECT_EQ(desk.focused(), "pic1") << row.what;
    }
}

TEST(KeysOnTheDrawing, AreLostAtStepZero)
{
    Desk desk;
    desk.type("12'");
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_EQ(desk.text("entry"_c), "");
}

TEST(KeysOnTheDrawing, BeginANumberInEntryOnceTheFunctionHasBegun)
{
    struct Row {
        const char* key;
        const char* entry;
    };
    const Row rows[] = {{"7", "7"}, {".", "."}, {"-", "-"}, {"'", "'"},
                        {",", "."}, {"a", ""},  {"+", ""},  {" ", ""}};
    for (const Row& row : rows) {
        Desk desk;
        desk.click(100, 100);
        setText(desk.s.controls["entry"_c], "");
        desk.type(row.key);
        EXPECT_EQ(desk.text("entry"_c), row.entry) << row.key;
        EXPECT_EQ(desk.focused(), *row.entry == '\0' ? "pic1" : "entry") << row.key;
    }
}

TEST(KeysOnTheDrawing, ReplaceWhatStoodInEntryAndTypingGoesOnBehind)
{
    Desk desk;
    desk.click(100, 100);
    setText(desk.s.controls["entry"_c], "old");
    desk.type("12'6");
    EXPECT_EQ(desk.text("entry"_c), "12'6");
}

TEST(KeysOnTheDrawing, OfANameAllGoToEntryAtAnyStepButControlCharacters)
{
    for (const char* name : {"Create Multiple Lines", "Create Hatch", "Create Associate"}) {
        Desk desk;
        desk.s.curFunc = name;
        desk.enter();
        desk.backspace();
        EXPECT_EQ(desk.focused(), "pic1") << name;
        desk.type("B");
        EXPECT_EQ(desk.text("entry"_c), "B") << name;
        EXPECT_EQ(desk.focused(), "entry") << name;
        desk.type("rick 1");
        EXPECT_EQ(desk.text("entry"_c), "Brick 1") << name;
    }
}

TEST(KeysOnTheDrawing, EnterAndBackspaceAreLost)
{
    Desk desk;
    desk.click(100, 100);
    desk.enter();
    desk.backspace();
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_EQ(desk.s.stepNo, 1);
}

TEST(MeasureDistance, GoesOnAfterATypedDistance)
{
    Desk desk;
    desk.press("freecurs"_c);
    desk.press("ut3"_c);
    desk.click(1000, 1000);
    desk.move(1500, 1000);
    desk.type("12");
    desk.enter();
    desk.click(1144, 1000);
    EXPECT_EQ(desk.text("entry"_c), "1'-0\"");
    EXPECT_EQ(desk.s.stepNo, 1);
}

} // namespace
} // namespace mirtane
