// What a reader of others finds in the writer's files. It is not asked for in a build without it.

#include "dxf_samples.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sys/wait.h>

namespace mirtane {
namespace {

using namespace samples;

struct Listing {
    std::string text;
    int status = 0;
};

Listing run(const std::string& command)
{
    Listing listing;
    std::FILE* const pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) return {"", -1};
    char part[4096];
    for (std::size_t n = 0; (n = std::fread(part, 1, sizeof part, pipe)) > 0;) listing.text.append(part, n);
    listing.status = WEXITSTATUS(pclose(pipe));
    return listing;
}

Listing listed(Drawing& drawing)
{
    const testing::TestInfo* const test = testing::UnitTest::GetInstance()->current_test_info();
    const std::filesystem::path path = testing::TempDir() + "mirtane-" + test->name() + ".dxf";
    std::ofstream(path, std::ios::binary) << drawing.file();
    // The system's own interpreter: another one would not see the system's packages.
    Listing listing =
        run("/usr/bin/python3 " MIRTANE_SOURCE_DIR "/tests/dxf/list_entities.py " + path.string() + " 2>&1");
    std::filesystem::remove(path);
    return listing;
}

constexpr int missing = 77;
constexpr int noInterpreter = 127;

bool isMissing(const Listing& listing)
{
    return listing.status == missing || listing.status == noInterpreter;
}

EntityRecord roundObject(Kind kind)
{
    EntityRecord r = object(kind);
    r.p1 = world(1, 2);
    r.rad = 36;
    r.a1 = 0.5;
    r.a2 = 1;
    return r;
}

TEST(OtherReader, FindsTheSameLinesAndTexts)
{
    EntityRecord dashed = lineObject(1, 2, 3.5F, -4);
    dashed.style = 1;
    dashed.color = 0x0000FF;
    EntityRecord note = object(Kind::text);
    note.p1 = world(5, 6);
    note.p2.x = 36;
    note.t1 = "Wall 3";
    Drawing drawing{dashed, note, lineObject(1e6F, 0, 1e-5F, 0.125F)};
    const Listing found = listed(drawing);
    if (isMissing(found)) GTEST_SKIP() << "python3-ezdxf is not installed";
    EXPECT_EQ(found.status, 0);
    EXPECT_EQ(found.text, "LINE 1 2 3.5 -4 clay 4 DASHED\n"
                          "TEXT 5 3 2 0 clay 8 Wall 3\n"
                          "LINE 1e+06 0 1e-05 0.125 clay 8 CONTINUOUS\n");
}

// It takes a code as a number, so it does not mind the two characters that end a circle. A reader that wants
// three would miss the object behind it, as our own does.
TEST(OtherReader, GoesOnBehindACircleAndAnArc)
{
    Drawing drawing{roundObject(Kind::circle), lineObject(0, 0, 1, 0), roundObject(Kind::arc),
                    lineObject(2, 0, 3, 0)};
    const Listing found = listed(drawing);
    if (isMissing(found)) GTEST_SKIP() << "python3-ezdxf is not installed";
    EXPECT_EQ(found.status, 0);
    EXPECT_EQ(found.text, "CIRCLE 1 2 3 clay 8 CONTINUOUS\n"
                          "LINE 0 0 1 0 clay 8 CONTINUOUS\n"
                          "ARC 1 2 3 28.6479 57.2958 clay 8 CONTINUOUS\n"
                          "LINE 2 0 3 0 clay 8 CONTINUOUS\n");
    Opened own(drawing.file());
    EXPECT_EQ(own.count(), 3);
}

TEST(OtherReader, TakesDimensionsApart)
{
    EntityRecord r = object(Kind::linearDimension);
    r.s1 = 3;
    r.s2 = 12;
    r.p2 = world(10, 0);
    r.p3 = world(10, 5);
    r.p4 = world(0, 5);
    r.p5 = world(4, 6);
    r.t1 = "10";
    Drawing drawing{r};
    const Listing found = listed(drawing);
    if (isMissing(found)) GTEST_SKIP() << "python3-ezdxf is not installed";
    EXPECT_EQ(found.text, "LINE 10 0.666 10 5.666 clay 8 CONTINUOUS\n"
                          "LINE 0 0.666 0 5.666 clay 8 CONTINUOUS\n"
                          "LINE 10 5 0 5 clay 8 CONTINUOUS\n"
                          "LINE 10.25 4.75 9.75 5.25 clay 8 CONTINUOUS\n"
                          "LINE 0.25 4.75 -0.25 5.25 clay 8 CONTINUOUS\n"
                          "TEXT 4 5 0.666667 0 clay 8 10\n");
}

} // namespace
} // namespace mirtane
