#include "commands/curve.h"

#include "round_desk.h"

#include <algorithm>
#include <random>

namespace mirtane {
namespace {

using namespace fake;

struct Way {
    double x, y;
};

// The way of a traveller at an end of an arc, a unit. Arcs run counter-clockwise on the screen.
Way wayAt(const EntityRecord& r, Point end, bool startsThere, bool leaving)
{
    const double vx = static_cast<double>(end.x) - r.p1.x; // widened, so that the check rounds nothing
    const double vy = static_cast<double>(end.y) - r.p1.y;
    const double length = std::hypot(vx, vy);
    const double sense = startsThere == leaving ? 1 : -1;
    return {sense * vy / length, -sense * vx / length};
}

bool startsAt(const EntityRecord& r, Point p)
{
    return away(r.p2, p) < away(r.p3, p);
}

double nearerEnd(const EntityRecord& r, Point p)
{
    return std::min(away(r.p2, p), away(r.p3, p));
}

// How far the way turns at the junction of two arcs, radians; 0 is smooth and half a turn a cusp.
double kink(const EntityRecord& before, const EntityRecord& after, Point junction)
{
    const Way in = wayAt(before, junction, startsAt(before, junction), false);
    const Way out = wayAt(after, junction, startsAt(after, junction), true);
    return std::abs(std::atan2(in.x * out.y - in.y * out.x, in.x * out.x + in.y * out.y));
}

void firstArc(Desk& desk)
{
    start(desk, "Command6"_c);
    desk.click(1000, 1000);
    desk.click(1282, 718);
    desk.click(1400, 1000);
}

TEST(Curve, OfTwoClicksStoresNothing)
{
    Desk desk;
    start(desk, "Command6"_c);
    EXPECT_EQ(desk.s.promptText, "(Enter first point on curve:)");
    desk.click(1000, 1000);
    EXPECT_EQ(desk.s.promptText, "(Enter next point on curve:)");
    desk.click(1300, 800);
    desk.cancel();
    EXPECT_EQ(desk.s.store.entCount, 1);
    EXPECT_EQ(desk.s.stepNo, 0);
}

TEST(Curve, MakesItsFirstArcOfThreePointsAndOneMoreOfEachFurther)
{
    Desk desk;
    firstArc(desk);
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.s.stepNo, 3);
    EXPECT_EQ(desk.s.promptText, "(Enter next point on curve:)");
    desk.click(1700, 1300);
    desk.click(2100, 1100);
    EXPECT_EQ(desk.s.store.entCount, 4);
    EXPECT_EQ(desk.s.stepNo, 5);
    EXPECT_EQ(desk.s.workRadius, 0);
    EXPECT_EQ(desk.s.promptText, "(Enter next point on curve:)");
    for (std::int32_t i = 1; i < 4; ++i) expectWholeArc(desk.slot(i), shortest(i));
    desk.cancel();
    EXPECT_EQ(desk.s.promptText, "(Enter first point on curve:)");
    EXPECT_EQ(desk.s.store.entCount, 4);
    for (std::int32_t i = 1; i < 4; ++i) EXPECT_EQ(desk.stat(i), Stat::on);
}

TEST(Curve, BeginsLikeAnArcThroughThreePoints)
{
    const Point clicks[][3] = {
        {{1000, 1000}, {1282, 718}, {1400, 1000}},
        {{1400, 1000}, {1282, 718}, {1000, 1000}},
        {{1000, 1000}, {1000, 1400}, {1500, 1200}},
        {{1000, 1000}, {600, 1000}, {800, 1300}},
        {{1000, 1000}, {2000, 1000}, {0, 2000}},
        {{100000, 100000}, {100400, 100000}, {100200, 99700}},
        {{-99000, 100000}, {-99400, 100100}, {-99100, 100300}},
    };
    for (const auto& row : clicks) {
        Desk desk;
        for (const ControlId function : {"Command5"_c, "Command6"_c}) {
            start(desk, function);
            for (const Point p : row) clickAt(desk, p);
            desk.cancel();
        }
        const EntityRecord arc = desk.slot(1);
        const EntityRecord curve = desk.slot(2);
        expectWholeArc(curve);
        EXPECT_EQ(curve.p1, arc.p1) << row[1].x;
        EXPECT_EQ(curve.rad, arc.rad) << row[1].x;
        EXPECT_EQ(curve.a1, arc.a1) << row[1].x;
        EXPECT_EQ(curve.a2, arc.a2) << row[1].x;
    }
}

// A semicircle about (1400, 1000), and further points whose arcs are known.
TEST(Curve, GoesOnFromEitherEndOfAnArcToEitherSide)
{
    struct Row {
        const char* what;
        Point from, to, next, centre;
        float rad;
        double a1, a2;
    };
    constexpr double half = 3.1415927;
    constexpr double quarter = 1.5707963;
    constexpr double threeQuarters = 4.712389;
    const Row rows[] = {
        {"from the right end downwards, turning on",
         {1000, 1000},
         {1800, 1000},
         {1400, 1400},
         {1400, 1000},
         400,
         threeQuarters,
         0},
        {"from the right end downwards, swinging out",
         {1000, 1000},
         {1800, 1000},
         {2000, 1200},
         {2000, 1000},
         200,
         half,
         threeQuarters},
        {"from the left end downwards, turning on",
         {1800, 1000},
         {1000, 1000},
         {1300, 1300},
         {1300, 1000},
         300,
         half,
         threeQuarters},
        {"from the left end downwards, swinging out",
         {1800, 1000},
         {1000, 1000},
         {900, 1100},
         {900, 1000},
         100,
         threeQuarters,
         0},
        {"more than half round", {1000, 1000}, {1800, 1000}, {2100, 700}, {2100, 1000}, 300, half, quarter},
    };
    for (const Row& row : rows) {
        for (const Point at : {Point{0, 0}, Point{-1400, -1000}, Point{100000, 100000}}) {
            const auto about = [&](Point p) { return Point{at.x + p.x, at.y + p.y}; };
            Desk desk;
            start(desk, "Command6"_c);
            clickAt(desk, about(row.from));
            clickAt(desk, about({1400, 600}));
            clickAt(desk, about(row.to));
            clickAt(desk, about(row.next));
            const EntityRecord r = desk.slot(2);
            expectWholeArc(r, row.what);
            const double slack = 4 * rounding(at, 4000);
            EXPECT_LT(away(r.p1, about(row.centre)), slack) << row.what;
            EXPECT_NEAR(r.rad, row.rad, slack) << row.what;
            EXPECT_LT(turnedBetween(r.a1, row.a1), 2 * slack / row.rad) << row.what;
            EXPECT_LT(turnedBetween(r.a2, row.a2), 2 * slack / row.rad) << row.what;
        }
    }
}

// Thousands of arcs, near and far from the origin, turning to both sides, with ortho on and off.
TEST(Curve, IsSmoothAtEachJunctionAndReachesEachPoint)
{
    std::mt19937 random(71);
    std::uniform_real_distribution<float> place(-400, 400);
    Desk desk;
    int checked = 0;
    int fromStart = 0;
    for (int round = 0; round < 600; ++round) {
        const Point at = round % 3 == 0 ? Point{100000, -100000} : Point{2000, 1500};
        start(desk, "Command6"_c, round % 2 == 0 ? OrthoToggle::on : OrthoToggle::off);
        Point junction = at;
        const auto next = [&] { return Point{junction.x + place(random), junction.y + place(random)}; };
        clickAt(desk, junction);
        clickAt(desk, next());
        junction = next();
        clickAt(desk, junction);
        // An obtuse first angle: the arc ends elsewhere than at the click, and nothing need fit to it.
        if (nearerEnd(lastSlot(desk), junction) > 1) {
            desk.cancel();
            continue;
        }
        for (int i = 0; i < 8; ++i) {
            const EntityRecord before = lastSlot(desk);
            const Point to = next();
            clickAt(desk, to);
            const EntityRecord r = lastSlot(desk);
            const std::string what = shortest(round) + "." + shortest(i);
            expectWholeArc(r, what);
            const double slack = 20 * rounding(r.p1, r.rad);
            EXPECT_LT(nearerEnd(r, junction), slack) << what;
            EXPECT_LT(nearerEnd(r, to), slack) << what;
            // Where ends lie near each other it can't be told which is which, nor the direction on a speck.
            const double least = 50 * slack;
            if (std::min({before.rad, r.rad}) < 100 * slack || away(before.p2, before.p3) < least ||
                away(r.p2, r.p3) < least || std::max(before.rad, r.rad) > 50000) {
                break;
            }
            EXPECT_LT(kink(before, r, junction), 0.02) << what;
            ++checked;
            if (startsAt(r, junction)) ++fromStart;
            junction = to;
        }
        desk.cancel();
    }
    EXPECT_GT(checked, 2000);
    EXPECT_GT(fromStart, 500);
    EXPECT_GT(checked - fromStart, 500);
}

TEST(Curve, BandsALineThenALineAndTheArcThenTheArcAlone)
{
    Desk desk;
    start(desk, "Command6"_c, OrthoToggle::on);
    desk.click(1000, 1000);
    desk.ops();
    desk.move(1282, 718); // ortho doesn't apply
    const Ops first = {"restoreSnapshot", "line 1000 1000 1282 718"};
    EXPECT_EQ(desk.ops(), first);
    desk.down(1, 1282, 718);
    desk.ops();
    desk.move(1400, 1000);
    const Ops second = desk.ops();
    ASSERT_EQ(second.size(), 3U);
    EXPECT_EQ(second[1], "line 1282 718 1400 1000");
    EXPECT_EQ(second[2].substr(0, 4), "arc ");
    desk.down(1, 1400, 1000);
    desk.ops();
    desk.move(1700, 1300);
    const Ops third = desk.ops();
    ASSERT_EQ(third.size(), 2U);
    EXPECT_EQ(third[0], "restoreSnapshot");
    EXPECT_EQ(third[1].substr(0, 4), "arc ");
    desk.down(1, 1700, 1300);
    EXPECT_EQ(shown(desk, "arc"), only(third, "arc"));
}

TEST(Curve, ShowsInItsBandEachArcThatTheClickThenStores)
{
    std::mt19937 random(72);
    std::uniform_real_distribution<float> place(-400, 400);
    Desk desk;
    int direct = 0;
    for (int round = 0; round < 200; ++round) {
        start(desk, "Command6"_c);
        Point p{2000, 1500};
        clickAt(desk, p);
        for (int i = 0; i < 6; ++i) {
            p = {p.x + place(random), p.y + place(random)};
            moveTo(desk, {p.x + 9, p.y - 5});
            desk.ops();
            moveTo(desk, p);
            const Ops band = shown(desk, "arc");
            downAt(desk, p);
            const Ops painted = shown(desk, "arc");
            if (painted.empty()) continue; // no arc yet, or in pieces
            EXPECT_EQ(painted, band) << round << "." << i;
            ++direct;
        }
    }
    EXPECT_GT(direct, 500);
}

TEST(Curve, IsPaintedInItsOwnPenAndLeavesThePenOfBands)
{
    Desk desk;
    desk.s.curColor = 255;
    desk.s.curStyle = 1;
    firstArc(desk);
    desk.move(1700, 1300);
    const std::string arc = shown(desk, "arc").back();
    desk.down(1, 1700, 1300);
    expectCommit(desk.ops(), {"setStyle 1", "setColor 255"}, arc);
    EXPECT_EQ(lastSlot(desk).color, 255);
    EXPECT_EQ(lastSlot(desk).style, 1);
}

TEST(Curve, TakesBackOneArcAtATime)
{
    Desk desk;
    firstArc(desk);
    desk.click(1700, 1300);
    desk.press("undu"_c);
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.stat(2), Stat::out);
    desk.press("undu"_c);
    EXPECT_EQ(desk.stat(1), Stat::out);
}

TEST(Curve, EndsOnAClickOnItsFirstPointAndTheArcsStay)
{
    Desk desk;
    firstArc(desk);
    desk.click(1700, 1300);
    desk.click(1000, 1000);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.stat(2), Stat::on);
    EXPECT_EQ(desk.s.store.entCount, 3);
    EXPECT_EQ(desk.s.promptText, "(Enter first point on curve:)");
}

// The first chord lies on an axis, so the centre of the first arc stands exactly over or under its end.
void arcWithAnUprightNormal(Desk& desk)
{
    start(desk, "Command6"_c);
    desk.click(1000, 1000);
    desk.click(1600, 1000);
    desk.click(1300, 700);
    ASSERT_EQ(lastSlot(desk).p1.x, 1300);
}

TEST(Curve, StraightAheadKeepsTheCentreThatStood)
{
    Desk desk;
    arcWithAnUprightNormal(desk);
    const EntityRecord before = lastSlot(desk);
    desk.click(900, 700); // on the tangent: no circle through it has its centre on the normal
    ASSERT_EQ(desk.s.store.entCount, 3);
    const EntityRecord r = lastSlot(desk);
    expectWholeArc(r);
    EXPECT_EQ(r.p1, before.p1);
    EXPECT_FLOAT_EQ(r.rad, before.rad);
}

TEST(Curve, TwiceOnTheSameJunctionTakesNoFurtherPoint)
{
    Desk desk;
    arcWithAnUprightNormal(desk);
    const std::int16_t flip = desk.s.curveFlip;
    desk.click(1300, 700);
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.s.stepNo, 3);
    EXPECT_EQ(desk.s.curveFlip, flip);
}

TEST(Curve, OfThreePointsOnALineKeepsTheCentreThatStood)
{
    Desk desk;
    start(desk, "Command2"_c);
    desk.click(3000, 3000);
    desk.click(3100, 3000);
    start(desk, "Command6"_c);
    desk.click(1000, 1000);
    desk.click(1100, 1000);
    desk.click(1200, 1000);
    const EntityRecord r = desk.slot(2);
    expectWholeArc(r);
    EXPECT_EQ(r.p1, (Point{3000, 3000}));
    EXPECT_EQ(r.a1, r.a2);
}

// The normal of an arc about its own end has no direction, and its two markers are the end itself.
TEST(Curve, FromAnArcAboutItsOwnEndHasItsMarkersThere)
{
    Desk desk;
    start(desk, "Command2"_c);
    desk.click(1200, 1000);
    desk.click(1300, 1000);
    start(desk, "Command6"_c);
    desk.click(1000, 1000);
    desk.click(1100, 1000);
    desk.click(1200, 1000); // evenly spaced on a line: the centre stays that of the circle
    ASSERT_EQ(desk.slot(2).p1, (Point{1200, 1000}));
    EXPECT_EQ(desk.s.bisectorA, (Point{1200, 1000}));
    EXPECT_EQ(desk.s.bisectorB, (Point{1200, 1000}));
    desk.click(1500, 1300);
    expectWholeArc(desk.slot(3));
}

TEST(Curve, CountsATypedDistanceAndStoresNothing)
{
    Desk desk;
    firstArc(desk);
    desk.move(1700, 1300);
    desk.type("12");
    desk.enter();
    EXPECT_EQ(desk.s.stepNo, 4);
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.text("entry"_c), "");
    EXPECT_EQ(desk.focused(), "pic1");
}

} // namespace
} // namespace mirtane
