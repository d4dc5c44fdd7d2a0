#include "platform/qt/settings.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using Values = std::map<std::string, std::string>;

class SettingsTest : public testing::Test {
  protected:
    std::string path() const { return folder_.filePath("settings.ini").toStdString(); }
    Values readAgain() const { return QtSettings(path()).read(); }
    void put(const char* text) const
    {
        QFile file(QString::fromStdString(path()));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QTemporaryDir folder_;
};

TEST_F(SettingsTest, ValuesComeBackLetterByLetter)
{
    const Values values{{"tnam", "EB Garamond, old; \"style\""},
                        {"tsize", "48"},
                        {"ntol", "0.125"},
                        {"nstyle", "us"},
                        {"empty", ""},
                        {"wkd", "/home/h\u00E4user/a b%20c\\d"},
                        {"zeros", "0048"},
                        {"at", "@Invalid()"}};
    QtSettings(path()).write(values);
    EXPECT_EQ(readAgain(), values);
}

TEST_F(SettingsTest, LaterValuesReplaceTheirOwnKeysAlone)
{
    QtSettings(path()).write({{"tsize", "48"}, {"asize", "36"}});
    QtSettings(path()).write({{"tsize", "60"}});
    EXPECT_EQ(readAgain(), (Values{{"tsize", "60"}, {"asize", "36"}}));
}

TEST_F(SettingsTest, NothingStoredIsNothingRead)
{
    EXPECT_TRUE(readAgain().empty());
    EXPECT_FALSE(QFile::exists(QString::fromStdString(path()))) << "reading makes no file";
}

TEST_F(SettingsTest, FileThatIsNoIniFileHarmsNothing)
{
    put("\x01\x02\xFF[[[\n===\n[Mirtane\ntsize");
    EXPECT_EQ(readAgain().count("tsize"), 0);
}

TEST_F(SettingsTest, CommaWrittenByHandIsKept)
{
    put("[Mirtane]\ntnam=Old Face, Bold\n");
    EXPECT_EQ(readAgain()["tnam"], "Old Face, Bold");
}

TEST_F(SettingsTest, StoreThatCanNotBeWrittenIsPassedOver)
{
    put("in the way");
    QtSettings settings(path() + "/settings.ini");
    settings.write({{"tsize", "48"}});
    QFile file(QString::fromStdString(path()));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "in the way");
}

} // namespace
} // namespace mirtane
