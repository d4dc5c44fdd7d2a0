#include "app/drawing/dispatch.h"

#include "app/actions.h"
#include "desk.h"
#include "tables/functions.h"

#include <gtest/gtest.h>

#include <set>

namespace mirtane {
namespace {

TEST(Dispatch, HasOneRowForEachFunctionOfTheVocabulary)
{
    EXPECT_EQ(dispatchTable().size(), vocabulary().size());
    std::set<std::string_view> names;
    for (const DispatchRow& row : dispatchTable()) {
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
        EXPECT_NE(findFunction(row.name), nullptr) << row.name;
    }
    for (const FunctionRow& row : vocabulary()) EXPECT_NE(dispatchOf(row.name), nullptr) << row.name;
    EXPECT_EQ(dispatchOf("3pt Circle"), nullptr);
}

// The functions that take clicks by other roads than a counted step, or take none.
bool needsNoStep(std::string_view name)
{
    return name == "Blank Line" || isWindowFunction(name) || name == "Concentric Copy" ||
           name == "Text Size" || name == "Arrow Size" || name == "Hatch Scale" || name == "Object Select" ||
           name == "Change";
}

TEST(Dispatch, HasAStepForEachFunctionThatTakesClicks)
{
    for (const DispatchRow& row : dispatchTable()) {
        EXPECT_TRUE(row.step != nullptr || needsNoStep(row.name)) << row.name;
    }
}

TEST(Dispatch, GreysNoStarter)
{
    fake::Desk desk;
    for (const DispatchRow& row : dispatchTable()) {
        const FunctionRow* function = findFunction(row.name);
        ASSERT_NE(function, nullptr);
        const ControlId starter = function->starter;
        if (function->starts != Starts::atOnce || !isClickable(starter)) continue;
        EXPECT_TRUE(desk.enabled(starter)) << row.name;
    }
}

TEST(Dispatch, AGreyedControlDoesNothing)
{
    fake::Desk desk;
    int greyed = 0;
    for (const ControlRow& row : controlTable) {
        const ControlId id = row.id;
        if (!isClickable(id) || desk.enabled(id)) continue;
        ++greyed;
        desk.press(id);
        EXPECT_EQ(desk.s.curFunc, "Line") << id.row().name;
        EXPECT_FALSE(desk.visible("frmfile"_c)) << id.row().name;
    }
    EXPECT_GT(greyed, 0);
}

TEST(Starters, ResetWhatTheFunctionBeforeHadBegun)
{
    fake::Desk desk;
    desk.click(100, 100);
    desk.move(150, 100);
    desk.s.windowStep = 1;
    desk.s.textLength = 3;
    desk.s.boundaryCount = 2;
    desk.s.orthoAngle = 1;
    desk.s.controls["freecurs"_c].caption = "Ortho/Off"; // borrowed
    desk.s.controls["snapbox"_c].text = "sp";
    desk.ops();
    desk.press("Command8"_c);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.windowStep, 0);
    EXPECT_EQ(desk.s.textLength, 0);
    EXPECT_EQ(desk.s.boundaryCount, 0);
    EXPECT_EQ(desk.s.orthoAngle, 0);
    EXPECT_EQ(desk.caption("freecurs"_c), "Ortho/On");
    EXPECT_EQ(desk.text("snapbox"_c), "sp");
    EXPECT_EQ(desk.s.pickFirst, (Point{100, 100}));
    EXPECT_EQ(desk.s.pickLast, (Point{150, 100})); // not parked
    EXPECT_EQ(desk.s.curFunc, "Point");
    EXPECT_EQ(desk.s.baseFunc, "Point");
    EXPECT_EQ(desk.title(), fake::titleOf("Point(Enter point:)"));
    EXPECT_EQ(desk.focused(), "pic1");
}

TEST(Starters, TakeTheRubberBandOffTheScreen)
{
    fake::Desk desk;
    desk.click(100, 100);
    desk.move(300, 100);
    desk.ops();
    desk.press("Command9"_c);
    const fake::Ops ops = desk.ops();
    ASSERT_GE(ops.size(), 2U);
    EXPECT_EQ(ops[0], "clear");
    EXPECT_EQ(ops[1], "restoreSnapshot");
}

TEST(Starters, DropTheSelectionWhenTheDrawingFunctionChanges)
{
    fake::Desk desk;
    desk.drawLine(100, 100, 400, 100);
    desk.s.store.setStat(1, Stat::sel);
    desk.press("Command1"_c);
    EXPECT_EQ(desk.stat(1), Stat::sel); // still the same function
    desk.press("Command8"_c);
    EXPECT_EQ(desk.stat(1), Stat::on);
}

} // namespace
} // namespace mirtane
