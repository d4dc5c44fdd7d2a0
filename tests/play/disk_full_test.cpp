// Saves that the disk refuses lose nothing: neither the old file nor the work. The full and the read-only
// disk are small ones in memory that only the process itself sees, for which this test must be run by root.

#include "play_process.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::PlayProcess;

constexpr const char* ownMounts = "unshare --mount";

bool canMount()
{
    return std::system("unshare --mount sh -c 'mount -t tmpfs -o size=8k tmpfs /mnt' >/dev/null 2>&1") == 0;
}

// A folder "home/small" on a disk of its own that holds an old "house.mtd", and no room for anything else.
constexpr const char* fullDisk = "mkdir home/small && mount -t tmpfs -o size=8k tmpfs home/small && "
                                 "cp old home/small/house.mtd && "
                                 "{ dd if=/dev/zero of=home/small/filler bs=1k 2>/dev/null || true; }";
constexpr const char* readOnlyDisk = "mkdir home/small && mount -t tmpfs -o size=80k tmpfs home/small && "
                                     "cp old home/small/house.mtd && mount -o remount,ro home/small";
constexpr const char* lookAfterwards =
    "cp home/small/house.mtd after; ls -A home/small | grep -v filler >names";

constexpr const char* drawsTwoLines = "click 100 100\nclick 400 100\ncancel 0 0\n"
                                      "click 100 200\nclick 400 200\ncancel 0 0\n";

constexpr const char* nothingWasLost = "expect get entry.text == \"Drawing not saved!\"\n"
                                       "expect get frmfile.visible == true\n"
                                       "expect get session.entCount == 3\n"
                                       "expect get session.savedCount == 1\n"
                                       "expect get session.drawingName == \"untitled.mtd\"\n"
                                       "expect slot 2 == {\"y1\":200,\"y2\":200,\"stat\":\"on\"}\n"
                                       "expect alive == true\n";

// By name, as the names of tests are lists to some programs and the commands are not fit for one.
std::string commandsOf(const std::string& disk)
{
    return disk == "full" ? fullDisk : readOnlyDisk;
}

struct Refusing : testing::TestWithParam<const char*> {
    void SetUp() override
    {
        if (!canMount()) GTEST_SKIP() << "no disk can be mounted here";
        process.write("old", "what was there before");
    }

    fake::Outcome run(const std::string& lines)
    {
        return process.run(lines, commandsOf(GetParam()), lookAfterwards, ownMounts);
    }

    void expectOldFileAlone()
    {
        EXPECT_EQ(fake::contentOf(process.path("after")), "what was there before");
        EXPECT_EQ(fake::contentOf(process.path("names")), "house.mtd\n");
    }

    PlayProcess process;
};

TEST_P(Refusing, SaveOverAFileKeepsItAndTheWork)
{
    const fake::Outcome ran =
        run(std::string(drawsTwoLines) +
            "press fil7\npick frmfile.Dir1 =small\npick frmfile.File1 =house.mtd\n"
            "expect get frmfile.Command1.caption == \"Overwrite?\"\npress frmfile.Command1\n" +
            nothingWasLost +
            // The dialog is still up: the work goes to another folder.
            "pick frmfile.Dir1 =..\npress frmfile.Command1\nexpect get frmfile.visible == false\n"
            "expect get session.savedCount == 3\nexpect get session.drawingName == \"house.mtd\"\n");
    EXPECT_EQ(ran.status, 0) << ran.err;
    expectOldFileAlone();
    EXPECT_GT(fake::contentOf(process.home("house.mtd")).size(), 250U);
}

TEST_P(Refusing, SaveUnderANewNameLeavesNoFile)
{
    const fake::Outcome ran =
        run(std::string(drawsTwoLines) +
            "press fil7\npick frmfile.Dir1 =small\nput frmfile.Text1 other\nenter\n" + nothingWasLost);
    EXPECT_EQ(ran.status, 0) << ran.err;
    expectOldFileAlone();
}

TEST_P(Refusing, SaveBeforeTheEndKeepsTheProgramAndItsSettings)
{
    const fake::Outcome ran =
        run(std::string(drawsTwoLines) + "close\npick frmfile.Dir1 =small\nput frmfile.Text1 house\nenter\n" +
            nothingWasLost +
            "expect get session.saveFollowUp == 1\nexpect get frmfile.Command2.caption == \"End\"\n"
            "pick frmfile.Dir1 =..\npress frmfile.Command1\nalive\n");
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_EQ(ran.out, "false\n");
    expectOldFileAlone();
    EXPECT_GT(fake::contentOf(process.home("house.mtd")).size(), 250U);
}

TEST_P(Refusing, SaveBeforeACloseOrAnOpenKeepsTheDrawing)
{
    for (const auto& [entry, followUp] :
         {std::pair("fil5", "2"), std::pair("fil4", "3"), std::pair("dd2", "4")}) {
        process.removeFolder("home/small");
        const fake::Outcome ran = run(std::string(drawsTwoLines) + "press " + entry +
                                      "\npick frmfile.Dir1 =small\nput frmfile.Text1 house\nenter\n" +
                                      nothingWasLost + "expect get session.saveFollowUp == " + followUp +
                                      "\nexpect get frmfile.caption == \"Save Changes\"\n");
        EXPECT_EQ(ran.status, 0) << ran.err;
        expectOldFileAlone();
    }
}

TEST_P(Refusing, SaveOfASelectionKeepsTheSelection)
{
    const std::pair<const char*, const char*> rows[] = {{"fil9", "Drawing not saved!"},
                                                        {"dd4", "File not saved!"}};
    for (const auto& [entry, said] : rows) {
        process.removeFolder("home/small");
        const fake::Outcome ran = run(
            std::string(drawsTwoLines) + "press Command17\npress " + entry +
            "\npick frmfile.Dir1 =small\nput frmfile.Text1 house\nenter\nexpect get entry.text == \"" + said +
            "\"\nexpect get frmfile.visible == true\nexpect slot 2 == {\"stat\":\"sel\"}\n"
            "expect get session.savedCount == 1\n");
        EXPECT_EQ(ran.status, 0) << entry << ": " << ran.err;
        expectOldFileAlone();
    }
}

INSTANTIATE_TEST_SUITE_P(AFullDisk, Refusing, testing::Values("full"));
INSTANTIATE_TEST_SUITE_P(AReadOnlyDisk, Refusing, testing::Values("read-only"));

// -- a limit on the size of files, in blocks of 512 bytes --

std::string manyLines(int count)
{
    std::string lines;
    for (int i = 0; i < count; ++i) {
        const std::string y = std::to_string(93 + 17 * i);
        lines += "click 211.5 " + y + "\nclick 733 " + y + "\ncancel 0 0\n";
    }
    return lines;
}

struct BeyondRow {
    const char* limit;
    int lines;
    const char* act;
    const char* said;
};

constexpr const char* notKept =
    "expect get notice.caption == \"What you draw is not kept for the case that the "
    "machine goes down: the disk takes nothing. Save often.\"\n";

constexpr BeyondRow beyondRows[] = {
    {"0", 1, "idle", notKept},
    {"1", 6, "idle", notKept},
    {"9", 61, "idle", notKept},
    {"0", 2, "press fil7\nput frmfile.Text1 barn\nenter",
     "expect get entry.text == \"Drawing not saved!\"\nexpect get frmfile.visible == true\n"},
    {"3", 29, "press fil7\nput frmfile.Text1 barn\nenter",
     "expect get entry.text == \"Drawing not saved!\"\nexpect get frmfile.visible == true\n"},
    {"2", 17, "press Command19\nclick 20 30\nclick 999 1999\npress fil9\nput frmfile.Text1 part\nenter",
     "expect get entry.text == \"Drawing not saved!\"\nexpect get frmfile.visible == true\n"},
    {"4", 31, "press Command19\nclick 20 30\nclick 999 1999\npress dd4\nput frmfile.Text1 barn\nenter",
     "expect get entry.text == \"File not saved!\"\nexpect get frmfile.visible == true\n"},
};

TEST(RefusedSize, EndsNoProgramAndIsToldAsAFullDiskIs)
{
    for (const BeyondRow& row : beyondRows) {
        const PlayProcess process;
        const std::string count = std::to_string(row.lines + 1);
        const fake::Outcome ran =
            process.run(manyLines(row.lines) + row.act + "\n" + row.said +
                            "expect get session.entCount == " + count + "\nexpect alive == true\n",
                        "ulimit -f " + std::string(row.limit));
        EXPECT_EQ(ran.status, 0) << row.limit << ", " << row.act << ": " << ran.err;
    }
}

TEST(RefusedSize, OfTheSettingsLetsTheProgramEndAllTheSame)
{
    const PlayProcess process;
    const fake::Outcome ran = process.run("close\nexpect alive == false\n", "ulimit -f 0");
    EXPECT_EQ(ran.status, 0) << ran.err;
}

TEST(RefusedSize, OfTheAnswersIsComplainedOf)
{
    const PlayProcess process;
    EXPECT_EQ(process.run("get notice.caption\n", "ulimit -f 0").status, 2);
}

TEST(RefusedName, OfAFolderSavesNothing)
{
    const PlayProcess process;
    process.makeFolder("home/house.mtd/inside");
    const fake::Outcome ran =
        process.run(std::string(drawsTwoLines) +
                    "press fil7\nexpect get frmfile.File1.rows == []\n"
                    "put frmfile.Text1 house\nexpect get frmfile.Command1.caption == \"Save\"\nenter\n" +
                    nothingWasLost);
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_TRUE(QDir(QString::fromStdString(process.home("house.mtd/inside"))).exists());
}

TEST(RefusedName, OfThreeHundredCharactersLosesNothing)
{
    const PlayProcess process;
    const fake::Outcome ran = process.run(std::string(drawsTwoLines) + "press fil7\nput frmfile.Text1 " +
                                          std::string(300, 'n') + "\nenter\n" + nothingWasLost);
    EXPECT_EQ(ran.status, 0) << ran.err;
}

TEST(RefusedSettings, OnAReadOnlyHomeEndTheProgramAllTheSame)
{
    if (!canMount()) GTEST_SKIP() << "no disk can be mounted here";
    const PlayProcess process;
    const fake::Outcome ran =
        process.run("expect get session.textSize == 48\nclose\nalive\n",
                    "mount -t tmpfs -o size=80k tmpfs home && mount -o remount,ro home", "true", ownMounts);
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_EQ(ran.out, "false\n");
}

TEST(RefusedRead, OfAFileThatIsAFolderOpensNothing)
{
    const PlayProcess process;
    process.makeFolder("home/house.mtd");
    const fake::Outcome ran = process.run(
        std::string(drawsTwoLines) + "press fil4\npress frmfile.Command2\nput frmfile.Text1 house\nenter\n"
                                     "expect get frmfile.visible == true\n"
                                     "expect get session.drawingName == \"untitled.mtd\"\n");
    EXPECT_EQ(ran.status, 0) << ran.err;
}

} // namespace
} // namespace mirtane
