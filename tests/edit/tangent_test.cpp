// Lines that were drawn to the point where they touch a circle: that point was rounded, so that they miss the
// circle or cut a step off it. Trim and Fillet take them as touching.

#include "edit/fillet.h"
#include "edit/trim.h"

#include "cut_desk.h"
#include "geometry/rounding.h"
#include "geometry/tangent.h"
#include "slanted.h"

namespace mirtane {
namespace {

using fake::EditDesk;
using fake::Slanted;

struct Tangent {
    explicit Tangent(Slanted& dice)
        : reach(dice.anySize(300, 200000)), centre(dice.pointWithin({0, 0}, reach)),
          radius(static_cast<float>(dice.between(40, 300))), way(dice.between(0, 6.28)), // as stored
          from(polarPoint(centre, radius * dice.between(1.5, 4), way)),
          touch(tangentPoints(from, centre, radius)[dice.chance() ? 0 : 1])
    {
    }

    // The line goes on beyond the touching point by a share of its way.
    EntityRecord line(float beyond, float pick) const
    {
        return fake::lineFrom(from, at(1 + beyond), at(pick));
    }
    // Half the circle or so, round the touching point.
    EntityRecord arc(double before, double behind) const
    {
        const double a = directionAngle(centre, touch, 0);
        return fake::arcOf(centre, radius, std::fmod(a - before + fullTurn, fullTurn),
                           std::fmod(a + behind, fullTurn));
    }
    Point at(float share) const
    {
        return {from.x + share * (touch.x - from.x), from.y + share * (touch.y - from.y)};
    }
    double room() const { return 30 * halfStepOf(reach + 2000); }

    double reach;
    Point centre;
    float radius;
    double way;
    Point from, touch;
};

EntityRecord trimmed(const EntityRecord& object, const EntityRecord& boundary, Point click)
{
    EditDesk desk;
    desk.add(object);
    desk.add(boundary, Stat::on);
    desk.begin("Trim");
    desk.click(click);
    EXPECT_EQ(desk.s.store.entCount, 4);
    EXPECT_EQ(desk.stat(1), Stat::out);
    return desk.slot(3);
}

TEST(Tangent, ALineIsTrimmedToTheCircleThatItTouches)
{
    Slanted dice(95);
    for (int i = 0; i < 500; ++i) {
        const Tangent t(dice);
        const Point onCircle = polarPoint(t.centre, t.radius, dice.between(0, 6.28));
        const EntityRecord kept = trimmed(t.line(0.5F, 0.5F), fake::circleAt(t.centre, t.radius), onCircle);
        ASSERT_EQ(kept.p1, t.from) << i;
        ASSERT_LT(distance(kept.p2, t.touch), t.room() * (1 + t.radius / distance(t.from, t.touch))) << i;
    }
}

TEST(Tangent, AnArcIsTrimmedToTheLineThatTouchesIt)
{
    Slanted dice(96);
    for (int i = 0; i < 500; ++i) {
        const Tangent t(dice);
        EntityRecord arc = t.arc(1.2, 0.9);
        arc.p5 = fake::pointOn(arc, 0.2);
        const EntityRecord kept = trimmed(arc, t.line(0, 0), t.at(0.4F));
        ASSERT_EQ(kept.p2, arc.p2) << i;
        // What is a thousandth of the radius beside an axis of the circle is put on it.
        ASSERT_LT(distance(kept.p3, t.touch),
                  t.room() * (1 + t.radius / distance(t.from, t.touch)) + t.radius / 900)
            << i;
    }
}

TEST(Tangent, AFilletMeetsBothWhereTheyTouch)
{
    Slanted dice(97);
    for (int i = 0; i < 500; ++i) {
        const Tangent t(dice);
        EntityRecord arc = t.arc(1.2, 0.9);
        arc.p5 = fake::pointOn(arc, 0.2);
        EditDesk desk;
        desk.add(t.line(0.5F, 0.3F));
        desk.add(arc);
        desk.s.filletRadius = t.radius * static_cast<float>(dice.between(0.1, 0.8));
        desk.begin("Fillet");
        desk.click(Point{(t.centre.x + t.touch.x) / 2, (t.centre.y + t.touch.y) / 2});
        ASSERT_EQ(desk.s.store.entCount, 6) << i;
        const double room = t.room() * (1 + t.radius / distance(t.from, t.touch));
        ASSERT_LT(std::abs(distance(desk.slot(3).p1, t.touch) - desk.s.filletRadius), room) << i;
        ASSERT_LT(distance(desk.slot(4).p2, t.touch), room) << i << " line";
        ASSERT_LT(std::min(distance(desk.slot(5).p2, t.touch), distance(desk.slot(5).p3, t.touch)), room)
            << i << " arc";
    }
}

} // namespace
} // namespace mirtane
