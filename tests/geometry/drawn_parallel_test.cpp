// Lines that were drawn parallel are parallel only up to the rounding of their points; no crossing may come
// of that, and none may be lost because of it.

#include "geometry/crossing.h"
#include "geometry/parallel.h"
#include "slanted.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Pair;
using fake::Segment;
using fake::Slanted;

constexpr double degree = 3.14159265358979 / 180; // radians

constexpr Point places[] = {{0, 0},         {300, 200},       {-5000, 7000},
                            {40000, -9000}, {250000, 250000}, {-3000000, 1000000}};

Crossings cross(const Segment& one, const Segment& other)
{
    return crossLines(one.from, one.to, other.from, other.to);
}

Crossings crossBeside(const Segment& one, const Segment& other, Point towards, double distance)
{
    return crossParallels(parallelTowards(one.from, one.to, towards, distance),
                          parallelTowards(other.from, other.to, towards, distance));
}

TEST(DrawnParallel, LinesNeverCrossInEitherOrderNorDoTheLinesBesideThem)
{
    Slanted dice(16);
    for (int i = 0; i < 60000; ++i) {
        const Point place = places[i % std::size(places)];
        const double size = dice.anySize(20, 20000);
        const Pair pair = fake::drawnParallel(dice, place, size, dice.between(0, 90) * degree);
        const Point towards = dice.pointWithin(place, size);
        for (const Segment& one : {pair.one, pair.one.reversed()}) {
            ASSERT_EQ(cross(one, pair.other).count, 0) << pair.how << " " << i;
            ASSERT_EQ(cross(pair.other, one).count, 0) << pair.how << " " << i;
            for (const double distance : {0.0, size / 50}) {
                ASSERT_EQ(crossBeside(one, pair.other, towards, distance).count, 0) << pair.how << " " << i;
                ASSERT_EQ(crossBeside(pair.other, one, towards, distance).count, 0) << pair.how << " " << i;
            }
        }
    }
}

// From back before the crossing, on towards it or away from it.
Segment through(Point crossing, double direction, double back, double length)
{
    const double x = std::cos(direction);
    const double y = std::sin(direction);
    const auto at = [&](double way) {
        return Point{static_cast<float>(crossing.x + way * x), static_cast<float>(crossing.y + way * y)};
    };
    return {at(-back), at(length - back)};
}

TEST(DrawnParallel, LinesAHundredthOfADegreeApartStillCrossWhereTheyDo)
{
    Slanted dice(61);
    for (int i = 0; i < 60000; ++i) {
        const double reach = dice.anySize(10, 3000000);
        const Point crossing = dice.pointWithin({0, 0}, reach);
        const double direction = dice.between(0, 360) * degree;
        const double apart = dice.anySize(0.01, 90) * degree;
        const auto line = [&](double along) {
            const double length = dice.between(reach / 10, reach);
            return through(crossing, along, dice.between(-length, 2 * length), length);
        };
        const Segment one = line(direction);
        const Segment other = line(direction + (dice.chance() ? apart : -apart));
        // A point is off by half a step at the most; five times as far off does the line pass the crossing.
        const double off = 20 * 0x1p-24 * std::max(one.reach(), other.reach()) / std::sin(apart);
        const Crossings found[] = {cross(one, other), cross(other, one), cross(one.reversed(), other),
                                   crossBeside(one, other, crossing, 0),
                                   crossBeside(other, one, crossing, 0)};
        for (const Crossings& c : found) {
            ASSERT_EQ(c.count, 1) << apart / degree << " " << i;
            ASSERT_NEAR(c.points[0].x, crossing.x, off) << apart / degree << " " << i;
            ASSERT_NEAR(c.points[0].y, crossing.y, off) << apart / degree << " " << i;
        }
    }
}

// A short line drawn with care near the origin is not in doubt because the other one is far off.
TEST(DrawnParallel, ALineIsJudgedByItsOwnCoordinates)
{
    const Crossings found = crossLines({0, 0}, {1, 0.25F}, {4000000, 0}, {4000000.0F, 1000000});
    ASSERT_EQ(found.count, 1);
    EXPECT_EQ(found.points[0], (Point{4000000, 1000000}));
}

TEST(ParallelLine, TowardsAPointExactlyOnASlantedLineIsThatLine)
{
    Slanted dice(24);
    for (int i = 0; i < 20000; ++i) {
        const auto whole = [&](int limit) { return static_cast<float>(dice.below(2 * limit) - limit); };
        const Point unit{whole(1000) / 8, whole(1000) / 8};
        if (unit.x == 0 || unit.y == 0) continue;
        const Point a{whole(400000) / 8, whole(400000) / 8};
        const auto at = [&](float steps) { return Point{a.x + steps * unit.x, a.y + steps * unit.y}; };
        const Point b = at(whole(40) + 41);
        const Point on = at(whole(80));
        const double off = parallelTowards(a, b, on, 0).off;
        ASSERT_EQ(parallelTowards(a, b, on, 20).off, off) << i;
        ASSERT_EQ(parallelTowards(b, a, on, 20).off, parallelTowards(b, a, on, 0).off) << i;
        // The next place to the right of it is on a side already, and which one is plain.
        const Point right{std::nextafter(on.x, 1e9F), on.y};
        ASSERT_NEAR(parallelTowards(a, b, right, 20).off, unit.y > 0 ? off - 20 : off + 20, 1e-6) << i;
    }
}

TEST(ParallelLine, TellsTheSideOfAPointHoweverTheSizesDiffer)
{
    struct Row {
        const char* what;
        Point a, b, towards;
        int side; // 1 with a y above that of the line, 0 on it
    };
    const Row rows[] = {
        {"on a line to far off", {0, 0}, {3e30F, 1.5e30F}, {2e-20F, 1e-20F}, 0},
        {"beside it by a hair", {0, 0}, {3e30F, 1.5e30F}, {2e-20F, 1.0001e-20F}, 1},
        {"on the other side", {0, 0}, {3e30F, 1.5e30F}, {2e-20F, 0.9999e-20F}, -1},
        {"from a start that drowns the point",
         {-16777216, -16777216},
         {16777216, 16777216},
         {1e-9F, 1e-9F},
         0},
        {"the same beside", {-16777216, -16777216}, {16777216, 16777216}, {1e-9F, 1.1e-9F}, 1},
        {"the line's start", {0.1F, 0.7F}, {9.3F, 4.1F}, {0.1F, 0.7F}, 0},
        {"its end", {0.1F, 0.7F}, {9.3F, 4.1F}, {9.3F, 4.1F}, 0},
    };
    for (const Row& row : rows) {
        const double off = parallelTowards(row.a, row.b, row.towards, 0).off;
        const double distance = std::abs(off) + 1;
        EXPECT_EQ(parallelTowards(row.a, row.b, row.towards, distance).off, off + row.side * distance)
            << row.what;
    }
}

} // namespace
} // namespace mirtane
