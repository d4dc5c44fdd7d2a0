#include "commands/ellipse.h"

#include "desk.h"
#include "geometry/angle.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

struct EllipseFunction : testing::Test {
    EllipseFunction() { desk.press("Command7"_c); }
    Desk desk;
};

TEST_F(EllipseFunction, StoresItsFirstAxisEndItsCentreAndTheRatio)
{
    desk.click(1000, 1000);
    EXPECT_EQ(desk.s.promptText, "(Enter ending point of first axis:)");
    desk.click(1800, 1000);
    EXPECT_EQ(desk.s.promptText, "(Enter ending point of second axis:)");
    desk.click(1400, 800);
    const EntityRecord r = desk.slot(1);
    EXPECT_EQ(r.kind, kind::ellipse);
    EXPECT_EQ(r.p1, (Point{1800, 1000}));
    EXPECT_EQ(r.p2, (Point{1400, 1000}));
    EXPECT_FLOAT_EQ(r.p3.x, 0.5F);
    EXPECT_EQ(desk.s.promptText, "(Enter beginning point of first axis:)");
}

TEST_F(EllipseFunction, AllowsTheSecondAxisToBeTheLonger)
{
    desk.click(1000, 1000);
    desk.click(1400, 1000);
    desk.click(1200, 200);
    EXPECT_FLOAT_EQ(desk.slot(1).p3.x, 4);
}

TEST_F(EllipseFunction, ConfinesTheSecondAxisToTheFirstAlsoWithOrthoOffAndGivesOrthoBack)
{
    desk.press("freecurs"_c);
    desk.press("Command7"_c);
    desk.click(1000, 1000);
    desk.click(1400, 600); // up at 45 degrees
    EXPECT_EQ(desk.caption("freecurs"_c), "Ortho/On");
    EXPECT_NEAR(desk.s.orthoAngle, eighthTurn, 1e-7);
    EXPECT_EQ(desk.s.pickFirst, (Point{1200, 800}));
    desk.move(1000, 620);
    const Point d = desk.s.pickLast;
    EXPECT_NEAR((d.x - 1200) * 1 + (d.y - 800) * -1, 0, 0.01); // at right angles to (1, -1)
    desk.down(1, 1000, 620);
    EXPECT_EQ(desk.caption("freecurs"_c), "Ortho/Off");
    EXPECT_EQ(desk.s.orthoAngle, 0);
}

TEST_F(EllipseFunction, GivesOrthoBackWhenItIsLeftByAButton)
{
    desk.press("freecurs"_c);
    desk.press("Command7"_c);
    desk.click(1000, 1000);
    desk.click(1400, 600);
    desk.press("Command1"_c);
    EXPECT_EQ(desk.caption("freecurs"_c), "Ortho/Off");
    EXPECT_EQ(desk.s.orthoAngle, 0);
}

TEST_F(EllipseFunction, ShowsItsCrossOfAxesAndNoEllipse)
{
    desk.click(1000, 1000);
    desk.click(1800, 1000);
    desk.pic1.takeOps();
    desk.move(1400, 800);
    const fake::Ops wanted = {"restoreSnapshot", "line 1000 1000 1800 1000", "line 1400 1000 1400 800",
                              "line 1400 1000 1400 1200"};
    EXPECT_EQ(desk.ops(), wanted);
}

TEST_F(EllipseFunction, OfAFirstAxisWithoutLengthHasNoRatioAndPaintsNothing)
{
    desk.drawLine(100, 100, 200, 100); // an empty drawing takes no typed nothing
    desk.press("Command7"_c);
    desk.click(1000, 1000);
    desk.move(1400, 1000);
    desk.type("0");
    desk.enter();
    const float before = desk.s.ptF.x;
    desk.pic1.takeOps();
    desk.click(1000, 700);
    EXPECT_EQ(desk.slot(2).p3.x, before);
    for (const std::string& op : desk.ops()) EXPECT_EQ(op.find("nan"), std::string::npos);
}

} // namespace
} // namespace mirtane
