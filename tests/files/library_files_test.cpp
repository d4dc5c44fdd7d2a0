#include "files/library_files.h"

#include "files/drawing_file.h"
#include "files/entity_record_codec.h"
#include "files/library_row_codec.h"
#include "records.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

namespace mirtane {
namespace {

HatchRow hatchRow(const std::string& name, float x)
{
    HatchRow row;
    row.hatchName = name;
    row.h1 = {x, x + 1};
    row.h2 = {x + 2, x + 3};
    row.hatchTileW = 20;
    row.hatchTileH = 10;
    row.hatchKind = Kind::line;
    return row;
}

MultipleLine multipleLine(const std::string& name, float m1)
{
    MultipleLine row;
    row.name = name;
    row.m1 = m1;
    row.colour = 0xFF;
    row.style = 1;
    return row;
}

EntityRecord piece(float x)
{
    const EntityRecord points = fake::record(pieceOf(Kind::line), {x, x}, {x + 1, x + 2});
    EntityRecord r = fake::ofLooks(points, 0xE0E0E0, 4);
    r.t1 = "kept";
    return r;
}

void addPiece(Session& s, const EntityRecord& r, const char* owner)
{
    s.store.setRecord(s.store.entCount, r);
    s.store.setStat(s.store.entCount, Stat::out);
    s.store.ownerName[EntityStore::at(s.store.entCount)] = owner;
    ++s.store.entCount;
}

std::unique_ptr<Session> newSession()
{
    auto session = std::make_unique<Session>();
    resetLayers(session->layerTable);
    return session;
}

Bytes piecesFile(int count)
{
    Bytes file;
    ByteWriter out(file);
    for (int i = 0; i < count; ++i) writeRecord(out, piece(static_cast<float>(i)));
    return file;
}

Bytes hatchFile(int count)
{
    Bytes file;
    ByteWriter out(file);
    for (int i = 0; i < count; ++i) writeHatchRow(out, hatchRow("h", static_cast<float>(i)));
    return file;
}

Bytes linesFile(int count)
{
    Bytes file;
    ByteWriter out(file);
    for (int i = 0; i < count; ++i) writeMultipleLine(out, multipleLine("m", static_cast<float>(i)));
    return file;
}

// -- saving --

TEST(LibraryFiles, AFileHoldsTheRowsOfOneNameInTheirOrder)
{
    HatchLibrary library;
    for (const auto& [name, x] : {std::pair("A", 1.0F), {"B", 2.0F}, {"??????", 3.0F}, {"A", 4.0F}}) {
        library.add(hatchRow(name, x));
    }
    Bytes expected;
    ByteWriter out(expected);
    writeHatchRow(out, hatchRow("A", 1));
    writeHatchRow(out, hatchRow("A", 4));
    EXPECT_EQ(hatchBytes(library, "A"), expected);
}

TEST(LibraryFiles, AFileOfMultipleLinesHoldsTheLegUnderWayAsItStands)
{
    MultipleLinesLibrary library;
    MultipleLine row = multipleLine("Wall", 6);
    row.legStart = {1, 2};
    row.legEnd = {3, 4};
    library.add(row);
    library.add(multipleLine("Fence", 1));
    Bytes expected;
    ByteWriter out(expected);
    writeMultipleLine(out, row);
    EXPECT_EQ(multipleLinesBytes(library, "Wall"), expected);
}

TEST(LibraryFiles, AnAssociateIsSavedAsItsPiecesAreStored)
{
    const auto s = newSession();
    addPiece(*s, piece(1), "Door");
    addPiece(*s, piece(2), "Window");
    addPiece(*s, piece(3), "Door");
    Bytes expected;
    ByteWriter out(expected);
    writeRecord(out, piece(1));
    writeRecord(out, piece(3));
    EXPECT_EQ(associateBytes(s->store, "Door"), expected);
}

TEST(LibraryFiles, NoNameSavesNothingThoughRemovedRowsBearIt)
{
    HatchLibrary hatches;
    hatches.add(hatchRow("??????", 1));
    EXPECT_TRUE(hatchBytes(hatches, "??????").empty());
    MultipleLinesLibrary lines;
    lines.add(multipleLine("??????", 1));
    EXPECT_TRUE(multipleLinesBytes(lines, "??????").empty());
    const auto s = newSession();
    addPiece(*s, piece(1), "??????");
    EXPECT_TRUE(associateBytes(s->store, "??????").empty());
}

TEST(LibraryFiles, RowsAtTheCountAreNotSaved)
{
    HatchLibrary library;
    library.add(hatchRow("A", 1));
    library.rows[1] = hatchRow("A", 2);
    EXPECT_EQ(hatchBytes(library, "A").size(), 71U);
}

// -- opening --

TEST(LibraryFiles, RowsComeBehindThoseInMemoryUnderTheNameInTheFile)
{
    HatchLibrary hatches;
    hatches.add(hatchRow("A", 9));
    addHatch(hatches, hatchFile(2));
    ASSERT_EQ(hatches.count, 3);
    EXPECT_EQ(hatches.rows[0], hatchRow("A", 9));
    EXPECT_EQ(hatches.rows[1], hatchRow("h", 0));
    EXPECT_EQ(hatches.rows[2], hatchRow("h", 1));

    MultipleLinesLibrary lines;
    lines.add(multipleLine("A", 9));
    addMultipleLines(lines, linesFile(2));
    ASSERT_EQ(lines.count, 3);
    EXPECT_EQ(lines.rows[2], multipleLine("m", 1));
}

TEST(LibraryFiles, PiecesBecomeHiddenSlotsOfTheNameOfTheFile)
{
    const auto s = newSession();
    addPiece(*s, piece(7), "Tree");
    addAssociate(*s, piecesFile(2), "Door");
    ASSERT_EQ(s->store.entCount, 4);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(s->store.record(2 + i), piece(static_cast<float>(i))) << "layer and colour as stored";
        EXPECT_EQ(s->store.stat[EntityStore::at(2 + i)], Stat::out);
        EXPECT_EQ(s->store.ownerName[EntityStore::at(2 + i)], "Door");
    }
    EXPECT_EQ(s->store.ownerName[1], "Tree");
    EXPECT_EQ(s->log.undoLogCount, 0);
}

TEST(LibraryFiles, OpeningAnAssociateMarksLayerZeroUsed)
{
    const auto s = newSession();
    addAssociate(*s, piecesFile(1), "Door");
    EXPECT_EQ(s->layerTable.find(0)->layerUsed, "Yes:");
    EXPECT_EQ(s->layerTable.find(4)->layerUsed, "No :") << "the layer of the piece itself";
}

TEST(LibraryFiles, OpeningANameAgainAddsToIt)
{
    const auto s = newSession();
    addAssociate(*s, piecesFile(1), "Door");
    addAssociate(*s, piecesFile(2), "Door");
    EXPECT_EQ(associateBytes(s->store, "Door").size(), 3 * piecesFile(1).size());
}

TEST(LibraryFiles, AreReadAsFarAsTheirBounds)
{
    MultipleLinesLibrary lines;
    addMultipleLines(lines, linesFile(120));
    EXPECT_EQ(lines.count, 99);
    addMultipleLines(lines, linesFile(99));
    EXPECT_EQ(lines.count, 198) << "the bound is of one file";

    HatchLibrary hatches;
    addHatch(hatches, hatchFile(30100));
    EXPECT_EQ(hatches.count, 30000) << "rows past the table are counted";
    ASSERT_EQ(hatches.used().size(), 1000U);
    EXPECT_EQ(hatches.used().back(), hatchRow("h", 999));

    const auto s = newSession();
    addAssociate(*s, piecesFile(60100), "Door");
    EXPECT_EQ(s->store.entCount, 60001);
}

TEST(LibraryFiles, ReadingTellsHowManyRecordsFoundNoPlace)
{
    MultipleLinesLibrary lines;
    EXPECT_EQ(addMultipleLines(lines, linesFile(99)).withoutRoom, 0);
    EXPECT_EQ(addMultipleLines(lines, linesFile(120)).withoutRoom, 21);
    lines.count = 950;
    EXPECT_EQ(addMultipleLines(lines, linesFile(120)).withoutRoom, 70);

    HatchLibrary hatches;
    EXPECT_EQ(addHatch(hatches, hatchFile(1000)).withoutRoom, 0);
    EXPECT_EQ(addHatch(hatches, hatchFile(3)).withoutRoom, 3);
    HatchLibrary more;
    EXPECT_EQ(addHatch(more, hatchFile(30100)).withoutRoom, 29100);

    const auto s = newSession();
    EXPECT_EQ(addAssociate(*s, piecesFile(60100), "Door").withoutRoom, 100);
    EXPECT_EQ(addAssociate(*s, piecesFile(2), "Gate").withoutRoom, 2);
}

TEST(LibraryFiles, APieceThatHasNoSlotIsLost)
{
    const auto s = newSession();
    s->store.entCount = EntityStore::slotCount - 1;
    addAssociate(*s, piecesFile(3), "Door");
    EXPECT_EQ(s->store.entCount, EntityStore::slotCount + 2);
    EXPECT_EQ(s->store.record(EntityStore::slotCount - 1), piece(0));
}

TEST(LibraryFiles, AnEmptyFileAddsNothing)
{
    HatchLibrary hatches;
    addHatch(hatches, {});
    EXPECT_EQ(hatches.count, 0);
    MultipleLinesLibrary lines;
    addMultipleLines(lines, {});
    EXPECT_EQ(lines.count, 0);
    const auto s = newSession();
    addAssociate(*s, {}, "Door");
    EXPECT_EQ(s->store.entCount, 1);
}

TEST(LibraryFiles, OfAFileCutAnywhereTheWholeRecordsStay)
{
    const Bytes hatches = hatchFile(3), lines = linesFile(3), pieces = piecesFile(2);
    for (std::size_t n = 0; n <= hatches.size(); ++n) {
        HatchLibrary library;
        addHatch(library, Bytes(hatches.data(), hatches.data() + n));
        EXPECT_EQ(library.count, static_cast<std::int32_t>(n / 71)) << n;
    }
    for (std::size_t n = 0; n <= lines.size(); ++n) {
        MultipleLinesLibrary library;
        addMultipleLines(library, Bytes(lines.data(), lines.data() + n));
        EXPECT_EQ(library.count, static_cast<std::int32_t>(n / 29)) << n;
    }
    const auto s = newSession();
    for (std::size_t n = 0; n <= pieces.size(); ++n) {
        s->store.entCount = 1;
        addAssociate(*s, Bytes(pieces.data(), pieces.data() + n), "Door");
        EXPECT_EQ(s->store.entCount, 1 + static_cast<std::int32_t>(n / 94)) << n;
    }
}

TEST(LibraryFiles, ALengthThatLiesEndsTheReading)
{
    Bytes hatches = hatchFile(2);
    hatches[71 + 68] = 0xFF; // the second name claims 255 bytes and has one
    HatchLibrary library;
    addHatch(library, hatches);
    EXPECT_EQ(library.count, 1);

    Bytes lines = linesFile(2);
    lines[26] = 0xFF;
    lines[27] = 0xFF;
    MultipleLinesLibrary lineLibrary;
    addMultipleLines(lineLibrary, lines);
    EXPECT_EQ(lineLibrary.count, 0);
}

// Every reader is given every file, and noise.
TEST(LibraryFiles, FilesOfAnotherKindAreTakenWithoutHarm)
{
    const auto drawing = newSession();
    for (int i = 0; i < 50; ++i) addPiece(*drawing, piece(1), "");
    std::mt19937 dice(7);
    Bytes noise(100000);
    for (std::uint8_t& byte : noise) byte = static_cast<std::uint8_t>(dice() & 0xFF); // the low byte of each
    const Bytes files[] = {
        piecesFile(50), hatchFile(50), linesFile(50),      drawingBytes(*drawing, SaveWhat::layer),
        noise,          Bytes(100000), Bytes(100000, 0xFF)};
    const auto s = newSession();
    HatchLibrary hatches;
    MultipleLinesLibrary lines;
    for (const Bytes& file : files) {
        addAssociate(*s, file, "Door");
        addHatch(hatches, file);
        addMultipleLines(lines, file);
        EXPECT_LE(s->store.end(), EntityStore::slotCount);
        EXPECT_LE(hatches.used().size(), 1000U);
        EXPECT_LE(lines.used().size(), 1000U);
    }
    for (std::int32_t i = 1; i < s->store.end(); ++i) EXPECT_EQ(s->store.stat[EntityStore::at(i)], Stat::out);
}

TEST(LibraryFiles, SavedAndOpenedAgainARowIsTheSame)
{
    HatchLibrary hatches, hatchesAgain;
    for (int i = 0; i < 10; ++i) hatches.add(hatchRow("Brick", static_cast<float>(i)));
    addHatch(hatchesAgain, hatchBytes(hatches, "Brick"));
    EXPECT_EQ(hatchesAgain.rows, hatches.rows);

    const auto s = newSession(), again = newSession();
    for (int i = 0; i < 10; ++i) addPiece(*s, piece(static_cast<float>(i)), "Door");
    addAssociate(*again, associateBytes(s->store, "Door"), "Door");
    EXPECT_EQ(associateBytes(again->store, "Door"), associateBytes(s->store, "Door"));
}

TEST(LibraryFiles, AnAssociateIsCalledAsItsFileWithoutTheExtension)
{
    EXPECT_EQ(baseName("Door.mta"), "Door");
    EXPECT_EQ(baseName("Door.old.mta"), "Door.old");
    EXPECT_EQ(baseName("Door"), "Door");
    EXPECT_EQ(baseName(".mta"), "");
}

} // namespace
} // namespace mirtane
