// A distance that is typed where nothing shows a direction.

#include "desk.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace mirtane {
namespace {

using fake::Desk;

void enterDistance(Desk& desk, const char* typed)
{
    desk.type(typed);
    desk.enter();
}

void setOrthoAngle(Desk& desk, const char* degrees)
{
    desk.press("angle"_c);
    desk.type(degrees);
    desk.enter();
}

// The first point is laid by a construction line onto the last point of the function before.
void beginOnTheLastPoint(Desk& desk, ControlId function, Point p)
{
    desk.press("freecurs"_c);
    desk.press("Command1"_c);
    desk.click(p.x - 300, p.y - 100);
    desk.click(p.x, p.y);
    desk.press(function);
    desk.layPoint(p.x, p.y);
    ASSERT_EQ(desk.s.stepNo, 1);
    ASSERT_EQ(desk.s.pickFirst, desk.s.pickLast);
}

TEST(TypedNowhere, ARadiusMakesItsCircle)
{
    for (const Point p : {Point{800, 500}, Point{-3110.5F, 77.25F}, Point{120000, -65000}}) {
        Desk desk;
        beginOnTheLastPoint(desk, "Command2"_c, p);
        enterDistance(desk, "3'6");
        EXPECT_EQ(desk.slot(2).p1, p);
        EXPECT_EQ(desk.slot(2).rad, 504);
    }
}

struct Row {
    const char* what;
    ControlId function;
};

TEST(TypedNowhere, RunsToTheRightAlongTheOrthoAngle)
{
    const Row rows[] = {
        {"line", "Command1"_c},    {"circle", "Command2"_c},  {"arc", "Command4"_c},
        {"ellipse", "Command7"_c}, {"polygon", "Command9"_c},
    };
    for (const Row& row : rows) {
        for (const char* degrees : {"0", "25", "300"}) {
            Desk desk;
            setOrthoAngle(desk, degrees);
            beginOnTheLastPoint(desk, row.function, {1800, 1500});
            enterDistance(desk, "10");
            const double a = desk.s.orthoAngleSaved;
            EXPECT_NEAR(desk.s.pickLast.x, 1800 + 120 * std::cos(a), 1e-3) << row.what << " " << degrees;
            EXPECT_NEAR(desk.s.pickLast.y, 1500 - 120 * std::sin(a), 1e-3) << row.what << " " << degrees;
        }
    }
}

TEST(TypedNowhere, ALineWhosePointerIsOnItsFirstPointHasALength)
{
    Desk desk;
    desk.drawLine(2, 0, 10, 0);
    desk.press("freecurs"_c);
    desk.click(640, 480);
    desk.move(700, 500);
    desk.move(640, 480);
    enterDistance(desk, "-5");
    EXPECT_EQ(desk.slot(2).p1, (Point{640, 480}));
    EXPECT_EQ(desk.slot(2).p2, (Point{580, 480}));
}

// What is read as 0 lays a line of no length, as it is told to; the direction stays what it was.
TEST(TypedNowhere, NothingLaidKeepsTheDirection)
{
    const std::vector<const char*> before[] = {{"0"},      {"."},      {"-"}, {"'"}, {"0", "-0", "."},
                                               {"2", "0"}, {"-2", "0"}};
    for (const auto& typed : before) {
        for (const Point aim : {Point{300, 200}, Point{-50, 190}, Point{100, -800}}) {
            Desk desk;
            desk.drawLine(2, 0, 10, 0);
            desk.press("freecurs"_c);
            desk.click(100, 100);
            desk.move(aim.x, aim.y);
            for (const char* distance : typed) enterDistance(desk, distance);
            const Point from = desk.s.pickFirst;
            enterDistance(desk, "5");
            const double back = std::string_view(typed.front()) == "-2" ? -1 : 1; // it goes on backward
            const double length = std::hypot(aim.x - 100.0, aim.y - 100.0);
            EXPECT_NEAR(desk.s.pickFirst.x, from.x + back * 60 * (aim.x - 100.0) / length, 1e-3)
                << typed.front();
            EXPECT_NEAR(desk.s.pickFirst.y, from.y + back * 60 * (aim.y - 100.0) / length, 1e-3)
                << typed.front();
        }
    }
}

} // namespace
} // namespace mirtane
