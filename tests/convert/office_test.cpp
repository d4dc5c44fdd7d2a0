// Drawings as lines of text, compared, and many at a time.

#include "convert/workers.h"
#include "convert_process.h"
#include "records.h"

#include <QImage>

#include <gmock/gmock.h>

#include <unistd.h>

#include <algorithm>
#include <regex>

namespace mirtane {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

EntityRecord headerOfOffice()
{
    EntityRecord r = fake::record(headerKind);
    r.t1 = "us";
    r.t2 = "Garamond";
    return r;
}

struct Office : testing::Test {
    void draw(const std::string& name, std::vector<EntityRecord> records) const
    {
        records.insert(records.begin(), headerOfOffice());
        p.writeDrawing(name, records);
    }

    fake::ConvertProcess p;
    const EntityRecord wall = fake::ofLooks(fake::line({0, 0}, {480, 360}), 0xFFFFFF);
    const EntityRecord tank = fake::ofLooks(fake::circle({300, 90}, 60), 0xFFFF00, 2);
    const EntityRecord pond = fake::ofLooks(fake::circle({90, 300}, 70), 0xFFFF00, 2);
};

TEST_F(Office, DrawingGoesToStandardOutputALineForEachObject)
{
    draw("house.mtd", {wall, tank});
    const fake::Converted got = p.run("--to txt -o - house.mtd");
    EXPECT_EQ(got.status, 0);
    EXPECT_EQ(got.err, "");
    EXPECT_THAT(got.out, StartsWith("drawing text-size="));
    EXPECT_THAT(got.out, HasSubstr("\nline layer=0 colour=#FFFFFF style=solid from=0,0 to=480,360\n"));
    EXPECT_EQ(std::ranges::count(got.out, '\n'), 3);
    EXPECT_EQ(p.run("house.mtd -o house.txt").status, 0);
    EXPECT_EQ(p.content("house.txt"), got.out);
}

TEST_F(Office, EmptyDrawingIsTextToo)
{
    draw("empty.mtd", {});
    const fake::Converted got = p.run("--to txt -o - empty.mtd");
    EXPECT_EQ(got.status, 0);
    EXPECT_EQ(std::ranges::count(got.out, '\n'), 1);
}

TEST_F(Office, StandardOutputTakesOneDrawingAsText)
{
    draw("house.mtd", {wall});
    for (const char* words :
         {"--to pdf -o - house.mtd", "--to txt -o - house.mtd house.mtd", "--to txt -o - -j 2 house.mtd"}) {
        const fake::Converted got = p.run(words);
        EXPECT_EQ(got.status, 2) << words;
        EXPECT_THAT(got.err, HasSubstr("standard output")) << words;
    }
}

// The three lines of the manual page, as they stand there.
std::string linesOfManual(const std::string& from, std::size_t count)
{
    std::ifstream file(std::string(MIRTANE_SOURCE_DIR) + "/docs/mirtane-convert.1");
    std::string line;
    std::string lines;
    while (std::getline(file, line) && line.find(from) == std::string::npos) {}
    for (; count > 0; --count) {
        lines += line + "\n";
        std::getline(file, line);
    }
    return std::regex_replace(lines, std::regex(R"(\\(?=-))"), "");
}

TEST_F(Office, VersionsOfADrawingAreComparedAsTheManualPageSetsItUp)
{
    draw("house.mtd", {wall, tank});
    const std::string setup = linesOfManual("*.mtd diff=", 3);
    p.write("session.sh", "set -e; export PATH=\"$(dirname '" MIRTANE_CONVERT "'):$PATH\"\n"
                          "export HOME=$PWD GIT_CONFIG_NOSYSTEM=1\ngit init -q .\n" +
                              setup + "git add house.mtd\nmv new.mtd house.mtd\ngit diff >diff.txt\n");
    draw("new.mtd", {wall, pond});
    if (std::system("git --version >/dev/null 2>&1") != 0) GTEST_SKIP() << "git is not installed";
    EXPECT_EQ(std::system(("cd '" + p.path("") + "' && sh session.sh >said 2>&1").c_str()), 0)
        << p.content("said") << setup;
    EXPECT_THAT(p.content("diff.txt"),
                HasSubstr("\n-circle layer=2 colour=#00FFFF style=solid centre=300,90"));
    EXPECT_THAT(p.content("diff.txt"),
                HasSubstr("\n+circle layer=2 colour=#00FFFF style=solid centre=90,300"));
    EXPECT_THAT(p.content("diff.txt"), Not(HasSubstr("\n+line")));
}

int pixelsAlike(const QImage& image, QRgb colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) == colour ? 1 : 0;
    }
    return count;
}

TEST_F(Office, ComparisonShowsWhatWentInRedAndWhatCameInGreen)
{
    draw("old.mtd", {wall, tank, wall});
    draw("new.mtd", {pond, wall});
    const fake::Converted got = p.run("--compare old.mtd new.mtd -o both.png --size 300x200");
    EXPECT_EQ(got.status, 0);
    EXPECT_EQ(got.out, "2 went, 1 came, 1 the same\n") << "a wall that stood there twice stands there once";
    const QImage image(QString::fromStdString(p.path("both.png")));
    ASSERT_EQ(image.width(), 300);
    EXPECT_GT(pixelsAlike(image, qRgb(255, 0, 0)), 200);
    EXPECT_GT(pixelsAlike(image, qRgb(0, 255, 0)), 100);
    EXPECT_EQ(p.run("--compare old.mtd old.mtd -o same.png").out, "0 went, 0 came, 3 the same\n");
    const QImage same(QString::fromStdString(p.path("same.png")));
    EXPECT_EQ(pixelsAlike(same, qRgb(255, 0, 0)), 0);
    EXPECT_GT(pixelsAlike(same, qRgb(128, 128, 128)), 500);
}

TEST_F(Office, ComparisonTakesTwoDrawingsAndMakesAPicture)
{
    draw("a.mtd", {wall});
    draw("b.mtd", {tank});
    struct Row {
        const char* words;
        int status;
        const char* said;
    };
    const Row rows[] = {
        {"--compare a.mtd -o c.png", 2, "two files"},
        {"--compare a.mtd b.mtd a.mtd -o c.png", 2, "two files"},
        {"--compare a.mtd b.mtd -o c.pdf", 2, "makes a .png"},
        {"--compare a.mtd missing.mtd -o c.png", 1, "missing.mtd: can't be read"},
    };
    for (const Row& row : rows) {
        const fake::Converted got = p.run(row.words);
        EXPECT_EQ(got.status, row.status) << row.words;
        EXPECT_THAT(got.err, HasSubstr(row.said)) << row.words;
        EXPECT_FALSE(p.exists("c.png")) << row.words;
    }
}

TEST_F(Office, ManyFilesAtATimeEndInATable)
{
    p.makeFolder("plots");
    std::string names;
    for (int i = 0; i < 12; ++i) {
        const std::string name = "plan" + std::to_string(i) + ".mtd";
        draw(name, {wall, tank});
        names += " " + name;
    }
    p.write("broken.mtd", "no drawing");
    const fake::Converted got = p.run("-j 3 broken.mtd" + names + " missing.mtd --to svg -o plots");
    EXPECT_EQ(got.status, 1);
    EXPECT_THAT(got.err, HasSubstr("mirtane-convert: missing.mtd: can't be read\n"));
    EXPECT_THAT(got.out, StartsWith("failed "));
    EXPECT_THAT(got.out, HasSubstr("\nwhole "));
    EXPECT_THAT(got.out, HasSubstr("14 files: 12 whole, 0 in part, 2 failed, in "));
    EXPECT_EQ(std::ranges::count(got.out, '\n'), 15);
    for (int i = 0; i < 12; ++i)
        EXPECT_THAT(p.content("plots/plan" + std::to_string(i) + ".svg"), HasSubstr("</svg>"));
    EXPECT_EQ(p.run("-j 0 plan1.mtd -o plan1.pdf").status, 0) << "as many as there are cores";
    EXPECT_EQ(p.run("-j x plan1.mtd -o plan1.pdf").status, 2);
}

TEST(Workers, OneThatBreaksDownTakesNoOtherFileWithIt)
{
    std::vector<convert::Job> jobs;
    for (int i = 0; i < 40; ++i) jobs.push_back({std::to_string(i), "", ""});
    const convert::Work work{[] {},
                             [](const convert::Job& job) {
                                 if (job.named.ends_with('7')) _exit(9);
                                 convert::Outcome outcome;
                                 outcome.remarks = {"seen " + job.named};
                                 outcome.leftOut = job.named.ends_with('3');
                                 return outcome;
                             }};
    std::size_t last = 0;
    const auto finished = convert::convertWithWorkers(jobs, 3, work, [&last](std::size_t n) { last = n; });
    ASSERT_EQ(finished.size(), jobs.size());
    EXPECT_EQ(last, jobs.size());
    for (std::size_t i = 0; i < jobs.size(); ++i) {
        const bool broken = i % 10 == 7;
        EXPECT_EQ(finished[i].outcome.fault.has_value(), broken) << i;
        EXPECT_EQ(finished[i].outcome.leftOut, i % 10 == 3) << i;
        if (broken) continue;
        EXPECT_THAT(finished[i].outcome.remarks, testing::ElementsAre("seen " + jobs[i].named));
    }
    EXPECT_THAT(convert::tableOf(jobs, finished, 1.25),
                HasSubstr("40 files: 32 whole, 4 in part, 4 failed, in 1.250 s\n"));
}

// As the manual page hands a folder of drawings to many machines, on two workers of this one. It is cut off
// in the middle, and taken up again.
TEST_F(Office, DrawingsAreHandedToManyMachinesAsTheManualPageSays)
{
    if (std::system("parallel --version >/dev/null 2>&1") != 0) GTEST_SKIP() << "parallel is not installed";
    p.makeFolder("plans");
    p.makeFolder("plots");
    for (int i = 0; i < 30; ++i) draw("plans/plan" + std::to_string(i) + ".mtd", {wall, tank});
    p.write("plans/broken.mtd", "no drawing");
    std::string lines = linesOfManual("find plans", 4);
    lines = std::regex_replace(lines, std::regex(R"(\\e)"), "\\");
    const std::string local = std::regex_replace(lines, std::regex("--sshlogin [^ ]+"), "--jobs 2");
    EXPECT_NE(local, lines) << lines;
    p.write("all.sh", "export HOME=$PWD PATH=\"$(dirname '" MIRTANE_CONVERT "'):$PATH\"\n" + local);
    const std::string in = "cd '" + p.path("") + "' && ";
    EXPECT_NE(std::system((in + "timeout -s TERM 1.5 sh all.sh >said 2>&1").c_str()), -1);
    const auto done = [this] {
        int count = 0;
        for (const auto& entry : std::filesystem::directory_iterator(p.path("plots"))) {
            // One that is being written has no plot's name yet, and what was cut off never gets one.
            if (entry.path().filename().string().starts_with('.')) continue;
            EXPECT_THAT(p.content("plots/" + entry.path().filename().string()), testing::EndsWith("%%EOF\n"));
            ++count;
        }
        return count;
    };
    const int first = done();
    EXPECT_NE(std::system((in + "sh all.sh >said 2>&1").c_str()), -1);
    EXPECT_EQ(done(), 30) << first << " before it was cut off; " << p.content("said");
    std::ifstream log(p.path("plots.log"));
    std::map<std::string, int> times;
    for (std::string line; std::getline(log, line);) ++times[line.substr(line.rfind('\t') + 1)];
    EXPECT_LE(std::ranges::count_if(times, [](const auto& row) { return row.second > 1; }), 3)
        << "what was done is not done again, but for what failed or was cut off";
}

} // namespace
} // namespace mirtane
