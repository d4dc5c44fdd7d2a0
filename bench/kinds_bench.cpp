#include "kinds_bench.h"

#include "render/redraw.h"
#include "sample.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace mirtane::bench {
namespace {

using benchmark::State;

constexpr std::int32_t objectCount = 59000;
constexpr std::int32_t colors[] = {0xFFFFFF, 0x0000FF, 0x00FF00, 0xFFFF00, 0x00FFFF};
constexpr double turn = 2 * std::numbers::pi;

Point placed(double x, double y)
{
    return {static_cast<float>(x), static_cast<float>(y)}; // world coordinates are 32-bit
}

EntityRecord somewhere(Dice& dice, Kind kind)
{
    EntityRecord r;
    r.kind = kind;
    r.p1 = placed(dice.between(0, width), dice.between(0, height));
    r.color = colors[dice.below(std::size(colors))];
    return r;
}

// Of five, four are small.
double reach(Dice& dice)
{
    return dice.below(5) < 4 ? dice.between(2, 20) : dice.between(20, 100);
}

EntityRecord line(Dice& dice)
{
    EntityRecord r = somewhere(dice, Kind::line);
    const double length = dice.below(5) < 4 ? dice.between(5, 75) : dice.between(200, 1500);
    const double angle = dice.between(0, turn);
    r.p2 = placed(r.p1.x + length * std::cos(angle), r.p1.y + length * std::sin(angle));
    return r;
}

EntityRecord dashedLine(Dice& dice)
{
    EntityRecord r = line(dice);
    r.style = static_cast<std::int16_t>(1 + dice.below(4)); // 1 to 4
    return r;
}

EntityRecord circle(Dice& dice)
{
    EntityRecord r = somewhere(dice, Kind::circle);
    r.rad = static_cast<float>(reach(dice)); // world coordinates are 32-bit
    return r;
}

EntityRecord arc(Dice& dice)
{
    EntityRecord r = circle(dice);
    r.kind = Kind::arc;
    r.a1 = dice.between(0, turn);
    r.a2 = dice.between(0, turn);
    r.p2 = placed(r.p1.x + r.rad * std::cos(r.a1), r.p1.y - r.rad * std::sin(r.a1));
    return r;
}

EntityRecord ellipse(Dice& dice)
{
    EntityRecord r = somewhere(dice, Kind::ellipse);
    const double angle = dice.between(0, turn);
    const double axis = reach(dice);
    r.p2 = r.p1;
    r.p1 = placed(r.p2.x + axis * std::cos(angle), r.p2.y - axis * std::sin(angle));
    r.p3.x = static_cast<float>(dice.between(0.2, 1)); // likewise
    return r;
}

EntityRecord point(Dice& dice)
{
    return somewhere(dice, Kind::point);
}

using Plain = void (*)(const EntityStore&, const Scale&, Image);

struct KindRow {
    const char* name;
    const char* plainName;
    EntityRecord (*make)(Dice&);
    Plain plain;
};

constexpr KindRow kinds[] = {
    {"59,000 lines", "lines, by a bare loop", line, drawLines},
    {"59,000 dashed lines", "dashed lines, by a bare loop", dashedLine, drawLines},
    {"59,000 circles", "circles, by a bare loop", circle, drawShapes},
    {"59,000 arcs", "arcs, by a bare loop", arc, drawShapes},
    {"59,000 ellipses", "ellipses, by a bare loop", ellipse, drawShapes},
    {"59,000 points", "points, by a bare loop", point, drawShapes},
};

constexpr Scale allOfIt{0, 0, width, height};

struct KindBench {
    explicit KindBench(const KindRow& kind)
    {
        Dice dice;
        for (std::int32_t i = 1; i <= objectCount; ++i) {
            s.store.setRecord(i, kind.make(dice));
            s.store.setStat(i, Stat::on);
        }
        s.store.entCount = objectCount + 1;
        surface.setScale(allOfIt);
        readViewLimits(s, surface);
    }

    std::unique_ptr<Session> session = std::make_unique<Session>();
    Session& s = *session;
    Surface surface{width, height};
};

KindBench& benchOf(const KindRow& kind)
{
    static std::unique_ptr<KindBench> benches[std::size(kinds)];
    std::unique_ptr<KindBench>& bench = benches[&kind - kinds];
    if (bench == nullptr) bench = std::make_unique<KindBench>(kind);
    return *bench;
}

void redraw(State& state, const KindRow& kind)
{
    KindBench& b = benchOf(kind);
    for (auto _ : state) redrawAll(b.s, b.surface);
}

void plainRedraw(State& state, const KindRow& kind)
{
    const KindBench& b = benchOf(kind);
    static std::vector<std::uint32_t> pixels(std::size_t{width} * height);
    static std::vector<std::uint32_t> clean = pixels;
    for (auto _ : state) {
        std::fill(pixels.begin(), pixels.end(), 0xFF000000U);
        kind.plain(b.s.store, allOfIt, {pixels, width, height});
        std::copy(pixels.begin(), pixels.end(), clean.begin());
        benchmark::ClobberMemory();
    }
}

} // namespace

void registerKindMeasures()
{
    for (const KindRow& kind : kinds) {
        const auto add = [&kind](const char* name, auto measure) {
            benchmark::RegisterBenchmark(name, [measure, &kind](State& state) {
                measure(state, kind);
            })->Unit(benchmark::kMillisecond);
        };
        add(kind.name, redraw);
        add(kind.plainName, plainRedraw);
    }
}

std::span<const Comparison> kindComparisons()
{
    static const std::vector<Comparison> rows = [] {
        std::vector<Comparison> all;
        for (const KindRow& kind : kinds) all.push_back({kind.name, kind.plainName, 1.5, 16});
        return all;
    }();
    return rows;
}

} // namespace mirtane::bench
