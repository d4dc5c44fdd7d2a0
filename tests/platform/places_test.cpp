#include "platform/qt/places.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace mirtane {
namespace {

// A folder with the program's data and the user's home in it.
class PlacesTest : public testing::Test {
  protected:
    PlacesTest()
    {
        for (const char* folder : {"prefix/bin", "prefix/share/mirtane", "home"})
            QDir(root_.path()).mkpath(QString::fromLatin1(folder));
        qputenv("HOME", (root_.path() + "/home").toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", (root_.path() + "/home/.config").toLocal8Bit());
    }
    ~PlacesTest() override
    {
        qputenv("HOME", homeBefore_);
        qputenv("XDG_CONFIG_HOME", configBefore_);
    }

    void putManual(const char* folder)
    {
        QFile file(QString::fromStdString(at(folder) + "/mirtanehelp.txt"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    std::string at(const char* folder) const { return root_.path().toStdString() + "/" + folder; }
    Places places() const { return placesOf(root_.path() + "/prefix/bin"); }

    QTemporaryDir root_;
    QByteArray homeBefore_ = qgetenv("HOME");
    QByteArray configBefore_ = qgetenv("XDG_CONFIG_HOME");
};

TEST_F(PlacesTest, AreBesideTheProgramInABuildTree)
{
    putManual("prefix/bin");
    putManual("prefix/share/mirtane");
    EXPECT_EQ(places().program, at("prefix/bin"));
    EXPECT_EQ(places().ownFiles, at("prefix/bin"));
}

TEST_F(PlacesTest, AreBesideTheProgramWhereThereIsNoManualAtAll)
{
    EXPECT_EQ(places().program, at("prefix/bin"));
    EXPECT_EQ(places().ownFiles, at("prefix/bin"));
}

TEST_F(PlacesTest, OfAnInstalledProgramAreItsDataAndTheUsersHome)
{
    putManual("prefix/share/mirtane");
    EXPECT_EQ(places().program, at("prefix/share/mirtane"));
    EXPECT_EQ(places().ownFiles, at("home"));
}

TEST_F(PlacesTest, OfAnInstalledProgramAreTheUsersDocumentsIfThereAreAny)
{
    putManual("prefix/share/mirtane");
    QDir(root_.path()).mkpath("home/Documents");
    EXPECT_EQ(places().ownFiles, at("home/Documents"));
}

} // namespace
} // namespace mirtane
