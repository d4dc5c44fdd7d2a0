#include "commands/arc.h"

#include "round_desk.h"
#include "slanted.h"

namespace mirtane {
namespace {

using namespace fake;

void setOrthoAngle(Desk& desk, double degrees)
{
    desk.press("angle"_c);
    desk.type(shortest(degrees));
    desk.enter();
}

// Along an axis that stands aslant the confined pointer's direction differs in its last digits at each move.
TEST(ArcTwo, WindsByTheTurnFromAxisToAxisWhateverTheMovesAlongThem)
{
    constexpr double orthoAngles[] = {1, 7.3, 20, 30, 44.9, 45, 60, 71.25, 89};
    Slanted dice(3);
    Desk desk;
    for (int i = 0; i < 1500; ++i) {
        const double turned = orthoAngles[i % std::size(orthoAngles)];
        const int from = dice.below(4);
        const int to = from == 0 || (from < 3 && dice.chance()) ? from + 1 : from - 1; // not over angle 0
        const Point centre = dice.pointWithin({0, 0}, i % 2 == 0 ? 2000 : 200000);
        setOrthoAngle(desk, turned);
        start(desk, "Command4"_c, OrthoToggle::on);
        const auto nearAxis = [&](int axis) {
            return onCircle(centre, dice.between(100, 900), turned + 90 * axis + dice.between(-40, 40));
        };
        clickAt(desk, centre);
        clickAt(desk, nearAxis(from));
        desk.s.arcLastAngle = desk.s.arcAngleOne; // as a move at the radius point leaves it
        for (int move = 0; move < 12; ++move) moveTo(desk, nearAxis(from));
        ASSERT_EQ(desk.s.arcWinding, 0) << turned << " " << from;
        for (int move = 0; move < 12; ++move) moveTo(desk, nearAxis(to));
        ASSERT_EQ(desk.s.arcWinding, to - from) << turned << " " << from;
        downAt(desk, nearAxis(to));
        const EntityRecord r = lastSlot(desk);
        const double low = turned + 90 * std::min(from, to);
        const double reach = std::abs(centre.x) + std::abs(centre.y);
        EXPECT_LT(turnedBetween(r.a1, low * std::numbers::pi / 180), 1e-6 + 1e-8 * reach) << turned;
        EXPECT_LT(turnedBetween(r.a2, (low + 90) * std::numbers::pi / 180), 1e-6 + 1e-8 * reach) << turned;
        desk.cancel();
    }
}

// The first move is held against the direction of the arc before, or of none: a turn that comes out as none
// by that is one all the same.
TEST(ArcTwo, OfATurnThatTheFirstMoveCancelsIsSeen)
{
    Slanted dice(7);
    for (int i = 0; i < 400; ++i) {
        const double turned = dice.between(1, 89);
        const int from = dice.below(4);
        const int to = from == 0 || (from < 3 && dice.chance()) ? from + 1 : from - 1; // not over angle 0
        const Point centre = dice.pointWithin({0, 0}, 3000);
        Desk desk;
        setOrthoAngle(desk, turned);
        start(desk, "Command4"_c, OrthoToggle::on);
        desk.s.arcLastAngle = dice.between(0, 6.28);
        const auto nearAxis = [&](int axis) {
            return onCircle(centre, dice.between(100, 900), turned + 90 * axis + dice.between(-40, 40));
        };
        clickAt(desk, centre);
        clickAt(desk, nearAxis(from));
        for (int move = 0; move < 3; ++move) moveTo(desk, nearAxis(from));
        for (int move = 0; move < 3; ++move) moveTo(desk, nearAxis(to));
        downAt(desk, nearAxis(to));
        const EntityRecord r = lastSlot(desk);
        EXPECT_GT(turnedBetween(r.a1, r.a2), 1) << turned << " " << from << " " << to;
        desk.cancel();
    }
}

// One axis lies at angle 0 but for the rounding, so that the pointer's direction is now 0, now nearly a turn.
TEST(ArcTwo, DoesNotTurnAlongAnAxisAtAngleZero)
{
    Slanted dice(30);
    int nearlyATurn = 0;
    for (const double turned : {90.0, 270.0, 180.0, 0.0, 0.000001}) {
        Desk desk;
        setOrthoAngle(desk, turned);
        for (const Point centre : {Point{1000, 1000}, Point{10, 3000}, Point{-700, 20}}) {
            start(desk, "Command4"_c, OrthoToggle::on);
            clickAt(desk, centre);
            clickAt(desk, onCircle(centre, 400, 5));
            desk.s.arcLastAngle = desk.s.arcAngleOne;
            for (int move = 0; move < 100; ++move) {
                moveTo(desk, onCircle(centre, dice.between(50, 5000), dice.between(-44, 44)));
                if (desk.s.arcAngleTwo > 6) ++nearlyATurn;
                ASSERT_EQ(desk.s.arcWinding, 0) << turned << " " << move;
            }
            moveTo(desk, onCircle(centre, 400, 80));
            EXPECT_EQ(desk.s.arcWinding, 1) << turned;
            desk.cancel();
        }
    }
    EXPECT_GT(nearlyATurn, 100);
}

// From axis to axis, over angle 0 like over any other, and there and back again.
TEST(ArcTwo, GoesTheWayFromAxisToAxisOverAngleZeroToo)
{
    Slanted dice(41);
    Desk desk;
    int over0 = 0;
    for (int i = 0; i < 600; ++i) {
        const double turned = i % 6 == 0 ? 0 : dice.between(0, 90);
        const Point centre = dice.pointWithin({0, 0}, i % 2 == 0 ? 2500 : 150000);
        setOrthoAngle(desk, turned);
        start(desk, "Command4"_c, OrthoToggle::on);
        const int from = dice.below(4);
        int axis = from;
        const auto near = [&] {
            return onCircle(centre, dice.between(300, 900), turned + 90 * axis + dice.between(-40, 40));
        };
        clickAt(desk, centre);
        clickAt(desk, near());
        desk.s.arcLastAngle = desk.s.arcAngleOne; // as a move at the radius point leaves it
        const int way = dice.chance() ? 1 : -1;
        for (int quarters = 1 + dice.below(3); quarters > 0; --quarters) {
            axis += way;
            for (int move = 0; move < 3; ++move) moveTo(desk, near());
        }
        if (dice.chance() && std::abs(axis - from) > 1) { // one back
            axis -= way;
            moveTo(desk, near());
        }
        over0 += (axis < 0 || axis > 3) ? 1 : 0;
        EXPECT_EQ(desk.s.arcWinding, axis - from) << turned << " from " << from;
        downAt(desk, near());
        const EntityRecord r = lastSlot(desk);
        const double low = (turned + 90 * std::min(from, axis)) * std::numbers::pi / 180;
        const double high = (turned + 90 * std::max(from, axis)) * std::numbers::pi / 180;
        const double slack = 1e-6 + 1e-8 * (std::abs(centre.x) + std::abs(centre.y));
        EXPECT_LT(turnedBetween(r.a1, low), slack) << turned << " from " << from << " to " << axis;
        EXPECT_LT(turnedBetween(r.a2, high), slack) << turned << " from " << from << " to " << axis;
        desk.cancel();
    }
    EXPECT_GT(over0, 100);
}

// The direction differs by its rounding from move to move, above and below that of the radius point.
TEST(ArcTwo, IsNothingWhileThePointerIsOnTheAxisOfTheRadiusPoint)
{
    Slanted dice(42);
    Desk desk;
    for (int i = 0; i < 1000; ++i) {
        const double turned = dice.between(0, 90);
        const Point centre = dice.pointWithin({0, 0}, i % 2 == 0 ? 3000 : 80000);
        setOrthoAngle(desk, turned);
        start(desk, "Command4"_c, OrthoToggle::on);
        desk.s.arcLastAngle = dice.between(0, 6.28);
        const int axis = dice.below(4);
        const auto near = [&] {
            return onCircle(centre, dice.between(100, 900), turned + 90 * axis + dice.between(-40, 40));
        };
        clickAt(desk, centre);
        clickAt(desk, near());
        for (int move = dice.below(4); move >= 0; --move) moveTo(desk, near());
        EXPECT_EQ(desk.s.arcStart, desk.s.arcEnd) << i;
        downAt(desk, near());
        EXPECT_EQ(lastSlot(desk).a1, lastSlot(desk).a2) << i << ": " << turned;
        desk.cancel();
    }
}

} // namespace
} // namespace mirtane
