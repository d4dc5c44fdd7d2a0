#include "render/view.h"

#include "desk.h"
#include "render/redraw.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

void expectScale(const Desk& desk, Scale expected, const char* what = "")
{
    const Scale scale = desk.pic1.getScale();
    EXPECT_NEAR(scale.left, expected.left, 0.01) << what;
    EXPECT_NEAR(scale.top, expected.top, 0.01) << what;
    EXPECT_NEAR(scale.width, expected.width, 0.01) << what;
    EXPECT_NEAR(scale.height, expected.height, 0.01) << what;
    EXPECT_EQ(desk.s.viewLeft, scale.left) << what;
    EXPECT_EQ(desk.s.viewTop, scale.top) << what;
    EXPECT_EQ(desk.s.viewRight, scale.left + scale.width) << what;
    EXPECT_EQ(desk.s.viewBottom, scale.top + scale.height) << what;
}

TEST(EmptyDrawing, IsOnlyRefreshedByZoomAllAndZoomOut)
{
    for (const ControlId id : {"Command42"_c, "Command44"_c}) {
        Desk desk;
        desk.press(id);
        const fake::Ops expected = {"refresh"};
        EXPECT_EQ(desk.ops(), expected) << id.row().name;
        expectScale(desk, {0, 0, 4800, 3200}, "unchanged");
        EXPECT_EQ(desk.s.wholeViewFlag, 0);
    }
}

TEST(ZoomAll, IsAnchoredAtTheUpperLeftWithTheSpareRoomAtTheRightOrBelow)
{
    struct Row {
        const char* what;
        Point a, b;
        Scale expected; // the surface is 3 by 2
    };
    const Row rows[] = {
        {"wide", {100, 100}, {700, 200}, {100 - 15, 100 - 10, 630, 420}},
        {"tall", {100, 100}, {200, 500}, {100 - 15, 100 - 10, 630, 420}},
        {"of its shape", {0, 0}, {300, 200}, {-7.5F, -5, 315, 210}},
        {"rounded to whole numbers, ties to even", {0.5F, 1.5F}, {300.5F, 100}, {-7.5F, 2 - 5, 315, 210}},
    };
    for (const Row& row : rows) {
        Desk desk;
        desk.add(fake::line(row.a, row.b));
        desk.press("Command42"_c);
        expectScale(desk, row.expected, row.what);
        EXPECT_EQ(desk.s.wholeViewFlag, 1) << row.what;
    }
}

TEST(ZoomAll, ShowsWhatIsOnOrSelectedAndNothingElse)
{
    Desk desk;
    desk.add(fake::line({0, 0}, {300, 200}));
    desk.add(fake::line({-900, 0}, {900, 0}), Stat::off);
    desk.add(fake::line({0, -900}, {0, 900}), Stat::out);
    EntityRecord dead = fake::line({5000, 5000}, {6000, 6000});
    dead.kind = headerKind; // merged from another file
    desk.add(dead);
    desk.press("Command42"_c);
    expectScale(desk, {-7.5F, -5, 315, 210});
}

TEST(ZoomAll, WithEverythingUndoneKeepsTheViewAndRepaints)
{
    Desk desk;
    desk.add(fake::line({0, 0}, {300, 200}), Stat::out);
    desk.press("Command42"_c);
    expectScale(desk, {0, 0, 4800, 3200});
    EXPECT_EQ(desk.s.wholeViewFlag, 1);
    const fake::Ops ops = desk.ops();
    EXPECT_EQ(fake::only(ops, "snapshot").size(), 1U);
    EXPECT_EQ(ops.back(), "refresh");
}

TEST(ZoomAll, OfASinglePointKeepsTheView)
{
    Desk desk;
    desk.add(fake::point({50, 60}));
    desk.press("Command42"_c);
    expectScale(desk, {0, 0, 4800, 3200});
    EXPECT_EQ(desk.s.wholeViewFlag, 1);
}

TEST(ZoomOut, DriftsToTheUpperLeftAtEachStep)
{
    Desk desk;
    desk.pic1.setScale({100, 50, 1000, 500});
    desk.add(fake::line({0, 0}, {300, 200}));
    desk.press("Command44"_c);
    expectScale(desk, {100 - 60.5F, 50 - 30.25F, 1100, 550}, "once");
    desk.press("Command44"_c);
    expectScale(desk, {39.5F - 66.55F, 19.75F - 33.275F, 1210, 605}, "twice");
    const float centre = desk.pic1.getScale().left + 605;
    EXPECT_LT(centre, 600); // it was at 600
    EXPECT_EQ(desk.ops().back(), "refresh");
}

TEST(ZoomOut, LeavesTheWholeViewFlag)
{
    Desk desk;
    desk.add(fake::line({0, 0}, {300, 200}));
    desk.press("Command42"_c);
    desk.press("Command44"_c);
    EXPECT_EQ(desk.s.wholeViewFlag, 1);
    desk.shell.keyDown(37);
    EXPECT_EQ(desk.s.wholeViewFlag, 1);
}

struct ZoomWindow : testing::Test {
    ZoomWindow()
    {
        desk.drawLine(2, 0, 300, 0);
        desk.press("Command43"_c);
        desk.ops();
    }

    Desk desk;
};

TEST_F(ZoomWindow, SaysSoInItsLabelAndInTheTitle)
{
    EXPECT_EQ(desk.caption("snaplab"_c), "Zoom Window is on:");
    EXPECT_EQ(desk.title(), fake::titleOf("Zoom Window(Place window around area.)"));
    EXPECT_EQ(desk.s.curFunc, "Line");
}

TEST_F(ZoomWindow, ShowsTheWholeWidthOfTheBoxHangingFromItsTop)
{
    desk.down(1, 1300, 900); // from the lower right
    desk.down(1, 700, 500);
    expectScale(desk, {700, 500, 600, 400});
    EXPECT_EQ(desk.caption("snaplab"_c), "");
    EXPECT_EQ(desk.title(), fake::titleOf("Line(Enter beginning point of line:)"));
    EXPECT_EQ(desk.ops().back(), "refresh");
}

TEST_F(ZoomWindow, IgnoresTheHeightOfATallNarrowBox)
{
    desk.down(1, 100, 100);
    desk.down(1, 160, 3000);
    expectScale(desk, {100, 100, 60, 40});
}

TEST_F(ZoomWindow, NarrowerThanATwentiethLeavesTheViewAndStaysOn)
{
    desk.down(1, 100, 100);
    desk.down(1, 100.04F, 3000);
    expectScale(desk, {0, 0, 4800, 3200});
    EXPECT_EQ(desk.caption("snaplab"_c), "Zoom Window is on:");
    EXPECT_EQ(desk.s.windowStep, 0);
    EXPECT_EQ(fake::only(desk.ops(), "restoreSnapshot").size(), 1U);
    desk.down(1, 700, 500);
    desk.down(1, 1300, 900);
    expectScale(desk, {700, 500, 600, 400}, "another try");
}

TEST_F(ZoomWindow, ClearsTheWholeViewFlagForGoodEvenIfCancelled)
{
    desk.cancel();
    desk.press("Command42"_c);
    EXPECT_EQ(desk.s.wholeViewFlag, 1);
    desk.press("Command43"_c);
    EXPECT_EQ(desk.s.wholeViewFlag, 0);
    desk.cancel();
    EXPECT_EQ(desk.s.wholeViewFlag, 0);
}

TEST_F(ZoomWindow, PressedTwiceComesBackToTheLabelAndTitleBeforeTheFirst)
{
    desk.cancel();
    desk.s.controls["snaplab"_c].caption = "Snap Point is on:";
    const std::string title(desk.title());
    desk.press("Command43"_c);
    desk.down(1, 100, 100);
    desk.press("Command43"_c);
    EXPECT_EQ(desk.s.windowStep, 0);
    desk.down(1, 700, 500);
    desk.down(1, 1300, 900);
    EXPECT_EQ(desk.caption("snaplab"_c), "Snap Point is on:");
    EXPECT_EQ(desk.title(), title);
}

TEST_F(ZoomWindow, LeavesARunningFunctionAndItsStep)
{
    desk.cancel();
    desk.click(50, 50);
    desk.press("Command43"_c);
    desk.down(1, 700, 500);
    desk.down(1, 1300, 900);
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.s.pickFirst, (Point{50, 50}));
    EXPECT_EQ(desk.title(), fake::titleOf("Line(Enter ending point of line:)"));
}

TEST_F(ZoomWindow, KeepsTheCornersSorted)
{
    desk.down(1, 1300, 500);
    desk.down(1, 700, 900);
    EXPECT_EQ(desk.s.window1, (Point{700, 500}));
    EXPECT_EQ(desk.s.window2, (Point{1300, 900}));
}

TEST(ZoomAbout, KeepsThePointUnderThePointerWhereItIs)
{
    Desk desk;
    desk.add(fake::line({0, 0}, {300, 200}));
    zoomAbout(desk.s, desk.pic1, {1200, 800}, 2);
    expectScale(desk, {600, 400, 2400, 1600});
    EXPECT_EQ(desk.s.wholeViewFlag, 0);
}

TEST(ZoomAbout, NeverLosesTheWindow)
{
    Desk desk;
    for (int i = 0; i < 400; ++i) desk.shell.wheel(5, {1234.5F, 777});
    const Scale deep = desk.pic1.getScale();
    EXPECT_GT(deep.left + deep.width, deep.left);
    EXPECT_GT(deep.top + deep.height, deep.top);
    for (int i = 0; i < 800; ++i) desk.shell.wheel(-5, {1234.5F, 777});
    const Scale wide = desk.pic1.getScale();
    EXPECT_TRUE(std::isfinite(wide.left + wide.width));
    EXPECT_TRUE(std::isfinite(wide.top + wide.height));
}

} // namespace
} // namespace mirtane
