// Kept work in the state folder: whose it is, and what becomes of it.

#include "platform/posix/keeper_thread.h"
#include "platform/posix/kept_files.h"

#include "platform/posix/disk.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <mutex>
#include <utility>

namespace mirtane {
namespace {

struct KeptFilesTest : testing::Test {
    StateFolder state() const { return StateFolder(folder.path().toStdString() + "/state"); }
    QStringList names() const
    {
        return QDir(folder.filePath("state")).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    // What another run leaves that keeps the bytes and dies.
    void dieWith(const Bytes& bytes)
    {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            KeptFiles kept(state(), disk);
            kept.keep(bytes);
            _exit(0); // nothing is put in order
        }
        ASSERT_EQ(waitpid(child, nullptr, 0), child);
    }

    QTemporaryDir folder;
    PosixDisk disk{state()};
};

TEST_F(KeptFilesTest, MakeAFolderForTheUserAloneOnceThereIsSomethingToKeep)
{
    KeptFiles kept(state(), disk);
    EXPECT_TRUE(kept.left().empty());
    kept.forget();
    EXPECT_FALSE(QDir(folder.filePath("state")).exists());
    kept.keep({1, 2, 3});
    EXPECT_FALSE(kept.fails());
    struct stat told = {};
    ASSERT_EQ(stat(state().path().c_str(), &told), 0);
    EXPECT_EQ(told.st_mode & 0777U, 0700U);
}

TEST_F(KeptFilesTest, OfALivingRunAreLeftAlone)
{
    KeptFiles one(state(), disk);
    KeptFiles other(state(), disk);
    one.keep({1});
    EXPECT_TRUE(other.left().empty());
    EXPECT_TRUE(one.left().empty());
    other.keep({2});
    other.forget();
    EXPECT_EQ(names().filter(".mtd").size(), 1);
}

TEST_F(KeptFilesTest, OfARunThatDiedAreLeftTheLatestLast)
{
    for (std::uint8_t i = 1; i <= 3; ++i) {
        dieWith({i});
        usleep(20'000); // so that the times differ
    }
    KeptFiles kept(state(), disk);
    const std::vector<std::string> left = kept.left();
    ASSERT_EQ(left.size(), 3U);
    for (std::uint8_t i = 1; i <= 3; ++i) EXPECT_EQ(kept.read(left[i - 1U]), Bytes{i});
}

TEST_F(KeptFilesTest, ThatWereTakenOverAreOfTheRunThatTookThem)
{
    dieWith({7, 7});
    KeptFiles one(state(), disk);
    KeptFiles other(state(), disk);
    const std::string name = one.left().at(0);
    ASSERT_EQ(other.left().size(), 1U);
    EXPECT_TRUE(one.adopt(name));
    EXPECT_FALSE(other.adopt(name));
    EXPECT_TRUE(other.left().empty());
    EXPECT_EQ(names().filter(".mtd").size(), 1);
    one.forget();
    EXPECT_TRUE(names().filter(".mtd").isEmpty());
}

TEST_F(KeptFilesTest, ThatAreRemovedAreGoneAndNothingElseIs)
{
    dieWith({1});
    dieWith({2});
    QFile(folder.filePath("state/notes.txt")).open(QIODevice::WriteOnly);
    KeptFiles kept(state(), disk);
    kept.remove(kept.left().at(0));
    EXPECT_EQ(kept.left().size(), 1U);
    EXPECT_TRUE(names().contains("notes.txt"));
}

TEST_F(KeptFilesTest, OfARunThatEndsInOrderAreAsItLeftThem)
{
    {
        KeptFiles kept(state(), disk);
        kept.keep({5});
    }
    EXPECT_EQ(KeptFiles(state(), disk).left().size(), 1U) << "it was not told that its work is saved";
    {
        KeptFiles kept(state(), disk);
        kept.keep({6});
        kept.forget();
    }
    EXPECT_EQ(KeptFiles(state(), disk).left().size(), 1U);
}

// What sweeps old files away takes the file by which a run is known to live, or all there is.
TEST_F(KeptFilesTest, AreKeptAnewWhereTheyWereSweptAway)
{
    KeptFiles kept(state(), disk);
    kept.keep({1});
    for (const QString& name : names()) {
        if (!name.endsWith(".mtd")) QFile::remove(folder.filePath("state/" + name));
    }
    kept.keep({2});
    EXPECT_TRUE(KeptFiles(state(), disk).left().empty()) << "it lives";
    EXPECT_EQ(names().filter(".mtd").size(), 1);
    QDir(folder.filePath("state")).removeRecursively();
    EXPECT_TRUE(kept.fails());
    kept.keep({3});
    EXPECT_FALSE(kept.fails());
    EXPECT_EQ(names().filter(".mtd").size(), 1);
    EXPECT_TRUE(KeptFiles(state(), disk).left().empty());
}

TEST_F(KeptFilesTest, ThatFindNoPlaceFail)
{
    QFile(folder.filePath("state")).open(QIODevice::WriteOnly); // a file where the folder should be
    KeptFiles kept(state(), disk);
    kept.keep({5});
    EXPECT_TRUE(kept.fails());
    kept.forget();
    EXPECT_FALSE(kept.fails());
}

TEST_F(KeptFilesTest, ThatAreLeftWaitForTheNextRunWhateverThisOneDoes)
{
    {
        KeptFiles one(state(), disk);
        one.leave(); // nothing yet
        one.keep({1});
        one.leave();
        EXPECT_EQ(KeptFiles(state(), disk).left().size(), 1U);
        one.forget();
        one.keep({2, 2});
        EXPECT_FALSE(one.fails());
        EXPECT_EQ(KeptFiles(state(), disk).left().size(), 1U) << "the second is that of a living run";
        one.leave();
        one.keep({3});
        one.forget();
    }
    KeptFiles next(state(), disk);
    const std::vector<std::string> left = next.left();
    ASSERT_EQ(left.size(), 2U);
    EXPECT_EQ(next.read(left[0]), (Bytes{1}));
    EXPECT_EQ(next.read(left[1]), (Bytes{2, 2}));
}

// A keeper that takes its time.
class SlowKeeper : public WorkKeeper {
  public:
    void keep(Bytes work) override
    {
        ++begun;
        const std::scoped_lock lock(standsStill);
        usleep(30'000);
        kept = std::move(work);
        ++keeps;
    }
    bool fails() const override { return false; }
    bool isUnderWay() const override { return false; }
    void flush() override {}
    void forget() override { kept.reset(); }
    void leave() override { leftThere = std::exchange(kept, {}); }
    std::vector<std::string> left() override
    {
        return kept ? std::vector<std::string>{"own"} : std::vector<std::string>{};
    }
    std::optional<Bytes> read(const std::string&) override { return kept; }
    bool adopt(const std::string&) override { return kept.has_value(); }
    void remove(const std::string&) override {}

    std::optional<Bytes> kept;
    std::optional<Bytes> leftThere;
    int keeps = 0;
    std::atomic<int> begun = 0;
    std::mutex standsStill; // while it is held nothing gets on
};

TEST(KeeperThreadTest, WritesTheLastOfMany)
{
    SlowKeeper slow;
    KeeperThread thread(slow);
    for (std::uint8_t i = 0; i < 200; ++i) thread.keep({i});
    thread.flush();
    EXPECT_EQ(slow.kept, (Bytes{199}));
    EXPECT_LT(slow.keeps, 10);
}

TEST(KeeperThreadTest, ForgetsWhatIsOnItsWay)
{
    SlowKeeper slow;
    KeeperThread thread(slow);
    thread.keep({1});
    usleep(5'000);
    thread.keep({2});
    thread.forget();
    EXPECT_TRUE(thread.left().empty());
    thread.keep({3});
    EXPECT_EQ(thread.read("own"), (Bytes{3}));
}

TEST(KeeperThreadTest, LeavesWhatIsStillOnItsWay)
{
    SlowKeeper slow;
    KeeperThread thread(slow);
    thread.keep({1});
    usleep(5'000);
    thread.keep({2});
    thread.leave();
    thread.forget();
    thread.flush();
    EXPECT_EQ(slow.leftThere, (Bytes{2}));
}

TEST(KeeperThreadTest, TellsWhatIsStillOnItsWay)
{
    SlowKeeper slow;
    KeeperThread thread(slow);
    EXPECT_FALSE(thread.isUnderWay());
    for (std::uint8_t i = 1; i <= 3; ++i) {
        {
            const std::scoped_lock lock(slow.standsStill);
            thread.keep({i});
            EXPECT_TRUE(thread.isUnderWay());
            while (slow.begun < i) usleep(1'000);
            EXPECT_TRUE(thread.isUnderWay()) << "it is being written";
        }
        thread.flush();
        EXPECT_FALSE(thread.isUnderWay());
    }
}

TEST(KeeperThreadTest, EndsWhenAllIsWritten)
{
    SlowKeeper slow;
    {
        KeeperThread thread(slow);
        thread.keep({4});
    }
    EXPECT_EQ(slow.kept, (Bytes{4}));
}

} // namespace
} // namespace mirtane
