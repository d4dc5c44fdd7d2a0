// Fills of random boundaries with random tiles, piece by piece against the slow way of the model.

#include "hatch_fill_model.h"

#include "library_desk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numbers>
#include <random>

namespace mirtane {
namespace {

using fake::Curve;
using fake::Expected;
using fake::FillModel;
using fake::Part;
using fake::Vec;

constexpr double turn = 2 * std::numbers::pi;

// On the grid: every number is a whole one, corners and sides lie on the lines of the grid, lines of the
// tile lie along sides, circles touch.
enum class Shape { convex, concave, crossing, onGrid };

class Dice {
  public:
    explicit Dice(unsigned seed) : engine_(seed) {}
    double in(double low, double high) { return std::uniform_real_distribution(low, high)(engine_); }
    int of(int low, int high) { return std::uniform_int_distribution(low, high)(engine_); }
    bool oneIn(int count) { return of(1, count) == 1; }

  private:
    std::mt19937 engine_;
};

Point pointAt(double x, double y)
{
    return {static_cast<float>(x), static_cast<float>(y)}; // 32 bits are what the program is given
}

// The length, world units, by which coordinates of this test may be off.
constexpr double roundedOff = 2e-4;

// -- boundaries --

std::vector<Point> cornersOffGrid(Shape shape, Dice& dice)
{
    const int count = dice.of(3, 12);
    const double cx = dice.in(-500, 500), cy = dice.in(-500, 500);
    std::vector<Point> points;
    for (int i = 0; i < count; ++i) {
        const double angle = turn * (i + dice.in(0, 0.8)) / count;
        const double r = shape == Shape::convex ? 90 : dice.in(20, 120);
        points.push_back(pointAt(cx + r * std::cos(angle), cy + r * std::sin(angle)));
    }
    if (shape == Shape::crossing) {
        for (std::size_t i = points.size() - 1; i > 0; --i) {
            std::swap(points[i], points[static_cast<std::size_t>(dice.of(0, static_cast<int>(i)))]);
        }
    }
    return points;
}

// A walk by half tiles, level, upright and along the tile's diagonals, which ends level and upright. Its
// lengths are powers of two, so that also what lies on a diagonal does so exactly.
std::vector<Point> cornersOnGrid(double width, double height, Dice& dice)
{
    std::vector<Point> points;
    int x = dice.of(-9, 9), y = dice.of(-9, 9);
    const auto add = [&] { points.push_back(pointAt(x * width / 2, y * height / 2)); };
    const int firstX = x;
    add();
    for (int i = dice.of(2, 9); i > 0; --i) {
        const int length = 1 << dice.of(0, 3);
        x += length * dice.of(-1, 1);
        y += length * dice.of(-1, 1);
        add();
    }
    x = firstX;
    add();
    return points;
}

// -- tiles --

// A number within the tile or not far from it.
double around(bool onGrid, Dice& dice)
{
    return onGrid ? dice.of(-1, 5) / 4.0 : dice.in(-0.3, 1.3);
}

HatchRow randomRow(double width, double height, bool onGrid, Dice& dice)
{
    const auto place = [&] { return pointAt(around(onGrid, dice) * width, around(onGrid, dice) * height); };
    HatchRow row = fake::hatchLine("h", place(), place(), static_cast<float>(width), // as above
                                   static_cast<float>(height));                      // as above
    if (dice.oneIn(2)) row.h2 = dice.oneIn(2) ? Point{row.h1.x, row.h2.y} : Point{row.h2.x, row.h1.y};
    constexpr Kind kinds[] = {Kind::line, Kind::line, Kind::circle, Kind::arc, Kind::point};
    row.hatchKind = kinds[dice.of(0, 4)];
    const double part = onGrid ? dice.of(1, 3) / 4.0 : dice.in(0.1, 0.7);
    row.hatchRad = static_cast<float>(part * std::min(std::abs(width), std::abs(height))); // as above
    row.hatchA1 = dice.in(0, turn);
    row.hatchA2 = dice.in(0, turn);
    return row;
}

std::vector<HatchRow> randomRows(double width, double height, bool onGrid, Dice& dice)
{
    std::vector<HatchRow> rows;
    for (int i = dice.of(1, 4); i > 0; --i) {
        rows.push_back(randomRow(width, height, onGrid, dice));
        if (dice.oneIn(4)) rows.push_back(randomRow(-width, 3 * height, onGrid, dice)); // of a namesake
        if (dice.oneIn(4)) rows.back().hatchName = rows.size() > 1 ? "other" : "h";
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i].hatchStyle = static_cast<std::int16_t>(i); // tells the pieces of the rows apart
    }
    return rows;
}

struct Case {
    std::vector<BoundaryLeg> legs;
    std::vector<HatchRow> rows;
    float scale = 1;
    double rotation = 0;

    HatchFill fill() const { return {legs, rows, "h", scale, rotation}; }
};

Case randomCase(Shape shape, Dice& dice)
{
    const bool onGrid = shape == Shape::onGrid;
    Case c;
    c.scale = static_cast<float>(1 << dice.of(0, 2)) / 2; // exact
    const auto size = [&] { return onGrid ? 8.0 * dice.of(1, 2) : dice.in(8, 24) / c.scale; };
    const double width = size() * (dice.oneIn(3) ? -1 : 1), height = size() * (dice.oneIn(3) ? -1 : 1);
    c.rows = randomRows(width, height, onGrid, dice);
    if (!onGrid && !dice.oneIn(3)) c.rotation = dice.in(0.01, 6.2);
    c.legs = fake::legsThrough(onGrid ? cornersOnGrid(width * c.scale, height * c.scale, dice)
                                      : cornersOffGrid(shape, dice));
    return c;
}

// -- comparing --

// The pieces of a fill in their order, as parts of the curves they belong to.
class Pieces {
  public:
    Pieces(const HatchFill& fill, const FillModel& model) : fill_(fill), model_(model)
    {
        for (const HatchPiece& piece : fillHatch(fill)) pieces_.push_back(hatchObject(piece, fill));
    }

    // Those that come next and lie on the curve.
    std::vector<Part> takeOn(const Curve& curve)
    {
        std::vector<Part> parts;
        while (next_ < pieces_.size() && pieces_[next_].style == curve.style) {
            const EntityRecord& r = pieces_[next_];
            if (!(curve.kind == Kind::line ? addLine(r, curve, parts) : addRound(r, curve, parts))) break;
            ++next_;
        }
        return parts;
    }

    bool areAllTaken() const { return next_ == pieces_.size(); }
    std::size_t count() const { return pieces_.size(); }

  private:
    static bool isAt(Vec a, Vec b) { return std::hypot(a.x - b.x, a.y - b.y) < 1e-3; }

    bool addLine(const EntityRecord& r, const Curve& curve, std::vector<Part>& parts) const
    {
        const Vec a = model_.toTile(r.p1), b = model_.toTile(r.p2);
        const Part part{curve.partAt(a), curve.partAt(b)};
        if (!isAt(a, curve.at(std::clamp(part.from, 0.0, 1.0)))) return false;
        if (!isAt(b, curve.at(std::clamp(part.to, 0.0, 1.0)))) return false;
        if (part.from > part.to || (!parts.empty() && part.from < parts.back().to - 1e-3)) return false;
        parts.push_back(part);
        return r.kind == Kind::line;
    }

    // A circle, an arc or a point; a whole one is all there is.
    bool addRound(const EntityRecord& r, const Curve& curve, std::vector<Part>& parts) const
    {
        if (!isAt(model_.toTile(r.p1), curve.a) || std::abs(r.rad - curve.radius) > 1e-4) return false;
        if (r.kind != Kind::arc) {
            parts.push_back({0, 1});
            return r.kind == curve.kind;
        }
        const Vec from = model_.toTile(r.p2), to = model_.toTile(r.p3), middle = model_.toTile(r.p4);
        Part part{partAt(curve, r.a1), 0};
        part.to = part.from + turn * fractionOf((r.a2 - r.a1) / turn) / curve.sweep;
        EXPECT_TRUE(isAt(from, curve.at(part.from)) && isAt(to, curve.at(part.to)));
        EXPECT_TRUE(isAt(middle, curve.at((part.from + part.to) / 2)));
        parts.push_back(part);
        return true;
    }

    static double fractionOf(double t) { return t - std::floor(t); }

    // Of an angle in the drawing.
    double partAt(const Curve& curve, double angle) const
    {
        const double turns = fractionOf((angle - fill_.rotation - curve.start) / turn);
        return (turns > 1 - 1e-6 ? 0 : turns) * turn / curve.sweep;
    }

    const HatchFill& fill_;
    const FillModel& model_;
    std::vector<EntityRecord> pieces_;
    std::size_t next_ = 0;
};

// How often the parts cover t. Those of a circle may run past 1.
int coverOf(const std::vector<Part>& parts, double t)
{
    int count = 0;
    for (const Part& part : parts) {
        for (const double at : {t, t + 1}) count += at > part.from && at < part.to ? 1 : 0;
    }
    return count;
}

// The part of the curve that is covered otherwise than expected, too often among it.
double difference(const std::vector<Part>& ours, const std::vector<Part>& expected)
{
    std::vector<double> ends{0, 1};
    for (const auto* parts : {&ours, &expected}) {
        for (const Part& part : *parts) {
            for (const double end : {part.from, part.to}) ends.push_back(end > 1 ? end - 1 : end);
        }
    }
    std::ranges::sort(ends);
    double sum = 0;
    for (std::size_t i = 1; i < ends.size(); ++i) {
        const double middle = (ends[i - 1] + ends[i]) / 2;
        if (coverOf(ours, middle) != coverOf(expected, middle)) sum += ends[i] - ends[i - 1];
    }
    return sum;
}

struct Tally {
    std::size_t pieces = 0, curves = 0, doubtful = 0;
    std::size_t kinds[drawnKinds] = {}; // of the curves that are in part inside
};

void compare(const Case& c, const FillModel& model, Tally& tally)
{
    const HatchFill fill = c.fill();
    Pieces pieces(fill, model);
    for (const Expected& expected : model.curves()) {
        const std::vector<Part> ours = pieces.takeOn(expected.curve);
        ++tally.curves;
        tally.doubtful += expected.doubtful ? 1U : 0U;
        if (expected.doubtful) continue;
        tally.kinds[placeOf(expected.curve.kind)] += expected.inside.empty() ? 0U : 1U;
        const double wrong = difference(ours, expected.inside);
        const Vec at = expected.curve.a;
        EXPECT_LE(wrong * expected.curve.length(), 1e-3 * expected.curve.length() + roundedOff)
            << "kind " << numberOf(expected.curve.kind) << ", row " << expected.curve.style << ", from "
            << at.x << ", " << at.y << " in the tile's directions";
    }
    EXPECT_TRUE(pieces.areAllTaken()) << "a piece that belongs nowhere, or in another order";
    tally.pieces += pieces.count();
}

class RandomFill : public testing::TestWithParam<Shape> {};

TEST_P(RandomFill, EveryPieceIsThereAndNoneBesides)
{
    Tally tally;
    int compared = 0;
    for (unsigned seed = 0; seed < 800 && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        Dice dice(seed);
        const Case c = randomCase(GetParam(), dice);
        const HatchFill fill = c.fill();
        const FillModel model(fill);
        if (GetParam() != Shape::onGrid && model.isDoubtful()) continue;
        compare(c, model, tally);
        ++compared;
    }
    if (HasFailure()) return;
    EXPECT_GT(compared, 90);
    EXPECT_GT(tally.pieces, 10000U) << "there was something to look at";
    EXPECT_LT(tally.doubtful, tally.curves / 20);
    for (const Kind kind : {Kind::line, Kind::circle, Kind::arc, Kind::point}) {
        EXPECT_GT(tally.kinds[placeOf(kind)], 1000U) << numberOf(kind);
    }
}

std::string nameOfShape(const testing::TestParamInfo<Shape>& info)
{
    const char* const names[] = {"Convex", "Concave", "SelfCrossing", "OnTheGrid"};
    return names[static_cast<int>(info.param)]; // as the names are listed
}

INSTANTIATE_TEST_SUITE_P(Shapes, RandomFill,
                         testing::Values(Shape::convex, Shape::concave, Shape::crossing, Shape::onGrid),
                         nameOfShape);

} // namespace
} // namespace mirtane
