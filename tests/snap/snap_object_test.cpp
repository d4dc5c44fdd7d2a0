#include "click_desk.h"
#include "slanted.h"

namespace mirtane {
namespace {

using fake::ClickDesk;
using fake::expectPoint;

TEST(SnapObject, GivesTheNearestPointOfEachKind)
{
    struct Row {
        const char* what;
        EntityRecord object;
        Point mouse, snapped;
    };
    const EntityRecord flat = fake::line({100, 100}, {200, 100});
    const EntityRecord steep = fake::line({100, 100}, {200, 200});
    const EntityRecord circle = fake::circle({300, 300}, 50);
    const EntityRecord arc = fake::arc({300, 300}, 50, 0, 1.5707963);
    const EntityRecord ellipse = fake::ellipse({500, 300}, {400, 300}, 0.5f);
    const Row rows[] = {
        {"over a line", flat, {150, 90}, {150, 100}},
        {"under a line", flat, {170, 120}, {170, 100}},
        {"over its very end", flat, {200, 110}, {200, 100}},
        {"over its very start", flat, {100, 110}, {100, 100}},
        {"beside its end", flat, {200.5f, 110}, {200.5f, 110}},
        {"beside a slope", steep, {160, 140}, {150, 150}},
        {"right of a circle", circle, {360, 300}, {350, 300}},
        {"over it", circle, {300, 240}, {300, 250}},
        {"left of it", circle, {240, 300}, {250, 300}},
        {"under it", circle, {300, 360}, {300, 350}},
        {"upper right, within", circle, {324, 268}, {330, 260}},
        {"upper left", circle, {264, 252}, {270, 260}},
        {"lower left", circle, {264, 348}, {270, 340}},
        {"lower right", circle, {336, 348}, {330, 340}},
        {"on the arc", arc, {324, 268}, {330, 260}},
        {"off the arc, on its circle", arc, {264, 348}, {270, 340}},
        {"far within a circle", circle, {310, 300}, {310, 300}},
        {"axis end of an ellipse", ellipse, {510, 300}, {500, 300}},
        {"a quarter on", ellipse, {400, 240}, {400, 250}},
        {"opposite", ellipse, {295, 300}, {300, 300}},
        {"under it", ellipse, {400, 355}, {400, 350}},
        {"a point", fake::point({10, 20}), {15, 25}, {10, 20}},
        {"no text", fake::record(Kind::text, {10, 20}), {15, 25}, {15, 25}},
        {"no dimension", fake::record(Kind::linearDimension, {}, {}, {}, {}, {10, 20}), {15, 25}, {15, 25}},
        {"no leader", fake::record(Kind::leader, {}, {10, 20}), {15, 25}, {15, 25}},
        {"no name of a layer", fake::record(layerNameKind, {10, 20}), {15, 25}, {15, 25}},
    };
    for (const Row& row : rows) {
        ClickDesk desk;
        desk.add(row.object);
        expectPoint(desk.snapped("so", row.mouse), row.snapped, row.what);
    }
}

TEST(SnapObject, AnEllipseIsMetAtOneOfItsSamplesOnly)
{
    ClickDesk desk;
    desk.ellipse({1000, 500}, {500, 500}, 1); // 17.45 from sample to sample
    const double third = 3 * 6.2831853 / 180;
    const Point sample{static_cast<float>(500 + 500 * std::cos(third)), // coordinates are 32-bit
                       static_cast<float>(500 - 500 * std::sin(third))};
    expectPoint(desk.snapped("so", {sample.x - 3, sample.y + 5}), sample, "the third sample");
}

TEST(SnapObject, ALineOfNoLengthIsMetAtItsPoint)
{
    ClickDesk desk;
    desk.line({100, 100}, {100, 100});
    EXPECT_EQ(desk.snapped("so", {110, 95}), (Point{100, 100}));
}

TEST(SnapObject, SeenFromItsCentreACircleIsItsCentre)
{
    ClickDesk desk;
    desk.circle({300, 300}, 50);
    desk.firstClick({300, 300});
    desk.shoot("so");
    EXPECT_EQ(desk.s.pickFirst, (Point{300, 300}));
    EXPECT_EQ(desk.s.snapBestIndex, 1);
}

TEST(SnapObject, LooksNoFurtherThanAQuarterInchOnTheScreen)
{
    struct Row {
        const char* what;
        float height; // of the click over the line
        Scale scale;
        bool found;
    };
    const Row rows[] = {
        {"just within", 23.9f, {0, 0, 1200, 800}, true}, {"at the very limit", 24, {0, 0, 1200, 800}, false},
        {"beyond", 24.1f, {0, 0, 1200, 800}, false},     {"zoomed out", 47, {0, 0, 2400, 1600}, true},
        {"zoomed in", 13, {0, 0, 600, 400}, false},
    };
    for (const Row& row : rows) {
        ClickDesk desk;
        desk.pic1.setScale(row.scale);
        desk.line({100, 200}, {300, 200});
        const Point mouse{200, 200 - row.height};
        EXPECT_EQ(desk.snapped("so", mouse), row.found ? (Point{200, 200}) : mouse) << row.what;
        EXPECT_EQ(desk.s.pointWasSnapped, row.found) << row.what;
        EXPECT_EQ(desk.s.snapBestIndex, row.found ? 1 : -1) << row.what;
    }
}

TEST(SnapObject, OfObjectsEquallyNearTheLastIsTaken)
{
    ClickDesk desk;
    desk.line({100, 90}, {200, 90});
    desk.line({100, 110}, {200, 110});
    EXPECT_EQ(desk.snapped("so", {150, 100}), (Point{150, 110}));
    EXPECT_EQ(desk.s.snapBestIndex, 2);
}

TEST(SnapObject, TwoLinesThatEndAtOnePointGiveTheLaterWhereSnapPointGivesTheFirst)
{
    ClickDesk desk;
    desk.line({100, 100}, {200, 170});
    desk.line({200, 170}, {350, 90});
    EXPECT_EQ(desk.snapped("so", {200, 170}), (Point{200, 170}));
    EXPECT_EQ(desk.s.snapBestIndex, 2);
}

TEST(SnapObject, TheNearestWinsWhateverTheOrder)
{
    ClickDesk desk;
    desk.line({100, 95}, {200, 95});
    desk.line({100, 98}, {200, 98});
    desk.line({100, 110}, {200, 110});
    EXPECT_EQ(desk.snapped("so", {150, 100}), (Point{150, 98}));
}

TEST(SnapObject, OnlyWhatIsShownIsMet)
{
    for (const Stat stat : {Stat::off, Stat::out, Stat::none}) {
        ClickDesk desk;
        desk.line({100, 100}, {200, 100}, stat);
        EXPECT_EQ(desk.snapped("so", {150, 95}), (Point{150, 95})) << nameOf(stat);
    }
    ClickDesk desk;
    desk.line({100, 100}, {200, 100}, Stat::sel);
    EXPECT_EQ(desk.snapped("so", {150, 95}), (Point{150, 100}));
}

// The leg runs from (100, 100) to the right; the pointer is a little off it, near the object.
TEST(SnapObject, FunctionsThatKeepTheLegMeetTheObjectOnIt)
{
    struct Row {
        const char* function;
        int step;
        bool ortho;
        bool followsLeg;
    };
    const Row rows[] = {
        {"Line", 2, true, true},
        {"Line", 2, false, false},
        {"Polygon", 2, true, true},
        {"Measure Area", 2, true, true},
        {"Ortho Angle Match", 2, true, true},
        {"Place Hatch", 2, true, true},
        {"Stretch", 4, true, true},
        {"Stretch", 3, true, false},
        {"3pt. Arc", 2, true, false},
        {"3pt. Circle", 2, true, false},
        {"Curve", 2, true, false},
        {"Point", 2, true, false},
        {"Ortho Dimension", 2, true, false},
        {"Radial Dimension", 2, true, false},
        {"Angular Dimension", 2, true, false},
        {"Leader", 2, true, false},
        {"Place Text", 2, true, false},
        {"Break", 2, true, false},
        {"Create Associate", 2, true, false},
        {"Place Associate", 2, true, false},
    };
    for (const Row& row : rows) {
        ClickDesk desk(row.function);
        desk.ortho(row.ortho);
        desk.line({200, 50}, {300, 150}); // a slope that meets the leg at (250, 100)
        desk.laterClick({100, 100}, {258, 98}, {258, 100}, static_cast<std::int16_t>(row.step)); // 2 to 4
        desk.shoot("so");
        expectPoint(desk.s.pickLast, row.followsLeg ? Point{250, 100} : Point{253, 103}, row.function);
        EXPECT_TRUE(desk.s.pointWasSnapped) << row.function;
    }
}

TEST(SnapObject, TheLegMeetsEachKind)
{
    struct Row {
        const char* what;
        EntityRecord object;
        Point first, mouse, confined, snapped;
    };
    const EntityRecord circle = fake::circle({300, 300}, 50);
    const EntityRecord upperArc = fake::arc({300, 300}, 50, 0, 3.1415927);
    const EntityRecord line = fake::line({400, 100}, {400, 200});
    const EntityRecord ellipse = fake::ellipse({500, 300}, {400, 300}, 0.5f);
    const Row rows[] = {
        {"near side of a circle", circle, {100, 330}, {255, 325}, {255, 330}, {260, 330}},
        {"far side of a circle", circle, {100, 330}, {345, 325}, {345, 330}, {340, 330}},
        {"from within", circle, {300, 340}, {335, 338}, {335, 340}, {330, 340}},
        {"an arc counts whole", upperArc, {100, 330}, {345, 325}, {345, 330}, {340, 330}},
        {"from its centre", circle, {300, 300}, {345, 310}, {346, 300}, {350, 300}},
        {"from its centre, upward", circle, {300, 300}, {305, 255}, {300, 255}, {300, 250}},
        {"from the centre of a circle of no size",
         fake::record(Kind::circle, {300, 300}),
         {300, 300},
         {310, 300},
         {310, 300},
         {300, 300}},
        {"the leg misses it", circle, {100, 360}, {300, 355}, {300, 360}, {300, 360}},
        {"the leg touches it", circle, {100, 350}, {305, 352}, {305, 350}, {305, 350}},
        {"both as near", circle, {100, 330}, {300, 345}, {300, 330}, {300, 330}},
        {"a line", line, {100, 150}, {395, 155}, {395, 150}, {400, 150}},
        {"a line beyond its end", line, {100, 202}, {395, 199}, {395, 202}, {400, 202}},
        {"behind the leg's start", line, {405, 150}, {410, 150}, {410, 150}, {400, 150}},
        {"a parallel line", line, {390, 20}, {395, 150}, {390, 150}, {390, 150}},
        {"a leg of no length", line, {390, 150}, {395, 150}, {390, 150}, {390, 150}},
        {"a leg of no length, circle", circle, {300, 340}, {300, 345}, {300, 340}, {300, 340}},
        {"an ellipse is met where the pointer is", ellipse, {100, 305}, {505, 300}, {505, 305}, {500, 300}},
        {"a point", fake::point({10, 20}), {100, 25}, {15, 26}, {15, 25}, {10, 20}},
    };
    for (const Row& row : rows) {
        ClickDesk desk;
        desk.ortho(true);
        desk.add(row.object);
        desk.laterClick(row.first, row.mouse, row.confined);
        desk.shoot("so");
        expectPoint(desk.s.pickLast, row.snapped, row.what);
    }
}

TEST(SnapObject, ALegAlongALineDrawnParallelEndsWhereOrthoPutIt)
{
    fake::Slanted dice(1);
    ClickDesk desk;
    desk.ortho(true);
    desk.line({}, {});
    for (int i = 0; i < 3000; ++i) {
        const Point place = dice.pointWithin({0, 0}, dice.chance() ? 300 : 30000);
        const fake::Pair pair =
            fake::drawnParallel(dice, place, dice.anySize(50, 1000), dice.between(0, 1.5707963));
        desk.put(1, fake::line(pair.other.from, pair.other.to));
        desk.s.store.setStat(1, Stat::on);
        desk.laterClick(pair.one.from, pair.other.at(dice.between(0.1, 0.9), 3), pair.one.to);
        desk.shoot("so");
        ASSERT_EQ(desk.s.pickLast, pair.one.to) << pair.how << " " << i;
    }
}

TEST(SnapObject, AFirstClickTakesTheObjectsPointWithOrthoOn)
{
    ClickDesk desk;
    desk.ortho(true);
    desk.line({200, 50}, {300, 150});
    expectPoint(desk.snapped("so", {258, 98}), {253, 103}, "no leg yet");
}

} // namespace
} // namespace mirtane
