// mirtane-play as a process: what it prints, its exit status, its options.

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace mirtane {
namespace {

struct Outcome {
    int status = -1;
    std::string out, err;
};

std::string contentOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// Runs mirtane-play with words behind it in a folder of its own.
Outcome runPlay(const QTemporaryDir& folder, const std::string& words)
{
    const std::string path = folder.path().toStdString();
    const std::string line = "cd '" + path + "' && '" MIRTANE_PLAY "' " + words + " >out 2>err";
    Outcome run;
    const int status = std::system(line.c_str());
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    run.out = contentOf(path + "/out");
    run.err = contentOf(path + "/err");
    return run;
}

void writeScript(const QTemporaryDir& folder, const std::string& name, const std::string& lines)
{
    std::ofstream(folder.path().toStdString() + "/" + name) << lines;
}

TEST(PlayProgram, PrintsAnswersALineEachAndNothingElse)
{
    const QTemporaryDir folder;
    writeScript(folder, "a.play",
                "# remark\n\nclick 1 2\nget session.stepNo\nexpect alive == true\nfocused\n");
    const Outcome run = runPlay(folder, "a.play");
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "1\n\"pic1\"\n");
}

TEST(PlayProgram, EndsAtARefusedLineWithStatusTwoAndItsPlace)
{
    const QTemporaryDir folder;
    writeScript(folder, "a.play", "alive\n\njump 1 2\nalive\n");
    const Outcome run = runPlay(folder, "a.play");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "true\n");
    EXPECT_NE(run.err.find("a.play:3: "), std::string::npos) << run.err;
}

TEST(PlayProgram, EndsAtAFailedExpectWithStatusOneAndItsPlace)
{
    const QTemporaryDir folder;
    writeScript(folder, "a.play", "expect get session.stepNo == 0\nexpect get session.stepNo == 7\nalive\n");
    const Outcome run = runPlay(folder, "a.play");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err.find("a.play:2: "), std::string::npos) << run.err;
}

TEST(PlayProgram, TellsItsVersionAndItsOptionsAndEnds)
{
    const QTemporaryDir folder;
    const Outcome version = runPlay(folder, "--version");
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.out, "mirtane-play 4.00\n");
    const Outcome help = runPlay(folder, "--help");
    EXPECT_EQ(help.status, 0);
    for (const char* option : {"--size WxH", "--home DIR", "--version"})
        EXPECT_NE(help.out.find(option), std::string::npos) << option;
    EXPECT_EQ(version.err + help.err, "");
    EXPECT_EQ(runPlay(folder, "--help extra.play").status, 2);
}

TEST(PlayProgram, EndsWithStatusZeroAfterExit)
{
    const QTemporaryDir folder;
    writeScript(folder, "a.play", "press fil14\nalive\n");
    const Outcome run = runPlay(folder, "a.play");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "false\n");
    writeScript(folder, "b.play", "press fil14\nclick 1 2\n");
    EXPECT_EQ(runPlay(folder, "b.play").status, 2);
}

TEST(PlayProgram, ReadsStandardInputWithoutAFileOrWithADash)
{
    const QTemporaryDir folder;
    writeScript(folder, "a.play", "click 1 2\nops\nget session.stepNo\njump\n");
    for (const char* words : {"<a.play", "- <a.play"}) {
        const Outcome run = runPlay(folder, words);
        EXPECT_EQ(run.status, 2) << words;
        EXPECT_NE(run.out.find("\n1\n"), std::string::npos) << words;
        EXPECT_NE(run.err.find(":4: "), std::string::npos) << run.err;
    }
}

TEST(PlayProgram, TakesASizeInPixels)
{
    const QTemporaryDir folder;
    writeScript(folder, "a.play",
                "image p.png\nget session.viewRight\nget session.viewBottom\nresize 80 50\n"
                "get session.viewRight\n");
    EXPECT_EQ(runPlay(folder, "a.play").out, "[1200,800]\n4800\n3200\n320\n");
    EXPECT_EQ(runPlay(folder, "--size 300x200 a.play").out, "[300,200]\n1200\n800\n320\n");
    for (const char* words : {"--size 300 a.play", "--size 0x5 a.play", "--size", "--size axb a.play",
                              "--nothing a.play", "nowhere.play"}) {
        EXPECT_EQ(runPlay(folder, words).status, 2) << words;
    }
}

TEST(PlayProgram, KeepsDrawingsAndSettingsInItsHome)
{
    const QTemporaryDir folder;
    writeScript(folder, "save.play",
                "press fil7\nput frmfile.Text1 house\nenter\nget frmfile.Dir1.text\nclose\n");
    const Outcome saved = runPlay(folder, "--home home save.play");
    EXPECT_EQ(saved.status, 0) << saved.err;
    const std::string home = folder.path().toStdString() + "/home";
    EXPECT_EQ(contentOf(home + "/house.mtd").size(), 100U);
    EXPECT_NE(contentOf(home + "/settings.ini").find("Garamond"), std::string::npos);
    writeScript(folder, "look.play", "press fil4\nget frmfile.File1.rows\n");
    EXPECT_EQ(runPlay(folder, "--home home look.play").out, "[\"house.mtd\"]\n");
    EXPECT_EQ(runPlay(folder, "look.play").out, "[]\n"); // a fresh home of its own
}

TEST(PlayProgram, ReadsAPipeAsItReadsAFile)
{
    const QTemporaryDir folder;
    writeScript(folder, "a.play", "focused\nexpect alive == false\n");
    const Outcome run = runPlay(folder, "/dev/stdin < /dev/null; cat a.play | '" MIRTANE_PLAY "' /dev/stdin");
    EXPECT_EQ(run.status, 1) << run.err;
    EXPECT_EQ(run.out, "\"pic1\"\n");
}

TEST(PlayProgram, RefusesWhatIsNoFileAndASecondOne)
{
    const QTemporaryDir folder;
    writeScript(folder, "a.play", "alive\n");
    for (const char* words : {".", "nowhere.play", "a.play a.play"})
        EXPECT_EQ(runPlay(folder, words).status, 2) << words;
}

TEST(PlayProgram, SaysWhenItsAnswersCannotBeWritten)
{
    const QTemporaryDir folder;
    writeScript(folder, "a.play", "alive\n");
    EXPECT_EQ(runPlay(folder, "a.play >/dev/full 2>err; exit $?; true").status, 2);
}

TEST(PlayProgram, ExpectsWhatAQuestionWithItsOwnSignsAnswers)
{
    const QTemporaryDir folder;
    writeScript(folder, "a.play", "expect image \"a == b.png\" == [1200,800]\nexpect alive == false\n");
    const Outcome run = runPlay(folder, "a.play");
    EXPECT_EQ(run.status, 1) << run.err;
    EXPECT_NE(run.err.find("a.play:2: "), std::string::npos) << run.err;
}

} // namespace
} // namespace mirtane
