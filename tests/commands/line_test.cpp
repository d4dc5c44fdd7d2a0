#include "commands/line.h"

#include "desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;
using fake::Ops;

TEST(Line, StoresALineBetweenTwoClicksAndGoesOnFromItsEnd)
{
    Desk desk;
    desk.press("freecurs"_c);
    desk.click(100, 100);
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.s.promptText, "(Enter ending point of line:)");
    desk.click(400, 300);
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.slot(1).kind, Kind::line);
    EXPECT_EQ(desk.slot(1).p1, (Point{100, 100}));
    EXPECT_EQ(desk.slot(1).p2, (Point{400, 300}));
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.s.pickFirst, (Point{400, 300}));
    desk.click(500, 700);
    EXPECT_EQ(desk.slot(2).p1, (Point{400, 300}));
    EXPECT_EQ(desk.slot(2).p2, (Point{500, 700}));
    EXPECT_EQ(desk.s.promptText, "(Enter ending point of line:)");
}

TEST(Line, CommitsInThePenOfTheCurrentAttributesAndKeepsThePicture)
{
    Desk desk;
    desk.press("lw6"_c);
    desk.press("ls5"_c);
    desk.press("freecurs"_c);
    desk.click(100, 100);
    desk.move(400, 300);
    desk.ops();
    desk.down(1, 400, 300);
    const Ops expected = {"setStyle 2", "setColor 255",      "restoreSnapshot", "line 100 100 400 300",
                          "snapshot",   "setColor 16777215", "setStyle 2"};
    EXPECT_EQ(desk.ops(), expected);
    EXPECT_EQ(desk.slot(1).color, 0x0000FF);
    EXPECT_EQ(desk.slot(1).style, 2);
}

TEST(Line, BandIsDrawnOverTheCleanPictureOnly)
{
    Desk desk;
    desk.press("freecurs"_c);
    desk.click(100, 100);
    desk.ops();
    desk.move(250, 120);
    const Ops expected = {"restoreSnapshot", "line 100 100 250 120"};
    EXPECT_EQ(desk.ops(), expected);
}

TEST(Line, HasNoBandBeforeItsFirstPoint)
{
    Desk desk;
    desk.move(250, 120);
    EXPECT_TRUE(desk.ops().empty());
}

TEST(Line, ChainEndedByTwoClicksOnOneSpotStoresNoZeroLengthLine)
{
    Desk desk;
    desk.press("freecurs"_c);
    desk.click(100, 100);
    desk.click(400, 300);
    desk.down(1, 400, 300);
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.pickLast, (Point{600, 500}));
    EXPECT_EQ(desk.s.promptText, "(Enter beginning point of line:)");
}

TEST(Line, BeginsAnewAtTheParkedPointEndsAtOnce)
{
    Desk desk;
    desk.click(100, 100);
    desk.cancel(900, 900);
    desk.down(1, 300, 300); // 200 beyond the old first point, both ways
    EXPECT_EQ(desk.s.stepNo, 0);
    desk.down(1, 301, 300);
    EXPECT_EQ(desk.s.stepNo, 1);
}

TEST(Line, OfEachChainIsOneUndoGroup)
{
    Desk desk;
    desk.press("freecurs"_c);
    desk.click(100, 100);
    desk.click(400, 300);
    desk.click(800, 300);
    desk.press("undu"_c);
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.stat(2), Stat::out);
}

TEST(Line, IsCulledByTheImmediatePainterYetStored)
{
    Desk desk;
    desk.press("freecurs"_c);
    desk.click(-100, 100);
    desk.move(-400, 300);
    desk.ops();
    desk.down(1, -400, 300);
    EXPECT_TRUE(fake::marks(desk.ops()).empty());
    EXPECT_EQ(desk.s.store.entCount, 2);
}

TEST(PointFunction, MakesOnePointAClick)
{
    Desk desk;
    desk.press("Command8"_c);
    desk.press("ls4"_c);
    desk.press("lw5"_c);
    desk.ops();
    desk.down(1, 70, 90);
    const Ops expected = {"setStyle 2", "setColor 16776960", "restoreSnapshot", "point 70 90",
                          "snapshot",   "setColor 16777215", "setStyle 2"};
    EXPECT_EQ(desk.ops(), expected);
    EXPECT_EQ(desk.slot(1).kind, Kind::point);
    EXPECT_EQ(desk.slot(1).p1, (Point{70, 90}));
    EXPECT_EQ(desk.slot(1).style, 1); // painted dotted, stored in the current style
    EXPECT_EQ(desk.slot(1).color, 0xFFFF00);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.promptText, "(Enter point:)");
    desk.down(1, 71, 90);
    EXPECT_EQ(desk.s.store.entCount, 3);
}

TEST(PointFunction, IgnoresOrtho)
{
    Desk desk;
    desk.press("Command8"_c);
    desk.click(70, 90);
    desk.click(95, 133);
    EXPECT_EQ(desk.caption("freecurs"_c), "Ortho/On");
    EXPECT_EQ(desk.slot(2).p1, (Point{95, 133}));
}

} // namespace
} // namespace mirtane
