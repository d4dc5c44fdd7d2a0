#include "hatch_bench.h"

#include <benchmark/benchmark.h>

#include <algorithm>

namespace mirtane::bench {
namespace {

using benchmark::DoNotOptimize;
using benchmark::State;

constexpr const char* name = "Brick";

// The corners of a room with a bay and a chimney, none of them on a line of the tile.
constexpr Point corners[] = {{0, 0},       {1000, 31},  {1003, 400}, {1217, 405}, {1222, 777}, {1000, 790},
                             {1011, 1203}, {630, 1200}, {622, 1011}, {433, 1018}, {440, 1190}, {-17, 1180}};

HatchRow row(Point a, Point b)
{
    HatchRow r;
    r.hatchName = name;
    r.h1 = a;
    r.h2 = b;
    r.hatchTileW = 24;
    r.hatchTileH = 16;
    r.hatchKind = Kind::line;
    return r;
}

// Two courses of brick, half a brick apart.
std::vector<HatchRow> brick()
{
    return {row({0, 0}, {24, 0}), row({0, 8}, {24, 8}), row({0, 0}, {0, 8}), row({12, 8}, {12, 16})};
}

std::vector<HatchPiece> fill(const HatchBench& b, std::size_t size)
{
    return fillHatch({b.room, b.rows, name, b.scales[size], 0});
}

std::vector<PlainSegment> uncut(const HatchBench& b, float scale)
{
    const Polygon polygon = polygonOf(b.room);
    const HatchRow& first = b.rows[0];
    const HatchGrid grid =
        hatchGrid(polygon, {b.room[0].from, scale * first.hatchTileW, scale * first.hatchTileH});
    std::vector<PlainSegment> all;
    for (const HatchCell& cell : reachedCells(polygon, grid)) {
        const float x = cell.left, y = cell.top; // of tiles that are wide and high above 0
        for (const HatchRow& r : b.rows) {
            all.push_back(
                {{x + scale * r.h1.x, y + scale * r.h1.y}, {x + scale * r.h2.x, y + scale * r.h2.y}});
        }
    }
    return all;
}

bool plainInside(std::span<const BoundaryLeg> room, double x, double y)
{
    bool inside = false;
    for (const auto& [a, b] : room) {
        if ((a.x <= x) != (b.x <= x) && a.y + (b.y - a.y) * (x - a.x) / (b.x - a.x) > y) inside = !inside;
    }
    return inside;
}

// Where the segment crosses the sides, as parts of its length, 0 and 1 among them.
void plainCuts(std::span<const BoundaryLeg> room, const PlainSegment& s, std::vector<double>& cuts)
{
    cuts.assign({0, 1});
    const double dx = s.to.x - s.from.x, dy = s.to.y - s.from.y;
    for (const auto& [a, b] : room) {
        const double ex = b.x - a.x, ey = b.y - a.y;
        const double across = dx * ey - dy * ex;
        if (across == 0) continue;
        const double t = ((a.x - s.from.x) * ey - (a.y - s.from.y) * ex) / across;
        const double u = ((a.x - s.from.x) * dy - (a.y - s.from.y) * dx) / across;
        if (t > 0 && t < 1 && u >= 0 && u <= 1) cuts.push_back(t);
    }
    std::ranges::sort(cuts);
}

std::vector<PlainSegment> plainClip(std::span<const BoundaryLeg> room, std::span<const PlainSegment> segments)
{
    std::vector<PlainSegment> pieces;
    std::vector<double> cuts;
    for (const PlainSegment& s : segments) {
        plainCuts(room, s, cuts);
        const auto at = [&s](double t) {
            return Point{static_cast<float>(s.from.x + t * (s.to.x - s.from.x)),
                         static_cast<float>(s.from.y + t * (s.to.y - s.from.y))};
        };
        for (std::size_t i = 1; i < cuts.size(); ++i) {
            const Point middle = at((cuts[i - 1] + cuts[i]) / 2);
            if (plainInside(room, middle.x, middle.y)) pieces.push_back({at(cuts[i - 1]), at(cuts[i])});
        }
    }
    return pieces;
}

constexpr const char* fillNames[] = {"hatch, 5,000 pieces", "hatch, 20,000 pieces"};
constexpr const char* plainNames[] = {"plain clip, 5,000 pieces", "plain clip, 20,000 pieces"};
constexpr std::size_t leastPieces[] = {4500, 18000};

// The sizes are no use to a reader unless they are what their names say.
void expectSize(State& state, std::size_t size, std::size_t pieces)
{
    if (pieces < leastPieces[size]) state.SkipWithError("fewer pieces than the name says");
}

void measureFill(State& state, const HatchBench& b, std::size_t size)
{
    expectSize(state, size, fill(b, size).size());
    for (auto _ : state) DoNotOptimize(fill(b, size));
}

void measurePlain(State& state, const HatchBench& b, std::size_t size)
{
    expectSize(state, size, plainClip(b.room, b.segments[size]).size());
    for (auto _ : state) DoNotOptimize(plainClip(b.room, b.segments[size]));
}

} // namespace

HatchBench::HatchBench() : rows(brick()), scales{1.62F, 0.81F}
{
    for (std::size_t i = 0; i < std::size(corners); ++i) {
        room.push_back({corners[i], corners[(i + 1) % std::size(corners)]});
    }
    for (std::size_t size = 0; size < scales.size(); ++size) segments[size] = uncut(*this, scales[size]);
}

void registerHatchMeasures(HatchBench& bench)
{
    for (std::size_t size = 0; size < bench.scales.size(); ++size) {
        const auto add = [&bench, size](const char* what, auto measure) {
            benchmark::RegisterBenchmark(what, [&bench, size, measure](State& state) {
                measure(state, bench, size);
            })->Unit(benchmark::kMillisecond);
        };
        add(fillNames[size], measureFill);
        add(plainNames[size], measurePlain);
    }
}

std::span<const Comparison> hatchComparisons()
{
    // Four times the cells in four times the time, with a little to spare.
    static constexpr Comparison rows[] = {{fillNames[0], plainNames[0], 3},
                                          {fillNames[1], plainNames[1], 3},
                                          {fillNames[1], fillNames[0], 4.8}};
    return rows;
}

} // namespace mirtane::bench
