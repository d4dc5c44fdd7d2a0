#include "platform/posix/disk.h"
#include "platform/posix/state_folder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace mirtane {
namespace {

mode_t modeOf(const std::string& path)
{
    struct stat now = {};
    return stat(path.c_str(), &now) == 0 ? now.st_mode & 0777U : 0;
}

// The variables of this process, which are as before at the end.
class Environment {
  public:
    Environment(const char* states, const char* home)
    {
        set("XDG_STATE_HOME", states);
        set("HOME", home);
    }
    ~Environment()
    {
        qputenv("XDG_STATE_HOME", states_);
        qputenv("HOME", home_);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

  private:
    static void set(const char* name, const char* value)
    {
        if (value == nullptr)
            qunsetenv(name);
        else
            qputenv(name, value);
    }

    QByteArray states_ = qgetenv("XDG_STATE_HOME");
    QByteArray home_ = qgetenv("HOME");
};

TEST(StateFolder, OfTheUserIsWhereTheSystemHasIt)
{
    struct Row {
        const char* states;
        const char* home;
        const char* path;
    };
    const Row rows[] = {
        {"/var/states", "/home/ann", "/var/states/mirtane"},
        {nullptr, "/home/ann", "/home/ann/.local/state/mirtane"},
        {"", "/home/ann", "/home/ann/.local/state/mirtane"},
        {"states", "/home/ann", "/home/ann/.local/state/mirtane"},
        {"./states", "/home/\u00E4nn b", "/home/\u00E4nn b/.local/state/mirtane"},
    };
    for (const Row& row : rows) {
        const Environment environment(row.states, row.home);
        EXPECT_EQ(StateFolder::ofUser().path(), row.path) << (row.states != nullptr ? row.states : "none");
    }
    const Environment none(nullptr, nullptr);
    EXPECT_TRUE(StateFolder::ofUser().path().starts_with('/')) << "the system knows of a home as well";
}

TEST(StateFolder, IsMadeOnFirstNeedForTheUserAlone)
{
    const QTemporaryDir outer;
    const std::string path = outer.filePath("a/b/mirtane").toStdString();
    const StateFolder state(path);
    EXPECT_EQ(modeOf(path), 0U) << "it is not made by being named";
    EXPECT_TRUE(PosixDisk(state).writeWhole(outer.filePath("x.mtd").toStdString(), {1}));
    EXPECT_TRUE(PosixDisk(state).writeWhole(outer.filePath("x.mtd").toStdString(), {2}));
    EXPECT_EQ(modeOf(path), 0U) << "nor by saves that do not need it";
    const mode_t mask = umask(0);
    EXPECT_EQ(state.made(), path);
    umask(mask);
    for (const char* name : {"a", "a/b", "a/b/mirtane"}) {
        EXPECT_EQ(modeOf(outer.filePath(name).toStdString()), 0700U) << name;
    }
    EXPECT_EQ(state.made(), path);
}

TEST(StateFolder, ThatStandsIsTakenAsItIs)
{
    const QTemporaryDir outer;
    const std::string path = outer.filePath("state").toStdString();
    ASSERT_EQ(mkdir(path.c_str(), 0750), 0);
    ASSERT_TRUE(QFile::link("state", outer.filePath("link")));
    EXPECT_EQ(StateFolder(path).made(), path);
    EXPECT_EQ(StateFolder(path + "/").made(), path + "/");
    EXPECT_TRUE(StateFolder(outer.filePath("link").toStdString()).made().has_value());
    EXPECT_EQ(modeOf(path), 0750U);
}

TEST(StateFolder, ThatCanNotBeIsNone)
{
    const QTemporaryDir outer;
    ASSERT_TRUE(QFile(outer.filePath("file")).open(QIODevice::WriteOnly));
    ASSERT_TRUE(QFile::link("nowhere", outer.filePath("link")));
    for (const char* name : {"file", "file/state", "link", "link/state"}) {
        EXPECT_FALSE(StateFolder(outer.filePath(name).toStdString()).made().has_value()) << name;
    }
    for (const char* path : {"", "state", "./state", "../state"}) {
        EXPECT_FALSE(StateFolder(path).made().has_value()) << path;
    }
}

} // namespace
} // namespace mirtane
