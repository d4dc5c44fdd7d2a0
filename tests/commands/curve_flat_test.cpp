// A curve that is led straight on, or nearly so, and one that is clicked twice in one place.

#include "commands/curve.h"

#include "round_desk.h"
#include "slanted.h"

#include <algorithm>

namespace mirtane {
namespace {

using namespace fake;

// A first arc about a centre, the way on at its end, and points along that way.
struct Lead {
    Point centre;
    double radius, from, over; // degrees, counter-clockwise if above 0
    double to() const { return from + over; }
    Point start() const { return onCircle(centre, radius, from); }
    Point middle() const { return onCircle(centre, radius, from + over / 2); }
    Point junction() const { return onCircle(centre, radius, to()); }
    // So far on, and turned from straight on by so many degrees.
    Point ahead(Point from, double far, double aside) const
    {
        return onCircle(from, far, to() + (over > 0 ? 90 : -90) + aside);
    }
};

Lead someLead(Slanted& dice, int i)
{
    constexpr double reaches[] = {1500, 3000, 30000, 200000};
    Lead lead;
    lead.centre = dice.pointWithin({0, 0}, reaches[i % 4]);
    lead.radius = dice.anySize(150, 2000);
    lead.from = dice.between(0, 360);
    lead.over = (dice.chance() ? 1 : -1) * dice.between(40, 150);
    return lead;
}

void begin(Desk& desk, const Lead& lead)
{
    start(desk, "Command6"_c);
    clickAt(desk, lead.start());
    clickAt(desk, lead.middle());
    clickAt(desk, lead.junction());
}

// Of where 32 bits hold the points, and a tenth of a thousandth of the way.
double slackOf(Point p, double length)
{
    return 1e-4 * length + 1e-6 * (std::abs(p.x) + std::abs(p.y));
}

void expectFromTo(const EntityRecord& r, Point from, Point to, double slack, const std::string& what)
{
    expectWholeArc(r, what);
    const bool starts = away(r.p2, from) < away(r.p3, from);
    EXPECT_LT(away(starts ? r.p2 : r.p3, from), slack) << what;
    EXPECT_LT(away(starts ? r.p3 : r.p2, to), slack) << what;
    EXPECT_LT(away(r.p4, {(from.x + to.x) / 2, (from.y + to.y) / 2}), 0.01 * away(from, to)) << what;
}

TEST(Curve, LedStraightOnRunsFromItsJunctionToItsPoint)
{
    Slanted dice(83);
    for (int i = 0; i < 400; ++i) {
        const Lead lead = someLead(dice, i);
        const double length = dice.anySize(60, 900);
        const Point to = lead.ahead(lead.junction(), length, 0);
        const Point next = lead.ahead(to, length, dice.between(-0.001, 0.001));
        Desk desk;
        begin(desk, lead);
        clickAt(desk, to);
        clickAt(desk, next);
        ASSERT_EQ(desk.s.store.entCount, 4);
        const std::string what = shortest(i);
        expectFromTo(desk.slot(2), lead.junction(), to, slackOf(to, length), what);
        expectFromTo(desk.slot(3), to, next, slackOf(next, length), what + " again");
    }
}

// The band shows it, too.
TEST(Curve, ALittleBesideTheWayOnRunsFromItsJunctionToItsPoint)
{
    Slanted dice(84);
    for (int i = 0; i < 400; ++i) {
        const Lead lead = someLead(dice, i);
        const double length = dice.anySize(60, 900);
        const Point to =
            lead.ahead(lead.junction(), length, (dice.chance() ? 1 : -1) * dice.anySize(1e-6, 0.5));
        Desk desk;
        begin(desk, lead);
        moveTo(desk, to);
        const Point centre = desk.s.ptF;
        const double begins = desk.s.arcStart;
        downAt(desk, to);
        const EntityRecord r = desk.slot(2);
        EXPECT_EQ(r.p1, centre) << i;
        EXPECT_EQ(r.a1, begins) << i;
        expectFromTo(r, lead.junction(), to, slackOf(to, length), shortest(i));
        const double across = heading(r.p1, lead.junction()); // either way
        EXPECT_LT(turnedBetween(2 * across, 2 * lead.to() * std::numbers::pi / 180), 0.005)
            << i << ": smooth";
    }
}

Point storedEnd(const EntityRecord& r, Point near)
{
    return away(r.p2, near) < away(r.p3, near) ? r.p2 : r.p3;
}

// A second click where the curve has come to, or on the end of the arc as it is stored, is no point.
TEST(Curve, ClickedTwiceInOnePlaceIsTheCurveOfTheSingleClicks)
{
    Slanted dice(85);
    for (int i = 0; i < 200; ++i) {
        const Lead lead = someLead(dice, i);
        Desk once;
        Desk twice;
        begin(once, lead);
        begin(twice, lead);
        Point at = lead.junction();
        for (int leg = 0; leg < 4; ++leg) {
            const EntityRecord last = lastSlot(twice);
            const std::int16_t step = twice.s.stepNo;
            const std::int16_t flip = twice.s.curveFlip;
            clickAt(twice, dice.chance() ? at : storedEnd(last, at));
            if (dice.chance()) clickAt(twice, at);
            EXPECT_EQ(twice.s.stepNo, step) << i;
            EXPECT_EQ(twice.s.curveFlip, flip) << i;
            EXPECT_EQ(lastSlot(twice), last) << i;
            at = onCircle(at, dice.anySize(50, 700), dice.between(0, 360));
            clickAt(once, at);
            clickAt(twice, at);
        }
        ASSERT_EQ(twice.s.store.entCount, once.s.store.entCount) << i;
        for (std::int32_t slot = 1; slot < once.s.store.entCount; ++slot)
            EXPECT_EQ(twice.slot(slot), once.slot(slot)) << i << "." << slot;
    }
}

} // namespace
} // namespace mirtane
