#include "dxf_samples.h"

#include "dxf/open_slot.h"

#include <gtest/gtest.h>

#include <limits>

namespace mirtane {
namespace {

using namespace samples;

std::string block(std::string_view name, std::string_view content)
{
    return lines({"  0", "BLOCK", "  8", "0", "  2", name, " 70", "0", "  0"}) + std::string(content) +
           lines({"ENDBLK", "  0"});
}

const std::string unitLine =
    lines({"LINE", " 62", "4", " 10", "0", " 20", "0", " 11", "1", " 21", "2", "  0"});
const std::string entities = lines({"ENDSEC", "  0", "SECTION", "  2", "ENTITIES", "  0"});

std::string insert(std::string_view name, std::string_view x, std::string_view y, std::string_view sx = "1",
                   std::string_view sy = "1", std::string_view degrees = "0")
{
    return lines(
        {"INSERT", "  8", "0", "  2", name, " 10", x, " 20", y, " 41", sx, " 42", sy, " 50", degrees, "  0"});
}

TEST(DxfBlocks, InsertAddsTheLinesOfItsBlock)
{
    Opened o(block("HC1", unitLine) + entities + insert("HC1", "10", "20"));
    ASSERT_EQ(o.count(), 4);
    EXPECT_EQ(o.stat(1), Stat::out); // the definition
    EXPECT_EQ(o.stat(2), Stat::out); // the insert
    EXPECT_EQ(o.stat(3), Stat::on);
    EXPECT_EQ(o.at(3).kind, Kind::line);
    EXPECT_EQ(o.at(3).p1, (Point{120, -240}));
    EXPECT_EQ(o.at(3).p2, (Point{132, -264}));
    EXPECT_EQ(o.at(3).color, 0x0000FF);
    EXPECT_EQ(o.store().dxfTag[3], noName);
}

TEST(DxfBlocks, ScaleAndRotation)
{
    Opened o(block("HC1", unitLine) + entities + insert("HC1", "10", "20", "3", "-1") +
             insert("HC1", "0", "0", "1", "1", "90"));
    ASSERT_EQ(o.count(), 6);
    EXPECT_EQ(o.at(4).p2, (Point{156, -216}));
    EXPECT_NEAR(o.at(5).p2.x, -24, 1e-3); // a quarter to the left: (1, 2) becomes (-2, 1)
    EXPECT_NEAR(o.at(5).p2.y, -12, 1e-3);
}

TEST(DxfBlocks, MissingGroupsOfAnInsertArePreset)
{
    Opened o(block("HC1", unitLine) + entities +
             lines({"INSERT", "  2", "HC1", " 10", "1", " 20", "0", "  0"}));
    ASSERT_EQ(o.count(), 4);
    EXPECT_EQ(o.at(3).p2, (Point{24, -24}));
}

TEST(DxfBlocks, SecondInsertAddsThemAgain)
{
    Opened o(block("HC1", unitLine + unitLine) + entities + insert("HC1", "1", "0") +
             insert("HC1", "2", "0"));
    ASSERT_EQ(o.count(), 9);
    EXPECT_EQ(o.at(5).p1.x, 12);
    EXPECT_EQ(o.at(7).p1.x, 24);
}

TEST(DxfBlocks, OtherNamesAreNoBlocks)
{
    for (const std::string_view name : {"DOOR", "H", "HX1", "hc1", " HC1"}) {
        Opened o(block(name, unitLine) + entities + insert(name, "10", "20"));
        ASSERT_EQ(o.count(), 3) << name;
        EXPECT_EQ(o.stat(1), Stat::on);
        EXPECT_EQ(o.stat(2), Stat::out);
    }
}

TEST(DxfBlocks, OnlyLinesBelongToABlock)
{
    const std::string others =
        lines({"CIRCLE", " 40", "1",   "  0",      "ARC",    " 40",    "1",  "  0", "TEXT",
               "  1",    "a",   "  0", "POLYLINE", "VERTEX", " 10",    "0",  " 20", "0",
               "VERTEX", " 10", "1",   " 20",      "1",      "SEQEND", "  0"});
    Opened o(block("HC1", others) + entities + insert("HC1", "10", "20"));
    ASSERT_EQ(o.count(), 6);
    for (std::int32_t i = 1; i < 5; ++i) EXPECT_EQ(o.stat(i), Stat::on) << i;
}

TEST(DxfBlocks, AnyLineWithThePrefixOpensABlockUntilItsEnd)
{
    const std::string line = lines({"LINE", " 10", "1", "  0"});
    Opened o(lines({"HCx"}) + line + lines({"ENDBLK"}) + line + lines({"HCy"}) + line + lines({"ENTITIES"}) +
             line + lines({"HCz"}) + line);
    ASSERT_EQ(o.count(), 6);
    const Stat expected[] = {Stat::out, Stat::on, Stat::out, Stat::on, Stat::on};
    for (std::int32_t i = 1; i < 6; ++i) EXPECT_EQ(o.stat(i), expected[i - 1]) << i;
}

TEST(DxfBlocks, InsertBeforeTheEntitiesCounts)
{
    Opened o(block("HC1", unitLine) + insert("HC1", "1", "0") + entities);
    EXPECT_EQ(o.count(), 4);
}

TEST(DxfBlocks, NestingIsNotFollowed)
{
    Opened o(block("HC1", unitLine + insert("HC1", "1", "0") + insert("HC2", "1", "0")) +
             block("HC2", unitLine + insert("HC1", "1", "0")) + entities);
    // Three inserts, each with the one line of its block.
    EXPECT_EQ(o.count(), 1 + 2 + 3 + 3);
}

TEST(DxfBlocks, InsertWithoutANameCopiesAllUntaggedLines)
{
    const std::string unnamed = lines({"INSERT", " 10", "1", " 20", "0", "  0"});
    Opened o(entities + unitLine + unnamed + unnamed);
    // One line and two inserts; the first adds one, the second copies both.
    ASSERT_EQ(o.count(), 1 + 3 + 1 + 2);
    EXPECT_EQ(o.at(6).p1.x, 24);
    EXPECT_EQ(o.stat(6), Stat::on);
}

TEST(DxfBlocks, InsertsThatDoubleTheDrawingComeToAnEnd)
{
    std::string file = entities + unitLine;
    for (int i = 0; i < 2000; ++i) file += lines({"INSERT", " 10", "1", "  0"});
    Opened o(file);
    EXPECT_GT(o.count(), 60000);
    EXPECT_EQ(o.at(60000).kind, Kind::line);
    for (int i = 0; i < 50000; ++i) file += lines({"INSERT", " 10", "1", "  0"});
    o.read(file);
    finishDxf(o.s());
    EXPECT_GT(o.count(), 60000);
}

TEST(DxfBlocks, CopiesPastTheTableAreCounted)
{
    std::string file;
    for (int i = 0; i < 30000; ++i) file += lines({"LINE", "  0"});
    for (int i = 0; i < 90000; ++i) file += lines({"INSERT", "  0"});
    Opened o(file);
    // Of the inserts 30,000 are in the table, and each counts all lines that are there.
    EXPECT_EQ(o.count(), 1 + 30000 + 90000 + 30000 * 30000);
}

} // namespace
} // namespace mirtane
