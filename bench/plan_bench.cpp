#include "plan_bench.h"

#include "render/redraw.h"
#include "sample.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <numbers>

namespace mirtane::bench {
namespace {

using benchmark::State;

constexpr std::int32_t texts = 10000;
constexpr std::int32_t ofEachDimension = 2000;
constexpr double degree = std::numbers::pi / 180;
constexpr float letterSize = 12;
constexpr float arrowSize = 8;

Point moved(Point p, double way, double degrees)
{
    return {static_cast<float>(p.x + way * std::cos(degrees * degree)), // world coordinates are 32-bit
            static_cast<float>(p.y - way * std::sin(degrees * degree))};
}

Point anywhere(Dice& dice)
{
    return {static_cast<float>(dice.between(0, width)),
            static_cast<float>(dice.between(0, height))}; // likewise
}

// One of forty angles, none of them right.
int freeAngle(Dice& dice)
{
    return static_cast<int>(dice.below(40)) * 9 + 4; // below 360
}

EntityRecord lettered(Dice& dice, Kind kind, const char* letters, std::size_t least, std::size_t more)
{
    constexpr std::int32_t colors[] = {0xFFFFFF, 0x00FF00, 0xFFFF00, 0x00FFFF, 0x0080FF};
    EntityRecord r;
    r.kind = kind;
    r.p1 = anywhere(dice);
    r.color = colors[dice.below(std::size(colors))];
    r.t2 = "Garamond";
    const std::string_view from = letters;
    for (std::size_t length = least + dice.below(more); length > 0; --length)
        r.t1 += from[dice.below(from.size())];
    return r;
}

EntityRecord text(Dice& dice)
{
    EntityRecord r = lettered(dice, Kind::text, "etaoinshrdlu ETAOIN 0123456789'\"/.-", 3, 18);
    r.p4 = r.p1;
    r.p2.x = letterSize;
    r.rad = 200;
    constexpr int right[] = {0, 90};
    const std::size_t way = dice.below(3);
    r.a1 = way < 2 ? right[way] : freeAngle(dice);
    return r;
}

EntityRecord dimension(Dice& dice, Kind kind)
{
    EntityRecord r = lettered(dice, kind, "0123456789'\"-/", 3, 6);
    r.s1 = static_cast<float>(1 + dice.below(3)); // the arrow's style
    r.s2 = letterSize;
    r.a1 = freeAngle(dice);
    return r;
}

EntityRecord linearDimension(Dice& dice)
{
    EntityRecord r = dimension(dice, Kind::linearDimension);
    const double length = dice.between(40, 160);
    r.p2 = moved(r.p1, length, r.a1);
    r.p4 = moved(r.p1, 25, r.a1 + 90);
    r.p3 = moved(r.p2, 25, r.a1 + 90);
    r.p5 = moved(r.p4, length / 3, r.a1);
    return r;
}

EntityRecord radialDimension(Dice& dice)
{
    EntityRecord r = dimension(dice, Kind::radialDimension);
    const double radius = dice.between(15, 50);
    r.p4 = moved(r.p1, radius, r.a1);
    r.p2 = moved(r.p1, radius + 30, r.a1);
    r.p5 = r.p3 = moved(r.p2, 15, 0);
    r.a1 = 0;
    return r;
}

EntityRecord leader(Dice& dice)
{
    EntityRecord r = dimension(dice, Kind::leader);
    r.p2 = moved(r.p1, dice.between(30, 80), r.a1);
    r.p5 = r.p3 = moved(r.p2, 15, 0);
    r.a2 = arrowSize;
    r.a1 = 0;
    return r;
}

EntityRecord angularDimension(Dice& dice)
{
    EntityRecord r = dimension(dice, Kind::angularDimension);
    const double from = r.a1;
    const double to = from + dice.between(30, 90);
    r.rad = static_cast<float>(dice.between(20, 60)); // world coordinates are 32-bit
    r.style = static_cast<std::int16_t>(r.s1);        // 1 to 3
    r.s1 = arrowSize;
    r.p2 = moved(r.p1, r.rad - 10.0, from);
    r.p3 = moved(r.p1, r.rad - 10.0, to);
    r.p4 = moved(r.p1, r.rad, from);
    r.p5 = moved(r.p1, r.rad + 4.0, (from + to) / 2);
    r.a1 = from * degree;
    r.a2 = to * degree;
    r.a3 = freeAngle(dice);
    return r;
}

struct PlanBench {
    PlanBench()
    {
        Dice dice;
        for (std::int32_t i = 0; i < texts; ++i) add(text(dice));
        for (std::int32_t i = 0; i < ofEachDimension; ++i) {
            for (const auto make : {linearDimension, radialDimension, leader, angularDimension})
                add(make(dice));
        }
        show(surface);
    }

    void add(const EntityRecord& r)
    {
        s.store.setRecord(s.store.entCount, r);
        s.store.setStat(s.store.entCount++, Stat::on);
    }

    void show(Surface& on)
    {
        on.setScale({0, 0, width, height});
        readViewLimits(s, on);
    }

    std::unique_ptr<Session> session = std::make_unique<Session>();
    Session& s = *session;
    Surface surface{width, height};
};

PlanBench& planBench()
{
    static PlanBench bench;
    return bench;
}

void redraw(State& state)
{
    PlanBench& b = planBench();
    redrawAll(b.s, b.surface);
    for (auto _ : state) redrawAll(b.s, b.surface);
}

// On a surface that has written no letter yet.
void firstPicture(State& state)
{
    PlanBench& b = planBench();
    for (auto _ : state) {
        state.PauseTiming();
        auto fresh = std::make_unique<Surface>(width, height);
        b.show(*fresh);
        state.ResumeTiming();
        redrawAll(b.s, *fresh);
        state.PauseTiming();
        fresh.reset();
        state.ResumeTiming();
    }
}

// The step of a wheel: every letter in a new size, there and back and there.
void zoomStep(State& state)
{
    PlanBench& b = planBench();
    int step = 0;
    for (auto _ : state) {
        const float side = 1.0F + 0.1F * static_cast<float>(step++ % 5); // exact enough
        b.surface.setScale({0, 0, width * side, height * side});
        readViewLimits(b.s, b.surface);
        redrawAll(b.s, b.surface);
    }
    b.show(b.surface);
}

} // namespace

void registerPlanMeasures()
{
    benchmark::RegisterBenchmark("18,000 with lettering", redraw)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("the same, first picture", firstPicture)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("the same, zoomed by steps", zoomStep)->Unit(benchmark::kMillisecond);
}

std::span<const Comparison> planComparisons()
{
    static constexpr Comparison rows[] = {
        {"18,000 with lettering", "the toolkit's, mixed", 0, 16},
        {"the same, first picture", "the toolkit's, mixed", 0, 150},
        {"the same, zoomed by steps", "the toolkit's, mixed", 0},
    };
    return rows;
}

} // namespace mirtane::bench
