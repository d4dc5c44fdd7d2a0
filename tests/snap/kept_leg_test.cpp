// A leg that ortho has turned runs along the axis itself, wherever it lies and however short it is.

#include "click_desk.h"

#include "geometry/ortho.h"
#include "geometry/rounding.h"
#include "slanted.h"

namespace mirtane {
namespace {

using fake::ClickDesk;
using fake::Slanted;

// A leg of some length that ortho laid, and its axis in double.
struct OrthoLeg {
    explicit OrthoLeg(Slanted& dice)
        : reach(dice.anySize(2000, 300000)), from(dice.pointWithin({0, 0}, reach)),
          angle(dice.between(-6, 6)), sector(static_cast<std::int16_t>(1 + dice.below(4))), // 1 to 4
          to(pointOnAxis(from, dice.between(5, 60), sector, angle, from)),
          x(std::cos(angle + (sector - 1) * std::acos(0.0))),
          y(-std::sin(angle + (sector - 1) * std::acos(0.0)))
    {
    }

    void begin(ClickDesk& desk, Point mouse) const
    {
        desk.ortho(true);
        desk.s.orthoAngle = angle;
        desk.s.orthoSector = sector;
        desk.laterClick(from, mouse, to);
    }
    Point at(double along, double aside) const
    {
        return {static_cast<float>(from.x + along * x - aside * y), // as stored
                static_cast<float>(from.y + along * y + aside * x)};
    }
    void expectOn(Point p, double along, double room, const std::string& what) const
    {
        const double dx = double{p.x} - from.x;
        const double dy = double{p.y} - from.y;
        EXPECT_NEAR(dx * y - dy * x, 0, 2 * halfStepOf(reach + 5000)) << what << " off the axis";
        EXPECT_NEAR(dx * x + dy * y, along, room) << what;
    }

    double reach;
    Point from;
    double angle;
    std::int16_t sector;
    Point to;
    double x, y;
};

// The one object of a drawing that is used again and again.
void putOnly(ClickDesk& desk, const EntityRecord& r)
{
    desk.s.store.entCount = 1;
    desk.add(r);
}

TEST(KeptLeg, APointGivesItsFootOnTheAxis)
{
    Slanted dice(51);
    ClickDesk desk;
    for (int i = 0; i < 1000; ++i) {
        const OrthoLeg leg(dice);
        const double along = dice.between(-1500, 3000);
        const Point p = leg.at(along, dice.between(-600, 600));
        putOnly(desk, fake::point(p));
        leg.begin(desk, p);
        desk.shoot("sp");
        leg.expectOn(desk.s.pickLast, along, 5 * halfStepOf(leg.reach + 5000), std::to_string(i));
    }
}

TEST(KeptLeg, AnObjectIsMetOnTheAxis)
{
    Slanted dice(52);
    ClickDesk desk;
    for (int i = 0; i < 1000; ++i) {
        const OrthoLeg leg(dice);
        const double along = dice.between(300, 3000);
        const Point ahead = leg.at(along, 0);
        const bool isLine = dice.chance();
        putOnly(desk, isLine ? fake::line(leg.at(along, -300), leg.at(along, 400))
                             : fake::circle(leg.at(along + 200, 0), 200));
        leg.begin(desk, ahead);
        desk.shoot("so");
        const double room = 8 * halfStepOf(leg.reach + 5000);
        leg.expectOn(desk.s.pickLast, along, room, std::to_string(i) + (isLine ? " line" : " circle"));
    }
}

TEST(KeptLeg, FromACentreTheCircleIsMetOnTheAxis)
{
    Slanted dice(53);
    ClickDesk desk;
    for (int i = 0; i < 1000; ++i) {
        const OrthoLeg leg(dice);
        const auto radius = static_cast<float>(dice.between(200, 3000)); // as stored
        for (const char* snap : {"so", "sn"}) {
            putOnly(desk, fake::circle(leg.from, radius));
            leg.begin(desk, leg.at(radius, 0));
            desk.shoot(snap);
            leg.expectOn(desk.s.pickLast, radius, 5 * halfStepOf(leg.reach + 5000), snap + std::to_string(i));
        }
    }
}

TEST(KeptLeg, OfAConstructionLineToo)
{
    Slanted dice(54);
    ClickDesk desk("Blank Line");
    for (int i = 0; i < 500; ++i) {
        const OrthoLeg leg(dice);
        const double along = dice.between(-1500, 3000);
        const Point p = leg.at(along, dice.between(-600, 600));
        putOnly(desk, fake::point(p));
        leg.begin(desk, p);
        desk.ortho(false);
        desk.s.blankStep = 2;
        desk.s.blankStart = leg.from;
        desk.s.blankEnd = leg.to;
        desk.shoot("sp");
        leg.expectOn(desk.s.blankEnd, along, 5 * halfStepOf(leg.reach + 5000), std::to_string(i));
    }
}

} // namespace
} // namespace mirtane
