#include "read_in_full.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace mirtane {
namespace {

const std::string begin = "0 HATCH\n8 0\n10 0\n20 0\n30 0\n210 0\n220 0\n230 1\n2 ANY\n";
const std::string square =
    "92 3\n72 0\n73 1\n93 4\n10 10\n20 10\n10 20\n20 10\n10 20\n20 20\n10 10\n20 20\n97 0\n";
const std::string hole =
    "92 2\n72 0\n73 1\n93 4\n10 13\n20 13\n10 17\n20 13\n10 17\n20 17\n10 13\n20 17\n97 1\n330 2A\n";
const std::string inHole =
    "92 2\n72 0\n73 1\n93 4\n10 14\n20 14\n10 16\n20 14\n10 16\n20 16\n10 14\n20 16\n97 0\n";

std::string level(double apart)
{
    return "78 1\n53 0\n43 0\n44 0.5\n45 0\n46 " + std::to_string(apart) + "\n79 0\n";
}

double lengthOfAll(const std::vector<Made>& lines)
{
    double all = 0;
    for (const Made& line : lines) all += length(line.p[1] - line.p[0]);
    return all;
}

struct HatchRow {
    const char* what;
    std::string paths;
    int style;
    double lines; // their length, with a line to each unit of height
};

TEST(Hatch, ItsLinesAreCutToItsLoopsAndItsStyleSaysWhichCount)
{
    const HatchRow rows[] = {
        {"one loop", "91 1\n" + square, 0, 100},
        {"a hole", "91 2\n" + square + hole, 0, 84},
        {"the hole first", "91 2\n" + hole + square, 0, 84},
        {"an island in the hole", "91 3\n" + square + hole + inHole, 0, 88},
        {"the outer part alone", "91 3\n" + square + hole + inHole, 1, 84},
        {"no islands", "91 3\n" + square + hole + inHole, 2, 100},
        {"edges",
         "91 1\n92 1\n93 4\n72 1\n10 10\n20 10\n11 20\n21 10\n72 1\n10 20\n20 20\n11 20\n21 10\n72 1\n10 "
         "20\n20 20\n11 10\n"
         "21 20\n72 1\n10 10\n20 20\n11 10\n21 10\n97 0\n",
         0, 100},
        {"edges in any order",
         "91 1\n92 1\n93 4\n72 1\n10 10\n20 10\n11 20\n21 10\n72 1\n10 20\n20 20\n11 10\n21 20\n72 1\n10 "
         "20\n20 10\n11 20\n"
         "21 20\n72 1\n10 10\n20 20\n11 10\n21 10\n97 0\n",
         0, 100},
        {"two loops in one path",
         "91 1\n92 1\n93 6\n72 1\n10 0\n20 0\n11 10\n21 0\n72 1\n10 60\n20 0\n11 70\n21 0\n72 1\n10 10\n20 "
         "0\n11 0\n"
         "21 10\n72 1\n10 70\n20 0\n11 60\n21 10\n72 1\n10 0\n20 0\n11 0\n21 10\n72 1\n10 60\n20 0\n11 "
         "60\n21 10\n",
         0, 100},
        {"a half circle clockwise",
         "91 1\n92 1\n93 2\n72 2\n10 15\n20 15\n40 8\n50 0\n51 180\n73 0\n72 1\n10 7\n20 15\n11 23\n21 "
         "15\n97 0\n",
         0, 100.6},
        {"a whole circle", "91 1\n92 1\n93 1\n72 2\n10 15\n20 15\n40 8\n50 0\n51 360\n73 1\n97 0\n", 0, 201},
        {"bulges", "91 1\n92 3\n72 1\n73 1\n93 2\n10 7\n20 15\n42 1\n10 23\n20 15\n42 1\n97 0\n", 0, 201},
        {"half an ellipse",
         "91 1\n92 1\n93 2\n72 3\n10 15\n20 15\n11 10\n21 0\n40 0.5\n50 0\n51 180\n73 1\n72 1\n10 5\n20 "
         "15\n11 25\n21 15\n97 0\n",
         0, 78.5},
        {"a spline",
         "91 1\n92 1\n93 2\n72 4\n94 2\n73 0\n74 0\n95 6\n96 3\n40 0\n40 0\n40 0\n40 1\n40 1\n40 1\n10 "
         "10\n20 10\n10 15\n20 20\n10 20\n20 10\n"
         "97 0\n72 1\n10 20\n20 10\n11 10\n21 10\n97 0\n",
         0, 33.3},
    };
    for (const HatchRow& row : rows) {
        const std::string end =
            "75 " + std::to_string(row.style) + "\n76 1\n52 0\n41 1\n77 0\n" + level(1) + "98 0\n";
        const auto drawing = madeFrom(begin + "70 0\n71 0\n" + row.paths + end);
        const auto lines = ofKind(drawing, Kind::line);
        EXPECT_EQ(lines.size(), drawing.objects.size()) << row.what;
        EXPECT_NEAR(lengthOfAll(lines), row.lines, row.lines / 50) << row.what;
        EXPECT_TRUE(std::ranges::all_of(lines, [](const Made& l) {
            return std::abs(l.p[0].y - l.p[1].y) < 1e-9;
        })) << row.what;
        EXPECT_TRUE(drawing.leftOut.empty()) << row.what;
    }
}

// A part of an ellipse counts its ends by the angle that they are seen at in some programs, by the parameter
// in others.
TEST(Hatch, PartsOfEllipsesAreReadSoThatTheyMeetTheirNeighbours)
{
    for (const char* ends : {"50 45\n51 135\n", "50 26.5650511771\n51 153.434948823\n"}) {
        const std::string path =
            std::string("91 1\n92 1\n93 2\n72 3\n10 0\n20 0\n11 10\n21 0\n40 0.5\n") + ends +
            "73 1\n72 1\n10 -7.0710678\n20 3.5355339\n11 7.0710678\n21 3.5355339\n97 0\n";
        const auto drawing = madeFrom(begin + "70 0\n71 0\n" + path + "75 0\n76 1\n52 0\n41 1\n77 0\n" +
                                      level(0.1) + "98 0\n");
        double left = 0;
        for (const Made& line : drawing.objects) left = std::min({left, line.p[0].x, line.p[1].x});
        EXPECT_NEAR(left, -7, 0.2) << ends;
    }
}

TEST(Hatch, SolidOnesHaveTheirOutlineAndLinesCloseTogether)
{
    const auto drawing = madeFrom(begin + "70 1\n71 0\n91 2\n" + square + hole + "75 0\n76 1\n98 0\n");
    const auto lines = ofKind(drawing, Kind::line);
    EXPECT_GT(lines.size(), 50U);
    EXPECT_LT(lines.size(), 300U);
    const auto isEdge = [](const Made& l) { return l.p[0] == Vec{20, 10} && l.p[1] == Vec{20, 20}; };
    EXPECT_EQ(std::ranges::count_if(lines, isEdge), 1);
}

TEST(Hatch, TooDenseAPatternGivesWayToTheOutlineAndIsSaid)
{
    const auto drawing = madeFrom(begin + "70 0\n71 0\n91 1\n" + square + "75 0\n76 1\n52 0\n41 1\n77 0\n" +
                                  level(1e-6) + "98 0\n");
    EXPECT_EQ(drawing.objects.size(), 4U);
    EXPECT_EQ(drawing.leftOut.size(), 1U);
}

TEST(Hatch, OneWithoutAPatternIsItsOutlineAndSaid_OneWithoutPathsIsNothing)
{
    const auto bare = madeFrom(begin + "70 0\n71 0\n91 1\n" + square + "75 0\n76 1\n78 0\n");
    EXPECT_EQ(bare.objects.size(), 4U);
    EXPECT_EQ(bare.leftOut.size(), 1U);
    const auto nothing = madeFrom(begin + "70 1\n71 0\n91 0\n75 1\n76 1\n98 0\n");
    EXPECT_TRUE(nothing.objects.empty());
    EXPECT_TRUE(nothing.leftOut.empty());
}

// Those of few lines have room before those of many, and lines and circles before any.
TEST(Hatch, WhereTheTableEndsTheOutlineStandsForTheLines)
{
    const std::string path = "71 0\n91 1\n" + square + "75 0\n76 1\n52 0\n41 1\n77 0\n";
    std::string hatches;
    for (int i = 0; i < 12; ++i) hatches += begin + "70 0\n" + path + level(0.002);
    const auto drawing =
        madeFrom(hatches + begin + "70 0\n" + path + level(1) + "0 CIRCLE\n8 0\n10 3\n20 3\n40 1\n");
    EXPECT_LE(drawing.objects.size(), 58'000U);
    EXPECT_GT(drawing.objects.size(), 50'000U);
    EXPECT_EQ(drawing.withoutRoom, 0);
    EXPECT_EQ(drawing.objects[0].kind, Kind::circle);
    EXPECT_NEAR(lengthOfAll({drawing.objects.begin() + 1, drawing.objects.begin() + 11}), 100, 1e-6);
    ASSERT_EQ(drawing.leftOut.size(), 1U);
    EXPECT_EQ(drawing.leftOut.begin()->second, 1);
}

TEST(Hatch, CutShortItTakesNoHarm)
{
    const std::string whole = fileOf(begin + "70 0\n71 0\n91 3\n" + square + hole + inHole +
                                     "75 0\n76 1\n52 0\n41 1\n77 0\n" + level(1) + "98 0\n");
    for (std::size_t n = 0; n < whole.size(); ++n)
        EXPECT_LT(readInFull(whole.substr(0, n)).drawing.objects.size(), 100U);
}

} // namespace
} // namespace mirtane
