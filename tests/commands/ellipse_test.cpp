#include "commands/ellipse.h"

#include "round_desk.h"

#include <random>

namespace mirtane {
namespace {

using namespace fake;

struct Axes {
    const char* what;
    Point b, d; // about the first click: the end of the first axis, and the pointer at the last click
    float ratio;
};

constexpr Axes axes[] = {
    {"lying, to the right", {800, 0}, {400, -200}, 0.5F},
    {"lying, to the left", {-800, 0}, {-400, 100}, 0.25F},
    {"standing, up", {0, -800}, {200, -400}, 0.5F},
    {"standing, down", {0, 800}, {-200, 400}, 0.5F},
    {"aslant, up to the right", {600, -800}, {460, -280}, 0.4F},
    {"aslant, up to the left", {-600, -800}, {-140, -520}, 0.4F},
    {"aslant, down to the left", {-600, 800}, {-460, 280}, 0.4F},
    {"aslant, down to the right", {600, 800}, {140, 520}, 0.4F},
    {"a circle", {800, 0}, {400, -400}, 1},
    {"the second axis the longer", {400, 0}, {200, -800}, 4},
    {"the pointer off both axes", {800, 0}, {520, -160}, 0.5F},
};

TEST(Ellipse, StoresItsFirstAxisEndItsCentreAndTheRatio)
{
    Desk desk;
    std::int32_t count = 1;
    for (const Axes& row : axes) {
        for (const Point a :
             {Point{1000, 1000}, Point{0, 0}, Point{100000, 100000}, Point{-100000, 100000}}) {
            start(desk, "Command7"_c, OrthoToggle::off);
            clickAt(desk, a);
            const Point b{a.x + row.b.x, a.y + row.b.y};
            clickAt(desk, b);
            clickAt(desk, {a.x + row.d.x, a.y + row.d.y});
            ASSERT_EQ(desk.s.store.entCount, ++count) << row.what;
            const EntityRecord r = lastSlot(desk);
            EXPECT_EQ(r.kind, Kind::ellipse) << row.what;
            EXPECT_EQ(r.p1, b) << row.what;
            EXPECT_EQ(r.p2, (Point{a.x + row.b.x / 2, a.y + row.b.y / 2})) << row.what;
            EXPECT_NEAR(r.p3.x, row.ratio, 1e-6 + rounding(a, 1000) / 400) << row.what;
            desk.cancel(); // parks the last point, on which a first click would end the action
        }
    }
}

TEST(Ellipse, HasItsFirstAxisOnAnAxisOfOrthoAtThePointersDistance)
{
    struct Row {
        Point pointer, b;
    };
    const Row rows[] = {
        {{1400, 700}, {1500, 1000}},
        {{1300, 600}, {1000, 500}},
        {{600, 700}, {500, 1000}},
        {{1300, 1400}, {1000, 1500}},
    };
    for (const Row& row : rows) {
        Desk desk;
        start(desk, "Command7"_c, OrthoToggle::on);
        desk.click(1000, 1000);
        clickAt(desk, row.pointer);
        const Point centre{(1000 + row.b.x) / 2, (1000 + row.b.y) / 2};
        clickAt(desk, {centre.x + 60, centre.y + 80});
        const EntityRecord r = desk.slot(1);
        EXPECT_LT(away(r.p1, row.b), 0.001) << row.pointer.x;
        EXPECT_LT(away(r.p2, centre), 0.001) << row.pointer.x;
        EXPECT_NEAR(r.p3.x, 0.4, 1e-5) << row.pointer.x;
    }
}

TEST(Ellipse, TakesTypedLengthsForBothAxes)
{
    for (const OrthoToggle ortho : {OrthoToggle::on, OrthoToggle::off}) {
        for (const Point a : {Point{1000, 1000}, Point{100000, 100000}}) {
            Desk desk;
            start(desk, "Command7"_c, ortho);
            clickAt(desk, a);
            desk.move(a.x, a.y - 333);
            desk.type("50"); // 600 units
            desk.enter();
            EXPECT_EQ(desk.s.promptText, "(Enter ending point of second axis:)");
            EXPECT_EQ(desk.s.orthoAngle, quarter);
            desk.move(a.x - 77, a.y - 320);
            desk.type("10"); // 120 units from the centre
            desk.enter();
            const EntityRecord r = desk.slot(1);
            EXPECT_EQ(r.kind, Kind::ellipse);
            EXPECT_LT(away(r.p1, {a.x, a.y - 600}), 0.01);
            EXPECT_LT(away(r.p2, {a.x, a.y - 300}), 0.01);
            EXPECT_NEAR(r.p3.x, 0.4, 1e-6 + rounding(a, 600) / 300);
        }
    }
}

TEST(Ellipse, PromptsForItsAxesAndEndsReadyForTheNext)
{
    Desk desk;
    start(desk, "Command7"_c);
    EXPECT_EQ(desk.s.promptText, "(Enter beginning point of first axis:)");
    desk.click(1000, 1000);
    EXPECT_EQ(desk.s.promptText, "(Enter ending point of first axis:)");
    desk.click(1800, 1000);
    EXPECT_EQ(desk.s.promptText, "(Enter ending point of second axis:)");
    EXPECT_EQ(desk.s.pickFirst, (Point{1400, 1000}));
    desk.click(1400, 800);
    EXPECT_EQ(desk.s.promptText, "(Enter beginning point of first axis:)");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.workRadius, 0);
    desk.press("undu"_c);
    EXPECT_EQ(desk.stat(1), Stat::out);
}

TEST(Ellipse, BorrowsOrthoAtTheDirectionOfItsFirstAxis)
{
    struct Row {
        const char* what;
        Point b;
        double angle;
    };
    const Row rows[] = {
        {"right", {800, 0}, 0},
        {"right, up", {800, -400}, std::atan(0.5)},
        {"up", {0, -800}, quarter},
        {"left, up", {-800, -400}, half - std::atan(0.5)},
        {"left", {-800, 0}, half},
        {"left, down", {-800, 400}, half + std::atan(0.5)},
        {"down", {0, 800}, threeQuarters},
        {"right, down", {800, 400}, 6.2831853 - std::atan(0.5)},
    };
    for (const Row& row : rows) {
        Desk desk;
        start(desk, "Command7"_c, OrthoToggle::off);
        desk.click(1000, 1000);
        desk.click(1000 + row.b.x, 1000 + row.b.y);
        EXPECT_EQ(desk.s.orthoAngle, row.angle) << row.what;
        EXPECT_EQ(desk.caption("freecurs"_c), "Ortho/On") << row.what;
        EXPECT_EQ(desk.s.orthoCaption, "Ortho/Off") << row.what;
    }
}

// Whatever the pointer does, the band's second axis stands at right angles to the first or lies on it, at the
// pointer's distance from the centre.
TEST(Ellipse, ConfinesItsSecondAxisToTheFirstWhateverTheUsersOrtho)
{
    std::mt19937 random(61);
    std::uniform_real_distribution<float> place(-900, 900);
    Desk desk;
    int standing = 0;
    for (int i = 0; i < 2000; ++i) {
        const Point a = i % 3 == 0 ? Point{101000, 101000} : Point{2000, 1500};
        start(desk, "Command7"_c, i % 2 == 0 ? OrthoToggle::on : OrthoToggle::off);
        clickAt(desk, a);
        clickAt(desk, {a.x + place(random), a.y + place(random)});
        const Point c = desk.s.ptC;
        const Point b = desk.s.ptB;
        const Point pointer{a.x + place(random), a.y + place(random)};
        if (away(b, c) < 20 || away(pointer, c) < 20) {
            desk.cancel();
            continue;
        }
        moveTo(desk, pointer);
        const Point d = desk.s.pickLast;
        const double slack = 8 * rounding(a, 1000);
        EXPECT_NEAR(away(c, d), away(c, pointer), slack) << i;
        const double between = std::remainder(heading(c, d) - heading(c, b), std::numbers::pi / 2);
        EXPECT_LT(std::abs(between), slack / 20 + slack / away(c, b) + slack / away(c, d)) << i;
        const double across = std::abs(std::sin(heading(c, d) - heading(c, b)));
        if (across > 0.5) ++standing;
        downAt(desk, pointer);
        const EntityRecord r = lastSlot(desk);
        EXPECT_NEAR(r.p3.x, away(c, pointer) / away(c, b), 3 * slack * (1 + r.p3.x) / away(c, b)) << i;
        EXPECT_EQ(desk.caption("freecurs"_c), i % 2 == 0 ? "Ortho/On" : "Ortho/Off") << i;
        EXPECT_EQ(desk.s.orthoAngle, 0) << i;
    }
    EXPECT_GT(standing, 500);
}

void setOrthoAngle(Desk& desk, std::string_view degrees)
{
    desk.press("angle"_c);
    desk.shell.giveFocus("angle"_c);
    desk.type(degrees);
    desk.enter();
}

TEST(Ellipse, GivesOrthoBackHoweverItEnds)
{
    const auto finish = [](Desk& d) { d.click(1200, 700); };
    const auto cancel = [](Desk& d) { d.cancel(); };
    const auto onCentre = [](Desk& d) { clickAt(d, d.s.pickFirst); };
    struct Row {
        const char* how;
        void (*end)(Desk&);
    };
    const Row rows[] = {
        {"finished", finish},
        {"cancelled", cancel},
        {"ended by a click on its centre", onCentre},
        {"left for Line", [](Desk& d) { d.press("Command1"_c); }},
        {"left for 2pt. Circle", [](Desk& d) { d.press("Command2"_c); }},
        {"left for 3pt. Circle", [](Desk& d) { d.press("Command3"_c); }},
        {"left for 2pt. Arc", [](Desk& d) { d.press("Command4"_c); }},
        {"left for 3pt. Arc", [](Desk& d) { d.press("Command5"_c); }},
        {"left for Curve", [](Desk& d) { d.press("Command6"_c); }},
        {"begun again", [](Desk& d) { d.press("Command7"_c); }},
        {"left for Point", [](Desk& d) { d.press("Command8"_c); }},
        {"left for Polygon", [](Desk& d) { d.press("Command9"_c); }},
    };
    for (const Row& row : rows) {
        for (const OrthoToggle ortho : {OrthoToggle::on, OrthoToggle::off}) {
            Desk desk;
            setOrthoAngle(desk, "30");
            const double users = desk.s.orthoAngleSaved;
            ASSERT_NEAR(users, 0.5235988, 1e-6);
            start(desk, "Command7"_c, ortho);
            desk.click(1000, 1000);
            desk.click(1400, 600);
            EXPECT_EQ(desk.s.stepNo, 2) << row.how;
            desk.s.orthoAngle = 1; // unlike the user's also where ortho turned the first axis onto it
            row.end(desk);
            EXPECT_EQ(desk.s.stepNo, 0) << row.how;
            EXPECT_EQ(desk.s.orthoAngle, users) << row.how;
            EXPECT_EQ(desk.caption("freecurs"_c), ortho == OrthoToggle::on ? "Ortho/On" : "Ortho/Off")
                << row.how;
        }
    }
}

TEST(Ellipse, ShowsItsFirstAxisAndThenItsCrossOfAxesAndNoEllipse)
{
    Desk desk;
    start(desk, "Command7"_c);
    desk.click(1000, 1000);
    desk.ops();
    desk.move(1800, 1000);
    const Ops first = {"restoreSnapshot", "line 1000 1000 1800 1000"};
    EXPECT_EQ(desk.ops(), first);
    desk.down(1, 1800, 1000);
    desk.ops();
    desk.move(1400, 800);
    const Ops second = {"restoreSnapshot", "line 1000 1000 1800 1000", "line 1400 1000 1400 800",
                        "line 1400 1000 1400 1200"};
    EXPECT_EQ(desk.ops(), second);
}

// The pieces of the painted ellipse end on the ends of the axes that the band's cross last showed.
TEST(Ellipse, IsPaintedThroughTheEndsOfTheCrossThatTheBandShowed)
{
    Desk desk;
    desk.s.curColor = 255;
    desk.s.curStyle = 2;
    start(desk, "Command7"_c);
    desk.click(1000, 1000);
    desk.click(1800, 1000);
    desk.move(1400, 800);
    desk.ops();
    desk.down(1, 1400, 800);
    const Ops ops = desk.ops();
    const Ops lines = only(ops, "line");
    ASSERT_EQ(lines.size(), 36U); // always pieces, and at least so many
    EXPECT_EQ(lines[0].substr(0, 14), "line 1800 1000");
    expectCommit(ops, {"setStyle 2", "setColor 255"}, lines[0]);
    std::vector<Point> ends;
    for (const std::string& line : lines) {
        Point from, to;
        ASSERT_EQ(std::sscanf(line.c_str(), "line %f %f %f %f", &from.x, &from.y, &to.x, &to.y), 4);
        ends.push_back(to);
        const double x = (to.x - 1400) / 400;
        const double y = (to.y - 1000) / 200;
        EXPECT_NEAR(x * x + y * y, 1, 1e-4) << line;
    }
    const Point cross[] = {{1800, 1000}, {1400, 800}, {1000, 1000}, {1400, 1200}};
    for (const Point tip : cross) {
        const bool reached = std::ranges::any_of(ends, [&](Point p) { return away(p, tip) < 0.01; });
        EXPECT_TRUE(reached) << tip.x << " " << tip.y;
    }
}

TEST(Ellipse, OfAFirstAxisWithoutLengthHasNoRatioAndPaintsNothing)
{
    Desk desk;
    desk.drawLine(100, 100, 200, 100); // an empty drawing takes no typed nothing
    start(desk, "Command7"_c);
    desk.click(1000, 1000);
    desk.move(1400, 1000);
    desk.type("0");
    desk.enter();
    EXPECT_EQ(desk.s.pickFirst, (Point{1000, 1000})); // the centre of an axis without a direction
    const float before = desk.s.ptF.x;
    desk.move(1000, 700);
    desk.ops();
    desk.down(1, 1000, 700);
    EXPECT_TRUE(marks(desk.ops()).empty());
    const EntityRecord r = desk.slot(2);
    EXPECT_EQ(r.kind, Kind::ellipse);
    EXPECT_EQ(r.p1, (Point{1000, 1000}));
    EXPECT_EQ(r.p2, (Point{1000, 1000}));
    EXPECT_EQ(r.p3.x, before);
}

} // namespace
} // namespace mirtane
