// What is typed for the edit functions, and distances for every function that takes one.

#include "desk.h"

#include "geometry/angle.h"
#include "model/insertion.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

// A desk with a level line from (1000, 1000) to (1400, 1000) in slot 1 and a circle of radius 144 about
// (2000, 1000) in slot 2, both selected.
struct EntryDesk : Desk {
    EntryDesk()
    {
        drawLine(1000, 1000, 1400, 1000);
        draw(fake::circle({2000, 1000}, 144));
        press("Command19"_c);
        click(0, 0);
        click(4800, 3200);
    }

    void start(const char* name)
    {
        const std::vector<std::string>& rows = s.controls["List1"_c].rows;
        shell.clickRow("List1"_c, static_cast<int>(std::ranges::find(rows, name) - rows.begin()));
    }
    // The function at that step, its first point at (1000, 1000) and the pointer to the right of it.
    void startAt(const char* name, int step)
    {
        start(name);
        click(1000, 1000);
        move(1300, 1000);
        if (step == 2) number("2");
    }
    void number(std::string_view typed)
    {
        type(typed);
        enter();
    }
};

struct NumberStep {
    const char* function;
    int step;
};

constexpr NumberStep numberSteps[] = {
    {"Radial Copy", 1}, {"Radial Copy", 2}, {"Rotate", 1}, {"Scale", 1}, {"Scale", 2}};

TEST(EditNumbers, PassTheirKeysAndDropAllOthers)
{
    for (const NumberStep& at : numberSteps) {
        EntryDesk desk;
        desk.startAt(at.function, at.step);
        desk.type("1a b/2;\"+.'-3,\xC3\xA9:");
        EXPECT_EQ(desk.text("entry"_c), "1/2.-3") << at.function << at.step;
        desk.backspace();
        EXPECT_EQ(desk.text("entry"_c), "1/2.-") << at.function << at.step;
        EXPECT_EQ(desk.s.stepNo, at.step) << at.function;
    }
}

TEST(EditNumbers, WaitAtEnterOnAnEmptyText)
{
    for (const NumberStep& at : numberSteps) {
        EntryDesk desk;
        desk.startAt(at.function, at.step);
        desk.type("5");
        desk.backspace();
        desk.enter();
        EXPECT_EQ(desk.s.curFunc, at.function);
        EXPECT_EQ(desk.s.stepNo, at.step) << at.function;
        EXPECT_EQ(desk.focused(), "entry") << at.function << at.step;
        EXPECT_EQ(desk.s.store.entCount, 3) << at.function << at.step;
        EXPECT_EQ(desk.s.editPending, 1) << at.function << at.step;
    }
}

TEST(EditNumbers, AreNotTakenBeforeTheFirstPoint)
{
    for (const char* name : {"Radial Copy", "Rotate", "Scale"}) {
        EntryDesk desk;
        desk.start(name);
        desk.type("90"); // lost on the drawing
        EXPECT_EQ(desk.text("entry"_c), "") << name;
        EXPECT_EQ(desk.focused(), "pic1") << name;
        desk.shell.giveFocus("entry"_c);
        desk.type("9x,0");
        desk.enter();
        EXPECT_EQ(desk.text("entry"_c), "9x,0") << name;
        EXPECT_EQ(desk.s.stepNo, 0) << name;
        EXPECT_EQ(desk.s.curFunc, name);
    }
}

TEST(EditNumbers, ReadWhatIsNoNumberAsZero)
{
    EntryDesk desk;
    desk.startAt("Rotate", 1);
    desk.number("-");
    EXPECT_EQ(desk.s.editDegrees, 0);
    EXPECT_EQ(desk.slot(3).p2, (Point{1400, 1000}));
    EXPECT_EQ(desk.stat(1), Stat::out);
}

TEST(Degrees, AreHeldWithinAWholeTurn)
{
    struct Row {
        const char* typed;
        double degrees;
    };
    const Row rows[] = {{"400", 360},     {"360", 360},      {"359.5", 359.5}, {"0", 0},
                        {"-90", -90},     {"-360", -360},    {"-400", -360},   {"1/2", 1},
                        {"12.5-3", 12.5}, {"99999999", 360}, {".5", 0.5},      {"-.5", -0.5}};
    for (const char* name : {"Rotate", "Radial Copy"}) {
        for (const Row& row : rows) {
            EntryDesk desk;
            desk.startAt(name, 1);
            desk.number(row.typed);
            EXPECT_EQ(desk.s.editDegrees, row.degrees) << name << " " << row.typed;
        }
    }
}

TEST(Rotate, RunsAtEnterAndReturnsToTheSelectionFunction)
{
    EntryDesk desk;
    desk.startAt("Rotate", 1);
    EXPECT_EQ(desk.title(), fake::titleOf("Rotate(Enter number of degrees:)"));
    desk.number("90");
    EXPECT_NEAR(desk.slot(3).p2.x, 1000, 0.01);
    EXPECT_NEAR(desk.slot(3).p2.y, 600, 0.01); // up the screen
    EXPECT_EQ(desk.stat(1), Stat::out);
    EXPECT_EQ(desk.s.curFunc, "Window Select");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.editPending, 0);
    EXPECT_EQ(desk.text("entry"_c), "");
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_EQ(desk.title(), fake::titleOf("Window Select(Place window around objects:)"));
    desk.press("undu"_c);
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.stat(2), Stat::on);
    EXPECT_EQ(desk.stat(3), Stat::out);
    EXPECT_EQ(desk.stat(4), Stat::out);
}

TEST(RadialCopy, AsksForDegreesThenCopies)
{
    EntryDesk desk;
    desk.startAt("Radial Copy", 1);
    EXPECT_EQ(desk.s.promptText, "(Enter total number of degrees:)");
    desk.number("90");
    EXPECT_EQ(desk.s.stepNo, 2);
    EXPECT_EQ(desk.title(), fake::titleOf("Radial Copy(Enter total number of copies:)"));
    EXPECT_EQ(desk.text("entry"_c), "");
    EXPECT_EQ(desk.focused(), "entry");
    EXPECT_EQ(desk.s.editPending, 1);
    desk.number("2");
    EXPECT_EQ(desk.s.store.entCount, 5);
    EXPECT_NEAR(desk.slot(3).p2.y, 600, 0.01);
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.s.curFunc, "Window Select");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.editPending, 0);
    EXPECT_EQ(desk.text("entry"_c), "");
    EXPECT_EQ(desk.focused(), "pic1");
    desk.press("undu"_c);
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.stat(3), Stat::out);
    EXPECT_EQ(desk.stat(4), Stat::out);
}

TEST(RadialCopy, HoldsTheCopiesBetweenTwoAndSixtyFour)
{
    struct Row {
        const char* typed;
        int newOnes; // of each source, over a whole turn
    };
    const Row rows[] = {{"1", 1},   {"0", 1},    {"-7", 1},  {"2", 1},   {"6", 5},     {"64", 63},
                        {"65", 63}, {"100", 63}, {"2.5", 1}, {"3.5", 3}, {"30000", 63}};
    for (const char* turn : {"360", "-360"}) {
        for (const Row& row : rows) {
            EntryDesk desk;
            desk.startAt("Radial Copy", 1);
            desk.number(turn);
            desk.number(row.typed);
            EXPECT_EQ(desk.s.store.entCount, 3 + 2 * row.newOnes) << turn << " " << row.typed;
        }
    }
}

TEST(RadialCopy, OfAnAbsurdNumberOfCopiesMakesAtMostSixtyFour)
{
    for (const char* typed : {"99999999999", "-99999999999", "."}) {
        EntryDesk desk;
        desk.startAt("Radial Copy", 1);
        desk.number("360");
        desk.number(typed);
        EXPECT_EQ(desk.s.curFunc, "Window Select") << typed;
        EXPECT_LE(desk.s.store.entCount, 3 + 2 * 63) << typed;
        EXPECT_GT(desk.s.store.entCount, 3) << typed;
    }
}

TEST(Scale, AsksForXThenY)
{
    EntryDesk desk;
    desk.startAt("Scale", 1);
    EXPECT_EQ(desk.s.promptText, "(Enter X scale:)");
    desk.number("-.5");
    EXPECT_EQ(desk.s.editDX, -0.5F);
    EXPECT_EQ(desk.s.stepNo, 2);
    EXPECT_EQ(desk.title(), fake::titleOf("Scale(Enter Y scale:)"));
    EXPECT_EQ(desk.text("entry"_c), "");
    EXPECT_EQ(desk.focused(), "entry");
    EXPECT_EQ(desk.s.editPending, 1);
    EXPECT_EQ(desk.s.store.entCount, 3);
    desk.number("3");
    EXPECT_EQ(desk.s.editDY, 3);
    EXPECT_EQ(desk.slot(3).p2, (Point{800, 1000}));
    EXPECT_EQ(desk.slot(4).p1, (Point{500, 1000}));
    EXPECT_EQ(desk.slot(4).rad, 72);
    EXPECT_EQ(desk.stat(1), Stat::out);
    EXPECT_EQ(desk.s.curFunc, "Window Select");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.editPending, 0);
    EXPECT_EQ(desk.focused(), "pic1");
    desk.press("undu"_c);
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.stat(3), Stat::out);
}

TEST(ConcentricCopy, TakesADistanceInEveryNumberStyle)
{
    struct Row {
        const char* typed;
        double inches;
        double centimetres;
    };
    const Row rows[] = {{"12", 12, 12},    {"1'", 12, 100},    {"1'6", 18, 106},    {"-1'6", -18, -106},
                        {"1'-6", 18, 106}, {"1'2'3", 35, 123}, {"1.5'", 18, 150},   {"1'50", 62, 150},
                        {"5+3", 5, 5},     {"'6", 6, 6},       {".25", 0.25, 0.25}, {"2-", 2, 2},
                        {"0", 0, 0},       {"-", 0, 0},        {"1,5", 1.5, 1.5},   {"-0'3", -3, -3}};
    for (const char* style : {"us", "2f", "3i", "br"}) {
        for (const Row& row : rows) {
            EntryDesk desk;
            desk.s.numStyle = style;
            desk.start("Concentric Copy");
            desk.number(row.typed);
            const bool metric = std::string_view(style) == "br";
            const double inches = metric ? row.centimetres / 2.5419542 : row.inches;
            EXPECT_NEAR(desk.slot(3).rad, 144 + 12 * inches, 0.001) << style << " " << row.typed;
            EXPECT_EQ(desk.s.store.entCount, 4) << style << " " << row.typed; // the line makes none
        }
    }
}

TEST(ConcentricCopy, EndsWithTheSelectionDroppedAsOneAction)
{
    EntryDesk desk;
    desk.start("Concentric Copy");
    EXPECT_EQ(desk.title(), fake::titleOf("Concentric Copy(Enter off-set distance:)"));
    desk.type("+"); // no key that begins a number on the drawing
    EXPECT_EQ(desk.focused(), "pic1");
    desk.number("1");
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.stat(2), Stat::on);
    EXPECT_EQ(desk.s.curFunc, "Window Select");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.editPending, 0);
    EXPECT_EQ(desk.text("entry"_c), "");
    EXPECT_EQ(desk.focused(), "pic1");
    desk.press("undu"_c);
    EXPECT_EQ(desk.stat(2), Stat::on);
    EXPECT_EQ(desk.stat(3), Stat::out);
}

TEST(ConcentricCopy, AtEnterOnAnEmptyTextWaitsWithTheFocusOnTheDrawing)
{
    EntryDesk desk;
    desk.start("Concentric Copy");
    desk.type("5");
    desk.backspace();
    desk.enter();
    EXPECT_EQ(desk.s.curFunc, "Concentric Copy");
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_EQ(desk.stat(2), Stat::sel);
    EXPECT_EQ(desk.s.editPending, 1);
}

TEST(TypedDistance, MovesAndCopiesAlongTheDirectionOfThePointer)
{
    for (const char* name : {"Move", "Copy"}) {
        EntryDesk desk;
        desk.start(name);
        desk.click(1000, 1000);
        desk.move(1010, 1300); // down the screen, by ortho
        desk.number("1'6");
        EXPECT_EQ(desk.slot(3).p1, (Point{1000, 1216})) << name;
        EXPECT_EQ(desk.slot(4).p1, (Point{2000, 1216})) << name;
        EXPECT_EQ(desk.focused(), "pic1") << name;
        EXPECT_EQ(desk.text("entry"_c), "") << name;
        const bool moves = std::string_view(name) == "Move";
        EXPECT_EQ(desk.s.curFunc, moves ? "Window Select" : "Copy");
        EXPECT_EQ(desk.stat(1), moves ? Stat::out : Stat::sel);
        EXPECT_EQ(desk.s.stepNo, moves ? 0 : 2);
    }
}

TEST(TypedDistance, MovesBackwardWhenNegativeWithOrthoOff)
{
    EntryDesk desk;
    desk.press("freecurs"_c);
    desk.start("Move");
    desk.click(1000, 1000);
    desk.move(1300, 1400);
    desk.number("-10");
    EXPECT_EQ(desk.slot(3).p1, (Point{928, 904}));
}

TEST(TypedDistance, OfZeroCopiesInPlaceWhereAClickWouldCancel)
{
    EntryDesk desk;
    desk.startAt("Copy", 1);
    desk.number("0");
    EXPECT_EQ(desk.s.store.entCount, 5);
    EXPECT_EQ(desk.slot(3).p1, (Point{1000, 1000}));
    EXPECT_EQ(desk.s.stepNo, 2);
}

TEST(TypedDistance, OfAFurtherCopyRepeatsTheFirstOffset)
{
    EntryDesk desk;
    desk.startAt("Copy", 1);
    desk.number("10");
    desk.number("1");
    EXPECT_EQ(desk.slot(3).p1, (Point{1120, 1000}));
    EXPECT_EQ(desk.slot(5).p1, (Point{1240, 1000}));
    EXPECT_EQ(desk.s.stepNo, 3);
    desk.press("undu"_c);
    EXPECT_EQ(desk.stat(3), Stat::on);
    EXPECT_EQ(desk.stat(5), Stat::out);
}

TEST(TypedDistance, IsDiscardedByMirrorCopyThoughTheStepIsCounted)
{
    EntryDesk desk;
    desk.startAt("Mirror Copy", 1);
    desk.number("10");
    EXPECT_EQ(desk.s.stepNo, 2);
    EXPECT_EQ(desk.s.curFunc, "Mirror Copy");
    EXPECT_EQ(desk.s.store.entCount, 3);
    EXPECT_EQ(desk.stat(1), Stat::sel);
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_EQ(desk.s.promptText, "(Enter end of mirror line:)");
}

// A function, what its typed distance leads to, and where that shows.
struct DistanceFunction {
    ControlId starter;
    float (*distance)(const Desk& desk);
};

float lengthOfSlot(const Desk& desk, std::int32_t slot)
{
    return desk.slot(slot).p2.x - desk.slot(slot).p1.x;
}

TEST(TypedDistance, IsTakenByEachDrawingFunctionInEveryNumberStyle)
{
    const DistanceFunction functions[] = {
        {"Command1"_c, [](const Desk& desk) { return lengthOfSlot(desk, 1); }},
        {"Command2"_c, [](const Desk& desk) { return desk.slot(1).rad; }},
        {"Command4"_c, [](const Desk& desk) { return desk.s.workRadius; }},
        {"Command7"_c, [](const Desk& desk) { return desk.s.pickLast.x - 1000; }},
        {"Command9"_c, [](const Desk& desk) { return desk.s.pickLast.x - 1000; }},
    };
    for (const DistanceFunction& function : functions) {
        for (const char* style : {"us", "2f", "3i", "br"}) {
            Desk desk;
            desk.s.numStyle = style;
            desk.press(function.starter);
            desk.click(1000, 1000);
            desk.move(1300, 1000);
            desk.type("1'6");
            desk.enter();
            const double inches = std::string_view(style) == "br" ? 106 / 2.5419542 : 18;
            EXPECT_NEAR(function.distance(desk), 12 * inches, 0.001)
                << function.starter.row().name << " " << style;
            EXPECT_EQ(desk.focused(), "pic1");
        }
    }
}

TEST(TypedDistance, IsDiscardedByFunctionsOfThreePointsThoughTheStepIsCounted)
{
    for (const ControlId starter : {"Command3"_c, "Command5"_c, "Command6"_c}) {
        Desk desk;
        desk.drawLine(100, 100, 600, 100); // in an empty drawing small ones would not count
        desk.press(starter);
        desk.click(1000, 1000);
        desk.move(1300, 1000);
        desk.type("10");
        desk.enter();
        EXPECT_EQ(desk.s.stepNo, 2) << starter.row().name;
        EXPECT_EQ(desk.s.store.entCount, 2) << starter.row().name;
        EXPECT_EQ(desk.focused(), "pic1") << starter.row().name;
        EXPECT_EQ(desk.text("entry"_c), "") << starter.row().name;
    }
}

TEST(TypedDistance, OfASecondPointLeavesTheFunctionOpenForFurtherClicks)
{
    Desk desk;
    desk.press("Command7"_c);
    desk.click(1000, 1000);
    desk.move(1300, 1000);
    desk.type("50");
    desk.enter();
    EXPECT_EQ(desk.s.promptText, "(Enter ending point of second axis:)");
    desk.click(1300, 1200);
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.slot(1).kind, Kind::ellipse);
}

} // namespace
} // namespace mirtane
