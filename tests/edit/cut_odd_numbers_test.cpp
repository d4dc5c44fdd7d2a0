// What comes out of a file may hold any numbers: the edits that cut are to end all the same.

#include "cut_desk.h"

#include <array>
#include <limits>

namespace mirtane {
namespace {

using fake::EditDesk;

struct Cut {
    std::string_view name;
    int clicks;
};

constexpr Cut cuts[] = {{"Break", 2}, {"Trim", 1}, {"Fillet", 1}, {"Stretch", 4}};

class OddNumbers {
  public:
    float number()
    {
        constexpr float inf = std::numeric_limits<float>::infinity();
        constexpr std::array<float, 12> odd = {0, 0, 1, -1, 50, 1e-30F, 3e38F, -3e38F, 1e20F, inf, -inf, NAN};
        return odd[static_cast<std::size_t>(dice_.between(0, 11.999))]; // an index of it
    }
    Point point()
    {
        const float x = number();
        return {x, number()};
    }
    EntityRecord object()
    {
        EntityRecord r = fake::sample(
            everyKind[static_cast<std::size_t>(dice_.between(0, drawnKinds - 0.001))]); // an index of it
        for (Point* p : {&r.p1, &r.p2, &r.p3, &r.p4, &r.p5}) {
            if (dice_.between(0, 1) < 0.4) *p = point();
        }
        if (dice_.between(0, 1) < 0.3) r.rad = number();
        if (dice_.between(0, 1) < 0.2) r.a1 = number();
        if (dice_.between(0, 1) < 0.2) r.a2 = number();
        if (dice_.between(0, 1) < 0.2) r.s2 = number();
        return r;
    }

  private:
    fake::Throws dice_{51};
};

TEST(CutsOfOddNumbers, EndAsOthersDo)
{
    OddNumbers odd;
    EditDesk desk;
    for (int i = 0; i < 4000; ++i) {
        const Cut& cut = cuts[i % 4];
        fake::emptyDrawing(desk);
        desk.s.curFunc = desk.s.baseFunc;
        const bool onlyLinesAndArcs = i % 3 == 0;
        while (desk.s.store.entCount <= 6) {
            const EntityRecord r = odd.object();
            const bool cutting = r.kind == Kind::line || r.kind == Kind::arc;
            if (cutting || !onlyLinesAndArcs) desk.add(r, desk.s.store.entCount == 6 ? Stat::on : Stat::sel);
        }
        desk.s.filletRadius = odd.number();
        desk.begin(cut.name);
        // A second click on one point is the cancel, behind which a click would select.
        for (int click = 0; click < cut.clicks && desk.s.curFunc == cut.name; ++click)
            desk.click(odd.point());
        desk.ops();
        ASSERT_LE(desk.s.store.entCount, 7 + 10) << i;
        if (cut.name == "Trim" && desk.s.curFunc == "Trim") continue; // no boundary, or a parallel
        ASSERT_EQ(desk.s.stepNo, 0) << i;
        ASSERT_EQ(countWithStat(desk.s.store, Stat::sel), 0) << i;
    }
}

// With no slot left the cut is refused, and what was selected stays so.
TEST(CutsOfOddNumbers, PastTheEndOfTheTableWriteNothing)
{
    for (const Cut& cut : cuts) {
        EditDesk desk;
        desk.add(fake::lineFrom({-100, 0}, {100, 0}, {60, 0}));
        desk.add(fake::lineFrom({0, -100}, {0, 100}, {0, 60}));
        desk.add(fake::circleAt({30, 40}, 5), Stat::on);
        desk.s.store.entCount = EntityStore::slotCount;
        desk.begin(cut.name);
        const Point clicks[] = {{30, 45}, {31, 12}, {5, 5}, {9, 9}};
        for (int click = 0; click < cut.clicks; ++click) desk.click(clicks[click]);
        EXPECT_EQ(desk.slot(1).p2, (Point{100, 0})) << cut.name;
        const bool misses =
            std::string(cut.name) == "Trim"; // both objects, which lose the selection and need no slot
        EXPECT_EQ(countWithStat(desk.s.store, Stat::sel), misses ? 0 : 2) << cut.name;
        EXPECT_EQ(desk.s.store.entCount, EntityStore::slotCount) << cut.name;
    }
}

} // namespace
} // namespace mirtane
