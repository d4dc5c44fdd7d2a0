// Settings that can't be written leave the old ones, and settings that are rubbish are as none: the program
// starts with its defaults and ends normally.

#include "failing_calls.h"
#include "platform/qt/settings.h"
#include "play_process.h"

#include <gtest/gtest.h>

#include <QDir>

#include <cerrno>
#include <cstring>
#include <fstream>

namespace mirtane {
namespace {

using fake::contentOf;
using fake::FailingCalls;
using Values = std::map<std::string, std::string>;

class SettingsFaults : public testing::Test {
  protected:
    std::string home() const { return folder_.path().toStdString(); }
    std::string path() const { return home() + "/settings.ini"; }
    QStringList names() const
    {
        return QDir(folder_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    }
    void put(const std::string& content) const { std::ofstream(path(), std::ios::binary) << content; }

    QTemporaryDir folder_;
};

TEST_F(SettingsFaults, EachCallThatFailsInTurnLeavesTheOldOnesOrTheNew)
{
    const Values old{{"tsize", "48"}, {"tnam", "Old Face"}};
    const Values now{{"tsize", "36.5"}, {"tnam", std::string(3000, 'n')}};
    QtSettings(path()).write(old);
    const std::string before = contentOf(path());
    ASSERT_GT(before.size(), 20U);
    for (const int error : {ENOSPC, EDQUOT, EROFS, EIO, EACCES, EINTR}) {
        for (int number = 1; number < 100; ++number) {
            put(before);
            std::string failed;
            {
                const FailingCalls calls(home(), {number, error, error == ENOSPC});
                QtSettings(path()).write(now);
                failed = calls.failed();
            }
            SCOPED_TRACE(failed + ", call " + std::to_string(number) + ": " + std::strerror(error));
            EXPECT_EQ(names(), QStringList{"settings.ini"});
            if (failed.empty()) {
                EXPECT_GT(number, 5);
                EXPECT_EQ(QtSettings(path()).read(), now);
                break;
            }
            EXPECT_TRUE(contentOf(path()) == before || QtSettings(path()).read() == now)
                << contentOf(path()).size() << " bytes";
        }
    }
}

// The old ones, or a start without any; and in any case one that draws, writes, measures and ends.
constexpr const char* worksAndEnds =
    "press freecurs\nclick 1000 1000\nclick 1100 1200\ncancel 0 0\n"
    "press Command15\nclick 500 500\ntype words\nenter\ncancel 0 0\n"
    "press Command8\nclick 1000 1000\nclick 1100 1000\nclick 1050 900\ncancel 0 0\n"
    "press fil7\nput frmfile.Text1 house\nenter\n"
    "expect get frmfile.visible == false\n"
    "expect alive == true\nclose\nalive\n";
constexpr const char* withinTwentySeconds = "timeout 20";

struct Start {
    const char* what;
    std::string before; // commands of the shell
};

TEST(NonsenseSettings, ThatAreNoFileGiveTheDefaultsAndAnEndOnTheSpot)
{
    const Start starts[] = {
        {"a pipe", "mkfifo home/settings.ini"},
        {"a device without an end", "mknod home/settings.ini c 1 5 || true"},
        {"a link to nothing", "ln -s nowhere/at/all home/settings.ini"},
        {"a ring", "ln -s settings.ini home/settings.ini"},
        {"a folder", "mkdir -p home/settings.ini/inner"},
        {"five gigabytes of nothing", "truncate -s 5G home/settings.ini"},
        {"ten megabytes of one line", "tr '\\0' n </dev/zero | head -c 10000000 >home/settings.ini"},
        {"left over locks", "mkdir home/settings.ini.lock"},
    };
    for (const Start& start : starts) {
        const fake::PlayProcess process;
        const fake::Outcome ran = process.run(std::string("expect get session.textFont == \"Garamond\"\n"
                                                          "expect get session.textSize == 48\n") +
                                                  worksAndEnds,
                                              start.before, "true", withinTwentySeconds);
        EXPECT_EQ(ran.status, 0) << start.what << ": " << ran.err;
        EXPECT_EQ(ran.out, "false\n") << start.what;
    }
}

TEST(NonsenseSettings, OfNumbersThatMeanNothingHarmNothing)
{
    const char* const numbers[] = {"-48",   "0",     "-1",     "1e-38", "3e38",
                                   "-3e38", "32767", "-32768", "nan",   "inf"};
    for (const char* const number : numbers) {
        const fake::PlayProcess process;
        std::string stored = "[Mirtane]\n";
        for (const char* const key : {"tsize", "asize", "dstyle", "tjust", "ntol", "ncom", "acom"}) {
            stored += std::string(key) + "=" + number + "\n";
        }
        process.write("home/settings.ini", stored + "nstyle=-\n");
        const fake::Outcome ran = process.run(worksAndEnds, "true", "true", withinTwentySeconds);
        EXPECT_EQ(ran.status, 0) << number << ": " << ran.err;
        EXPECT_EQ(ran.out, "false\n") << number;
    }
}

} // namespace
} // namespace mirtane
