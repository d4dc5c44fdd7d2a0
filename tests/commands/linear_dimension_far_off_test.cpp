// Dimension lines at any slant and far from the origin: their ends are rounded, and neither what is measured
// nor where a chain goes on may come of that.

#include "commands/linear_dimension.h"

#include "dimension_desk.h"
#include "geometry/ortho.h"
#include "slanted.h"

namespace mirtane {
namespace {

using fake::LinearDesk;
using fake::Slanted;

constexpr double inch = 12;      // world units
constexpr double shown = 0.0006; // inches, to which three places are right

double inchesOf(const EntityRecord& r)
{
    return std::stod(r.t1);
}

// A direction that is kept in double.
struct Line {
    Point from;
    double x, y;

    double along(Point a, Point b) const
    {
        return (double{b.x} - a.x) * x + (double{b.y} - a.y) * y; // widened before the differences
    }
    double off(Point p) const
    {
        return std::abs((double{p.x} - from.x) * y -
                        (double{p.y} - from.y) * x); // widened before the differences
    }
    // The point so far along and so far to the side.
    Point at(double along, double aside) const
    {
        return {static_cast<float>(from.x + along * x - aside * y), // as stored
                static_cast<float>(from.y + along * y + aside * x)};
    }
};

// On the line of dimension number n, and reading as it runs.
void expectPiece(const LinearDesk& desk, std::int32_t n, const Line& line, double reach,
                 const std::string& what)
{
    const EntityRecord r = desk.made(n);
    EXPECT_NEAR(inchesOf(r), std::abs(line.along(r.p1, r.p2)) / inch, shown + reach * 1e-8) << what;
    const double room = n * 3 * 0x1p-24 * reach;
    EXPECT_LE(line.off(r.p3), room) << what << " p3";
    EXPECT_LE(line.off(r.p4), room) << what << " p4";
    EXPECT_NEAR(line.along(r.p2, r.p3), 0, room) << what << " square to the line";
    fake::expectDegrees(r.a1, desk.made(1).a1, what);
}

TEST(LinearDimensionFarOff, AChainKeepsItsDirectionOverPiecesHoweverShort)
{
    Slanted dice(41);
    for (int i = 0; i < 60; ++i) {
        LinearDesk desk;
        desk.s.numStyle = "3i";
        const double reach = dice.anySize(3000, 200000);
        const double turn = dice.between(0, 6.28);
        const Line wall{dice.pointWithin({0, 0}, reach), std::cos(turn), std::sin(turn)};
        const Point second = wall.at(dice.between(200, 2000), 0);
        const Point offset =
            wall.at(wall.along(wall.from, second), dice.between(50, 900) * (dice.chance() ? 1 : -1));
        desk.measure(wall.from, second, offset);
        const double out = std::hypot(double{offset.x} - second.x, double{offset.y} - second.y);
        const Line line{offset, (double{offset.y} - second.y) / out, (double{second.x} - offset.x) / out};
        double place = wall.along(wall.from, second);
        for (std::int32_t n = 1; n < 8; ++n) {
            expectPiece(desk, n, line, 2 * reach, std::to_string(i) + " piece " + std::to_string(n));
            // The other corner of a wall, a thin layer, a long piece, in either direction.
            const double steps[] = {0, dice.between(0, 8), dice.between(200, 2500)};
            place += steps[dice.below(3)] * (dice.below(4) == 0 ? -1 : 1);
            desk.snap(wall.at(place, dice.between(-1500, 1500)));
        }
        ASSERT_EQ(desk.madeCount(), 8) << i;
    }
}

TEST(LinearDimensionFarOff, AfterAPieceOfNoLengthTheChainGoesOn)
{
    struct Row {
        const char *numStyle, *nothing, *texts[2];
    };
    const Row rows[] = {
        {"3i", ".000\"", {"166.667\"", "83.333\""}},
        {"2f", ".00'", {"13.89'", "6.94'"}},
        {"br", "0.000cm", {"4m 23.659cm", "2m 11.830cm"}},
    };
    for (const Row& row : rows) {
        LinearDesk desk;
        desk.s.numStyle = row.numStyle;
        desk.measure({1000, 1000}, {1000, 3000}, {700, 3000});
        desk.snap({1400, 3000});
        desk.snap({1000, 5000});
        desk.snap({1234, 4000});
        EXPECT_EQ(desk.made(2).t1, row.nothing);
        EXPECT_EQ(desk.made(3).t1, row.texts[0]);
        EXPECT_EQ(desk.made(4).t1, row.texts[1]);
        EXPECT_EQ(desk.made(4).p3, (Point{700, 4000}));
        fake::expectDegrees(desk.made(2).a1, desk.made(1).a1, row.numStyle);
    }
}

TEST(LinearDimensionFarOff, AnOffsetInOrthoIsLaidAlongTheAxisHoweverShort)
{
    Slanted dice(42);
    for (int i = 0; i < 120; ++i) {
        LinearDesk desk;
        desk.s.numStyle = "3i";
        desk.ortho(true);
        desk.s.orthoAngle = dice.between(-6, 6);
        const double reach = dice.anySize(3000, 300000);
        const Point first = dice.pointWithin({0, 0}, reach);
        const Point second = dice.pointWithin(first, 5000);
        const double way = dice.between(0, 6.28);
        const double away = dice.between(5, 60);
        const Point pointer{static_cast<float>(second.x + away * std::cos(way)),
                            static_cast<float>(second.y + away * std::sin(way))};
        desk.snap(first);
        desk.snap(second);
        desk.move(pointer);
        switch (dice.below(3)) {
        case 0:
            desk.typeIn("1");
            break;
        case 1:
            desk.typeIn("-2");
            break;
        default:
            desk.click(pointer);
        }
        const bool upright = desk.s.orthoSector % 2 == 0; // so that the line runs along the first axis
        const double turn = desk.s.orthoAngle + (upright ? 0 : std::acos(0.0));
        const Line line{desk.last().p3, std::cos(turn), -std::sin(turn)};
        expectPiece(desk, 1, line, 2 * reach, std::to_string(i));
        EXPECT_NEAR(std::remainder(desk.last().a1 - turn * degreesPerRadian, 180), 0, 1e-3) << i;
        const Point third = dice.pointWithin(first, 5000);
        desk.snap(third);
        expectPiece(desk, 2, line, 2 * reach, std::to_string(i) + ", chained");
    }
}

// A snapped offset is a point of its own: the extension lines run towards it.
TEST(LinearDimensionFarOff, ASnappedOffsetIsTakenAsItLiesWithOrthoOn)
{
    LinearDesk desk;
    desk.s.numStyle = "3i";
    desk.ortho(true);
    desk.snap({1000, 1000});
    desk.snap({1600, 1300});
    desk.move({1600, 1100});
    desk.snap({1900, 900});
    EXPECT_EQ(desk.made(1).p3, (Point{1900, 900}));
    EXPECT_NEAR(inchesOf(desk.made(1)), (600 * 0.8 + 300 * 0.6) / inch, shown);
}

} // namespace
} // namespace mirtane
