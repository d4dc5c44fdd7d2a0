#include "edit/break.h"

#include "cut_desk.h"
#include "slanted.h"

namespace mirtane {
namespace {

using fake::arcAt;
using fake::circleAt;
using fake::EditDesk;
using fake::lineFrom;
using fake::sample;

using Pieces = std::vector<EntityRecord>;

Pieces broken(EditDesk& desk, const EntityRecord& r, Point first, Point second)
{
    fake::emptyDrawing(desk);
    desk.add(r);
    parkPickLast(desk.s); // else a first click on the last one of before would be a cancel
    desk.begin("Break");
    desk.click(first);
    desk.click(second);
    EXPECT_EQ(desk.stat(1), Stat::out);
    return desk.objectsFrom(1 + 1);
}

struct Part {
    float from, to;
};

struct LineRow {
    const char* what;
    float first, second;
    std::vector<Part> left; // of a line from 0 to 10
};

// The row's line laid anywhere: at position x it passes origin + x * step.
struct Frame {
    const char* what;
    Point origin, step;

    Point at(float position, float beside = 0) const
    {
        return {origin.x + position * step.x + beside * step.y,
                origin.y + position * step.y - beside * step.x};
    }
};

// Beside the line, as its foot counts; on it at its very ends, as a snap would give them.
Point clickOf(const Frame& frame, float position, float beside)
{
    return frame.at(position, position == 0 || position == 10 ? 0 : beside);
}

TEST(Break, LeavesOfALineWhatLiesOutsideTheTwoClicks)
{
    const LineRow rows[] = {
        {"both inside", 3, 6, {{0, 3}, {6, 10}}},
        {"both inside, the other way round", 6, 3, {{0, 3}, {6, 10}}},
        {"one before the start", -3, 5, {{5, 10}}},
        {"one far before the start", -8, 5, {{5, 10}}},
        {"one beyond the end", 5, 14, {{0, 5}}},
        {"both beyond the end: it grows to the nearer", 12, 15, {{0, 12}}},
        {"both before the start: it grows to the nearer", -2, -5, {{-2, 10}}},
        {"both ends outside", -1, 11, {}},
        {"the very ends", 0, 10, {}},
        {"the start and inside", 0, 4, {{4, 10}}},
        {"one foot for both clicks", 4, 4, {{0, 4}, {4, 10}}},
    };
    const Frame frames[] = {
        {"level", {0, 0}, {1, 0}},         {"reversed", {0, 0}, {-1, 0}},       {"upright", {5, 7}, {0, 1}},
        {"slanted", {0, 0}, {0.6F, 0.8F}}, {"far off", {4000, -3000}, {8, -6}},
    };
    EditDesk desk;
    for (const Frame& frame : frames) {
        for (const LineRow& row : rows) {
            const std::string what = std::string(row.what) + ", " + frame.what;
            const Pieces made = broken(desk, lineFrom(frame.at(0), frame.at(10)),
                                       clickOf(frame, row.first, 2), clickOf(frame, row.second, -3));
            ASSERT_EQ(made.size(), row.left.size()) << what;
            for (std::size_t i = 0; i < made.size(); ++i) {
                fake::expectLine(made[i], frame.at(row.left[i].from), frame.at(row.left[i].to), what);
                fake::expectLooks(made[i], what);
            }
        }
    }
}

// Also where the foot of the click comes out a rounding inside the end.
TEST(Break, AtTheVeryEndOfALineLeavesNothingThere)
{
    fake::Throws dice(12);
    EditDesk desk;
    for (int i = 0; i < 2000; ++i) {
        const EntityRecord line = dice.line();
        const Point inside = fake::pointOn(line, 0.5);
        const Point beside = {line.p1.x + line.p2.y - line.p1.y, line.p1.y - line.p2.x + line.p1.x};
        EXPECT_EQ(broken(desk, line, inside, line.p2).size(), 1U) << i;
        EXPECT_EQ(broken(desk, line, line.p1, inside).size(), 1U) << i;
        for (const EntityRecord& piece : broken(desk, line, beside, inside))
            EXPECT_NE(piece.p1, piece.p2) << i;
    }
}

TEST(Break, OfALineWithoutLengthOnlyDropsTheSelection)
{
    EditDesk desk;
    desk.add(lineFrom({5, 5}, {5, 5}));
    desk.begin("Break");
    desk.click({1, 0});
    desk.click({9, 0});
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.s.store.entCount, 2);
}

struct RoundRow {
    const char* what;
    double first, second; // degrees of the clicks
    std::vector<std::pair<double, double>> left;
};

void expectRoundPieces(const Pieces& made, const RoundRow& row, Point centre, double radius)
{
    ASSERT_EQ(made.size(), row.left.size()) << row.what;
    for (std::size_t i = 0; i < made.size(); ++i) {
        fake::expectArc(made[i], centre, radius, row.left[i].first, row.left[i].second, row.what);
        fake::expectLooks(made[i], row.what);
    }
}

TEST(Break, KeepsOfACircleWhatRunsFromTheFirstClickToTheSecond)
{
    const RoundRow rows[] = {
        {"a quarter", 0, 90, {{0, 90}}},
        {"the other three", 90, 0, {{90, 0}}},
        {"through angle 0", 300, 20, {{300, 20}}},
        {"straight down to the left", 270, 180, {{270, 180}}},
    };
    EditDesk desk;
    for (const RoundRow& row : rows) {
        const Point centre{30, -20};
        const Pieces made =
            broken(desk, circleAt(centre, 50), polarPoint(centre, 70, row.first * fake::degree),
                   polarPoint(centre, 20, row.second * fake::degree));
        expectRoundPieces(made, row, centre, 50);
    }
}

TEST(Break, OfACircleOnItsAxesIsExact)
{
    EditDesk desk;
    const Pieces made = broken(desk, circleAt({10, 10}, 50), {10, -500}, {3, 10});
    ASSERT_EQ(made.size(), 1U);
    EXPECT_EQ(made[0].a1, quarterTurn);
    EXPECT_EQ(made[0].a2, halfTurn);
    EXPECT_EQ(made[0].p2, (Point{10, -40}));
    EXPECT_EQ(made[0].p3, (Point{-40, 10}));
}

TEST(Break, TakesTheShorterWayOutOfAnArc)
{
    const RoundRow rows[] = {
        {"inside", 40, 60, {{0, 40}, {60, 300}}},
        {"inside, the clicks swapped", 60, 40, {{0, 40}, {60, 300}}},
        {"one in the gap", 280, 330, {{0, 280}}},
        {"one in the gap before the start", 350, 20, {{20, 300}}},
        {"through the gap: both pieces reach over the cut", 10, 290, {{0, 290}, {10, 300}}},
        {"both in the gap", 310, 350, {}},
    };
    EditDesk desk;
    for (const RoundRow& row : rows) {
        const Point centre{-5, 8};
        EntityRecord arc = arcAt(centre, 50, 0, 300);
        arc.p2.y += 0.005F; // ends stay as they are stored, be they a little off
        arc.p3.y += 0.005F;
        const Pieces made = broken(desk, arc, polarPoint(centre, 45, row.first * fake::degree),
                                   polarPoint(centre, 60, row.second * fake::degree));
        expectRoundPieces(made, row, centre, 50);
        if (made.size() == 2) {
            EXPECT_EQ(made[0].p2, arc.p2);
            EXPECT_EQ(made[1].p3, arc.p3);
        }
    }
}

// Two clicks in one direction from the centre leave no way to be the shorter: the arc is cut where the one
// before it was, and the first at angle 0.
TEST(Break, OfAnArcInOneDirectionTakesTheCutOfTheArcBefore)
{
    EditDesk desk;
    const Point first{100, 0};
    const Point second{200, 0};
    desk.add(arcAt({0, 0}, 50, 300, 60));   // both at 0
    desk.add(arcAt({150, 50}, 50, 0, 180)); // at 135 and 45
    desk.add(arcAt({300, 0}, 50, 10, 170)); // both at 180
    desk.begin("Break");
    desk.click(first);
    desk.click(second);
    const Pieces made = desk.objectsFrom(3 + 1);
    ASSERT_EQ(made.size(), 6U);
    fake::expectArc(made[0], {0, 0}, 50, 300, 0, "first arc");
    fake::expectArc(made[1], {0, 0}, 50, 0, 60, "first arc");
    fake::expectArc(made[2], {150, 50}, 50, 0, 45, "second arc");
    fake::expectArc(made[3], {150, 50}, 50, 135, 180, "second arc");
    fake::expectArc(made[4], {300, 0}, 50, 10, 45, "third arc");
    fake::expectArc(made[5], {300, 0}, 50, 135, 170, "third arc");
}

TEST(Break, LeavesOtherKindsUnbrokenAndUnselected)
{
    for (const Kind kind : everyKind) {
        if (kind == Kind::line || isRound(kind)) continue;
        EditDesk desk;
        desk.add(sample(kind));
        const std::int32_t logged = desk.s.log.undoLogCount;
        desk.begin("Break");
        desk.click({10, 0});
        desk.click({60, 0});
        EXPECT_EQ(desk.stat(1), Stat::on) << numberOf(kind);
        EXPECT_EQ(desk.s.store.entCount, 2) << numberOf(kind);
        EXPECT_EQ(desk.s.log.undoLogCount, logged) << numberOf(kind);
        EXPECT_EQ(desk.slot(1), sample(kind)) << numberOf(kind);
    }
}

TEST(Break, AsksForTheSecondPointAndThenEnds)
{
    EditDesk desk;
    desk.add(lineFrom({0, 0}, {100, 0}));
    desk.begin("Break");
    desk.click({20, 0});
    EXPECT_EQ(desk.s.promptText, "(Enter second break point:)");
    EXPECT_EQ(desk.s.store.entCount, 2);
    desk.click({40, 0});
    EXPECT_EQ(desk.s.curFunc, "Object Select");
    EXPECT_EQ(desk.s.promptText, "(Click near object:)");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.editPending, 0);
    EXPECT_FALSE(fake::marks(desk.ops()).empty());
}

TEST(Break, OfNothingUsesAGroup)
{
    EditDesk desk;
    desk.add(lineFrom({0, 0}, {100, 0}), Stat::on);
    const std::int32_t group = desk.s.log.undoGroupNext;
    desk.begin("Break");
    desk.click({20, 0});
    desk.click({40, 0});
    EXPECT_EQ(desk.s.log.undoGroupNext, group + 1);
    EXPECT_EQ(desk.s.log.undoGroupTop, group + 1);
    EXPECT_EQ(desk.stat(1), Stat::on);
}

TEST(Break, IsTakenBackByOneUndo)
{
    EditDesk desk;
    desk.add(lineFrom({-100, 0}, {100, 0}));
    desk.add(circleAt({0, 0}, 50));
    desk.add(arcAt({0, 0}, 60, 0, 300));
    desk.begin("Break");
    desk.click({30, 5});
    desk.click({-30, 5});
    ASSERT_EQ(desk.s.store.entCount, 4 + 4);
    undo(desk.s.store, desk.s.log);
    for (std::int32_t i = 1; i < desk.s.store.entCount; ++i)
        EXPECT_EQ(desk.stat(i), i <= 3 ? Stat::on : Stat::out) << i;
}

double lengthOf(const EntityRecord& r)
{
    if (r.kind == Kind::line) return distance(r.p1, r.p2);
    return r.kind == Kind::circle ? fullTurn * r.rad : sweep(r.a1, r.a2) * r.rad;
}

// The clicks are on the object, so that the cut is what lies between them.
TEST(Break, PiecesLieOnTheObjectAndWithTheCutMakeItWhole)
{
    fake::Throws dice(11);
    EditDesk desk;
    for (int i = 0; i < 3000; ++i) {
        const EntityRecord r = i % 3 == 0 ? dice.line() : i % 3 == 1 ? dice.circle() : dice.arc();
        double from = dice.between(0, 1);
        double to = dice.between(0, 1);
        const bool throughGap = r.kind == Kind::arc && std::abs(to - from) * sweep(r.a1, r.a2) > halfTurn;
        if (throughGap) continue;
        const Pieces made = broken(desk, r, fake::pointOn(r, from), fake::pointOn(r, to));
        double whole = 0;
        for (const EntityRecord& piece : made) {
            whole += lengthOf(piece);
            for (const Point end :
                 {fake::pointOn(piece, 0), fake::pointOn(piece, 0.5), fake::pointOn(piece, 1)})
                ASSERT_LT(fake::offObject(r, end), 0.01) << i;
        }
        double cut = std::abs(to - from);
        if (r.kind == Kind::circle) cut = to > from ? 1 - cut : cut; // what runs on from the second click
        ASSERT_NEAR(whole + cut * lengthOf(r), lengthOf(r), 0.02) << i << " kind " << numberOf(r.kind);
    }
}

// A point of a corner that was trimmed is off by some steps for the other line.
Point someStepsOff(fake::Slanted& dice, Point p)
{
    for (int step = dice.below(3); step > 0; --step) p.x = std::nextafter(p.x, dice.chance() ? 1e9F : -1e9F);
    for (int step = dice.below(3); step > 0; --step) p.y = std::nextafter(p.y, dice.chance() ? 1e9F : -1e9F);
    return p;
}

TEST(Break, AFewStepsOfRoundingInsideTheEndOfALineLeavesNothingThere)
{
    fake::Slanted dice(13);
    EditDesk desk;
    for (int i = 0; i < 2000; ++i) {
        const double reach = dice.anySize(50, 500000);
        const Point from = dice.pointWithin({0, 0}, reach);
        const EntityRecord line = lineFrom(from, dice.pointWithin({0, 0}, reach));
        const Point inside = fake::pointOn(line, 0.4);
        const Pieces atStart = broken(desk, line, someStepsOff(dice, line.p1), inside);
        ASSERT_EQ(atStart.size(), 1U) << i;
        EXPECT_EQ(atStart[0].p2, line.p2) << i;
        const Pieces atEnd = broken(desk, line, inside, someStepsOff(dice, line.p2));
        ASSERT_EQ(atEnd.size(), 1U) << i;
        EXPECT_EQ(atEnd[0].p1, line.p1) << i;
    }
}

TEST(Break, AtTheVeryEndOfAnArcLeavesNothingThere)
{
    fake::Slanted dice(14);
    EditDesk desk;
    for (int i = 0; i < 2000; ++i) {
        const double reach = dice.anySize(50, 500000);
        const auto radius = static_cast<float>(dice.anySize(reach / 50, reach)); // as stored
        const Point centre = dice.pointWithin({0, 0}, reach);
        const double a1 = dice.between(0, 6.28);
        const EntityRecord arc =
            fake::arcOf(centre, radius, a1, std::fmod(a1 + dice.between(0.2, 3), fullTurn));
        const Point inside = fake::pointOn(arc, 0.4);
        const bool asStored = dice.chance(); // or as another object's end, beside it
        const Point start = asStored ? arc.p2 : someStepsOff(dice, arc.p2);
        const Point end = asStored ? arc.p3 : someStepsOff(dice, arc.p3);
        for (const Pieces& made : {broken(desk, arc, start, inside), broken(desk, arc, inside, start)}) {
            ASSERT_EQ(made.size(), 1U) << i;
            EXPECT_EQ(made[0].p3, arc.p3) << i;
        }
        for (const Pieces& made : {broken(desk, arc, end, inside), broken(desk, arc, inside, end)}) {
            ASSERT_EQ(made.size(), 1U) << i;
            EXPECT_EQ(made[0].p2, arc.p2) << i;
        }
        EXPECT_EQ(broken(desk, arc, end, start).size(), 0U) << i << ": all of it is cut";
    }
}

TEST(Break, InOneDirectionFromTheCentreLeavesACircleWhole)
{
    fake::Slanted dice(15);
    EditDesk desk;
    for (int i = 0; i < 1000; ++i) {
        const double reach = dice.anySize(50, 500000);
        const Point centre = dice.pointWithin({0, 0}, reach);
        const auto radius = static_cast<float>(dice.between(reach / 50, reach)); // as stored
        const double turn = i % 5 == 0 ? quarterTurn * dice.below(4) : dice.between(0, 6.28);
        fake::emptyDrawing(desk);
        desk.add(circleAt(centre, radius));
        desk.begin("Break");
        desk.click(polarPoint(centre, radius * 1.25, turn));
        desk.click(polarPoint(centre, radius * 1.5, turn));
        ASSERT_EQ(desk.s.store.entCount, 2) << i;
        EXPECT_EQ(desk.stat(1), Stat::on) << i;
    }
}

} // namespace
} // namespace mirtane
