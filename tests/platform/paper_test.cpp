#include "platform/qt/paper.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>

namespace mirtane {
namespace {

// The variables of the environment, until it goes.
class Locale {
  public:
    explicit Locale(const std::map<const char*, const char*>& variables)
    {
        for (const auto& [name, value] : variables) {
            before_[name] = qgetenv(name);
            qputenv(name, value);
        }
    }
    ~Locale()
    {
        for (const auto& [name, value] : before_) qputenv(name, value);
    }
    Locale(const Locale&) = delete;
    Locale& operator=(const Locale&) = delete;

  private:
    std::map<const char*, QByteArray> before_;
};

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

// By the locale of papers; that of the words may be another.
TEST_F(PaperOfSystem, IsThatOfTheCountryWhereNothingIsSaid)
{
    struct Row {
        const char *all, *paper, *words;
        const char* key;
    };
    const Row rows[] = {
        {"", "", "en_US.UTF-8", "Letter"},
        {"", "", "en_GB.UTF-8", "A4"},
        {"", "", "en_CA.UTF-8", "Letter"},
        {"", "", "es_MX", "Letter"},
        {"", "", "es_ES", "A4"},
        {"", "", "de_CH.UTF-8@euro", "A4"},
        {"", "", "C.UTF-8", "A4"},
        {"", "", "", "A4"},
        {"", "en_GB.UTF-8", "en_US.UTF-8", "A4"},
        {"", "en_US.UTF-8", "fr_FR.UTF-8", "Letter"},
        {"en_IE.UTF-8", "en_US.UTF-8", "en_US.UTF-8", "A4"},
        {"en_PH.UTF-8", "en_GB.UTF-8", "en_GB.UTF-8", "Letter"},
    };
    for (const Row& row : rows) {
        const Locale locale({{"LC_ALL", row.all}, {"LC_PAPER", row.paper}, {"LANG", row.words}});
        EXPECT_EQ(key(none_), row.key) << row.all << " " << row.paper << " " << row.words;
        for (const char* bytes : {"", "\n#a3\n", "wallpaper\n"})
            EXPECT_EQ(key(fileWith(bytes)), row.key) << bytes;
    }
}

} // namespace
} // namespace mirtane
