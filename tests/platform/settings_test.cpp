#include "platform/qt/settings.h"

#include <QFile>
#include <QSettings>
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

// As the toolkit's own store writes them, which others of its programs read and write.
TEST_F(SettingsTest, FileOfTheToolkitIsReadLetterByLetterAndBack)
{
    const Values values{{"tnam", "A, B; \"C\" = 'D'"},
                        {"wkd", "/home/h\u00E4user/a b%20c\\d"},
                        {"at", "@Invalid()"},
                        {"lines", "a\nb\r\tc"},
                        {"blanks", " x "},
                        {"empty", ""}};
    {
        QSettings store(QString::fromStdString(path()), QSettings::IniFormat);
        store.beginGroup("Mirtane");
        for (const auto& [key, value] : values) {
            store.setValue(QString::fromStdString(key), QString::fromStdString(value));
        }
    }
    EXPECT_EQ(readAgain(), values);
    QFile::remove(QString::fromStdString(path()));
    const std::string other =
        folder_.filePath("other.ini").toStdString(); // the toolkit remembers files by name
    QtSettings(other).write(values);
    QSettings store(QString::fromStdString(other), QSettings::IniFormat);
    store.beginGroup("Mirtane");
    for (const auto& [key, value] : values) {
        EXPECT_EQ(store.value(QString::fromStdString(key)).toString().toStdString(), value) << key;
    }
}

TEST_F(SettingsTest, RemarksOtherSectionsAndBlanksArePassedOver)
{
    put("tsize=1\r\n[Other]\r\ntsize=2\r\n  [Mirtane]  \r\n; tsize=3\r\n tsize = 4 ; "
        "points\r\nasize=\"5;\"\r\n"
        "no value\r\n[mirtane]\r\ntsize=6\r\n");
    EXPECT_EQ(readAgain(), (Values{{"tsize", "4"}, {"asize", "5;"}}));
}

TEST_F(SettingsTest, FileWithoutItsLastLetterLosesNoOtherLine)
{
    const std::string whole = "[Mirtane]\nasize=\"36\"\ntnam=\"Old \\\"Face\\\"\"";
    for (std::size_t n = 0; n < whole.size(); ++n) {
        put(whole.substr(0, n).c_str());
        const Values values = readAgain();
        EXPECT_LE(values.size(), 2U) << n;
        EXPECT_TRUE(n <= 20 || values.at("asize") == "36") << n;
    }
}

TEST_F(SettingsTest, FileBeyondAllSenseInSizeIsNotRead)
{
    put(("[Mirtane]\ntsize=48\ntnam=" + std::string(2'000'000, 'n')).c_str());
    EXPECT_TRUE(readAgain().empty());
    QtSettings(path()).write({{"tsize", "60"}});
    EXPECT_EQ(readAgain(), (Values{{"tsize", "60"}}));
}

TEST_F(SettingsTest, FirstWriteMakesTheFolder)
{
    const std::string inner = folder_.filePath("config/Mirtane/Mirtane.conf").toStdString();
    QtSettings(inner).write({{"tsize", "60"}});
    EXPECT_EQ(QtSettings(inner).read(), (Values{{"tsize", "60"}}));
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
