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
    EXPECT_EQ(sentenceOfLeftOut(reportOf(r, {1, 0})), "2 blocks (can't be drawn) left out");
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
    EXPECT_EQ(sentenceOfLeftOut(reportOf(r, {1, 0})), "2 blocks (of another file) left out");
}

// What is outside of its boundary comes as well, and is told.
TEST(Inserts, ThatAreClippedAreDrawnWhole)
{
    const auto objects = [](const std::string& filter, const std::string& kind) {
        return section("OBJECTS", dxf({{0, "DICTIONARY"}, {5, "A1"}, {3, filter}, {360, "A2"}}) +
                                      dxf({{0, "DICTIONARY"}, {5, "A2"}, {3, kind}, {350, "A3"}}) +
                                      dxf({{0, "SPATIAL_FILTER"}, {5, "A3"}, {70, "2"}}));
    };
    const std::string clipped =
        insert("B", {{102, "{ACAD_XDICTIONARY"}, {360, "a1"}, {102, "}"}, {10, "5"}, {20, "0"}});
    struct Row {
        const char* what;
        std::string objects;
        const char* leftOut;
    };
    const Row rows[] = {
        {"clipped", objects("ACAD_FILTER", "SPATIAL"), "1 block (the clipping, drawn whole) left out"},
        {"filtered otherwise", objects("ACAD_FILTER", "LAYERS"), ""},
        {"with other data", objects("NOTES", "SPATIAL"), ""},
        {"with none", "", ""},
    };
    for (const Row& row : rows) {
        const FullReading r = readOf(section("BLOCKS", block("B", bar)) + entities(clipped) + row.objects);
        EXPECT_EQ(r.drawing.objects.size(), 1U) << row.what;
        EXPECT_EQ(sentenceOfLeftOut(reportOf(r, {1, 0})), row.leftOut) << row.what;
    }
}

// Draws what a file has with little work, and gives what came of it.
MadeDrawing drawnWithLittle(const std::string& sections)
{
    constexpr std::int64_t fewSteps = 10'000;
    const DxfList list = dxfListOf(sections);
    DrawingMaker maker(list, 0.001, handlerOf, fewSteps);
    for (const DxfRecord& one : list.entities) maker.record(one);
    return maker.finish();
}

std::string grid(const std::string& name)
{
    return entities(insert(name, {{70, "32767"}, {71, "32767"}, {44, "9"}, {45, "9"}}));
}

TEST(Inserts, ThousandMillionsOfThemComeToAnEnd)
{
    const FullReading r = readOf(section("BLOCKS", block("LINE", bar)) + grid("LINE"));
    EXPECT_LE(r.drawing.objects.size(), 65535U);
    EXPECT_FALSE(reportOf(r, {}).isWhole());
}

TEST(Inserts, OfNothingAndOfBlocksThatDoubleComeToAnEnd)
{
    std::string blocks = block("NOTHING", "") + block("LINE", bar);
    std::string last = "LINE";
    for (int i = 0; i < 30; ++i) {
        const std::string next = "N" + std::to_string(i);
        blocks += block(next, insert(last, {}) + insert(last, {}));
        last = next;
    }
    for (const std::string& name : {std::string("NOTHING"), last}) {
        const MadeDrawing drawn = drawnWithLittle(section("BLOCKS", blocks) + grid(name));
        EXPECT_LE(drawn.objects.size(), 10'000U) << name;
        EXPECT_FALSE(drawn.leftOut.empty()) << name;
    }
}

// Sixty thousand objects are a real drawing, whatever their blocks hold.
TEST(Inserts, OfSixtyThousandObjectsAreDrawnWhole)
{
    std::string content;
    for (int i = 0; i < 50; ++i) {
        content += bar + dxf({{0, "TEXT"}, {8, "0"}, {10, "0"}, {20, std::to_string(i)}, {40, "1"}}) +
                   dxf({{1, "a room of twenty-two square metres"}});
        content += dxf({{0, "LWPOLYLINE"}, {8, "0"}, {90, "4"}, {70, "1"}, {10, "0"}, {20, "0"}, {10, "9"}}) +
                   dxf({{20, "0"}, {10, "9"}, {20, "9"}, {10, "0"}, {20, "9"}});
    }
    const FullReading r =
        readOf(section("BLOCKS", block("INNER", content) + block("OUTER", insert("INNER", {{50, "30"}}))) +
               entities(insert("OUTER", {{70, "20"}, {71, "10"}, {44, "99"}, {45, "99"}})));
    EXPECT_EQ(r.drawing.objects.size(), 60000U);
    EXPECT_EQ(sentenceOfLeftOut(reportOf(r, {60000, 0})), "");
}

std::string run(int count, std::string (*one)(int))
{
    std::string all;
    for (int i = 0; i < count; ++i) all += one(i);
    return all;
}

std::string numbered(int i)
{
    return std::to_string(i);
}

// A short file can ask for a long record to be drawn any number of times: what is drawn is counted by what it
// costs.
TEST(Inserts, OfLongRecordsComeToAnEnd)
{
    const auto lightVertex = [](int i) { return dxf({{10, numbered(i)}, {20, numbered(i % 7)}}); };
    const auto vertex = [](int i) { return dxf({{0, "VERTEX"}, {10, numbered(i)}, {20, numbered(i % 7)}}); };
    const auto words = [](int) { return dxf({{3, std::string(250, 'w')}}); };
    const auto corner = [](int i) { return dxf({{10, numbered(i % 50)}, {20, numbered(i)}}); };
    const auto face = [](int) { return dxf({{0, "VERTEX"}, {70, "128"}, {71, "1"}, {72, "2"}, {73, "3"}}); };
    const auto control = [](int i) { return dxf({{10, numbered(i)}, {20, numbered(i * 7919 % 101)}}); };
    const auto gap = [](int) { return dxf({{49, "-.01"}}); };
    const std::string polyline = dxf({{0, "POLYLINE"}, {8, "0"}, {66, "1"}});
    const std::string hatch = dxf({{0, "HATCH"}, {8, "0"}, {91, "1"}, {92, "2"}, {72, "0"}, {73, "1"}});
    struct Row {
        const char* what;
        std::string record;
    };
    const Row rows[] = {
        {"polyline", dxf({{0, "LWPOLYLINE"}, {8, "0"}, {90, "2000"}}) + run(2000, lightVertex)},
        {"polyline of records", polyline + run(2000, vertex) + dxf({{0, "SEQEND"}})},
        {"body of faces", polyline + dxf({{70, "64"}}) +
                              run(3,
                                  [](int i) {
                                      return dxf({{0, "VERTEX"}, {10, numbered(i)}, {20, "1"}, {70, "192"}});
                                  }) +
                              run(2000, face) + dxf({{0, "SEQEND"}})},
        {"paragraph", dxf({{0, "MTEXT"}, {8, "0"}, {10, "0"}, {20, "0"}, {40, "1"}}) + run(400, words) +
                          dxf({{1, "end"}})},
        {"curve", dxf({{0, "SPLINE"}, {8, "0"}, {71, "3"}}) + run(500, control)},
        {"ellipse far too large",
         dxf({{0, "ELLIPSE"}, {8, "0"}, {11, "1e9"}, {21, "0"}, {40, "0.5"}, {41, "0"}, {42, "3"}})},
        {"solid hatch", hatch + dxf({{93, "2000"}}) + run(2000, corner) + dxf({{97, "0"}, {70, "1"}})},
        {"hatch of gaps", hatch + dxf({{93, "4"}}) + run(4, corner) + dxf({{97, "0"}, {78, "1"}, {53, "0"}}) +
                              dxf({{43, "0"}, {44, "0"}, {45, "0"}, {46, ".2"}, {79, "9"}}) + run(9, gap)},
    };
    for (const Row& row : rows) {
        const MadeDrawing drawn = drawnWithLittle(section("BLOCKS", block("B", row.record)) + grid("B"));
        EXPECT_LE(drawn.objects.size(), 65535U) << row.what;
        EXPECT_FALSE(drawn.leftOut.empty()) << row.what;
    }
}

} // namespace
} // namespace mirtane
