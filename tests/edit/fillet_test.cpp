#include "edit/fillet.h"

#include "cut_desk.h"

namespace mirtane {
namespace {

using fake::arcAt;
using fake::EditDesk;
using fake::expectNear;
using fake::lineFrom;
using fake::sample;

// A desk with two selected objects in slots 1 and 2, and "Fillet" begun.
struct FilletDesk : EditDesk {
    FilletDesk(const EntityRecord& first, const EntityRecord& second, float radius)
    {
        add(first);
        add(second);
        s.filletRadius = radius;
        begin("Fillet");
        ops();
    }
    bool made() const { return s.store.entCount == 6; }
    EntityRecord rounding() const { return slot(3); }
    EntityRecord firstCut() const { return slot(4); }
    EntityRecord secondCut() const { return slot(5); }
};

void expectFilleted(const FilletDesk& desk, const std::string& what)
{
    ASSERT_TRUE(desk.made()) << what;
    const Stat after[] = {Stat::out, Stat::out, Stat::on, Stat::on, Stat::on};
    for (std::int32_t i = 1; i <= 5; ++i) EXPECT_EQ(desk.stat(i), after[i - 1]) << what << " " << i;
    for (std::int32_t i = 3; i <= 5; ++i) fake::expectLooks(desk.slot(i), what);
}

// Centre, and the two touching points in either order.
void expectRounding(const EntityRecord& arc, Point centre, double radius, Point touch, Point otherTouch,
                    const std::string& what)
{
    EXPECT_EQ(arc.kind, Kind::arc) << what;
    expectNear(arc.p1, centre, 2e-3, what + " centre");
    EXPECT_NEAR(arc.rad, radius, 1e-4) << what;
    const bool swapped = distance(arc.p2, touch) > distance(arc.p2, otherTouch);
    expectNear(arc.p2, swapped ? otherTouch : touch, 2e-3, what + " start");
    expectNear(arc.p3, swapped ? touch : otherTouch, 2e-3, what + " end");
    EXPECT_LT(sweep(arc.a1, arc.a2), halfTurn) << what;
    expectNear(arc.p4, polarPoint(arc.p1, arc.rad, middleAngle(arc.a1, arc.a2)), 1e-3, what + " middle");
}

// Two lines that cross in the middle: the click chooses one of four corners, the picks what stays of each.
TEST(Fillet, OfTwoLinesRoundsTheClickedCornerAndKeepsThePickedEnds)
{
    for (int choice = 0; choice < 16; ++choice) {
        const float toX = choice % 2 == 0 ? 1.0F : -1.0F; // of the click
        const float toY = choice / 2 % 2 == 0 ? 1.0F : -1.0F;
        const float pickX = choice / 4 % 2 == 0 ? 60.0F : -60.0F;
        const float pickY = choice / 8 == 0 ? 60.0F : -60.0F;
        FilletDesk desk(lineFrom({-100, 0}, {100, 0}, {pickX, 3}), lineFrom({0, -100}, {0, 100}, {-3, pickY}),
                        20);
        desk.click({30 * toX, 35 * toY});
        const std::string what = "choice " + std::to_string(choice);
        expectFilleted(desk, what);
        const float x = 20 * toX;
        const float y = 20 * toY;
        expectRounding(desk.rounding(), {x, y}, 20, {x, 0}, {0, y}, what);
        fake::expectLine(desk.firstCut(), {pickX > 0 ? x : -100, 0}, {pickX > 0 ? 100 : x, 0}, what);
        fake::expectLine(desk.secondCut(), {0, pickY > 0 ? y : -100}, {0, pickY > 0 ? 100 : y}, what);
    }
}

TEST(Fillet, OfLinesThatDoNotReachEachOtherMakesThemGrow)
{
    FilletDesk desk(lineFrom({50, 0}, {100, 0}, {90, 0}), lineFrom({0, 50}, {0, 100}, {0, 90}), 20);
    desk.click({60, 60});
    expectFilleted(desk, "grow");
    expectRounding(desk.rounding(), {20, 20}, 20, {20, 0}, {0, 20}, "grow");
    fake::expectLine(desk.firstCut(), {20, 0}, {100, 0}, "first");
    fake::expectLine(desk.secondCut(), {0, 20}, {0, 100}, "second");
}

// Lines that stop short of the corner keep their far ends where these were drawn first.
TEST(Fillet, OfLinesDrawnTowardsTheCornerKeepsTheirStarts)
{
    FilletDesk desk(lineFrom({100, 0}, {50, 0}, {80, 0}), lineFrom({0, 100}, {0, 50}, {0, 70}), 20);
    desk.click({60, 60});
    expectFilleted(desk, "grow");
    fake::expectLine(desk.firstCut(), {100, 0}, {20, 0}, "first");
    fake::expectLine(desk.secondCut(), {0, 100}, {0, 20}, "second");
}

// The side that stays is told by the distances from the line's start, also where that point lies outside.
TEST(Fillet, KeepsTheStartOfALineTouchedFurtherFromItThanPicked)
{
    FilletDesk desk(lineFrom({0, 0}, {10, 0}, {3, 0}), lineFrom({-9, 4}, {-9, 14}, {-9, 9}), 4);
    desk.click({-2, 3});
    expectFilleted(desk, "outside");
    expectRounding(desk.rounding(), {-5, 4}, 4, {-5, 0}, {-9, 4}, "outside");
    fake::expectLine(desk.firstCut(), {0, 0}, {-5, 0}, "first");
}

TEST(Fillet, PickBesideALineCountsByItsFoot)
{
    FilletDesk desk(lineFrom({0, 0}, {100, 0}, {35, -30}), lineFrom({20, 50}, {20, 100}, {20, 90}), 20);
    desk.click({60, 40});
    expectFilleted(desk, "beside");
    fake::expectLine(desk.firstCut(), {0, 0}, {40, 0}, "first"); // the pick itself is further from the start
}

TEST(Fillet, OfALinePickedWhereItIsTouchedKeepsWhatItsSlotHeld)
{
    FilletDesk desk(lineFrom({0, 0}, {100, 0}, {40, 7}), lineFrom({20, 50}, {20, 100}, {20, 90}), 20);
    const EntityRecord stale = lineFrom({1, 2}, {3, 4});
    desk.s.store.setRecord(4, stale);
    desk.click({60, 40});
    expectFilleted(desk, "equal");
    EXPECT_EQ(desk.firstCut().p1, stale.p1);
    EXPECT_EQ(desk.firstCut().p2, stale.p2);
    EXPECT_EQ(desk.secondCut().p1, (Point{20, 20})); // touched before its start: it grows there
}

struct LineArcRow {
    const char* what;
    Point click;
    Point centre, onLine, onArc;
    float linePick;
    float from, to; // of the line that stays
    double arcPick;
    double arcFrom, arcTo; // degrees, of the arc that stays
};

constexpr double touched = 14.4775; // degrees: sine a quarter

// A line through the centre of an arc of radius 10 from 0 to 180 degrees, radius 2.
const LineArcRow lineArcRows[] = {
    {"above, right",
     {5, -1},
     {7.745967F, -2},
     {7.745967F, 0},
     {9.682458F, -2.5F},
     0,
     -20,
     7.745967F,
     100,
     touched,
     180},
    {"above, right, outer ends",
     {5, -1},
     {7.745967F, -2},
     {7.745967F, 0},
     {9.682458F, -2.5F},
     15,
     7.745967F,
     20,
     5,
     0,
     touched},
    {"clicked outside the arc",
     {12, -1},
     {7.745967F, -2},
     {7.745967F, 0},
     {9.682458F, -2.5F},
     0,
     -20,
     7.745967F,
     100,
     touched,
     180},
    {"above, left",
     {-5, -1},
     {-7.745967F, -2},
     {-7.745967F, 0},
     {-9.682458F, -2.5F},
     0,
     -7.745967F,
     20,
     100,
     0,
     180 - touched},
    {"below: the arc grows",
     {5, 1},
     {7.745967F, 2},
     {7.745967F, 0},
     {9.682458F, 2.5F},
     0,
     -20,
     7.745967F,
     10,
     360 - touched,
     180},
};

TEST(Fillet, OfALineAndAnArcLiesInsideTheArcInEitherOrder)
{
    for (const LineArcRow& row : lineArcRows) {
        const EntityRecord line = lineFrom({-20, 0}, {20, 0}, {row.linePick, 0});
        const EntityRecord arc = arcAt({0, 0}, 10, 0, 180, row.arcPick);
        for (const bool lineFirst : {true, false}) {
            FilletDesk desk(lineFirst ? line : arc, lineFirst ? arc : line, 2);
            desk.click(row.click);
            expectFilleted(desk, row.what);
            if (!desk.made()) continue;
            expectRounding(desk.rounding(), row.centre, 2, row.onLine, row.onArc, row.what);
            fake::expectLine(lineFirst ? desk.firstCut() : desk.secondCut(), {row.from, 0}, {row.to, 0},
                             row.what);
            fake::expectArc(lineFirst ? desk.secondCut() : desk.firstCut(), {0, 0}, 10, row.arcFrom,
                            row.arcTo, row.what);
        }
    }
}

struct ArcsRow {
    const char* what;
    double firstPick, secondPick;
    double from1, to1, from2, to2;
};

// Two half circles of radius 50, their centres 60 apart.
TEST(Fillet, OfTwoArcsLiesInsideBothAndKeepsThePickedParts)
{
    constexpr double at1 = 41.4096; // degrees: cosine three quarters
    constexpr double at2 = 180 - at1;
    const ArcsRow rows[] = {
        {"the feet", 20, 160, 0, at1, at2, 180},
        {"the crowns", 120, 60, at1, 180, 0, at2},
        {"a foot and a crown", 20, 60, 0, at1, 0, at2},
        {"a crown and a foot", 120, 160, at1, 180, at2, 180},
    };
    for (const ArcsRow& row : rows) {
        FilletDesk desk(arcAt({0, 0}, 50, 0, 180, row.firstPick), arcAt({60, 0}, 50, 0, 180, row.secondPick),
                        10);
        desk.click({30, -20});
        expectFilleted(desk, row.what);
        expectRounding(desk.rounding(), {30, -26.457513F}, 10, {37.5F, -33.071891F}, {22.5F, -33.071891F},
                       row.what);
        fake::expectArc(desk.firstCut(), {0, 0}, 50, row.from1, row.to1, row.what);
        fake::expectArc(desk.secondCut(), {60, 0}, 50, row.from2, row.to2, row.what);
    }
}

TEST(Fillet, OfTwoArcsTakesTheCentreNearerToTheClick)
{
    FilletDesk desk(arcAt({0, 0}, 50, 0, 180, 90), arcAt({60, 0}, 50, 0, 180, 90), 10);
    desk.click({30, 20});
    expectRounding(desk.rounding(), {30, 26.457513F}, 10, {37.5F, 33.071891F}, {22.5F, 33.071891F}, "below");
}

// A radius larger than the arc's leaves no arc inside: what comes of the construction is stored.
TEST(Fillet, LargerThanTheArcIsStoredAsItIsWorkedOut)
{
    FilletDesk desk(lineFrom({-20, -4}, {20, -4}, {0, -4}), arcAt({0, 0}, 5, 0, 180, 90), 8);
    desk.click({1, 0}); // the line beside lies at 4, the circle of centres has radius 3
    EXPECT_FALSE(desk.made());
    FilletDesk larger(lineFrom({-20, -6}, {20, -6}, {0, -6}), arcAt({0, 0}, 5, 0, 180, 60), 8);
    larger.click({1, 0}); // the line beside lies at 2
    ASSERT_TRUE(larger.made());
    expectNear(larger.rounding().p1, {2.236068F, 2}, 1e-4, "centre");
    EXPECT_EQ(larger.rounding().rad, 8);
    expectNear(larger.secondCut().p2, {3.7267799F, 3.3333333F}, 1e-4, "touch"); // on the ray, at 5
}

TEST(Fillet, EquallyNearToBothCentresTakesTheLastPoint)
{
    FilletDesk desk(lineFrom({-20, 0}, {20, 0}, {15, 0}), arcAt({0, 0}, 10, 0, 180, 100), 2);
    const std::int32_t snappedTo = desk.add(fake::point({1, -4}), Stat::on);
    desk.hold(fake::ctrlKey);
    desk.click({0, -3});
    EXPECT_EQ(desk.s.store.entCount, 7);
    EXPECT_EQ(desk.slot(snappedTo + 1).p1, (Point{1, -4}));
}

TEST(Fillet, TakesTheClickAsItWasAndNotAsSnapped)
{
    FilletDesk desk(lineFrom({-100, 0}, {100, 0}, {60, 0}), lineFrom({0, -100}, {0, 100}, {0, 60}), 20);
    const std::int32_t snappedTo = desk.add(fake::point({-8, -8}), Stat::on);
    desk.hold(fake::ctrlKey);
    desk.click({8, 8});
    EXPECT_EQ(desk.s.pickLast, (Point{-8, -8}));
    expectRounding(desk.slot(snappedTo + 1), {20, 20}, 20, {20, 0}, {0, 20}, "click");
}

// A click on a line has no side of it, so that the radius plays no part there.
TEST(Fillet, ClickedOnALineLeavesOutItsRadius)
{
    FilletDesk desk(lineFrom({-100, 0}, {100, 0}, {60, 0}), lineFrom({0, -100}, {0, 100}, {0, 60}), 20);
    desk.click({30, 0});
    ASSERT_TRUE(desk.made());
    EXPECT_EQ(desk.rounding().p1, (Point{20, 0}));
    fake::expectLine(desk.firstCut(), {20, 0}, {100, 0}, "first");
    fake::expectLine(desk.secondCut(), {0, 0}, {0, 100}, "second");
}

TEST(Fillet, OfRadiusNothingCutsBothAtTheCorner)
{
    FilletDesk desk(lineFrom({-100, 0}, {100, 0}, {60, 0}), lineFrom({30, -100}, {30, 100}, {30, -60}), 0);
    desk.click({70, -70});
    expectFilleted(desk, "lines");
    const EntityRecord corner = desk.rounding();
    for (const Point p : {corner.p1, corner.p2, corner.p3, corner.p4}) EXPECT_EQ(p, (Point{30, 0}));
    EXPECT_EQ(corner.kind, Kind::arc);
    EXPECT_EQ(corner.rad, 0);
    EXPECT_EQ(corner.a1, 0);
    EXPECT_EQ(corner.a2, 0);
    fake::expectLine(desk.firstCut(), {30, 0}, {100, 0}, "first");
    fake::expectLine(desk.secondCut(), {30, -100}, {30, 0}, "second");

    FilletDesk arcs(arcAt({0, 0}, 50, 0, 180, 20), arcAt({60, 0}, 50, 0, 180, 60), 0);
    arcs.click({30, -60});
    expectFilleted(arcs, "arcs");
    EXPECT_EQ(arcs.rounding().rad, 0);
    expectNear(arcs.rounding().p3, {30, -40}, 1e-4, "arcs");
    fake::expectArc(arcs.firstCut(), {0, 0}, 50, 0, 53.1301, "first");
    fake::expectArc(arcs.secondCut(), {60, 0}, 50, 0, 126.8699, "second");
}

TEST(Fillet, OfRadiusNothingIsOneVeryPointOnAnyLines)
{
    fake::Throws dice(32);
    EditDesk desk;
    for (int i = 0; i < 300; ++i) {
        fake::emptyDrawing(desk);
        desk.add(dice.line());
        desk.add(i % 2 == 0 ? dice.line() : dice.arc());
        desk.s.filletRadius = 0;
        desk.begin("Fillet");
        desk.click(dice.point());
        if (desk.s.store.entCount == 3) continue; // a line that misses the arc
        const EntityRecord corner = desk.slot(3);
        for (const Point p : {corner.p2, corner.p3, corner.p4}) EXPECT_EQ(p, corner.p1) << i;
        EXPECT_EQ(corner.a1, 0) << i;
        EXPECT_EQ(corner.a2, 0) << i;
        EXPECT_TRUE(desk.slot(4).p1 == corner.p1 || desk.slot(4).p2 == corner.p1) << i;
    }
}

struct NoneRow {
    const char* what;
    EntityRecord first, second;
    float radius;
};

TEST(Fillet, WhereThereIsNoneMakesNothingAndDropsTheSelection)
{
    const EntityRecord level = lineFrom({-100, 0}, {100, 0}, {60, 0});
    const EntityRecord noLine = lineFrom({5, 5}, {5, 5}, {5, 5});
    const EntityRecord arc = arcAt({0, 0}, 50, 0, 180, 20);
    std::vector<NoneRow> rows = {
        {"parallel lines", level, lineFrom({-100, 50}, {100, 50}, {60, 50}), 20},
        {"one line twice", level, level, 20},
        {"a line of no length", level, noLine, 20},
        {"a line of no length and an arc", noLine, arc, 20},
        {"a line that misses the arc", lineFrom({-100, -90}, {100, -90}), arc, 5},
        {"arcs apart", arc, arcAt({500, 0}, 50, 0, 180, 20), 10},
        {"arcs about one centre", arc, arcAt({0, 0}, 80, 0, 180, 20), 10},
        {"a radius too large", arc, arcAt({60, 0}, 50, 0, 180, 20), 30},
        {"the arc's own radius, about its centre", level, arc, 50},
    };
    rows.back().first = lineFrom({-100, 50}, {100, 50}, {60, 50});
    for (const Kind kind : everyKind) {
        if (kind == Kind::line || kind == Kind::arc) continue;
        rows.push_back({"kind", level, sample(kind), 20});
        rows.push_back({"kind", sample(kind), level, 20});
    }
    for (const NoneRow& row : rows) {
        FilletDesk desk(row.first, row.second, row.radius);
        const std::int32_t logged = desk.s.log.undoLogCount;
        const std::int32_t group = desk.s.log.undoGroupNext;
        desk.click({30, 31});
        EXPECT_EQ(desk.s.store.entCount, 3) << row.what;
        EXPECT_EQ(desk.stat(1), Stat::on) << row.what;
        EXPECT_EQ(desk.stat(2), Stat::on) << row.what;
        EXPECT_EQ(desk.slot(1), row.first) << row.what;
        EXPECT_EQ(desk.slot(2), row.second) << row.what;
        EXPECT_EQ(desk.s.log.undoLogCount, logged) << row.what;
        EXPECT_EQ(desk.s.log.undoGroupNext, group + 1) << row.what;
        EXPECT_EQ(desk.s.curFunc, "Fillet") << row.what;
        EXPECT_EQ(desk.s.stepNo, 0) << row.what;
    }
}

TEST(Fillet, OfFewerThanTwoObjectsUsesAGroup)
{
    for (const bool one : {false, true}) {
        EditDesk desk;
        desk.add(lineFrom({0, 0}, {100, 0}), one ? Stat::sel : Stat::on);
        const std::int32_t group = desk.s.log.undoGroupNext;
        desk.begin("Fillet");
        desk.click({30, 30});
        EXPECT_EQ(desk.s.log.undoGroupNext, group + 1);
        EXPECT_EQ(desk.s.log.undoGroupTop, group + 1);
        EXPECT_EQ(desk.stat(1), Stat::on);
        EXPECT_EQ(desk.s.editPending, 0);
    }
}

TEST(Fillet, OfThreeObjectsTakesTheFirstAndTheLast)
{
    EditDesk desk;
    desk.add(lineFrom({-100, 0}, {100, 0}, {60, 0}));
    desk.add(lineFrom({-100, 70}, {100, 90}, {60, 80}));
    desk.add(lineFrom({0, -100}, {0, 100}, {0, 60}));
    desk.s.filletRadius = 20;
    desk.begin("Fillet");
    desk.click({30, 30});
    ASSERT_EQ(desk.s.store.entCount, 7);
    expectRounding(desk.slot(4), {20, 20}, 20, {20, 0}, {0, 20}, "first and last");
    const Stat after[] = {Stat::out, Stat::on, Stat::out, Stat::on, Stat::on, Stat::on};
    for (std::int32_t i = 1; i <= 6; ++i) EXPECT_EQ(desk.stat(i), after[i - 1]) << i;
}

TEST(Fillet, TakesColourLayerAndStyleOfTheArcFromTheFirstObject)
{
    EntityRecord second = lineFrom({0, -100}, {0, 100}, {0, 60});
    second.color = 0x0000FF;
    second.layer = 7;
    second.style = 4;
    FilletDesk desk(lineFrom({-100, 0}, {100, 0}, {60, 0}), second, 20);
    desk.click({30, 30});
    fake::expectLooks(desk.rounding(), "arc");
    EXPECT_EQ(desk.secondCut().color, 0x0000FF);
    EXPECT_EQ(desk.secondCut().layer, 7);
    EXPECT_EQ(desk.secondCut().style, 4);
}

TEST(Fillet, StaysForTheNextTwoObjectsWithItsRadiusInThePrompt)
{
    FilletDesk desk(lineFrom({-100, 0}, {100, 0}, {60, 0}), lineFrom({0, -100}, {0, 100}, {0, 60}), 24);
    desk.click({30, 30});
    EXPECT_EQ(desk.s.curFunc, "Fillet");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.editPending, 0);
    EXPECT_EQ(desk.s.promptText, "(Enter new radius (2) or click near inside of radius:");
    EXPECT_EQ(fake::marks(desk.ops()).size(), 3U);
    desk.s.store.setStat(4, Stat::sel);
    desk.s.store.setStat(5, Stat::sel);
    desk.click({31, 30}); // step 1 now; a second click on one point would be the cancel
    EXPECT_EQ(desk.s.store.entCount, 9);
}

TEST(Fillet, IsTakenBackByOneUndo)
{
    FilletDesk desk(lineFrom({-100, 0}, {100, 0}, {60, 0}), arcAt({0, 0}, 50, 0, 180, 20), 10);
    desk.click({20, -20});
    ASSERT_TRUE(desk.made());
    undo(desk.s.store, desk.s.log);
    for (std::int32_t i = 1; i <= 5; ++i) EXPECT_EQ(desk.stat(i), i <= 2 ? Stat::on : Stat::out) << i;
}

TEST(Fillet, ArcTouchesBothObjectsIsBelowHalfACircleAndMeetsTheCutEnds)
{
    fake::Throws dice(31);
    EditDesk desk;
    int made = 0;
    for (int i = 0; i < 6000; ++i) {
        EntityRecord objects[] = {i % 2 == 0 ? dice.line() : dice.arc(60),
                                  i % 4 < 2 ? dice.line() : dice.arc(60)};
        for (EntityRecord& r : objects) r.p5 = fake::pointOn(r, dice.between(0, 1));
        const float radius = dice.length(5, 50);
        fake::emptyDrawing(desk);
        for (const EntityRecord& r : objects) desk.add(r);
        desk.s.filletRadius = radius;
        desk.begin("Fillet");
        desk.click(dice.point());
        if (desk.s.store.entCount != 6) {
            ASSERT_EQ(desk.s.store.entCount, 3) << i;
            continue;
        }
        const EntityRecord arc = desk.slot(3);
        if (std::abs(arc.p1.x) > 5000 || std::abs(arc.p1.y) > 5000) continue; // 32 bits are coarse there
        ++made;
        ASSERT_EQ(arc.rad, radius);
        ASSERT_LE(sweep(arc.a1, arc.a2), halfTurn + 1e-6) << i;
        for (const EntityRecord& object : objects) {
            const double off = fake::offFigure(object, arc.p1);
            ASSERT_NEAR(off, radius, 0.01) << i; // so far from the centre, the object is a tangent
        }
        for (std::int32_t slot = 4; slot <= 5; ++slot) {
            const EntityRecord cut = desk.slot(slot);
            if (cut.kind == Kind::circle) continue;
            const bool isLine = cut.kind == Kind::line;
            double gap = 1e9;
            for (const Point end : {isLine ? cut.p1 : cut.p2, isLine ? cut.p2 : cut.p3})
                gap = std::min({gap, distance(end, arc.p2), distance(end, arc.p3)});
            ASSERT_LT(gap, 0.01) << i;
        }
    }
    EXPECT_GT(made, 1500);
}

} // namespace
} // namespace mirtane
