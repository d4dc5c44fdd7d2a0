// A program that is killed while it saves, at any moment of it, leaves one of the two drawings that it was
// saving in turn, and the next program saves as if nothing had been. Seeded, so that it can be run again.

#include "files/drawing_file.h"
#include "model/insertion.h"
#include "platform/posix/disk.h"
#include "play_process.h"
#include "theatre.h"

#include <gtest/gtest.h>

#include <QDir>

#include <chrono>
#include <fstream>
#include <iostream>
#include <random>

#include <csignal>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace mirtane {
namespace {

using Clock = std::chrono::steady_clock;
using fake::contentOf;
using std::chrono::microseconds;

constexpr unsigned saveSeed = 20040;
constexpr std::chrono::seconds timeForEach{5};

Bytes drawingOf(int lines)
{
    const auto s = std::make_unique<Session>();
    for (int i = 0; i < lines; ++i) {
        const auto x = static_cast<float>(i); // a few thousand
        s->ptA = {x, 0};
        s->ptB = {x, 100};
        addLine(*s);
        ++s->store.entCount;
    }
    return drawingBytes(*s, SaveWhat::drawing);
}

std::string textOf(const Bytes& bytes)
{
    return {bytes.begin(), bytes.end()};
}

struct KilledSaves : testing::Test {
    std::string at(const std::string& name) const { return folder.path().toStdString() + "/" + name; }

    // Kills it after a while of at most so long, and sees that it was not at its end before.
    void killLater(pid_t child, microseconds longest)
    {
        std::uniform_int_distribution<long> some(0, longest.count());
        usleep(static_cast<useconds_t>(some(random))); // not negative
        ASSERT_EQ(kill(child, SIGKILL), 0);
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "it ended by itself: " << status;
    }

    // Which of the two is there now.
    void look()
    {
        ++kills;
        const std::string now = contentOf(at("house.mtd"));
        const bool isFew = now == textOf(few);
        ASSERT_TRUE(isFew || now == textOf(many))
            << "half a drawing, " << now.size() << " bytes, kill " << kills;
        ++(isFew ? foundFew : foundMany);
    }

    // What the dialog shows, and whether there can be saved again.
    void expectAWorkingFolder(const QStringList& ours)
    {
        QStringList left = QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
        for (const QString& name : ours) left.removeAll(name);
        std::cout << kills << " kills: " << foundFew << " and " << foundMany
                  << " times the one and the other; " << left.size() << " files left over\n";
        std::vector<std::string> shown;
        for (const QString& name : ours) {
            if (name.endsWith(".mtd")) shown.push_back(name.toStdString());
        }
        EXPECT_EQ(QtFolders().files(folder.path().toStdString(), ".mtd"), shown);
        EXPECT_TRUE(PosixDisk().writeWhole(at("house.mtd"), few));
        EXPECT_EQ(contentOf(at("house.mtd")), textOf(few));
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), ours)
            << "the next save removes what the killed ones left";
    }

    QTemporaryDir folder;
    Bytes few = drawingOf(2);
    Bytes many = drawingOf(3000);
    std::mt19937 random{saveSeed};
    int kills = 0;
    int foundFew = 0;
    int foundMany = 0;
};

// The disk alone, so that the kills are many and nearly all fall within a save.
TEST_F(KilledSaves, LeaveOneOfTheTwoWhole)
{
    ASSERT_TRUE(PosixDisk().writeWhole(at("house.mtd"), few));
    for (const auto end = Clock::now() + timeForEach; Clock::now() < end;) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (;;) {
                PosixDisk().writeWhole(at("house.mtd"), many);
                PosixDisk().writeWhole(at("house.mtd"), few);
            }
        }
        killLater(child, microseconds(20'000));
        look();
        if (HasFatalFailure()) return;
    }
    EXPECT_GT(kills, 20);
    EXPECT_GT(foundFew, 0);
    EXPECT_GT(foundMany, 0);
    expectAWorkingFolder({"house.mtd"});
}

// As the program saves it that has opened it: with its own attributes.
Bytes savedAgain(const Bytes& drawing)
{
    fake::Theatre theatre;
    EXPECT_TRUE(theatre.disk.writeWhole(theatre.home() + "/one.mtd", drawing));
    EXPECT_EQ(theatre.playAll("press fil4\nput frmfile.Text1 one\nenter\n"
                              "press fil7\nput frmfile.Text1 other\nenter\n"),
              "");
    return theatre.disk.read(theatre.home() + "/other.mtd").value_or(Bytes());
}

// The whole program: opens the one and saves it as the house, opens the other and saves that, and so on.
std::string savesInTurn()
{
    std::string lines = "alive\n";
    constexpr int turns = 1000;
    for (int i = 0; i < turns; ++i) {
        lines += "press fil4\nput frmfile.Text1 ";
        lines += i % 2 == 0 ? "few" : "many";
        lines += "\nenter\npress fil7\nput frmfile.Text1 house\nenter\nexpect get frmfile.visible == false\n";
    }
    return lines;
}

// Starts the program and waits for its first answer.
pid_t startPlay(const std::string& home, const std::string& script)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) return -1;
    const pid_t child = fork();
    if (child == 0) {
        dup2(ends[1], STDOUT_FILENO);
        execl(MIRTANE_PLAY, MIRTANE_PLAY, "--home", home.c_str(), script.c_str(), nullptr);
        _exit(127);
    }
    close(ends[1]);
    char answer = 0;
    const bool answered = child > 0 && read(ends[0], &answer, 1) == 1 && answer == 't';
    close(ends[0]);
    return answered ? child : -1;
}

TEST_F(KilledSaves, OfTheWholeProgramLeaveOneOfTheTwoWhole)
{
    few = savedAgain(few);
    many = savedAgain(many);
    for (const auto& [name, bytes] : {std::pair("few.mtd", &few), std::pair("many.mtd", &many)}) {
        ASSERT_TRUE(PosixDisk().writeWhole(at(name), *bytes));
    }
    const QTemporaryDir beside;
    const std::string script = beside.filePath("saves.play").toStdString();
    std::ofstream(script) << savesInTurn();
    ASSERT_TRUE(PosixDisk().writeWhole(at("house.mtd"), few));
    for (const auto end = Clock::now() + timeForEach; Clock::now() < end;) {
        const pid_t child = startPlay(folder.path().toStdString(), script);
        ASSERT_GT(child, 0);
        killLater(child, microseconds(300'000));
        look();
        if (HasFatalFailure()) return;
    }
    EXPECT_GT(kills, 2);
    expectAWorkingFolder({"few.mtd", "house.mtd", "many.mtd"});
}

} // namespace
} // namespace mirtane
