#include "dxf_text.h"

#include <cmath>
#include <numbers>

namespace mirtane {
namespace {

using namespace fake;

constexpr double degree = std::numbers::pi / 180;

TEST(SimpleRecords, LineAndPoint)
{
    const EntityRecord line =
        only(dxf({{0, "LINE"}, {10, "-1.5"}, {20, "2e1"}, {30, "7"}, {11, "+3"}, {21, "0"}}));
    EXPECT_EQ(line.kind, Kind::line);
    EXPECT_THAT(line.p1, StandsAt(-1.5, 20));
    EXPECT_THAT(line.p2, StandsAt(3, 0));
    const EntityRecord point = only(dxf({{0, "point"}, {10, "4"}, {20, "-5"}}));
    EXPECT_EQ(point.kind, Kind::point);
    EXPECT_THAT(point.p1, StandsAt(4, -5));
}

std::string arc(const std::string& from, const std::string& to, const std::string& extrusion = "1")
{
    return dxf({{0, "ARC"},
                {10, "100"},
                {20, "50"},
                {40, "5"},
                {50, from},
                {51, to},
                {210, "0"},
                {220, "0"},
                {230, extrusion}});
}

TEST(SimpleRecords, ArcsRunCounterClockwiseFromTheirStart)
{
    struct Row {
        const char* from;
        const char* to;
        double startDegrees, endDegrees, middleDegrees;
    };
    const Row rows[] = {{"0", "90", 0, 90, 45},     {"300", "30", 300, 30, 345},
                        {"-90", "90", 270, 90, 0},  {"33.5", "33.6", 33.5, 33.6, 33.55},
                        {"450", "720", 90, 0, 225}, {"180", "0", 180, 0, 270}};
    for (const Row& row : rows) {
        const EntityRecord r = only(arc(row.from, row.to));
        const auto at = [](double degrees) { return Vec{100, 50} + 5 * wayAt(degrees * degree); };
        EXPECT_EQ(r.kind, Kind::arc);
        EXPECT_EQ(r.rad, 60);
        EXPECT_THAT(r.p1, StandsAt(100, 50));
        EXPECT_THAT(r.p2, StandsAt(at(row.startDegrees).x, at(row.startDegrees).y)) << row.from;
        EXPECT_THAT(r.p3, StandsAt(at(row.endDegrees).x, at(row.endDegrees).y)) << row.from;
        EXPECT_THAT(r.p4, StandsAt(at(row.middleDegrees).x, at(row.middleDegrees).y)) << row.from;
        EXPECT_TRUE(r.a1 >= 0 && r.a1 < 6.2832 && r.a2 >= 0 && r.a2 < 6.2832);
    }
}

// Seen from below, x is the other way round, and so is the way round.
TEST(SimpleRecords, ExtrusionDownwardMirrors)
{
    const EntityRecord r = only(arc("20", "80", "-1"));
    EXPECT_THAT(r.p1, StandsAt(-100, 50));
    EXPECT_THAT(r.p2, StandsAt(-100 + 5 * std::cos(100 * degree), 50 + 5 * std::sin(100 * degree)));
    EXPECT_THAT(r.p3, StandsAt(-100 + 5 * std::cos(160 * degree), 50 + 5 * std::sin(160 * degree)));
    const EntityRecord circle =
        only(dxf({{0, "CIRCLE"}, {10, "3"}, {20, "4"}, {40, "2"}, {210, "0"}, {220, "0"}, {230, "-1"}}));
    EXPECT_EQ(circle.kind, Kind::circle);
    EXPECT_THAT(circle.p1, StandsAt(-3, 4));
    const EntityRecord line =
        only(dxf({{0, "LINE"}, {10, "3"}, {20, "4"}, {11, "5"}, {210, "0"}, {220, "0"}, {230, "-1"}}));
    EXPECT_THAT(line.p1, StandsAt(3, 4)); // a line is given in space
}

// Tilted by 60 degrees about the x axis: half as deep, and where its height takes it.
TEST(SimpleRecords, TiltedCircleIsAnEllipse)
{
    const double s = std::sin(60 * degree);
    const EntityRecord r = only(dxf({{0, "CIRCLE"},
                                     {10, "0"},
                                     {20, "0"},
                                     {30, "10"},
                                     {40, "2"},
                                     {210, "0"},
                                     {220, std::to_string(-s)},
                                     {230, "0.5"}}));
    EXPECT_EQ(r.kind, Kind::ellipse);
    EXPECT_THAT(r.p2, StandsAt(0, -10 * s));
    EXPECT_NEAR(r.p3.x, 0.5, 1e-5);
    EXPECT_NEAR(std::hypot(r.p1.x - r.p2.x, r.p1.y - r.p2.y), 24, 1e-3);
    EXPECT_NEAR(r.p1.y, r.p2.y, 1e-3);
}

// Each outline as its corners, joined by lines.
std::vector<Vec> corners(const std::vector<EntityRecord>& lines)
{
    std::vector<Vec> all;
    for (const EntityRecord& r : lines) all.push_back({std::round(r.p1.x) / 12, -std::round(r.p1.y) / 12});
    return all;
}

TEST(SimpleRecords, FilledShapesAreOutlines)
{
    const std::string four =
        dxf({{10, "0"}, {20, "0"}, {11, "4"}, {21, "0"}, {12, "1"}, {22, "3"}, {13, "5"}, {23, "3"}});
    const std::vector<Vec> solid = {{0, 0}, {4, 0}, {5, 3}, {1, 3}};
    const std::vector<Vec> face = {{0, 0}, {4, 0}, {1, 3}, {5, 3}};
    EXPECT_EQ(corners(objectsOf(entities(dxf({{0, "SOLID"}}) + four))), solid);
    EXPECT_EQ(corners(objectsOf(entities(dxf({{0, "TRACE"}}) + four))), solid);
    EXPECT_EQ(corners(objectsOf(entities(dxf({{0, "3DFACE"}}) + four))), face);
    EXPECT_EQ(objectsOf(entities(dxf({{0, "3DFACE"}, {70, "5"}}) + four)).size(), 2U); // two edges unseen
    const std::string three =
        dxf({{10, "0"}, {20, "0"}, {11, "4"}, {21, "0"}, {12, "1"}, {22, "3"}, {13, "1"}, {23, "3"}});
    EXPECT_EQ(objectsOf(entities(dxf({{0, "3DFACE"}}) + three)).size(), 3U);
    EXPECT_EQ(objectsOf(entities(dxf({{0, "SOLID"}}) + three)).size(), 3U);
}

// Of three corners, the third stands twice or the fourth is not said.
TEST(SimpleRecords, TheClosingEdgeOfAFaceHasTheLastBit)
{
    const std::string three = dxf({{10, "0"}, {20, "0"}, {11, "4"}, {21, "0"}, {12, "1"}, {22, "3"}});
    const std::string again = dxf({{13, "1"}, {23, "3"}});
    const auto starts = [&](const std::string& hidden, const std::string& fourth) {
        return corners(objectsOf(entities(dxf({{0, "3DFACE"}, {70, hidden}}) + three + fourth)));
    };
    for (const std::string& fourth : {again, std::string()}) {
        EXPECT_EQ(starts("8", fourth), (std::vector<Vec>{{0, 0}, {4, 0}}));
        EXPECT_EQ(starts("4", fourth), (std::vector<Vec>{{0, 0}, {4, 0}, {1, 3}}));
        EXPECT_EQ(starts("3", fourth), (std::vector<Vec>{{1, 3}}));
    }
    EXPECT_EQ(starts("8", dxf({{13, "0"}, {23, "2"}})), (std::vector<Vec>{{0, 0}, {4, 0}, {1, 3}}));
}

TEST(SimpleRecords, WipeoutIsItsOutline)
{
    const std::string head = dxf({{0, "WIPEOUT"},
                                  {10, "10"},
                                  {20, "20"},
                                  {30, "0"},
                                  {11, "4"},
                                  {21, "0"},
                                  {31, "0"},
                                  {12, "0"},
                                  {22, "2"},
                                  {32, "0"},
                                  {13, "1"},
                                  {23, "1"},
                                  {71, "2"},
                                  {91, "4"}});
    const auto lines = objectsOf(entities(head + dxf({{14, "-0.5"},
                                                      {24, "-0.5"},
                                                      {14, "0.5"},
                                                      {24, "-0.5"},
                                                      {14, "0.5"},
                                                      {24, "0.5"},
                                                      {14, "-0.5"},
                                                      {24, "-0.5"}})));
    EXPECT_EQ(corners(lines), (std::vector<Vec>{{10, 22}, {14, 22}, {14, 20}}));
}

std::string lightPolyline(const std::string& flags, std::initializer_list<Pair> vertices)
{
    return dxf({{0, "LWPOLYLINE"}, {90, "3"}, {70, flags}, {38, "5"}, {43, "0.1"}}) + dxf(vertices);
}

std::string polyline(const std::string& flags, std::initializer_list<std::initializer_list<Pair>> vertices)
{
    std::string text = dxf({{0, "POLYLINE"}, {66, "1"}, {10, "0"}, {20, "0"}, {30, "0"}, {70, flags}});
    for (const auto& one : vertices) text += dxf({{0, "VERTEX"}, {8, "0"}}) + dxf(one);
    return text + dxf({{0, "SEQEND"}});
}

TEST(Polylines, LegsAreLinesAndWithABulgeArcs)
{
    const auto open = objectsOf(entities(
        lightPolyline("0", {{10, "0"}, {20, "0"}, {10, "4"}, {20, "0"}, {42, "1"}, {10, "4"}, {20, "2"}})));
    ASSERT_EQ(open.size(), 2U);
    EXPECT_EQ(open[0].kind, Kind::line);
    EXPECT_EQ(open[1].kind, Kind::arc);
    EXPECT_THAT(open[1].p1, StandsAt(4, 1));
    EXPECT_EQ(open[1].rad, 12);
    EXPECT_THAT(open[1].p4, StandsAt(5, 1)); // to the right of the way, as the bulge is above 0
    const auto closed = objectsOf(entities(lightPolyline(
        "129", {{10, "0"}, {20, "0"}, {10, "4"}, {20, "0"}, {10, "4"}, {20, "2"}, {42, "-0.41421356237"}})));
    ASSERT_EQ(closed.size(), 3U);
    EXPECT_EQ(closed[2].kind, Kind::arc);
    EXPECT_NEAR(std::fmod(closed[2].a2 - closed[2].a1 + 6.2831853, 6.2831853), std::numbers::pi / 2, 1e-6);
}

TEST(Polylines, BulgesTurnRoundSeenFromBelow)
{
    const auto arcs = objectsOf(entities(lightPolyline(
        "0", {{10, "1"}, {20, "0"}, {42, "1"}, {10, "3"}, {20, "0"}, {210, "0"}, {220, "0"}, {230, "-1"}})));
    ASSERT_EQ(arcs.size(), 1U);
    EXPECT_THAT(arcs[0].p1, StandsAt(-2, 0));
    EXPECT_THAT(arcs[0].p4, StandsAt(-2, -1));
}

TEST(Polylines, OldOnesHaveTheirVerticesBehindThem)
{
    const auto all = objectsOf(entities(polyline("1", {{{10, "0"}, {20, "0"}},
                                                       {{10, "4"}, {20, "0"}, {42, "0.5"}, {70, "0"}},
                                                       {{10, "4"}, {20, "3"}}}) +
                                        dxf({{0, "LINE"}, {11, "1"}})));
    ASSERT_EQ(all.size(), 4U);
    EXPECT_EQ(all[1].kind, Kind::arc);
    EXPECT_THAT(all[2].p2, StandsAt(0, 0));
}

TEST(Polylines, OfAFittedCurveTheFrameIsNotSeen)
{
    const auto all = objectsOf(entities(polyline("4", {{{10, "0"}, {20, "9"}, {70, "16"}},
                                                       {{10, "0"}, {20, "0"}, {70, "8"}},
                                                       {{10, "1"}, {20, "1"}, {70, "8"}},
                                                       {{10, "5"}, {20, "9"}, {70, "16"}}})));
    ASSERT_EQ(all.size(), 1U);
    EXPECT_THAT(all[0].p2, StandsAt(1, 1));
}

TEST(Polylines, InSpaceAndMeshes)
{
    EXPECT_EQ(objectsOf(entities(polyline("9", {{{10, "0"}, {20, "0"}, {30, "4"}, {70, "32"}},
                                                {{10, "4"}, {20, "0"}, {30, "1"}, {70, "32"}},
                                                {{10, "4"}, {20, "3"}, {42, "1"}, {70, "32"}}})))
                  .size(),
              3U);
    const auto mesh = [](const std::string& flags) {
        std::string text = dxf({{0, "POLYLINE"}, {70, flags}, {71, "2"}, {72, "3"}});
        for (int i = 0; i < 6; ++i)
            text +=
                dxf({{0, "VERTEX"}, {10, std::to_string(i % 3)}, {20, std::to_string(i / 3)}, {70, "64"}});
        return objectsOf(entities(text + dxf({{0, "SEQEND"}}))).size();
    };
    EXPECT_EQ(mesh("16"), 7U);
    EXPECT_EQ(mesh("48"), 9U);
    EXPECT_EQ(mesh("17"), 10U);
}

TEST(Polylines, BodiesOfFacesAreTheirSeenEdges)
{
    const auto lines = objectsOf(
        entities(polyline("64", {{{10, "0"}, {20, "0"}, {70, "192"}},
                                 {{10, "4"}, {20, "0"}, {70, "192"}},
                                 {{10, "4"}, {20, "3"}, {70, "192"}},
                                 {{10, "0"}, {20, "0"}, {70, "128"}, {71, "1"}, {72, "-2"}, {73, "3"}},
                                 {{10, "0"}, {20, "0"}, {70, "128"}, {71, "1"}, {72, "9"}}})));
    ASSERT_EQ(lines.size(), 2U); // a face that names a corner that is not there has no edge
    EXPECT_THAT(lines[0].p2, StandsAt(4, 0));
    EXPECT_THAT(lines[1].p1, StandsAt(4, 3));
}

TEST(Meshes, AreTheEdgesOfTheirFaces)
{
    const std::string head = dxf({{0, "MESH"}, {71, "2"}, {91, "0"}, {92, "4"}});
    const std::string corners = dxf({{10, "0"},
                                     {20, "0"},
                                     {30, "1"},
                                     {10, "4"},
                                     {20, "0"},
                                     {30, "1"},
                                     {10, "4"},
                                     {20, "3"},
                                     {30, "5"},
                                     {10, "0"},
                                     {20, "3"},
                                     {30, "5"}});
    const auto drawn = [&](std::initializer_list<Pair> faces) {
        return objectsOf(
                   entities(head + corners + dxf(faces) + dxf({{94, "1"}, {90, "0"}, {90, "1"}, {95, "0"}})))
            .size();
    };
    EXPECT_EQ(drawn({{93, "5"}, {90, "4"}, {90, "0"}, {90, "1"}, {90, "2"}, {90, "3"}}), 4U);
    EXPECT_EQ(drawn({{93, "8"},
                     {90, "3"},
                     {90, "0"},
                     {90, "1"},
                     {90, "2"},
                     {90, "3"},
                     {90, "0"},
                     {90, "2"},
                     {90, "3"}}),
              6U);
    EXPECT_EQ(drawn({{93, "4"}, {90, "3"}, {90, "0"}, {90, "1"}, {90, "9"}}), 0U);
    EXPECT_EQ(drawn({{93, "4"}, {90, "30"}, {90, "0"}, {90, "1"}, {90, "2"}}), 0U);
    EXPECT_EQ(drawn({{93, "2"}, {90, "-3"}, {90, "0"}}), 0U);
}

} // namespace
} // namespace mirtane
