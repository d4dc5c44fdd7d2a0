#include "measures.h"

#include "app/files/open_drawing.h"
#include "files/drawing_file.h"
#include "files/kept_work.h"
#include "render/redraw.h"
#include "render/view.h"
#include "sample.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdlib>
#include <numbers>

namespace mirtane::bench {
namespace {

using benchmark::DoNotOptimize;
using benchmark::State;

void expect(bool done, const char* fault, State& state)
{
    if (!done) state.SkipWithError(fault);
}

constexpr const char* notRead = "the file could not be read, or not whole";
constexpr const char* notWritten = "the file could not be written";

struct ShownPart {
    Scale scale;
    std::int16_t wholeViewFlag;
};

constexpr ShownPart allInView{{0, 0, width, height}, 1};
constexpr ShownPart afterAZoom{{0, 0, width, height}, 0};
constexpr ShownPart zoomedIn{{600, 375, 400, 250}, 0}; // a sixteenth of the area

void show(Bench& b, const ShownPart& part)
{
    b.surface.setScale(part.scale);
    readViewLimits(b.session, b.surface);
    b.session.wholeViewFlag = part.wholeViewFlag;
}

void redraw(State& state, Bench& b, const ShownPart& part)
{
    show(b, part);
    for (auto _ : state) redrawAll(b.session, b.surface);
}

void plainRedraw(State& state, Bench& b, const ShownPart& part)
{
    for (auto _ : state) {
        drawLines(b.session.store, part.scale, b.plainImage());
        benchmark::ClobberMemory();
    }
}

void zoom(State& state, Bench& b)
{
    show(b, allInView);
    for (auto _ : state) zoomAll(b.session, b.surface);
}

void plainZoom(State& state, Bench& b)
{
    show(b, allInView);
    zoomAll(b.session, b.surface);
    const Scale scale = b.surface.getScale();
    for (auto _ : state) {
        DoNotOptimize(limitsOf(b.session.store));
        drawLines(b.session.store, scale, b.plainImage());
        benchmark::ClobberMemory();
    }
}

void boundsPass(State& state, Bench& b)
{
    const TextWidthOf widthOf = textWidthOn(b.surface);
    for (auto _ : state) DoNotOptimize(drawingBounds(b.session.store, widthOf));
}

void plainPass(State& state, Bench& b)
{
    for (auto _ : state) DoNotOptimize(limitsOf(b.session.store));
}

// A band from a fixed point to a pointer that goes round another one.
struct Band {
    Point from;
    Point round;
    double radius;

    Point pointer(int step) const
    {
        const double angle = step * std::numbers::pi / 32;
        return {static_cast<float>(round.x + radius * std::cos(angle)), // world coordinates are 32-bit
                static_cast<float>(round.y + radius * std::sin(angle))};
    }
    // The box of the band in an image of one unit to the pixel.
    PixelRect box(int step) const
    {
        const Point to = pointer(step);
        return {static_cast<int>(std::min(from.x, to.x)), static_cast<int>(std::min(from.y, to.y)),
                static_cast<int>(std::max(from.x, to.x)) + 1, static_cast<int>(std::max(from.y, to.y)) + 1};
    }
};

constexpr Band acrossAQuarter{{800, 500}, {800, 500}, 400};
constexpr Band acrossThePicture{{1, 1}, {1550, 950}, 40};

// As the window does it: the move, and what is then to be brought to the screen.
void bandMove(State& state, Bench& b, const Band& band)
{
    show(b, allInView);
    redrawAll(b.session, b.surface);
    b.session.controls["freecurs"_c].caption = "Ortho/Off";
    b.shell.mouseDown(1, band.from);
    int step = 0;
    for (auto _ : state) {
        b.shell.mouseMove(band.pointer(step++));
        expect(!b.surface.takeDirty().empty(), "no band was drawn", state);
    }
    b.shell.mouseDown(2, band.from);
}

void plainCopy(State& state, Bench& b, const Band& band)
{
    int step = 0;
    for (auto _ : state) {
        copyPart(b.surface.picture().pixels(), b.plainImage(), band.box(step++));
        benchmark::ClobberMemory();
    }
}

void save(State& state, Bench& b)
{
    for (auto _ : state)
        expect(b.disk.writeWhole(b.file, drawingBytes(b.session, SaveWhat::drawing)), notWritten, state);
}

// What an event waits for where unsaved work is kept: the writing goes on beside the program.
void keep(State& state, Bench& b)
{
    const KeptAbout about{"house.mtd", b.file, "2026-11-22 14:32"};
    for (auto _ : state) benchmark::DoNotOptimize(keptWork(b.session, about).data());
}

void plainBytesCopy(State& state, Bench& b)
{
    for (auto _ : state) benchmark::DoNotOptimize(Bytes(b.bytes).data());
}

void plainWrite(State& state, Bench& b)
{
    for (auto _ : state) expect(writeFile(b.folder / "plain", b.bytes), notWritten, state);
}

void load(State& state, Bench& b)
{
    for (auto _ : state) {
        const std::optional<Bytes> file = b.disk.read(b.file);
        expect(file.has_value(), notRead, state);
        if (file) replaceDrawing(b.session, *file);
    }
    expect(b.session.store.end() == lineCount + 1, notRead, state);
}

void replace(State& state, Bench& b)
{
    for (auto _ : state) replaceDrawing(b.session, b.bytes);
}

void plainTake(State& state, Bench& b)
{
    static EntityStore store;
    for (auto _ : state) {
        takeRecords(b.bytes, store);
        benchmark::ClobberMemory();
    }
}

void openToPicture(State& state, Bench& b)
{
    App app{b.session, b.surface, b.ports, b.dxfScratch};
    for (auto _ : state) {
        const std::optional<Bytes> file = b.disk.read(b.file);
        expect(file.has_value(), notRead, state);
        if (file) openDrawing(app, *file);
    }
}

void plainRead(State& state, Bench& b)
{
    for (auto _ : state) {
        const Bytes bytes = readFile(b.file);
        expect(bytes.size() == b.bytes.size(), notRead, state);
        DoNotOptimize(bytes.data());
    }
}

void plainReadAndDraw(State& state, Bench& b)
{
    for (auto _ : state) {
        const Bytes bytes = readFile(b.file);
        expect(bytes.size() == b.bytes.size(), notRead, state);
        drawLines(b.session.store, allInView.scale, b.plainImage());
        benchmark::ClobberMemory();
    }
}

std::filesystem::path newFolder()
{
    std::string name = (std::filesystem::temp_directory_path() / "mirtane-bench-XXXXXX").string();
    return ::mkdtemp(name.data()) == nullptr ? std::filesystem::path() : std::filesystem::path(name);
}

} // namespace

Bench::Bench()
    : surface(width, height), folder(newFolder()), file((folder / "lines.mtd").string()),
      plainPixels_(static_cast<std::size_t>(width) * height) // a positive constant
{
    shell.start();
    fillWithLines(session);
    bytes = drawingBytes(session, SaveWhat::drawing);
    disk.writeWhole(file, bytes);
}

Bench::~Bench()
{
    std::error_code ignored;
    if (!folder.empty()) std::filesystem::remove_all(folder, ignored);
}

Image Bench::plainImage()
{
    return {plainPixels_, width, height};
}

void registerMeasures(Bench& bench)
{
    const auto add = [&bench](const char* name, auto measure, auto... more) {
        return benchmark::RegisterBenchmark(name,
                                            [=, &bench](State& state) { measure(state, bench, more...); })
            ->Unit(benchmark::kMillisecond);
    };
    add("redrawAll, all in view", redraw, allInView);
    add("redrawAll, after a zoom", redraw, afterAZoom);
    add("redrawAll, zoomed in", redraw, zoomedIn);
    add("the lines, by Bresenham", plainRedraw, allInView);
    add("the lines in view, by Bresenham", plainRedraw, zoomedIn);
    add("rubber band, a quarter", bandMove, acrossAQuarter);
    add("rubber band, whole picture", bandMove, acrossThePicture);
    add("copy of the quarter", plainCopy, acrossAQuarter);
    add("copy of the whole picture", plainCopy, acrossThePicture);
    add("drawingBounds", boundsPass);
    add("a pass over the same arrays", plainPass);
    add("zoomAll", zoom);
    add("a pass, and the lines", plainZoom);
    add("unsaved work, kept", keep);
    add("a copy of the same bytes", plainBytesCopy);
    // These wait for the disk, which no clock of the processor counts.
    add("save", save)->UseRealTime();
    add("a write of the same bytes", plainWrite)->UseRealTime();
    add("load", load)->UseRealTime();
    add("a read of the same bytes", plainRead)->UseRealTime();
    add("replaceDrawing", replace);
    add("the fields, one by one", plainTake);
    add("open, to the picture", openToPicture)->UseRealTime();
    add("a read, and the lines", plainReadAndDraw)->UseRealTime();
}

std::span<const Comparison> comparisons()
{
    static constexpr Comparison rows[] = {
        {"redrawAll, all in view", "the lines, by Bresenham", 1.5},
        {"redrawAll, after a zoom", "the lines, by Bresenham", 1.5},
        {"redrawAll, zoomed in", "the lines in view, by Bresenham", 1.5},
        {"rubber band, a quarter", "copy of the quarter", 0},
        {"rubber band, a quarter", "redrawAll, all in view", 0.1},
        {"rubber band, whole picture", "copy of the whole picture", 0},
        {"rubber band, whole picture", "redrawAll, all in view", 0.1},
        {"drawingBounds", "a pass over the same arrays", 0},
        {"zoomAll", "a pass, and the lines", 0},
        {"save", "a write of the same bytes", 3},
        {"unsaved work, kept", "a copy of the same bytes", 0},
        {"load", "a read of the same bytes", 3},
        {"replaceDrawing", "the fields, one by one", 0},
        {"open, to the picture", "a read, and the lines", 0},
    };
    return rows;
}

} // namespace mirtane::bench
