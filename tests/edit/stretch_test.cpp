#include "edit/stretch.h"

#include "cut_desk.h"
#include "edit/move_copy.h"
#include "model/record_moves.h"

namespace mirtane {
namespace {

using fake::arcOf;
using fake::EditDesk;
using fake::expectNear;
using fake::lineFrom;
using fake::Ops;
using fake::sample;

struct Box {
    Point from, to;
};

const Box everything{{-1e6F, -1e6F}, {1e6F, 1e6F}};

void stretch(EditDesk& desk, const Box& window, Point by)
{
    desk.begin("Stretch");
    desk.click(window.from);
    desk.click(window.to);
    desk.click({17, 23});
    desk.click({17 + by.x, 23 + by.y});
}

EntityRecord stretchedOn(EditDesk& desk, const EntityRecord& r, const Box& window, Point by)
{
    fake::emptyDrawing(desk);
    desk.add(r);
    stretch(desk, window, by);
    EXPECT_EQ(desk.stat(1), Stat::out);
    EXPECT_EQ(desk.s.store.entCount, 3);
    EXPECT_EQ(desk.stat(2), Stat::on);
    return desk.slot(2);
}

EntityRecord stretched(const EntityRecord& r, const Box& window, Point by)
{
    EditDesk desk;
    return stretchedOn(desk, r, window, by);
}

constexpr float small = 2; // half a window round one point

Box about(Point p)
{
    return {{p.x - small, p.y - small}, {p.x + small, p.y + small}};
}

TEST(Stretch, MovesTheEndOfALineThatLiesInTheWindow)
{
    const EntityRecord line = lineFrom({10, 20}, {40, 60});
    fake::expectLine(stretched(line, about({10, 20}), {5, -7}), {15, 13}, {40, 60}, "start");
    fake::expectLine(stretched(line, about({40, 60}), {5, -7}), {10, 20}, {45, 53}, "end");
    fake::expectLine(stretched(line, everything, {5, -7}), {15, 13}, {45, 53}, "both");
    fake::expectLine(stretched(line, about({25, 40}), {5, -7}), {10, 20}, {40, 60}, "none");
}

TEST(Stretch, WindowHoldsItsEdgesWhicheverCornersAreClicked)
{
    const EntityRecord line = lineFrom({10, 20}, {40, 60});
    const Box boxes[] = {
        {{10, 20}, {40, 60}}, {{40, 60}, {10, 20}}, {{10, 60}, {40, 20}}, {{40, 20}, {10, 60}}};
    for (const Box& box : boxes) {
        EditDesk desk;
        desk.add(line);
        stretch(desk, box, {1, 1});
        fake::expectLine(desk.slot(2), {11, 21}, {41, 61}, "edges");
        EXPECT_EQ(desk.s.stretchLeft, 10);
        EXPECT_EQ(desk.s.stretchTop, 20);
        EXPECT_EQ(desk.s.stretchRight, 40);
        EXPECT_EQ(desk.s.stretchBottom, 60);
    }
}

struct PartRow {
    const char* what;
    Kind kind;
    Point inWindow;
    std::uint16_t moved; // pairs
};

// By the sample of the kind.
TEST(Stretch, MovesOfEachKindThePointsThatItSays)
{
    using namespace field;
    const PartRow rows[] = {
        {"centre of a circle", Kind::circle, {100, 100}, p1},
        {"edge of a circle", Kind::circle, {130, 100}, 0},
        {"centre of an ellipse", Kind::ellipse, {100, 100}, p1 | p2},
        {"axis end of an ellipse", Kind::ellipse, {140, 100}, p1},
        {"point", Kind::point, {7, 9}, p1},
        {"place of a text", Kind::text, {50, 50}, p1 | p4},
        {"middle of a text", Kind::text, {65, 50}, 0},
        {"radial dimension, centre", Kind::radialDimension, {0, 0}, p1},
        {"radial dimension, elbow", Kind::radialDimension, {80, 0}, p2},
        {"radial dimension, shoulder", Kind::radialDimension, {90, 0}, p3},
        {"radial dimension, on the circle", Kind::radialDimension, {50, 0}, p4},
        {"radial dimension, text", Kind::radialDimension, {95, 0}, p5},
        {"leader, arrow", Kind::leader, {0, 0}, p1},
        {"leader, shoulder", Kind::leader, {10, 10}, p2},
        {"leader, end of the shoulder", Kind::leader, {20, 10}, p3},
        {"leader, text", Kind::leader, {25, 10}, p5},
        {"angular dimension, vertex", Kind::angularDimension, {0, 0}, p1 | p2 | p3 | p4 | p5},
        {"angular dimension, an extension line", Kind::angularDimension, {60, 0}, 0},
        {"angular dimension, arc", Kind::angularDimension, {50, 0}, 0},
        {"angular dimension, text", Kind::angularDimension, {40, -40}, 0},
    };
    for (const PartRow& row : rows) {
        EntityRecord expected = sample(row.kind);
        mapPairs(expected, row.moved, [](Point p) { return Point{p.x + 5, p.y - 7}; });
        fake::expectRecord(stretched(sample(row.kind), about(row.inWindow), {5, -7}), expected, 1e-4,
                           row.what);
    }
}

TEST(Stretch, OfATextAsksWhereItWasPlacedAndNotWhereItIsPainted)
{
    EntityRecord text = sample(Kind::text);
    text.p4 = {20, 50}; // justified right
    EXPECT_EQ(stretched(text, about(text.p4), {5, -7}).p4, text.p4);
    EXPECT_EQ(stretched(text, about(text.p1), {5, -7}).p4, (Point{25, 43}));
}

TEST(Stretch, WithAWindowOverEverythingIsAMove)
{
    for (const Kind kind : everyKind) {
        if (kind == Kind::linearDimension) continue;
        EntityRecord moved = sample(kind);
        shift(moved, 12.5F, -30);
        if (kind == Kind::leader) moved.p4 = sample(kind).p4; // which means nothing
        fake::expectRecord(stretched(sample(kind), everything, {12.5F, -30}), moved, 1e-4, "everything");
    }
}

TEST(Stretch, WithAWindowOverEverythingMovesAnythingThrownAtRandom)
{
    fake::Throws dice(41);
    EditDesk desk;
    for (int i = 0; i < 500; ++i) {
        const EntityRecord r = i % 3 == 0 ? dice.line() : i % 3 == 1 ? dice.circle() : dice.arc(1);
        const Point by = dice.point();
        EntityRecord moved = r;
        const EntityRecord got = stretchedOn(desk, r, everything, by);
        shift(moved, by.x, by.y);
        fake::expectRecord(got, moved, 2e-3, "thrown " + std::to_string(i));
    }
}

// A half circle over the top, from (50, 0) through (0, -50) to (-50, 0).
EntityRecord halfCircle()
{
    return arcOf({0, 0}, 50, 0, halfTurn);
}

TEST(Stretch, RebuildsAnArcThroughItsThreePoints)
{
    const EntityRecord higher = stretched(halfCircle(), about({0, -50}), {0, -50});
    fake::expectArc(higher, {0, -37.5F}, 62.5, 323.1301, 216.8699, "higher");
    expectNear(higher.p2, {50, 0}, 1e-3, "start");
    expectNear(higher.p3, {-50, 0}, 1e-3, "end");
    expectNear(higher.p4, {0, -100}, 1e-3, "middle");
}

TEST(Stretch, TurnsAnArcRoundWhenItsMiddleGoesToTheOtherSide)
{
    const EntityRecord under = stretched(halfCircle(), about({0, -50}), {0, 150});
    fake::expectArc(under, {0, 37.5F}, 62.5, 143.1301, 36.8699, "under");
    expectNear(under.p2, {-50, 0}, 1e-3, "start");
    expectNear(under.p3, {50, 0}, 1e-3, "end");
    expectNear(under.p4, {0, 100}, 1e-3, "middle");
}

// The construction that draws arcs would miss the third point here.
TEST(Stretch, RebuildsAnArcExactlyWithAnObtuseAngleAtItsStart)
{
    EntityRecord arc = fake::green(fake::record(Kind::arc));
    arc.p2 = {0, 0};
    arc.p4 = {100, 0};
    arc.p3 = {-100, 300};
    const EntityRecord r = stretched(arc, about(arc.p3), {0, -200});
    expectNear(r.p1, {50, 150}, 1e-3, "centre");
    EXPECT_NEAR(r.rad, 158.11388, 1e-3);
    for (const Point p : {Point{0, 0}, Point{100, 0}, Point{-100, 100}})
        EXPECT_LT(fake::offObject(r, p), 1e-3);
}

TEST(Stretch, ThreePointsOnOneLineLeaveTheArcAsItWas)
{
    const EntityRecord arc = halfCircle();
    fake::expectRecord(stretched(arc, about({0, -50}), {0, 50}), arc, 1e-4, "on one line");
    fake::expectRecord(stretched(arc, about({50, 0}), {-100, 0}), arc, 1e-4, "two in one");
}

TEST(Stretch, OfAnArcWithNoPointInTheWindowCopiesIt)
{
    EntityRecord odd = halfCircle();
    odd.p4 = {3, 4};                                       // not on it: a rebuilt arc would show that
    EXPECT_EQ(stretched(odd, about({0, 0}), {5, 5}), odd); // its centre is no point of it
}

TEST(Stretch, AnyArcRunsThroughItsPointsWhereTheyWerePutTo)
{
    fake::Throws dice(42);
    EditDesk desk;
    for (int i = 0; i < 2000; ++i) {
        EntityRecord arc = dice.arc(30);
        if (sweep(arc.a1, arc.a2) < 0.3) continue;
        const Point by = dice.point();
        const Point which[] = {arc.p2, arc.p3, arc.p4};
        const Point pulled = which[i % 3];
        const Box window = about(pulled);
        const EntityRecord r = stretchedOn(desk, arc, window, by);
        if (r.rad > 5000) continue; // nearly a line
        for (Point p : which) {
            if (p.x >= window.from.x && p.x <= window.to.x && p.y >= window.from.y && p.y <= window.to.y)
                p = {p.x + by.x, p.y + by.y};
            ASSERT_LT(fake::offObject(r, p), 0.05) << i;
        }
    }
}

// Line from (0, 40) to (100, 40), text size 10.
TEST(Stretch, LinearDimensionSaysItsNewLengthOverItsMiddle)
{
    EditDesk desk;
    desk.s.numStyle = "3i";
    desk.add(sample(Kind::linearDimension));
    stretch(desk, {{90, -10}, {110, 50}}, {44, 0}); // its right side
    const EntityRecord r = desk.slot(2);
    EXPECT_EQ(r.p1, (Point{0, 0}));
    EXPECT_EQ(r.p2, (Point{144, 0}));
    EXPECT_EQ(r.p3, (Point{144, 40}));
    EXPECT_EQ(r.p4, (Point{0, 40}));
    EXPECT_EQ(r.t1, "12.000\"");
    expectNear(r.p5, {72 - 7 * 10 * 0.75F / 2, 40 - 15}, 1e-3, "text"); // seven characters
    EXPECT_NEAR(r.a1, 0, 1e-9);
    EXPECT_EQ(r.s2, 10);
    EXPECT_EQ(r.t2, "Garamond");
}

TEST(Stretch, LinearDimensionReadsUprightInDegrees)
{
    struct Row {
        const char* what;
        Point p3, p4;
        double degrees;
        Point text;
    };
    const float half = 6 * 10 * 0.75F / 2; // 10'-0" has six
    const Row rows[] = {
        {"to the right", {1440, 40}, {0, 40}, 0, {720 - half, 25}},
        {"to the left", {0, 40}, {1440, 40}, 0 /* whole turn */, {720 - half, 25}},
        {"upwards", {0, 0}, {0, 1440}, 90, {-15, 720 + half}},
        {"downwards", {0, 1440}, {0, 0}, 90, {-15, 720 + half}},
    };
    for (const Row& row : rows) {
        EntityRecord r = sample(Kind::linearDimension);
        r.p1 = {9000, 9000};
        r.p3 = {row.p3.x - 7, row.p3.y};
        r.p4 = {row.p4.x - 7, row.p4.y};
        const EntityRecord got = stretched(r, {{-1000, -1000}, {2000, 2000}}, {7, 0});
        EXPECT_EQ(got.p1, (Point{9000, 9000})) << row.what;
        EXPECT_EQ(got.t1, "10'-0\"") << row.what;
        EXPECT_NEAR(std::remainder(got.a1 - row.degrees, 360), 0, 1e-4) << row.what;
        expectNear(got.p5, row.text, 2e-3, row.what);
    }
}

TEST(Stretch, LinearDimensionWithOnlyItsTextInTheWindowIsCopied)
{
    EntityRecord r = sample(Kind::linearDimension);
    r.t1 = "as typed";
    r.a1 = 33;
    EXPECT_EQ(stretched(r, about(r.p5), {5, 5}), r);
}

TEST(Stretch, TakesTheWindowFromThePointerAndTheOffsetFromTheThirdClick)
{
    EditDesk desk;
    desk.add(lineFrom({10, 20}, {40, 60}));
    for (const Point p : {Point{300, 300}, {303, 304}}) desk.add(fake::point(p), Stat::on);
    desk.begin("Stretch");
    desk.s.editPending = 0;
    desk.ortho(true);
    desk.click({0, 0});
    EXPECT_EQ(desk.s.editPending, 1);
    desk.click({20, 30});
    EXPECT_EQ(desk.s.pickLast.y, 0) << "ortho has turned it";
    EXPECT_EQ(desk.s.promptText, "(Enter reference point:)");
    EXPECT_EQ(desk.s.stretchRight, 20);
    EXPECT_EQ(desk.s.stretchBottom, 30);
    desk.hold(fake::ctrlKey);
    desk.click({291, 293});
    EXPECT_EQ(desk.s.promptText, "(Enter new reference point:)");
    EXPECT_EQ(desk.s.pickFirst, (Point{300, 300}));
    desk.ortho(false);
    desk.click({314, 320});
    fake::expectLine(desk.slot(4), {13, 24}, {40, 60}, "start alone");
}

TEST(Stretch, ShowsItsWindowAndThenTheSelectionAtThePointer)
{
    EditDesk desk;
    desk.add(lineFrom({10, 20}, {40, 60}));
    desk.begin("Stretch");
    desk.click({1, 2});
    desk.ops();
    desk.move({30, 40});
    const Ops box = {"restoreSnapshot", "line 1 2 30 2", "line 30 2 30 40", "line 30 40 1 40",
                     "line 1 40 1 2"};
    EXPECT_EQ(desk.ops(), box);
    desk.click({30, 40});
    desk.ops();
    desk.move({35, 45});
    EXPECT_TRUE(desk.ops().empty());
    desk.click({5, 5});
    desk.ops();
    desk.move({10, 4});
    const Ops ghost = {"restoreSnapshot", "line 5 5 10 4", "line 15 19 45 59"};
    EXPECT_EQ(desk.ops(), ghost);
}

TEST(Stretch, ShowsNoWindowBeforeItsFirstCorner)
{
    EditDesk desk;
    desk.add(lineFrom({10, 20}, {40, 60}));
    desk.begin("Stretch");
    desk.ops();
    desk.move({10, 4});
    EXPECT_TRUE(desk.ops().empty());
}

TEST(Stretch, EndsTheRunWithAllSourcesOut)
{
    EditDesk desk;
    for (const Kind kind : everyKind) desk.add(sample(kind));
    const std::int32_t group = desk.s.log.undoGroupNext;
    stretch(desk, {{0, 0}, {60, 60}}, {10, 10});
    EXPECT_EQ(desk.s.store.entCount, 21);
    EXPECT_EQ(desk.s.log.undoGroupNext, group + 1);
    EXPECT_EQ(desk.s.curFunc, "Object Select");
    EXPECT_EQ(desk.s.promptText, "(Click near object:)");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.editPending, 0);
    undo(desk.s.store, desk.s.log);
    for (std::int32_t i = 1; i <= 20; ++i) EXPECT_EQ(desk.stat(i), i <= 10 ? Stat::on : Stat::out) << i;
}

TEST(Stretch, OfNothingUsesAGroup)
{
    EditDesk desk;
    desk.add(lineFrom({10, 20}, {40, 60}), Stat::on);
    const std::int32_t group = desk.s.log.undoGroupNext;
    stretch(desk, everything, {10, 10});
    EXPECT_EQ(desk.s.log.undoGroupNext, group + 1);
    EXPECT_EQ(desk.s.store.entCount, 2);
}

} // namespace
} // namespace mirtane
