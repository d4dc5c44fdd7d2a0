#include "model/entity_store.h"

#include <gtest/gtest.h>

#include <memory>

namespace mirtane {
namespace {

TEST(EntityStore, StartsWithTheHeaderAloneAndAllSlotsAllocated)
{
    const EntityStore store;
    EXPECT_EQ(store.entCount, 1);
    EXPECT_EQ(store.stat.size(), 60001U);
    EXPECT_EQ(store.dxfTag.size(), 60001U);
}

TEST(EntityStore, HoldsSlotsZeroToSixtyThousand)
{
    EXPECT_TRUE(EntityStore::holds(0));
    EXPECT_TRUE(EntityStore::holds(60000));
    EXPECT_FALSE(EntityStore::holds(60001));
    EXPECT_FALSE(EntityStore::holds(-1));
}

TEST(EntityStore, GivesBackEveryFieldOfARecord)
{
    EntityStore store;
    EntityRecord r;
    r.p1 = {1, 2};
    r.p2 = {3, 4};
    r.p3 = {5, 6};
    r.p4 = {7, 8};
    r.p5 = {9, 10};
    r.s1 = 11;
    r.s2 = 12;
    r.rad = 13;
    r.a1 = 14;
    r.a2 = 15;
    r.a3 = 16;
    r.color = 0xE0E0E0;
    r.layer = 18;
    r.style = 4;
    r.kind = Kind{10};
    r.t1 = "words";
    r.t2 = "font";
    store.setRecord(60000, r);
    EXPECT_EQ(store.record(60000), r);
    EXPECT_EQ(store.record(59999), EntityRecord{});
}

TEST(EntityStore, AWriteBeyondTheTableIsSkippedAndReadsAsNothing)
{
    EntityStore store;
    EntityRecord r;
    r.kind = Kind::line;
    store.setRecord(60001, r);
    store.setStat(60001, Stat::on);
    EXPECT_EQ(store.record(60001), EntityRecord{});
    EXPECT_EQ(store.record(60000), EntityRecord{});
}

TEST(EntityStore, LoopsEndAtTheTableThoughTheCountGoesOn)
{
    EntityStore store;
    store.entCount = 60002;
    EXPECT_EQ(store.end(), 60001);
    store.entCount = 7;
    EXPECT_EQ(store.end(), 7);
}

TEST(EntityStore, OnlyOnAndSelectedSlotsAreShown)
{
    struct Row {
        Stat stat;
        bool shown;
    };
    const Row rows[] = {{Stat::on, true}, {Stat::sel, true}, {Stat::off, false}, {Stat::out, false}};
    EntityStore store;
    for (const Row& row : rows) {
        store.setStat(1, row.stat);
        EXPECT_EQ(store.isShown(1), row.shown) << nameOf(row.stat);
    }
}

TEST(EntityStore, AChangeOfStatLeavesTheHeaderAndOtherStatsAlone)
{
    EntityStore store;
    store.entCount = 5;
    store.setStat(0, Stat::sel);
    store.setStat(1, Stat::sel);
    store.setStat(2, Stat::off);
    store.setStat(3, Stat::out);
    store.setStat(4, Stat::sel);
    store.setStat(5, Stat::sel); // beyond the drawing
    EXPECT_EQ(changeStat(store, Stat::sel, Stat::on), 2);
    EXPECT_EQ(store.stat[0], Stat::sel);
    EXPECT_EQ(store.stat[1], Stat::on);
    EXPECT_EQ(store.stat[2], Stat::off);
    EXPECT_EQ(store.stat[3], Stat::out);
    EXPECT_EQ(store.stat[4], Stat::on);
    EXPECT_EQ(store.stat[5], Stat::sel);
}

TEST(EntityStore, CountsObjectsAndNotTheHeader)
{
    EntityStore store;
    store.entCount = 4;
    for (std::int32_t i = 0; i < 4; ++i) store.setStat(i, Stat::sel);
    store.setStat(2, Stat::on);
    EXPECT_EQ(countWithStat(store, Stat::sel), 2);
    EXPECT_EQ(countWithStat(store, Stat::on), 1);
}

TEST(EntityStore, ForgottenOwnersReadAsNoName)
{
    EntityStore store;
    store.ownerName[60000] = "chair";
    forgetOwners(store);
    EXPECT_EQ(store.ownerName[60000], "??????");
    EXPECT_EQ(store.ownerName[1], "??????");
}

} // namespace
} // namespace mirtane
