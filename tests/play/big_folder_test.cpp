// A folder of ten thousand files lists at once, and keys in the file dialog answer at once.

#include "theatre.h"

#include <QFile>

#include <gtest/gtest.h>

#include <chrono>

namespace mirtane {
namespace {

constexpr int manyFiles = 10000;
constexpr double atOnce = 2; // seconds; it takes some hundredths on a machine that does nothing else

struct BigFolder : testing::Test {
    BigFolder()
    {
        for (int i = 0; i < manyFiles; ++i) {
            QFile file(theatre.folder.filePath(QStringLiteral("plan%1.mtd").arg(i, 5, 10, QLatin1Char('0'))));
            made += file.open(QIODevice::WriteOnly) ? 1 : 0;
            QFile other(theatre.folder.filePath(QStringLiteral("other%1.txt").arg(i)));
            if (i % 10 == 0) made += other.open(QIODevice::WriteOnly) ? 1 : 0;
        }
    }

    double secondsOf(const std::string& line)
    {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(theatre.playAll(line), "");
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

    const Control& list() const { return theatre.session->controls["frmfile.File1"_c]; }

    fake::Theatre theatre;
    int made = 0;
};

TEST_F(BigFolder, ListsAtOnceAndInOrder)
{
    ASSERT_EQ(made, manyFiles + manyFiles / 10);
    EXPECT_LT(secondsOf("press fil4"), atOnce);
    ASSERT_EQ(list().rows.size(), 10000U);
    EXPECT_EQ(list().rows.front(), "plan00000.mtd");
    EXPECT_EQ(list().rows.back(), "plan09999.mtd");
}

TEST_F(BigFolder, AnswersEachKeyAndEachRowAtOnce)
{
    theatre.play("press fil7");
    EXPECT_LT(secondsOf("put frmfile.Text1 plan09999"), atOnce);
    EXPECT_EQ(theatre.session->controls["frmfile.Command1"_c].caption, "Overwrite?");
    EXPECT_LT(secondsOf("backspace"), atOnce);
    EXPECT_EQ(theatre.session->controls["frmfile.Command1"_c].caption, "Save");
    EXPECT_LT(secondsOf("pick frmfile.File1 9998"), atOnce);
    EXPECT_EQ(theatre.session->controls["frmfile.Text1"_c].text, "plan09998.mtd");
    EXPECT_EQ(theatre.session->controls["frmfile.Command1"_c].caption, "Overwrite?");
}

} // namespace
} // namespace mirtane
