#include "dxf_text.h"

#include <cmath>
#include <numbers>

namespace mirtane {
namespace {

using namespace fake;

const std::string bar = dxf({{0, "LINE"}, {8, "0"}, {10, "1"}, {20, "0"}, {11, "1"}, {21, "2"}});

std::string insert(const std::string& name, std::initializer_list<Pair> more)
{
    return dxf({{0, "INSERT"}, {8, "0"}, {2, name}}) + dxf(more);
}

std::vector<EntityRecord> placed(const std::string& blocks, const std::string& inserts)
{
    return objectsOf(section("BLOCKS", blocks) + entities(inserts));
}

TEST(Inserts, ScaledTurnedMirroredAndFromTheirBasePoint)
{
    struct Row {
        const char* what;
        std::initializer_list<Pair> insert;
        Vec from, to;
    };
    const Row rows[] = {
        {"as it stands", {{10, "10"}, {20, "20"}}, {11, 20}, {11, 22}},
        {"scaled", {{10, "10"}, {20, "20"}, {41, "3"}, {42, "0.5"}}, {13, 20}, {13, 21}},
        {"turned", {{10, "10"}, {20, "20"}, {50, "90"}}, {10, 21}, {8, 21}},
        {"turned and scaled", {{10, "0"}, {20, "0"}, {41, "3"}, {42, "2"}, {50, "-90"}}, {0, -3}, {4, -3}},
        {"mirrored", {{10, "5"}, {20, "0"}, {41, "-1"}}, {4, 0}, {4, 2}},
        {"seen from below", {{10, "5"}, {20, "0"}, {210, "0"}, {220, "0"}, {230, "-1"}}, {-6, 0}, {-6, 2}},
        {"far off", {{10, "5000"}, {20, "-3000"}}, {5001, -3000}, {5001, -2998}},
        {"factors that were never set", {{10, "0"}, {20, "0"}, {41, "0"}, {42, "0"}}, {1, 0}, {1, 2}},
    };
    for (const Row& row : rows) {
        const auto lines = placed(block("B", bar), insert("b", row.insert));
        ASSERT_EQ(lines.size(), 1U) << row.what;
        EXPECT_THAT(lines[0].p1, StandsAt(row.from.x, row.from.y)) << row.what;
        EXPECT_THAT(lines[0].p2, StandsAt(row.to.x, row.to.y)) << row.what;
    }
    const auto based = placed(block("B", bar, "1", "2"), insert("B", {{10, "10"}, {41, "2"}}));
    EXPECT_THAT(based.at(0).p1, StandsAt(10, -2));
}

TEST(Inserts, RowsAndColumnsRunTheTurnedWay)
{
    const auto lines =
        placed(block("B", bar), insert("B", {{50, "90"}, {70, "3"}, {71, "2"}, {44, "10"}, {45, "4"}}));
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_THAT(lines[1].p1, StandsAt(0, 11));
    EXPECT_THAT(lines[3].p1, StandsAt(-4, 1));
    EXPECT_THAT(lines[5].p1, StandsAt(-4, 21));
}

TEST(Inserts, BlocksWithinBlocks)
{
    const std::string blocks =
        block("IN", bar) + block("OUT", insert("IN", {{10, "2"}, {20, "3"}, {50, "90"}}));
    const auto lines = placed(blocks, insert("OUT", {{10, "100"}, {41, "2"}, {42, "2"}}));
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_THAT(lines[0].p1, StandsAt(104, 8));
    EXPECT_THAT(lines[0].p2, StandsAt(100, 8));
}

TEST(Inserts, CirclesAndArcsUnderAnyTransform)
{
    const std::string round = dxf({{0, "CIRCLE"}, {10, "1"}, {20, "1"}, {40, "2"}}) +
                              dxf({{0, "ARC"}, {10, "0"}, {20, "0"}, {40, "2"}, {50, "0"}, {51, "90"}});
    const auto mirrored = placed(block("B", round), insert("B", {{41, "-3"}, {42, "3"}, {50, "30"}}));
    ASSERT_EQ(mirrored.size(), 2U);
    EXPECT_EQ(mirrored[0].kind, Kind::circle);
    EXPECT_EQ(mirrored[0].rad, 72);
    EXPECT_NEAR(mirrored[1].a1 * 180 / std::numbers::pi, 120, 1e-4);
    EXPECT_NEAR(mirrored[1].a2 * 180 / std::numbers::pi, 210, 1e-4);
    const auto uneven = placed(block("B", round), insert("B", {{41, "2"}, {42, "-1"}}));
    ASSERT_GT(uneven.size(), 2U);
    EXPECT_EQ(uneven[0].kind, Kind::ellipse);
    EXPECT_THAT(uneven[0].p2, StandsAt(2, -1));
    EXPECT_NEAR(uneven[0].p3.x, 0.5, 1e-6);
    for (std::size_t i = 1; i < uneven.size(); ++i)
        EXPECT_TRUE(uneven[i].kind == Kind::arc || uneven[i].kind == Kind::line);
}

TEST(Inserts, AttributesStandWhereTheySayAndInEachOfMany)
{
    const auto attribute = [](const std::string& words, const std::string& flags) {
        return dxf(
            {{0, "ATTRIB"}, {8, "0"}, {10, "7"}, {20, "8"}, {40, "1"}, {1, words}, {2, "TAG"}, {70, flags}});
    };
    const auto all = placed(block("B", bar), insert("B", {{66, "1"}, {10, "5"}, {70, "2"}, {44, "10"}}) +
                                                 attribute("seen", "0") + attribute("not seen", "1") +
                                                 dxf({{0, "SEQEND"}}));
    ASSERT_EQ(all.size(), 4U);
    std::vector<std::string> words;
    for (const EntityRecord& r : all) {
        if (r.kind == Kind::text) words.push_back(r.t1);
    }
    EXPECT_EQ(words, (std::vector<std::string>{"seen", "seen"}));
    EXPECT_THAT(all[0].p1, StandsAt(7, 9));
    EXPECT_THAT(all[2].p1, StandsAt(17, 9));
}

TEST(Inserts, BlocksThatAreNeverInsertedAreNotSeen)
{
    EXPECT_TRUE(placed(block("B", bar) + block("*U1", bar), "").empty());
}

TEST(Inserts, WhatCanNotBeDrawnIsCounted)
{
    const FullReading r =
        readOf(section("BLOCKS", block("SELF", bar + insert("SELF", {}))) +
               entities(insert("NONE", {{70, "30000"}, {71, "30000"}}) + insert("self", {})));
    EXPECT_EQ(r.drawing.objects.size(), 1U);
    EXPECT_EQ(sentenceOfLeftOut(reportOf(r, {1, 0})), "2 blocks (its block can't be drawn) left out");
}

TEST(Inserts, OfBlocksInOtherFilesAreCounted)
{
    const auto flagged = [](const std::string& name, const std::string& flags, const std::string& content) {
        return dxf({{0, "BLOCK"}, {2, name}, {70, flags}}) + content + dxf({{0, "ENDBLK"}});
    };
    const FullReading r = readOf(
        section("BLOCKS", flagged("HOUSE", "4", "") + flagged("SITE", "44", "") +
                              flagged("BOUND", "36", bar) + flagged("EMPTY", "2", "")) +
        entities(insert("House", {}) + insert("SITE", {}) + insert("BOUND", {}) + insert("EMPTY", {})));
    EXPECT_EQ(r.drawing.objects.size(), 1U);
    EXPECT_EQ(sentenceOfLeftOut(reportOf(r, {1, 0})), "2 blocks (its block is another file) left out");
}

// A thousand million of them, of nothing, and of something.
TEST(Inserts, AnyNumberOfRowsAndColumnsComesToAnEnd)
{
    std::string blocks = block("NOTHING", "") + block("LINE", bar);
    std::string last = "LINE";
    for (int i = 0; i < 40; ++i) {
        const std::string next = "N" + std::to_string(i);
        blocks += block(next, insert(last, {}) + insert(last, {}));
        last = next;
    }
    for (const std::string& name : {std::string("NOTHING"), std::string("LINE"), last}) {
        const FullReading r =
            readOf(section("BLOCKS", blocks) +
                   entities(insert(name, {{70, "32767"}, {71, "32767"}, {44, "1"}, {45, "1"}})));
        EXPECT_LE(r.drawing.objects.size(), 60000U);
        EXPECT_FALSE(reportOf(r, {}).isWhole()) << name;
    }
}

// A short file can ask for a long one to be drawn any number of times: what is drawn is counted by what it
// costs.
TEST(Inserts, OfLongRecordsComeToAnEnd)
{
    std::string vertices, words, corners;
    for (int i = 0; i < 2000; ++i) {
        vertices += dxf({{10, std::to_string(i)}, {20, std::to_string(i % 7)}});
        corners += dxf({{10, std::to_string(i % 50)}, {20, std::to_string(i)}});
    }
    for (int i = 0; i < 400; ++i) words += dxf({{3, std::string(250, 'w')}});
    const std::string records[] = {
        dxf({{0, "LWPOLYLINE"}, {8, "0"}, {90, "2000"}, {70, "0"}}) + vertices,
        dxf({{0, "MTEXT"}, {8, "0"}, {10, "0"}, {20, "0"}, {40, "1"}}) + words + dxf({{1, "end"}}),
        dxf({{0, "HATCH"},
             {8, "0"},
             {70, "1"},
             {71, "0"},
             {91, "1"},
             {92, "2"},
             {72, "0"},
             {73, "1"},
             {93, "2000"}}) +
            corners + dxf({{97, "0"}, {75, "0"}, {76, "1"}}),
    };
    for (const std::string& record : records) {
        const FullReading r =
            readOf(section("BLOCKS", block("B", record)) +
                   entities(insert("B", {{70, "1000"}, {71, "1000"}, {44, "9"}, {45, "9"}})));
        EXPECT_LE(r.drawing.objects.size(), 60000U);
        EXPECT_FALSE(reportOf(r, {}).isWhole()) << record.substr(0, 20);
    }
}

} // namespace
} // namespace mirtane
