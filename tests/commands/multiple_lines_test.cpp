#include "commands/multiple_lines.h"

#include "function_desk.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>
#include <vector>

namespace mirtane {
namespace {

using fake::only;
using fake::Ops;

// The function running with a set called "Wall".
class Drawn : public fake::FunctionDesk {
  public:
    explicit Drawn(const std::vector<float>& offsets)
        : FunctionDesk("Multiple Lines", {-2000, -2000, 4000, 4000})
    {
        s.multipleLinesName = "Wall";
        for (const float offset : offsets) addRow("Wall", offset);
    }

    void addRow(const char* name, float offset)
    {
        MultipleLine row;
        row.name = name;
        row.m1 = offset;
        row.colour = 0x00FF00;
        row.style = 1;
        s.multipleLinesLibrary.add(row);
    }
    void press(Point p) { FunctionDesk::click(p); }
    void click(Point p)
    {
        move(p);
        press(p);
    }
};

void expectNear(Point p, double x, double y, double tolerance = 1e-3)
{
    EXPECT_NEAR(p.x, x, tolerance);
    EXPECT_NEAR(p.y, y, tolerance);
}

TEST(MultipleLines, ARightAngleIsMitredWithOrthoOnAndOff)
{
    struct Row {
        const char* what;
        Point next;
        Point end;
    };
    const Row rows[] = {
        {"up, away from the line", {100, -50}, {110, 10}},
        {"down, towards it", {100, 50}, {90, 10}},
    };
    for (const Row& row : rows) {
        for (const bool ortho : {true, false}) {
            Drawn run({10});
            run.ortho(ortho);
            run.click({0, 0});
            run.click({100, 0});
            run.click(row.next);
            ASSERT_EQ(run.s.store.entCount, 2) << row.what;
            expectNear(run.slot(1).p1, 0, 10);
            expectNear(run.slot(1).p2, row.end.x, row.end.y);
        }
    }
}

// The turn goes back over the leg before, as with ortho on only a new ortho angle can make it: then it is
// taken for one of 45 degrees.
TEST(MultipleLines, ASharpTurnIsMitredTrulyOnlyWithOrthoOff)
{
    for (const bool ortho : {true, false}) {
        Drawn run({10});
        run.ortho(ortho);
        run.click({0, 0});
        run.click({100, 0});
        run.s.orthoAngle = std::numbers::pi / 4;
        run.click({50, 50});
        expectNear(run.slot(1).p2, ortho ? 95.857864 : 75.857864, 10);
    }
}

// The crossing of the two lines at an offset beside the legs A to B and B to C.
Point trueMitre(Point a, Point b, Point c, double offset)
{
    const double ab = std::hypot(b.x - a.x, b.y - a.y), bc = std::hypot(c.x - b.x, c.y - b.y);
    const double ux = (b.x - a.x) / ab, uy = (b.y - a.y) / ab, vx = (c.x - b.x) / bc, vy = (c.y - b.y) / bc;
    // beside a leg (x, y), y downward, at offset: (-y, x) times offset
    const double px = b.x - uy * offset, py = b.y + ux * offset;
    const double qx = b.x - vy * offset, qy = b.y + vx * offset;
    const double t = ((qx - px) * vy - (qy - py) * vx) / (ux * vy - uy * vx);
    return {static_cast<float>(px + t * ux), static_cast<float>(py + t * uy)};
}

TEST(MultipleLines, EveryTurnEndsWhereTheTwoOffsetLinesCross)
{
    Drawn run({10, -10, 0});
    run.ortho(false);
    for (int heading = 0; heading < 360; heading += 25) {
        for (int turn = -150; turn <= 170; turn += 10) {
            if (turn == 0) continue;
            const auto at = [](Point from, double degrees, float d) {
                const double a = degrees * std::numbers::pi / 180;
                return Point{from.x + d * static_cast<float>(std::cos(a)),
                             from.y - d * static_cast<float>(std::sin(a))};
            };
            const Point a{30, -40};
            const Point b = at(a, heading, 200);
            const Point c = at(b, heading + turn, 130);
            run.s.stepNo = 0;
            run.s.store.entCount = 1;
            for (const Point p : {a, b, c}) run.click(p);
            ASSERT_EQ(run.s.store.entCount, 4);
            for (std::int32_t i = 0; i < 3; ++i) {
                const float offset = run.s.multipleLinesLibrary.rows[static_cast<std::size_t>(i)].m1;
                const Point expected = trueMitre(a, b, c, offset);
                SCOPED_TRACE(testing::Message() << heading << " turning " << turn << " at " << offset);
                expectNear(run.slot(1 + i).p2, expected.x, expected.y, 0.01);
            }
        }
    }
}

// A wall of many corners: legs of all lengths, so that a leg may run back further than twice the one before.
TEST(MultipleLines, EveryMitreOfARandomWallLiesWhereItsOffsetLinesCross)
{
    std::mt19937 random(20261122);
    const auto between = [&random](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    for (const double far : {0.0, 3000.0, -40000.0}) {
        for (int wall = 0; wall < 60; ++wall) {
            Drawn run({18, -7, 0, 2.5F});
            run.ortho(false);
            std::vector<Point> corners = {{static_cast<float>(far), static_cast<float>(-far / 3)}};
            double heading = between(0, 360);
            for (int i = 0; i < 9; ++i) {
                const double a = heading * std::numbers::pi / 180;
                const double leg = std::pow(10, between(1.5, 3.5));
                corners.push_back({static_cast<float>(corners.back().x + leg * std::cos(a)),
                                   static_cast<float>(corners.back().y - leg * std::sin(a))});
                const double turn = between(3, 165);
                heading += wall % 2 == 0 ? turn : -turn;
            }
            for (const Point p : corners) run.click(p);
            std::int32_t slot = 1;
            for (std::size_t i = 0; i + 2 < corners.size(); ++i) {
                for (const float offset : {18.0F, -7.0F, 0.0F, 2.5F}) {
                    const Point mitre = trueMitre(corners[i], corners[i + 1], corners[i + 2], offset);
                    SCOPED_TRACE(testing::Message()
                                 << "wall " << wall << " at " << far << ", corner " << i + 1);
                    expectNear(run.slot(slot).p2, mitre.x, mitre.y, far == 0 ? 0.02 : 0.2);
                    ++slot;
                }
            }
        }
    }
}

TEST(MultipleLines, ALegThatRunsBackFurtherThanTwiceTheLastIsMitredTruly)
{
    struct Row {
        const char* what;
        Point a, b, c;
    };
    const Row rows[] = {
        {"level, past the first corner", {500, 300}, {560, 300}, {340, 360}},
        {"level, the other side", {500, 300}, {560, 300}, {340, 220}},
        {"upright", {-80, 40}, {-80, 0}, {-30, 190}},
        {"slanted", {0, 0}, {30, -40}, {-120, 200}},
        {"slanted, far from the origin", {60000, 80000}, {60030, 79960}, {59880, 80200}},
        {"exactly twice", {0, 0}, {50, 0}, {-50, 30}},
        {"ten times", {0, 0}, {50, 0}, {-450, -40}},
    };
    for (const Row& row : rows) {
        for (const float offset : {9.0F, -4.0F}) {
            Drawn run({offset});
            run.ortho(false);
            for (const Point p : {row.a, row.b, row.c}) run.click(p);
            const Point mitre = trueMitre(row.a, row.b, row.c, offset);
            SCOPED_TRACE(testing::Message() << row.what << " at " << offset);
            expectNear(run.slot(1).p2, mitre.x, mitre.y, 0.05);
        }
    }
}

// Two lines beside one path there and back never cross.
TEST(MultipleLines, ALegStraightBackHasNoMitreAndEndsSquarely)
{
    struct Row {
        const char* what;
        Point a, b, c, end; // of the line at 10
    };
    const Row rows[] = {
        {"level", {100, 200}, {300, 200}, {50, 200}, {300, 210}},
        {"upright", {100, 200}, {100, 20}, {100, 900}, {110, 20}},
        {"slanted", {0, 0}, {300, -400}, {150, -200}, {308, -394}},
        {"as near as rounding lets it",
         {1000.1F, 0.3F},
         {1300.1F, 100.3F},
         {1150.1F, 50.3F},
         {1296.938F, 109.787F}},
    };
    for (const Row& row : rows) {
        Drawn run({10});
        run.ortho(false);
        for (const Point p : {row.a, row.b, row.c}) run.click(p);
        SCOPED_TRACE(row.what);
        expectNear(run.slot(1).p2, row.end.x, row.end.y, 0.01);
    }
}

double distanceFromLine(Point p, Point a, Point b)
{
    const double length = std::hypot(b.x - a.x, b.y - a.y);
    return ((b.x - a.x) * (static_cast<double>(p.y) - a.y) - (b.y - a.y) * (static_cast<double>(p.x) - a.x)) /
           length;
}

TEST(MultipleLines, LinesLieAtTheirOffsetsAndNeighboursMeet)
{
    const std::vector<float> offsets = {-12, 0, 5, 20};
    const std::vector<Point> corners = {{0, 0}, {300, 0}, {300, 200}, {500, 350}, {450, 600}, {-100, 500}};
    Drawn run(offsets);
    run.ortho(false);
    for (const Point p : corners) run.click(p);
    const std::size_t legs = corners.size() - 2, lines = offsets.size();
    ASSERT_EQ(run.s.store.entCount, static_cast<std::int32_t>(1 + legs * lines))
        << "the last leg is not stored";
    for (std::size_t leg = 0; leg < legs; ++leg) {
        for (std::size_t i = 0; i < lines; ++i) {
            const EntityRecord r = run.slot(static_cast<std::int32_t>(1 + leg * lines + i));
            // a greater offset lies to the right of the way, which on the screen is clockwise
            EXPECT_NEAR(distanceFromLine(r.p1, corners[leg], corners[leg + 1]), offsets[i], 1e-3);
            EXPECT_NEAR(distanceFromLine(r.p2, corners[leg], corners[leg + 1]), offsets[i], 1e-3);
            if (leg == 0) continue;
            EXPECT_EQ(r.p1, run.slot(static_cast<std::int32_t>(1 + (leg - 1) * lines + i)).p2);
        }
    }
}

TEST(MultipleLines, AnOffsetOfNothingDrawsTheReferencePath)
{
    Drawn run({0});
    run.click({0, 0});
    run.click({100, 0});
    run.click({100, 100});
    EXPECT_EQ(run.slot(1).p1, (Point{0, 0}));
    EXPECT_EQ(run.slot(1).p2, (Point{100, 0}));
}

TEST(MultipleLines, TwoClicksStoreNothing)
{
    Drawn run({10});
    run.click({0, 0});
    run.click({100, 0});
    EXPECT_EQ(run.s.store.entCount, 1);
    EXPECT_EQ(run.s.log.undoGroupNext, 0);
    EXPECT_EQ(run.s.promptText, "(Enter ending point of reference line:)");
    EXPECT_EQ(run.s.pickFirst, (Point{100, 0})) << "a repeat of it is the cancel";
}

TEST(MultipleLines, LinesTakeTheColourAndStyleOfTheirRowsAndTheWorkingLayer)
{
    Drawn run({10});
    run.s.workLayer = 5;
    run.s.curColor = 0x0000FF;
    run.s.curStyle = 3;
    run.s.store.t1[1] = "kept";
    run.click({0, 0});
    run.click({100, 0});
    run.click({100, 100});
    const EntityRecord r = run.slot(1);
    EXPECT_EQ(r.kind, Kind::line);
    EXPECT_EQ(r.color, 0x00FF00);
    EXPECT_EQ(r.style, 1);
    EXPECT_EQ(r.layer, 5);
    EXPECT_EQ(r.t1, "kept") << "fields that a line does not write keep what the slot held";
    EXPECT_EQ(run.s.layerTable.find(5)->layerUsed, "Yes:");
    EXPECT_EQ(run.s.store.stat[1], Stat::on);
}

TEST(MultipleLines, TheLinesOfACornerAreOneGroup)
{
    Drawn run({10, -10});
    run.click({0, 0});
    run.click({100, 0});
    run.click({100, 100});
    run.click({200, 100});
    ASSERT_EQ(run.s.store.entCount, 5);
    undo(run.s.store, run.s.log);
    EXPECT_EQ(run.s.store.stat[1], Stat::on);
    EXPECT_EQ(run.s.store.stat[2], Stat::on);
    EXPECT_EQ(run.s.store.stat[3], Stat::out);
    EXPECT_EQ(run.s.store.stat[4], Stat::out);
}

TEST(MultipleLines, TheGaugeCountsTheLinesJustStored)
{
    Drawn run(std::vector<float>(599, 1));
    run.click({0, 0});
    run.click({100, 0});
    run.click({100, 100});
    EXPECT_EQ(run.s.controls["memy"_c].text, "001.000");
}

TEST(MultipleLines, OnlyTheRowsOfTheCurrentSetAreDrawn)
{
    Drawn run({10});
    run.addRow("Fence", 20);
    run.addRow("??????", 30);
    run.addRow("Wall", -10);
    run.s.multipleLinesLibrary.rows[4].name = "Wall"; // at the count
    run.click({0, 0});
    run.click({100, 0});
    run.click({100, 100});
    EXPECT_EQ(run.s.store.entCount, 3);
}

TEST(MultipleLines, WithNoneChosenNothingIsDrawn)
{
    Drawn run({});
    run.addRow("??????", 10);
    run.s.multipleLinesName = "??????";
    run.click({0, 0});
    run.click({100, 0});
    run.click({100, 100});
    EXPECT_EQ(run.s.store.entCount, 1);
    EXPECT_TRUE(fake::marks(run.ops()).empty());
}

TEST(MultipleLines, TheFirstStartIsWhereTheLastBandLeftIt)
{
    Drawn run({10});
    run.s.multipleLinesLibrary.rows[0].legStart = {7, 8};
    run.press({0, 0});
    run.press({100, 0});
    run.press({100, 100}); // no move in between
    EXPECT_EQ(run.slot(1).p1, (Point{7, 8}));
}

TEST(MultipleLines, TheBandOfTheFirstLegRunsBesideIt)
{
    Drawn run({10, -5});
    run.press({0, 0});
    run.ops();
    run.move({100, 0});
    EXPECT_EQ(run.ops(), (Ops{"restoreSnapshot", "line 0 10 100 10", "line 0 -5 100 -5"}));
    EXPECT_EQ(run.s.multipleLinesLibrary.rows[0].legStart, (Point{0, 0})) << "not set yet";
}

TEST(MultipleLines, TheBandOfTheSecondLegTurnsAtTheMitre)
{
    Drawn run({10});
    run.press({0, 0});
    run.press({100, 0});
    run.ops();
    run.move({100, 50});
    const Ops lines = only(run.ops(), "line");
    ASSERT_EQ(lines.size(), 2U);
    const MultipleLine& row = run.s.multipleLinesLibrary.rows[0];
    expectNear(row.legStart, 0, 10);
    expectNear(row.legEnd, 90, 10);
    EXPECT_TRUE(lines[0].starts_with("line 0 10 90")) << lines[0];
    EXPECT_TRUE(lines[1].ends_with(" 90 50")) << lines[1];
}

TEST(MultipleLines, LaterBandsStartAtTheLastStoredEndAndMoveNothing)
{
    Drawn run({10});
    run.click({0, 0});
    run.click({100, 0});
    run.click({100, 100});
    const MultipleLine before = run.s.multipleLinesLibrary.rows[0];
    expectNear(before.legStart, 90, 10);
    run.ops();
    for (const Point p : {Point{200, 100}, Point{50, 180}, Point{100, 300}}) run.move(p);
    EXPECT_EQ(run.s.multipleLinesLibrary.rows[0], before);
    const Ops lines = only(run.ops(), "line");
    ASSERT_EQ(lines.size(), 6U) << "two for each move";
    const std::string start =
        "line " + fake::shortest(before.legEnd.x) + " " + fake::shortest(before.legEnd.y) + " ";
    for (std::size_t i = 0; i < lines.size(); i += 2) EXPECT_TRUE(lines[i].starts_with(start)) << lines[i];
    run.click({200, 100});
    EXPECT_EQ(run.slot(2).p1, run.slot(1).p2);
    expectNear(run.slot(2).p2, 90, 110);
}

TEST(MultipleLines, ACornerIsPaintedOverTheCleanPictureInThePensOfItsRows)
{
    Drawn run({10});
    run.click({0, 0});
    run.click({100, 0});
    run.move({100, 50});
    run.ops();
    run.press({100, 50});
    const Ops ops = run.ops();
    ASSERT_EQ(ops.size(), 7U);
    EXPECT_EQ(ops[0], "restoreSnapshot");
    EXPECT_EQ(ops[1], "setColor 65280");
    EXPECT_EQ(ops[2], "setStyle 1");
    EXPECT_TRUE(ops[3].starts_with("line 0 10 "));
    EXPECT_EQ((Ops{ops.begin() + 4, ops.end()}), (Ops{"snapshot", "setColor 16777215", "setStyle 2"}));
}

TEST(MultipleLines, PointsOnOneSpotDoNoHarm)
{
    Drawn run({10});
    for (const bool ortho : {true, false}) {
        run.ortho(ortho);
        run.s.stepNo = 0;
        for (int i = 0; i < 5; ++i) run.click({50, 50});
        run.click({80, 50});
        run.click({20, 50}); // straight back
    }
    for (std::int32_t i = 1; i < run.s.store.end(); ++i) {
        EXPECT_TRUE(std::isfinite(run.slot(i).p1.x) && std::isfinite(run.slot(i).p2.y)) << i;
    }
}

TEST(MultipleLines, ACornerSaysForHowManyLinesTheTableHasNoRoom)
{
    struct Row {
        std::int32_t freeSlots; // of three lines
        const char* said;
    };
    const Row rows[] = {{0, "Not done: room for 3 more objects is missing"},
                        {1, "Not done: room for 2 more objects is missing"},
                        {2, "Not done: room for 1 more object is missing"}};
    for (const Row& row : rows) {
        Drawn run({10, 20, -5});
        run.s.store.entCount = EntityStore::slotCount - row.freeSlots;
        for (const Point p : {Point{0, 0}, {100, 0}, {100, 100}}) run.click(p);
        EXPECT_EQ(run.s.controls["entry"_c].text, row.said) << row.freeSlots;
    }
}

TEST(MultipleLines, AFullTableTakesNoLineRatherThanSome)
{
    Drawn run({10, 20});
    run.s.store.entCount = EntityStore::slotCount - 1;
    run.click({0, 0});
    run.click({100, 0});
    run.click({100, 100});
    EXPECT_EQ(run.s.store.entCount, EntityStore::slotCount - 1);
    EXPECT_EQ(run.slot(EntityStore::slotCount - 1).kind, Kind{});
}

} // namespace
} // namespace mirtane
