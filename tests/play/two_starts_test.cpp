// Two starts on one home folder: the second stands where the first ended. Each is a process of its own.

#include "files/drawing_file.h"
#include "play_process.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace mirtane {
namespace {

using fake::PlayProcess;

// A drawing whose attributes are none of the defaults.
std::string drawingOfOtherAttributes()
{
    const auto s = std::make_unique<Session>();
    s->textFont = "Courier New";
    s->textSize = 36.5F;
    s->arrowSize = 24.25F;
    s->dimStyle = 3;
    s->textJust = 2;
    s->dimTol = 0.0625F;
    s->numComma = 1;
    s->angFormat = 1;
    s->numStyle = "br";
    const Bytes bytes = drawingBytes(*s, SaveWhat::drawing);
    return {bytes.begin(), bytes.end()};
}

constexpr const char* attributesAsked = "expect get session.textFont == \"Courier New\"\n"
                                        "expect get session.textSize == 36.5\n"
                                        "expect get session.arrowSize == 24.25\n"
                                        "expect get session.dimStyle == 3\n"
                                        "expect get session.textJust == 2\n"
                                        "expect get session.dimTol == 0.0625\n"
                                        "expect get session.numComma == 1\n"
                                        "expect get session.angFormat == 1\n"
                                        "expect get session.numStyle == \"br\"\n"
                                        "expect get dim3.checked == true\n"
                                        "expect get tk8.checked == true\n"
                                        "expect get dtol4.checked == true\n"
                                        "expect get num5.checked == true\n"
                                        "expect get ang2.checked == true\n"
                                        "expect get dim5.checked == false\n";

struct PatternRow {
    const char* entry;
    const char* workingKey;
};

constexpr PatternRow patterns[] = {
    {"fil4", "wkd"}, {"dd2", "wkdxfd"}, {"ass10", "wkmtad"}, {"ht8", "wkmthd"}, {"ml6", "wkmtmd"}};

std::string lastOf(const PatternRow& row)
{
    return std::string("last ") + row.entry;
}

std::string workingOf(const PatternRow& row)
{
    return std::string("working ") + row.entry;
}

// Confirms the dialog of each pattern in a folder of its own, the drawing's last.
std::string confirmsEverywhere()
{
    std::string lines;
    for (const PatternRow& row : patterns) {
        lines += "press " + std::string(row.entry) + "\npick frmfile.Dir1 =..\npick frmfile.Dir1 =home\n" +
                 "pick frmfile.Dir1 =" + lastOf(row) + "\nput frmfile.Text1 nowhere\nenter\n" +
                 "press frmfile.Command2\n";
    }
    return lines + "press fil4\nput frmfile.Text1 other\nenter\nexpect get frmfile.visible == false\n";
}

std::string asksForFolders(const PlayProcess& process, std::string (*named)(const PatternRow&))
{
    std::string lines;
    for (const PatternRow& row : patterns) {
        lines += "press " + std::string(row.entry) + "\nexpect get frmfile.Dir1.text == \"" +
                 process.home(named(row)) + "\"\npress frmfile.Command2\n";
    }
    return lines;
}

TEST(TwoStarts, HandAllNineteenSettingsOver)
{
    const PlayProcess process;
    std::string stored = "[Mirtane]\n";
    for (const PatternRow& row : patterns) {
        process.makeFolder("home/" + lastOf(row));
        process.makeFolder("home/" + workingOf(row));
        stored += std::string(row.workingKey) + "=" + process.home(workingOf(row)) + "\n";
    }
    process.write("home/settings.ini", stored);
    process.write("home/last fil4/other.mtd", drawingOfOtherAttributes());

    const fake::Outcome first = process.run(confirmsEverywhere() + attributesAsked + "close\nalive\n");
    ASSERT_EQ(first.status, 0) << first.err;
    EXPECT_EQ(first.out, "false\n");
    const std::string written = fake::contentOf(process.home("settings.ini"));

    const fake::Outcome second =
        process.run(attributesAsked + asksForFolders(process, lastOf) + "press fil14\nalive\n");
    EXPECT_EQ(second.status, 0) << second.err;
    EXPECT_EQ(second.out, "false\n");
    EXPECT_EQ(fake::contentOf(process.home("settings.ini")), written);

    for (const PatternRow& row : patterns) process.removeFolder("home/" + lastOf(row));
    const fake::Outcome third = process.run(attributesAsked + asksForFolders(process, workingOf));
    EXPECT_EQ(third.status, 0) << third.err;
}

TEST(TwoStarts, KeepNothingElse)
{
    const PlayProcess process;
    const fake::Outcome first =
        process.run("resize 300 200\npress lw6\npress ls5\npress freecurs\nput angle 30\nenter\n"
                    "put snapper 60\nenter\nclose\n");
    ASSERT_EQ(first.status, 0) << first.err;
    const fake::Outcome second =
        process.run("expect get session.curColor == 16777215\nexpect get session.curStyle == 0\n"
                    "expect get session.orthoCaption == \"Ortho/On\"\nexpect get session.orthoAngle == 0\n"
                    "expect get session.snapPercentage == 0.25\nexpect get session.viewRight == 4800\n");
    EXPECT_EQ(second.status, 0) << second.err;
    const std::string written = fake::contentOf(process.home("settings.ini"));
    EXPECT_EQ(std::ranges::count(written, '='), 19) << written;
}

TEST(TwoStarts, KeepNothingOfARunThatDidNotEnd)
{
    const PlayProcess process;
    process.write("home/other.mtd", drawingOfOtherAttributes());
    const fake::Outcome first =
        process.run("press fil4\nput frmfile.Text1 other\nenter\n" + std::string(attributesAsked));
    ASSERT_EQ(first.status, 0) << first.err;
    const fake::Outcome second = process.run("expect get session.textSize == 48\n");
    EXPECT_EQ(second.status, 0) << second.err;
}

TEST(TwoStarts, KeepFoldersWithNamesOfAllSorts)
{
    for (const std::string name :
         {"A, B; C", "\xC3\xA9t\xC3\xA9 \xE5\xAE\xB6", "100% = x", "@Variant", "o'brien", " b "}) {
        const PlayProcess process;
        process.makeFolder("home/" + name);
        const fake::Outcome first = process.run("press fil7\npick frmfile.Dir1 =" + name +
                                                "\nput frmfile.Text1 house\nenter\nclose\n");
        ASSERT_EQ(first.status, 0) << name << ": " << first.err;
        EXPECT_NE(fake::contentOf(process.home(name + "/house.mtd")), "") << name;
        const fake::Outcome second =
            process.run("press fil4\nexpect get frmfile.Dir1.text == \"" + process.home(name) +
                        "\"\nexpect get frmfile.File1.rows == [\"house.mtd\"]\n");
        EXPECT_EQ(second.status, 0) << name << ": " << second.err;
    }
}

// Nobody is asked about an undo after a save, and nothing of it is lost.
TEST(TwoStarts, OfferWhatTheFirstEndedWithUnasked)
{
    const std::string house = "press Command1\nclick 100 120\nclick 433 711\ncancel 0 0\n"
                              "click 100 300\nclick 4000 -295\ncancel 0 0\n";
    const std::string save = "press fil7\nput frmfile.Text1 house\nenter\n";
    const struct {
        const char* what;
        std::string lines;
        int objects; // that come back
    } rows[] = {
        {"an undo", house + save + "press undu\n", 1},
        {"a redo", house + "press undu\n" + save + "press redu\n", 2},
        {"an undo beneath a close", house + save + "press undu\npress undu\nidle\npress fil5\n", 0},
    };
    for (const auto& row : rows) {
        const PlayProcess process;
        const fake::Outcome first = process.run(row.lines + "press fil14\nalive\n");
        ASSERT_EQ(first.status, 0) << row.what << ": " << first.err;
        EXPECT_EQ(first.out, "false\n") << row.what;
        const fake::Outcome second =
            process.run("expect get notice.Command1.caption == \"Restore\"\npress notice.Command1\n"
                        "expect get session.drawingName == \"house.mtd\"\n"
                        "expect get notice.caption == \"\"\npress Command17\nget session.entCount\n");
        EXPECT_EQ(second.status, 0) << row.what << ": " << second.err;
        EXPECT_EQ(second.out, std::to_string(row.objects + 1) + "\n") << row.what;
    }
}

TEST(TwoStarts, OfferNothingOfWhatIsAsItWasSavedOrWasGivenUp)
{
    const std::string house = "press Command1\nclick 100 120\nclick 433 711\ncancel 0 0\n";
    const std::string save = "press fil7\nput frmfile.Text1 house\nenter\n";
    for (const std::string& lines :
         {house + save + "press fil14\n", house + save + "press undu\nidle\npress redu\nidle\npress fil14\n",
          house + "idle\npress fil14\npress frmfile.Command2\n"}) {
        const PlayProcess process;
        const fake::Outcome first = process.run(lines + "alive\n");
        ASSERT_EQ(first.status, 0) << first.err;
        EXPECT_EQ(first.out, "false\n");
        const fake::Outcome second = process.run("expect get notice.caption == \"\"\n");
        EXPECT_EQ(second.status, 0) << second.err;
    }
}

constexpr const char* defaultsAsked =
    "expect get session.textFont == \"Garamond\"\nexpect get session.textSize == 48\n"
    "expect get session.arrowSize == 48\nexpect get session.dimStyle == 1\n"
    "expect get session.textJust == 0\nexpect get session.dimTol == 0.125\n"
    "expect get session.numComma == 0\nexpect get session.angFormat == 0\n"
    "expect get session.numStyle == \"us\"\n";

TEST(NonsenseStore, GivesTheDefaultsAndIsWrittenAnew)
{
    const std::string contents[] = {
        "",
        "not an ini file at all\n\n====\n[[[\n",
        std::string("\0\xFF\xFE\x80 binary \x01", 13),
        "[Mirtane]\ntsize=\nasize=large\ndstyle=@Invalid()\ntjust=@Variant(\\0\\0\\0\\x7f)\nntol=eighth\n"
        "ncom=yes\nacom=x\n",
        "[Other]\ntsize=5\n",
        "tsize=5\n",
        std::string(200000, '['),
    };
    for (const std::string& content : contents) {
        const PlayProcess process;
        process.write("home/settings.ini", content);
        const fake::Outcome run = process.run(std::string(defaultsAsked) + "close\nalive\n");
        EXPECT_EQ(run.status, 0) << run.err << content.substr(0, 60);
        EXPECT_EQ(run.out, "false\n");
    }
}

TEST(NonsenseStore, ThatIsAFolderGivesTheDefaults)
{
    const PlayProcess process;
    process.makeFolder("home/settings.ini");
    const fake::Outcome run = process.run(std::string(defaultsAsked) + "close\nalive\n");
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "false\n");
}

// A folder is a folder of the machine, whatever the one is that the program was started in.
TEST(NonsenseStore, OfFoldersThatAreNoneGivesTheProgramsOwn)
{
    for (const char* const folder : {".", "..", "sub", "/no/such/folder", "~", "$HOME", "settings.ini"}) {
        const PlayProcess process;
        process.makeFolder("sub");
        process.write("home/settings.ini",
                      std::string("[Mirtane]\nwkp=") + folder + "\nwkd=" + folder + "\n");
        const fake::Outcome run =
            process.run("press fil4\nexpect get frmfile.Dir1.text == \"" + process.home() + "\"\n");
        EXPECT_EQ(run.status, 0) << folder << ": " << run.err;
    }
}

} // namespace
} // namespace mirtane
