// Cases of the edits that turn, mirror and scale, which the table by kind does not show.

#include "edit_desk.h"

#include "edit/concentric.h"
#include "edit/mirror.h"
#include "edit/rotate.h"
#include "edit/scale.h"
#include "geometry/arc.h"
#include "tables/kinds.h"

namespace mirtane {
namespace {

using fake::EditDesk;
using fake::expectNear;
using fake::expectRecord;
using fake::sample;

EntityRecord mirror(const EntityRecord& r, Point from, Point to)
{
    EditDesk desk;
    desk.add(r);
    desk.begin("Mirror Copy");
    desk.click(from.x, from.y);
    desk.click(to.x, to.y);
    return desk.slot(2);
}

EntityRecord rotate(const EntityRecord& r, Point centre, double degrees)
{
    EditDesk desk;
    desk.add(r);
    desk.begin("Rotate");
    desk.click(centre.x, centre.y);
    desk.s.editDegrees = degrees;
    desk.run(3);
    return desk.slot(2);
}

EntityRecord scale(const EntityRecord& r, float x, float y)
{
    EditDesk desk;
    desk.add(r);
    desk.begin("Scale");
    desk.click(0, 0);
    desk.s.editDX = x;
    desk.s.editDY = y;
    desk.run(3);
    return desk.slot(2);
}

EntityRecord line(Point a, Point b)
{
    return fake::green(fake::line(a, b));
}

EntityRecord arc(Point centre, float radius, double a1, double a2)
{
    return fake::green(fake::arc(centre, radius, a1, a2));
}

TEST(Mirror, LeavesPointsOnTheLineWhereTheyAre)
{
    const Point from = {30, 10};
    const Point to = {330, 110};
    const EntityRecord image = mirror(line(from, {180, 60}), from, to);
    EXPECT_EQ(image.p1, from);
    EXPECT_EQ(image.p2, (Point{180, 60}));
}

TEST(Mirror, AtASlantExchangesTheAxes)
{
    const EntityRecord image =
        mirror(line({10, 20}, {40, 60}), {0, 0}, {7, 7}); // y down: x and y change places
    expectNear(image.p1, {20, 10}, 1e-4, "p1");
    expectNear(image.p2, {60, 40}, 1e-4, "p2");
}

TEST(Mirror, ByALineOfNoLengthMakesNothingAndDropsTheSelection)
{
    for (const Kind kind : everyKind) {
        EditDesk desk;
        desk.add(sample(kind));
        const std::int32_t group = desk.s.log.undoGroupNext;
        desk.begin("Mirror Copy");
        desk.click(5, 5);
        desk.s.pickLast = {5, 5}; // as a construction line may lay it: a click there would be the cancel
        desk.ops();
        desk.run(2);
        EXPECT_EQ(desk.s.store.entCount, 2) << numberOf(kind);
        EXPECT_EQ(desk.stat(1), Stat::on) << numberOf(kind);
        EXPECT_EQ(desk.s.log.undoGroupNext, group) << numberOf(kind);
        EXPECT_EQ(desk.s.curFunc, "Object Select") << numberOf(kind);
        EXPECT_EQ(desk.s.stepNo, 0) << numberOf(kind);
        EXPECT_EQ(desk.s.editPending, 0) << numberOf(kind);
        EXPECT_EQ(desk.s.promptText, "(Click near object:)") << numberOf(kind);
        EXPECT_FALSE(fake::marks(desk.ops()).empty()) << numberOf(kind);
    }
}

TEST(Mirror, AtALevelLineTurnsALevelTextUpsideDownWhateverItsJustification)
{
    struct Row {
        float justification;
        Point entered;
    };
    const Row rows[] = {{0, {80, 350}}, {1, {50, 350}}, {2, {65, 350}}};
    for (const Row& row : rows) {
        EntityRecord r = sample(Kind::text);
        r.p2.y = row.justification;
        const EntityRecord image = mirror(r, {0, 200}, {500, 200});
        expectNear(image.p4, {80, 350}, 1e-3, "start");
        expectNear(image.p1, row.entered, 1e-3, "as entered");
        EXPECT_NEAR(image.a1, 180, 1e-3);
        EXPECT_EQ(image.p2, r.p2);
    }
}

TEST(Mirror, AtAnUprightLineALevelTextStaysExactlyLevel)
{
    for (const Kind kind : {Kind::text, Kind::leader}) {
        EntityRecord r = sample(kind);
        r.*kindRow(kind)->rotation = 0;
        const EntityRecord image = mirror(r, {1000, 0}, {1000, 500});
        EXPECT_EQ(image.*kindRow(kind)->rotation, 0) << numberOf(kind);
    }
}

TEST(Mirror, OfAnArcThroughAngleZeroRunsCounterClockwiseThroughTheImageOfItsMiddle)
{
    const EntityRecord old = arc({50, 60}, 20, 5.5, 1.25);
    const EntityRecord image = mirror(old, {100, -80}, {130, 300});
    const auto at = [&](double angle) { return polarPoint(image.p1, image.rad, angle); };
    expectNear(at(image.a1), image.p2, 1e-3, "start");
    expectNear(at(image.a2), image.p3, 1e-3, "end");
    expectNear(at(middleAngle(image.a1, image.a2)), image.p4, 1e-3, "middle");
    EXPECT_NEAR(sweep(image.a1, image.a2), sweep(old.a1, old.a2), 1e-5);
}

TEST(Mirror, TwiceIsTheFirst)
{
    for (const Kind kind : everyKind) {
        const EntityRecord twice = mirror(mirror(sample(kind), {-40, 10}, {90, 75}), {-40, 10}, {90, 75});
        expectRecord(twice, sample(kind), 1e-3, "twice");
    }
}

TEST(Rotate, KeepsAPointOnTheCentreExactly)
{
    EXPECT_EQ(rotate(line({33.3F, 7.1F}, {90, 90}), {33.3F, 7.1F}, 123).p1, (Point{33.3F, 7.1F}));
}

TEST(Rotate, ByAWholeTurnKeepsEachObjectInANewSlot)
{
    for (const Kind kind : everyKind) {
        for (const double whole : {360.0, -360.0})
            expectRecord(rotate(sample(kind), {10, 10}, whole), sample(kind), 2e-3, "whole turn");
    }
}

TEST(Rotate, ByNegativeDegreesRunsClockwise)
{
    const EntityRecord turned = rotate(arc({0, 0}, 50, 0, quarterTurn), {0, 0}, -90);
    expectNear(turned.p2, {0, 50}, 1e-3, "start");
    EXPECT_NEAR(turned.a1, threeQuartersTurn, 1e-5);
    EXPECT_NEAR(std::remainder(turned.a2, fullTurn), 0, 1e-5);
    EXPECT_GE(turned.a2, 0);
    EXPECT_LT(turned.a2, fullTurn);
}

TEST(Rotate, BringsAnglesWithinATurn)
{
    struct Row {
        double before, by, after;
    };
    const Row rows[] = {{300, 90, 30}, {10, -30, 340}, {-90, 30, 300}, {0, 359, 359}};
    for (const Row& row : rows) {
        EntityRecord r = sample(Kind::text);
        r.a1 = row.before;
        EXPECT_NEAR(rotate(r, {0, 0}, row.by).a1, row.after, 1e-3) << row.before;
    }
}

TEST(Rotate, RunsAtItsThirdStepAlone)
{
    EditDesk desk;
    desk.add(sample(Kind::line));
    desk.begin("Rotate");
    desk.click(0, 0);
    EXPECT_EQ(desk.s.promptText, "(Enter number of degrees:)");
    desk.s.editDegrees = 90;
    for (const std::int16_t step : {std::int16_t{0}, std::int16_t{1}, std::int16_t{2}, std::int16_t{4}})
        desk.run(step);
    EXPECT_EQ(desk.s.store.entCount, 2);
}

struct Ring {
    double degrees;
    std::int32_t count;
    std::vector<double> angles; // of the new objects, degrees
};

TEST(RadialCopy, SpreadsTheCopiesOverTheAngle)
{
    const Ring rings[] = {
        {360, 6, {60, 120, 180, 240, 300}},
        {-360, 6, {-60, -120, -180, -240, -300}},
        {90, 4, {30, 60, 90}},
        {90, 2, {90}},
        {360, 2, {180}},
        {-90, 4, {-30, -60, -90}},
    };
    for (const Ring& ring : rings) {
        EditDesk desk;
        desk.add(fake::green(fake::point({150, 20})));
        desk.begin("Radial Copy");
        desk.click(50, 20);
        desk.s.editDegrees = ring.degrees;
        desk.s.radialCount = ring.count;
        desk.run(3);
        ASSERT_EQ(desk.s.store.entCount, 2 + static_cast<std::int32_t>(ring.angles.size())) << ring.degrees;
        std::int32_t slot = 2;
        for (const double degrees : ring.angles) {
            const double a = degrees * 3.14159265358979 / 180;
            const Point expected = {static_cast<float>(50 + 100 * std::cos(a)), // coordinates are 32-bit
                                    static_cast<float>(20 - 100 * std::sin(a))};
            expectNear(desk.slot(slot++).p1, expected, 2e-3, std::to_string(degrees));
        }
    }
}

TEST(RadialCopy, OfNoCopiesMakesNone)
{
    for (const std::int32_t count : {-1, 0, 1}) {
        for (const double degrees : {0.0, 90.0, 360.0}) {
            EditDesk desk;
            desk.add(sample(Kind::line));
            desk.begin("Radial Copy");
            desk.click(50, 20);
            desk.s.editDegrees = degrees;
            desk.s.radialCount = count;
            desk.run(3);
            EXPECT_EQ(desk.s.store.entCount, 2) << degrees;
            EXPECT_EQ(desk.stat(1), Stat::on);
        }
    }
}

TEST(Scale, WithXAndYApart)
{
    EXPECT_FLOAT_EQ(scale(sample(Kind::circle), 2, 1).rad, 60);
    EXPECT_FLOAT_EQ(scale(sample(Kind::circle), 1, 5).rad, 30);
    EXPECT_FLOAT_EQ(scale(sample(Kind::ellipse), 1, 3).p3.x, 1.5F);
    EntityRecord upright = sample(Kind::text);
    upright.a1 = 90;
    EXPECT_NEAR(scale(upright, 5, 2).p2.x, 20, 1e-3); // along its baseline
    EXPECT_NEAR(scale(upright, 5, 2).a1, 90, 1e-2);
}

TEST(Scale, WithYOfZeroFlattens)
{
    const EntityRecord flat = scale(sample(Kind::line), 1, 0);
    EXPECT_EQ(flat.p1, (Point{10, 0}));
    EXPECT_EQ(flat.p2, (Point{40, 0}));
    EXPECT_EQ(scale(sample(Kind::circle), 1, 0).p1, (Point{100, 0}));
    EXPECT_FLOAT_EQ(scale(sample(Kind::circle), 1, 0).rad, 30);
    for (const auto& [x, y] : {std::pair{1.0F, 0.0F}, {0.0F, 1.0F}, {0.0F, 0.0F}, {-2.5F, 0.0F}})
        EXPECT_EQ(scale(sample(Kind::arc), x, y), sample(Kind::arc));     // no arc goes through a line
    EXPECT_EQ(scale(sample(Kind::arc), 1e35F, 1e37F), sample(Kind::arc)); // it would overflow
}

TEST(Scale, ByMinusOneBothWaysIsAHalfTurn)
{
    const EntityRecord text = scale(sample(Kind::text), -1, -1);
    EXPECT_EQ(text.p4, (Point{-50, -50}));
    EXPECT_NEAR(text.a1, 180, 1e-3);
    EXPECT_FLOAT_EQ(text.p2.x, 10);
    const EntityRecord round = scale(sample(Kind::arc), -1, -1);
    EXPECT_NEAR(round.a1, halfTurn, 1e-5);
    EXPECT_NEAR(round.a2, threeQuartersTurn, 1e-5);
}

TEST(Scale, OfATextThatItMirrorsPutsThePointAsEnteredByTheJustification)
{
    EntityRecord r = sample(Kind::text); // from (50, 50) to (80, 50)
    r.p2.y = 1;
    r.p1 = {80, 50};
    const EntityRecord right = scale(r, -1, 1);
    EXPECT_EQ(right.p4, (Point{-80, 50}));
    EXPECT_EQ(right.p1, (Point{-50, 50}));
}

TEST(Scale, MeasuresAnEmptyTextOnTwelveQuestionMarks)
{
    EntityRecord r = sample(Kind::leader);
    r.t1.clear();
    const EntityRecord scaled = scale(r, -1, 1); // 12 x 0.6 x 10 = 72
    EXPECT_EQ(scaled.p5, (Point{-97, 10}));
    EXPECT_EQ(scaled.t1, "");
}

// The centre of the circle through three points, by the crossing of two bisectors.
Point centreThrough(Point a, Point b, Point c)
{
    const double bx = b.x - a.x;
    const double by = b.y - a.y;
    const double cx = c.x - a.x;
    const double cy = c.y - a.y;
    const double d = 2 * (bx * cy - by * cx);
    return {static_cast<float>(a.x + (cy * (bx * bx + by * by) - by * (cx * cx + cy * cy)) / d), // 32-bit
            static_cast<float>(a.y + (bx * (cx * cx + cy * cy) - cx * (bx * bx + by * by)) / d)};
}

TEST(Scale, OfAnArcGoesThroughTheThreeImagesCounterClockwise)
{
    const float factors[][2] = {{2, 1}, {1, 1.5F}, {-1.5F, 1}, {1, -2}, {-1, -1.25F}};
    for (const auto& [x, y] : factors) {
        const EntityRecord old = arc({30, 40}, 50, 0.5, 2.5);
        const auto image = [x = x, y = y](Point p) { return Point{p.x * x, p.y * y}; };
        const EntityRecord scaled = scale(old, x, y);
        expectNear(scaled.p1, centreThrough(image(old.p2), image(old.p4), image(old.p3)), 0.05, "centre");
        EXPECT_NEAR(scaled.rad, distance(scaled.p1, image(old.p4)), 0.05);
        const bool swapped = x * y < 0;
        expectNear(scaled.p2, image(swapped ? old.p3 : old.p2), 0.05, "start");
        expectNear(scaled.p3, image(swapped ? old.p2 : old.p3), 0.05, "end");
        const double middle = directionAngle(scaled.p1, image(old.p4), 0);
        EXPECT_TRUE(onSweep(middle, scaled.a1, scaled.a2)) << x << " " << y;
    }
}

TEST(Scale, OfAnArcMissesTheEndWhereTheAngleAtTheStartIsObtuse)
{
    const EntityRecord old = arc({0, 0}, 100, 10 * radiansPerDegree, 250 * radiansPerDegree);
    const auto image = [](Point p) { return Point{p.x * 0.05F, p.y}; };
    const EntityRecord scaled = scale(old, 0.05F, 1);
    EXPECT_NEAR(distance(scaled.p1, image(old.p2)), scaled.rad, 0.05);
    EXPECT_NEAR(distance(scaled.p1, image(old.p4)), scaled.rad, 0.05);
    EXPECT_GT(std::abs(distance(scaled.p1, image(old.p3)) - scaled.rad), 1);
}

TEST(ConcentricCopy, LetsTheRadiusGoBelowZero)
{
    EditDesk desk;
    desk.add(sample(Kind::circle));
    desk.add(sample(Kind::arc));
    desk.s.offsetDistance = -60;
    editConcentric(desk.s, desk.pic1);
    EXPECT_FLOAT_EQ(desk.slot(3).rad, -30);
    EXPECT_FLOAT_EQ(desk.slot(4).rad, -10);
    EXPECT_EQ(desk.slot(4).p2, (Point{190, 100}));
}

TEST(ConcentricCopy, OfAnArcThroughAngleZeroHasItsMiddleThere)
{
    EditDesk desk;
    desk.add(arc({0, 0}, 40, threeQuartersTurn, quarterTurn));
    desk.s.offsetDistance = 10;
    editConcentric(desk.s, desk.pic1);
    EXPECT_EQ(desk.slot(2).p2, (Point{0, 50})); // exact on the axes
    EXPECT_EQ(desk.slot(2).p3, (Point{0, -50}));
    expectNear(desk.slot(2).p4, {50, 0}, 1e-4, "middle");
}

} // namespace
} // namespace mirtane
