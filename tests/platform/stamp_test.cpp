// A stamp tells of every file that is not the one that was seen, and of no other.

#include "memory_ports.h"
#include "platform/posix/disk.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace mirtane {
namespace {

class StampTest : public testing::Test {
  protected:
    StampTest() { EXPECT_TRUE(write("a.mtd", {1, 2, 3})); }

    std::string at(const std::string& name) const { return folder_.path().toStdString() + "/" + name; }
    bool write(const std::string& name, const Bytes& bytes) { return disk_.writeWhole(at(name), bytes); }
    std::optional<FileStamp> stamp(const std::string& name = "a.mtd") { return disk_.stamp(at(name)); }
    void setTime(const char* name, time_t seconds, long nanoseconds) const
    {
        const timespec times[] = {{seconds, nanoseconds}, {seconds, nanoseconds}};
        ASSERT_EQ(utimensat(AT_FDCWD, at(name).c_str(), times, 0), 0);
    }
    // Into the file itself, as other programs do.
    void overwrite(const char* bytes) const
    {
        QFile file(QString::fromStdString(at("a.mtd")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir folder_;
    PosixDisk disk_;
};

TEST_F(StampTest, OfAFileThatNobodyTouchesStays)
{
    const auto before = stamp();
    ASSERT_TRUE(before.has_value());
    EXPECT_EQ(before->size, 3);
    disk_.read(at("a.mtd"));
    ASSERT_EQ(chmod(at("a.mtd").c_str(), 0600), 0);
    ASSERT_TRUE(write("b.mtd", {1}));
    EXPECT_EQ(stamp(), before);
    ASSERT_TRUE(QFile::link("a.mtd", folder_.filePath("link.mtd")));
    EXPECT_EQ(stamp("link.mtd"), before) << "through a link";
}

TEST_F(StampTest, OfAFileThatIsChangedIsAnother)
{
    setTime("a.mtd", 1000, 0);
    const auto first = stamp();
    overwrite("xyz");
    const auto sameSize = stamp();
    EXPECT_NE(sameSize, first);
    overwrite("wxyz");
    setTime("a.mtd", 1000, 0);
    EXPECT_NE(stamp(), first) << "the size alone";
    overwrite("xyz");
    setTime("a.mtd", 1000, 1);
    EXPECT_NE(stamp(), first) << "a nanosecond alone";
    setTime("a.mtd", 1000, 0);
    EXPECT_EQ(stamp(), first);
}

TEST_F(StampTest, OfAFileThatIsReplacedIsAnother)
{
    setTime("a.mtd", 1000, 0);
    const auto before = stamp();
    ASSERT_TRUE(write("b.mtd", {1, 2, 3}));
    setTime("b.mtd", 1000, 0);
    ASSERT_EQ(rename(at("b.mtd").c_str(), at("a.mtd").c_str()), 0);
    EXPECT_NE(stamp(), before) << "with the same bytes of the same time";
    const auto replaced = stamp();
    ASSERT_TRUE(write("a.mtd", {1, 2, 3}));
    EXPECT_NE(stamp(), replaced) << "saved once more by us";
}

// Disks are numbered anew when they are plugged in or mounted again, and some number their files anew with
// it.
TEST(Stamp, OfADiskThatCameBackIsThatOfTheSameFile)
{
    struct Row {
        const char* what;
        FileStamp seen, now;
        bool isSame;
    };
    const Row rows[] = {
        {"untouched",
         {460, 1'700'000'000'123'456'789, 12, 1792, "19:17"},
         {460, 1'700'000'000'123'456'789, 12, 1792, "19:17"},
         true},
        {"the disk under another number",
         {460, 1'700'000'000'123'456'789, 12, 1792, "19:17"},
         {460, 1'700'000'000'123'456'789, 12, 1793, "19:17"},
         true},
        {"its files numbered anew as well",
         {98'304, 1'700'000'002'000'000'000, 71, 2065, "08:00"},
         {98'304, 1'700'000'002'000'000'000, 5, 2081, "08:00"},
         true},
        {"a network folder",
         {1, -3, 18'446'744'073'709'551'615U, 44, ""},
         {1, -3, 18'446'744'073'709'551'615U, 51, ""},
         true},
        {"another file on the same disk",
         {460, 1'700'000'000'123'456'789, 12, 1792, "19:17"},
         {460, 1'700'000'000'123'456'789, 13, 1792, "19:17"},
         false},
        {"changed, on the same disk",
         {460, 1'700'000'000'123'456'789, 12, 1792, "19:17"},
         {460, 1'700'000'000'123'456'790, 12, 1792, "19:17"},
         false},
        {"changed elsewhere, by a nanosecond",
         {460, 1'700'000'000'123'456'789, 12, 1792, "19:17"},
         {460, 1'700'000'000'123'456'790, 12, 1793, "19:17"},
         false},
        {"changed elsewhere, by a byte",
         {460, 1'700'000'000'123'456'789, 12, 1792, "19:17"},
         {461, 1'700'000'000'123'456'789, 12, 1793, "19:17"},
         false},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(row.seen == row.now, row.isSame) << row.what;
        EXPECT_EQ(row.now == row.seen, row.isSame) << row.what;
    }
}

TEST_F(StampTest, IsNoneWhereThereIsNoFile)
{
    ASSERT_TRUE(QDir().mkpath(folder_.filePath("folder.mtd")));
    ASSERT_EQ(mkfifo(at("pipe.mtd").c_str(), 0600), 0);
    ASSERT_TRUE(QFile::link("nowhere", folder_.filePath("dangling.mtd")));
    for (const char* name : {"missing.mtd", "folder.mtd", "pipe.mtd", "dangling.mtd", "a.mtd/b.mtd"}) {
        EXPECT_FALSE(stamp(name).has_value()) << name;
    }
    unlink(at("a.mtd").c_str());
    EXPECT_FALSE(stamp().has_value());
}

TEST_F(StampTest, TellsTheTimeAsTheClockOnTheWallDoes)
{
    const QByteArray zone = qgetenv("TZ");
    const auto in = [](const QByteArray& name) {
        qputenv("TZ", name);
        tzset();
    };
    constexpr time_t minute = 60;
    constexpr time_t hour = 60 * minute;
    constexpr time_t day = 24 * hour;
    struct Row {
        const char* zone;
        time_t seconds;
        const char* clock;
    };
    const Row rows[] = {
        {"UTC0", 20000 * day + 14 * hour + 32 * minute + 59, "2024-10-04 14:32"},
        {"UTC0", 20000 * day, "2024-10-04 00:00"},
        {"UTC0", 20000 * day + 9 * hour + 5 * minute, "2024-10-04 09:05"},
        {"XST-5:30", 20000 * day + 20 * hour, "2024-10-05 01:30"},
        {"UTC0", 157000 * day + hour, "2399-11-08 01:00"},
    };
    for (const Row& row : rows) {
        in(row.zone);
        setTime("a.mtd", row.seconds, 0);
        EXPECT_EQ(stamp()->clock, row.clock);
    }
    in("UTC0");
    setTime("a.mtd", time(nullptr), 0);
    EXPECT_EQ(stamp()->clock.size(), 5U) << "of today the time is enough";
    in("UTC0");
    const auto winter = stamp();
    in("XST-1");
    EXPECT_EQ(stamp(), winter) << "a clock that is set forward changes no file";
    zone.isNull() ? static_cast<void>(qunsetenv("TZ")) : in(zone);
}

TEST(MemoryStamp, IsAsThatOfTheDisk)
{
    fake::MemoryDisk disk;
    EXPECT_FALSE(disk.stamp("/a").has_value());
    disk.files["/a"] = {1, 2};
    const auto put = disk.stamp("/a");
    ASSERT_TRUE(put.has_value());
    EXPECT_EQ(put->size, 2);
    EXPECT_EQ(disk.stamp("/a"), put);
    disk.clock = "09:07";
    disk.files["/a"] = {1, 3};
    const auto changed = disk.stamp("/a");
    EXPECT_NE(changed, put);
    EXPECT_EQ(changed->clock, "09:07");
    EXPECT_TRUE(disk.writeWhole("/a", {1, 3}));
    EXPECT_NE(disk.stamp("/a"), changed);
    disk.files.erase("/a");
    EXPECT_FALSE(disk.stamp("/a").has_value());
}

} // namespace
} // namespace mirtane
