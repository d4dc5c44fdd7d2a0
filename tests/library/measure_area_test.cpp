#include "library/measure_area.h"

#include "library/boundary.h"
#include "library_desk.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace mirtane {
namespace {

using fake::LibraryDesk;

struct AreaDesk : LibraryDesk {
    AreaDesk() : LibraryDesk("Measure Area") {}
    void through(const std::vector<Point>& corners)
    {
        for (const Point p : corners) click(p.x, p.y);
        click(corners[0].x, corners[0].y);
    }
    std::string area(const std::vector<Point>& corners)
    {
        through(corners);
        return text("entry"_c);
    }
};

TEST(MeasureArea, ShowsTheAreaInSquareFeet)
{
    struct Row {
        const char* what;
        std::vector<Point> corners;
        std::string shown;
    };
    const Row rows[] = {
        {"ten feet square", {{0, 0}, {1440, 0}, {1440, 1440}, {0, 1440}}, "100.00' Square"},
        {"the other way round", {{0, 0}, {0, 1440}, {1440, 1440}, {1440, 0}}, "100.00' Square"},
        {"away from the origin", {{-700, 300}, {740, 300}, {740, 1740}, {-700, 1740}}, "100.00' Square"},
        {"an L", {{0, 0}, {1440, 0}, {1440, 720}, {720, 720}, {720, 1440}, {0, 1440}}, "75.00' Square"},
        {"there and back", {{0, 0}, {1440, 0}}, ".00' Square"},
        {"a bow tie, both wings", {{0, 0}, {1440, 1440}, {1440, 0}, {0, 1440}}, "50.00' Square"},
    };
    for (const Row& row : rows) EXPECT_EQ(AreaDesk().area(row.corners), row.shown) << row.what;
}

TEST(MeasureArea, FollowsTheNumberStyle)
{
    struct Row {
        const char* style;
        std::int16_t comma;
        const char* shown;
    };
    const Row rows[] = {
        {"us", 0, "100.00' Square"}, {"2f", 0, "100.00' Square"}, {"3i", 0, "100.00' Square"},
        {"br", 0, "9.31m Square"},   {"br", 1, "9,31m Square"},
    };
    for (const Row& row : rows) {
        AreaDesk desk;
        desk.s.numStyle = row.style;
        desk.s.numComma = row.comma;
        EXPECT_EQ(desk.area({{0, 0}, {1440, 0}, {1440, 1440}, {0, 1440}}), row.shown) << row.style;
    }
}

TEST(MeasureArea, IsAsExactAsItsLines)
{
    struct Row {
        const char* what;
        float width;
        const char* shown;
    };
    // All 1440 high: 240 level lines, from 3 on.
    const Row rows[] = {
        {"an upright line at 3: (1440 + 240 x 5) / 48 / 144", 5, ".38' Square"},
        {"the same, though wider: (1440 + 240 x 8) / 48 / 144", 8, ".49' Square"},
        {"one more on the side itself: (2 x 1440 + 240 x 9) / 48 / 144", 9, ".73' Square"},
    };
    for (const Row& row : rows) {
        const float w = row.width;
        EXPECT_EQ(AreaDesk().area({{0, 0}, {w, 0}, {w, 1440}, {0, 1440}}), row.shown) << row.what;
    }
}

TEST(MeasureArea, ReturnsToTheFunctionBefore)
{
    AreaDesk desk;
    desk.s.baseFunc = desk.s.lastFunc = "Line";
    desk.through({{0, 0}, {1440, 0}, {1440, 1440}});
    EXPECT_EQ(desk.s.curFunc, "Line");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.promptText, "(Enter beginning point of line:)");
    EXPECT_EQ(desk.s.controls.focus, "pic1"_c);
    EXPECT_EQ(desk.text("Text3"_c), "");
    EXPECT_EQ(desk.text("entry"_c), "50.00' Square") << "the area stays to be read";
    EXPECT_EQ(desk.s.boundaryCount, 0);
    EXPECT_EQ(desk.s.boundary[0].from, (Point{1000000, 1000000}));
    EXPECT_EQ(desk.s.store.entCount, 1);
    EXPECT_EQ(desk.s.log.undoGroupNext, 0);
}

TEST(MeasureArea, PromptsForTheNextPoint)
{
    AreaDesk desk;
    desk.click(0, 0);
    EXPECT_EQ(desk.s.promptText, "(Enter next point on boundary) Snap first point to finish:)");
}

TEST(MeasureArea, AnUnclosedBoundaryGoesOnCollecting)
{
    AreaDesk desk;
    desk.click(0, 0);
    for (int i = 1; i < 100; ++i) desk.click(static_cast<float>(i), static_cast<float>(i % 7));
    EXPECT_EQ(desk.s.curFunc, "Measure Area");
    EXPECT_EQ(desk.text("entry"_c), "");
    desk.click(0, 0);
    EXPECT_NE(desk.text("entry"_c), "");
}

// The corners of a polygon with equal sides about a point.
std::vector<Point> cornersOf(int sides, double radius, Point centre, bool clockwise)
{
    std::vector<Point> corners;
    for (int i = 0; i < sides; ++i) {
        const double a = (clockwise ? -1 : 1) * 2 * std::numbers::pi * i / sides;
        corners.push_back({static_cast<float>(centre.x + radius * std::cos(a)),
                           static_cast<float>(centre.y + radius * std::sin(a))});
    }
    return corners;
}

TEST(MeasureArea, OfAHundredEdgesIsWhole)
{
    struct Row {
        const char* what;
        Point centre;
        bool clockwise;
    };
    const Row rows[] = {{"about the origin", {0, 0}, false},
                        {"aside", {5000, 4000}, true},
                        {"far off", {-90000, 70000}, false}};
    for (const Row& row : rows) {
        for (const int sides : {98, 99, 100}) {
            AreaDesk desk;
            const double radius = 1440;
            const double area =
                sides / 2.0 * radius * radius * std::sin(2 * std::numbers::pi / sides) / 20736;
            const std::string shown = desk.area(cornersOf(sides, radius, row.centre, row.clockwise));
            EXPECT_NEAR(std::stod(shown), area, area / 1000) << row.what << " " << sides;
        }
    }
}

TEST(MeasureArea, OfMoreThanAHundredEdgesIsNotMadeUp)
{
    for (const int sides : {101, 102, 130, 500}) {
        AreaDesk desk;
        const std::vector<Point> corners = cornersOf(sides, 1440, {3000, 2000}, sides % 2 == 0);
        for (const Point p : corners) desk.click(p.x, p.y);
        EXPECT_EQ(desk.text("entry"_c), "100 edges at most: close the boundary") << sides;
        EXPECT_EQ(desk.s.curFunc, "Measure Area") << sides;
        EXPECT_EQ(desk.s.boundaryCount, 99) << "the legs so far stay";
        EXPECT_EQ(desk.s.pickFirst, corners[99]) << sides;
    }
}

TEST(MeasureArea, IsBoundedHoweverWideTheBoundary)
{
    AreaDesk wide;
    const std::string shown = wide.area({{0, 0}, {1e7F, 0}, {1e7F, 1e7F}, {0, 1e7F}});
    EXPECT_NEAR(std::stod(shown) / (1e14 / 20736), 1, 1e-5);
    AreaDesk huge; // beyond what a number can hold
    EXPECT_NE(huge.area({{-3e38F, -3e38F}, {3e38F, -3e38F}, {3e38F, 3e38F}}), "");
}

} // namespace
} // namespace mirtane
