// What the file dialog shows is no longer so when it is used: folders and files that went away, or became
// something else. The dialog stays up, the drawing stays as it is, and nothing hangs.

#include "play_process.h"
#include "theatre.h"

#include <gtest/gtest.h>

#include <QFile>

#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace mirtane {
namespace {

enum class Becomes { nothing, file, danglingLink, ring, pipe, otherFolder };

constexpr Becomes allOf[] = {Becomes::nothing, Becomes::file, Becomes::danglingLink,
                             Becomes::ring,    Becomes::pipe, Becomes::otherFolder};

struct VanishingFolders : testing::Test {
    VanishingFolders()
    {
        EXPECT_EQ(theatre.playAll("press freecurs\nclick 1000 1000\nclick 1100 1200\ncancel 0 0\n"
                                  "press fil7\nput frmfile.Text1 house\nenter\n"),
                  "");
        make();
    }

    std::string at(const std::string& name) const { return theatre.home() + "/" + name; }

    // The folder "plans" with a drawing, and a folder within it.
    void make() const
    {
        EXPECT_TRUE(QDir(theatre.folder.path()).mkpath("plans/inner"));
        EXPECT_TRUE(QFile::copy(QString::fromStdString(at("house.mtd")),
                                QString::fromStdString(at("plans/house.mtd"))));
    }

    void clear() const
    {
        QDir(QString::fromStdString(at("plans"))).removeRecursively();
        unlink(at("plans").c_str());
    }

    void become(Becomes what) const
    {
        clear();
        const QString plans = theatre.folder.filePath("plans");
        if (what == Becomes::file) QFile(plans).open(QIODevice::WriteOnly);
        if (what == Becomes::danglingLink) QFile::link("nowhere", plans);
        if (what == Becomes::ring) QFile::link("plans", plans);
        if (what == Becomes::pipe) mkfifo(at("plans").c_str(), 0600);
        if (what == Becomes::otherFolder) QDir(theatre.folder.path()).mkpath("plans/other");
    }

    Session& session() { return *theatre.session; }
    const std::vector<std::string>& rows(ControlId list) { return session().controls[list].rows; }
    std::string playAll(const std::string& lines) { return theatre.playAll(lines); }

    fake::Theatre theatre;
};

TEST_F(VanishingFolders, OpenNothingAndTheDialogStays)
{
    for (const Becomes what : allOf) {
        SCOPED_TRACE(static_cast<int>(what));
        ASSERT_EQ(playAll("press fil4\npick frmfile.Dir1 =plans\npick frmfile.File1 =house.mtd\n"), "");
        become(what);
        ASSERT_EQ(
            playAll("press frmfile.Command1\nexpect get frmfile.visible == true\n"
                    "put frmfile.Text1 house\nenter\nexpect get frmfile.visible == true\n"
                    "expect get session.entCount == 2\nexpect get session.drawingName == \"house.mtd\"\n"
                    "expect slot 1 == {\"x1\":1000,\"stat\":\"on\"}\n"
                    // From where it is no more, the way up is open.
                    "pick frmfile.Dir1 =..\nexpect get frmfile.File1.rows == [\"house.mtd\"]\n"
                    "put frmfile.Text1 house\nenter\nexpect get frmfile.visible == false\n"),
            "");
        clear();
        make();
    }
}

TEST_F(VanishingFolders, SaveNothingAndTheWorkIsSavedElsewhere)
{
    for (const Becomes what : allOf) {
        if (what == Becomes::otherFolder) continue; // there a drawing can be saved
        SCOPED_TRACE(static_cast<int>(what));
        ASSERT_EQ(playAll("press fil7\npick frmfile.Dir1 =plans\npick frmfile.File1 =house.mtd\n"), "");
        become(what);
        ASSERT_EQ(playAll("press frmfile.Command1\nexpect get frmfile.visible == true\n"
                          "expect get entry.text == \"Drawing not saved!\"\n"
                          "put frmfile.Text1 new\nenter\nexpect get frmfile.visible == true\n"
                          "pick frmfile.Dir1 =..\nput frmfile.Text1 house\n"
                          "expect get frmfile.Command1.caption == \"Overwrite?\"\nenter\n"
                          "expect get frmfile.visible == false\n"),
                  "");
        clear();
        make();
    }
}

TEST_F(VanishingFolders, ThatAreChosenShowEmptyLists)
{
    for (const Becomes what : allOf) {
        SCOPED_TRACE(static_cast<int>(what));
        ASSERT_EQ(playAll("press fil4\n"), "");
        become(what);
        ASSERT_EQ(playAll("pick frmfile.Dir1 =plans\nexpect get frmfile.File1.rows == []\n"), "");
        const bool isThere = what == Becomes::otherFolder;
        EXPECT_EQ(rows("frmfile.Dir1"_c),
                  isThere ? (std::vector<std::string>{"..", "other"}) : (std::vector<std::string>{".."}));
        ASSERT_EQ(playAll("press frmfile.Command2\n"), "");
        clear();
        make();
    }
}

TEST_F(VanishingFolders, ThatWereLastGiveWayToTheProgramsOwn)
{
    for (const Becomes what : allOf) {
        SCOPED_TRACE(static_cast<int>(what));
        session().drawings.last = theatre.home();
        ASSERT_EQ(playAll("press fil4\npick frmfile.Dir1 =plans\npick frmfile.File1 =house.mtd\nenter\n"
                          "expect get frmfile.visible == false\n"),
                  "");
        become(what);
        ASSERT_EQ(playAll("press fil4\n"), "");
        const bool isThere = what == Becomes::otherFolder;
        EXPECT_EQ(session().controls["frmfile.Dir1"_c].text, isThere ? at("plans") : theatre.home());
        ASSERT_EQ(playAll("press frmfile.Command2\n"), "");
        clear();
        make();
    }
}

TEST_F(VanishingFolders, WithTheProgramsOwnAmongThemCrashNothing)
{
    QDir(theatre.folder.path()).removeRecursively();
    for (const char* const entry : {"fil4", "fil7", "dd2", "ass10", "ht8", "ml6"}) {
        ASSERT_EQ(playAll(std::string("press ") + entry +
                          "\nexpect get frmfile.File1.rows == []\nput frmfile.Text1 house\nenter\n"
                          "expect get frmfile.visible == true\npress frmfile.Command2\n"),
                  "")
            << entry;
    }
    ASSERT_EQ(playAll("close\nexpect alive == false\n"), "");
}

struct Pattern {
    const char* entry;
    const char* extension;
};

constexpr Pattern patterns[] = {
    {"fil4", ".mtd"}, {"dd2", ".dxf"}, {"ass10", ".mta"}, {"ht8", ".mth"}, {"ml6", ".mtm"}};

// Makes a file of that name that is none to be opened.
struct Trap {
    const char* what;
    bool isListed; // is a file until the dialog is up
    void (*set)(const std::string& path);
};

const dev_t zeros = makedev(1, 5);

const Trap traps[] = {
    {"a file that goes away", true, [](const std::string& path) { unlink(path.c_str()); }},
    {"a link to nothing", false,
     [](const std::string& path) { QFile::link("nowhere", QString::fromStdString(path)); }},
    {"a ring", false,
     [](const std::string& path) {
         QFile::link(QString::fromStdString(path), QString::fromStdString(path));
     }},
    {"a pipe that nobody writes to", false, [](const std::string& path) { mkfifo(path.c_str(), 0600); }},
    // A node of its own, where that is allowed: a program at fault would else harm the machine's.
    {"a device without an end", false,
     [](const std::string& path) { mknod(path.c_str(), S_IFCHR | 0600, zeros); }},
    {"a folder", false, [](const std::string& path) { mkdir(path.c_str(), 0700); }},
    {"five gigabytes of nothing", true,
     [](const std::string& path) {
         QFile file(QString::fromStdString(path));
         if (file.open(QIODevice::WriteOnly)) file.resize(5LL * 1024 * 1024 * 1024);
     }},
};

TEST_F(VanishingFolders, AndFilesThatAreNoneOpenNothing)
{
    for (const Pattern& pattern : patterns) {
        for (const Trap& trap : traps) {
            SCOPED_TRACE(std::string(pattern.entry) + ": " + trap.what);
            const std::string name = std::string("trap") + pattern.extension;
            const auto put = [](const std::string& path) {
                EXPECT_TRUE(QFile(QString::fromStdString(path)).open(QIODevice::WriteOnly));
            };
            (trap.isListed ? put : trap.set)(at(name));
            ASSERT_EQ(playAll(std::string("press ") + pattern.entry + "\n"), "");
            if (trap.isListed) trap.set(at(name));
            EXPECT_EQ(playAll("put frmfile.Text1 trap\nenter\nexpect get frmfile.visible == true\n"
                              "expect get session.entCount == 2\n"
                              "expect get session.drawingName == \"house.mtd\"\npress frmfile.Command2\n"),
                      "");
            unlink(at(name).c_str());
            rmdir(at(name).c_str());
        }
    }
}

} // namespace
} // namespace mirtane
