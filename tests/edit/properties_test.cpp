// What holds for any drawing: objects thrown at random, the same at each run.

#include "edit_desk.h"

#include "edit/mirror.h"
#include "edit/move_copy.h"
#include "edit/rotate.h"
#include "geometry/arc.h"
#include "model/record_moves.h"
#include "tables/kinds.h"

#include <random>

namespace mirtane {
namespace {

using fake::EditDesk;
using fake::expectRecord;

class Dice {
  public:
    explicit Dice(std::uint32_t seed) : engine_(seed) {}

    double between(double low, double high)
    {
        const auto thrown = static_cast<double>(engine_()); // of 32 bits: exact
        return low + (high - low) * thrown / 4294967296.0;
    }
    float coordinate() { return static_cast<float>(between(-5000, 5000)); } // world coordinates are 32-bit
    Point point() { return {coordinate(), coordinate()}; }
    Kind kind()
    {
        return everyKind[static_cast<std::size_t>(between(0, drawnKinds - 0.001))];
    } // an index of it

    EntityRecord object()
    {
        EntityRecord r = fake::sample(kind());
        mapPairs(r, kindRow(r.kind)->mapped, [this](Point) { return point(); });
        if (kindRow(r.kind)->rotation != nullptr) r.*kindRow(r.kind)->rotation = between(0, 359);
        if (r.kind == Kind::text) r.p1 = r.p4; // justified left
        r.rad =
            r.kind == Kind::circle || kindRow(r.kind)->sweeps ? static_cast<float>(between(1, 900)) : r.rad;
        if (kindRow(r.kind)->sweeps) lay(r);
        return r;
    }

  private:
    void lay(EntityRecord& r)
    {
        r.a1 = between(0, 6.28);
        r.a2 = between(0, 6.28);
        if (r.kind == Kind::angularDimension) r.p4 = polarPoint(r.p1, r.rad, r.a1);
        if (r.kind != Kind::arc) return;
        r.p2 = polarPoint(r.p1, r.rad, r.a1);
        r.p3 = polarPoint(r.p1, r.rad, r.a2);
        r.p4 = polarPoint(r.p1, r.rad, middleAngle(r.a1, r.a2));
    }

    std::mt19937 engine_;
};

constexpr int objects = 400;

void selectShown(EditDesk& desk, Stat from)
{
    changeStat(desk.s.store, from, Stat::sel);
}

void throwDrawing(EditDesk& desk, Dice& dice)
{
    for (int i = 0; i < objects; ++i) desk.add(dice.object());
}

// After two runs the objects stand in the slots behind twice their number.
void expectSameDrawing(const EditDesk& desk, double room, const char* what)
{
    for (std::int32_t i = 1; i <= objects; ++i)
        expectRecord(desk.slot(i + 2 * objects), desk.slot(i), room, what + std::to_string(i));
}

TEST(AnyDrawing, MovedThereAndBackIsTheSame)
{
    EditDesk desk;
    Dice dice(1);
    throwDrawing(desk, dice);
    const Point a = dice.point();
    const Point b = dice.point();
    // A first click on the last point would be the cancel: the way back begins and ends a little beside.
    const std::pair<Point, Point> back{{b.x + 1, b.y}, {a.x + 1, a.y}};
    for (const auto& [from, to] : {std::pair{a, b}, back}) {
        desk.begin("Move");
        desk.click(from.x, from.y);
        desk.click(to.x, to.y);
        selectShown(desk, Stat::on);
    }
    expectSameDrawing(desk, 2e-3, "moved ");
}

TEST(AnyDrawing, RotatedThereAndBackIsTheSame)
{
    EditDesk desk;
    Dice dice(2);
    throwDrawing(desk, dice);
    const Point centre = dice.point();
    const double degrees = dice.between(0, 360);
    for (const double by : {degrees, -degrees}) {
        desk.begin("Rotate");
        desk.click(centre.x, centre.y);
        desk.s.editDegrees = by;
        desk.run(3);
        selectShown(desk, Stat::on);
    }
    expectSameDrawing(desk, 3e-3, "rotated ");
}

TEST(AnyDrawing, MirroredTwiceIsTheFirst)
{
    EditDesk desk;
    Dice dice(3);
    throwDrawing(desk, dice);
    const Point from = dice.point();
    const Point to = dice.point();
    for (int run = 0; run < 2; ++run) {
        desk.begin("Mirror Copy");
        desk.click(from.x, from.y);
        desk.click(to.x, to.y);
        for (std::int32_t i = 1; i < desk.s.store.entCount; ++i)
            desk.s.store.setStat(i, i > objects ? Stat::sel : Stat::on);
    }
    expectSameDrawing(desk, 5e-3, "mirrored ");
}

TEST(AnyDrawing, SixRadialCopiesOverAWholeTurnAreARingOfSix)
{
    EditDesk desk;
    Dice dice(4);
    throwDrawing(desk, dice);
    const Point centre = dice.point();
    desk.begin("Radial Copy");
    desk.click(centre.x, centre.y);
    desk.s.editDegrees = 360;
    desk.s.radialCount = 6;
    desk.run(3);
    ASSERT_EQ(desk.s.store.entCount, 1 + 6 * objects);
    const Turn sixth(centre, 3.14159265358979 / 3);
    for (std::int32_t i = 1; i <= 6 * objects; ++i) {
        EntityRecord next = desk.slot(i);
        sixth.apply(next);
        const std::int32_t slot = i + objects > 6 * objects ? i - 5 * objects : i + objects;
        expectRecord(desk.slot(slot), next, 0.05, "ring " + std::to_string(i));
    }
}

} // namespace
} // namespace mirtane
