#include "dxf/dxf_writer.h"
#include "dxf/scanner.h"
#include "dxf_text.h"
#include "records.h"

#include <cmath>
#include <memory>
#include <random>

namespace mirtane {
namespace {

using namespace fake;

std::string units(const std::string& number)
{
    return section("HEADER", dxf({{9, "$INSUNITS"}, {70, number}}));
}

std::string lineOf(const std::string& x1, const std::string& y1, const std::string& x2, const std::string& y2)
{
    return dxf({{0, "LINE"}, {8, "0"}, {10, x1}, {20, y1}, {11, x2}, {21, y2}});
}

TEST(Units, AreThoseThatTheFileNames)
{
    struct Row {
        const char* number;
        double inches;
        bool named;
    };
    const Row rows[] = {{"0", 1, false},        {"1", 1, true},           {"2", 12, true},
                        {"4", 1 / 25.4, true},  {"5", 1 / 2.54, true},    {"6", 1000 / 25.4, true},
                        {"10", 36, true},       {"14", 100 / 25.4, true}, {"99", 1, false},
                        {"22", 1.000002, true}, {"23", 36.000072, true},  {"25", 1, false},
                        {"-4", 1, false},       {"nonsense", 1, false}};
    for (const Row& row : rows) {
        const FullReading r = readOf(units(row.number) + entities(lineOf("1", "2", "-3", "5")));
        EXPECT_THAT(objectsOf(r).at(0).p2, StandsAt(-3 * row.inches, 5 * row.inches)) << row.number;
        EXPECT_EQ(r.hasUnits, row.named) << row.number;
    }
    const FullReading asked = readInFull(entities(lineOf("0", "0", "254", "0")), {.inches = 1 / 25.4});
    EXPECT_THAT(objectsOf(asked).at(0).p2, StandsAt(10, 0));
}

// Whole drawings of them hold a few thousandths of a unit.
TEST(Units, OfMapsAndOfTheSky)
{
    struct Row {
        const char* number;
        double inches;
    };
    const Row rows[] = {
        {"17", 1e12 / 25.4},
        {"18", 149'597'870'700.0 / 0.0254},
        {"19", 9.4607304725808e18 / 25.4},
        {"20", 3.085677581e19 / 25.4},
        {"24", 63360.12672},
    };
    for (const Row& row : rows) {
        const FullReading r = readOf(units(row.number) + entities(lineOf("0", "0", "0.0003", "-0.0007")));
        EXPECT_TRUE(r.hasUnits) << row.number;
        EXPECT_NEAR(r.placing.worldPerFile / 12 / row.inches, 1, 1e-8) << row.number;
    }
}

TEST(FarDrawings, AreMovedToWhereTheyCanBeHeldExactly)
{
    const FullReading r =
        readOf(units("6") + entities(lineOf("531000.123", "182000.456", "531020.5", "182010") +
                                     dxf({{0, "CIRCLE"}, {10, "531007.25"}, {20, "182003.125"}, {40, "1"}})));
    EXPECT_EQ(sentenceOfMove(reportOf(r, {})), "moved by -531000, -182000");
    const auto objects = objectsOf(r);
    const double scale = 1000 / 25.4;
    EXPECT_THAT(objects[0].p1, StandsAt(0.123 * scale, 0.456 * scale));
    EXPECT_THAT(objects[1].p1, StandsAt(7.25 * scale, 3.125 * scale));
}

// However large they are, where that gains a bit of exactness.
TEST(FarDrawings, LargeOnesAreMovedIfItHelps)
{
    struct Row {
        const char* what;
        double x1, y1, x2, y2;
        bool moved;
    };
    const Row rows[] = {
        {"as large as it is far", 20000, 15000, 34000, 27000, true},
        {"on the other side", -34000, -27000, -20000, -15000, true},
        {"larger than half its distance", 0, 90000, 60000, 190000, true},
        {"at the origin", 0, 0, 60000, 190000, false},
        {"about the origin", -90000, -20, 90000, 5000, false},
        {"held well", 100, 9000, 4000, 10900, false},
    };
    for (const Row& row : rows) {
        const FullReading r = readOf(entities(lineOf(std::to_string(row.x1), std::to_string(row.y1),
                                                     std::to_string(row.x2), std::to_string(row.y2))));
        EXPECT_EQ(!sentenceOfMove(reportOf(r, {})).empty(), row.moved) << row.what;
        const auto objects = objectsOf(r);
        EXPECT_NEAR(objects[0].p2.x - objects[0].p1.x, 12 * (row.x2 - row.x1), 0.1) << row.what;
    }
}

TEST(FarDrawings, OthersStayWhereTheyAre)
{
    const std::string files[] = {
        entities(lineOf("5000", "-3000", "5100", "-2900")),         // far, and held well
        entities(lineOf("0", "0", "90000", "70000")),               // large: moving it would not help
        entities(lineOf("-900000", "-900000", "900000", "900000")), // likewise, about the origin
        entities(""),
    };
    for (const std::string& file : files) EXPECT_EQ(sentenceOfMove(reportOf(readOf(file), {})), "") << file;
}

TEST(FarDrawings, OnePointFarOffIsMoved)
{
    const FullReading r = readOf(entities(dxf({{0, "POINT"}, {10, "4000000.5"}, {20, "-8000000.25"}})));
    const Vec moved = r.placing.move;
    EXPECT_NEAR(moved.x, -4000000.5, 1);
    EXPECT_NEAR(moved.y, 8000000.25, 1);
}

// Posts of a fence, a quarter of a unit of the file apart, each with a knob.
std::string fence(double x, double y, int posts, const std::string& layer = "0")
{
    std::string all;
    for (int i = 0; i < posts; ++i) {
        const std::string at = std::to_string(x + 0.25 * i), foot = std::to_string(y);
        all += dxf({{0, "LINE"}, {8, layer}, {10, at}, {20, foot}, {11, at}, {21, std::to_string(y + 0.2)}});
        all += dxf({{0, "CIRCLE"}, {8, layer}, {10, at}, {20, foot}, {40, "0.05"}});
    }
    return all;
}

std::string hiddenLayer()
{
    return section("TABLES", dxf({{0, "LAYER"}, {2, "off"}, {62, "-3"}}));
}

TEST(FarDrawings, AFewObjectsElsewhereDoNotCostTheOthersTheirExactness)
{
    const std::string mark = lineOf("0.3", "0.7", "1.1", "9.7") + lineOf("1.1", "9.7", "2.3", "0.1");
    const std::string title =
        dxf({{0, "TEXT"}, {8, "off"}, {10, "3.3"}, {20, "4.1"}, {40, "2.5"}, {1, "Site"}});
    struct Row {
        const char* what;
        std::string units, others;
        double x, y;
        int posts;
        const char* said;
    };
    const Row rows[] = {
        {"a point at the origin", "6", dxf({{0, "POINT"}, {10, "0"}, {20, "0"}}), 692417.3, 5336014.8, 1,
         "moved by -692417.2, -5336014.7; 1 object too far off to be exact"},
        {"a mark at the origin", "6", mark, 692417.3, 5336014.8, 30,
         "moved by -692417, -5336014; 2 objects too far off to be exact"},
        {"a hidden title", "6", title, 31204.6, 94881.2, 12,
         "moved by -31204, -94881; 1 object too far off to be exact"},
        {"on the other side of the world", "4", mark + lineOf("77.7", "3e7", "88.8", "3.1e7"), -8123456.7,
         -7654321.3, 400, "moved by 8123460, 7654330; 3 objects too far off to be exact"},
        {"two heaps, one of them larger", "6", fence(5000.1, 104000.2, 20), 904000.3, 7000.4, 25,
         "moved by -904000, -7000; 40 objects too far off to be exact"},
        {"three heaps, none of them half", "6", fence(5000.1, 104000.2, 20) + fence(504000.1, 4.7, 20),
         904000.3, 7000.4, 25, "moved by -904000, -7000; 80 objects too far off to be exact"},
        {"one far off a drawing near the origin", "1", lineOf("400000.3", "0", "499999.9", "10.7"), 17.1,
         33.3, 30, "1 object too far off to be exact"},
    };
    for (const Row& row : rows) {
        for (const bool othersFirst : {true, false}) {
            const std::string heap = fence(row.x, row.y, row.posts);
            const FullReading r = readOf(units(row.units) + hiddenLayer() +
                                         entities(othersFirst ? row.others + heap : heap + row.others));
            EXPECT_EQ(sentenceOfPlace(reportOf(r, {})), row.said) << row.what;
            const auto objects = objectsOf(r);
            const std::size_t first =
                othersFirst ? objects.size() - 2 * static_cast<std::size_t>(row.posts) : 0;
            const EntityRecord& post = objects.at(first); // in the file's order
            EXPECT_NEAR(post.p1.y - post.p2.y, 0.2 * r.placing.worldPerFile, 0.02) << row.what;
            EXPECT_NEAR(post.p1.x, (row.x + r.placing.move.x) * r.placing.worldPerFile, 0.01) << row.what;
        }
    }
}

TEST(FarDrawings, WhereMostLieAtTheOriginNothingIsMoved)
{
    std::string points;
    for (int i = 0; i < 5; ++i) points += dxf({{0, "POINT"}, {10, "0"}, {20, "0"}});
    const FullReading r = readOf(units("6") + entities(points + fence(692417.3, 5336014.8, 1)));
    EXPECT_EQ(sentenceOfPlace(reportOf(r, {})), "2 objects too far off to be exact");
    EXPECT_EQ(objectsOf(r)[0].p1, (Point{0, 0}));
}

// Nor would a move gain much, where the drawing is large all over.
TEST(FarDrawings, WhatIsNotExactIsSaidWhereNothingIsMoved)
{
    struct Row {
        const char* what;
        double step;
        bool isExact;
    };
    const Row rows[] = {
        {"a street", 33.3, true},
        {"a town", 1333.3771, false},
        {"as large, in whole units, all of which are held", 2000, true},
    };
    for (const Row& row : rows) {
        std::string lines;
        std::vector<double> ends;
        for (int i = -50; i < 50; ++i) {
            ends.push_back(row.step * i);
            lines += lineOf(std::to_string(ends.back()), "17", std::to_string(ends.back()), "20");
        }
        const FullReading r = readOf(units("1") + entities(lines));
        std::int64_t inexact = 0;
        for (const double end : ends)
            inexact += std::abs(static_cast<float>(12 * end) - 12 * end) > 0.01 ? 1 : 0;
        EXPECT_EQ(inexact == 0, row.isExact) << row.what;
        EXPECT_EQ(reportOf(r, {}).inexact, inexact) << row.what;
        EXPECT_EQ(sentenceOfPlace(reportOf(r, {})),
                  inexact == 0 ? "" : std::to_string(inexact) + " objects too far off to be exact")
            << row.what;
    }
}

TEST(PaperSpace, ComesOnlyWhereTheModelIsEmpty)
{
    const std::string paper = dxf({{0, "LINE"}, {67, "1"}, {11, "4"}}) + dxf({{0, "VIEWPORT"}, {67, "1"}});
    EXPECT_EQ(objectsOf(entities(paper)).size(), 1U);
    const FullReading both = readOf(entities(paper + lineOf("0", "0", "1", "1")));
    EXPECT_EQ(both.drawing.objects.size(), 1U);
    EXPECT_EQ(sentenceOfLeftOut(reportOf(both, {1, 0})), "1 line (on paper) left out");
}

TEST(PaperSpace, SheetsThatWereNotInViewStandInBlocks)
{
    struct Row {
        const char* name;
        bool isSheet;
    };
    const Row rows[] = {{"*Paper_Space", true},
                        {"*PAPER_SPACE0", true},
                        {"*paper_space12", true},
                        {"$PAPER_SPACE", true},
                        {"*Model_Space", false},
                        {"PAPER_SPACE", false},
                        {"*U7", false},
                        {"*", false},
                        {"", false}};
    for (const Row& row : rows) {
        const std::string blocks =
            section("BLOCKS", block(row.name, lineOf("0", "0", "4", "1") + dxf({{0, "VIEWPORT"}})));
        EXPECT_EQ(readOf(blocks).drawing.objects.size(), row.isSheet ? 1U : 0U) << row.name;
        const FullReading both = readOf(blocks + entities(lineOf("0", "0", "1", "1")));
        EXPECT_EQ(both.drawing.objects.size(), 1U) << row.name;
        EXPECT_EQ(sentenceOfLeftOut(reportOf(both, {1, 0})), row.isSheet ? "1 line (on paper) left out" : "")
            << row.name;
    }
}

TEST(Report, CountsWhatCameAndWhatDidNot)
{
    const std::string left =
        dxf({{0, "IMAGE"}}) + dxf({{0, "IMAGE"}}) + dxf({{0, "3DSOLID"}}) + dxf({{0, "WIDGET"}});
    const FullReading r = readOf(entities(left + lineOf("0", "0", "1", "1") + lineOf("0", "0", "2", "1") +
                                          dxf({{0, "CIRCLE"}, {40, "1"}})));
    const FullReport report = reportOf(r, {3, 0});
    EXPECT_EQ(sentenceOfWhatCame(report), "1 circle, 2 lines");
    EXPECT_EQ(sentenceOfLeftOut(report), "1 solid body, 2 images, 1 widget left out");
    EXPECT_FALSE(report.isWhole());
    EXPECT_TRUE(reportOf(readOf(entities(lineOf("0", "0", "1", "1"))), {1, 0}).isWhole());
}

// What is missing of the last record can't be known.
TEST(Report, TheRecordThatAFileBreaksOffInIsLeftOut)
{
    const std::string whole = lineOf("0", "0", "1", "1");
    const std::string vertices = dxf({{0, "POLYLINE"}, {8, "0"}, {0, "VERTEX"}, {10, "1"}, {20, "2"}}) +
                                 dxf({{0, "VERTEX"}, {10, "5"}, {20, "2"}, {0, "VERTEX"}, {10, "7"}});
    struct Row {
        const char* what;
        std::string file;
        std::size_t objects;
        const char* leftOut;
    };
    const std::string head = dxf({{0, "SECTION"}, {2, "ENTITIES"}});
    const Row rows[] = {
        {"a line", head + whole + dxf({{0, "LINE"}, {8, "0"}, {10, "40"}, {20, "50"}}), 1,
         "1 line (cut off) left out"},
        {"a circle", head + whole + whole + dxf({{0, "CIRCLE"}, {10, "40"}, {40, "5"}}), 2,
         "1 circle (cut off) left out"},
        {"a polyline", head + vertices, 1, "1 vertex (cut off) left out"},
        {"the only one", head + dxf({{0, "TEXT"}, {1, "hal"}}), 0, "1 text (cut off) left out"},
        {"nothing", head, 0, ""},
        {"a table", section("ENTITIES", whole) + dxf({{0, "SECTION"}, {2, "OBJECTS"}, {0, "GROUP"}}), 1, ""},
    };
    for (const Row& row : rows) {
        const FullReading r = readInFull(row.file);
        EXPECT_TRUE(r.isCut) << row.what;
        EXPECT_EQ(r.drawing.objects.size(), row.objects) << row.what;
        EXPECT_EQ(sentenceOfLeftOut(reportOf(r, {row.objects, 0})), row.leftOut) << row.what;
    }
}

TEST(Report, RecordsThatSayNothingAreCounted)
{
    std::string records;
    for (const char* type :
         {"LINE", "CIRCLE", "ARC", "POINT", "ELLIPSE", "SOLID", "TRACE", "3DFACE", "XLINE"})
        records += dxf({{0, type}, {8, "0"}});
    const FullReading r = readOf(entities(records + dxf({{0, "LINE"}, {8, "0"}, {11, "4"}})));
    EXPECT_EQ(r.drawing.objects.size(), 1U);
    EXPECT_EQ(r.drawing.leftOut.size(), 9U);
    for (const auto& [what, count] : r.drawing.leftOut) EXPECT_EQ(what.second, "not whole") << what.first;
}

// Some programs write numbers as their user's country does.
TEST(Numbers, ACommaCanStandForThePoint)
{
    struct Row {
        const char* number;
        double value;
    };
    const Row rows[] = {
        {"7,25", 7.25},       {"-0,5", -0.5}, {",75", 0.75},     {"3,", 3},
        {" 41,125 ", 41.125}, {"+2,5", 2.5},  {"1,25e1", 12.5},  {"123456,0000000000001", 123456},
        {"2.5E+0", 2.5},      {"1e-400", 0},  {"-6.125", -6.125}};
    for (const Row& row : rows) {
        const FullReading r = readOf(units("1") + entities(lineOf(row.number, "3,5", "8", row.number)));
        ASSERT_EQ(r.drawing.objects.size(), 1U) << row.number;
        EXPECT_EQ(r.drawing.objects[0].p[0], (Vec{row.value, 3.5})) << row.number;
        EXPECT_EQ(r.drawing.objects[0].p[1], (Vec{8, row.value})) << row.number;
        EXPECT_TRUE(r.drawing.leftOut.empty()) << row.number;
    }
}

// It would be drawn to the origin, or without a size.
TEST(Numbers, ARecordWithOneThatCanNotBeReadIsLeftOut)
{
    const std::string vertices =
        dxf({{0, "VERTEX"}, {10, "1"}, {20, "2"}, {0, "VERTEX"}, {10, "5"}, {20, "?"}});
    struct Row {
        std::string records;
        const char* leftOut;
    };
    const Row rows[] = {
        {lineOf("3", "4", "nan", "5"), "1 line (not whole) left out"},
        {lineOf("3", "1e400", "7", "5"), "1 line (not whole) left out"},
        {lineOf("3", "4", "7", "1,234,567"), "1 line (not whole) left out"},
        {lineOf("3", "****", "7", "5"), "1 line (not whole) left out"},
        {lineOf("3", "4", "7", "#######.###"), "1 line (not whole) left out"},
        {lineOf("3", "4", "7", "1,234.5"), "1 line (not whole) left out"},
        {lineOf("12 feet and a half", "4", "7", "5"), "1 line (not whole) left out"},
        {lineOf("1.2345678901234567890123q", "4", "7", "5"), "1 line (not whole) left out"},
        {dxf({{0, "CIRCLE"}, {10, "1"}, {20, "2"}, {40, "-nan"}}), "1 circle (not whole) left out"},
        {dxf({{0, "ARC"}, {10, "1"}, {20, "2"}, {40, "3"}, {50, "inf"}}), "1 arc (not whole) left out"},
        {dxf({{0, "POINT"}, {10, "-inf"}}), "1 point (not whole) left out"},
        {dxf({{0, "ELLIPSE"}, {10, "1"}, {11, "3"}, {40, "x"}}), "1 ellipse (not whole) left out"},
        {dxf({{0, "TEXT"}, {10, "1"}, {40, "tall"}, {1, "Hall"}}), "1 text (not whole) left out"},
        {dxf({{0, "MTEXT"}, {10, "1"}, {20, "NaN"}, {40, "2"}, {1, "Hall"}}),
         "1 paragraph (not whole) left out"},
        {dxf({{0, "LWPOLYLINE"}, {10, "1"}, {20, "2"}, {42, "1.#QNAN"}, {10, "4"}, {20, "7"}}),
         "1 polyline (not whole) left out"},
        {dxf({{0, "POLYLINE"}}) + vertices + dxf({{0, "SEQEND"}}), "1 polyline (not whole) left out"},
        {dxf({{0, "INSERT"}, {2, "B"}, {10, "1"}, {20, "2"}, {41, "none"}}), "1 block (not whole) left out"},
    };
    const std::string blocks = section("BLOCKS", block("B", lineOf("0", "0", "1", "1")));
    for (const Row& row : rows) {
        const FullReading r =
            readOf(units("1") + blocks + entities(lineOf("0", "1", "2", "3") + row.records));
        EXPECT_EQ(r.drawing.objects.size(), 1U) << row.records;
        EXPECT_EQ(sentenceOfLeftOut(reportOf(r, {1, 0})), row.leftOut) << row.records;
    }
}

// What shows nothing of it: thickness, height above the ground, widths, what was measured.
TEST(Numbers, ThoseThatAreNotDrawnNeedNotBeReadable)
{
    const std::string records[] = {
        lineOf("3", "4", "7", "5") + dxf({{39, "nan"}, {30, "nan"}, {48, "x"}, {1040, "nan"}}),
        dxf({{0, "LWPOLYLINE"},
             {43, "nan"},
             {38, "-"},
             {10, "1"},
             {20, "2"},
             {40, "q"},
             {10, "4"},
             {20, "7"}}),
        dxf({{0, "TEXT"}, {10, "1"}, {40, "2"}, {1, "nan"}, {41, "nan"}}),
    };
    for (const std::string& record : records) {
        const FullReading r = readOf(units("1") + entities(record));
        EXPECT_EQ(r.drawing.objects.size(), 1U) << record;
        EXPECT_TRUE(r.drawing.leftOut.empty()) << record;
    }
}

// They would come as texts that no one sees.
TEST(Report, TextsOfNoHeightAreLeftOut)
{
    struct Row {
        std::string records;
        const char* leftOut;
    };
    const Row rows[] = {
        {dxf({{0, "TEXT"}, {10, "1"}, {40, "0"}, {1, "Attic"}}), "1 text (of no height) left out"},
        {dxf({{0, "MTEXT"}, {10, "1"}, {40, "0.0"}, {1, "Attic\\Pand roof"}}),
         "1 paragraph (of no height) left out"},
        {dxf({{0, "TEXT"}, {10, "1"}, {40, "0"}, {1, "  "}}), ""},
        {dxf({{0, "MTEXT"}, {10, "1"}, {40, "0"}, {1, ""}}), ""},
    };
    for (const Row& row : rows) {
        const FullReading r = readOf(units("1") + entities(row.records));
        EXPECT_TRUE(r.drawing.objects.empty()) << row.records;
        EXPECT_EQ(sentenceOfLeftOut(reportOf(r, {0, 0})), row.leftOut) << row.records;
    }
}

TEST(Report, RecordsWithoutATypeAreObjects)
{
    const FullReading r =
        readOf(entities(dxf({{0, ""}, {10, "1"}, {0, " "}, {10, "2"}}) + dxf({{0, "IMAGE"}})));
    EXPECT_EQ(sentenceOfLeftOut(reportOf(r, {0, 0})), "2 objects, 1 image left out");
}

TEST(Report, LinesInSpaceAreLines)
{
    const FullReading r = readOf(entities(dxf({{0, "3DLINE"}, {8, "0"}, {10, "1"}, {20, "2"}, {30, "9"}}) +
                                          dxf({{11, "-3"}, {21, "5"}, {31, "7"}})));
    ASSERT_EQ(r.drawing.objects.size(), 1U);
    EXPECT_THAT(objectsOf(r)[0].p2, StandsAt(-3, 5));
    EXPECT_TRUE(r.drawing.leftOut.empty());
}

// Of a page that is not known no letter beyond ASCII can be told, and of a page of two bytes none.
TEST(Report, LettersThatCanNotBeReadAreCounted)
{
    const auto text = [](const std::string& codePage, const std::string& words) {
        return readOf(section("HEADER", dxf({{9, "$DWGCODEPAGE"}, {3, codePage}})) +
                      entities(dxf({{0, "TEXT"}, {8, "0"}, {10, "1"}, {40, "1"}, {1, words}})));
    };
    struct Row {
        const char* codePage;
        const char* bytes;
        const char* words;
        std::size_t reasons;
    };
    const Row rows[] = {
        {"ANSI_932", "\xB1\xB2 12", "?? 12", 1}, {"ANSI_777", "caf\xE9", "caf?", 1},
        {"ANSI_1252", "caf\xE9?", "café?", 0},   {"ANSI_936", "why?", "why?", 0},
        {"ANSI_936", "\xB1\xB2?", "??", 1},
    };
    for (const Row& row : rows) {
        const FullReading r = text(row.codePage, row.bytes);
        EXPECT_EQ(r.drawing.objects.at(0).text.words, row.words) << row.codePage;
        EXPECT_EQ(r.drawing.leftOut.size(), row.reasons) << row.codePage << row.words;
    }
}

TEST(Report, FileWithoutItsEndIsNotWhole)
{
    const FullReading r = readInFull(entities(lineOf("0", "0", "1", "1")));
    EXPECT_TRUE(r.isCut);
    EXPECT_EQ(r.drawing.objects.size(), 1U);
    EXPECT_FALSE(reportOf(r, {1, 0}).isWhole());
    EXPECT_FALSE(readInFull("What a day.\nHow nice.\n").isDxf);
}

float sixPerLetter(const EntityRecord& r)
{
    return 6 * static_cast<float>(r.t1.size()); // a few letters
}

struct Taken {
    explicit Taken(const FullReading& reading) { taken = takeReading(*s, reading, sixPerLetter); }
    std::unique_ptr<Session> s = std::make_unique<Session>();
    TakenReading taken;
};

TEST(TakenReading, HiddenLayersAreHiddenAndTheOthersUsed)
{
    const std::string tables = section("TABLES", dxf({{0, "LAYER"},
                                                      {2, "seen"},
                                                      {62, "1"},
                                                      {0, "LAYER"},
                                                      {2, "dark"},
                                                      {62, "-2"},
                                                      {0, "LAYER"},
                                                      {2, "bare"}}));
    const Taken t(readOf(tables + entities(dxf({{0, "POINT"}, {8, "dark"}, {10, "1"}}) +
                                           dxf({{0, "POINT"}, {8, "seen"}, {10, "2"}}))));
    EXPECT_EQ(t.s->layerTable.rows(),
              (std::vector<std::string>{"Yes:Wk :seen", "Yes:Off:dark", "No :On :bare"}));
    EXPECT_EQ(t.s->store.stat[1], Stat::off);
    EXPECT_EQ(t.s->store.stat[2], Stat::on);
    EXPECT_EQ(t.s->workLayer, 0);
}

TEST(TakenReading, TextsHaveTheirWidthAndAFace)
{
    const Taken t(readOf(entities(dxf({{0, "TEXT"}, {10, "1"}, {40, "1"}, {1, "Words"}}))));
    EXPECT_FLOAT_EQ(t.s->store.rad[1], 36);
    EXPECT_EQ(t.s->store.t2[1], "Garamond");
}

// Its words go from 10 inches to the left of the point, 30 units wide.
TEST(TakenReading, MirroredTextIsHeldByItsMiddle)
{
    const std::string words = dxf({{0, "TEXT"}, {10, "10"}, {20, "20"}, {40, "2"}, {1, "Words"}});
    const Taken t(
        readOf(section("BLOCKS", block("B", words)) + entities(dxf({{0, "INSERT"}, {2, "B"}, {41, "-1"}}))));
    EXPECT_THAT(t.s->store.p1[1], StandsAt(-10 - 15.0 / 12, 22));
    EXPECT_EQ(t.s->store.p2[1].y, 2);
}

TEST(TakenReading, PastTheTablesEndObjectsAreCounted)
{
    std::string many;
    for (int i = 0; i < 60'005; ++i) many += lineOf("0", "0", "1", "1");
    const Taken t(readOf(section("TABLES", dxf({{0, "LAYER"}, {2, "A"}})) + entities(many)));
    EXPECT_EQ(t.taken.objects, 59'998U); // two layers have a name to keep
    EXPECT_EQ(t.taken.withoutRoom, 7);
    EXPECT_EQ(t.s->store.entCount, 59'999);
}

// What Save DXF writes has its own numbers of colours, and texts of two thirds of their height.
TEST(OurOwnFiles, ComeBackAsTheyWere)
{
    EntityRecord circle = fake::ofLooks(fake::circle({-50, 70}, 33), 0x0080FF, 0);
    EntityRecord line = fake::ofLooks(fake::line({12, 24}, {-36, 500}), 0x00FFFF, 0);
    line.style = 3;
    EntityRecord text = fake::ofLooks(fake::text({120, 340}, "Words"), 0x0000FF, 0);
    text.p2 = {36, 2};
    text.a1 = 30;
    const auto session = std::make_unique<Session>();
    Session& s = *session;
    for (const EntityRecord& r : {circle, line, circle, text}) {
        s.store.setStat(s.store.entCount, Stat::sel);
        s.store.setRecord(s.store.entCount++, r);
    }
    DxfScratch scratch;
    const DxfFile file = dxfFile(s.store, scratch);
    const FullReading r = readInFull(textOf(file.bytes));
    const auto objects = objectsOf(r);
    ASSERT_EQ(objects.size(), 4U);
    EXPECT_TRUE(r.hasUnits);
    EXPECT_EQ(objects[0].kind, Kind::circle);
    EXPECT_EQ(objects[0].color, circle.color);
    EXPECT_FLOAT_EQ(objects[0].rad, 33);
    EXPECT_EQ(objects[1].color, line.color);
    EXPECT_EQ(objects[1].style, 3);
    EXPECT_EQ(objects[3].color, text.color);
    EXPECT_NEAR(objects[3].p1.x, 120, 1e-3);
    EXPECT_NEAR(objects[3].p1.y, 340, 1e-3);
    EXPECT_FLOAT_EQ(objects[3].p2.x, 36);
    EXPECT_EQ(objects[3].p2.y, 2);
}

bool isWellFormed(const FullReading& reading)
{
    for (const EntityRecord& r : objectsOf(reading)) {
        const bool finite =
            std::isfinite(r.p1.x + r.p1.y + r.p2.x + r.p2.y + r.p3.x + r.p3.y + r.p4.x + r.p4.y) &&
            std::isfinite(r.rad) && std::isfinite(r.a1) && std::isfinite(r.a2);
        if (!finite || !isDrawnKind(r.kind) || r.layer < 0 || r.layer > 999) return false;
    }
    return true;
}

const std::string sample =
    section("TABLES",
            dxf({{0, "LAYER"}, {2, "A"}, {62, "1"}, {0, "LTYPE"}, {2, "L"}, {49, "1"}, {49, "-1"}})) +
    section("BLOCKS", block("B", lineOf("0", "0", "1", "1") + dxf({{0, "CIRCLE"}, {40, "1"}}))) +
    entities(
        dxf({{0, "INSERT"}, {2, "B"}, {41, "2"}, {50, "30"}, {70, "3"}, {44, "2"}}) +
        dxf({{0, "LWPOLYLINE"}, {70, "1"}, {10, "0"}, {20, "0"}, {42, "1"}, {10, "4"}, {20, "3"}}) +
        dxf({{0, "TEXT"}, {10, "1"}, {40, "2"}, {1, "Words"}, {72, "1"}, {11, "4"}, {21, "5"}}) +
        dxf({{0, "ARC"}, {40, "2"}, {50, "10"}, {51, "200"}, {210, "0.3"}, {220, "0.2"}, {230, "0.9"}})) +
    fileEnd;

TEST(DamagedFiles, CutAtEveryLengthAreTaken)
{
    ASSERT_TRUE(isWellFormed(readInFull(sample)));
    for (std::size_t n = 0; n < sample.size(); ++n) {
        const std::vector<char> cut(sample.begin(),
                                    sample.begin() + static_cast<std::ptrdiff_t>(n)); // in sample
        ASSERT_TRUE(isWellFormed(readInFull({cut.data(), cut.size()}))) << n;
    }
}

// A vertex or an attribute belongs to the record before it in the same place, and to no other. A vertex alone
// is nothing; an attribute alone is its text.
TEST(DamagedFiles, PartsBelongToNothingInAnotherSection)
{
    const std::string line = dxf({{0, "LINE"}, {10, "3"}, {20, "7"}, {11, "9"}, {21, "1"}});
    const std::string label = dxf({{0, "ATTRIB"}, {10, "2"}, {20, "5"}, {40, "1"}, {1, "stray"}});
    const std::string corner = dxf({{0, "VERTEX"}, {10, "4"}, {20, "8"}});
    const struct {
        std::string whole, part;
        std::size_t alone;
    } kinds[] = {{dxf({{0, "POLYLINE"}, {66, "1"}}) + corner, corner, 0},
                 {dxf({{0, "INSERT"}, {2, "C"}}), label, 1}};
    const std::string begin = dxf({{0, "BLOCK"}, {2, "B"}}), end = dxf({{0, "ENDBLK"}});
    const auto shown = [](const std::string& sections) { return readOf(sections).drawing.objects.size(); };
    for (const auto& [whole, part, alone] : kinds) {
        for (const std::string& blocks : {begin + whole, begin + whole + end, whole, begin + end + whole}) {
            const std::string head = section("BLOCKS", blocks);
            EXPECT_EQ(shown(head + part), alone) << part << blocks;
            EXPECT_EQ(shown(entities(line) + head + part), 1 + alone) << part << blocks;
            EXPECT_EQ(shown(head + part + entities(line) + part), 1 + 2 * alone) << part << blocks;
        }
        EXPECT_EQ(shown(entities(line + whole) + part + line), 2 + alone) << part;
    }
}

TEST(DamagedFiles, PairsAtRandomAreTaken)
{
    const int codes[] = {0,  1,  2,  6,  8,  10, 11, 20, 21, 30, 38,  40,  41,  42,
                         44, 50, 51, 60, 62, 67, 70, 71, 72, 73, 210, 220, 230, 420};
    const char* const words[] = {
        "LINE",   "ARC", "CIRCLE", "INSERT",      "POLYLINE", "VERTEX", "SEQEND",     "TEXT",  "ATTRIB",
        "B",      "A",   "0",      "1",           "-1",       "1e300",  "-1e38",      "nan",   "inf",
        "1e-300", "64",  "16",     "99999999999", "0.5",      "360",    "LWPOLYLINE", "3DFACE"};
    std::mt19937 random(11);
    for (int round = 0; round < 300; ++round) {
        std::string content;
        for (int i = 0; i < 200; ++i) {
            const int code = random() % 4 == 0 ? 0 : codes[random() % std::size(codes)];
            content += dxf({{code, words[random() % std::size(words)]}});
        }
        const std::string file = section("BLOCKS", block("B", content)) + entities(content);
        ASSERT_TRUE(isWellFormed(readOf(file))) << file;
    }
}

} // namespace
} // namespace mirtane
