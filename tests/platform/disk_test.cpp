#include "platform/posix/disk.h"
#include "platform/posix/opened.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace mirtane {
namespace {

Bytes bytesOf(std::string_view text)
{
    return {text.begin(), text.end()};
}

class DiskTest : public testing::Test {
  protected:
    std::string at(const char* name) const { return folder_.filePath(QString::fromUtf8(name)).toStdString(); }
    QStringList names() const
    {
        return QDir(folder_.path())
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
    }

    QTemporaryDir folder_;
    PosixDisk disk_;
};

// Files can't grow beyond so many bytes while this lives, as on a disk that is full.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes)
    {
        handler_ = std::signal(SIGXFSZ, SIG_IGN); // the write fails instead of ending the program
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit now = before_;
        now.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &now);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit before_{};
    void (*handler_)(int) = SIG_DFL;
};

TEST_F(DiskTest, WhatWasWrittenIsReadAgain)
{
    const Bytes bytes = bytesOf(std::string("a\0\r\n\xFF", 5));
    EXPECT_TRUE(disk_.writeWhole(at("h\u00E4user.mtd"), bytes));
    EXPECT_EQ(disk_.read(at("h\u00E4user.mtd")), bytes);
    EXPECT_TRUE(disk_.writeWhole(at("empty.mtd"), {}));
    EXPECT_EQ(disk_.read(at("empty.mtd")), Bytes{});
}

TEST_F(DiskTest, NewBytesReplaceAllOfTheOld)
{
    ASSERT_TRUE(disk_.writeWhole(at("a.mtd"), bytesOf("a long old drawing")));
    EXPECT_TRUE(disk_.writeWhole(at("a.mtd"), bytesOf("new")));
    EXPECT_EQ(disk_.read(at("a.mtd")), bytesOf("new"));
    EXPECT_EQ(names(), QStringList{"a.mtd"}) << "nothing is left beside it";
}

TEST_F(DiskTest, FullDiskLeavesTheOldFile)
{
    ASSERT_TRUE(disk_.writeWhole(at("a.mtd"), bytesOf("old")));
    {
        const FullDisk full(4096);
        EXPECT_FALSE(disk_.writeWhole(at("a.mtd"), Bytes(100000, 1)));
    }
    EXPECT_EQ(disk_.read(at("a.mtd")), bytesOf("old"));
    EXPECT_EQ(names(), QStringList{"a.mtd"}) << "half a file is not left lying about";
}

TEST_F(DiskTest, WritingFailsWhereThereIsNoPlace)
{
    ASSERT_TRUE(QDir(folder_.path()).mkpath("folder.mtd/inner"));
    ASSERT_TRUE(disk_.writeWhole(at("file"), bytesOf("x")));
    for (const char* name : {"missing/a.mtd", "folder.mtd", "file/a.mtd"}) {
        EXPECT_FALSE(disk_.writeWhole(at(name), bytesOf("x"))) << name;
    }
    EXPECT_FALSE(disk_.writeWhole("", bytesOf("x")));
    EXPECT_EQ(disk_.read(at("file")), bytesOf("x"));
    EXPECT_TRUE(QDir(folder_.filePath("folder.mtd/inner")).exists());
}

TEST_F(DiskTest, AFileIsReplacedWhereItsLinksLead)
{
    ASSERT_TRUE(QDir(folder_.path()).mkpath("plans"));
    ASSERT_TRUE(disk_.writeWhole(at("plans/house.mtd"), bytesOf("old")));
    ASSERT_TRUE(QFile::link("plans/house.mtd", folder_.filePath("relative.mtd")));
    ASSERT_TRUE(QFile::link(folder_.filePath("relative.mtd"), folder_.filePath("absolute.mtd")));
    ASSERT_TRUE(QFile::link("plans/new.mtd", folder_.filePath("dangling.mtd")));
    ASSERT_TRUE(QFile::link("ring.mtd", folder_.filePath("ring.mtd")));
    const QStringList before = names();

    EXPECT_TRUE(disk_.writeWhole(at("absolute.mtd"), bytesOf("through two links")));
    EXPECT_EQ(disk_.read(at("plans/house.mtd")), bytesOf("through two links"));
    EXPECT_FALSE(disk_.read(at("dangling.mtd")).has_value());
    EXPECT_TRUE(disk_.writeWhole(at("dangling.mtd"), bytesOf("new")));
    EXPECT_EQ(disk_.read(at("plans/new.mtd")), bytesOf("new"));
    EXPECT_FALSE(disk_.writeWhole(at("ring.mtd"), bytesOf("x")));
    EXPECT_EQ(names(), before);
    for (const char* link : {"relative.mtd", "absolute.mtd", "dangling.mtd", "ring.mtd"}) {
        EXPECT_TRUE(QFileInfo(folder_.filePath(link)).isSymLink()) << link;
    }
}

TEST_F(DiskTest, WhoMayReadAFileStaysAsItWas)
{
    for (const mode_t mode : {0600U, 0640U, 0664U}) {
        ASSERT_TRUE(disk_.writeWhole(at("a.mtd"), bytesOf("old")));
        ASSERT_EQ(chmod(at("a.mtd").c_str(), mode), 0);
        ASSERT_TRUE(disk_.writeWhole(at("a.mtd"), bytesOf("new")));
        struct stat now = {};
        ASSERT_EQ(stat(at("a.mtd").c_str(), &now), 0);
        EXPECT_EQ(now.st_mode & 0777U, mode);
    }
    const mode_t mask = umask(027);
    EXPECT_TRUE(disk_.writeWhole(at("b.mtd"), bytesOf("new")));
    umask(mask);
    struct stat made = {};
    ASSERT_EQ(stat(at("b.mtd").c_str(), &made), 0);
    EXPECT_EQ(made.st_mode & 0777U, 0640U);
}

TEST_F(DiskTest, APlaceIsTakenByWhateverStandsThere)
{
    ASSERT_TRUE(disk_.writeWhole(at("file"), {}));
    ASSERT_TRUE(QDir(folder_.path()).mkpath("folder"));
    ASSERT_TRUE(QFile::link("nowhere", folder_.filePath("link")));
    ASSERT_EQ(mkfifo(at("pipe").c_str(), 0600), 0);
    for (const char* name : {"file", "folder", "link", "pipe"}) EXPECT_TRUE(disk_.isTaken(at(name))) << name;
    for (const char* name : {"none", "nowhere", "file/within", "File"}) {
        EXPECT_FALSE(disk_.isTaken(at(name))) << name;
    }
}

TEST_F(DiskTest, ThePlaceOfAPipeIsNotTaken)
{
    ASSERT_EQ(mkfifo(at("pipe.mtd").c_str(), 0600), 0);
    ASSERT_TRUE(QFile::link("pipe.mtd", folder_.filePath("link.mtd")));
    EXPECT_FALSE(disk_.writeWhole(at("pipe.mtd"), bytesOf("x")));
    EXPECT_FALSE(disk_.writeWhole(at("link.mtd"), bytesOf("x")));
    struct stat now = {};
    ASSERT_EQ(stat(at("pipe.mtd").c_str(), &now), 0);
    EXPECT_TRUE(S_ISFIFO(now.st_mode));
}

TEST_F(DiskTest, ANameAsLongAsTheDiskTakesIsWritten)
{
    const std::string longest = std::string(251, 'n') + ".mtd";
    EXPECT_TRUE(disk_.writeWhole(at(longest.c_str()), bytesOf("a")));
    EXPECT_TRUE(disk_.writeWhole(at(longest.c_str()), bytesOf("b")));
    EXPECT_EQ(disk_.read(at(longest.c_str())), bytesOf("b"));
    EXPECT_FALSE(disk_.writeWhole(at(("n" + longest).c_str()), bytesOf("c")));
    EXPECT_EQ(names(), QStringList{QString::fromStdString(longest)});
}

TEST_F(DiskTest, WhatIsNoFileIsNotRead)
{
    ASSERT_TRUE(QDir(folder_.path()).mkpath("folder.mtd"));
    ASSERT_EQ(mkfifo(at("pipe.mtd").c_str(), 0600), 0);
    mknod(at("device.mtd").c_str(), S_IFCHR | 0600, makedev(1, 5)); // is not there where that is not allowed
    for (const char* name : {"missing.mtd", "folder.mtd", "pipe.mtd", "device.mtd"}) {
        EXPECT_FALSE(disk_.read(at(name)).has_value()) << name;
    }
    EXPECT_FALSE(disk_.read("").has_value());
    EXPECT_FALSE(names().contains("missing.mtd")) << "reading makes no file";
}

TEST_F(DiskTest, FileTooLargeForMemoryIsNotRead)
{
    QFile file(QString::fromStdString(at("huge.mtd")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(Opened::largestRead + 1)); // a hole, no bytes
    EXPECT_FALSE(disk_.read(at("huge.mtd")).has_value());
}

} // namespace
} // namespace mirtane
