#include "platform/qt/paper.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace mirtane {
namespace {

class PaperOfSystem : public testing::Test {
  protected:
    ~PaperOfSystem() override { qunsetenv("PAPERSIZE"); }

    QString fileWith(const QByteArray& bytes)
    {
        QFile file(folder_.filePath(QStringLiteral("papersize")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    static std::string key(const QString& file) { return paperOfSystem(file).key().toStdString(); }

    QTemporaryDir folder_;
    const QString none_ = folder_.filePath(QStringLiteral("none"));
};

TEST_F(PaperOfSystem, IsThatOfTheFile)
{
    const std::pair<const char*, const char*> rows[] = {
        {"a3\n", "A3"},
        {"letter", "Letter"},
        {"# what this machine prints on\n\n  A0  # the large one\n", "A0"},
        {"Legal\nA4\n", "Legal"},
        {"a5\r\n", "A5"},
    };
    for (const auto& [bytes, paper] : rows) EXPECT_EQ(key(fileWith(bytes)), paper) << bytes;
}

TEST_F(PaperOfSystem, IsThatOfTheEnvironmentBeforeAll)
{
    qputenv("PAPERSIZE", "tabloid");
    EXPECT_EQ(key(fileWith("a3\n")), "Tabloid");
    EXPECT_EQ(key(none_), "Tabloid");
}

TEST_F(PaperOfSystem, ANameThatIsNoneGivesWayToWhatComesNext)
{
    qputenv("PAPERSIZE", "wallpaper");
    EXPECT_EQ(key(fileWith("a2\n")), "A2");
    qputenv("PAPERSIZE", "");
    EXPECT_EQ(key(fileWith("a1\n")), "A1");
}

TEST_F(PaperOfSystem, IsThatOfTheCountryWhereNothingIsSaid)
{
    const std::string country = key(none_);
    EXPECT_TRUE(country == "A4" || country == "Letter") << country;
    for (const char* bytes : {"", "\n#a3\n", "wallpaper\n"})
        EXPECT_EQ(key(fileWith(bytes)), country) << bytes;
}

} // namespace
} // namespace mirtane
