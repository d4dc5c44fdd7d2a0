#include "snap/pick.h"

#include "click_desk.h"

namespace mirtane {
namespace {

using fake::ClickDesk;

constexpr std::int32_t nobody = -1;

std::int32_t pickedAt(ClickDesk& desk, Point mouse)
{
    desk.s.mousePos = mouse;
    return pickObject(desk.s, desk.pic1);
}

TEST(Pick, EachKindIsPickedWhereItIs)
{
    struct Row {
        const char* what;
        EntityRecord object;
        Point mouse;
        bool picked;
    };
    const EntityRecord line = fake::line({100, 100}, {200, 100});
    const EntityRecord circle = fake::circle({300, 300}, 50);
    const EntityRecord quarter = fake::arc({300, 300}, 50, 0, 1.5707963);
    const EntityRecord ellipse = fake::ellipse({500, 300}, {400, 300}, 0.5f);
    const auto allPairs = [](Kind kind) {
        return fake::record(kind, {100, 100}, {200, 200}, {300, 300}, {400, 400}, {500, 500});
    };
    const Row rows[] = {
        {"a line", line, {150, 110}, true},
        {"over its end", line, {200, 110}, true},
        {"beyond its end", line, {201, 100}, false},
        {"too far from it", line, {150, 125}, false},
        {"at the very limit", line, {150, 124}, true},
        {"a circle from outside", circle, {360, 300}, true},
        {"from within", circle, {300, 330}, true},
        {"near its centre", circle, {305, 300}, false},
        {"from its very centre, a radius away", circle, {300, 300}, false},
        {"a small one from its very centre", fake::circle({300, 300}, 20), {300, 300}, true},
        {"one at the very limit from its centre", fake::circle({300, 300}, 24), {300, 300}, true},
        {"an arc from its very centre", fake::arc({300, 300}, 50, 6, 1.5707963), {300, 300}, false},
        {"a small arc from its very centre", fake::arc({300, 300}, 10, 6, 1.5707963), {300, 300}, true},
        {"an arc", quarter, {335, 265}, true},
        {"its circle elsewhere", quarter, {250, 300}, false},
        {"an ellipse", ellipse, {400, 255}, true},
        {"within an ellipse", ellipse, {400, 300}, false},
        {"a point", allPairs(Kind::point), {105, 105}, true},
        {"a text where it was entered", allPairs(Kind::text), {105, 105}, true},
        {"a text where it is painted", allPairs(Kind::text), {405, 405}, false},
        {"linear dimension at its text", allPairs(Kind::linearDimension), {505, 505}, true},
        {"linear dimension at a measured point", allPairs(Kind::linearDimension), {105, 105}, false},
        {"radial dimension at its text", allPairs(Kind::radialDimension), {505, 505}, true},
        {"radial dimension at its elbow", allPairs(Kind::radialDimension), {205, 205}, false},
        {"leader at its shoulder", allPairs(Kind::leader), {205, 205}, true},
        {"leader at its text", allPairs(Kind::leader), {505, 505}, false},
        {"angular dimension at its text", allPairs(Kind::angularDimension), {505, 505}, true},
        {"angular dimension at its vertex", allPairs(Kind::angularDimension), {105, 105}, false},
        {"piece of an associate", allPairs(Kind{11}), {105, 105}, false},
        {"name of a layer", allPairs(layerNameKind), {105, 105}, false},
        {"a kind that only an import knows", allPairs(Kind{35}), {105, 105}, false},
        {"a kind that nobody knows", allPairs(Kind{-3}), {105, 105}, false},
    };
    for (const Row& row : rows) {
        ClickDesk desk("Object Select");
        desk.add(row.object);
        EXPECT_EQ(pickedAt(desk, row.mouse), row.picked ? 1 : nobody) << row.what;
        EXPECT_EQ(desk.s.snapBestIndex, row.picked ? 1 : nobody) << row.what;
        EXPECT_EQ(desk.s.pickedIndex, row.picked ? 1 : PickResults::none) << row.what;
    }
}

TEST(Pick, AnArcIsPickedAHundredthOfItsSweepBeyondItsEnds)
{
    struct Row {
        const char* what;
        double a1, a2, angle;
        bool picked;
    };
    const Row rows[] = {
        {"on it", 1, 2, 1.5, true},
        {"just past its end", 1, 2, 2.0095, true},
        {"well past its end", 1, 2, 2.0105, false},
        {"just before its start", 1, 2, 0.9905, true},
        {"well before its start", 1, 2, 0.9895, false},
        {"opposite", 1, 2, 4.6, false},
        {"through angle 0", 6, 0.5, 0.1, true},
        {"through angle 0, before its start", 6, 0.5, 5.99, false},
        {"past an end beyond angle 0", 5.2831853, 6.2821853, 0.008, true},
        {"before a start at angle 0", 0, 1, 6.2782, true},
        {"before a start at angle 0, too far", 0, 1, 6.2682, false},
    };
    for (const Row& row : rows) {
        ClickDesk desk("Object Select");
        desk.arc({2000, 2000}, 1000, row.a1, row.a2);
        EXPECT_EQ(pickedAt(desk, polarPoint({2000, 2000}, 1001, row.angle)) == 1, row.picked) << row.what;
    }
}

TEST(Pick, TheNearestWinsAndOfEqualsTheLast)
{
    ClickDesk desk("Object Select");
    desk.line({100, 100}, {200, 100});
    desk.line({100, 105}, {200, 105});
    desk.line({100, 110}, {200, 110});
    EXPECT_EQ(pickedAt(desk, {150, 101}), 1);
    EXPECT_EQ(pickedAt(desk, {150, 109}), 3);
    EXPECT_EQ(pickedAt(desk, {150, 107.5f}), 3);
    EXPECT_EQ(pickedAt(desk, {150, 102.5f}), 2);
}

TEST(Pick, OnlyWhatIsShown)
{
    ClickDesk desk("Object Select");
    desk.line({100, 100}, {200, 100}, Stat::sel);
    desk.line({100, 100}, {200, 100}, Stat::off);
    desk.line({100, 100}, {200, 100}, Stat::out);
    EXPECT_EQ(pickedAt(desk, {150, 100}), 1);
}

TEST(Pick, TextEditFindsTextsAndDimensionsOnly)
{
    ClickDesk desk("Text Edit");
    desk.line({100, 100}, {200, 100});
    desk.point({150, 100});
    EXPECT_EQ(pickedAt(desk, {150, 101}), nobody);
    const auto text = desk.add(fake::record(Kind::text, {150, 115}));
    EXPECT_EQ(pickedAt(desk, {150, 101}), text);
    const auto dimension = desk.add(fake::record(Kind::linearDimension, {}, {}, {}, {}, {150, 110}));
    EXPECT_EQ(pickedAt(desk, {150, 101}), dimension);
    desk.s.curFunc = "Radial Dimension";
    EXPECT_EQ(pickedAt(desk, {160, 101}), 1) << "any kind";
}

TEST(Pick, AMissForgetsTheLastPick)
{
    ClickDesk desk("Object Select");
    desk.line({100, 100}, {200, 100});
    pickedAt(desk, {150, 100});
    EXPECT_EQ(pickedAt(desk, {600, 600}), nobody);
    EXPECT_EQ(desk.s.pickedIndex, PickResults::none);
}

TEST(ObjectSelect, AClickMarksAndASecondUnmarks)
{
    ClickDesk desk("Object Select");
    desk.line({100, 100}, {200, 100});
    desk.s.stepNo = 1;
    desk.s.mousePos = {150, 105};
    EXPECT_TRUE(togglePick(desk.s, desk.pic1));
    EXPECT_EQ(desk.s.store.stat[1], Stat::sel);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_TRUE(togglePick(desk.s, desk.pic1));
    EXPECT_EQ(desk.s.store.stat[1], Stat::on);
}

TEST(ObjectSelect, AClickOnNothingChangesNothing)
{
    ClickDesk desk("Object Select");
    desk.line({100, 100}, {200, 100});
    desk.s.stepNo = 1;
    desk.s.mousePos = {150, 500};
    EXPECT_FALSE(togglePick(desk.s, desk.pic1));
    EXPECT_EQ(desk.s.store.stat[1], Stat::on);
    EXPECT_EQ(desk.s.stepNo, 0);
}

TEST(ObjectSelect, TheClickIsRememberedForKinds1To6)
{
    for (const Kind kind : everyKind) {
        ClickDesk desk("Object Select");
        const Point text{105, 100};
        EntityRecord r = fake::record(kind, {100, 100}, {100, 100}, {}, {}, text);
        r.rad = 5;
        r.a2 = 6.28;
        desk.add(r);
        desk.s.mousePos = {103, 104};
        ASSERT_TRUE(togglePick(desk.s, desk.pic1)) << numberOf(kind);
        EXPECT_EQ(desk.s.store.p5[1], kind <= Kind::text ? desk.s.mousePos : text) << numberOf(kind);
    }
}

TEST(ObjectSelect, UnmarkingRemembersNoClick)
{
    ClickDesk desk("Object Select");
    desk.add(fake::record(Kind::line, {100, 100}, {200, 100}, {}, {}, {7, 8}), Stat::sel);
    desk.s.mousePos = {150, 104};
    ASSERT_TRUE(togglePick(desk.s, desk.pic1));
    EXPECT_EQ(desk.s.store.p5[1], (Point{7, 8}));
}

TEST(ObjectSelect, APickDoesNotGoIntoTheUndoLog)
{
    ClickDesk desk("Object Select");
    desk.line({100, 100}, {200, 100});
    desk.s.mousePos = {150, 100};
    togglePick(desk.s, desk.pic1);
    EXPECT_EQ(desk.s.log.undoLogCount, 0);
}

TEST(SelectLast, MarksWhatTheLastActionMade)
{
    ClickDesk desk("Object Select");
    for (int i = 0; i < 5; ++i) desk.line({0, 0}, {10, 10});
    logFlip(desk.s.log, 1, Stat::on);
    endGroup(desk.s.log);
    logFlip(desk.s.log, 2, Stat::on);
    logFlip(desk.s.log, 3, Stat::on);
    logFlip(desk.s.log, 4, Stat::on);
    logFlip(desk.s.log, 5, Stat::out);
    endGroup(desk.s.log);
    desk.s.store.setStat(3, Stat::out);
    desk.s.store.setStat(4, Stat::off);
    desk.s.store.p5[2] = {7, 8};
    selectLast(desk.s);
    const Stat wanted[] = {Stat::none, Stat::on, Stat::sel, Stat::out, Stat::off, Stat::on};
    for (std::size_t i = 1; i <= 5; ++i) EXPECT_EQ(desk.s.store.stat[i], wanted[i]) << i;
    EXPECT_EQ(desk.s.store.p5[2], (Point{7, 8}));
}

TEST(SelectLast, KeepsTheMarksThatAreThere)
{
    ClickDesk desk("Object Select");
    desk.line({0, 0}, {10, 10}, Stat::sel);
    desk.line({0, 0}, {10, 10});
    logFlip(desk.s.log, 2, Stat::on);
    endGroup(desk.s.log);
    selectLast(desk.s);
    EXPECT_EQ(countWithStat(desk.s.store, Stat::sel), 2);
    selectLast(desk.s);
    EXPECT_EQ(countWithStat(desk.s.store, Stat::sel), 2);
}

TEST(SelectLast, WithNothingLoggedDoesNothing)
{
    ClickDesk desk("Object Select");
    desk.line({0, 0}, {10, 10});
    selectLast(desk.s);
    EXPECT_EQ(countWithStat(desk.s.store, Stat::sel), 0);
}

TEST(SelectLast, SlotsThatDoNotExistArePassedOver)
{
    ClickDesk desk("Object Select");
    logFlip(desk.s.log, EntityStore::slotCount + 5, Stat::on);
    endGroup(desk.s.log);
    selectLast(desk.s);
    EXPECT_EQ(countWithStat(desk.s.store, Stat::sel), 0);
}

TEST(Pick, AnAxisLineIsPickedAtTheCentreWhereItLies)
{
    for (const bool lineIsFirst : {true, false}) {
        ClickDesk desk;
        if (lineIsFirst) desk.line({100, 300}, {700, 300});
        desk.circle({431, 300}, 77);
        if (!lineIsFirst) desk.line({100, 300}, {700, 300});
        EXPECT_EQ(pickedAt(desk, {431, 300}), lineIsFirst ? 1 : 2);
        EXPECT_EQ(desk.s.snapRadius, 0);
    }
}

} // namespace
} // namespace mirtane
