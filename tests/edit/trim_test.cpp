#include "edit/trim.h"

#include "cut_desk.h"
#include "edit/change.h"

namespace mirtane {
namespace {

using fake::arcAt;
using fake::circleAt;
using fake::EditDesk;
using fake::lineFrom;
using fake::sample;

// A desk with one object selected and one boundary, and "Trim" begun.
struct TrimDesk : EditDesk {
    TrimDesk(const EntityRecord& object, const EntityRecord& boundary)
    {
        add(object);
        add(boundary, Stat::on);
        begin("Trim");
        ops();
    }
    EntityRecord made() const { return s.store.entCount == 4 ? slot(3) : EntityRecord{}; }
};

EntityRecord trimmed(const EntityRecord& object, const EntityRecord& boundary, Point click)
{
    TrimDesk desk(object, boundary);
    desk.click(click);
    EXPECT_EQ(desk.stat(1), Stat::out);
    EXPECT_EQ(desk.stat(2), Stat::on);
    EXPECT_EQ(desk.s.store.entCount, 4);
    return desk.made();
}

struct TrimmedLineRow {
    const char* what;
    EntityRecord boundary;
    Point click;
    float pick;
    float from, to;
};

TEST(Trim, LineToEachKindOfBoundaryKeepsThePickedSide)
{
    const EntityRecord upright = lineFrom({40, -10}, {40, 10});
    const EntityRecord aside = lineFrom({40, 20}, {40, 60});
    const EntityRecord beyond = lineFrom({140, -10}, {140, 10});
    const EntityRecord before = lineFrom({-30, -10}, {-30, 10});
    const EntityRecord circle = circleAt({50, 0}, 20);
    const EntityRecord arc = arcAt({50, 0}, 20, 45, 135);
    const EntityRecord beyondCircle = circleAt({150, 0}, 20);
    const TrimmedLineRow rows[] = {
        {"line, picked before it", upright, {40, 5}, 20, 0, 40},
        {"line, picked behind it", upright, {40, 5}, 70, 40, 100},
        {"line that ends before the object", aside, {40, 50}, 20, 0, 40},
        {"line beyond the end", beyond, {140, 5}, 20, 0, 140},
        {"line before the start", before, {-30, 5}, 20, -30, 100},
        {"circle, clicked on its right", circle, {70, 3}, 20, 0, 70},
        {"circle, clicked on its right, picked behind", circle, {70, 3}, 90, 70, 100},
        {"circle, clicked on its left", circle, {30, -2}, 20, 0, 30},
        {"circle, clicked on its left, picked behind", circle, {30, -2}, 90, 30, 100},
        {"circle, clicked on its left, picked inside", circle, {30, -2}, 50, 30, 100},
        {"circle beyond the end", beyondCircle, {130, 4}, 50, 0, 130},
        {"the far side of a circle beyond the end", beyondCircle, {170, 4}, 50, 0, 170},
        {"arc, where its circle meets the line, on the right", arc, {60, -17.3F}, 20, 0, 70},
        {"arc, on the right, picked behind", arc, {60, -17.3F}, 90, 70, 100},
        {"arc, on the left", arc, {40, -17.3F}, 20, 0, 30},
    };
    for (const TrimmedLineRow& row : rows) {
        const EntityRecord made = trimmed(lineFrom({0, 0}, {100, 0}, {row.pick, 0}), row.boundary, row.click);
        fake::expectLine(made, {row.from, 0}, {row.to, 0}, row.what);
        fake::expectLooks(made, row.what);
    }
}

// The same rows would do for a line that runs the other way: the part kept is the same.
TEST(Trim, LineThatRunsBackwardsKeepsTheSamePart)
{
    const EntityRecord upright = lineFrom({40, -10}, {40, 10});
    fake::expectLine(trimmed(lineFrom({100, 0}, {0, 0}, {20, 0}), upright, {40, 5}), {40, 0}, {0, 0},
                     "before");
    fake::expectLine(trimmed(lineFrom({100, 0}, {0, 0}, {70, 0}), upright, {40, 5}), {100, 0}, {40, 0},
                     "behind");
}

struct ArcRow {
    const char* what;
    EntityRecord boundary;
    Point click;
    double pick;     // degrees
    double from, to; // of what stays
};

constexpr double crossed = 36.8699; // degrees: the direction of (40, -30)

TEST(Trim, ArcToEachKindOfBoundaryKeepsThePickedSide)
{
    const EntityRecord line = lineFrom({-20, -30}, {20, -30});
    const EntityRecord circle = circleAt({80, 0}, 50);
    const EntityRecord arc = arcAt({80, 0}, 50, 100, 260);
    const ArcRow rows[] = {
        {"line, picked before it", line, {0, -33}, 10, 0, crossed},
        {"line, picked behind it", line, {0, -33}, 80, crossed, 90},
        {"circle, picked before it", circle, {130, 5}, 10, 0, crossed},
        {"circle, picked behind it", circle, {130, 5}, 80, crossed, 90},
        {"arc, picked before it", arc, {31, 0}, 10, 0, crossed},
        {"arc, picked behind it", arc, {31, 0}, 80, crossed, 90},
    };
    for (const ArcRow& row : rows) {
        const EntityRecord made = trimmed(arcAt({0, 0}, 50, 0, 90, row.pick), row.boundary, row.click);
        fake::expectArc(made, {0, 0}, 50, row.from, row.to, row.what);
        fake::expectLooks(made, row.what);
    }
}

TEST(Trim, ArcGrowsAtTheEndNearerToThePick)
{
    const EntityRecord upright = lineFrom({-25, -20}, {-25, 20}); // at 120 and 240 degrees of the circle
    const EntityRecord level = lineFrom({-20, 0}, {20, 0});       // at 0 and 180
    const ArcRow rows[] = {
        {"at its end", upright, {-25, 5}, 80, 0, 120},
        {"at its start, all the way round", upright, {-25, 5}, 10, 120, 90},
        {"already there: unchanged", level, {5, 5}, 10, 0, 90},
    };
    for (const ArcRow& row : rows) {
        const EntityRecord made = trimmed(arcAt({0, 0}, 50, 0, 90, row.pick), row.boundary, row.click);
        fake::expectArc(made, {0, 0}, 50, row.from, row.to, row.what);
    }
}

TEST(Trim, ArcThatGrowsToItsOwnStartIsACircle)
{
    const EntityRecord made = trimmed(arcAt({0, 0}, 50, 0, 90, 80), lineFrom({-20, 0}, {20, 0}), {5, 5});
    EXPECT_EQ(made.kind, Kind::circle);
    EXPECT_EQ(made.p1, (Point{0, 0}));
    EXPECT_EQ(made.rad, 50);
    fake::expectLooks(made, "circle");
}

// With the pick in the very middle of the way round, neither end is written: the slot keeps what it held.
TEST(Trim, ArcPickedMidwayOfItsGapKeepsWhatItsSlotHeld)
{
    const double start = 6;
    EntityRecord arc = fake::arcOf({0, 0}, 50, start, -start + fullTurn);
    arc.p5 = {60, 0};
    TrimDesk desk(arc, lineFrom({-10, -20}, {-10, 20}));
    const EntityRecord stale = fake::arcOf({7, 7}, 3, 1, 2);
    desk.s.store.setRecord(3, stale);
    desk.click({-10, 5});
    EXPECT_EQ(desk.made().kind, Kind::arc);
    EXPECT_EQ(desk.made().p1, (Point{0, 0}));
    EXPECT_EQ(desk.made().rad, 50);
    EXPECT_EQ(desk.made().a1, stale.a1);
    EXPECT_EQ(desk.made().a2, stale.a2);
    EXPECT_EQ(desk.made().p2, stale.p2);
    EXPECT_EQ(desk.made().p3, stale.p3);
}

TEST(Trim, ArcMetNearAnAxisIsCutOnTheAxis)
{
    const EntityRecord made =
        trimmed(arcAt({0, 0}, 50, 270, 90, 20), lineFrom({-20, 0.03F}, {20, 0.03F}), {5, 5});
    EXPECT_EQ(made.p2, (Point{50, 0}));
    EXPECT_EQ(made.a1, 0);
    const EntityRecord top =
        trimmed(arcAt({0, 0}, 50, 0, 180, 20), lineFrom({0.04F, -20}, {0.04F, 20}), {5, 5});
    EXPECT_EQ(top.p3, (Point{0, -50}));
    EXPECT_EQ(top.a2, quarterTurn);
}

TEST(Trim, ArcIsCutWhereALineTouchesIt)
{
    const EntityRecord made =
        trimmed(arcAt({0, 0}, 50, 0, 180, 20), lineFrom({-20, -50}, {20, -50}), {15, -50});
    fake::expectArc(made, {0, 0}, 50, 0, 90, "touched");
}

// An arc's crossing is chosen by its pick, a line's by the click on the boundary.
TEST(Trim, ChoosesTheCrossingOfAnArcByItsPickAndOfALineByTheClick)
{
    const EntityRecord upper = arcAt({0, 0}, 50, 0, 180, 150);
    const EntityRecord level = lineFrom({-20, -30}, {20, -30});
    fake::expectArc(trimmed(upper, level, {15, -30}), {0, 0}, 50, 180 - crossed, 180, "arc");
    const EntityRecord line = lineFrom({-100, -30}, {100, -30}, {-90, -30});
    fake::expectLine(trimmed(line, circleAt({0, 0}, 50), {45, -20}), {-100, -30}, {40, -30}, "line");
}

// Where neither crossing is the nearer one, the point of the boundary stays, or where the object before met
// it.
TEST(Trim, BetweenTwoCrossingsEquallyNearTheLastPointStays)
{
    EditDesk desk;
    desk.add(lineFrom({0, 0}, {100, 0}, {20, 0}));
    desk.add(circleAt({50, 0}, 20), Stat::on);
    desk.begin("Trim");
    desk.click({50, 20});
    fake::expectLine(desk.slot(3), {0, 0}, {50, 20}, "on the boundary");

    EditDesk two;
    two.add(lineFrom({70, -100}, {70, 100}, {70, -90})); // touches the circle
    two.add(lineFrom({0, 0}, {100, 0}, {20, 0}));
    two.add(circleAt({50, 0}, 20), Stat::on);
    two.begin("Trim");
    two.click({50, 20});
    fake::expectLine(two.slot(4), {70, -100}, {70, 0}, "touching");
    fake::expectLine(two.slot(5), {0, 0}, {70, 0}, "as the one before");
}

TEST(Trim, PickBesideALineCountsByItsFoot)
{
    const EntityRecord upright = lineFrom({40, -10}, {40, 10});
    TrimDesk desk(lineFrom({0, 0}, {100, 0}, {39, 6}), upright);
    desk.click({40, 5});
    fake::expectLine(desk.made(), {0, 0}, {40, 0}, "before");
    EXPECT_EQ(desk.slot(1).p5, (Point{39, 6}));
    fake::expectLine(trimmed(lineFrom({0, 0}, {100, 0}, {41, -20}), upright, {40, 5}), {40, 0}, {100, 0},
                     "behind");
    // What a window selected was never picked: (0, 0) is as good as a pick there.
    fake::expectLine(trimmed(lineFrom({-60, 30}, {100, 30}), upright, {40, 5}), {-60, 30}, {40, 30},
                     "window");
}

TEST(Trim, PickAThousandthBehindTheBoundaryLineStillCountsAsBefore)
{
    const EntityRecord upright = lineFrom({400, -10}, {400, 10});
    fake::expectLine(trimmed(lineFrom({0, 0}, {600, 0}, {400.15F, 0}), upright, {400, 5}), {0, 0}, {400, 0},
                     "line");
    fake::expectLine(trimmed(lineFrom({0, 0}, {600, 0}, {400.3F, 0}), upright, {400, 5}), {400, 0}, {600, 0},
                     "line");
    const EntityRecord circle = circleAt({350, 0}, 50);
    fake::expectLine(trimmed(lineFrom({0, 0}, {600, 0}, {401.5F, 0}), circle, {400, 5}), {0, 0}, {400, 0},
                     "circle");
    fake::expectLine(trimmed(lineFrom({0, 0}, {600, 0}, {403, 0}), circle, {400, 5}), {400, 0}, {600, 0},
                     "circle");
}

// The desk's surface shows a unit to the pixel, so that a quarter of an inch is 24 units.
TEST(Trim, ClickFurtherThanAQuarterInchFromAllObjectsChangesNothing)
{
    TrimDesk desk(lineFrom({0, 0}, {100, 0}, {20, 0}), lineFrom({40, -60}, {40, 60}));
    const std::int32_t group = desk.s.log.undoGroupNext;
    desk.click({64.5F, 30});
    EXPECT_EQ(desk.s.store.entCount, 3);
    EXPECT_EQ(desk.stat(1), Stat::sel);
    EXPECT_EQ(desk.s.curFunc, "Trim");
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.s.editPending, 0);
    EXPECT_EQ(desk.s.log.undoGroupNext, group);
    EXPECT_TRUE(desk.ops().empty());
    desk.click({64, 30}); // the next try, now step 2
    EXPECT_EQ(desk.s.store.entCount, 4);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.curFunc, "Object Select");
    EXPECT_EQ(desk.s.log.undoGroupNext, group + 1);
}

struct MissRow {
    const char* what;
    EntityRecord boundary;
    Stat stat;
    Point click;
};

TEST(Trim, TakesAsABoundaryOnlyWhatIsShownAndUnselectedAndUnderTheClick)
{
    const EntityRecord upright = lineFrom({40, -60}, {40, 60});
    const MissRow rows[] = {
        {"selected", upright, Stat::sel, {40, 30}},
        {"hidden", upright, Stat::off, {40, 30}},
        {"deleted", upright, Stat::out, {40, 30}},
        {"beyond the line's end", upright, Stat::on, {40, 61}},
        {"just beyond the arc's end", arcAt({40, 0}, 30, 0, 100), Stat::on,
         polarPoint({40, 0}, 30, 100.5 * fake::degree)},
        {"an ellipse", sample(Kind::ellipse), Stat::on, {140, 100}},
        {"a point", sample(Kind::point), Stat::on, {7, 9}},
        {"a text", sample(Kind::text), Stat::on, {50, 50}},
        {"a dimension", sample(Kind::linearDimension), Stat::on, {30, 30}},
    };
    for (const MissRow& row : rows) {
        TrimDesk desk(lineFrom({0, 0}, {100, 0}, {20, 0}), row.boundary);
        desk.s.store.setStat(2, row.stat);
        desk.click(row.click);
        EXPECT_EQ(desk.s.store.entCount, 3) << row.what;
        EXPECT_EQ(desk.stat(1), Stat::sel) << row.what;
    }
}

TEST(Trim, OfBoundariesEquallyNearTakesTheLater)
{
    EditDesk desk;
    desk.add(lineFrom({0, 0}, {100, 0}, {20, 0}));
    desk.add(lineFrom({40, -60}, {40, 60}), Stat::on);
    desk.add(lineFrom({50, -60}, {50, 60}), Stat::on);
    desk.begin("Trim");
    desk.click({45, 30});
    fake::expectLine(desk.slot(4), {0, 0}, {50, 0}, "later");
}

TEST(Trim, ParallelLinesLeaveTheDrawingAsItWas)
{
    const EntityRecord parallels[] = {lineFrom({0, 50}, {100, 50}), lineFrom({100, 50}, {0, 50}),
                                      lineFrom({0, 0}, {100, 0})};
    for (const EntityRecord& boundary : parallels) {
        TrimDesk desk(lineFrom({0, 0}, {100, 0}, {20, 0}), boundary);
        const std::int32_t group = desk.s.log.undoGroupNext;
        desk.click({60, boundary.p1.y});
        EXPECT_EQ(desk.s.store.entCount, 3);
        EXPECT_EQ(desk.stat(1), Stat::sel);
        EXPECT_EQ(desk.s.curFunc, "Trim");
        EXPECT_EQ(desk.s.log.undoGroupNext, group);
    }
}

// The view is from -600 to 600 and -400 to 400.
TEST(Trim, MeetingMoreThanAViewsSizeBeyondTheViewLeavesTheDrawingAsItWas)
{
    struct Row {
        float at;
        bool upright, trims;
    };
    const Row rows[] = {{1799, true, true},   {1801, true, false},  {-1799, true, true},
                        {-1801, true, false}, {1199, false, true},  {1201, false, false},
                        {-1199, false, true}, {-1201, false, false}};
    for (const Row& row : rows) {
        const Point from = row.upright ? Point{row.at, -50} : Point{-50, row.at};
        const Point to = row.upright ? Point{row.at, 50} : Point{50, row.at};
        const Point along = row.upright ? Point{100, 0} : Point{0, 100};
        TrimDesk desk(lineFrom({0, 0}, along, {20, 20}), lineFrom(from, to));
        desk.click(row.upright ? Point{row.at, 30} : Point{30, row.at});
        EXPECT_EQ(desk.s.store.entCount, row.trims ? 4 : 3) << row.at;
        EXPECT_EQ(desk.stat(1), row.trims ? Stat::out : Stat::sel) << row.at;
    }
}

TEST(Trim, StoppedByAParallelKeepsWhatIsMadeInTheGroupOfTheNextAction)
{
    EditDesk desk;
    desk.add(lineFrom({0, 0}, {100, 0}, {20, 0}));
    desk.add(lineFrom({60, -50}, {60, 50}, {60, 40}));
    desk.add(lineFrom({40, -60}, {40, 60}), Stat::on);
    desk.begin("Trim");
    desk.click({40, 30});
    ASSERT_EQ(desk.s.store.entCount, 5);
    fake::expectLine(desk.slot(4), {0, 0}, {40, 0}, "made");
    EXPECT_EQ(desk.stat(4), Stat::on);
    EXPECT_EQ(desk.stat(1), Stat::sel);
    EXPECT_EQ(desk.stat(2), Stat::sel);
    deleteSelection(desk.s, desk.pic1);
    undo(desk.s.store, desk.s.log);
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.stat(2), Stat::on);
    EXPECT_EQ(desk.stat(4), Stat::out);
}

TEST(Trim, ObjectThatMissesTheBoundaryStaysAsItIs)
{
    const std::pair<EntityRecord, EntityRecord> rows[] = {
        {lineFrom({0, 0}, {100, 0}, {20, 0}), circleAt({50, 60}, 40)},
        {arcAt({0, 0}, 20, 0, 90, 10), lineFrom({-50, 60}, {50, 60})},
        {arcAt({0, 0}, 20, 0, 90, 10), circleAt({0, 60}, 35)},
        {arcAt({50, 60}, 20, 0, 90, 10), circleAt({50, 60}, 40)},  // one centre
        {lineFrom({5, 5}, {5, 5}, {5, 5}), circleAt({0, 60}, 40)}, // no direction
    };
    for (const auto& [object, boundary] : rows) {
        TrimDesk desk(object, boundary);
        const std::int32_t logged = desk.s.log.undoLogCount;
        const Point click =
            boundary.kind == Kind::line ? Point{10, 60} : Point{boundary.p1.x, 60 + boundary.rad};
        desk.click(click);
        EXPECT_EQ(desk.stat(1), Stat::on);
        EXPECT_EQ(desk.slot(1), object);
        EXPECT_EQ(desk.s.store.entCount, 3);
        EXPECT_EQ(desk.s.log.undoLogCount, logged);
        EXPECT_EQ(desk.s.curFunc, "Object Select");
    }
}

TEST(Trim, ThrowsAwaySelectedObjectsOfOtherKinds)
{
    for (const Kind kind : everyKind) {
        if (kind == Kind::line || kind == Kind::arc) continue;
        TrimDesk desk(sample(kind), lineFrom({40, -60}, {40, 60}));
        desk.click({40, 5});
        EXPECT_EQ(desk.stat(1), Stat::out) << numberOf(kind);
        EXPECT_EQ(desk.s.store.entCount, 3) << numberOf(kind);
        undo(desk.s.store, desk.s.log);
        EXPECT_EQ(desk.stat(1), Stat::on) << numberOf(kind);
    }
}

TEST(Trim, OfSeveralObjectsIsTakenBackByOneUndo)
{
    EditDesk desk;
    desk.add(lineFrom({0, 0}, {100, 0}, {20, 0}));
    desk.add(arcAt({0, 0}, 50, 0, 180, 10));
    desk.add(arcAt({300, 0}, 50, 0, 180, 10)); // misses
    desk.add(circleAt({0, 0}, 10));
    desk.add(lineFrom({40, -60}, {40, 60}), Stat::on);
    const std::int32_t group = desk.s.log.undoGroupNext;
    desk.begin("Trim");
    desk.click({40, 5});
    ASSERT_EQ(desk.s.store.entCount, 8);
    EXPECT_EQ(desk.s.log.undoGroupNext, group + 1);
    const Stat after[] = {Stat::out, Stat::out, Stat::on, Stat::out, Stat::on, Stat::on, Stat::on};
    for (std::int32_t i = 1; i <= 7; ++i) EXPECT_EQ(desk.stat(i), after[i - 1]) << i;
    undo(desk.s.store, desk.s.log);
    for (std::int32_t i = 1; i <= 7; ++i) EXPECT_EQ(desk.stat(i), i <= 5 ? Stat::on : Stat::out) << i;
    redo(desk.s.store, desk.s.log);
    for (std::int32_t i = 1; i <= 7; ++i) EXPECT_EQ(desk.stat(i), after[i - 1]) << i;
}

TEST(Trim, EndsTheRunAndShowsTheResult)
{
    TrimDesk desk(lineFrom({0, 0}, {100, 0}, {20, 0}), lineFrom({40, -60}, {40, 60}));
    desk.click({40, 5});
    EXPECT_EQ(desk.s.curFunc, "Object Select");
    EXPECT_EQ(desk.s.promptText, "(Click near object:)");
    EXPECT_EQ(desk.s.stepNo, 0);
    const fake::Ops expected = {"line 40 -60 40 60", "line 0 0 40 0"};
    EXPECT_EQ(fake::marks(desk.ops()), expected);
}

TEST(Trim, WhatStaysEndsOnTheBoundaryAndHoldsThePickedPart)
{
    fake::Throws dice(21);
    EditDesk desk;
    int made = 0;
    for (int i = 0; i < 6000; ++i) {
        EntityRecord object = i % 2 == 0 ? dice.line() : dice.arc();
        object.p5 = fake::pointOn(object, dice.between(0.02, 0.98));
        const EntityRecord boundary = i % 3 == 0 ? dice.line() : i % 3 == 1 ? dice.circle() : dice.arc();
        fake::emptyDrawing(desk);
        desk.add(object);
        desk.add(boundary, Stat::on);
        desk.begin("Trim");
        desk.click(fake::pointOn(boundary, dice.between(0.1, 0.9)));
        ASSERT_EQ(desk.stat(2), Stat::on);
        if (desk.s.store.entCount == 3) {
            ASSERT_EQ(desk.slot(1), object) << i;
            continue;
        }
        ++made;
        const EntityRecord kept = desk.slot(3);
        // A line's pick just behind the boundary counts as before it.
        const double share = kept.kind != Kind::line ? 0 : boundary.kind == Kind::line ? 0.0005 : 0.005;
        ASSERT_LT(fake::offObject(kept, object.p5), 0.01 + share * distance(kept.p1, kept.p2)) << i;
        if (kept.kind == Kind::circle) continue;
        const bool isLine = kept.kind == Kind::line;
        const Point ends[] = {isLine ? kept.p1 : kept.p2, isLine ? kept.p2 : kept.p3};
        const double off = std::min(fake::offFigure(boundary, ends[0]), fake::offFigure(boundary, ends[1]));
        const bool mayBeOnAxis = !isLine && boundary.kind == Kind::line;
        ASSERT_LT(off, mayBeOnAxis ? kept.rad * 0.0011 : 0.01) << i;
        ASSERT_LT(std::max(fake::offFigure(object, ends[0]), fake::offFigure(object, ends[1])), 0.01) << i;
    }
    EXPECT_GT(made, 2000);
}

TEST(Trim, AClickOnTheCentreOfACircleIsARadiusFromIt)
{
    for (const bool withAxis : {false, true}) {
        EditDesk desk;
        desk.add(fake::lineFrom({-400, -150}, {300, 250}, {-400, -150}));
        if (withAxis) desk.add(fake::lineFrom({37, -300}, {37, 300}), Stat::on);
        desk.add(fake::circleAt({37, 21}, 190), Stat::on);
        const std::int32_t drawn = desk.s.store.entCount;
        desk.begin("Trim");
        desk.click({37, 21});
        EXPECT_EQ(desk.s.store.entCount, drawn + (withAxis ? 1 : 0));
        EXPECT_EQ(desk.stat(1), withAxis ? Stat::out : Stat::sel);
        if (!withAxis) continue;
        EXPECT_NEAR(desk.last().p2.x, 37, 1e-3);
    }
}

} // namespace
} // namespace mirtane
