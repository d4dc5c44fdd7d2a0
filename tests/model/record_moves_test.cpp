
#include "geometry/angle.h"
#include "kind_print.h"
#include "model/kind_fields.h"
#include "model/record_moves.h"
#include "tables/kinds.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

namespace mirtane {
namespace {

// A record whose every field differs from that of another with another seed.
EntityRecord full(Kind kind, float seed)
{
    EntityRecord r;
    float next = seed;
    for (Point* p : {&r.p1, &r.p2, &r.p3, &r.p4, &r.p5}) {
        *p = {next + 1, next + 2};
        next += 2;
    }
    r.s1 = r.s2 = r.rad = next;
    r.a1 = r.a2 = r.a3 = next;
    r.color = 7;
    r.layer = 8;
    r.style = 9;
    r.kind = kind;
    r.t1 = std::to_string(seed);
    r.t2 = "font " + r.t1;
    return r;
}

struct Row {
    Kind kind;
    const char* fields; // those that the kind has, besides colour, layer and style
};

const Row rows[] = {
    {Kind::line, "p1 p2"},
    {Kind::circle, "p1 rad"},
    {Kind::arc, "p1 p2 p3 p4 rad a1 a2"},
    {Kind::ellipse, "p1 p2 p3.x"},
    {Kind::point, "p1"},
    {Kind::text, "p1 p2 p3.x p4 rad a1 t1 t2"},
    {Kind::linearDimension, "p1 p2 p3 p4 p5 s1 s2 rad a1 a2 a3 t1 t2"},
    {Kind::radialDimension, "p1 p2 p3 p4 p5 s1 s2 rad a1 a2 a3 t1 t2"},
    {Kind::leader, "p1 p2 p3 p4 p5 s1 s2 rad a1 a2 a3 t1 t2"},
    {Kind::angularDimension, "p1 p2 p3 p4 p5 s1 s2 rad a1 a2 a3 t1 t2"},
};

std::string takenFrom(const EntityRecord& got, const EntityRecord& source)
{
    std::string names;
    const auto name = [&names](bool same, const char* field) {
        if (same) names += (names.empty() ? "" : " ") + std::string(field);
    };
    name(got.p1 == source.p1, "p1");
    name(got.p2 == source.p2, "p2");
    name(got.p3 == source.p3, "p3");
    name(got.p3.x == source.p3.x && got.p3.y != source.p3.y, "p3.x");
    name(got.p4 == source.p4, "p4");
    name(got.p5 == source.p5, "p5");
    name(got.s1 == source.s1, "s1");
    name(got.s2 == source.s2, "s2");
    name(got.rad == source.rad, "rad");
    name(got.a1 == source.a1, "a1");
    name(got.a2 == source.a2, "a2");
    name(got.a3 == source.a3, "a3");
    name(got.t1 == source.t1, "t1");
    name(got.t2 == source.t2, "t2");
    return names;
}

TEST(KindTable, WritesTheFieldsOfTheKindAndNoOther)
{
    const auto store = std::make_unique<EntityStore>();
    for (const Row& row : rows) {
        store->setRecord(5, full(headerKind, 1000));
        store->setStat(5, Stat::out);
        writeFieldsOfKind(*store, 5, full(row.kind, 0));
        const EntityRecord got = store->record(5);
        EXPECT_EQ(takenFrom(got, full(row.kind, 0)), row.fields) << numberOf(row.kind);
        EXPECT_EQ(got.kind, row.kind);
        EXPECT_EQ(store->stat[5], Stat::out);
    }
}

TEST(KindTable, WritesNothingOfOtherKindsOrOutsideTheTable)
{
    const auto store = std::make_unique<EntityStore>();
    store->setRecord(5, full(Kind::arc, 1000));
    for (const Kind other : {headerKind, layerNameKind, Kind{0}, Kind{-1}})
        writeFieldsOfKind(*store, 5, full(other, 0));
    EXPECT_EQ(store->record(5), full(Kind::arc, 1000));
    writeFieldsOfKind(*store, EntityStore::slotCount, full(Kind::line, 0));
    writeFieldsOfKind(*store, -1, full(Kind::line, 0));
}

TEST(KindTable, KnowsTheDrawnKindsAlone)
{
    for (const Row& row : rows) EXPECT_TRUE(isDrawnKind(row.kind));
    constexpr std::int16_t others[] = {-32768, -1, 0, 11, 20, 24, 25, 30, 35, 32767};
    for (const std::int16_t other : others) {
        EXPECT_FALSE(isDrawnKind(Kind{other})) << other;
        EXPECT_EQ(kindRow(Kind{other}), nullptr) << other;
    }
}

TEST(KindTable, ShiftsThePairsThatMoveTogether)
{
    const char* moved[] = {"p1 p2", "p1", "p1 p2 p3 p4", "p1 p2", "p1", "p1 p4"};
    for (const Kind kind : everyKind) {
        EntityRecord r = full(kind, 0);
        shift(r, 100, 200);
        EntityRecord all = full(kind, 0);
        for (Point* p : {&all.p1, &all.p2, &all.p3, &all.p4, &all.p5}) *p = {p->x + 100, p->y + 200};
        all.s1 = all.s2 = all.rad = -1;
        all.a1 = all.a2 = all.a3 = -1;
        all.t1 = all.t2 = "none";
        const std::size_t place = placeOf(kind);
        EXPECT_EQ(takenFrom(r, all), place < std::size(moved) ? moved[place] : "p1 p2 p3 p4 p5")
            << numberOf(kind);
    }
}

TEST(KindTable, ShiftThatOverflowsKeepsTheCoordinate)
{
    EntityRecord r = full(Kind::point, 0);
    r.p1 = {std::numeric_limits<float>::max(), 4};
    shift(r, std::numeric_limits<float>::max(), 1);
    EXPECT_EQ(r.p1, (Point{std::numeric_limits<float>::max(), 5}));
}

TEST(KindTable, TurnLeavesTheFourthPairAndTheSizesOfALeader)
{
    EntityRecord r = full(Kind::leader, 0);
    Turn({0, 0}, quarterTurn).apply(r);
    EXPECT_EQ(r.p4, full(Kind::leader, 0).p4);
    EXPECT_EQ(r.a2, full(Kind::leader, 0).a2);
    EXPECT_EQ(r.s2, full(Kind::leader, 0).s2);
    EXPECT_NEAR(r.p1.x, 2, 1e-5);
    EXPECT_NEAR(r.p1.y, -1, 1e-5);
}

TEST(KindTable, TurnAddsToEachAngleInItsUnit)
{
    EntityRecord r = full(Kind::angularDimension, 0);
    r.a1 = 1;
    r.a2 = 6;
    r.a3 = 30;
    Turn({0, 0}, 1).apply(r);
    EXPECT_DOUBLE_EQ(r.a1, 2);
    EXPECT_DOUBLE_EQ(r.a2, 7 - fullTurn);
    EXPECT_NEAR(r.a3, 87.29578, 1e-3);
}

TEST(KindTable, TextSizeStandsInTheSecondPairOfATextAndInS2OfADimension)
{
    EntityRecord r = full(Kind::text, 0);
    r.p2.x = 17;
    r.s2 = 19;
    EXPECT_EQ(textSizeOf(r), 17);
    for (const Kind dimension :
         {Kind::linearDimension, Kind::radialDimension, Kind::leader, Kind::angularDimension}) {
        r.kind = dimension;
        EXPECT_EQ(textSizeOf(r), 19) << numberOf(dimension);
    }
}

} // namespace
} // namespace mirtane
