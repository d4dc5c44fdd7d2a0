// A drawing from its file: the records and the tables that follow from them.

#include "drawing_samples.h"
#include "files/drawing_file.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace mirtane {
namespace {

using namespace samples;

std::string rowOf(const Session& s, std::int32_t layer)
{
    return s.layerTable.find(layer)->row();
}

TEST(ReplaceDrawing, TheRecordsFillTheSlotsFromTheHeaderOn)
{
    Session s;
    for (int i = 0; i < 7; ++i) add(s, object(Kind::circle, 9), Stat::out);
    const EntityRecord line = object(Kind::line, 1);
    const EntityRecord dead = object(headerKind, 1);
    replaceDrawing(s, file({header(), line, dead}));
    EXPECT_EQ(s.store.entCount, 3);
    EXPECT_EQ(s.savedCount, 3);
    EXPECT_EQ(s.store.record(0), header());
    EXPECT_EQ(s.store.record(1), line);
    EXPECT_EQ(s.store.record(2), dead);
    for (std::int32_t i = 0; i < 3; ++i) EXPECT_EQ(s.store.stat[EntityStore::at(i)], Stat::on) << i;
}

TEST(ReplaceDrawing, TheHeaderGivesTheAttributes)
{
    Session s;
    replaceDrawing(s, file({header()}));
    EXPECT_EQ(s.textSize, 60);
    EXPECT_EQ(s.arrowSize, 24);
    EXPECT_EQ(s.dimStyle, 3);
    EXPECT_EQ(s.textJust, 2);
    EXPECT_EQ(s.dimTol, 0.25F);
    EXPECT_EQ(s.numComma, 1);
    EXPECT_EQ(s.angFormat, 1);
    EXPECT_EQ(s.numStyle, "br");
    EXPECT_EQ(s.textFont, "Courier New");
    EXPECT_EQ(s.workLayer, 2);
    EXPECT_EQ(s.curColor, 0x00FF00);
    EXPECT_EQ(s.curStyle, 3);
}

TEST(ReplaceDrawing, HeaderValuesThatDoNotFitLeaveTheAttribute)
{
    EntityRecord bad = header();
    bad.p1 = {nan, infinite};
    bad.p2 = {1e30F, -40000};
    bad.p3 = {-infinite, nan};
    bad.p4.x = 32768;
    Session s;
    replaceDrawing(s, file({bad}));
    EXPECT_EQ(s.textSize, 48);
    EXPECT_EQ(s.arrowSize, 48);
    EXPECT_EQ(s.dimStyle, 1);
    EXPECT_EQ(s.textJust, 0);
    EXPECT_EQ(s.dimTol, 0.125F);
    EXPECT_EQ(s.numComma, 0);
    EXPECT_EQ(s.angFormat, 0);
    EXPECT_EQ(s.textFont, "Courier New") << "the others are taken";
}

TEST(ReplaceDrawing, AFileOfTheHeaderAloneIsAnEmptyDrawing)
{
    Session s;
    add(s, object(Kind::line, 1), Stat::on);
    EntityRecord head = header();
    head.layer = 0;
    replaceDrawing(s, file({head}));
    EXPECT_EQ(s.store.entCount, 1);
    EXPECT_EQ(s.savedCount, 1);
    EXPECT_EQ(s.layerTable.layerCount, 1);
    EXPECT_EQ(s.layerTable.rows(), std::vector<std::string>{"No :Wk :0"});
}

TEST(ReplaceDrawing, WithoutAWholeRecordTheDrawingIsEmptyAndSlotZeroStays)
{
    const Bytes cuts[] = {{}, {1}, Bytes(89, 0), Bytes(200, 0xFF)};
    for (const Bytes& cut : cuts) {
        Session s;
        s.store.setRecord(0, object(Kind::text, 3));
        add(s, object(Kind::line, 1), Stat::on);
        replaceDrawing(s, cut);
        EXPECT_EQ(s.store.entCount, 1) << cut.size();
        EXPECT_EQ(s.savedCount, 1) << cut.size();
        EXPECT_EQ(s.store.record(0), object(Kind::text, 3)) << cut.size();
        EXPECT_EQ(s.textSize, 48) << "no header, so the attributes stay";
        EXPECT_EQ(s.numStyle, "us");
        EXPECT_EQ(s.layerTable.layerCount, 1) << cut.size();
    }
}

TEST(ReplaceDrawing, TheUndoRecordsAreForgottenAndTheSerialsGoOn)
{
    Session s;
    add(s, object(Kind::line, 1), Stat::on);
    logFlip(s.log, 1, Stat::on);
    endGroup(s.log);
    s.log.redoGroupTop = 9;
    replaceDrawing(s, file({header(), object(Kind::line, 1)}));
    EXPECT_EQ(s.log.undoLogCount, 0);
    EXPECT_EQ(s.log.logSlot[0], 0);
    EXPECT_EQ(s.log.undoGroupNext, 1);
    EXPECT_EQ(s.log.undoGroupTop, 1);
    EXPECT_EQ(s.log.redoGroupTop, 9);
    EXPECT_EQ(undo(s.store, s.log), Flipped::group);
    EXPECT_EQ(s.store.stat[1], Stat::on) << "an undo finds nothing";
}

TEST(ReplaceDrawing, OneGreyBecomesWhite)
{
    EntityRecord grey = object(Kind::line, 1);
    grey.color = 0xE0E0E0;
    EntityRecord nearly = grey;
    nearly.color = 0xE0E0E1;
    EntityRecord head = header();
    head.color = 0xE0E0E0;
    Session s;
    replaceDrawing(s, file({head, grey, nearly}));
    EXPECT_EQ(s.store.color[0], 0xFFFFFF);
    EXPECT_EQ(s.curColor, 0xFFFFFF);
    EXPECT_EQ(s.store.color[1], 0xFFFFFF);
    EXPECT_EQ(s.store.color[2], 0xE0E0E1);
}

TEST(ReplaceDrawing, DimensionsAreCounted)
{
    Session s;
    s.dimensionCount = 50;
    replaceDrawing(
        s, file({object(Kind::linearDimension, 1), object(Kind::text, 1), object(Kind::linearDimension, 1),
                 object(Kind::radialDimension, 1), object(Kind::leader, 1), object(Kind::angularDimension, 1),
                 object(Kind{11}, 1), object(Kind{17}, 1)}));
    EXPECT_EQ(s.dimensionCount, 4) << "the first record is the header, whatever its kind";
}

TEST(ReplaceDrawing, TheLayersFollowFromObjectsAndNames)
{
    Session s;
    replaceDrawing(s, file({header(), object(Kind::line, 4), layerName(3, "walls"), layerName(6, "roof"),
                            layerName(3, "inner walls"), object(Kind{12}, 5)}));
    const std::vector<std::string> rows = {"No :On :0", "No :On :1", "No :Wk :2",   "No :On :inner walls",
                                           "Yes:On :4", "No :On :5", "No :On :roof"};
    EXPECT_EQ(s.layerTable.rows(), rows) << "of two names the last; a piece of an associate marks no layer";
}

TEST(ReplaceDrawing, ALayerAboveTheStartingSixteenHasItsRow)
{
    Session s;
    replaceDrawing(s, file({header(), object(Kind::line, 20)}));
    EXPECT_EQ(s.layerTable.layerCount, 21);
    EXPECT_EQ(rowOf(s, 20), "Yes:On :20");
    EXPECT_EQ(s.layerTable.find(20)->layerNumber, 20);
}

TEST(ReplaceDrawing, TheWorkingLayerHasARowAlsoBeyondTheOthers)
{
    Session s;
    EntityRecord head = header();
    head.layer = 40;
    s.layerTable.find(40)->layerName = "of the drawing before";
    s.layerTable.find(41)->layerName = "not touched";
    replaceDrawing(s, file({head, object(Kind::line, 1)}));
    EXPECT_EQ(s.workLayer, 40);
    EXPECT_EQ(s.layerTable.layerCount, 2);
    EXPECT_EQ(rowOf(s, 40), "No :Wk :40");
    EXPECT_EQ(s.layerTable.find(41)->layerName, "not touched");
}

TEST(ReplaceDrawing, LayersWithoutARowAreKeptInTheRecordAndIgnoredByTheTables)
{
    Session s;
    EntityRecord head = header();
    head.layer = -7;
    replaceDrawing(s,
                   file({head, object(Kind::line, -32768), object(Kind::line, 32767), layerName(-9, "below"),
                         layerName(1500, "above"), layerName(nan, "none"), layerName(1e30F, "far"),
                         layerName(-infinite, "infinite"), layerName(40000, "beyond a layer's number")}));
    EXPECT_EQ(s.store.entCount, 9);
    EXPECT_EQ(s.store.layer[1], -32768);
    EXPECT_EQ(s.store.layer[2], 32767);
    EXPECT_EQ(s.workLayer, -7);
    EXPECT_EQ(s.layerTable.layerCount, 32767); // it counts in 16 bits
    EXPECT_EQ(s.layerTable.rows().size(), 1000U);
    for (std::int32_t i = 0; i < 1000; ++i) EXPECT_EQ(rowOf(s, i), "No :On :" + std::to_string(i));
}

TEST(ReplaceDrawing, AnyKindIsTaken)
{
    Session s;
    replaceDrawing(s, file({header(), object(Kind{-32768}, 1), object(Kind{0}, 2), object(Kind{32767}, 3),
                            object(Kind{30}, 4)}));
    EXPECT_EQ(s.store.entCount, 5);
    EXPECT_EQ(s.store.kind[1], Kind{-32768});
    EXPECT_EQ(s.store.kind[3], Kind{32767});
    EXPECT_FALSE(drawingBounds(s.store, nullptr).fed());
}

TEST(ReplaceDrawing, RecordsBeyondTheTableAreIgnored)
{
    Bytes bytes;
    ByteWriter out(bytes);
    EntityRecord r = object(Kind::line, 1);
    for (std::int32_t i = 0; i < EntityStore::slotCount + 3; ++i) {
        r.color = i;
        writeRecord(out, r);
    }
    Session s;
    replaceDrawing(s, bytes);
    EXPECT_EQ(s.store.entCount, EntityStore::slotCount);
    EXPECT_EQ(s.store.color.front(), 0);
    EXPECT_EQ(s.store.color.back(), EntityStore::slotCount - 1);
    EXPECT_EQ(recordsOf(drawingBytes(s, SaveWhat::drawing)).size(), EntityStore::at(EntityStore::slotCount));
}

Bytes sampleOfAllKinds(std::vector<std::size_t>& ends)
{
    Bytes bytes;
    ByteWriter out(bytes);
    const auto put = [&](const EntityRecord& r) {
        writeRecord(out, r);
        ends.push_back(bytes.size());
    };
    put(header());
    for (std::int16_t k = 1; k <= 20; ++k) put(object(Kind{k}, k));
    for (const Kind neverDrawn : {Kind{24}, Kind{30}, Kind{35}}) put(object(neverDrawn, 3));
    put(layerName(3, "walls"));
    return bytes;
}

TEST(ReplaceDrawing, EveryShortenedFileIsTakenWithoutHarm)
{
    std::vector<std::size_t> ends;
    const Bytes whole = sampleOfAllKinds(ends);
    Session s;
    for (std::size_t n = 0; n <= whole.size(); ++n) {
        const Bytes cut(whole.data(), whole.data() + n); // its own block, so that a read past its end is seen
        replaceDrawing(s, cut);
        const auto records =
            std::count_if(ends.begin(), ends.end(), [n](std::size_t end) { return end <= n; });
        ASSERT_EQ(s.store.entCount, std::max<std::ptrdiff_t>(records, 1)) << n;
        ASSERT_EQ(s.savedCount, s.store.entCount) << n;
        ASSERT_EQ(s.layerTable.rows().size(), static_cast<std::size_t>(s.layerTable.layerCount)) << n;
    }
    EXPECT_EQ(s.store.entCount, 25);
}

TEST(ReplaceDrawing, ALengthThatLiesEndsTheReadingAndWhatWasReadStays)
{
    for (const std::size_t lengthAt : {std::size_t{86}, std::size_t{88}}) {
        Bytes bytes =
            file({header(), object(Kind::line, 1), object(Kind::circle, 1), object(Kind::circle, 1)});
        const std::size_t third = file({header(), object(Kind::line, 1)}).size();
        bytes[third + lengthAt] = 0xFF;
        bytes[third + lengthAt + 1] = 0xFF;
        Session s;
        replaceDrawing(s, bytes);
        EXPECT_EQ(s.store.entCount, 2) << lengthAt;
        EXPECT_EQ(s.store.kind[1], Kind::line) << lengthAt;
    }
}

TEST(ReplaceDrawing, BytesOfAnySortAreTaken)
{
    std::uint32_t random = 12345;
    Session s;
    for (int round = 0; round < 50; ++round) {
        Bytes bytes(5000);
        for (std::uint8_t& b : bytes) {
            random = random * 1664525 + 1013904223;
            b = random % 3 == 0 ? 0
                                : static_cast<std::uint8_t>(random >> 24); // many zeros, so that records end
        }
        replaceDrawing(s, bytes);
        ASSERT_EQ(s.store.entCount, std::max<std::size_t>(recordsOf(bytes).size(), 1)) << round;
        setTextAnchors(s.store, [](const EntityRecord&) { return infinite; });
        fixUpLinesAndCircles(s.store);
        const Bytes again = drawingBytes(s, SaveWhat::drawing);
        ASSERT_EQ(recordsOf(again).size(), EntityStore::at(s.store.entCount)) << round;
    }
}

TEST(ReplaceDrawing, AFileWrittenAfterALoadIsTheSameByteForByte)
{
    const EntityRecord noNumbers = [] {
        EntityRecord r = object(Kind::arc, 1);
        r.p1 = {nan, infinite};
        r.a1 = -infinite;
        r.t2 = "caf\xC3\xA9";
        return r;
    }();
    const Bytes first =
        file({header(), object(Kind::line, 1), object(Kind::circle, 30), noNumbers, object(Kind{15}, -4),
              layerName(1, "one"), object(headerKind, 2), object(Kind{99}, 999)});
    Session s;
    replaceDrawing(s, first);
    EXPECT_EQ(drawingBytes(s, SaveWhat::drawing), first) << "nothing computed anew yet";

    const auto widthOf = [](const EntityRecord& r) { return static_cast<float>(r.t1.size()); };
    fixUpLinesAndCircles(s.store);
    setTextAnchors(s.store, widthOf);
    const Bytes second = drawingBytes(s, SaveWhat::drawing);
    Session t;
    replaceDrawing(t, second);
    fixUpLinesAndCircles(t.store);
    setTextAnchors(t.store, widthOf);
    EXPECT_EQ(drawingBytes(t, SaveWhat::drawing), second);
}

TEST(ReplaceDrawing, SelectedAndHiddenObjectsComeBackOn)
{
    Session s;
    add(s, object(Kind::line, 1), Stat::sel);
    add(s, object(Kind::line, 1), Stat::out);
    add(s, object(Kind::circle, 1), Stat::off);
    const Bytes bytes = drawingBytes(s, SaveWhat::drawing);
    replaceDrawing(s, bytes);
    EXPECT_EQ(s.store.entCount, 3);
    EXPECT_EQ(s.store.stat[1], Stat::on);
    EXPECT_EQ(s.store.stat[2], Stat::on);
    EXPECT_EQ(s.store.kind[2], Kind::circle) << "what was out is gone";
}

TEST(MergeLayer, TheRecordsComeBehindOnTheChosenLayer)
{
    Session s;
    resetLayers(s.layerTable);
    add(s, object(Kind::line, 1), Stat::sel);
    const Attributes attributes = s;
    EntityRecord grey = object(Kind::arc, 9);
    grey.color = 0xE0E0E0;
    mergeLayer(
        s, file({header(), object(Kind::circle, 7), layerName(7, "seven"), grey, layerName(8, "eight")}), 12);

    EXPECT_EQ(s.store.entCount, 5) << "the layer names are dropped, the header stays";
    const Kind kinds[] = {headerKind, Kind::circle, Kind::arc};
    for (std::int32_t i = 0; i < 3; ++i) {
        const std::size_t at = EntityStore::at(2 + i);
        EXPECT_EQ(s.store.kind[at], kinds[i]) << i;
        EXPECT_EQ(s.store.layer[at], 12) << i;
        EXPECT_EQ(s.store.stat[at], Stat::on) << i;
    }
    EXPECT_EQ(s.store.color[4], 0xFFFFFF);
    EXPECT_EQ(rowOf(s, 12), "Yes:On :12");
    EXPECT_EQ(rowOf(s, 7), "No :On :7");
    EXPECT_EQ(s.layerTable.layerCount, 16);
    EXPECT_EQ(s.store.stat[1], Stat::sel);
    EXPECT_EQ(s.savedCount, 1);
    EXPECT_EQ(s.textSize, attributes.textSize);
    EXPECT_EQ(s.workLayer, attributes.workLayer);
    EXPECT_EQ(s.numStyle, attributes.numStyle);
}

TEST(MergeLayer, TheUndoRecordsStay)
{
    Session s;
    add(s, object(Kind::line, 1), Stat::on);
    logFlip(s.log, 1, Stat::on);
    endGroup(s.log);
    mergeLayer(s, file({header()}), 3);
    EXPECT_EQ(s.log.undoLogCount, 1);
    EXPECT_EQ(undo(s.store, s.log), Flipped::group);
    EXPECT_EQ(s.store.stat[1], Stat::out);
    EXPECT_EQ(s.store.stat[2], Stat::on) << "a merge is not undone";
}

TEST(MergeLayer, AFullTableLosesTheRestAndGoesOnCounting)
{
    Session s;
    s.store.entCount = EntityStore::slotCount - 1;
    const EntityRecord line = object(Kind::line, 1);
    mergeLayer(s, file({line, line, line}), 3000);
    EXPECT_EQ(s.store.entCount, EntityStore::slotCount + 2);
    EXPECT_EQ(s.store.layer.back(), 3000);
    EXPECT_EQ(s.store.end(), EntityStore::slotCount);
}

TEST(MergeLayer, EveryShortenedFileIsTakenWithoutHarm)
{
    std::vector<std::size_t> ends;
    const Bytes whole = sampleOfAllKinds(ends);
    Session s;
    for (std::size_t n = 0; n < whole.size(); n += 7) {
        s.store.entCount = 1;
        const Bytes cut(whole.data(), whole.data() + n);
        mergeLayer(s, cut, 1);
        const auto records =
            std::count_if(ends.begin(), ends.end(), [n](std::size_t end) { return end <= n; });
        ASSERT_EQ(s.store.entCount, 1 + records) << n;
    }
}

} // namespace
} // namespace mirtane
