// What a new file can't be given, the old one keeps: it is written in place.

#include "failing_calls.h"
#include "platform/posix/disk.h"
#include "play_process.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace mirtane {
namespace {

using fake::contentOf;
using fake::FailingCalls;

class KeptAttributes : public testing::Test {
  protected:
    KeptAttributes()
    {
        std::ofstream(path()) << "old";
        EXPECT_EQ(chmod(path().c_str(), 0640), 0);
        isGiven_ = geteuid() == 0 && chown(path().c_str(), 1000, 1234) == 0;
        isMarked_ = lsetxattr(path().c_str(), "user.project", "7", 1, 0) == 0;
    }

    std::string path() const { return folder_.path().toStdString() + "/a.mtd"; }
    std::string state() const { return folder_.path().toStdString() + "/state"; }
    struct stat status() const
    {
        struct stat now = {};
        EXPECT_EQ(stat(path().c_str(), &now), 0);
        return now;
    }
    bool save(const fake::Failing& failing)
    {
        const FailingCalls calls(folder_.path().toStdString(), failing);
        const bool saved = PosixDisk(StateFolder(state())).writeWhole(path(), {'n', 'e', 'w'});
        calls_ = calls.calls();
        return saved;
    }
    // The number of the call of that name in a save; 0 where it makes none.
    int numberOf(const char* name)
    {
        save({});
        const auto found = std::ranges::find(calls_, name);
        return found == calls_.end() ? 0 : static_cast<int>(found - calls_.begin()) + 1; // a few
    }

    QTemporaryDir folder_;
    std::vector<std::string> calls_;
    bool isGiven_ = false;
    bool isMarked_ = false;
};

TEST_F(KeptAttributes, ThatCanNotBeGivenToANewFileStayOnTheOld)
{
    for (const char* name : {"fchown", "lsetxattr", "fchmod"}) {
        const int number = numberOf(name);
        if (number == 0 && !(isGiven_ && isMarked_)) continue; // not root, or a disk without attributes
        ASSERT_GT(number, 0) << name;
        std::ofstream(path()) << "old";
        const struct stat before = status();
        EXPECT_TRUE(save({number, EPERM})) << name;
        const struct stat now = status();
        EXPECT_EQ(contentOf(path()), "new") << name;
        EXPECT_EQ(now.st_ino, before.st_ino) << name << ": in place";
        EXPECT_EQ(now.st_uid, before.st_uid) << name;
        EXPECT_EQ(now.st_gid, before.st_gid) << name;
        EXPECT_EQ(now.st_mode, before.st_mode) << name;
        char value = 0;
        EXPECT_EQ(lgetxattr(path().c_str(), "user.project", &value, 1), isMarked_ ? 1 : -1) << name;
    }
}

TEST_F(KeptAttributes, AreSafeWhereTheStateFolderCanNotBeMade)
{
    ASSERT_EQ(link(path().c_str(), (path() + ".second").c_str()), 0);
    const auto made = [this](int number) { return save({number, ENOSPC}); };
    EXPECT_FALSE(made(2)) << "the folder, after the file is opened";
    EXPECT_EQ(calls_.at(1), "mkdir");
    EXPECT_EQ(contentOf(path()), "old");
    EXPECT_TRUE(made(0));
    EXPECT_EQ(contentOf(path() + ".second"), "new");
}

} // namespace
} // namespace mirtane
