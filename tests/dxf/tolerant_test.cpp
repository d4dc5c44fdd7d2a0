#include "dxf/tolerant.h"

#include "dxf_samples.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using namespace samples;

// A file as others write it, each code and value separated by a blank here.
std::string foreign(std::initializer_list<std::string_view> all, std::string_view end = "\n")
{
    std::string text;
    for (const std::string_view line : all) text.append(line).append(end);
    return text;
}

const std::string anyEntities = foreign({"0", "SECTION", "2", "ENTITIES"});
const std::string end = foreign({"0", "ENDSEC", "0", "EOF"});

TEST(TolerantDxf, CodesArePaddedAndLinesEndAlike)
{
    const std::string expected = lines(
        {"  0", "SECTION", "  2", "ENTITIES", "  0", "LINE", "  8", "walls",  " 10", "1.50000000000000000001",
         " 20", "-2",      " 11", "3e0",      " 21", "4",    "  0", "ENDSEC", "  0", "EOF"});
    for (const std::string_view lineEnd : {"\n", "\r\n", "\r"}) {
        EXPECT_EQ(tolerantDxf(foreign(
                      {"0",  "SECTION", " 2",       "ENTITIES", "  0",   "LINE ", "5",
                       "1F", "100",     "DbEntity", "8",        "walls", "10",    " 1.50000000000000000001",
                       "20", "-2",      "30",       "0",        "11",    "3e0",   "21",
                       "4",  "0",       "ENDSEC",   "0",        "EOF"},
                      lineEnd)),
                  expected);
    }
}

TEST(TolerantDxf, UnpaddedFileComesIn)
{
    Opened o(tolerantDxf(anyEntities + foreign({"0", "LINE", "10",     "1",  "20", "2",  "11", "3",  "21",
                                                "4", "0",    "CIRCLE", "10", "5",  "20", "6",  "40", "7",
                                                "0", "ARC",  "40",     "1",  "50", "0",  "51", "90"}) +
                         end));
    ASSERT_EQ(o.count(), 4);
    EXPECT_EQ(o.at(1).p2, (Point{36, -48}));
    EXPECT_EQ(o.at(2).rad, 84);
    EXPECT_EQ(o.at(3).kind, Kind::arc);
}

TEST(TolerantDxf, ValuesThatReadLikeCodesDoNoHarm)
{
    Opened o(tolerantDxf(anyEntities + foreign({"0", "LINE", "39", " 10", "10", "1", "8", "  0", "20", "2"}) +
                         end));
    ASSERT_EQ(o.count(), 2);
    EXPECT_EQ(o.at(1).p1, (Point{12, -24}));
}

TEST(TolerantDxf, CirclesOfOurOwnFilesEndWhereTheyShould)
{
    EntityRecord r = object(Kind::circle);
    r.p1 = world(1, 2);
    r.rad = 12;
    Drawing drawing{r, lineObject(3, 4, 5, 6)};
    Opened o(tolerantDxf(drawing.file()));
    ASSERT_EQ(o.count(), 3);
    EXPECT_EQ(o.at(1).p1, (Point{12, -24}));
    EXPECT_EQ(o.at(2).kind, Kind::line);
}

TEST(TolerantDxf, LayersOfTheLayerTableAlone)
{
    Opened o(
        tolerantDxf(foreign({"0", "SECTION", "2", "HEADER", "9",   "$CLAYER", "8",  "LAYER", "0",  "ENDSEC",
                             "0", "SECTION", "2", "TABLES", "0",   "TABLE",   "2",  "STYLE", "0",  "STYLE",
                             "2", "HCSTYLE", "0", "ENDTAB", "0",   "TABLE",   "2",  "LAYER", "70", "2",
                             "0", "LAYER",   "5", "10",     "100", "Row",     "2",  "0",     "70", "0",
                             "0", "LAYER",   "2", "walls",  "0",   "LAYER",   "70", "0",     "0",  "ENDTAB",
                             "0", "ENDSEC"}) +
                    anyEntities + foreign({"0", "LINE", "8", "walls"}) + end));
    EXPECT_EQ(o.s().layerTable.rows(), (std::vector<std::string>{"Yes:Wk :0", "Yes:On :walls"}));
    EXPECT_EQ(o.at(1).layer, 1);
    EXPECT_EQ(o.stat(1), Stat::on);
}

TEST(TolerantDxf, BlocksAndInserts)
{
    Opened o(tolerantDxf(
        foreign({"0", "SECTION", "2", "BLOCKS", "0",  "BLOCK", "8", "0",      "2", "HC1", "3", "HC1",
                 "1", "",        "0", "LINE",   "11", "1",     "0", "ENDBLK", "5", "20",  "0", "ENDSEC"}) +
        anyEntities + foreign({"0", "INSERT", "2", "HC1", "10", "5", "20", "0"}) + end));
    ASSERT_EQ(o.count(), 4);
    EXPECT_EQ(o.stat(1), Stat::out);
    EXPECT_EQ(o.at(3).p2.x, 72);
}

std::string withBlock(std::string_view name)
{
    return foreign({"0", "SECTION", "2", "BLOCKS", "0", "BLOCK", "2", name, "0", "LINE", "11", "1", "0",
                    "ENDBLK", "0", "ENDSEC"}) +
           anyEntities + foreign({"0", "INSERT", "2", name, "10", "5", "20", "0", "0", "LINE", "11", "9"}) +
           end;
}

TEST(TolerantDxf, BlocksOfAnyNameArePlaced)
{
    for (const std::string_view name :
         {"DOOR", "POLYLINE", "LAYER", "LINE", "TEXT", "ENTITIES", "ENDBLK", "INSERT", "HC", "*U1"}) {
        Opened o(tolerantDxf(withBlock(name)));
        ASSERT_EQ(o.count(), 5) << name; // the block's line, the insert, the line, and what was placed
        EXPECT_EQ(o.stat(1), Stat::out) << name;
        EXPECT_EQ(o.at(3).p2.x, 108) << name;
        EXPECT_EQ(o.at(4).p2.x, 72) << name;
        EXPECT_EQ(o.s().layerTable.layerCount, 0) << name;
    }
}

TEST(TolerantDxf, PictureOfADimensionIsSeenInPlace)
{
    Opened o(tolerantDxf(foreign({"0", "SECTION", "2", "BLOCKS", "0", "BLOCK", "2", "*D3", "0", "LINE", "11",
                                  "1", "0", "ENDBLK", "0", "ENDSEC"}) +
                         anyEntities + end));
    ASSERT_EQ(o.count(), 2);
    EXPECT_EQ(o.stat(1), Stat::on);
}

TEST(TolerantDxf, NamesThatDifferOnlyInForeignLettersStayTwo)
{
    Opened o(
        tolerantDxf(foreign({"0", "SECTION", "2", "HEADER", "9", "$ACADVER", "1", "AC1027", "0", "ENDSEC",
                             "0", "SECTION", "2", "TABLES", "0", "TABLE",    "2", "LAYER",  "0", "LAYER",
                             "2", "\u5899",  "0", "LAYER",  "2", "\u95e8",   "0", "ENDTAB", "0", "ENDSEC"}) +
                    anyEntities + foreign({"0", "LINE", "8", "\u95e8", "11", "1"}) + end));
    EXPECT_EQ(o.s().layerTable.rows(), (std::vector<std::string>{"Yes:Wk :?", "Yes:On :??"}));
    EXPECT_EQ(o.at(1).layer, 1);
}

TEST(TolerantDxf, ByteOrderMarkIsPassedOver)
{
    Opened o(
        tolerantDxf("\xEF\xBB\xBF" +
                    foreign({"0", "SECTION", "2", "HEADER", "9", "$ACADVER", "1", "AC1027", "0", "ENDSEC"}) +
                    anyEntities + foreign({"0", "TEXT", "1", "\u00fcber"}) + end));
    ASSERT_EQ(o.count(), 2);
    EXPECT_EQ(o.at(1).t1, "\u00fcber");
}

TEST(TolerantDxf, RecordOfWhichNothingIsThereIsDropped)
{
    EXPECT_EQ(Opened(tolerantDxf(anyEntities + foreign({"0", "LINE"}))).count(), 1);
    EXPECT_EQ(Opened(tolerantDxf(anyEntities + foreign({"0", "LINE", "10", "1"}))).count(), 2);
}

TEST(TolerantDxf, LightPolylineThatWasCutIsNotClosed)
{
    Opened o(tolerantDxf(anyEntities + foreign({"0", "LWPOLYLINE", "70", "1", "10", "0", "20", "0", "10", "5",
                                                "20", "0", "10", "5"})));
    ASSERT_EQ(o.count(), 2);
    EXPECT_EQ(o.at(1).p2, (Point{60, 0}));
}

TEST(TolerantDxf, JustifiedTextStandsAtItsOwnLeftPoint)
{
    for (const std::string_view justification : {"0", "1", "     2", "3", "4"}) {
        Opened o(tolerantDxf(anyEntities +
                             foreign({"0", "TEXT", "10", "1", "20", "2", "40", "3", "1", " Wall ", "72",
                                      justification, "11", "9", "21", "9"}) +
                             end));
        const EntityRecord r = o.at(1);
        EXPECT_EQ(r.p1, (Point{12, -60})) << justification;
        EXPECT_EQ(r.p4, r.p1);
        EXPECT_EQ(r.p2.y, 0);
        EXPECT_EQ(r.t1, " Wall ");
    }
}

TEST(TolerantDxf, FittedTextKeepsBothPoints)
{
    Opened o(tolerantDxf(anyEntities +
                         foreign({"0", "TEXT", "10", "0", "20", "0", "40", "1", "1", "Wall", "72", "5", "11",
                                  "20", "21", "0"}) +
                         end));
    EXPECT_NEAR(o.at(1).p1.x, 120 - 16, 1e-3);
}

TEST(TolerantDxf, PolylineLooksAndFlagHoldForAllOfIt)
{
    Opened o(tolerantDxf(
        anyEntities +
        foreign({"0",  "POLYLINE", "62", "4",      "6",  "Dashed", "66", "1",    "10", "0",      "70", "9",
                 "0",  "VERTEX",   "10", "0",      "20", "0",      "70", "32",   "0",  "VERTEX", "10", "1",
                 "20", "0",        "70", "32",     "0",  "VERTEX", "62", "5",    "10", "1",      "20", "1",
                 "70", "0",        "0",  "SEQEND", "8",  "0",      "0",  "LINE", "10", "1"}) +
        end));
    ASSERT_EQ(o.count(), 5);
    EXPECT_EQ(o.at(1).color, 0x0000FF);
    EXPECT_EQ(o.at(1).style, 1);
    EXPECT_EQ(o.at(2).color, 0xFF00FF);
    EXPECT_EQ(o.at(2).style, 1);
    EXPECT_EQ(o.at(3).p2, (Point{0, 0}));
    EXPECT_EQ(o.at(4).color, 0x00FF00);
}

TEST(TolerantDxf, LightPolylineBecomesAnOrdinaryOne)
{
    Opened o(tolerantDxf(anyEntities +
                         foreign({"0",  "LWPOLYLINE", "8",  "0",  "62", "3", "90", "3",    "70", "1",
                                  "43", "0",          "10", "0",  "20", "0", "42", "1",    "10", "10",
                                  "20", "0",          "10", "10", "20", "5", "0",  "LINE", "10", "7"}) +
                         end));
    ASSERT_EQ(o.count(), 5);
    EXPECT_EQ(o.at(1).kind, Kind::arc);
    EXPECT_EQ(o.at(1).color, 0xFFFF00);
    EXPECT_EQ(o.at(2).p2, (Point{120, -60}));
    EXPECT_EQ(o.at(2).color, 0xFFFF00);
    EXPECT_EQ(o.at(3).p2, (Point{0, 0}));
    EXPECT_EQ(o.at(4).p1.x, 84);
}

TEST(TolerantDxf, LaterReleasesAreUtf8)
{
    const std::string text = anyEntities + foreign({"0", "TEXT", "1", "\xC3\xA9"}) + end;
    const auto release = [](std::string_view name) {
        return foreign({"0", "SECTION", "2", "HEADER", "9", "$ACADVER", "1", name, "0", "ENDSEC"});
    };
    EXPECT_EQ(Opened(tolerantDxf(release("AC1021") + text)).at(1).t1, "\xC3\xA9");
    EXPECT_EQ(Opened(tolerantDxf(release("AC1009") + text)).at(1).t1, "\xC3\x83\xC2\xA9");
}

TEST(TolerantDxf, LineThatShouldBeACodeAndIsNoneIsPassedOver)
{
    Opened o(tolerantDxf("a comment\n" + anyEntities + foreign({"0", "LINE", "", "10", "1"}) + end));
    ASSERT_EQ(o.count(), 2);
    EXPECT_EQ(o.at(1).p1.x, 12);
}

TEST(TolerantDxf, WhatIsNoDxfGivesNoObjects)
{
    for (const std::string& text :
         {std::string{}, std::string("x"), std::string(1000, '\0'), std::string("0")})
        EXPECT_EQ(tolerantDxf(text), lines({"  0", "EOF"}));
}

} // namespace
} // namespace mirtane
