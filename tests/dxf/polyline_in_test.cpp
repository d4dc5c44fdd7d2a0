#include "dxf_samples.h"

#include "dxf/open_slot.h"

#include <gtest/gtest.h>

#include <cmath>

namespace mirtane {
namespace {

using namespace samples;

struct Vertex {
    std::string_view x, y;
    std::string_view bulge = "0";
};

std::string polyline(std::string_view flag, std::initializer_list<Vertex> vertices)
{
    std::string text = lines({"POLYLINE", " 66", "     1", " 10", "0", " 20", "0", " 70", flag});
    for (const Vertex& v : vertices) text += lines({"  0", "VERTEX", " 10", v.x, " 20", v.y, " 42", v.bulge});
    return text + lines({"  0", "SEQEND", "  0"});
}

TEST(DxfPolyline, OpenOneHasALineBetweenEachTwoVertices)
{
    Opened o(polyline("0", {{"1", "1"}, {"2", "1"}, {"2", "3"}}) + lines({"LINE", " 10", "9", "  0"}));
    ASSERT_EQ(o.count(), 4);
    EXPECT_EQ(o.at(1).kind, Kind::line);
    EXPECT_EQ(o.at(1).p1, (Point{12, -12}));
    EXPECT_EQ(o.at(1).p2, (Point{24, -12}));
    EXPECT_EQ(o.at(2).p1, (Point{24, -12}));
    EXPECT_EQ(o.at(2).p2, (Point{24, -36}));
    EXPECT_EQ(o.at(3).p1.x, 108);
    EXPECT_EQ(o.stat(2), Stat::on);
}

TEST(DxfPolyline, ClosedByOneOfThreeFlags)
{
    const struct {
        std::string_view flag;
        std::int32_t count;
    } rows[] = {{"1", 4}, {"32", 4}, {"129", 4}, {"     1", 4}, {"0", 3}, {"8", 3}, {"9", 3}, {"33", 3}};
    for (const auto& row : rows) {
        Opened o(polyline(row.flag, {{"1", "1"}, {"2", "1"}, {"2", "3"}}));
        ASSERT_EQ(o.count(), row.count) << row.flag;
        if (row.count < 4) continue;
        EXPECT_EQ(o.at(3).p1, (Point{24, -36}));
        EXPECT_EQ(o.at(3).p2, (Point{12, -12}));
    }
}

TEST(DxfPolyline, SegmentWithoutItsEndIsNone)
{
    const std::string start =
        lines({"POLYLINE", " 70", "1", "VERTEX", " 10", "0", " 20", "0", "VERTEX", " 10", "1"});
    EXPECT_EQ(Opened(start).count(), 1);
    EXPECT_EQ(Opened(start + lines({" 20"})).count(), 1);
    EXPECT_EQ(Opened(start + lines({" 20", "4"})).count(), 2);
}

TEST(DxfPolyline, TheLastFlagInTheFileCounts)
{
    const std::string vertices =
        lines({"VERTEX", " 10", "1", " 20", "1", " 70", "0"}) + lines({"VERTEX", " 10", "2", " 20", "1"});
    EXPECT_EQ(Opened(lines({"POLYLINE", " 70", "1"}) + vertices + lines({"SEQEND"})).count(), 2);
    EXPECT_EQ(Opened(lines({"POLYLINE", " 70", "0"}) + vertices + lines({" 70", "1", "SEQEND"})).count(), 3);
}

TEST(DxfPolyline, LooksHoldForTheFirstSegmentAndTheClosingOneTakesThoseBefore)
{
    std::string file = lines({"POLYLINE", " 62", "4", "  6", "DASHED", " 70", "1"});
    file += lines({"VERTEX", " 10", "0", " 20", "0", "VERTEX", " 10", "1", " 20", "0"});
    file += lines({"VERTEX", " 62", "5", "  6", "DOT", " 10", "1", " 20", "1", "SEQEND"});
    Opened o(file);
    ASSERT_EQ(o.count(), 4);
    EXPECT_EQ(o.at(1).color, 0x0000FF);
    EXPECT_EQ(o.at(1).style, 1);
    EXPECT_EQ(o.at(2).color, 0xFF00FF);
    EXPECT_EQ(o.at(2).style, 2);
    EXPECT_EQ(o.at(3).color, 0xFF00FF);
    EXPECT_EQ(o.at(3).style, 2);

    Opened plain(lines({"POLYLINE", " 62", "4"}) +
                 lines({"VERTEX", " 10", "0", " 20", "0", "VERTEX", " 10", "1", " 20", "0"}) +
                 lines({"VERTEX", " 10", "1", " 20", "1", "SEQEND"}));
    EXPECT_EQ(plain.at(2).color, 0x00FF00);
}

TEST(DxfPolyline, OneVertexClosedIsALineOfNoLength)
{
    Opened o(polyline("1", {{"4", "5"}}));
    ASSERT_EQ(o.count(), 2);
    EXPECT_EQ(o.at(1).p1, (Point{48, -60}));
    EXPECT_EQ(o.at(1).p2, (Point{48, -60}));
}

TEST(DxfPolyline, TheFilesEndLeavesItOpen)
{
    Opened o(lines({"POLYLINE", " 70", "1", "VERTEX", " 10", "0", " 20", "0", "VERTEX", " 10", "1", " 20",
                    "0", "VERTEX", " 10", "1"}));
    EXPECT_EQ(o.count(), 2);
}

// Where the arc of a bulge lies: its middle is beside the chord's, by half the chord times the bulge.
TEST(DxfPolyline, BulgeIsAnArc)
{
    const struct {
        std::string_view bulge;
        double value;
    } rows[] = {{"1", 1},     {"-1", -1},   {"0.5", 0.5},   {"-0.5", -0.5},
                {"0.1", 0.1}, {"2.5", 2.5}, {"-2.5", -2.5}, {"-0.02", -0.02}};
    for (const auto& row : rows) {
        Opened o(polyline("0", {{"0", "0", row.bulge}, {"10", "0"}}));
        const EntityRecord r = o.at(1);
        ASSERT_EQ(r.kind, Kind::arc) << row.bulge;
        EXPECT_EQ(o.stat(1), Stat::on);
        const double sweep = 4 * std::atan(std::fabs(row.value));
        const double radius = 60 / std::sin(sweep / 2);
        EXPECT_NEAR(r.rad, radius, radius * 1e-4) << row.bulge;
        // A positive bulge turns counter-clockwise from the first vertex: it lies below the chord.
        EXPECT_NEAR(r.p4.x, 60, 0.05) << row.bulge;
        EXPECT_NEAR(r.p4.y, 60 * row.value, 0.05) << row.bulge;
        const double measured = r.a2 - r.a1 < 0 ? r.a2 - r.a1 + 6.2831853 : r.a2 - r.a1;
        EXPECT_NEAR(measured, sweep, 1e-3) << row.bulge;
    }
}

TEST(DxfPolyline, BulgeOfTheLastVertexIsThatOfTheClosingSegment)
{
    Opened o(polyline("1", {{"0", "0"}, {"10", "0", "1"}}));
    ASSERT_EQ(o.count(), 3);
    EXPECT_EQ(o.at(1).kind, Kind::line);
    EXPECT_EQ(o.at(2).kind, Kind::arc);
    EXPECT_NEAR(o.at(2).p4.y, -60, 0.01); // from right to left, so above
}

TEST(DxfPolyline, BulgeOverNoLengthIsTakenWithoutHarm)
{
    Opened o(polyline("0", {{"0", "0", "1"}, {"0", "0", "1"}, {"10", "0"}}));
    ASSERT_EQ(o.count(), 3);
    EXPECT_EQ(o.at(1).kind, Kind::arc);
    EXPECT_NEAR(o.at(2).rad, 60, 0.01);
}

TEST(DxfPolyline, NoTemporaryKindStays)
{
    Opened o(polyline("1", {{"0", "0", "1"}, {"5", "0", "nan"}, {"5", "5", "-3"}, {"1e30", "0", "1e20"}}));
    for (std::int32_t i = 1; i < o.count(); ++i) EXPECT_NE(o.at(i).kind, polylineSegmentKind);
}

} // namespace
} // namespace mirtane
