#include "desk.h"

#include "app/files/dxf_flows.h"
#include "tables/pens.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

Bytes bytesOf(const std::string& text)
{
    return {text.begin(), text.end()};
}

std::string withUnits(const std::string& entities, const std::string& units = "1")
{
    return "0\nSECTION\n2\nHEADER\n9\n$INSUNITS\n70\n" + units + "\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n" +
           entities + "0\nENDSEC\n0\nEOF\n";
}

// A pen that is one and the same however it is read, blue.
constexpr const char* asInBoth = " 62\n170\n";

// A line that the letter takes, with a few more groups.
std::string padded(const std::string& units, const std::string& more)
{
    return "  0\nSECTION\n  2\nHEADER\n  9\n$INSUNITS\n 70\n" + units +
           "\n  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n  0\nLINE\n  8\n0\n" + more +
           " 10\n1\n 20\n2\n 11\n7\n 21\n8\n  0\nENDSEC\n  0\nEOF\n";
}

// Two circles and a line, none of which the letter takes, as its codes are not padded.
const std::string shapes = "0\nCIRCLE\n8\nA\n10\n5\n20\n5\n40\n2\n0\nCIRCLE\n8\nA\n10\n9\n20\n5\n40\n2\n"
                           "0\nLINE\n8\nB\n10\n1\n20\n2\n11\n7\n21\n8\n";

struct DxfInFull : testing::Test {
    DxfInFull()
    {
        desk.disk.files["/home/user/plan.dxf"] = bytesOf(withUnits(shapes));
        desk.disk.files["/home/user/bare.dxf"] = bytesOf(withUnits(shapes, "0"));
        desk.disk.files["/home/user/far.dxf"] =
            bytesOf(withUnits("0\nLINE\n10\n531000\n20\n-182000\n11\n531020\n21\n-181990\n0\nIMAGE\n8\n0\n"));
        desk.disk.files["/home/user/stray.dxf"] =
            bytesOf(withUnits("0\nLINE\n10\n531000.3\n20\n-182000.1\n11\n531020.7\n21\n-181990\n"
                              "0\nPOINT\n10\n0.3\n20\n0\n"));
        desk.disk.files["/home/user/words.dxf"] = bytesOf("Dear Sir,\nno drawing.\n");
    }

    void open(const std::string& name)
    {
        desk.press("dd2"_c);
        desk.name(name);
        desk.enter();
        ASSERT_FALSE(desk.visible("frmfile"_c));
    }
    void startWith(const std::string& name) { desk.shell.openDrawing("/home/user/" + name); }
    std::string said() { return desk.caption("notice"_c); }
    std::int32_t objects() const
    {
        std::int32_t count = 0;
        for (std::int32_t i = 1; i < desk.s.store.end(); ++i)
            count += isDrawnKind(desk.s.store.kind[EntityStore::at(i)]) ? 1 : 0;
        return count;
    }

    Desk desk;
};

TEST_F(DxfInFull, WhatTheLetterLeavesOutIsOffered)
{
    open("plan");
    EXPECT_EQ(objects(), 0);
    EXPECT_EQ(said(), "This file holds 2 circles, 1 line that were not read.");
    EXPECT_EQ(desk.caption("notice.Command1"_c), "Read all");
    EXPECT_FALSE(desk.visible("notice.Command2"_c));
    desk.press("notice.Command1"_c);
    EXPECT_EQ(objects(), 3);
    EXPECT_EQ(desk.slot(1).p1, (Point{60, -60}));
    EXPECT_EQ(said(), "");
    EXPECT_EQ(desk.s.drawingName, "plan.mtd");
    EXPECT_EQ(desk.s.dxfName, "plan.dxf");
    EXPECT_EQ(desk.s.savedCount, desk.s.store.entCount);
}

// By the letter nothing of it is read.
TEST_F(DxfInFull, AFileThatIsDroppedIsReadSo)
{
    for (const auto& [name, x] : {std::pair("plan.dxf", 60.0F), {"bare.dxf", 60.0F}}) {
        desk.shell.dropFile(std::string("/home/user/") + name);
        EXPECT_EQ(objects(), 3) << name;
        EXPECT_EQ(desk.slot(1).p1, (Point{x, -60})) << name;
        EXPECT_EQ(desk.s.dxfName, name);
    }
    EXPECT_EQ(said(), "bare.dxf has no units: taken as inches.");
    desk.drawLine(100, 100, 400, 100);
    desk.shell.dropFile("/home/user/plan.dxf");
    EXPECT_EQ(desk.caption("frmfile"_c), "Save Changes");
    EXPECT_EQ(objects(), 4);
    desk.press("frmfile.Command2"_c);
    EXPECT_EQ(objects(), 3) << "after unsaved work was thrown away";
    EXPECT_EQ(desk.s.dxfName, "plan.dxf");
}

TEST_F(DxfInFull, WhatWasDrawnMeanwhileIsNotLostToTheButton)
{
    open("plan");
    desk.drawLine(100, 100, 400, 100);
    desk.press("notice.Command1"_c);
    EXPECT_EQ(objects(), 1);
    EXPECT_EQ(said(), "The drawing was changed since plan.dxf was opened: it stays as it is.");
    desk.press("notice.Command1"_c);
    EXPECT_EQ(said(), "");
    EXPECT_EQ(objects(), 1);
}

TEST_F(DxfInFull, NothingIsOfferedForWhatCameWhole)
{
    desk.disk.files["/home/user/own.dxf"] = bytesOf(padded("1", asInBoth));
    open("own");
    EXPECT_EQ(objects(), 1);
    EXPECT_EQ(said(), "");
}

// As the letter has it all stands there, but not as the file shows it.
TEST_F(DxfInFull, WhatTheLetterReadsOtherwiseIsOffered)
{
    struct Row {
        const char* units;
        const char* more;
        Point end;
        std::int32_t color;
    };
    const Row rows[] = {
        {"4", asInBoth, {84 / 25.4F, -96 / 25.4F}, 0xFF0000},
        {"6", asInBoth, {84 / 0.0254F, -96 / 0.0254F}, 0xFF0000},
        {"1", " 62\n5\n", {84, -96}, 0xFF0000},
    };
    for (const Row& row : rows) {
        desk.disk.files["/home/user/other.dxf"] = bytesOf(padded(row.units, row.more));
        open("other");
        EXPECT_EQ(desk.slot(1).p2, (Point{84, -96}));
        EXPECT_EQ(said(), "1 object that was read is not what this file shows.") << row.units << row.more;
        desk.press("notice.Command1"_c);
        EXPECT_NEAR(desk.slot(1).p2.x, row.end.x, 1e-4 * row.end.x);
        EXPECT_NEAR(desk.slot(1).p2.y, row.end.y, -1e-4 * row.end.y);
        EXPECT_EQ(desk.slot(1).color, row.color);
        EXPECT_EQ(said(), "");
    }
}

TEST_F(DxfInFull, UnitsAreAskedForAfterTheLetterToo)
{
    desk.disk.files["/home/user/other.dxf"] = bytesOf(padded("0", asInBoth));
    for (const auto& [button, x] :
         {std::pair("notice.Command1"_c, 84 / 25.4), {"notice.Command2"_c, 84 / 0.0254}}) {
        open("other");
        EXPECT_EQ(said(), "other.dxf has no units: taken as inches.");
        EXPECT_EQ(desk.slot(1).p2, (Point{84, -96}));
        desk.press(button);
        EXPECT_NEAR(desk.slot(1).p2.x, x, 1e-4 * x);
        EXPECT_EQ(said(), "");
    }
    open("words");
    EXPECT_EQ(said(), "");
}

TEST_F(DxfInFull, NothingIsOfferedForLinesOfOurOwn)
{
    for (const std::size_t pen : {0U, 3U, 7U}) {
        desk.s.curColor = pens[pen].color;
        desk.drawLine(100, 100, 400 + static_cast<float>(pen), 100); // small
    }
    desk.press("Command19"_c);
    desk.click(50, 50);
    desk.click(900, 900);
    desk.cancel();
    desk.press("dd4"_c);
    desk.name("mine");
    desk.enter();
    desk.press("fil5"_c);
    desk.press("frmfile.Command2"_c);
    open("mine");
    EXPECT_EQ(objects(), 3);
    EXPECT_EQ(said(), "");
}

TEST_F(DxfInFull, FileNamedAtTheStartIsReadWholeAtOnce)
{
    startWith("plan.dxf");
    EXPECT_FALSE(desk.visible("frmfile"_c));
    EXPECT_EQ(objects(), 3);
    EXPECT_EQ(said(), "");
    EXPECT_EQ(desk.s.drawingName, "plan.mtd");
    EXPECT_EQ(desk.s.drawingFolder, "/home/user");
}

TEST_F(DxfInFull, UnitsThatTheFileLacksAreAskedFor)
{
    startWith("bare.dxf");
    EXPECT_EQ(said(), "bare.dxf has no units: taken as inches.");
    EXPECT_EQ(desk.caption("notice.Command1"_c), "Millimetres");
    EXPECT_EQ(desk.caption("notice.Command2"_c), "Metres");
    EXPECT_FLOAT_EQ(desk.slot(1).rad, 24);
    desk.press("notice.Command2"_c);
    EXPECT_FLOAT_EQ(desk.slot(1).rad, 24 / 0.0254F);
    EXPECT_EQ(said(), "");
    startWith("bare.dxf");
    desk.press("notice.Command1"_c);
    EXPECT_FLOAT_EQ(desk.slot(1).rad, 24 / 25.4F);
    EXPECT_EQ(objects(), 3);
}

TEST_F(DxfInFull, SaysWhatWasLeftOutAndThatItWasMoved)
{
    startWith("far.dxf");
    EXPECT_EQ(said(), "far.dxf: moved by -531000, 182000.");
    desk.press("notice.Command1"_c);
    EXPECT_EQ(said(), "far.dxf: 1 image left out.");
    desk.press("notice.Command1"_c);
    EXPECT_EQ(said(), "");
}

TEST_F(DxfInFull, SaysWhatIsTooFarOffToBeExact)
{
    startWith("stray.dxf");
    EXPECT_EQ(said(), "stray.dxf: moved by -531000, 182010; 1 object too far off to be exact.");
}

TEST_F(DxfInFull, WhatIsNoDxfFileLeavesTheDrawingAsItIs)
{
    desk.drawLine(100, 100, 400, 100);
    Ports ports{desk.disk, desk.folders, desk.settings, {}, nullptr, nullptr};
    DxfScratch scratch;
    App app{desk.s, desk.pic1, ports, scratch};
    EXPECT_FALSE(openDxfInFull(app, "/home/user/words.dxf"));
    EXPECT_FALSE(openDxfInFull(app, "/home/user/nowhere.dxf"));
    EXPECT_EQ(objects(), 1);
}

TEST_F(DxfInFull, NothingIsSaidOfItInAnotherDrawing)
{
    open("plan");
    ASSERT_NE(said(), "");
    open("words");
    EXPECT_EQ(said(), "");
}

// One that was cut off in the middle came in part, whatever it holds.
TEST_F(DxfInFull, SaysThatTheFileIsCutOff)
{
    const Bytes& whole = desk.disk.files["/home/user/plan.dxf"];
    for (const std::size_t left : {whole.size() - 40, whole.size() - 21}) {
        desk.disk.files["/home/user/part.dxf"] =
            Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(left));
        startWith("part.dxf");
        EXPECT_NE(said().find("the file is cut off"), std::string::npos) << left << ": " << said();
    }
}

} // namespace
} // namespace mirtane
