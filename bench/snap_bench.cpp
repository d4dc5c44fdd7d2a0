#include "snap_bench.h"

#include "app/drawing/click_point.h"
#include "sample.h"
#include "snap/pick.h"
#include "snap/snap.h"
#include "snap/window_selection.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace mirtane::bench {
namespace {

using benchmark::DoNotOptimize;
using benchmark::State;

enum Drawing : std::size_t { lines, allKinds };

float even(std::mt19937& engine, float low, float high)
{
    return low + (high - low) * static_cast<float>(engine()) / 4294967296.0F; // 24 bits will do
}

EntityRecord anObject(std::mt19937& engine)
{
    EntityRecord r;
    r.kind = everyKind[engine() % drawnKinds];
    const Point at{even(engine, 0, width), even(engine, 0, height)};
    for (Point* p : {&r.p1, &r.p2, &r.p3, &r.p4, &r.p5})
        *p = {at.x + even(engine, -40, 40), at.y + even(engine, -40, 40)};
    r.rad = even(engine, 2, 40);
    r.a1 = even(engine, 0, 6.28F);
    r.a2 = even(engine, 0, 6.28F);
    if (r.kind == Kind::ellipse) r.p3.x = even(engine, 0.2F, 1);
    return r;
}

void fillWithAllKinds(Session& s)
{
    std::mt19937 engine{1994};
    for (std::int32_t i = 0; i < lineCount; ++i) {
        const std::int32_t slot = s.store.entCount++;
        s.store.setRecord(slot, anObject(engine));
        s.store.setStat(slot, Stat::on);
    }
}

// Clicks go round over the picture, the second ones of a line that begins in its middle.
Point clickAt(int step)
{
    const double angle = step * 0.7;
    return {static_cast<float>(width / 2.0 + 500 * std::cos(angle)), // world coordinates are 32-bit
            static_cast<float>(height / 2.0 + 300 * std::sin(angle))};
}

void prepareClick(Session& s, int step)
{
    s.curFunc = "Line";
    s.stepNo = 2;
    s.pickFirst = {width / 2.0F, height / 2.0F};
    s.mousePos = s.pickLast = clickAt(step);
}

void snap(State& state, SnapBench& b, Drawing drawing, const char* code)
{
    Session& s = b.sessions[drawing];
    Control& snapbox = s.controls["snapbox"_c];
    int step = 0;
    for (auto _ : state) {
        prepareClick(s, step++);
        snapbox.text = code;
        oneShotSnap(s, b.pic1);
        DoNotOptimize(s.pickLast);
    }
}

// What a move of the pointer costs beside its rubber band while a snap is on, with the snap that looks twice.
void mark(State& state, SnapBench& b, Drawing drawing)
{
    Session& s = b.sessions[drawing];
    prepareClick(s, 0);
    s.stepNo = 1;
    s.controls["snapbox"_c].text = "si";
    int step = 0;
    for (auto _ : state) DoNotOptimize(aimOfClick(s, b.pic1, clickAt(step++)));
    s.controls["snapbox"_c].text.clear();
}

void pick(State& state, SnapBench& b, Drawing drawing)
{
    Session& s = b.sessions[drawing];
    int step = 0;
    for (auto _ : state) {
        prepareClick(s, step++);
        DoNotOptimize(pickObject(s, b.pic1));
    }
}

// A window over a quarter of the picture. The marks are taken back by a copy of the states, which is not
// counted.
void window(State& state, SnapBench& b, Drawing drawing, bool filtered)
{
    Session& s = b.sessions[drawing];
    const std::vector<Stat> unmarked = s.store.stat;
    s.filterColor = white;
    for (auto _ : state) {
        s.window1 = {width * 0.25F, height * 0.25F};
        s.window2 = {width * 0.75F, height * 0.75F};
        selectInWindow(s, filtered);
        state.PauseTiming();
        s.store.stat = unmarked;
        state.ResumeTiming();
    }
}

// The box round the first two points and the radius of all objects shown: state, kind and these arrays, read
// once.
Limits boxOfAll(const EntityStore& store)
{
    Limits all{INFINITY, INFINITY, -INFINITY, -INFINITY};
    for (std::size_t i = 1; i < EntityStore::at(store.end()); ++i) {
        if (store.stat[i] != Stat::on || store.kind[i] > Kind::angularDimension) continue;
        const Point a = store.p1[i];
        const Point b = store.p2[i];
        const float r = store.rad[i];
        all = {std::min({all.left, a.x - r, b.x}), std::min({all.top, a.y - r, b.y}),
               std::max({all.right, a.x + r, b.x}), std::max({all.bottom, a.y + r, b.y})};
    }
    return all;
}

void plainPass(State& state, SnapBench& b, Drawing drawing)
{
    const EntityStore& store = b.sessions[drawing].store;
    for (auto _ : state) {
        DoNotOptimize(drawing == lines ? limitsOf(store) : boxOfAll(store));
        benchmark::ClobberMemory();
    }
}

constexpr const char* passNames[] = {"a pass over the lines", "a pass over all kinds"};

struct SnapRow {
    const char* code;
    const char* names[2]; // by Drawing
};

constexpr SnapRow snapRows[] = {
    {"sp", {"Snap Point, lines", "Snap Point, all kinds"}},
    {"so", {"Snap Object, lines", "Snap Object, all kinds"}},
    {"si", {"Snap Intersection, lines", "Snap Intersection, all kinds"}},
    {"sf", {"Snap Percentage, lines", "Snap Percentage, all kinds"}},
    {"sn", {"Snap Perpendicular, lines", "Snap Perpendicular, all kinds"}},
    {"st", {"Snap Tangent, lines", "Snap Tangent, all kinds"}},
    {"sm", {"Snap Midpoint, lines", "Snap Midpoint, all kinds"}},
};

constexpr const char* markNames[] = {"mark of a snap, lines", "mark of a snap, all kinds"};
constexpr const char* pickNames[] = {"pick, lines", "pick, all kinds"};
constexpr const char* windowNames[] = {"window, lines", "window, all kinds"};
constexpr const char* filteredNames[] = {"window filtered, lines", "window filtered, all kinds"};

constexpr const SnapRow& intersectionRow = snapRows[2];

constexpr double aim = 5;
constexpr double markWithin = 2; // milliseconds of each move

} // namespace

SnapBench::SnapBench() : pic1(Size{width, height})
{
    fillWithLines(sessions[lines]);
    fillWithAllKinds(sessions[allKinds]);
    pic1.setScale({0, 0, width, height});
}

void registerSnapMeasures(SnapBench& bench)
{
    const auto add = [&bench](const char* name, auto measure, auto... more) {
        benchmark::RegisterBenchmark(name, [=, &bench](State& state) {
            measure(state, bench, more...);
        })->Unit(benchmark::kMillisecond);
    };
    for (const Drawing d : {lines, allKinds}) {
        for (const SnapRow& row : snapRows) add(row.names[d], snap, d, row.code);
        add(markNames[d], mark, d);
        add(pickNames[d], pick, d);
        add(windowNames[d], window, d, false);
        add(filteredNames[d], window, d, true);
        add(passNames[d], plainPass, d);
    }
}

std::span<const Comparison> snapComparisons()
{
    static const std::vector<Comparison> rows = [] {
        std::vector<Comparison> all;
        for (const Drawing d : {lines, allKinds}) {
            for (const SnapRow& row : snapRows) all.push_back({row.names[d], passNames[d], aim});
            // The mark is that search, and what it changed put back.
            all.push_back({markNames[d], intersectionRow.names[d], 2, markWithin});
            for (const auto& names : {pickNames, windowNames, filteredNames})
                all.push_back({names[d], passNames[d], aim});
        }
        return all;
    }();
    return rows;
}

} // namespace mirtane::bench
