#include "memory_ports.h"
#include "platform/posix/open_marks.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace mirtane {
namespace {

class OpenMarksTest : public testing::Test {
  protected:
    OpenMarksTest()
    {
        EXPECT_TRUE(QDir().mkpath(folder_.filePath("plans")));
        for (const char* name : {"plans/a.mtd", "plans/b.mtd"}) {
            EXPECT_TRUE(QFile(folder_.filePath(name)).open(QIODevice::WriteOnly));
        }
    }

    std::string at(const std::string& name) const { return folder_.path().toStdString() + "/" + name; }
    StateFolder state() const { return StateFolder(at("state")); }
    QStringList marks() const
    {
        return QDir(folder_.filePath("state")).entryList(QDir::Files | QDir::Hidden);
    }

    // A program of its own that has the drawing open, until it is killed.
    pid_t another(const std::string& path) const
    {
        int ends[2];
        if (pipe(ends) != 0) return -1;
        const pid_t child = fork();
        if (child == 0) {
            PosixOpenMarks theirs(state());
            const char done = theirs.mark(path) ? 'y' : 'n';
            if (write(ends[1], &done, 1) == 1) pause();
            _exit(1);
        }
        char done = 'n';
        EXPECT_EQ(read(ends[0], &done, 1), 1);
        EXPECT_EQ(done, 'y');
        close(ends[0]);
        close(ends[1]);
        return child;
    }
    static void end(pid_t child)
    {
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
    }

    QTemporaryDir folder_;
    PosixOpenMarks marks_{state()};
};

TEST_F(OpenMarksTest, OfAnotherProgramAreSeenUntilItEndsHoweverItEnds)
{
    EXPECT_FALSE(marks_.markedByAnother(at("plans/a.mtd")).has_value());
    const pid_t other = another(at("plans/a.mtd"));
    ASSERT_TRUE(marks_.markedByAnother(at("plans/a.mtd")).has_value());
    EXPECT_EQ(marks_.markedByAnother(at("plans/a.mtd"))->process, other);
    EXPECT_FALSE(marks_.markedByAnother(at("plans/b.mtd")).has_value());
    QFile mark(folder_.filePath("state/" + marks().value(0)));
    ASSERT_TRUE(mark.open(QIODevice::ReadOnly));
    EXPECT_EQ(mark.readAll().toStdString(), std::to_string(other) + "\n" + at("plans/a.mtd") + "\n");
    end(other);
    EXPECT_EQ(marks().size(), 1) << "the mark is still there";
    EXPECT_FALSE(marks_.markedByAnother(at("plans/a.mtd")).has_value());
    EXPECT_EQ(marks(), QStringList()) << "and is removed by who finds it";
}

TEST_F(OpenMarksTest, OfThisProgramAreNoneOfAnother)
{
    EXPECT_TRUE(marks_.mark(at("plans/a.mtd")));
    EXPECT_TRUE(marks_.mark(at("plans/a.mtd"))) << "twice is once";
    EXPECT_EQ(marks().size(), 1);
    EXPECT_FALSE(marks_.markedByAnother(at("plans/a.mtd")).has_value());
    PosixOpenMarks theirs(state());
    EXPECT_TRUE(theirs.markedByAnother(at("plans/a.mtd")).has_value());
    marks_.unmark(at("plans/b.mtd"));
    EXPECT_TRUE(theirs.markedByAnother(at("plans/a.mtd")).has_value());
    marks_.unmark(at("plans/a.mtd"));
    EXPECT_FALSE(theirs.markedByAnother(at("plans/a.mtd")).has_value());
    EXPECT_EQ(marks(), QStringList());
}

TEST_F(OpenMarksTest, OfSeveralProgramsStandSideBySide)
{
    const pid_t first = another(at("plans/a.mtd"));
    const pid_t second = another(at("plans/a.mtd"));
    EXPECT_TRUE(marks_.mark(at("plans/a.mtd")));
    end(first);
    ASSERT_TRUE(marks_.markedByAnother(at("plans/a.mtd")).has_value());
    EXPECT_EQ(marks_.markedByAnother(at("plans/a.mtd"))->process, second);
    end(second);
    EXPECT_FALSE(marks_.markedByAnother(at("plans/a.mtd")).has_value());
    EXPECT_EQ(marks().size(), 1) << "our own";
}

TEST_F(OpenMarksTest, OfTheDeadAreRemovedWithTheNext)
{
    const pid_t first = another(at("plans/a.mtd"));
    const pid_t second = another(at("plans/b.mtd"));
    QFile notes(folder_.filePath("state/open-notes"));
    ASSERT_TRUE(notes.open(QIODevice::WriteOnly));
    end(first);
    EXPECT_TRUE(marks_.mark(at("plans/c.mtd")));
    EXPECT_EQ(marks().size(), 3) << "the living one's, our own, and what is no mark";
    EXPECT_TRUE(marks_.markedByAnother(at("plans/b.mtd")).has_value());
    end(second);
    EXPECT_TRUE(marks_.mark(at("plans/a.mtd")));
    EXPECT_EQ(marks().size(), 3) << "two of our own, and what is no mark";
}

TEST_F(OpenMarksTest, GoWithTheirProgram)
{
    {
        PosixOpenMarks theirs(state());
        EXPECT_TRUE(theirs.mark(at("plans/a.mtd")));
        EXPECT_TRUE(theirs.mark(at("plans/b.mtd")));
        EXPECT_EQ(marks().size(), 2);
    }
    EXPECT_EQ(marks(), QStringList());
}

TEST_F(OpenMarksTest, AreOfTheFileHoweverItIsNamed)
{
    ASSERT_TRUE(QFile::link("plans/a.mtd", folder_.filePath("link.mtd")));
    ASSERT_TRUE(QFile::link("plans", folder_.filePath("folder")));
    const pid_t other = another(at("link.mtd"));
    for (const char* name : {"link.mtd", "plans/a.mtd", "folder/a.mtd", "plans/../folder/./a.mtd"}) {
        EXPECT_TRUE(marks_.markedByAnother(at(name)).has_value()) << name;
    }
    end(other);
    const pid_t unborn = another(at("folder/new\n drawing.mtd"));
    EXPECT_TRUE(marks_.markedByAnother(at("plans/new\n drawing.mtd")).has_value()) << "not yet saved";
    end(unborn);
}

TEST_F(OpenMarksTest, ThatCanNotBeLeftAreNone)
{
    PosixOpenMarks nowhere{StateFolder("")};
    EXPECT_FALSE(nowhere.mark(at("plans/a.mtd")));
    EXPECT_FALSE(nowhere.markedByAnother(at("plans/a.mtd")).has_value());
    nowhere.unmark(at("plans/a.mtd"));
    PosixOpenMarks inFile{StateFolder(at("plans/a.mtd"))};
    EXPECT_FALSE(inFile.mark(at("plans/b.mtd")));
    EXPECT_FALSE(inFile.markedByAnother(at("plans/b.mtd")).has_value());
}

TEST(MemoryOpenMarks, AreAsThoseOfTheSystem)
{
    fake::MemoryOpenMarks marks;
    EXPECT_TRUE(marks.mark("/a"));
    EXPECT_FALSE(marks.markedByAnother("/a").has_value());
    marks.ofOthers["/a"] = {4711, "09:12"};
    ASSERT_TRUE(marks.markedByAnother("/a").has_value());
    EXPECT_EQ(marks.markedByAnother("/a")->process, 4711);
    marks.unmark("/a");
    EXPECT_TRUE(marks.marks.empty());
    marks.refusesMarks = true;
    EXPECT_FALSE(marks.mark("/b"));
}

} // namespace
} // namespace mirtane
