#include "platform/qt/folders.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace mirtane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FoldersTest : public testing::Test {
  protected:
    void makeFile(const QString& name)
    {
        QFile file(folder_.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    void makeFolder(const QString& name) { ASSERT_TRUE(QDir(folder_.path()).mkpath(name)); }
    std::string path() const { return folder_.path().toStdString(); }

    QTemporaryDir folder_;
    QtFolders folders_;
};

TEST_F(FoldersTest, FilesAreThoseOfTheExtensionInTheOrderOfTheirNames)
{
    for (const char* name : {"b.mtd", "a.mtd", "C.MTD", "d.dxf", "emtd", "f.mtd.old"}) makeFile(name);
    makeFolder("folder.mtd");
    EXPECT_THAT(folders_.files(path(), ".mtd"), ElementsAre("a.mtd", "b.mtd", "C.MTD"));
    EXPECT_THAT(folders_.files(path(), ".dxf"), ElementsAre("d.dxf"));
    EXPECT_THAT(folders_.files(path(), ".mta"), IsEmpty());
}

TEST_F(FoldersTest, SubfoldersAreInTheOrderOfTheirNames)
{
    makeFolder("b/inner");
    makeFolder("A");
    makeFolder("\u00E4");
    makeFile("file");
    EXPECT_THAT(folders_.subfolders(path()), ElementsAre("A", "b", "\u00E4"));
}

TEST_F(FoldersTest, FolderThatIsNotThereHasNoEntries)
{
    for (const std::string& folder : {path() + "/missing", std::string()}) {
        EXPECT_THAT(folders_.files(folder, ".mtd"), IsEmpty()) << folder;
        EXPECT_THAT(folders_.subfolders(folder), IsEmpty()) << folder;
        EXPECT_FALSE(folders_.exists(folder)) << folder;
    }
    makeFile("file");
    EXPECT_FALSE(folders_.exists(path() + "/file"));
    EXPECT_TRUE(folders_.exists(path()));
}

TEST_F(FoldersTest, DrivesAreFoldersThatExist)
{
    const std::vector<std::string> drives = folders_.drives();
    EXPECT_THAT(drives, testing::Contains(QDir::homePath().toStdString()));
    EXPECT_THAT(drives, testing::Contains("/"));
    for (const std::string& drive : drives) EXPECT_TRUE(folders_.exists(drive)) << drive;
}

TEST_F(FoldersTest, TenThousandFilesAreListed)
{
    for (int i = 0; i < 10000; ++i) makeFile(QString("%1.mtd").arg(i, 5, 10, QLatin1Char('0')));
    const std::vector<std::string> files = folders_.files(path(), ".mtd");
    EXPECT_EQ(files.size(), 10000);
    EXPECT_TRUE(std::is_sorted(files.begin(), files.end()));
}

} // namespace
} // namespace mirtane
