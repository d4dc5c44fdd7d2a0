#include "dxf_bench.h"

#include "dxf/dxf_reader.h"
#include "dxf/scanner.h"
#include "exchange/full_reading.h"
#include "sample.h"

#include <benchmark/benchmark.h>

namespace mirtane::bench {
namespace {

using benchmark::DoNotOptimize;
using benchmark::State;

// Of twelve objects ten are lines, one is a circle and one an arc.
void makeSomeRound(EntityStore& store)
{
    for (std::int32_t i = 1; i < store.end(); ++i) {
        const std::size_t at = EntityStore::at(i);
        store.stat[at] = Stat::sel;
        if (i % 12 > 1) continue;
        store.kind[at] = i % 12 == 0 ? Kind::circle : Kind::arc;
        store.rad[at] = static_cast<float>(5 + i % 90); // small whole numbers
        store.a1[at] = i % 6;
        store.a2[at] = i % 5 + 0.5;
    }
}

std::string withEndedCircles(std::string_view file)
{
    constexpr std::string_view shortEnd = "\r\n 0\r\n", end = "\r\n  0\r\n";
    std::string ended;
    ended.reserve(file.size() + file.size() / 50);
    std::size_t from = 0;
    for (std::size_t at = file.find(shortEnd); at != std::string_view::npos; at = file.find(shortEnd, from)) {
        ended.append(file, from, at - from).append(end);
        from = at + shortEnd.size();
    }
    return ended.append(file, from);
}

float noWidth(const EntityRecord&)
{
    return 0;
}

void write(State& state, DxfBench& b)
{
    for (auto _ : state) DoNotOptimize(dxfFile(b.drawing.store, b.scratch));
}

void read(State& state, DxfBench& b)
{
    for (auto _ : state) readDxf(b.opened, b.file, noWidth);
    if (b.opened.store.entCount != lineCount + 1) state.SkipWithError("not all objects were read");
}

void readFully(State& state, DxfBench& b)
{
    for (auto _ : state) takeReading(b.opened, readInFull(b.file), noWidth);
    constexpr std::int32_t layerNames = 1; // has a slot of the table when the drawing is saved
    if (b.opened.store.entCount != lineCount + 1 - layerNames)
        state.SkipWithError("not all objects were read");
}

void plainLines(State& state, DxfBench& b)
{
    std::string line;
    for (auto _ : state) {
        b.stream.clear();
        b.stream.seekg(0);
        std::size_t characters = 0;
        while (std::getline(b.stream, line)) characters += line.size();
        DoNotOptimize(characters);
    }
}

} // namespace

DxfBench::DxfBench()
{
    fillWithLines(drawing);
    makeSomeRound(drawing.store);
    file = withEndedCircles(textOf(dxfFile(drawing.store, scratch).bytes));
    stream.str(file);
}

void registerDxfMeasures(DxfBench& bench)
{
    const auto add = [&bench](const char* name, auto measure) {
        benchmark::RegisterBenchmark(name, [=, &bench](State& state) {
            measure(state, bench);
        })->Unit(benchmark::kMillisecond);
    };
    add("readDxf", read);
    add("dxfFile", write);
    add("readInFull", readFully);
    add("the file's lines, by getline", plainLines);
}

std::span<const Comparison> dxfComparisons()
{
    static constexpr Comparison rows[] = {
        {"readDxf", "the file's lines, by getline", 2},
        {"dxfFile", "the file's lines, by getline", 4},
        {"readInFull", "the file's lines, by getline", 2},
    };
    return rows;
}

} // namespace mirtane::bench
