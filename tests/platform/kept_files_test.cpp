// What a save leaves as it was: whose the file is, what stands on it beside its bytes, its links and names.
// And what saves that were killed have left.

#include "as_nobody.h"
#include "platform/posix/disk.h"
#include "platform/posix/held_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace mirtane {
namespace {

using fake::asNobody;
using fake::isRoot;
using fake::nobody;
using testing::ElementsAre;
using testing::IsEmpty;

class KeptFiles : public testing::Test {
  protected:
    KeptFiles()
    {
        EXPECT_TRUE(QDir().mkpath(outer_.filePath("plans")));
        EXPECT_TRUE(QDir().mkpath(outer_.filePath("user")));
        for (const char* name : {"", "/plans", "/user"}) chmod((root() + name).c_str(), 0777);
    }
    ~KeptFiles() override { chmod(at("").c_str(), 0777); }

    std::string root() const { return outer_.path().toStdString(); }
    std::string at(const std::string& name) const { return root() + "/plans/" + name; }
    std::string state() const { return root() + "/user/state"; }

    static QStringList namesIn(const std::string& folder)
    {
        return QDir(QString::fromStdString(folder))
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
    }
    QStringList names() const { return namesIn(root() + "/plans"); }

    static void put(const std::string& path, const std::string& text)
    {
        QFile file(QString::fromStdString(path));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromStdString(text));
    }
    static std::string textOf(const std::string& path)
    {
        QFile file(QString::fromStdString(path));
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "none";
    }
    static struct stat statusOf(const std::string& path)
    {
        struct stat now = {};
        EXPECT_EQ(lstat(path.c_str(), &now), 0) << path;
        return now;
    }
    bool save(const std::string& name, const std::string& text)
    {
        return disk_.writeWhole(at(name), {text.begin(), text.end()});
    }

    QTemporaryDir outer_;
    PosixDisk disk_{StateFolder(state())};
};

TEST_F(KeptFiles, StayWithTheirOwnerTheirGroupAndTheirMode)
{
    if (!isRoot()) GTEST_SKIP() << "only root gives files to others";
    struct Row {
        uid_t user;
        gid_t group;
        mode_t mode;
    };
    for (const Row& row : {Row{1000, 1000, 0644}, Row{0, 1234, 0660}, Row{4711, 0, 0600}, Row{7, 8, 02770},
                           Row{nobody, nobody, 0604}, Row{0, 0, 01666}}) {
        put(at("a.mtd"), "old");
        ASSERT_EQ(chown(at("a.mtd").c_str(), row.user, row.group), 0);
        ASSERT_EQ(chmod(at("a.mtd").c_str(), row.mode), 0);
        EXPECT_TRUE(save("a.mtd", "new"));
        const struct stat now = statusOf(at("a.mtd"));
        EXPECT_EQ(now.st_uid, row.user);
        EXPECT_EQ(now.st_gid, row.group);
        EXPECT_EQ(now.st_mode & 07777U, row.mode);
        EXPECT_EQ(textOf(at("a.mtd")), "new");
    }
}

std::string attributeOf(const std::string& path, const char* name)
{
    char value[256];
    const ssize_t size = lgetxattr(path.c_str(), name, value, sizeof value);
    return size < 0 ? "none" : std::string(value, static_cast<std::size_t>(size)); // not negative
}

bool setAttribute(const std::string& path, const char* name, const std::string& value)
{
    return lsetxattr(path.c_str(), name, value.data(), value.size(), 0) == 0;
}

// Who may do what, as the system stores it: the owner all, user 1000 what is given, the others nothing.
std::string listFor1000(char rights)
{
    const auto entry = [](char tag, char may, const std::string& id) {
        return std::string{tag, 0, may, 0} + id;
    };
    const std::string none(4, '\xFF');
    return std::string("\2\0\0\0", 4) + entry(1, 6, none) + entry(2, rights, std::string("\xE8\3\0\0", 4)) +
           entry(4, 0, none) + entry(16, rights, none) + entry(32, 0, none);
}

TEST_F(KeptFiles, StayWithWhatOthersPutOnThem)
{
    put(at("a.mtd"), "old");
    if (!setAttribute(at("a.mtd"), "user.project", "Harbour 7")) GTEST_SKIP() << "no attributes on this disk";
    ASSERT_TRUE(setAttribute(at("a.mtd"), "user.empty", ""));
    ASSERT_TRUE(setAttribute(at("a.mtd"), "user.zeros", std::string("\0a\0", 3)));
    const bool hasLists = setAttribute(at("a.mtd"), "system.posix_acl_access", listFor1000(4));
    const struct stat before = statusOf(at("a.mtd"));
    EXPECT_TRUE(save("a.mtd", "new"));
    EXPECT_EQ(textOf(at("a.mtd")), "new");
    EXPECT_EQ(attributeOf(at("a.mtd"), "user.project"), "Harbour 7");
    EXPECT_EQ(attributeOf(at("a.mtd"), "user.empty"), "");
    EXPECT_EQ(attributeOf(at("a.mtd"), "user.zeros"), std::string("\0a\0", 3));
    EXPECT_EQ(attributeOf(at("a.mtd"), "system.posix_acl_access"), hasLists ? listFor1000(4) : "none");
    EXPECT_EQ(statusOf(at("a.mtd")).st_mode, before.st_mode);
}

TEST_F(KeptFiles, AreNotGivenToThoseWhomTheFolderNames)
{
    put(at("a.mtd"), "old");
    ASSERT_EQ(chmod(at("a.mtd").c_str(), 0640), 0);
    if (!setAttribute(at(""), "system.posix_acl_default", listFor1000(6)))
        GTEST_SKIP() << "no such lists on this disk";
    EXPECT_TRUE(save("a.mtd", "new"));
    EXPECT_EQ(attributeOf(at("a.mtd"), "system.posix_acl_access"), "none");
    EXPECT_EQ(statusOf(at("a.mtd")).st_mode & 0777U, 0640U);
    EXPECT_TRUE(save("b.mtd", "new"));
    EXPECT_NE(attributeOf(at("b.mtd"), "system.posix_acl_access"), "none") << "a file that is new is";
}

TEST_F(KeptFiles, AreOneUnderAllTheirNames)
{
    const std::string longest(250, 'n');
    for (const std::string& name : {std::string("a.mtd"), longest + ".mtd"}) {
        put(at(name), "an old drawing that is longer");
        ASSERT_EQ(link(at(name).c_str(), at("second.mtd").c_str()), 0);
        for (const char* text : {"new", "newer, and longer than any that was there before it", ""}) {
            EXPECT_TRUE(save(name, text));
            EXPECT_EQ(textOf(at(name)), text);
            EXPECT_EQ(textOf(at("second.mtd")), text);
        }
        EXPECT_EQ(statusOf(at(name)).st_nlink, 2U);
        EXPECT_EQ(names().size(), 2);
        unlink(at(name).c_str());
        unlink(at("second.mtd").c_str());
    }
    EXPECT_EQ(namesIn(state()), QStringList()) << "copies go when the file is whole";
    EXPECT_EQ(statusOf(state()).st_mode & 0777U, 0700U);
}

TEST_F(KeptFiles, AreWrittenInPlaceWhereNoOtherCanBeMade)
{
    put(at("a.mtd"), "old");
    ASSERT_EQ(chmod(at("a.mtd").c_str(), 0666), 0);
    ASSERT_EQ(chmod(at("").c_str(), 0555), 0);
    const struct stat before = statusOf(at("a.mtd"));
    EXPECT_TRUE(asNobody([&] { return save("a.mtd", "new"); }));
    EXPECT_EQ(textOf(at("a.mtd")), "new");
    EXPECT_EQ(statusOf(at("a.mtd")).st_ino, before.st_ino);
    EXPECT_FALSE(asNobody([&] { return save("b.mtd", "new"); })) << "there is none to write into";
    EXPECT_EQ(names(), QStringList{"a.mtd"});
    EXPECT_EQ(namesIn(state()), QStringList());
}

TEST_F(KeptFiles, OfOthersStayTheirs)
{
    if (!isRoot()) GTEST_SKIP() << "only root gives files to others";
    struct Row {
        const char* what;
        mode_t folder;
        uid_t user;
        gid_t group;
        mode_t mode;
    };
    const Row rows[] = {
        {"another owner in a sticky folder", 01777, 1000, 1000, 0666},
        {"another owner in a folder for all", 0777, 1000, nobody, 0664},
        {"a group that one is no member of", 0777, nobody, 1234, 0600},
    };
    for (const Row& row : rows) {
        put(at("a.mtd"), "old");
        ASSERT_EQ(chown(at("a.mtd").c_str(), row.user, row.group), 0);
        ASSERT_EQ(chmod(at("a.mtd").c_str(), row.mode), 0);
        ASSERT_EQ(chmod(at("").c_str(), row.folder), 0);
        EXPECT_TRUE(asNobody([&] { return save("a.mtd", "new"); })) << row.what;
        const struct stat now = statusOf(at("a.mtd"));
        EXPECT_EQ(textOf(at("a.mtd")), "new") << row.what;
        EXPECT_EQ(now.st_uid, row.user) << row.what;
        EXPECT_EQ(now.st_gid, row.group) << row.what;
        EXPECT_EQ(now.st_mode & 07777U, row.mode) << row.what;
        EXPECT_EQ(names(), QStringList{"a.mtd"}) << row.what;
        EXPECT_EQ(namesIn(state()), QStringList()) << row.what;
        unlink(at("a.mtd").c_str());
    }
}

TEST_F(KeptFiles, ThatMayNotBeWrittenAreNot)
{
    put(at("a.mtd"), "old");
    ASSERT_EQ(chmod(at("a.mtd").c_str(), 0444), 0);
    EXPECT_FALSE(asNobody([&] { return save("a.mtd", "new"); }));
    EXPECT_EQ(textOf(at("a.mtd")), "old");
}

TEST_F(KeptFiles, AreNotTouchedWhereNoCopyCanStand)
{
    put(at("a.mtd"), "old");
    ASSERT_EQ(link(at("a.mtd").c_str(), at("second.mtd").c_str()), 0);
    put(root() + "/user/file", "");
    ASSERT_TRUE(QFile::link("nowhere", outer_.filePath("user/link")));
    for (const char* name : {"/user/file", "/user/file/state", "/user/link", "/user/link/state"}) {
        PosixDisk disk{StateFolder(root() + name)};
        EXPECT_FALSE(disk.writeWhole(at("a.mtd"), {1, 2, 3})) << name;
    }
    for (const char* name : {"", "state", "./state"}) {
        PosixDisk disk{StateFolder(name)};
        EXPECT_FALSE(disk.writeWhole(at("a.mtd"), {1, 2, 3})) << "no place: " << name;
    }
    EXPECT_EQ(textOf(at("second.mtd")), "old");
}

TEST_F(KeptFiles, AreFoundThroughAllTheirLinks)
{
    ASSERT_TRUE(QDir().mkpath(outer_.filePath("plans/inner/deep")));
    put(at("a.mtd"), "old");
    ASSERT_TRUE(QFile::link("../../middle.mtd", outer_.filePath("plans/inner/deep/first.mtd")));
    ASSERT_TRUE(QFile::link("inner/../a.mtd", outer_.filePath("plans/middle.mtd")));
    ASSERT_TRUE(QFile::link("inner/deep", outer_.filePath("plans/short")));
    ASSERT_TRUE(QFile::link("no/folder/a.mtd", outer_.filePath("plans/dangling.mtd")));
    ASSERT_TRUE(QFile::link("there.mtd", outer_.filePath("plans/here.mtd")));
    ASSERT_TRUE(QFile::link("here.mtd", outer_.filePath("plans/there.mtd")));
    const QStringList before = names();
    EXPECT_TRUE(save("short/first.mtd", "new"));
    EXPECT_EQ(textOf(at("a.mtd")), "new");
    for (const char* name : {"dangling.mtd", "here.mtd", "there.mtd"}) EXPECT_FALSE(save(name, "x")) << name;
    EXPECT_EQ(names(), before);
    for (const char* name : {"inner/deep/first.mtd", "middle.mtd", "dangling.mtd", "here.mtd"}) {
        EXPECT_TRUE(S_ISLNK(statusOf(at(name)).st_mode)) << name;
    }
}

// Files can't grow beyond so many bytes from now on, and what tries it is ended, or does what is given.
void limitFiles(rlim_t bytes, void (*then)(int))
{
    const rlimit noCore = {0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    std::signal(SIGXFSZ, then);
    rlimit now = {};
    getrlimit(RLIMIT_FSIZE, &now);
    now.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &now);
}

constexpr rlim_t room = 4096;
const std::string tooMuch(100000, 'n');

// A save that stops in the middle of its bytes. The process, which has ended or is stopped.
template <class Save> pid_t stoppedIn(Save save, void (*then)(int))
{
    const pid_t child = fork();
    if (child == 0) {
        limitFiles(room, then);
        save();
        _exit(0);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, WUNTRACED), child);
    EXPECT_TRUE(WIFSIGNALED(status) || WIFSTOPPED(status)) << status;
    return child;
}

void stop(int)
{
    raise(SIGSTOP);
}

TEST_F(KeptFiles, ThatFindNoRoomInPlaceAreAsTheyWere)
{
    put(at("a.mtd"), std::string(3000, 'o'));
    ASSERT_EQ(link(at("a.mtd").c_str(), at("second.mtd").c_str()), 0);
    const std::optional<FileStamp> before = disk_.stamp(at("a.mtd"));
    usleep(20000); // in which the clock of the disk goes on
    const pid_t child = fork();
    if (child == 0) {
        limitFiles(room, SIG_IGN);
        _exit(save("a.mtd", tooMuch) ? 1 : 0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(textOf(at("second.mtd")), std::string(3000, 'o'));
    EXPECT_EQ(disk_.stamp(at("a.mtd")), before) << "nobody has changed it";
    EXPECT_EQ(namesIn(state()), QStringList());
}

TEST_F(KeptFiles, ThatAKillLeavesHalfWrittenHaveACopy)
{
    put(at("a.mtd"), std::string(3000, 'o'));
    ASSERT_EQ(link(at("a.mtd").c_str(), at("second.mtd").c_str()), 0);
    stoppedIn([&] { save("a.mtd", tooMuch); }, SIG_DFL);
    ASSERT_EQ(textOf(at("a.mtd")).size(), room) << "the save was not killed in the middle";
    ASSERT_EQ(namesIn(state()).size(), 1);
    const std::string copy = namesIn(state())[0].toStdString();
    EXPECT_TRUE(copy.starts_with("before-") && copy.ends_with("-a.mtd")) << copy;
    EXPECT_EQ(textOf(state() + "/" + copy), std::string(3000, 'o'));
    EXPECT_EQ(statusOf(state() + "/" + copy).st_mode & 0777U, 0600U);
    EXPECT_TRUE(save("a.mtd", "new"));
    EXPECT_EQ(namesIn(state()), QStringList{QString::fromStdString(copy)}) << "it is not ours to throw away";
}

TEST_F(KeptFiles, AreNotLitteredByKilledSaves)
{
    put(at("a.mtd"), "old");
    std::vector<pid_t> saves;
    for (int i = 0; i < 3; ++i) saves.push_back(stoppedIn([&] { save("a.mtd", tooMuch); }, stop));
    ASSERT_EQ(names().size(), 4) << "the saves were not stopped in the middle";
    for (const pid_t child : saves) kill(child, SIGKILL);
    for (const pid_t child : saves) waitpid(child, nullptr, 0);
    QDir().mkpath(outer_.filePath("plans/inner"));
    stoppedIn([&] { save("inner/a.mtd", tooMuch); }, SIG_DFL);
    EXPECT_TRUE(save("b.mtd", "new"));
    EXPECT_THAT(names(), ElementsAre("a.mtd", "b.mtd", "inner"));
    EXPECT_EQ(textOf(at("a.mtd")), "old");
    EXPECT_EQ(namesIn(at("inner")).size(), 1) << "another folder waits for its own save";
}

TEST_F(KeptFiles, LeaveTheSavesOfTheLivingAlone)
{
    put(at("a.mtd"), "old");
    const pid_t child = stoppedIn([&] { save("a.mtd", tooMuch); }, stop);
    ASSERT_EQ(names().size(), 2);
    for (const char* text : {"new", "newer"}) EXPECT_TRUE(save("b.mtd", text));
    EXPECT_EQ(names().size(), 3) << "who is in the middle of a save goes on with it";
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    EXPECT_TRUE(save("b.mtd", "newest"));
    EXPECT_THAT(names(), ElementsAre("a.mtd", "b.mtd"));
}

TEST_F(KeptFiles, LeaveFilesWithNamesLikeTheirsAlone)
{
    stoppedIn([&] { save("a.mtd", tooMuch); }, SIG_DFL);
    ASSERT_EQ(names().size(), 1);
    const std::string ours = names()[0].toStdString();
    ASSERT_TRUE(QFile::remove(QString::fromStdString(at(ours))));
    std::vector<std::string> alike = {".mirtane-",     ".mirtane-notes", ".mirtane-4711-0",
                                      ".mirtane-1-2-", ".mirtane",       ours + "~",
                                      ours + ".bak",   ours.substr(1),   ours.substr(0, ours.size() - 1)};
    std::string otherProcess = ours;
    otherProcess.insert(std::string(".mirtane-").size(), "1");
    alike.push_back(otherProcess);
    for (const std::string& name : alike) put(at(name), "another program's");
    EXPECT_TRUE(save("z.mtd", "new"));
    for (const std::string& name : alike) EXPECT_EQ(textOf(at(name)), "another program's") << name;
}

// A file takes its name while it is still held: else another save could remove it a moment before.
TEST_F(KeptFiles, AreHeldUntilTheyAreClosed)
{
    HeldFile held = makeHeld(at(""), "x-", 0600);
    ASSERT_TRUE(held.file.isOpen());
    {
        const Opened second = held.file.second();
        held.file.close();
        EXPECT_EQ(removeIfDead(held.path), Holder::alive);
    }
    EXPECT_EQ(removeIfDead(held.path), Holder::dead);
    EXPECT_EQ(removeIfDead(held.path), Holder::unknown) << "it is gone";
    EXPECT_EQ(makeHeld(at("missing"), "x-", 0600).fault, ENOENT);
}

} // namespace
} // namespace mirtane
