// Snap Percentage, Midpoint, Perpendicular and Tangent: a point worked out on one object.

#include "click_desk.h"

#include "slanted.h"

namespace mirtane {
namespace {

using fake::ClickDesk;
using fake::expectPoint;
using fake::Slanted;

EntityRecord withAngles(EntityRecord r, double a1, double a2)
{
    r.a1 = a1;
    r.a2 = a2;
    return r;
}

TEST(SnapPercentage, CountsFromTheEndNearerToThePointer)
{
    struct Row {
        const char* what;
        EntityRecord object;
        float share;
        Point mouse, snapped;
    };
    const EntityRecord line = fake::line({100, 100}, {200, 150});
    const EntityRecord circle = fake::circle({300, 300}, 50);
    const EntityRecord arc = fake::arc({300, 300}, 50, 0, 3.1415927);
    // From half past ten through nine o'clock to six.
    const EntityRecord threeEighths = fake::arc({300, 300}, 50, 2.3561945, 4.712389);
    const EntityRecord through0 = fake::arc({300, 300}, 50, 4.712389, 1.5707963);
    const Row rows[] = {
        {"near the start of a line", line, 0.25f, {110, 105}, {125, 112.5f}},
        {"near its end", line, 0.25f, {190, 145}, {175, 137.5f}},
        {"whole length", line, 1, {110, 105}, {200, 150}},
        {"a tenth", line, 0.1f, {110, 105}, {110, 105}},
        {"in the very middle it counts from the end", line, 0.25f, {150, 125}, {175, 137.5f}},
        {"near the start of an arc", arc, 0.5f, {348, 290}, {300, 250}},
        {"a quarter of it", arc, 0.25f, {348, 290}, {335.3553f, 264.6447f}},
        {"a quarter from its end", arc, 0.25f, {252, 290}, {264.6447f, 264.6447f}},
        {"over its middle it counts from the end", arc, 0.25f, {300, 248}, {264.6447f, 264.6447f}},
        {"an arc of three eighths", threeEighths, 1, {262, 262}, {300, 350}},
        {"through angle 0, from its start", through0, 0.5f, {310, 348}, {350, 300}},
        {"through angle 0, from its end", through0, 0.75f, {310, 252}, {335.3553f, 335.3553f}},
        {"circle from the top, to the left", circle, 0.25f, {310, 252}, {250, 300}},
        {"circle from the bottom, to the right", circle, 0.25f, {310, 348}, {350, 300}},
        {"as far from both: from the bottom", circle, 0.25f, {352, 300}, {350, 300}},
        {"circle, three quarters from the top", circle, 0.75f, {310, 252}, {350, 300}},
        {"circle, all round", circle, 1, {310, 348}, {300, 350}},
    };
    for (const Row& row : rows) {
        ClickDesk desk;
        desk.add(row.object);
        desk.s.snapPercentage = row.share;
        expectPoint(desk.snapped("sf", row.mouse), row.snapped, row.what, 0.01f);
        EXPECT_TRUE(desk.s.pointWasSnapped) << row.what;
    }
}

TEST(SnapPercentage, KeepsTheClickWhereNothingIsHit)
{
    ClickDesk desk;
    desk.line({100, 100}, {200, 100});
    desk.arc({300, 300}, 50, 0, 1.5707963);
    desk.ellipse({700, 300}, {600, 300}, 1);
    desk.point({500, 500});
    EXPECT_EQ(desk.snapped("sf", {150, 130}), (Point{150, 130}));
    EXPECT_EQ(desk.snapped("sf", {250, 300}), (Point{250, 300})) << "off the arc";
    EXPECT_EQ(desk.snapped("sf", {700, 300}), (Point{700, 300})) << "an ellipse";
    EXPECT_EQ(desk.snapped("sf", {500, 500}), (Point{500, 500})) << "a point";
    EXPECT_FALSE(desk.s.pointWasSnapped);
}

TEST(SnapPercentage, IgnoresOrthoAndWritesTheLaterClick)
{
    ClickDesk desk;
    desk.ortho(true);
    desk.line({100, 100}, {200, 100});
    desk.laterClick({0, 0}, {110, 105}, {0, 110});
    desk.shoot("sf");
    EXPECT_EQ(desk.s.pickLast, (Point{125, 100}));
}

TEST(SnapPercentage, ALineOfNoLengthGivesItsPoint)
{
    ClickDesk desk;
    desk.line({100, 100}, {100, 100});
    EXPECT_EQ(desk.snapped("sf", {110, 105}), (Point{100, 100}));
}

TEST(SnapMidpoint, GivesTheMiddleOfEachKind)
{
    struct Row {
        const char* what;
        EntityRecord object;
        Point mouse, snapped;
    };
    const Row rows[] = {
        {"a line", fake::line({100, 100}, {200, 150}), {110, 106}, {150, 125}},
        {"a circle's leftmost point", fake::circle({300, 300}, 50), {352, 300}, {250, 300}},
        {"whatever its angles hold", withAngles(fake::circle({300, 300}, 50), 1, 2), {352, 300}, {250, 300}},
        {"a quarter arc", fake::arc({300, 300}, 50, 0, 1.5707963), {352, 300}, {335.3553f, 264.6447f}},
        {"an arc through angle 0", fake::arc({300, 300}, 50, 4.712389, 1.5707963), {310, 348}, {350, 300}},
        {"clicked off its sweep",
         fake::arc({300, 300}, 50, 0, 1.5707963),
         {250, 305},
         {335.3553f, 264.6447f}},
    };
    for (const Row& row : rows) {
        ClickDesk desk;
        desk.add(row.object);
        expectPoint(desk.snapped("sm", row.mouse), row.snapped, row.what);
        EXPECT_TRUE(desk.s.pointWasSnapped) << row.what;
    }
}

TEST(SnapMidpoint, LooksAsFarAsTheViewIsWideAndKeepsTheClickBeyond)
{
    ClickDesk desk;
    desk.line({100, 1100}, {200, 1100});
    EXPECT_EQ(desk.snapped("sm", {150, 0}), (Point{150, 1100}));
    desk.s.pointWasSnapped = false;
    EXPECT_EQ(desk.snapped("sm", {150, -101}), (Point{150, -101}));
    EXPECT_FALSE(desk.s.pointWasSnapped);
}

TEST(SnapMidpoint, GoesByTheNearestObjectAndNotByTheNearestMiddle)
{
    ClickDesk desk;
    desk.line({100, 100}, {900, 100});
    desk.line({110, 110}, {130, 110});
    EXPECT_EQ(desk.snapped("sm", {120, 104}), (Point{500, 100}));
}

TEST(SnapMidpoint, ALineIsMetBetweenItsEndsOnly)
{
    ClickDesk desk;
    desk.line({100, 100}, {200, 100});
    EXPECT_EQ(desk.snapped("sm", {210, 100}), (Point{210, 100}));
}

TEST(SnapMidpoint, EllipsesAndPointsHaveNone)
{
    ClickDesk desk;
    desk.ellipse({700, 300}, {600, 300}, 1);
    desk.point({500, 500});
    EXPECT_EQ(desk.snapped("sm", {505, 500}), (Point{505, 500}));
}

TEST(SnapMidpoint, TheMiddlesOfABoundaryAreFoundWhileAHatchIsPlaced)
{
    struct Row {
        const char* function;
        int legs;
        Point snapped;
    };
    const Row rows[] = {
        {"Place Hatch", 2, {400, 200}},
        {"Place Hatch", 1, {200, 100}},
        {"Measure Area", 2, {150, 600}},
        {"Place Hatch", 0, {150, 600}},
    };
    for (const Row& row : rows) {
        ClickDesk desk(row.function);
        desk.line({100, 600}, {200, 600});
        desk.s.boundary[0] = {{100, 100}, {300, 100}};
        desk.s.boundary[1] = {{300, 100}, {500, 300}};
        desk.s.boundaryCount = row.legs;
        desk.firstClick({390, 210});
        desk.s.mousePos = {150, 300};
        desk.s.mousePos.x = row.function == std::string_view("Place Hatch") && row.legs == 2 ? 395 : 150;
        desk.shoot("sm");
        EXPECT_EQ(desk.s.pickFirst, row.snapped) << row.function << ' ' << row.legs;
    }
}

TEST(SnapPerpendicular, DropsFromTheFirstClick)
{
    struct Row {
        const char* what;
        EntityRecord object;
        Point first, mouse, snapped;
    };
    const EntityRecord flat = fake::line({100, 100}, {200, 100});
    const EntityRecord circle = fake::circle({300, 300}, 50);
    const EntityRecord arc = fake::arc({300, 300}, 50, 0, 1);
    const Row rows[] = {
        {"onto a line", flat, {170, 300}, {110, 105}, {170, 100}},
        {"beyond its end", flat, {400, 300}, {190, 105}, {400, 100}},
        {"from a point of the line", flat, {170, 100}, {110, 105}, {170, 100}},
        {"near side of a circle", circle, {100, 300}, {252, 310}, {250, 300}},
        {"far side of a circle", circle, {100, 300}, {352, 310}, {350, 300}},
        {"from within", circle, {310, 300}, {352, 310}, {350, 300}},
        {"off the sweep of an arc", arc, {100, 300}, {252, 310}, {250, 300}},
        {"both sides as near: where the pointer meets it", circle, {100, 300}, {300, 346}, {300, 350}},
        {"from its centre, along the leg", circle, {300, 300}, {300, 352}, {300, 350}},
    };
    for (const Row& row : rows) {
        ClickDesk desk;
        desk.add(row.object);
        expectPoint(desk.snappedSecond("sn", row.first, row.mouse), row.snapped, row.what);
        EXPECT_FALSE(desk.s.pointWasSnapped) << row.what;
        EXPECT_EQ(desk.s.pickFirst, row.first) << row.what;
    }
}

TEST(SnapPerpendicular, FromTheCentreGoesAlongTheConfinedLeg)
{
    ClickDesk desk;
    desk.ortho(true);
    desk.circle({300, 300}, 50);
    desk.laterClick({300, 300}, {346, 305}, {346.27f, 300});
    desk.shoot("sn");
    EXPECT_EQ(desk.s.pickLast, (Point{350, 300}));
}

TEST(SnapPerpendicular, ElsewhereItIsDisarmedAndKeepsTheClick)
{
    struct Row {
        const char* function;
        int step;
    };
    for (const Row& row : {Row{"Line", 1}, Row{"Line", 3}, Row{"Polygon", 2}, Row{"Measure Distance", 2}}) {
        ClickDesk desk(row.function);
        desk.line({100, 100}, {200, 100});
        desk.laterClick({170, 300}, {110, 105}, {110, 105}, static_cast<std::int16_t>(row.step)); // 1 to 3
        desk.shoot("sn");
        EXPECT_EQ(desk.s.pickLast, (Point{110, 105})) << row.function;
        EXPECT_EQ(desk.s.pickFirst, (Point{170, 300})) << row.function;
        EXPECT_EQ(desk.armed(), "") << row.function;
    }
}

TEST(SnapPerpendicular, KeepsTheClickWhereNothingIsHit)
{
    ClickDesk desk;
    desk.line({100, 100}, {200, 100});
    desk.point({110, 130});
    EXPECT_EQ(desk.snappedSecond("sn", {170, 300}, {110, 130}), (Point{110, 130}));
}

TEST(SnapTangent, TouchesTheCircleNearThePointer)
{
    struct Row {
        const char* what;
        Point first, mouse, snapped; // circle (300, 300) of radius 60
    };
    const Row rows[] = {
        {"upper point from the right", {400, 300}, {335, 250}, {336, 252}},
        {"lower point from the right", {400, 300}, {335, 350}, {336, 348}},
        {"upper point from the left", {200, 300}, {265, 250}, {264, 252}},
        {"right point from below", {300, 400}, {350, 335}, {348, 336}},
        {"left point from below", {300, 400}, {250, 335}, {252, 336}},
        {"from a point of the circle", {360, 300}, {355, 305}, {360, 300}},
        {"from within: out on the ray", {330, 300}, {358, 300}, {375, 300}},
        {"from the centre: the centre", {300, 300}, {358, 300}, {300, 300}},
    };
    for (const bool asArc : {false, true}) {
        for (const Row& row : rows) {
            ClickDesk desk;
            if (asArc)
                desk.arc({300, 300}, 60, 3, 3.2);
            else
                desk.circle({300, 300}, 60);
            expectPoint(desk.snappedSecond("st", row.first, row.mouse), row.snapped, row.what, 0.002f);
            EXPECT_FALSE(desk.s.pointWasSnapped) << row.what;
            EXPECT_EQ(desk.armed(), "") << row.what;
        }
    }
}

TEST(SnapTangent, PassesOverLinesAndOtherFunctions)
{
    ClickDesk desk;
    desk.circle({300, 300}, 60);
    desk.line({340, 200}, {340, 400});
    expectPoint(desk.snappedSecond("st", {400, 300}, {338, 250}), {336, 252}, "the line is nearer", 0.002f);
    EXPECT_EQ(desk.snappedSecond("st", {400, 300}, {338, 200}), (Point{338, 200})) << "no circle near";
    desk.s.curFunc = "Measure Distance";
    EXPECT_EQ(desk.snappedSecond("st", {400, 300}, {338, 250}), (Point{338, 250}));
    EXPECT_EQ(desk.armed(), "");
}

// Circles about one centre are so up to rounding once they were drawn through points, or turned.
TEST(SnapPerpendicular, FromACentreThatIsOffByRoundingGoesAlongTheLeg)
{
    Slanted dice(61);
    ClickDesk desk;
    for (int i = 0; i < 2000; ++i) {
        const double reach = dice.anySize(1000, 300000);
        const Point centre = dice.pointWithin({0, 0}, reach);
        Point first = centre;
        for (int step = dice.below(3); step > 0; --step)
            first.x = std::nextafter(first.x, dice.chance() ? 1e9F : -1e9F);
        for (int step = dice.below(3); step > 0; --step)
            first.y = std::nextafter(first.y, dice.chance() ? 1e9F : -1e9F);
        const auto radius = static_cast<float>(dice.between(reach / 50, reach / 5)); // as stored
        const double turn = dice.between(0, 6.28);
        const double away = radius + dice.between(-15, 15);
        const Point mouse{static_cast<float>(first.x + away * std::cos(turn)), // as stored
                          static_cast<float>(first.y + away * std::sin(turn))};
        desk.s.store.entCount = 1;
        desk.circle(centre, radius);
        const Point landed = desk.snappedSecond("sn", first, mouse);
        EXPECT_NEAR(distance(landed, mouse), std::abs(radius - away), reach * 1e-5) << i;
    }
}

} // namespace
} // namespace mirtane
