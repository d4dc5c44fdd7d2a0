// A file that ends in the midst of a record is read as far as it is whole, and that is said.

#include "layer_desk.h"

#include "files/entity_record_codec.h"
#include "files/library_row_codec.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;
using fake::LayerDesk;

constexpr const char* cutDrawing = "/home/user/cut.mtd";
const std::string saidOfCut = "cut.mtd is cut off: the end of it is missing.";

// A drawing's file: so many slanted lines, far off.
Bytes slantedDrawing(int lines)
{
    Desk desk;
    for (int i = 0; i < lines; ++i) {
        const auto at = static_cast<float>(i); // few
        desk.drawLine(-3e4F + 11 * at, 170 + 7 * at, 4.1e4F, -2110 - 13 * at);
    }
    desk.saveAs("whole");
    return desk.disk.files.at("/home/user/whole.mtd");
}

constexpr std::size_t bytesOfLine = 90; // without texts, as lines have none

std::size_t headerOf(const Bytes& file, int lines)
{
    return file.size() - static_cast<std::size_t>(lines) * bytesOfLine;
}

TEST(CutOffDrawing, IsReadAsFarAsItIsWholeAndNamedUntitled)
{
    const Bytes whole = slantedDrawing(5);
    const std::size_t header = headerOf(whole, 5);
    for (std::size_t length = 1; length <= whole.size(); ++length) {
        const bool ends = length >= header && (length - header) % bytesOfLine == 0;
        LayerDesk desk;
        desk.disk.files[cutDrawing] =
            Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
        desk.open("cut");
        const std::size_t came = length < header ? 0 : (length - header) / bytesOfLine;
        EXPECT_EQ(desk.s.store.entCount, static_cast<std::int32_t>(came) + 1) << length;
        EXPECT_EQ(desk.caption("notice"_c), ends ? "" : saidOfCut) << length;
        EXPECT_EQ(desk.s.drawingName, ends ? "cut.mtd" : "untitled.mtd") << length;
        EXPECT_EQ(desk.s.drawingFile, ends ? cutDrawing : "") << length;
    }
}

TEST(CutOffDrawing, IsNotReplacedByTheNextSave)
{
    LayerDesk desk;
    Bytes cut = slantedDrawing(3);
    cut.resize(cut.size() - 1);
    desk.disk.files[cutDrawing] = cut;
    desk.open("cut");
    desk.drawLine(1, 2, 3, 4);
    desk.press("fil7"_c);
    EXPECT_EQ(desk.text("frmfile.Text1"_c), "untitled.mtd");
    desk.enter();
    EXPECT_EQ(desk.disk.files.at(cutDrawing), cut);
}

TEST(CutOffDrawing, MayBeNoneOfOurs)
{
    for (const std::size_t length : {1U, 50U, 89U, 91U, 4096U}) {
        LayerDesk desk;
        Bytes& file = desk.disk.files[cutDrawing];
        for (std::size_t i = 0; i < length; ++i)
            file.push_back(static_cast<std::uint8_t>(97 + i % 26)); // letters
        desk.open("cut");
        EXPECT_EQ(desk.caption("notice"_c), saidOfCut) << length;
        EXPECT_EQ(desk.s.drawingName, "untitled.mtd") << length;
    }
}

TEST(CutOffDrawing, IsToldOfByEveryRoad)
{
    struct Road {
        const char* what;
        void (*open)(LayerDesk& desk);
    };
    const Road roads[] = {
        {"the command line", [](LayerDesk& d) { d.shell.openDrawing(cutDrawing); }},
        {"a drop", [](LayerDesk& d) { d.shell.dropFile(cutDrawing); }},
    };
    for (const Road& road : roads) {
        LayerDesk desk;
        Bytes cut = slantedDrawing(3);
        cut.resize(cut.size() - 47);
        desk.disk.files[cutDrawing] = cut;
        road.open(desk);
        EXPECT_EQ(desk.caption("notice"_c), saidOfCut) << road.what;
        EXPECT_EQ(desk.s.drawingName, "untitled.mtd") << road.what;
        desk.press("notice.Command1"_c);
        EXPECT_EQ(desk.caption("notice"_c), "") << road.what;
    }
}

// The drawing that the layer comes into stays what it is.
TEST(CutOffDrawing, LoadedAsALayerIsToldOf)
{
    LayerDesk desk;
    desk.drawLine(1, 2, 3, 4);
    desk.saveAs("house");
    Bytes cut = slantedDrawing(3);
    cut.resize(cut.size() - 20);
    desk.disk.files[cutDrawing] = cut;
    desk.menuRow("ly13"_c, 5);
    desk.name("cut");
    desk.enter();
    EXPECT_EQ(desk.caption("notice"_c), saidOfCut);
    EXPECT_EQ(desk.s.drawingName, "house.mtd");
    EXPECT_EQ(desk.s.store.entCount, 2 + 1 + 2) << "the header comes along";
}

struct LibraryFile {
    ControlId open;
    const char* name;
    Bytes file;
};

std::vector<LibraryFile> libraryFiles()
{
    Bytes pieces, hatch, lines;
    ByteWriter toPieces(pieces), toHatch(hatch), toLines(lines);
    for (int i = 0; i < 3; ++i) {
        EntityRecord piece;
        piece.kind = pieceOf(Kind::line);
        writeRecord(toPieces, piece);
        HatchRow row;
        row.hatchName = "cut";
        row.hatchKind = Kind::line;
        writeHatchRow(toHatch, row);
        MultipleLine line;
        line.name = "cut";
        writeMultipleLine(toLines, line);
    }
    return {{"ass10"_c, "cut.mta", pieces}, {"ht8"_c, "cut.mth", hatch}, {"ml6"_c, "cut.mtm", lines}};
}

TEST(CutOffLibrary, IsReadAsFarAsItIsWholeAndToldOf)
{
    for (const LibraryFile& library : libraryFiles()) {
        const std::size_t row = library.file.size() / 3;
        for (std::size_t length = 1; length <= library.file.size(); ++length) {
            LayerDesk desk;
            desk.disk.files[std::string("/home/user/") + library.name] =
                Bytes(library.file.begin(), library.file.begin() + static_cast<std::ptrdiff_t>(length));
            desk.press(library.open);
            desk.name("cut");
            desk.enter();
            EXPECT_FALSE(desk.visible("frmfile"_c)) << library.name << " " << length;
            EXPECT_EQ(
                desk.caption("notice"_c),
                length % row == 0 ? "" : std::string(library.name) + " is cut off: the end of it is missing.")
                << length;
        }
    }
}

} // namespace
} // namespace mirtane
