#include "read_in_full.h"

#include <gtest/gtest.h>

#include <numbers>

namespace mirtane {
namespace {

using std::numbers::pi;

TEST(EllipseRecord, WholeOnesAreEllipsesAndPartsAreArcs)
{
    const auto whole = madeFrom(
        "0 ELLIPSE\n8 0\n10 30\n20 -7\n30 0\n11 4\n21 3\n31 0\n40 0.4\n41 0\n42 6.283185307179586\n");
    ASSERT_EQ(whole.objects.size(), 1U);
    EXPECT_EQ(whole.objects[0].kind, Kind::ellipse);
    EXPECT_NEAR(length(whole.objects[0].p[0] - whole.objects[0].p[1]), 5, 1e-9);
    EXPECT_EQ(whole.objects[0].p[1], (Vec{30, -7}));
    EXPECT_NEAR(whole.objects[0].ratio, 0.4, 1e-9);

    const auto round = madeFrom("0 ELLIPSE\n8 0\n10 30\n20 -7\n11 4\n21 3\n40 1\n41 1\n42 2\n");
    ASSERT_EQ(round.objects.size(), 1U);
    EXPECT_EQ(round.objects[0].kind, Kind::arc);
    EXPECT_NEAR(round.objects[0].radius, 5, 1e-9);
    EXPECT_NEAR(round.objects[0].from, 1 + std::atan2(3, 4), 1e-9);

    const auto part = madeFrom("0 ELLIPSE\n8 0\n10 30\n20 -7\n11 4\n21 3\n40 0.4\n41 5.5\n42 1.2\n");
    EXPECT_GE(part.objects.size(), 2U);
    EXPECT_EQ(ofKind(part, Kind::arc).size(), part.objects.size());
}

TEST(EllipseRecord, ANormalThatPointsDownTurnsItOver)
{
    // The quarter from the end of the longer axis to that of the shorter one, which is then on the right of
    // it.
    const auto under = madeFrom("0 ELLIPSE\n8 0\n10 0\n20 0\n11 9\n21 0\n40 0.5\n41 0\n42 "
                                "1.5707963267948966\n210 0\n220 0\n230 -1\n");
    ASSERT_FALSE(under.objects.empty());
    for (const Made& one : under.objects) {
        const Vec middle = one.p[0] + one.radius * wayAt((one.from + one.to) / 2);
        EXPECT_LT(middle.y, 0);
        EXPECT_GT(middle.x, 0);
    }
}

TEST(SplineRecord, ByControlPointsWeightsOrPointsOnIt)
{
    const std::string quarter = "0 SPLINE\n8 0\n70 4\n71 2\n72 6\n73 3\n40 0\n40 0\n40 0\n40 1\n40 1\n40 "
                                "1\n41 1\n41 0.7071067811865476\n41 1\n"
                                "10 107\n20 50\n30 0\n10 107\n20 57\n30 0\n10 100\n20 57\n30 0\n";
    const auto arc = madeFrom(quarter);
    ASSERT_EQ(arc.objects.size(), 1U);
    EXPECT_EQ(arc.objects[0].kind, Kind::arc);
    EXPECT_NEAR(arc.objects[0].radius, 7, 1e-6);
    EXPECT_NEAR(arc.objects[0].p[0].x, 100, 1e-6);

    const auto through = madeFrom("0 SPLINE\n8 0\n70 8\n71 3\n74 4\n11 0\n21 0\n31 0\n11 5\n21 5\n31 0\n11 "
                                  "12\n21 3\n31 0\n11 14\n21 -6\n31 0\n");
    EXPECT_GE(ofKind(through, Kind::arc).size(), 3U);
    EXPECT_TRUE(through.leftOut.empty());

    const auto none = madeFrom("0 SPLINE\n8 0\n70 8\n71 3\n73 2\n10 0\n20 0\n10 5\n20 5\n");
    EXPECT_TRUE(none.objects.empty());
    EXPECT_EQ(none.leftOut.size(), 1U);
}

TEST(SplineRecord, InABlockItIsDrawnAsTheInsertStretchesIt)
{
    const std::string block = "0 BLOCK\n2 B\n70 0\n10 0\n20 0\n0 SPLINE\n8 0\n70 8\n71 2\n73 3\n40 0\n40 "
                              "0\n40 0\n40 1\n40 1\n40 1\n"
                              "10 0\n20 0\n10 10\n20 0\n10 10\n20 10\n0 ENDBLK\n";
    const auto drawing = madeFrom("0 INSERT\n8 0\n2 B\n10 100\n20 0\n41 3\n42 -1\n", block);
    ASSERT_FALSE(drawing.objects.empty());
    const Made& first = drawing.objects.front();
    EXPECT_NEAR(length(first.p[0] - Vec{100, 0}), first.radius, 1e-6);
    const Made& last = drawing.objects.back();
    EXPECT_NEAR(length(last.p[0] - Vec{130, -10}), last.radius, 1e-6);
}

TEST(EndlessLines, GoAsFarBeyondTheDrawingAsHalfItsSize)
{
    const std::string box = "0 LINE\n8 0\n10 0\n20 0\n11 30\n21 40\n";
    const auto drawing =
        madeFrom("0 XLINE\n8 0\n10 3\n20 4\n11 0.6\n21 0.8\n0 RAY\n8 0\n10 3\n20 4\n11 0\n21 -1\n" + box);
    const auto lines = ofKind(drawing, Kind::line);
    ASSERT_EQ(lines.size(), 3U);
    // the drawing is 30 by 40, and 50 across
    EXPECT_NEAR(length(lines[1].p[0] - Vec{-18.75, -25}), 0, 1e-9);
    EXPECT_NEAR(length(lines[1].p[1] - Vec{48.75, 65}), 0, 1e-9);
    EXPECT_EQ(lines[2].p[0], (Vec{3, 4}));
    EXPECT_NEAR(length(lines[2].p[1] - Vec{3, -25}), 0, 1e-9);
}

// Where they begin says nothing of where the drawing is.
TEST(EndlessLines, ThatComeFromFarOffAreCutToTheDrawing)
{
    const std::string box = "0 LINE\n8 0\n10 0\n20 0\n11 30\n21 40\n";
    struct Row {
        const char* what;
        const char* record;
        std::vector<Vec> ends; // none: nothing of it is near
    };
    const Row rows[] = {
        {"level", "0 XLINE\n8 0\n10 90000\n20 11\n11 1\n21 0\n", {{-25, 11}, {55, 11}}},
        {"slanted, backward", "0 XLINE\n8 0\n10 90000\n20 90020\n11 -1\n21 -1\n", {{45, 65}, {-25, -5}}},
        {"towards it", "0 RAY\n8 0\n10 15\n20 -70000\n11 0\n21 2\n", {{15, -25}, {15, 65}}},
        {"away from it", "0 RAY\n8 0\n10 15\n20 -70000\n11 0\n21 -2\n", {}},
        {"beside it", "0 XLINE\n8 0\n10 0\n20 500\n11 1\n21 0\n", {}},
    };
    for (const Row& row : rows) {
        const auto drawing = madeFrom(row.record + box);
        const auto lines = ofKind(drawing, Kind::line);
        ASSERT_EQ(lines.size(), row.ends.empty() ? 1U : 2U) << row.what;
        EXPECT_EQ(drawing.leftOut.size(), row.ends.empty() ? 1U : 0U) << row.what;
        if (row.ends.empty()) continue;
        EXPECT_LT(length(lines[1].p[0] - row.ends[0]), 1e-6) << row.what;
        EXPECT_LT(length(lines[1].p[1] - row.ends[1]), 1e-6) << row.what;
    }
}

TEST(Tables, AreDrawnByTheirBlock)
{
    const std::string block =
        "0 BLOCK\n2 *T1\n70 1\n10 0\n20 0\n0 LINE\n8 0\n10 0\n20 0\n11 5\n21 -2\n0 ENDBLK\n";
    const auto drawing = madeFrom(
        "0 ACAD_TABLE\n8 0\n2 *T1\n10 40\n20 9\n30 0\n0 ACAD_TABLE\n8 0\n2 *T2\n10 0\n20 0\n", block);
    ASSERT_EQ(drawing.objects.size(), 1U);
    EXPECT_EQ(drawing.objects[0].p[1], (Vec{45, 7}));
    EXPECT_EQ(drawing.leftOut.size(), 1U);
}

TEST(Multilines, HaveTheirLinesAtTheirDistances)
{
    const std::string corner = "12 1\n22 0\n32 0\n";
    const auto drawing = madeFrom(
        "0 MLINE\n8 0\n2 STANDARD\n40 1\n70 0\n71 1\n72 2\n73 2\n10 0\n20 0\n30 0\n210 0\n220 0\n230 1\n"
        "11 5\n21 5\n31 0\n" +
        corner +
        "13 0\n23 1\n33 0\n74 2\n41 0.5\n41 0\n75 0\n74 2\n41 -0.5\n41 0\n75 0\n"
        "11 25\n21 5\n31 0\n" +
        corner + "13 0.6\n23 0.8\n33 0\n74 2\n41 1\n41 0\n75 0\n74 2\n41 -1\n41 0\n75 0\n");
    ASSERT_EQ(drawing.objects.size(), 2U);
    EXPECT_EQ(drawing.objects[0].p[0], (Vec{5, 5.5}));
    EXPECT_LT(length(drawing.objects[0].p[1] - Vec{25.6, 5.8}), 1e-9);
    EXPECT_LT(length(drawing.objects[1].p[1] - Vec{24.4, 4.2}), 1e-9);
}

TEST(Multilines, TakePensAndCapsFromTheirStyle)
{
    const std::string corner =
        "12 1\n22 0\n32 0\n13 0\n23 1\n33 0\n74 2\n41 2\n41 0\n75 0\n74 2\n41 -3\n41 0\n75 0\n";
    const std::string line =
        "0 MLINE\n8 0\n340 5C\n70 0\n71 1\n72 2\n73 2\n10 0\n20 0\n30 0\n11 0\n21 0\n31 0\n" + corner +
        "11 20\n21 0\n31 0\n" + corner;
    const std::string style = "0 ENDSEC\n0 SECTION\n2 OBJECTS\n0 MLINESTYLE\n5 5C\n2 DOUBLE\n70 16\n62 "
                              "256\n71 2\n49 2\n62 1\n6 BYLAYER\n49 -3\n62 5\n6 BYLAYER\n";
    const auto drawing = madeFrom(line + style);
    ASSERT_EQ(drawing.objects.size(), 3U);
    EXPECT_EQ(drawing.objects[0].p[0], (Vec{0, -3})); // the cap at the start
    EXPECT_EQ(drawing.objects[0].p[1], (Vec{0, 2}));
    EXPECT_EQ(drawing.objects[1].look.color, 0x0000FF);
    EXPECT_EQ(drawing.objects[2].look.color, 0xFF0000);
}

} // namespace
} // namespace mirtane
