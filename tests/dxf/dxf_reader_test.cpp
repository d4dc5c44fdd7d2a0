#include "dxf_samples.h"

#include "dxf/dxf_names.h"
#include "dxf/open_slot.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using namespace samples;

const std::string inEntities = lines({"ENTITIES", "  0"});

std::string layerTable(std::initializer_list<std::string_view> names)
{
    std::string text = lines({"  0", "TABLE", "  2", "LAYER", " 70", "     9"});
    for (const std::string_view name : names)
        text += lines({"  0", "LAYER", " 70", "     0", "  2", name, " 62", "     7", "  6", "CONTINUOUS"});
    return text + lines({"  0", "ENDTAB", "  0", "ENDSEC"});
}

TEST(DxfReader, LineComesInWorldUnits)
{
    Opened o(inEntities +
             lines({"LINE", "  8", "0", " 10", "1", " 20", "2", " 11", "3", " 21", "-4", "  0"}));
    ASSERT_EQ(o.count(), 2);
    const EntityRecord r = o.at(1);
    EXPECT_EQ(r.kind, Kind::line);
    EXPECT_EQ(r.p1, (Point{12, -24}));
    EXPECT_EQ(r.p2, (Point{36, 48}));
    EXPECT_EQ(r.color, 0x00FF00);
    EXPECT_EQ(r.style, 0);
    EXPECT_EQ(r.layer, 0);
    EXPECT_EQ(o.stat(1), Stat::on);
}

TEST(DxfReader, CircleComesInWorldUnits)
{
    Opened o(lines({"CIRCLE", " 10", "1", " 20", "2", " 40", "3", "  0"}));
    EXPECT_EQ(o.at(1).kind, Kind::circle);
    EXPECT_EQ(o.at(1).p1, (Point{12, -24}));
    EXPECT_EQ(o.at(1).rad, 36);
}

TEST(DxfReader, ArcHasItsThreePoints)
{
    Opened o(lines({"ARC", " 10", "0", " 20", "0", " 40", "1", " 50", "0", " 51", "60", "  0"}));
    const EntityRecord r = o.at(1);
    EXPECT_EQ(r.kind, Kind::arc);
    EXPECT_EQ(r.a1, 0);
    EXPECT_EQ(r.a2, 60 * 0.0174533);
    EXPECT_EQ(r.p2, (Point{12, 0}));
    EXPECT_NEAR(r.p3.x, 6, 1e-4);
    EXPECT_NEAR(r.p3.y, -10.392305, 1e-4);
    EXPECT_NEAR(r.p4.x, 10.392305, 1e-4);
    EXPECT_NEAR(r.p4.y, -6, 1e-4);
}

TEST(DxfReader, ArcThroughAngleNoughtHasItsMiddleThere)
{
    Opened o(lines({"ARC", " 10", "0", " 20", "0", " 40", "1", " 50", "350", " 51", "10", "  0"}));
    EXPECT_NEAR(o.at(1).p4.x, 12, 1e-4);
    EXPECT_NEAR(o.at(1).p4.y, 0, 1e-4);
}

TEST(DxfReader, LineTypesAreStyles)
{
    const struct {
        std::string_view name;
        int style;
    } rows[] = {
        {"CONTINUOUS", 0}, {"GENLT_0", 0}, {"BROKEN", 1},  {"HIDDEN", 1},  {"DASHED", 1},   {"GENLT_1", 1},
        {"GENLT_2", 1},    {"GENLT_3", 1}, {"GENLT_4", 1}, {"DOT", 2},     {"GENLT_9", 2},  {"DASHDOT", 3},
        {"BORDER", 3},     {"GENLT_5", 3}, {"GENLT_6", 3}, {"PHANTOM", 4}, {"DIVIDE", 4},   {"GENLT_7", 4},
        {"GENLT_8", 4},    {"dashed", 0},  {"BYLAYER", 0}, {"DASHED ", 0}, {"GENLT_10", 0},
    };
    std::string file;
    for (const auto& row : rows) file += lines({"LINE", "  6", row.name, "  0"});
    Opened o(file);
    std::int32_t slot = 1;
    for (const auto& row : rows) EXPECT_EQ(o.at(slot++).style, row.style) << row.name;
}

TEST(DxfReader, ColorsByNumber)
{
    const struct {
        std::string_view number;
        std::int32_t color;
    } rows[] = {
        {"     1", 0xFF0000}, {"2", 0x00FF00},  {"3", 0xFFFF00},   {"4", 0x0000FF},  {"5", 0xFF00FF},
        {"6", 0x0080FF},      {"7", 0x00FFFF},  {"8", 0xE0E0E0},   {"9", 0xFF0000},  {"10", 0x00FF00},
        {"11", 0xFFFF00},     {"12", 0x0000FF}, {"13", 0xFF00FF},  {"14", 0x0080FF}, {"15", 0x00FFFF},
        {"16", 0xFF0000},     {"0", 0xFF0000},  {"256", 0xFF0000}, {"-7", 0xFF0000}, {"blue", 0xFF0000},
        {"99999", 0xFF0000},
    };
    std::string file;
    for (const auto& row : rows) file += lines({"LINE", " 62", row.number, "  0"});
    Opened o(file);
    std::int32_t slot = 1;
    for (const auto& row : rows) EXPECT_EQ(o.at(slot++).color, row.color) << row.number;
}

TEST(DxfReader, NumberThatCannotBeReadLeavesTheField)
{
    Opened o(lines({"LINE", " 10", "5", " 10", "x", " 20", "1e99", " 11", "nan", " 21", " 2.5mm", "  0"}));
    EXPECT_EQ(o.at(1).p1, (Point{60, 0}));
    EXPECT_EQ(o.at(1).p2, (Point{0, -30}));
}

TEST(DxfReader, CoordinateTooLargeForTheWorldStaysInFileUnits)
{
    Opened o(lines({"LINE", " 10", "3e38", " 20", "1", "  0"}));
    EXPECT_EQ(o.at(1).p1, (Point{3e38F, -12}));
}

TEST(DxfReader, LaterValueOfAGroupCounts)
{
    Opened o(lines({"LINE", " 10", "1", " 10", "2", "  0"}));
    EXPECT_EQ(o.at(1).p1.x, 24);
}

TEST(DxfReader, ValueThatReadsLikeACodeIsTakenForOne)
{
    // The value of the unknown group 39 is " 10", and the line behind it becomes its value.
    Opened o(lines({"LINE", " 39", " 10", " 20", " 11", "7", "  0"}));
    EXPECT_EQ(o.at(1).p1, (Point{240, 0}));
    EXPECT_EQ(o.at(1).p2, (Point{84, 0}));
}

TEST(DxfReader, FieldsThatAreMissingKeepWhatTheSlotHeld)
{
    Opened o(lines({"LINE", " 10", "1", " 20", "2", " 11", "3", " 21", "4", "  0"}));
    o.read(lines({"LINE", " 10", "5", "  0"}));
    EXPECT_EQ(o.at(1).p1, (Point{60, 288})); // what the slot held is converted again
    EXPECT_EQ(o.at(1).p2, (Point{432, 576}));
}

TEST(DxfReader, CodesThatAreNotPaddedGiveNoObjects)
{
    Opened o(lines({"0", "SECTION", "2", "ENTITIES", "0", "LINE", "8", "0", "10", "1", "20", "2", "0",
                    "ENDSEC", "0", "EOF"}));
    EXPECT_EQ(o.count(), 1);
}

TEST(DxfReader, WhatIsNoDxfGivesAnEmptyDrawing)
{
    for (const std::string& text : {std::string{}, std::string("hello"), std::string(1000, '\0'),
                                    std::string("\r\n\r\n"), std::string(5000, '\xFF')}) {
        Opened o(text);
        EXPECT_EQ(o.count(), 1);
        EXPECT_EQ(o.s().layerTable.layerCount, 0);
    }
}

TEST(DxfReader, CircleRunsOnBehindItsTwoCharacterLine)
{
    Opened o(inEntities + circle("1", "2", "3") + line("5", "6", "7", "8") + line("0", "0", "1", "1") +
             tail());
    ASSERT_EQ(o.count(), 3);
    EXPECT_EQ(o.at(1).kind, Kind::circle);
    EXPECT_EQ(o.at(1).p1, (Point{60, -72})); // the line's start has taken the place of the centre
    EXPECT_EQ(o.at(1).rad, 36);
    EXPECT_EQ(o.at(2).p2, (Point{12, -12}));
}

TEST(DxfReader, FileOfOurOwnComesBack)
{
    EntityRecord dashed = lineObject(1.25F, -2.5F, 3.75F, 4);
    dashed.style = 1;
    dashed.color = 0x0080FF;
    EntityRecord arcObject = object(Kind::arc);
    arcObject.p1 = world(1, 2);
    arcObject.rad = 30;
    arcObject.a1 = 5;
    arcObject.a2 = 1;
    arcObject.style = 4;
    Drawing drawing{dashed, lineObject(0, 0, 9, 9), arcObject};
    Opened o(drawing.file());
    ASSERT_EQ(o.count(), 4);
    EXPECT_EQ(o.at(1).p1, dashed.p1);
    EXPECT_EQ(o.at(1).p2, dashed.p2);
    EXPECT_EQ(o.at(1).style, 1);
    EXPECT_EQ(o.at(1).color, 0x0080FF);
    EXPECT_EQ(o.at(2).color, 0xE0E0E0); // white and light grey share a number
    EXPECT_EQ(o.at(3).p1, arcObject.p1);
    EXPECT_EQ(o.at(3).rad, 30);
    EXPECT_NEAR(o.at(3).a1, 5, 1e-5);
    EXPECT_NEAR(o.at(3).a2, 1, 1e-5);
    EXPECT_EQ(o.at(3).style, 4);
    for (std::int32_t slot = 1; slot < 4; ++slot) EXPECT_EQ(o.at(slot).layer, 0);
}

TEST(DxfReader, EveryLineEndIsTaken)
{
    const std::string file = inEntities + line("1", "2", "3", "4") + line("5", "6", "7", "8") + tail();
    for (const std::string_view end : {"\r\n", "\n", "\r"}) {
        std::string text;
        LineScanner scanner(file);
        std::string_view each;
        while (scanner.next(each)) text.append(each).append(end);
        for (const bool lastEnd : {true, false}) {
            Opened o(lastEnd ? text : text.substr(0, text.size() - end.size()));
            ASSERT_EQ(o.count(), 3);
            EXPECT_EQ(o.at(2).p2, (Point{84, -96}));
        }
    }
}

TEST(DxfReader, RecordThatTheFileEndsInIsKeptIfSomethingWasRead)
{
    const struct {
        std::string file;
        std::int32_t count;
    } rows[] = {
        {lines({"LINE", " 10", "1"}), 2}, {lines({"LINE", " 10"}), 1},
        {lines({"LINE", " 39", "1"}), 1}, {lines({"LINE"}), 1},
        {lines({"LINE", "  0"}), 2},      {lines({"TEXT", "  1", "a"}), 2},
        {lines({"INSERT", "  2"}), 1},    {lines({"CIRCLE", " 0"}), 1},
        {lines({"ARC", " 40", "x"}), 2},
    };
    for (const auto& row : rows) EXPECT_EQ(Opened(row.file).count(), row.count) << row.file;
}

TEST(DxfReader, LayerRows)
{
    Opened o(
        layerTable({"walls", "doors", "walls"}) + inEntities +
        lines({"LINE", "  8", "doors", "  0", "LINE", "  8", "walls", "  0", "LINE", "  8", "none", "  0"}));
    const LayerTable& table = o.s().layerTable;
    ASSERT_EQ(table.layerCount, 3);
    EXPECT_EQ(table.rows(), (std::vector<std::string>{"Yes:Wk :walls", "Yes:On :doors", "Yes:On :walls"}));
    EXPECT_EQ(table.find(2)->layerNumber, 2);
    EXPECT_EQ(o.s().workLayer, 0);
    EXPECT_EQ(o.at(1).layer, 1);
    EXPECT_EQ(o.at(2).layer, 0);
    EXPECT_EQ(o.at(3).layer, 3);
}

TEST(DxfReader, NoLayerRowsLeaveTheWorkingLayer)
{
    Opened o(inEntities + lines({"LAYER", "  2", "x", "LAYER", "  2", "y"}));
    EXPECT_EQ(o.s().layerTable.layerCount, 0);
    EXPECT_EQ(o.s().workLayer, 1);
    o.s().workLayer = 5;
    o.read("");
    EXPECT_EQ(o.s().workLayer, 5);
}

TEST(DxfReader, LayerRowEndsBehindItsName)
{
    // What follows the name is read as lines of no record; here it holds an object.
    Opened o(lines({"LAYER", "LAYER", "  2", "a", "LINE", " 10", "1", "  0", "LAYER", "  2", "b", "LAYER"}));
    EXPECT_EQ(o.s().layerTable.layerCount, 2);
    EXPECT_EQ(o.count(), 2);
}

TEST(DxfReader, LayersBeyondTheTableAreCountedAndLost)
{
    std::string file = lines({"LAYER"});
    for (int i = 0; i < 1005; ++i) file += lines({"LAYER", "  2", std::to_string(i)});
    Opened o(file + inEntities + lines({"LINE", "  8", "999", "  0", "LINE", "  8", "1003", "  0"}));
    EXPECT_EQ(o.s().layerTable.layerCount, 1005);
    EXPECT_EQ(o.at(1).layer, 999);
    EXPECT_EQ(o.at(2).layer, 1005);
    finishDxf(o.s());
    EXPECT_EQ(o.count(), 3 + 1005);
}

TEST(DxfReader, AttributesAreThoseOfTheLastObject)
{
    Opened o(
        lines({"TEXT", " 40", "2", "  1", "a", " 62", "4", "  0", "LINE", " 62", "5", "  6", "DOT", "  0"}));
    EXPECT_EQ(o.s().curColor, 0xFF00FF);
    EXPECT_EQ(o.s().curStyle, 2);
    EXPECT_EQ(o.s().textSize, 24);
    EXPECT_EQ(o.s().textFont, "Garamond");
}

TEST(DxfReader, AnInsertAtTheEndGivesItsColorToo)
{
    Opened o(lines({"LINE", " 62", "5", "  6", "DOT", "  0", "INSERT", "  2", "HC1", "  0"}));
    EXPECT_EQ(o.s().curColor, 0x00FF00);
    EXPECT_EQ(o.s().curStyle, 0);
}

TEST(DxfReader, LayerNamesBecomeRecordsAndTheDrawingIsSaved)
{
    Opened o(layerTable({"walls", "t\xFCren"}) + inEntities + lines({"LINE", "  0"}));
    EXPECT_EQ(o.count(), 2);
    finishDxf(o.s());
    ASSERT_EQ(o.count(), 4);
    EXPECT_EQ(o.at(2).kind, layerNameKind);
    EXPECT_EQ(o.at(2).p1.x, 2);
    EXPECT_EQ(o.at(2).t1, "walls");
    EXPECT_EQ(o.at(3).p1.x, 3);
    EXPECT_EQ(o.at(3).t1, "t\xC3\xBCren");
    EXPECT_EQ(o.stat(3), Stat::on);
    EXPECT_EQ(o.s().savedCount, 4);
}

TEST(DxfReader, UndoRecordsAreForgottenAndSerialsGoOn)
{
    Opened o("");
    o.store().entCount = 3;
    logFlip(o.s().log, 2, Stat::on);
    endGroup(o.s().log);
    const std::int32_t next = o.s().log.undoGroupNext;
    o.read(lines({"LINE", "  0", "LINE", "  0"}));
    EXPECT_EQ(o.s().log.undoLogCount, 0);
    EXPECT_EQ(o.s().log.logSlot[0], 0);
    EXPECT_EQ(o.s().log.undoGroupNext, next);
}

TEST(DxfReader, TheSessionsOwnStateStays)
{
    Opened o("");
    o.s().wholeViewFlag = 1;
    o.s().drawingName = "house.mtd";
    o.s().saveFollowUp = 4;
    o.s().dimStyle = 3;
    o.read(inEntities + lines({"LINE", "  0"}));
    EXPECT_EQ(o.s().wholeViewFlag, 1);
    EXPECT_EQ(o.s().drawingName, "house.mtd");
    EXPECT_EQ(o.s().saveFollowUp, 4);
    EXPECT_EQ(o.s().dimStyle, 3);
}

TEST(DxfNames, LastFourCharactersGiveWay)
{
    EXPECT_EQ(dxfNameOf("house.mtd"), "house.dxf");
    EXPECT_EQ(dxfNameOf("plain"), "p.dxf");
    EXPECT_EQ(dxfNameOf("abc"), ".dxf");
    EXPECT_EQ(dxfNameOf("a\xC3\xBC\xC3\xBC\xC3\xBC\xC3\xBC"), "a.dxf");
    EXPECT_EQ(drawingNameOf("house.dxf"), "house.mtd");
}

} // namespace
} // namespace mirtane
