// Fills of random boundaries against the pattern worked out in another way: each endless line of it clipped
// by itself, and no cells but where the test says so.

#include "library/hatch_fill.h"

#include "library_desk.h"

#include "model/kind_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <numbers>
#include <random>

namespace mirtane {
namespace {

using fake::hatchLine;
using fake::legsThrough;

struct Vec {
    double x, y;
};

enum class Shape { convex, concave, crossing };

class Dice {
  public:
    explicit Dice(unsigned seed) : engine_(seed) {}
    double in(double low, double high) { return std::uniform_real_distribution(low, high)(engine_); }
    int of(int low, int high) { return std::uniform_int_distribution(low, high)(engine_); }

  private:
    std::mt19937 engine_;
};

std::vector<Point> corners(Shape shape, Dice& dice)
{
    const int count = dice.of(3, 12);
    const double cx = dice.in(-500, 500), cy = dice.in(-500, 500);
    std::vector<Point> points;
    for (int i = 0; i < count; ++i) {
        const double angle = 2 * std::numbers::pi * (i + dice.in(0, 0.8)) / count;
        const double r = shape == Shape::convex ? 120 : dice.in(30, 150);
        points.push_back(
            {static_cast<float>(cx + r * std::cos(angle)), static_cast<float>(cy + r * std::sin(angle))});
    }
    if (shape == Shape::crossing) {
        for (std::size_t i = points.size() - 1; i > 0; --i) {
            std::swap(points[i], points[static_cast<std::size_t>(dice.of(0, static_cast<int>(i)))]);
        }
    }
    return points;
}

// By a ray in a direction of its own, so that no rule for ends on it is needed.
bool insideByParity(const std::vector<BoundaryLeg>& legs, Vec p)
{
    int crossings = 0;
    const Vec d{0.8191520442889918, 0.5735764363510461};
    for (const BoundaryLeg& leg : legs) {
        const Vec a{leg.from.x - p.x, leg.from.y - p.y};
        const Vec b{leg.to.x - p.x, leg.to.y - p.y};
        const double sideA = d.x * a.y - d.y * a.x;
        const double sideB = d.x * b.y - d.y * b.x;
        if ((sideA > 0) == (sideB > 0)) continue;
        const double t = sideA / (sideA - sideB);
        const Vec hit{a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)};
        crossings += d.x * hit.x + d.y * hit.y > 0 ? 1 : 0;
    }
    return crossings % 2 == 1;
}

double distanceToBoundary(const std::vector<BoundaryLeg>& legs, Vec p)
{
    double least = 1e30;
    for (const BoundaryLeg& leg : legs) {
        const Vec a{leg.from.x, leg.from.y}, b{leg.to.x, leg.to.y};
        const double length2 = (b.x - a.x) * (b.x - a.x) + (b.y - a.y) * (b.y - a.y);
        double t = ((p.x - a.x) * (b.x - a.x) + (p.y - a.y) * (b.y - a.y)) / length2;
        t = std::clamp(t, 0.0, 1.0);
        least = std::min(least, std::hypot(a.x + t * (b.x - a.x) - p.x, a.y + t * (b.y - a.y) - p.y));
    }
    return least;
}

// The length of an endless line through p in direction d that lies inside.
double lengthInside(const std::vector<BoundaryLeg>& legs, Vec p, Vec d)
{
    std::vector<double> cuts;
    for (const BoundaryLeg& leg : legs) {
        const double sideA = d.x * (leg.from.y - p.y) - d.y * (leg.from.x - p.x);
        const double sideB = d.x * (leg.to.y - p.y) - d.y * (leg.to.x - p.x);
        if ((sideA > 0) == (sideB > 0)) continue;
        const double t = sideA / (sideA - sideB);
        const double x = leg.from.x + t * (leg.to.x - leg.from.x),
                     y = leg.from.y + t * (leg.to.y - leg.from.y);
        cuts.push_back((x - p.x) * d.x + (y - p.y) * d.y);
    }
    std::ranges::sort(cuts);
    double length = 0;
    for (std::size_t i = 1; i < cuts.size(); i += 2) length += cuts[i] - cuts[i - 1];
    return length;
}

// What a fill with one straight line across each tile, from edge to edge, is checked against: the lines run
// on from tile to tile, slanted by rise over one tile's width.
struct Pattern {
    double size;     // of the square tile after scaling
    double offset;   // of the line from the tile's top at its left side
    double rotation; // radians
    bool slanted;    // down by one tile's height across its width
};

struct Check {
    std::vector<BoundaryLeg> legs;
    Pattern pattern;
    std::vector<EntityRecord> pieces;

    // Along a line of the pattern, and the distance from one line to the next.
    Vec direction() const
    {
        const double a = pattern.rotation - (pattern.slanted ? std::numbers::pi / 4 : 0);
        return {std::cos(a), -std::sin(a)};
    }
    double spacing() const { return pattern.slanted ? pattern.size / std::numbers::sqrt2 : pattern.size; }
    double across(Vec p) const
    {
        const Vec d = direction();
        return d.x * (p.y - legs[0].from.y) - d.y * (p.x - legs[0].from.x);
    }
    double firstAcross() const
    {
        return pattern.slanted ? pattern.offset / std::numbers::sqrt2 : pattern.offset;
    }
    double along(Vec p) const { return p.x * direction().x + p.y * direction().y; }
    // The number of the line that p lies on, as near as may be.
    double lineOf(Vec p) const { return (across(p) - firstAcross()) / spacing(); }
};

Check fillRandom(Shape shape, unsigned seed, bool slanted)
{
    Dice dice(seed);
    Check check;
    check.legs = legsThrough(corners(shape, dice));
    const auto scale = static_cast<float>(dice.of(1, 4)) / 2;
    const float size = static_cast<float>(dice.of(4, 20));
    const float offset = slanted ? 0 : size * static_cast<float>(dice.of(1, 7)) / 8;
    check.pattern = {size * scale, offset * scale, dice.of(0, 2) == 0 ? 0 : dice.in(0.01, 6.2), slanted};
    const std::vector<HatchRow> rows = {
        hatchLine("h", {0, offset}, {size, slanted ? size : offset}, size, size)};
    const HatchFill fill{check.legs, rows, "h", scale, check.pattern.rotation};
    for (const HatchPiece& piece : fillHatch(fill)) check.pieces.push_back(hatchObject(piece, fill));
    return check;
}

void expectPiecesOnTheirLines(const Check& check)
{
    for (const EntityRecord& r : check.pieces) {
        for (const Point p : {r.p1, r.p2}) {
            const double line = check.lineOf({p.x, p.y});
            EXPECT_NEAR(line, std::nearbyint(line), 2e-3) << "off its line";
        }
    }
}

void expectMiddlesInside(const Check& check)
{
    for (const EntityRecord& r : check.pieces) {
        const Vec middle{(static_cast<double>(r.p1.x) + r.p2.x) / 2,
                         (static_cast<double>(r.p1.y) + r.p2.y) / 2};
        if (distanceToBoundary(check.legs, middle) < 1e-3) continue;
        EXPECT_TRUE(insideByParity(check.legs, middle)) << middle.x << ", " << middle.y;
    }
}

void expectNoOverlap(const Check& check)
{
    std::map<double, std::vector<std::pair<double, double>>> byLine;
    for (const EntityRecord& r : check.pieces) {
        const double a = check.along({r.p1.x, r.p1.y}), b = check.along({r.p2.x, r.p2.y});
        byLine[std::nearbyint(check.lineOf({r.p1.x, r.p1.y}))].emplace_back(std::min(a, b), std::max(a, b));
    }
    for (auto& [line, ranges] : byLine) {
        std::ranges::sort(ranges);
        for (std::size_t i = 1; i < ranges.size(); ++i)
            EXPECT_GE(ranges[i].first, ranges[i - 1].second - 2e-3);
    }
}

double lengthOfPieces(const Check& check)
{
    double length = 0;
    for (const EntityRecord& r : check.pieces) {
        length += std::hypot(static_cast<double>(r.p2.x) - r.p1.x, static_cast<double>(r.p2.y) - r.p1.y);
    }
    return length;
}

// Of the whole family of lines, also in the cells that no fill reaches: a little more than ours.
double lengthOfFamily(const Check& check)
{
    double low = 1e30, high = -1e30;
    for (const BoundaryLeg& leg : check.legs) {
        low = std::min(low, check.lineOf({leg.from.x, leg.from.y}));
        high = std::max(high, check.lineOf({leg.from.x, leg.from.y}));
    }
    const Vec d = check.direction();
    double length = 0;
    for (double line = std::ceil(low); line <= high; ++line) {
        const double across = check.firstAcross() + line * check.spacing();
        const Vec p{check.legs[0].from.x - d.y * across, check.legs[0].from.y + d.x * across};
        length += lengthInside(check.legs, p, d);
    }
    return length;
}

// Whether some part of a side of the cell at p lies inside, by many points on the sides.
bool cellIsReached(const Check& check, Vec p)
{
    const Point first = check.legs[0].from;
    const double c = std::cos(check.pattern.rotation), s = std::sin(check.pattern.rotation);
    const Vec right{c, -s}, down{s, c};
    const double size = check.pattern.size;
    const double column = std::floor(((p.x - first.x) * right.x + (p.y - first.y) * right.y) / size);
    const double row = std::floor(((p.x - first.x) * down.x + (p.y - first.y) * down.y) / size);
    const auto at = [&](double i, double j) {
        return Vec{first.x + size * (i * right.x + j * down.x), first.y + size * (i * right.y + j * down.y)};
    };
    constexpr int steps = 400;
    for (int k = 0; k < steps; ++k) {
        const double t = (k + 0.5) / steps;
        for (const Vec side :
             {at(column, row + t), at(column + 1, row + t), at(column + t, row), at(column + t, row + 1)}) {
            if (insideByParity(check.legs, side)) return true;
        }
    }
    return false;
}

// By small steps along each line.
double lengthOfFamilyInCells(const Check& check)
{
    double low = 1e30, high = -1e30;
    double alongLow = 1e30, alongHigh = -1e30;
    for (const BoundaryLeg& leg : check.legs) {
        const Vec p{leg.from.x, leg.from.y};
        low = std::min(low, check.lineOf(p));
        high = std::max(high, check.lineOf(p));
        alongLow = std::min(alongLow, check.along(p));
        alongHigh = std::max(alongHigh, check.along(p));
    }
    const Vec d = check.direction();
    const double step = check.pattern.size / 64;
    double length = 0;
    for (double line = std::ceil(low); line <= high; ++line) {
        const double across = check.firstAcross() + line * check.spacing();
        const Vec p{check.legs[0].from.x - d.y * across, check.legs[0].from.y + d.x * across};
        const double start = check.along(p);
        for (double a = alongLow + step / 2; a < alongHigh; a += step) {
            const Vec q{p.x + (a - start) * d.x, p.y + (a - start) * d.y};
            if (insideByParity(check.legs, q) && cellIsReached(check, q)) length += step;
        }
    }
    return length;
}

class RandomFill : public testing::TestWithParam<Shape> {};

TEST_P(RandomFill, PiecesLieOnTheirLinesInsideAndApart)
{
    std::size_t pieces = 0;
    for (unsigned seed = 0; seed < 150; ++seed) {
        SCOPED_TRACE(seed);
        const Check check = fillRandom(GetParam(), seed, seed % 2 == 0);
        expectPiecesOnTheirLines(check);
        expectMiddlesInside(check);
        expectNoOverlap(check);
        pieces += check.pieces.size();
        if (testing::Test::HasFailure()) return;
    }
    EXPECT_GT(pieces, 10000U) << "there was something to look at";
}

TEST_P(RandomFill, TheTotalLengthIsThatOfTheWholeFamilyOfLines)
{
    double filled = 0, whole = 0;
    for (unsigned seed = 0; seed < 150; ++seed) {
        SCOPED_TRACE(seed);
        const Check check = fillRandom(GetParam(), seed, seed % 2 == 0);
        const double ours = lengthOfPieces(check), all = lengthOfFamily(check);
        EXPECT_LE(ours, all * 1.0001 + 0.01);
        filled += ours;
        whole += all;
        if (testing::Test::HasFailure()) return;
    }
    EXPECT_GT(filled, 0.9 * whole) << "only cells that the grid does not reach are missing";
}

TEST_P(RandomFill, WhatIsMissingLiesInCellsWithNoSideInside)
{
    for (unsigned seed = 0; seed < 12; ++seed) {
        SCOPED_TRACE(seed);
        const Check check = fillRandom(GetParam(), seed, seed % 2 == 0);
        const double ours = lengthOfPieces(check), expected = lengthOfFamilyInCells(check);
        EXPECT_NEAR(ours, expected, 0.02 * expected + check.pattern.size);
    }
}

std::string nameOfShape(const testing::TestParamInfo<Shape>& info)
{
    const char* const names[] = {"Convex", "Concave", "SelfCrossing"};
    return names[static_cast<int>(info.param)];
}

INSTANTIATE_TEST_SUITE_P(Shapes, RandomFill, testing::Values(Shape::convex, Shape::concave, Shape::crossing),
                         nameOfShape);

} // namespace
} // namespace mirtane
