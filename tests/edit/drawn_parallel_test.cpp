// Cuts among lines that were drawn parallel, and so are but for the rounding of their points.

#include "edit/fillet.h"
#include "edit/trim.h"

#include "cut_desk.h"
#include "slanted.h"

namespace mirtane {
namespace {

using fake::EditDesk;
using fake::lineFrom;
using fake::Pair;
using fake::Slanted;

// Empty but for the two, the first of them selected where it was clicked.
void draw(EditDesk& desk, const Pair& pair, Stat second)
{
    fake::emptyDrawing(desk);
    desk.add(lineFrom(pair.one.from, pair.one.to, pair.one.at(0.3)));
    desk.add(lineFrom(pair.other.from, pair.other.to, pair.other.at(0.6)), second);
}

Pair somePair(Slanted& dice)
{
    const Point place = dice.pointWithin({0, 0}, dice.chance() ? 300 : 30000);
    return fake::drawnParallel(dice, place, dice.anySize(50, 1000), dice.between(0, 90) * fake::degree);
}

void expectBothOn(const EditDesk& desk, const Pair& pair, const std::string& what)
{
    EXPECT_EQ(desk.s.store.entCount, 3) << what;
    EXPECT_EQ(desk.stat(1), Stat::on) << what;
    EXPECT_EQ(desk.stat(2), Stat::on) << what;
    EXPECT_EQ(desk.slot(1).p2, pair.one.to) << what;
    EXPECT_EQ(desk.slot(2).p2, pair.other.to) << what;
}

TEST(Fillet, OfLinesDrawnParallelMakesNothingAndDropsTheSelection)
{
    Slanted dice(20);
    EditDesk desk;
    for (int i = 0; i < 3000; ++i) {
        const Pair pair = somePair(dice);
        draw(desk, pair, Stat::sel);
        desk.s.filletRadius = i % 3 == 0 ? 0.0F : 20.0F;
        desk.begin("Fillet");
        const std::int32_t group = desk.s.log.undoGroupNext;
        desk.click(dice.pointWithin(pair.other.from, 500));
        expectBothOn(desk, pair, pair.how);
        EXPECT_EQ(desk.s.log.undoLogCount, 2) << pair.how;
        ASSERT_EQ(desk.s.log.undoGroupNext, group + 1) << pair.how << " " << i;
    }
}

TEST(Trim, ToALineDrawnParallelLeavesTheDrawingAsItWas)
{
    Slanted dice(12);
    EditDesk desk;
    for (int i = 0; i < 3000; ++i) {
        const Pair pair = somePair(dice);
        draw(desk, pair, Stat::on);
        desk.begin("Trim");
        desk.click(pair.other.at(dice.between(0.1, 0.9)));
        ASSERT_EQ(desk.s.store.entCount, 3) << pair.how << " " << i;
        EXPECT_EQ(desk.stat(1), Stat::sel) << pair.how;
        EXPECT_EQ(desk.slot(1).p2, pair.one.to) << pair.how;
        EXPECT_EQ(desk.s.curFunc, "Trim") << pair.how;
    }
}

// On the line a click has no side, slanted as it may be. Whole numbers, so that it lies there exactly.
TEST(Fillet, ClickedExactlyOnASlantedLineLeavesOutItsRadius)
{
    Slanted dice(21);
    EditDesk desk;
    for (int i = 0; i < 3000; ++i) {
        const auto whole = [&](int least, int most) {
            return static_cast<float>(least + dice.below(most - least + 1));
        };
        const Point corner{whole(-9000, 9000), whole(-9000, 9000)};
        const Point along{whole(1, 97), whole(1, 89)};
        const Point across{-whole(1, 97), whole(1, 89)};
        const auto at = [&](Point way, float steps) {
            return Point{corner.x + steps * way.x, corner.y + steps * way.y};
        };
        const EntityRecord clicked = lineFrom(at(along, -3), at(along, whole(5, 40)), at(along, 4));
        const EntityRecord other = lineFrom(at(across, whole(5, 40)), at(across, -2), at(across, 4));
        fake::emptyDrawing(desk);
        desk.add(i % 2 == 0 ? clicked : other);
        desk.add(i % 2 == 0 ? other : clicked);
        desk.s.filletRadius = whole(1, 20);
        desk.begin("Fillet");
        desk.click(at(along, whole(1, 60)));
        ASSERT_EQ(desk.s.store.entCount, 6) << i;
        const Point centre = desk.slot(3).p1;
        ASSERT_NEAR(fake::offFigure(clicked, centre), 0, 0.01) << i;
        ASSERT_NEAR(fake::offFigure(other, centre), desk.s.filletRadius, 0.01) << i;
    }
}

} // namespace
} // namespace mirtane
