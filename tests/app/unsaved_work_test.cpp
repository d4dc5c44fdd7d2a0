// Work that is not saved outlives the program.

#include "desk.h"

#include "files/drawing_file.h"
#include "files/kept_work.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

const KeptAbout house{"house.mtd", "/home/user/house.mtd", "2026-11-22 14:32"};

// What a run leaves that draws so many slanted lines and dies.
Bytes workOf(int lines, const KeptAbout& about = house)
{
    Desk desk;
    for (int i = 0; i < lines; ++i) {
        const auto at = static_cast<float>(i); // few
        desk.drawLine(-3e4F + at, 100 + 7 * at, 4e4F, -211 - 13 * at);
    }
    return keptWork(desk.s, about);
}

std::vector<EntityRecord> linesOf(const Desk& desk)
{
    std::vector<EntityRecord> lines;
    for (std::int32_t i = 1; i < desk.s.store.end(); ++i) {
        if (desk.slot(i).kind == Kind::line && desk.s.store.isShown(i)) lines.push_back(desk.slot(i));
    }
    return lines;
}

void expectNotice(const Desk& desk, const std::string& sentence, const std::string& first = "",
                  const std::string& second = "")
{
    EXPECT_EQ(desk.visible("notice"_c), !sentence.empty());
    EXPECT_EQ(desk.caption("notice"_c), sentence);
    EXPECT_EQ(desk.caption("notice.Command1"_c), first);
    EXPECT_EQ(desk.caption("notice.Command2"_c), second);
    EXPECT_EQ(desk.visible("notice.Command1"_c), !first.empty());
    EXPECT_EQ(desk.visible("notice.Command2"_c), !second.empty());
}

struct ChangeRow {
    const char* what;
    void (*act)(Desk& desk);
};

const ChangeRow changes[] = {
    {"a line", [](Desk& d) { d.drawLine(-310.5F, 17, 422, 1973); }},
    {"a delete",
     [](Desk& d) {
         d.s.store.setStat(1, Stat::sel);
         d.press("Command20"_c);
         d.cancel();
         d.press(ids::editDelete);
     }},
    {"an undo", [](Desk& d) { d.press("undu"_c); }},
    {"a redo",
     [](Desk& d) {
         d.press("undu"_c);
         d.press("redu"_c);
     }},
    {"the first leg of a chain",
     [](Desk& d) {
         d.press("Command1"_c);
         d.click(10, 20);
         d.click(733, 911);
     }},
};

// -- keeping --

TEST(UnsavedWork, IsKeptOnceTheUserRests)
{
    for (const ChangeRow& change : changes) {
        Desk desk;
        desk.drawLine(100, 200, 300, 411);
        desk.saveAs("house");
        change.act(desk);
        EXPECT_FALSE(desk.work.kept) << change.what;
        desk.shell.rest();
        ASSERT_TRUE(desk.work.kept) << change.what;
        const std::optional<KeptWork> work = readKeptWork(*desk.work.kept);
        ASSERT_TRUE(work) << change.what;
        EXPECT_EQ(work->about.drawingName, house.drawingName) << change.what;
        EXPECT_EQ(work->about.drawingFile, house.drawingFile) << change.what;
        EXPECT_EQ(work->about.time, house.time) << change.what;
        EXPECT_EQ(work->about.stamp, desk.disk.stamp(house.drawingFile)) << change.what;
        EXPECT_EQ(work->drawing, drawingBytes(desk.s, SaveWhat::drawing)) << change.what;
    }
}

TEST(UnsavedWork, IsKeptOnceForEachChange)
{
    Desk desk;
    desk.shell.rest();
    EXPECT_EQ(desk.work.keeps, 0);
    for (int i = 1; i <= 5; ++i) {
        desk.drawLine(100, 200, 300 + static_cast<float>(i), 411); // few
        desk.shell.rest();
        desk.move(4000, 2000);
        desk.press("Command42"_c);
        desk.shell.rest();
        EXPECT_EQ(desk.work.keeps, i);
    }
}

TEST(UnsavedWork, GoesWithWhatCoversIt)
{
    const ChangeRow covers[] = {
        {"a save", [](Desk& d) { d.saveAs("house"); }},
        {"a close that gives it up",
         [](Desk& d) {
             d.press("fil5"_c);
             d.press("frmfile.Command2"_c);
         }},
        {"an end that gives it up",
         [](Desk& d) {
             d.shell.closeForm("frmMain"_c);
             d.press("frmfile.Command2"_c);
         }},
        {"an end that saves it",
         [](Desk& d) {
             d.press("fil14"_c);
             d.name("house");
             d.enter();
         }},
    };
    for (const ChangeRow& cover : covers) {
        Desk desk;
        desk.drawLine(100, 200, 300, 411);
        desk.shell.rest();
        ASSERT_TRUE(desk.work.kept) << cover.what;
        cover.act(desk);
        EXPECT_FALSE(desk.work.kept) << cover.what;
    }
}

TEST(UnsavedWork, StaysWhereNothingCoversIt)
{
    const ChangeRow others[] = {
        {"a save that fails",
         [](Desk& d) {
             d.disk.refusesWrites = true;
             d.saveAs("house");
         }},
        {"a part that is saved",
         [](Desk& d) {
             d.s.store.setStat(1, Stat::sel);
             d.press("fil9"_c);
             d.enter();
         }},
        {"an export",
         [](Desk& d) {
             d.s.store.setStat(1, Stat::sel);
             d.press("dd4"_c);
             d.enter();
         }},
        {"a close that was thought better of",
         [](Desk& d) {
             d.press("fil5"_c);
             d.shell.closeForm("frmfile"_c);
         }},
    };
    for (const ChangeRow& other : others) {
        Desk desk;
        desk.drawLine(100, 200, 300, 411);
        desk.shell.rest();
        other.act(desk);
        EXPECT_TRUE(desk.work.kept) << other.what;
    }
}

TEST(UnsavedWork, ThatCannotBeKeptIsToldAndTriedAgain)
{
    Desk desk;
    desk.work.refuses = true;
    desk.drawLine(100, 200, 300, 411);
    desk.shell.rest();
    const char* const said =
        "What you draw is not kept for the case that the machine goes down: the disk takes "
        "nothing. Save often.";
    expectNotice(desk, said);
    desk.move(400, 500);
    desk.shell.rest();
    expectNotice(desk, said);
    EXPECT_EQ(desk.work.keeps, 2);
    desk.work.refuses = false;
    desk.shell.rest();
    desk.drawLine(1, 2, 3, 4);
    desk.shell.rest();
    expectNotice(desk, "");
    ASSERT_TRUE(desk.work.kept);
    EXPECT_EQ(readKeptWork(*desk.work.kept)->drawing, drawingBytes(desk.s, SaveWhat::drawing));
}

// Nothing else may come for hours: who drew the last line has gone to lunch.
TEST(UnsavedWork, IsSeenToUntilItIsKept)
{
    Desk desk;
    EXPECT_FALSE(desk.shell.rest());
    desk.work.isSlow = true;
    desk.work.refuses = true;
    desk.drawLine(100, 200, 300, 411);
    EXPECT_TRUE(desk.shell.rest()) << "it is on its way";
    expectNotice(desk, "");
    desk.work.flush();
    EXPECT_TRUE(desk.shell.rest()) << "it is tried again";
    EXPECT_TRUE(desk.visible("notice"_c));
    desk.work.refuses = false;
    desk.work.flush();
    EXPECT_FALSE(desk.shell.rest());
    expectNotice(desk, "");
    EXPECT_FALSE(desk.shell.rest());
    ASSERT_TRUE(desk.work.kept);
    EXPECT_EQ(readKeptWork(*desk.work.kept)->drawing, drawingBytes(desk.s, SaveWhat::drawing));
    EXPECT_EQ(desk.work.keeps, 2);
}

TEST(UnsavedWork, IsSeenToOnlyWhereThatIsNotSure)
{
    for (const bool isSlow : {false, true}) {
        for (const ChangeRow& change : changes) {
            Desk desk;
            desk.work.isSlow = isSlow;
            desk.drawLine(100, 200, 300, 411);
            desk.saveAs("house");
            change.act(desk);
            EXPECT_EQ(desk.shell.rest(), isSlow) << change.what;
            desk.work.flush();
            EXPECT_FALSE(desk.shell.rest()) << change.what;
        }
        Desk ended;
        ended.work.refuses = true;
        ended.drawLine(100, 200, 300, 411);
        EXPECT_TRUE(ended.shell.rest());
        ended.press("fil14"_c);
        ended.press("frmfile.Command2"_c);
        EXPECT_FALSE(ended.shell.rest());
    }
}

// -- bringing back --

TEST(LeftWork, IsOfferedAndBroughtBackUnderItsOwnName)
{
    Desk desk({}, fake::MemoryWork({{"a", workOf(7)}}));
    expectNotice(desk, "house.mtd, 14:32: work that was not saved is here.", "Restore", "Throw away");
    EXPECT_EQ(desk.focused(), "pic1");
    desk.press("notice.Command1"_c);
    expectNotice(desk, "");
    EXPECT_EQ(linesOf(desk).size(), 7U);
    EXPECT_EQ(desk.title(), fake::titleOf("Line(Enter beginning point of line:)", "house.mtd"));
    EXPECT_TRUE(desk.work.leftBehind.empty());
    EXPECT_TRUE(desk.work.kept) << "until it is saved it can be lost again";
    desk.press("fil14"_c);
    EXPECT_EQ(desk.caption("frmfile"_c), "Save Changes");
    EXPECT_EQ(desk.text("frmfile.Text1"_c), "house.mtd");
    EXPECT_EQ(desk.text("frmfile.Dir1"_c), "/home/user");
}

TEST(LeftWork, IsStillUnsavedWhereNothingIsLeftOfIt)
{
    Desk desk({}, fake::MemoryWork({{"a", workOf(0)}}));
    desk.press("notice.Command1"_c);
    desk.press("fil5"_c);
    EXPECT_EQ(desk.caption("frmfile"_c), "Save Changes");
}

TEST(LeftWork, IsThrownAwayOnlyWhenAsked)
{
    Desk desk({}, fake::MemoryWork({{"a", workOf(3)}}));
    desk.drawLine(1, 2, 400, 777);
    desk.saveAs("barn");
    desk.press("fil5"_c);
    EXPECT_EQ(desk.work.leftBehind.size(), 1U);
    expectNotice(desk, "house.mtd, 14:32: work that was not saved is here.", "Restore", "Throw away");
    desk.press("notice.Command2"_c);
    EXPECT_TRUE(desk.work.leftBehind.empty());
    expectNotice(desk, "");
}

TEST(LeftWork, OfSeveralRunsIsOfferedOneAfterAnother)
{
    Desk desk({}, fake::MemoryWork({{"1", workOf(1, {"shed.mtd", "", "2026-11-20 09:05"})},
                                    {"2", workOf(2)},
                                    {"3", {1, 2, 3}},
                                    {"4", workOf(4, {"barn.mtd", "/home/barn.mtd", "2026-11-22 07:00"})}}));
    expectNotice(desk, "barn.mtd, 07:00: work that was not saved is here.", "Restore", "Throw away");
    desk.press("notice.Command2"_c);
    expectNotice(desk, "house.mtd, 14:32: work that was not saved is here.", "Restore", "Throw away");
    desk.press("notice.Command1"_c);
    EXPECT_EQ(linesOf(desk).size(), 2U);
    expectNotice(desk, "shed.mtd, 2026-11-20 09:05: work that was not saved is here.", "Restore",
                 "Throw away");
    EXPECT_TRUE(desk.work.leftBehind.contains("3")) << "what can't be read is not thrown away";
}

TEST(LeftWork, ComesAfterTheWorkUnderWayHasBeenSavedOrGivenUp)
{
    Desk desk({}, fake::MemoryWork({{"a", workOf(5)}}));
    desk.drawLine(1, 2, 400, 777);
    desk.press("notice.Command1"_c);
    EXPECT_EQ(desk.caption("frmfile"_c), "Save Changes");
    EXPECT_EQ(linesOf(desk).size(), 1U);
    desk.name("shed");
    desk.enter();
    EXPECT_TRUE(desk.disk.files.contains("/home/user/shed.mtd"));
    EXPECT_FALSE(desk.visible("frmfile"_c));
    EXPECT_EQ(linesOf(desk).size(), 5U);
    EXPECT_EQ(desk.s.drawingName, "house.mtd");
}

TEST(LeftWork, StaysOnOfferWhereTheQuestionIsNotAnswered)
{
    Desk desk({}, fake::MemoryWork({{"a", workOf(5)}}));
    desk.drawLine(1, 2, 400, 777);
    desk.press("notice.Command1"_c);
    desk.shell.closeForm("frmfile"_c);
    EXPECT_EQ(linesOf(desk).size(), 1U);
    expectNotice(desk, "house.mtd, 14:32: work that was not saved is here.", "Restore", "Throw away");
}

TEST(LeftWork, ThatAnotherRunTookIsNotTakenTwice)
{
    Desk desk({}, fake::MemoryWork({{"a", workOf(5)}}));
    desk.work.leftBehind.clear();
    desk.press("notice.Command1"_c);
    expectNotice(desk, "");
    EXPECT_TRUE(linesOf(desk).empty());
    EXPECT_FALSE(desk.work.kept);
}

TEST(LeftWork, IsBroughtBackAlsoWhereItCannotBeTakenOver)
{
    Desk desk({}, fake::MemoryWork({{"a", workOf(5)}}));
    desk.work.refusesAdoption = true;
    desk.press("notice.Command1"_c);
    EXPECT_EQ(linesOf(desk).size(), 5U);
    EXPECT_TRUE(desk.work.leftBehind.contains("a"));
}

// The work under way is not given up for what is no longer there.
TEST(LeftWork, ThatWasTakenByAnotherRunCostsNothing)
{
    Desk desk({}, fake::MemoryWork({{"a", workOf(5)}}));
    desk.drawLine(1, 2, 400, 777);
    desk.work.leftBehind.clear();
    desk.press("notice.Command1"_c);
    EXPECT_FALSE(desk.visible("frmfile"_c));
    EXPECT_EQ(linesOf(desk).size(), 1U);
    expectNotice(desk, "");
}

TEST(LeftWork, TakesAPressOnlyForWhatWasSaid)
{
    Desk desk({}, fake::MemoryWork({{"1", workOf(1)}, {"2", workOf(2)}}));
    desk.shell.giveFocus(ids::noticeSecond);
    desk.enter();
    EXPECT_EQ(desk.work.leftBehind.size(), 1U);
    EXPECT_EQ(desk.focused(), "pic1");
    desk.enter();
    EXPECT_EQ(desk.work.leftBehind.size(), 1U);
}

TEST(LeftWork, CanBeReachedThoughNothingCanBeKept)
{
    Desk desk({}, fake::MemoryWork({{"a", workOf(5)}}));
    desk.work.refuses = true;
    desk.drawLine(1, 2, 400, 777);
    desk.shell.rest();
    expectNotice(desk, "house.mtd, 14:32: work that was not saved is here.", "Restore", "Throw away");
}

TEST(LeftWork, CountsWhatWasNotSavedBefore)
{
    KeptAbout about = house;
    about.changes = 20;
    about.since = "2026-11-22 13:01";
    about.folder = "/home/user/plans";
    Desk desk({}, fake::MemoryWork({{"a", workOf(20, about)}}));
    desk.folders.folders.insert("/home/user/plans");
    desk.press("notice.Command1"_c);
    desk.drawLine(1, 2, 400, 777);
    desk.press("fil14"_c);
    EXPECT_EQ(desk.caption("frmfile.Label4"_c), "house.mtd: 21 changes since 13:01. \"End\" gives them up.");
    EXPECT_EQ(desk.text("frmfile.Dir1"_c), "/home/user/plans");
}

// A save that is cut short may leave neither the old file nor the new one whole.
TEST(UnsavedWork, IsKeptBeforeItsFileIsWritten)
{
    Desk desk;
    desk.drawLine(100, 200, 300, 411);
    desk.disk.refusesWrites = true;
    desk.saveAs("house");
    ASSERT_TRUE(desk.work.kept);
    EXPECT_EQ(readKeptWork(*desk.work.kept)->drawing, drawingBytes(desk.s, SaveWhat::drawing));
}

// What a function has under way when the work is brought back is ended with the drawing that it was in.
TEST(LeftWork, EndsWhatIsBegun)
{
    Desk desk({}, fake::MemoryWork({{"a", workOf(2)}}));
    desk.press("Command2"_c);
    desk.click(900, 800);
    desk.press("notice.Command1"_c);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(linesOf(desk).size(), 2U);
}

// -- what the dialog says is at stake --

TEST(SaveChanges, SaysWhatIsAtStake)
{
    struct Row {
        int lines;
        ControlId asked;
        const char* said;
    };
    const Row rows[] = {
        {1, ids::exitProgram, "house.mtd: 1 change since 14:32. \"End\" gives it up."},
        {12, ids::exitProgram, "house.mtd: 12 changes since 14:32. \"End\" gives them up."},
        {3, ids::closeDrawing, "house.mtd: 3 changes since 14:32. \"Close\" gives them up."},
        {2, ids::openDxf, "house.mtd: 2 changes since 14:32. \"Close\" gives them up."},
    };
    for (const Row& row : rows) {
        Desk desk;
        desk.drawLine(100, 200, 300, 411);
        desk.saveAs("house");
        for (int i = 0; i < row.lines; ++i) desk.drawLine(10, 20, 700 + static_cast<float>(i), 911); // few
        desk.press(row.asked);
        EXPECT_EQ(desk.caption("frmfile.Label4"_c), row.said);
        desk.shell.closeForm("frmfile"_c);
        desk.press("fil7"_c);
        EXPECT_EQ(desk.caption("frmfile.Label4"_c), "");
    }
}

TEST(SaveChanges, NamesTheDayWhereItWasAnother)
{
    Desk desk;
    desk.clock.time = "2026-11-23 08:10";
    desk.drawLine(100, 200, 300, 411);
    desk.press("fil5"_c);
    EXPECT_EQ(desk.caption("frmfile.Label4"_c),
              "untitled.mtd: 1 change since 2026-11-22 14:32. \"Close\" gives it up.");
}

} // namespace
} // namespace mirtane
