// The title, the line below the drawing and the session never tell of two different prompts.

#include "app/drawing/starters.h"
#include "desk.h"
#include "tables/functions.h"

#include <gtest/gtest.h>

#include <string>

namespace mirtane {
namespace {

using fake::Desk;

void expectOnePrompt(const Desk& desk, const std::string& doing, const std::string& prompt)
{
    EXPECT_EQ(desk.title(), fake::titleOf(doing + prompt));
    EXPECT_EQ(desk.caption("promptlab"_c), prompt);
    EXPECT_EQ(desk.s.promptText, prompt);
}

TEST(OnePrompt, OfTheListOfHatches)
{
    Desk desk;
    desk.drawLine(100, 100, 400, 137);
    desk.s.store.setStat(1, Stat::sel);
    desk.press("ht5"_c);
    desk.type("rows");
    desk.enter();
    desk.click(100, 100);
    desk.click(420, 150);
    desk.cancel();
    desk.click(300, 410);
    desk.press("ht3"_c);
    expectOnePrompt(desk, "Place Hatch", "(Select hatch from list:)");
    desk.press("Command43"_c);
    expectOnePrompt(desk, "Zoom Window", "(Place window around area.)");
    desk.cancel();
    expectOnePrompt(desk, "Place Hatch", "(Select hatch from list:)");
    desk.shell.clickRow("List1"_c, 0);
    expectOnePrompt(desk, "Place Hatch", "(Enter the first point on the boundary:)");
}

TEST(OnePrompt, OfZoomWindowFinishedCancelledAndEndedByASnap)
{
    using Way = void (*)(Desk&);
    constexpr Way ways[] = {
        [](Desk& desk) {
            desk.click(20, 30);
            desk.click(900, 700);
        },
        [](Desk& desk) { desk.cancel(); },
        [](Desk& desk) { desk.press("Command35"_c); },
    };
    for (const Way way : ways) {
        Desk desk;
        desk.press("Command4"_c);
        desk.click(300, 410);
        desk.press("Command43"_c);
        expectOnePrompt(desk, "Zoom Window", "(Place window around area.)");
        desk.press("Command43"_c);
        expectOnePrompt(desk, "Zoom Window", "(Place window around area.)");
        way(desk);
        expectOnePrompt(desk, "2pt. Arc", "(Enter radius of arc:)");
    }
}

TEST(OnePrompt, OfAFunctionStartedOverZoomWindowThatHasNoneOfItsOwn)
{
    Desk desk;
    desk.press("Command43"_c);
    desk.press("dim11"_c);
    expectOnePrompt(desk, "Zoom Window", "(Place window around area.)");
    desk.cancel();
    expectOnePrompt(desk, "Move Dimension Text", "(Enter beginning point of line:)");
}

// The clicks are the window's until it is done, and so is the prompt: it is no word of the function that
// began or went on meanwhile.
TEST(OnePrompt, OfZoomWindowWhateverIsStartedOverIt)
{
    for (const FunctionRow& row : vocabulary()) {
        const ControlKind kind = row.starter.row().kind;
        if (kind != ControlKind::button && kind != ControlKind::menu) continue;
        Desk plain;
        plain.drawLine(-2100, 133, 411, 977);
        plain.s.store.setStat(1, Stat::sel);
        startFunction(plain.s, plain.pic1, row);
        const std::string asked = plain.s.promptText;

        Desk desk;
        desk.drawLine(-2100, 133, 411, 977);
        desk.s.store.setStat(1, Stat::sel);
        desk.press("Command43"_c);
        desk.click(20, 30);
        startFunction(desk.s, desk.pic1, row);
        expectOnePrompt(desk, "Zoom Window", "(Place window around area.)");
        EXPECT_EQ(desk.s.windowStep, 0) << row.name;
        desk.click(20, 30);
        expectOnePrompt(desk, "Zoom Window", "(Place window around area.)");
        EXPECT_EQ(desk.s.windowStep, 1) << row.name;
        desk.click(900, 700);
        EXPECT_EQ(desk.s.viewLeft, 20) << row.name;
        expectOnePrompt(desk, std::string(row.name), asked);
        EXPECT_EQ(desk.s.stepNo, row.firstStep) << row.name;
    }
}

TEST(OnePrompt, OfZoomWindowOverAFunctionThatGoesOnByKeys)
{
    Desk desk;
    desk.press("Command1"_c);
    desk.click(300, 410);
    desk.move(900, 410);
    desk.press("Command43"_c);
    desk.type("12");
    desk.enter();
    ASSERT_EQ(desk.s.store.entCount, 2);
    expectOnePrompt(desk, "Zoom Window", "(Place window around area.)");
    desk.cancel();
    expectOnePrompt(desk, "Line", "(Enter ending point of line:)");
}

// The construction line that is released is no word of the zoom's, which is still on.
TEST(OnePrompt, OfZoomWindowOverAConstructionLineThatIsReleased)
{
    for (const ControlId function : {"ml3"_c, "Command19"_c}) {
        Desk desk;
        desk.drawLine(100, 100, 400, 137);
        desk.s.store.setStat(1, Stat::sel);
        desk.press(function);
        desk.press("blank"_c);
        desk.press("Command43"_c);
        desk.press("blank"_c);
        expectOnePrompt(desk, "Zoom Window", "(Place window around area.)");
    }
}

// A function that has no prompt leaves the one that stands, which must not ask for a corner that is no longer
// wanted.
TEST(OnePrompt, OfAWindowThatGivesWayToAFunctionWithoutAPrompt)
{
    for (const ControlId window : {"Command18"_c, "Command19"_c}) {
        for (const char* function : {"Change", "Move Dimension Text"}) {
            Desk desk;
            desk.drawLine(-2100, 133, 411, 977);
            desk.press(window);
            desk.s.store.setStat(1, Stat::sel);
            const std::string asked = desk.s.promptText;
            desk.click(300, 410);
            ASSERT_EQ(desk.s.promptText, "(Enter opposite corner of window:)");
            startFunction(desk.s, desk.pic1, *findFunction(function));
            EXPECT_EQ(desk.s.windowStep, 0);
            expectOnePrompt(desk, function, asked);
        }
    }
}

TEST(OnePrompt, OfTheCornersOfAWindow)
{
    for (const ControlId other : {"Command43"_c, "blank"_c}) {
        Desk desk;
        desk.press("Command19"_c);
        expectOnePrompt(desk, "Window Select", "(Place window around objects:)");
        desk.click(300, 410);
        expectOnePrompt(desk, "Window Select", "(Enter opposite corner of window:)");
        desk.press(other);
        EXPECT_EQ(desk.s.windowStep, 0);
        desk.press(other);
        desk.cancel();
        expectOnePrompt(desk, "Window Select", "(Place window around objects:)");
    }
}

TEST(OnePrompt, OfAConstructionLineThatIsGivenNothingToEnter)
{
    Desk desk;
    desk.press("blank"_c);
    desk.click(300, 410);
    desk.type("5");
    desk.backspace();
    desk.enter();
    EXPECT_EQ(desk.s.curFunc, "Blank Line");
    EXPECT_EQ(desk.caption("blank"_c), "Blank/On");
    desk.press("blank"_c);
    EXPECT_EQ(desk.s.curFunc, "Line");
    EXPECT_EQ(desk.caption("blank"_c), "Blank/Off");
}

} // namespace
} // namespace mirtane
