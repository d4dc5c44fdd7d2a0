#include "edit_bench.h"

#include "edit/mirror.h"
#include "edit/move_copy.h"
#include "edit/rotate.h"
#include "edit/selection_run.h"
#include "geometry/angle.h"
#include "geometry/arc.h"
#include "render/entity_painter.h"
#include "render/recording_canvas.h"
#include "render/redraw.h"
#include "render/view.h"
#include "sample.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <random>

namespace mirtane::bench {
namespace {

using benchmark::State;

constexpr std::int32_t edited = 20000;
constexpr std::int32_t followed = 2000; // by the ghost

class ObjectDice {
  public:
    EntityRecord object(std::int32_t number)
    {
        EntityRecord r;
        r.kind = everyKind[number % 5]; // lines to points
        r.color = white;
        r.p1 = {between(0, width), between(0, height)};
        r.p2 = {r.p1.x + between(-40, 40), r.p1.y + between(-40, 40)};
        r.p3.x = between(0, 1);
        r.rad = between(2, 30);
        if (r.kind != Kind::arc) return r;
        r.a1 = between(0, 6);
        r.a2 = between(0, 6);
        r.p2 = polarPoint(r.p1, r.rad, r.a1);
        r.p3 = polarPoint(r.p1, r.rad, r.a2);
        r.p4 = polarPoint(r.p1, r.rad, middleAngle(r.a1, r.a2));
        return r;
    }

  private:
    float between(float low, float high)
    {
        return low + (high - low) * static_cast<float>(engine_() % 65536) / 65536; // of 16 bits: exact
    }

    std::mt19937 engine_{1993};
};

constexpr Scale allInView{0, 0, width, height};
constexpr Scale noneInView{-3 * width, -3 * height, width, height};

// A drawing all selected, and beside its surface one that draws nothing.
class EditBench {
  public:
    explicit EditBench(std::int32_t objects) : objects_(objects)
    {
        ObjectDice dice;
        for (std::int32_t i = 0; i < objects; ++i) {
            addObject(s, dice.object(i));
            s.store.setStat(i + 1, Stat::sel);
        }
        nowhere.record(false);
        s.curFunc = s.baseFunc = s.lastFunc = "Object Select";
        s.pickFirst = {100, 100};
        s.pickLast = {130, 85};
        s.editDegrees = 30;
    }

    void show(Canvas& canvas, const Scale& scale)
    {
        canvas.setScale(scale);
        readViewLimits(s, canvas);
    }

    // As it was before the edit.
    void startAgain(const char* function, std::int16_t stepNo)
    {
        s.store.entCount = objects_ + 1;
        s.log.undoLogCount = 0;
        for (std::int32_t i = 1; i <= objects_; ++i) s.store.setStat(i, Stat::sel);
        s.curFunc = function;
        s.stepNo = stepNo;
    }

    std::unique_ptr<Session> session = std::make_unique<Session>();
    Session& s = *session;
    RecordingCanvas nowhere{Size{width, height}};
    Surface surface{width, height};

  private:
    std::int32_t objects_;
};

EditBench& editBench()
{
    static EditBench bench(edited);
    return bench;
}

EditBench& ghostBench()
{
    static EditBench bench(followed);
    return bench;
}

using Step = void (*)(Session&, Canvas&);

void edit(State& state, EditBench& b, Canvas& canvas, const char* function, std::int16_t stepNo, Step step)
{
    for (auto _ : state) {
        state.PauseTiming();
        b.startAgain(function, stepNo);
        state.ResumeTiming();
        step(b.s, canvas);
    }
    if (b.s.store.entCount != 2 * edited + 1) state.SkipWithError("the edit made no copies");
}

// With nothing in view, so that the edit alone is measured and not the picture.
void editUnseen(State& state, const char* function, std::int16_t stepNo, Step step)
{
    EditBench& b = editBench();
    b.show(b.nowhere, noneInView);
    edit(state, b, b.nowhere, function, stepNo, step);
}

void editShown(State& state, const char* function, std::int16_t stepNo, Step step)
{
    EditBench& b = editBench();
    b.show(b.surface, allInView);
    edit(state, b, b.surface, function, stepNo, step);
}

void copyRecords(State& state)
{
    EditBench& b = editBench();
    b.startAgain("Move", 0);
    for (auto _ : state) {
        for (std::int32_t i = 1; i <= edited; ++i) b.s.store.setRecord(edited + i, b.s.store.record(i));
        benchmark::ClobberMemory();
    }
}

void copyAndRedraw(State& state)
{
    EditBench& b = editBench();
    b.show(b.surface, allInView);
    b.startAgain("Move", 0);
    for (auto _ : state) {
        for (std::int32_t i = 1; i <= edited; ++i) b.s.store.setRecord(edited + i, b.s.store.record(i));
        redrawAll(b.s, b.surface);
    }
}

void ghost(State& state)
{
    EditBench& b = ghostBench();
    b.show(b.surface, allInView);
    b.startAgain("Move", 1);
    editMove(b.s, b.surface);
    float way = 0;
    for (auto _ : state) {
        way = way < 60 ? way + 1 : 0;
        b.s.pickLast = {b.s.pickFirst.x + way, b.s.pickFirst.y - way};
        drawSelectionGhost(b.s, b.surface);
    }
    b.s.workAngle = 0;
}

// The objects of the ghost as their painters draw them, over the clean picture.
void paintOnce(State& state)
{
    EditBench& b = ghostBench();
    b.show(b.surface, allInView);
    b.startAgain("Move", 0);
    b.s.workAngle = selectionFollowsPointer;
    redrawAll(b.s, b.surface);
    std::vector<EntityRecord> objects;
    for (std::int32_t i = 1; i <= followed; ++i) objects.push_back(b.s.store.record(i));
    for (auto _ : state) {
        restorePicture(b.surface);
        for (const EntityRecord& r : objects) paintEntity(b.surface, b.s, r);
    }
    b.s.workAngle = 0;
}

} // namespace

void registerEditMeasures()
{
    const auto add = [](const char* name, auto measure, auto... more) {
        benchmark::RegisterBenchmark(name, [=](State& state) {
            measure(state, more...);
        })->Unit(benchmark::kMillisecond);
    };
    const auto step2 = std::int16_t{2};
    const auto step3 = std::int16_t{3};
    add("Move of 20,000", editUnseen, "Move", step2, editMove);
    add("Rotate of 20,000", editUnseen, "Rotate", step3, editRotate);
    add("Mirror Copy of 20,000", editUnseen, "Mirror Copy", step2, editMirror);
    add("a copy of the records", copyRecords);
    add("Move of 20,000, shown", editShown, "Move", step2, editMove);
    add("a copy, and a redraw", copyAndRedraw);
    add("ghost of 2,000", ghost);
    add("the 2,000 painted", paintOnce);
}

std::span<const Comparison> editComparisons()
{
    static constexpr Comparison rows[] = {
        {"Move of 20,000", "a copy of the records", 10},
        {"Rotate of 20,000", "a copy of the records", 10},
        {"Mirror Copy of 20,000", "a copy of the records", 10},
        {"Move of 20,000, shown", "a copy, and a redraw", 0},
        {"ghost of 2,000", "the 2,000 painted", 1.5},
    };
    return rows;
}

} // namespace mirtane::bench
