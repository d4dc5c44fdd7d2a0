#include "preview_bench.h"

#include "app/files/file_preview.h"
#include "files/drawing_file.h"
#include "render/redraw.h"
#include "render/view.h"
#include "sample.h"

#include <benchmark/benchmark.h>

namespace mirtane::bench {
namespace {

using benchmark::DoNotOptimize;
using benchmark::State;

// As on a screen whose pixels are half as large.
constexpr int across = 900;
constexpr int high = 240;
constexpr double oneFrame = 16;
constexpr const char* name = "/home/user/house.mtd";

EntityRecord aLine(Dice& dice)
{
    EntityRecord r;
    r.kind = Kind::line;
    for (Point* p : {&r.p1, &r.p2})
        *p = {static_cast<float>(dice.between(0, width)),
              static_cast<float>(dice.between(0, height))}; // 32-bit
    r.color = 0xFFFFFF;
    return r;
}

EntityRecord aText(Dice& dice)
{
    EntityRecord r = aLine(dice);
    r.kind = Kind::text;
    r.p4 = r.p1;
    constexpr float sizes[] = {24, 30, 36, 48, 72};
    r.p2.x = sizes[dice.below(std::size(sizes))];
    r.a1 = static_cast<double>(90 * dice.below(4) + dice.below(2)); // exact
    r.t1 = "Hall 12'-6\" x 9'";
    r.t1.resize(4 + dice.below(13));
    r.t2 = "Garamond";
    return r;
}

// As many as a file may hold and still have a picture, or some more in the drawing.
struct LargestFile {
    explicit LargestFile(EntityRecord (*make)(Dice&))
    {
        Dice dice;
        EntityStore& store = session->store;
        FilePreview preview;
        Bytes next;
        do {
            file = std::move(next);
            for (int i = 0; i < 20; ++i) {
                store.setRecord(store.entCount, make(dice));
                store.setStat(store.entCount++, Stat::on);
            }
            next = drawingBytes(*session, SaveWhat::drawing);
        } while (preview.draw(name, next, surface));
        zoomAll(*session, surface);
    }

    std::unique_ptr<Session> session = std::make_unique<Session>();
    Surface surface{across, high};
    Bytes file;
};

LargestFile& largestOf(bool texts)
{
    static LargestFile ofLines(aLine);
    static LargestFile ofTexts(aText);
    return texts ? ofTexts : ofLines;
}

// Each on a surface of its own, which has written no letter yet.
void preview(State& state, bool texts)
{
    const LargestFile& largest = largestOf(texts);
    FilePreview preview;
    for (auto _ : state) {
        Surface picture(across, high);
        picture.clear();
        DoNotOptimize(preview.draw(name, largest.file, picture));
    }
}

void redraw(State& state, bool texts)
{
    LargestFile& largest = largestOf(texts);
    for (auto _ : state) redrawAll(*largest.session, largest.surface);
}

} // namespace

void registerPreviewMeasures()
{
    const auto add = [](const char* what, auto measure, bool texts) {
        benchmark::RegisterBenchmark(what, [=](State& state) {
            measure(state, texts);
        })->Unit(benchmark::kMillisecond);
    };
    add("small picture, lines", preview, false);
    add("the lines of it, redrawn", redraw, false);
    add("small picture, texts", preview, true);
    add("the texts of it, redrawn", redraw, true);
}

std::span<const Comparison> previewComparisons()
{
    static constexpr Comparison rows[] = {
        {"small picture, lines", "the lines of it, redrawn", 0, oneFrame},
        {"small picture, texts", "the texts of it, redrawn", 0, oneFrame},
    };
    return rows;
}

} // namespace mirtane::bench
