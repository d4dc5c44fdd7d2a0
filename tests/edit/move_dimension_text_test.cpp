#include "edit/move_dimension_text.h"

#include "edit_desk.h"
#include "model/undo_log.h"

#include <random>

namespace mirtane {
namespace {

using fake::only;
using fake::Ops;

// A level line from (0, 40) to (100, 40) with its text at (30, 30).
EntityRecord level(Point text = {30, 30})
{
    const EntityRecord points =
        fake::record(Kind::linearDimension, {0, 0}, {100, 0}, {100, 40}, {0, 40}, text);
    return fake::greenDimension(points, "8 1/3\"");
}

// A click is found within 24 units of a text.
class MoveDesk : public fake::EditDesk {
  public:
    MoveDesk()
    {
        start("Move Dimension Text");
        s.arrowSize = 16;
    }

    void pick(Point at) { click(at); }
    void drop(Point at) { click(at); }
};

TEST(MoveDimensionText, SlidesByThePointersDistanceToThePointersSide)
{
    EntityRecord upright = level({-10, 60});
    upright.p3 = {0, 100};
    upright.p4 = {0, 0};
    upright.a1 = 90;
    EntityRecord slope = level();
    slope.p3 = {60, -80};
    slope.p4 = {0, 0};
    struct Row {
        const char* what;
        EntityRecord r;
        Point pointer, text;
    };
    const Row rows[] = {
        {"along the line", level(), {50, 30}, {50, 30}},
        {"back along the line", level(), {10, 30}, {10, 30}},
        {"the distance, not its shadow on the line", level(), {33, 34}, {35, 30}},
        {"the same on the other side", level(), {27, 26}, {25, 30}},
        {"past the end of the line", level(), {500, 30}, {500, 30}},
        {"past the other end", level(), {-470, 30}, {-470, 30}},
        {"down an upright line", upright, {-10, 90}, {-10, 90}},
        {"up an upright line", upright, {-10, -40}, {-10, -40}},
        {"aside of an upright line", upright, {20, 61}, {-10, 60 + 30.0166F}},
        {"along a slope", slope, {60, -10}, {60, -10}},
        {"back along a slope", slope, {0, 70}, {0, 70}},
    };
    for (const Row& row : rows) {
        MoveDesk desk;
        desk.add(row.r, Stat::on);
        desk.pick(row.r.p5);
        desk.move({row.r.p5.x + 3, row.r.p5.y}); // an earlier move has no say
        desk.move(row.pointer);
        desk.drop(row.pointer);
        ASSERT_EQ(desk.s.store.entCount, 3) << row.what;
        fake::expectNear(desk.slot(2).p5, row.text, 0.001, row.what);
    }
}

TEST(MoveDimensionText, KeepsAllElseButTheRepeatedArrowSize)
{
    MoveDesk desk;
    EntityRecord old = level();
    old.style = 2;
    old.s1 = 3;
    old.s2 = 10;
    old.a2 = 8;
    old.rad = 7; // nothing of this kind, but it stands in the slot
    desk.add(old, Stat::on);
    desk.pick({30, 30});
    desk.move({50, 30});
    desk.drop({50, 30});
    EntityRecord expected = old;
    expected.p5 = {50, 30};
    expected.a2 = 16; // the arrow size in force; s2, which the arrows are drawn in, stays
    expected.style = 0;
    fake::expectRecord(desk.slot(2), expected, 0, "moved");
    EXPECT_EQ(desk.slot(2).rad, 7);
    EXPECT_EQ(desk.slot(1).p5, (Point{30, 30}));
    EXPECT_EQ(desk.stat(1), Stat::out);
    EXPECT_EQ(desk.stat(2), Stat::on);
    EXPECT_EQ(desk.s.layerTable.find(3)->layerUsed, layer::inUse);
}

TEST(MoveDimensionText, IsOneActionThatUndoTakesBackWhole)
{
    MoveDesk desk;
    desk.add(level(), Stat::on);
    desk.pick({30, 30});
    desk.move({50, 30});
    desk.drop({50, 30});
    undo(desk.s.store, desk.s.log);
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.stat(2), Stat::out);
    redo(desk.s.store, desk.s.log);
    EXPECT_EQ(desk.stat(1), Stat::out);
    EXPECT_EQ(desk.stat(2), Stat::on);
}

TEST(MoveDimensionText, EndsInTheFunctionBeforeAndRedraws)
{
    MoveDesk desk;
    desk.s.baseFunc = desk.s.lastFunc = "Line";
    desk.add(level(), Stat::on);
    desk.pick({30, 30});
    desk.move({50, 30});
    desk.ops();
    desk.drop({50, 30});
    EXPECT_EQ(desk.s.curFunc, "Line");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.promptText, "(Enter beginning point of line:)");
    const Ops ops = desk.ops();
    EXPECT_EQ(only(ops, "text"), (Ops{"text 50 30 0 8 1/3\""}));
    EXPECT_EQ(only(ops, "snapshot").size(), 1U);
    EXPECT_EQ(only(ops, "refresh").size(), 1U);
}

TEST(MoveDimensionText, DropsWhereTheGhostWasAndNotAtTheClick)
{
    MoveDesk desk;
    desk.add(level(), Stat::on);
    desk.pick({30, 30});
    desk.move({50, 30});
    desk.drop({90, 30});
    EXPECT_EQ(desk.slot(2).p5, (Point{50, 30}));
}

TEST(MoveDimensionText, StaysWhereItWasWithoutAMove)
{
    MoveDesk desk;
    desk.s.moveText = {500, 500}; // of an earlier one
    desk.add(level(), Stat::on);
    desk.pick({31, 31});
    desk.drop({90, 30});
    EXPECT_EQ(desk.slot(2).p5, (Point{30, 30}));
}

TEST(MoveDimensionText, SquareAsideOfTheTextItKeepsTheLastPlace)
{
    MoveDesk desk;
    desk.add(level(), Stat::on);
    desk.pick({30, 30});
    desk.move({30, 80}); // no side yet
    EXPECT_EQ(desk.s.moveText, (Point{30, 30}));
    desk.move({50, 30});
    desk.move({30, 80});
    EXPECT_EQ(desk.s.moveText, (Point{50, 30}));
}

TEST(MoveDimensionText, LineOfNoLengthHasNowhereToSlide)
{
    MoveDesk desk;
    EntityRecord r = level();
    r.p3 = r.p4;
    desk.add(r, Stat::on);
    desk.pick({30, 30});
    desk.move({50, 30});
    EXPECT_EQ(desk.s.moveText, (Point{30, 30}));
}

TEST(MoveDimensionText, GhostIsTheWholeDimensionOverTheCleanPicture)
{
    MoveDesk desk;
    desk.add(level(), Stat::on);
    desk.pick({30, 30});
    desk.ops();
    desk.move({50, 30});
    const Ops ops = desk.ops();
    EXPECT_EQ(ops.front(), "restoreSnapshot");
    EXPECT_TRUE(only(ops, "snapshot").empty());
    EXPECT_TRUE(only(ops, "setColor").empty()); // in the pen of rubber bands
    EXPECT_EQ(ops.back(), "setStyle 2");
    EXPECT_EQ(only(ops, "text"), (Ops{"text 50 30 0 8 1/3\""}));
    EXPECT_EQ(only(ops, "setFontSize"), (Ops{"setFontSize 10"})); // s2
    EXPECT_EQ(only(ops, "line").size(), 7U); // two extension lines, a shaft, two open heads
}

TEST(MoveDimensionText, PicksTheNearestTextOfALinearDimensionThatIsOn)
{
    struct Row {
        const char* what;
        std::vector<std::pair<EntityRecord, Stat>> drawing;
        Point click;
        std::int32_t picked; // 0 none
    };
    EntityRecord other = fake::sample(Kind::radialDimension);
    other.p5 = {30, 30};
    const Row rows[] = {
        {"at the very place", {{level(), Stat::on}}, {30, 30}, 1},
        {"at the limit", {{level(), Stat::on}}, {54, 30}, 1},
        {"beyond the limit", {{level(), Stat::on}}, {55, 30}, 0},
        {"near the line, far from the text", {{level({200, 30}), Stat::on}}, {50, 40}, 0},
        {"the nearer of two", {{level({30, 30}), Stat::on}, {level({36, 30}), Stat::on}}, {31, 30}, 1},
        {"the nearer of two, the other way",
         {{level({36, 30}), Stat::on}, {level({30, 30}), Stat::on}},
         {31, 30},
         2},
        {"the last of two equally near",
         {{level({30, 30}), Stat::on}, {level({36, 30}), Stat::on}},
         {33, 30},
         2},
        {"a selected one is passed over", {{level(), Stat::sel}}, {30, 30}, 0},
        {"a hidden one is passed over", {{level(), Stat::off}}, {30, 30}, 0},
        {"a deleted one is passed over", {{level(), Stat::out}}, {30, 30}, 0},
        {"another kind is passed over", {{level({36, 30}), Stat::on}, {other, Stat::on}}, {30, 30}, 1},
        {"an empty drawing", {}, {30, 30}, 0},
    };
    for (const Row& row : rows) {
        MoveDesk desk;
        for (const auto& [record, stat] : row.drawing) desk.add(record, stat);
        desk.s.pickedIndex = 1; // of an earlier pick
        desk.pick(row.click);
        EXPECT_EQ(desk.s.pickedIndex, row.picked > 0 ? row.picked : PickResults::none) << row.what;
        EXPECT_EQ(desk.s.stepNo, row.picked > 0 ? 1 : 0) << row.what;
        EXPECT_EQ(desk.s.curFunc, "Move Dimension Text") << row.what;
    }
}

TEST(MoveDimensionText, WithNoneNearTheDrawingStaysAsItIs)
{
    MoveDesk desk;
    desk.add(level(), Stat::on);
    desk.s.pickedIndex = 1; // of an earlier pick
    const std::int32_t group = desk.s.log.undoGroupNext;
    desk.pick({300, 300});
    desk.move({50, 30});
    desk.drop({50, 30});
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.s.log.undoGroupNext, group);
}

TEST(MoveDimensionText, PickedDimensionThatIsGoneIsLeftAlone)
{
    for (const bool cleared : {false, true}) {
        MoveDesk desk;
        desk.add(level(), Stat::on);
        desk.pick({30, 30});
        desk.move({50, 30});
        if (cleared) {
            desk.s.store.entCount = 1;
        } else {
            undo(desk.s.store, desk.s.log);
        }
        const std::int32_t count = desk.s.store.entCount;
        desk.ops();
        desk.move({60, 30});
        EXPECT_TRUE(desk.ops().empty());
        desk.drop({60, 30});
        EXPECT_EQ(desk.s.store.entCount, count);
        EXPECT_EQ(desk.s.stepNo, 0);
    }
}

TEST(MoveDimensionText, AnyPointerLeavesTheTextOnItsParallelOfTheLine)
{
    std::mt19937 random(3);
    std::uniform_real_distribution<float> anywhere(-500, 500);
    const auto point = [&] { return Point{anywhere(random), anywhere(random)}; };
    MoveDesk desk;
    for (int i = 0; i < 300; ++i) {
        desk.s.store.entCount = 1;
        desk.start("Move Dimension Text");
        EntityRecord r = level(point());
        r.p3 = point();
        r.p4 = point();
        desk.add(r, Stat::on);
        desk.pick(r.p5);
        const Point pointer = point();
        desk.move(pointer);
        desk.drop(pointer);
        const Point p5 = desk.slot(2).p5;
        EXPECT_NEAR(distance(p5, r.p5), distance(pointer, r.p5), 0.01) << i;
        const double ux = (r.p3.x - r.p4.x) / distance(r.p3, r.p4);
        const double uy = (r.p3.y - r.p4.y) / distance(r.p3, r.p4);
        EXPECT_NEAR((p5.x - r.p5.x) * uy - (p5.y - r.p5.y) * ux, 0, 0.01) << i;
        const Point mirrored{2 * r.p5.x - p5.x, 2 * r.p5.y - p5.y};
        EXPECT_LE(distance(p5, pointer), distance(mirrored, pointer) + 0.01) << i;
    }
}

} // namespace
} // namespace mirtane
