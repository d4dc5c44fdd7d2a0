// What is common to the snaps: the held keys, the codes, the construction line, the buttons.

#include "click_desk.h"

namespace mirtane {
namespace {

using fake::ClickDesk;
using fake::ctrl;
using fake::expectPoint;
using fake::shift;

TEST(HeldSnap, CtrlGivesThePointAndShiftTheObject)
{
    ClickDesk desk;
    desk.line({100, 100}, {200, 100});
    desk.firstClick({120, 105});
    desk.hold(ctrl);
    EXPECT_EQ(desk.s.pickFirst, (Point{100, 100}));
    desk.firstClick({120, 105});
    desk.hold(shift);
    EXPECT_EQ(desk.s.pickFirst, (Point{120, 100}));
    desk.firstClick({120, 105});
    desk.hold(0);
    EXPECT_EQ(desk.s.pickFirst, (Point{120, 105}));
}

TEST(HeldSnap, LeavesTheButtonsSnapArmedWhichRunsAfterItAndWins)
{
    ClickDesk desk;
    desk.line({100, 100}, {200, 100});
    desk.firstClick({120, 105});
    setText(desk.s.controls["snapbox"_c], "sm");
    desk.hold(shift);
    EXPECT_EQ(desk.armed(), "sm");
    EXPECT_EQ(desk.s.pickFirst, (Point{120, 100}));
    oneShotSnap(desk.s, desk.pic1);
    EXPECT_EQ(desk.s.pickFirst, (Point{150, 100}));
    EXPECT_EQ(desk.armed(), "");
}

TEST(HeldSnap, AMissOfTheButtonsSnapLeavesWhatTheKeyFound)
{
    ClickDesk desk;
    desk.line({100, 100}, {200, 100});
    desk.firstClick({120, 105});
    desk.hold(ctrl);
    desk.shoot("si");
    EXPECT_EQ(desk.s.pickFirst, (Point{100, 100}));
}

TEST(OneShotSnap, IsForOneClick)
{
    ClickDesk desk;
    desk.point({100, 100});
    EXPECT_EQ(desk.snapped("sp", {105, 105}), (Point{100, 100}));
    desk.firstClick({105, 105});
    oneShotSnap(desk.s, desk.pic1);
    EXPECT_EQ(desk.s.pickFirst, (Point{105, 105}));
}

TEST(OneShotSnap, AnUnknownCodeDoesNothing)
{
    ClickDesk desk;
    desk.point({100, 100});
    EXPECT_EQ(desk.snapped("xx", {105, 105}), (Point{105, 105}));
    EXPECT_EQ(desk.armed(), "xx");
}

TEST(OneShotSnap, WhichOfThemMarkThePointAsSnapped)
{
    struct Row {
        const char* code;
        bool marks;
    };
    for (const Row& row : {Row{"sp", true}, Row{"so", true}, Row{"si", true}, Row{"sf", true},
                           Row{"sm", true}, Row{"sn", false}, Row{"st", false}}) {
        ClickDesk desk;
        desk.circle({300, 300}, 60);
        desk.line({340, 200}, {340, 400});
        const Point click{338, 250};
        EXPECT_NE(desk.snappedSecond(row.code, {450, 320}, click), click) << row.code;
        EXPECT_EQ(desk.s.pointWasSnapped, row.marks) << row.code;
    }
}

// A drawing with a line from (100, 100) to (300, 100) and one across it at x = 200.
class ConstructionDesk : public ClickDesk {
  public:
    ConstructionDesk(std::int16_t blankStep, Point start, Point end) : ClickDesk("Blank Line")
    {
        line({100, 100}, {300, 100});
        line({200, 50}, {200, 150});
        s.stepNo = 1;
        s.pickFirst = {1, 2};
        s.pickLast = {3, 4};
        s.blankStep = blankStep;
        s.blankStart = start;
        s.blankEnd = end;
    }
};

TEST(SnapOnAConstructionLine, ItsStartTakesThePoint)
{
    struct Row {
        const char* code;
        Point snapped;
    };
    for (const Row& row : {Row{"sp", {200, 150}}, Row{"so", {200, 140}}, Row{"si", {200, 100}},
                           Row{"sf", {200, 125}}, Row{"sm", {200, 100}}}) {
        ConstructionDesk desk(1, {205, 140}, {});
        desk.ortho(true);
        desk.line({180, 140}, {220, 140}, Stat::off);
        desk.s.mousePos = {205, row.code == std::string_view("si") ? 110.0f : 140.0f};
        desk.shoot(row.code);
        expectPoint(desk.s.blankStart, row.snapped, row.code);
        EXPECT_EQ(desk.s.pickFirst, (Point{1, 2})) << row.code;
        EXPECT_EQ(desk.s.pickLast, (Point{3, 4})) << row.code;
        EXPECT_EQ(desk.armed(), "") << row.code;
        EXPECT_TRUE(desk.s.pointWasSnapped) << row.code;
    }
}

TEST(SnapOnAConstructionLine, ItsEndKeepsToTheLegWhateverTheOrthoButtonSays)
{
    struct Row {
        const char* code;
        Point mouse, snapped; // the leg runs from (50, 120) to the right
    };
    const Row rows[] = {
        {"sp", {205, 140}, {200, 120}}, // the foot of (200, 150)
        {"sm", {290, 104}, {200, 120}}, // the foot of (200, 100)
        {"so", {205, 140}, {200, 120}}, // the leg meets the upright line
        {"si", {205, 110}, {200, 100}}, // as it is
        {"sf", {205, 140}, {200, 125}}, // as it is
    };
    for (const Row& row : rows) {
        for (const bool ortho : {true, false}) {
            ConstructionDesk desk(2, {50, 120}, {row.mouse.x, 120});
            desk.ortho(ortho);
            desk.s.mousePos = row.mouse;
            desk.shoot(row.code);
            expectPoint(desk.s.blankEnd, row.snapped, row.code);
            EXPECT_EQ(desk.s.blankStart, (Point{50, 120})) << row.code;
            EXPECT_EQ(desk.s.pickFirst, (Point{1, 2})) << row.code;
        }
    }
}

TEST(SnapOnAConstructionLine, TheHeldKeysWorkThere)
{
    ConstructionDesk desk(1, {205, 140}, {});
    desk.s.mousePos = {205, 140};
    desk.hold(ctrl);
    EXPECT_EQ(desk.s.blankStart, (Point{200, 150}));
    desk.hold(shift);
    EXPECT_EQ(desk.s.blankStart, (Point{200, 140}));
}

TEST(SnapOnAConstructionLine, PerpendicularAndTangentDoNotRun)
{
    for (const char* code : {"sn", "st"}) {
        ConstructionDesk desk(2, {50, 120}, {205, 120});
        desk.circle({205, 120}, 3);
        desk.s.stepNo = 2;
        desk.s.mousePos = {205, 122};
        desk.shoot(code);
        EXPECT_EQ(desk.s.blankEnd, (Point{205, 120})) << code;
        EXPECT_EQ(desk.s.pickLast, (Point{3, 4})) << code;
        EXPECT_EQ(desk.armed(), code);
    }
}

TEST(SnapOnAConstructionLine, WithNothingToFindSnapPointGivesTheOrigin)
{
    ClickDesk desk("Blank Line");
    desk.s.blankStep = 1;
    desk.s.blankStart = desk.s.mousePos = {5, 5};
    desk.shoot("sp");
    EXPECT_EQ(desk.s.blankStart, (Point{0, 0}));
}

TEST(SnapButton, ArmsItsSnapAndShowsIt)
{
    struct Row {
        ControlId button;
        const char* code;
        const char* label;
    };
    const Row rows[] = {
        {"Command35"_c, "sp", "Snap Point is on:"},        {"Command36"_c, "so", "Snap Object is on:"},
        {"Command37"_c, "si", "Snap Intersection is on:"}, {"Command38"_c, "sf", "Snap Percentage is on:"},
        {"Command21"_c, "sm", "Snap Midpoint is on:"},     {"Command39"_c, "sn", "Snap Perpendicular is on:"},
        {"Command40"_c, "st", "Snap Tangent is on:"},
    };
    for (const Row& row : rows) {
        ClickDesk desk;
        desk.circle({300, 300}, 60);
        desk.s.stepNo = 1;
        desk.s.controls.focus = "entry"_c;
        pressSnapButton(desk.s, desk.pic1, row.button);
        EXPECT_EQ(desk.armed(), row.code);
        EXPECT_EQ(desk.s.controls["snaplab"_c].caption, row.label);
        EXPECT_EQ(desk.s.controls.focus, "pic1"_c);
    }
}

TEST(SnapButton, IsRefusedWhereItsSnapHasNoUse)
{
    struct Row {
        const char* what;
        ControlId button;
        const char* function;
        int step;
        Stat circle;
        bool armed;
    };
    const Row rows[] = {
        {"perpendicular before a click", "Command39"_c, "Line", 0, Stat::on, false},
        {"perpendicular", "Command39"_c, "Line", 1, Stat::out, true},
        {"perpendicular in another function", "Command39"_c, "Polygon", 1, Stat::on, true},
        {"perpendicular on a construction line", "Command39"_c, "Blank Line", 1, Stat::on, false},
        {"tangent before a click", "Command40"_c, "Line", 0, Stat::on, false},
        {"tangent", "Command40"_c, "Line", 1, Stat::on, true},
        {"tangent to a selected circle", "Command40"_c, "Line", 1, Stat::sel, true},
        {"tangent with no circle left", "Command40"_c, "Line", 1, Stat::out, false},
        {"tangent with a hidden circle", "Command40"_c, "Line", 1, Stat::off, false},
        {"tangent on a construction line", "Command40"_c, "Blank Line", 1, Stat::on, false},
        {"point on a construction line", "Command35"_c, "Blank Line", 0, Stat::on, true},
    };
    for (const Row& row : rows) {
        ClickDesk desk(row.function);
        desk.line({0, 0}, {10, 10});
        desk.circle({300, 300}, 60, row.circle);
        desk.s.stepNo = static_cast<std::int16_t>(row.step); // 0 or 1
        setText(desk.s.controls["snapbox"_c], "so");
        desk.s.controls["snaplab"_c].caption = "Snap Object is on:";
        desk.s.controls.focus = "entry"_c;
        pressSnapButton(desk.s, desk.pic1, row.button);
        EXPECT_EQ(desk.armed() != "so", row.armed) << row.what;
        EXPECT_EQ(desk.s.controls["snaplab"_c].caption != "Snap Object is on:", row.armed) << row.what;
        EXPECT_EQ(desk.s.controls.focus, "pic1"_c) << row.what;
    }
}

TEST(SnapButton, AnArcIsEnoughForATangent)
{
    ClickDesk desk;
    desk.arc({300, 300}, 60, 0, 1);
    desk.s.stepNo = 1;
    pressSnapButton(desk.s, desk.pic1, "Command40"_c);
    EXPECT_EQ(desk.armed(), "st");
}

} // namespace
} // namespace mirtane
