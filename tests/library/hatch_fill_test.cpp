#include "library/hatch_fill.h"

#include "library_desk.h"

#include "geometry/angle.h"

#include <gtest/gtest.h>

#include <chrono>
#include <limits>

namespace mirtane {
namespace {

using fake::hatchCircle;
using fake::hatchLine;
using fake::legsThrough;

using Legs = std::vector<BoundaryLeg>;
using Rows = std::vector<HatchRow>;
using Segment = std::pair<Point, Point>;

const Legs square = legsThrough({{0, 0}, {40, 0}, {40, 40}, {0, 40}});

std::vector<HatchPiece> filled(const Legs& boundary, const Rows& rows, float scale = 1, double rotation = 0)
{
    return fillHatch({boundary, rows, "h", scale, rotation});
}

std::vector<EntityRecord> objects(const Legs& boundary, const Rows& rows, float scale, double rotation)
{
    const HatchFill fill{boundary, rows, "h", scale, rotation};
    std::vector<EntityRecord> all;
    for (const HatchPiece& piece : fillHatch(fill)) all.push_back(hatchObject(piece, fill));
    return all;
}

// Numbers as they are printed, so that a failure can be read.
std::vector<Segment> segments(const std::vector<HatchPiece>& pieces)
{
    std::vector<Segment> all;
    for (const HatchPiece& piece : pieces) all.emplace_back(piece.from, piece.to);
    return all;
}

// A tile of 20 by 20 with a level line through its middle.
const Rows levelLine = {hatchLine("h", {0, 10}, {20, 10}, 20, 20)};

TEST(HatchFill, RepeatsTheTileCellByCell)
{
    EXPECT_EQ(segments(filled(square, levelLine)),
              (std::vector<Segment>{
                  {{0, 10}, {20, 10}}, {{20, 10}, {40, 10}}, {{0, 30}, {20, 30}}, {{20, 30}, {40, 30}}}));
}

TEST(HatchFill, CutsALineWhereItCrossesTheBoundary)
{
    const Legs boundary = legsThrough({{0, 0}, {30, 0}, {30, 20}, {0, 20}});
    EXPECT_EQ(segments(filled(boundary, levelLine)),
              (std::vector<Segment>{{{0, 10}, {20, 10}}, {{20, 10}, {30, 10}}}));
}

TEST(HatchFill, RowsGoInTheirOrderWithinEachCell)
{
    const Rows rows = {hatchLine("h", {0, 15}, {20, 15}, 20, 20), hatchLine("other", {0, 3}, {20, 3}, 20, 20),
                       hatchLine("h", {0, 5}, {20, 5}, 20, 20)};
    const Legs boundary = legsThrough({{0, 0}, {20, 0}, {20, 20}, {0, 20}});
    EXPECT_EQ(segments(filled(boundary, rows)),
              (std::vector<Segment>{{{0, 15}, {20, 15}}, {{0, 5}, {20, 5}}}));
}

TEST(HatchFill, APieceWithItsMiddleOutsideIsDroppedWhole)
{
    // a U whose gap lies between 20 and 40
    const Legs boundary =
        legsThrough({{0, 0}, {60, 0}, {60, 60}, {40, 60}, {40, 20}, {20, 20}, {20, 60}, {0, 60}});
    const Rows rows = {hatchLine("h", {0, 40}, {60, 40}, 60, 60)};
    EXPECT_EQ(segments(filled(boundary, rows)),
              (std::vector<Segment>{{{0, 40}, {20, 40}}, {{40, 40}, {60, 40}}}));
}

TEST(HatchFill, ALineAlongTheTopOrLeftStaysAndAlongTheBottomOrRightGoes)
{
    const Rows rows = {hatchLine("h", {0, 0}, {40, 0}, 40, 40), hatchLine("h", {0, 40}, {40, 40}, 40, 40),
                       hatchLine("h", {0, 0}, {0, 40}, 40, 40), hatchLine("h", {40, 0}, {40, 40}, 40, 40)};
    EXPECT_EQ(segments(filled(square, rows)), (std::vector<Segment>{{{0, 0}, {40, 0}}, {{0, 0}, {0, 40}}}));
}

TEST(HatchFill, ALineAlongASlantedEdgeStaysAtTheTopAndGoesAtTheBottom)
{
    const Legs diamond = legsThrough({{0, 40}, {40, 0}, {80, 40}, {40, 80}});
    struct Row {
        const char* what;
        Point a, b;
        bool stays;
    };
    const Row rows[] = {
        {"upper left", {0, 40}, {40, 0}, true},
        {"upper right", {40, 0}, {80, 40}, true},
        {"lower right", {80, 40}, {40, 80}, false},
        {"lower left", {40, 80}, {0, 40}, false},
    };
    const auto inTile = [](Point p) { return Point{p.x, p.y - 40}; };
    for (const Row& row : rows) {
        for (const Segment& line : {Segment{row.a, row.b}, Segment{row.b, row.a}}) {
            const auto pieces =
                filled(diamond, {hatchLine("h", inTile(line.first), inTile(line.second), 80, 80)});
            EXPECT_EQ(segments(pieces), row.stays ? std::vector{line} : std::vector<Segment>{}) << row.what;
        }
    }
}

// Slanted lines both ways, of which some run out of the tile.
const Rows slantedLines = {
    hatchLine("h", {-3, 1.7F}, {7.3F, 9.1F}, 10, 10), hatchLine("h", {1.3F, -2}, {4.9F, 8.7F}, 10, 10),
    hatchLine("h", {11, 0.3F}, {-0.9F, 4.1F}, 10, 10), hatchLine("h", {8.1F, -1}, {6.3F, 11.3F}, 10, 10)};

TEST(HatchFill, ASlantedLineEndsExactlyOnAnUprightOrALevelEdge)
{
    const float far = 37.1F;
    const auto isOnOrWellInside = [far](float v) {
        return v == 0 || v == far || (v > 1e-3F && v < far - 1e-3F);
    };
    for (const Point first : {Point{0, 0}, Point{far, 0}, Point{far, far}, Point{0, far}}) {
        const Legs boundary = legsThrough(
            {first, {far - first.x, first.y}, {far - first.x, far - first.y}, {first.x, far - first.y}});
        int atLeft = 0, atTop = 0, atRight = 0, atBottom = 0;
        for (const HatchPiece& piece : filled(boundary, slantedLines)) {
            for (const Point p : {piece.from, piece.to}) {
                EXPECT_TRUE(isOnOrWellInside(p.x) && isOnOrWellInside(p.y)) << p.x << ", " << p.y;
                atLeft += p.x == 0 ? 1 : 0;
                atTop += p.y == 0 ? 1 : 0;
                atRight += p.x == far ? 1 : 0;
                atBottom += p.y == far ? 1 : 0;
            }
        }
        for (const int ends : {atLeft, atTop, atRight, atBottom}) EXPECT_GE(ends, 3);
    }
}

TEST(HatchFill, ALineThroughACornerMakesNoSpeckOfAPieceThere)
{
    // all of them cut the two edges at the corner 0, 0, where a coordinate may be as small as it likes
    const Polygon polygon = polygonOf(legsThrough({{0, 0}, {37.1F, 0}, {37.1F, 31.3F}, {0, 31.3F}}));
    for (int i = 1; i < 100; ++i) {
        HatchClip clip(polygon, hatchGrid(polygon, {{0, 0}, 50, 50}));
        const Point up{-0.3F * static_cast<float>(i), -0.07F * static_cast<float>(100 - i)};
        const Point down{-up.x / 4, -up.y / 4};
        clip.line(up, down, 0);
        EXPECT_EQ(segments(clip.take()), (std::vector<Segment>{{{0, 0}, down}})) << i;
    }
}

TEST(HatchFill, TwoCrossingsAtACornerMakeNoPieceOfNoLength)
{
    const Legs diamond = legsThrough({{0, 20}, {20, 0}, {40, 20}, {20, 40}});
    const Rows rows = {hatchLine("h", {-10, 0}, {50, 0}, 40, 20)}; // through both side corners
    for (const HatchPiece& piece : filled(diamond, rows)) EXPECT_NE(piece.from, piece.to);
}

TEST(HatchFill, ALineOfNoLengthMakesNoPiece)
{
    EXPECT_TRUE(filled(square, {hatchLine("h", {5, 5}, {5, 5}, 20, 20)}).empty());
}

TEST(HatchFill, ALineThatRunsCloseAlongAnEdgeIsOnlyCutOnceMore)
{
    // 2.1 units beside the long edge of a slanted strip, 141 long
    const Legs boundary = legsThrough({{0, 0}, {100, 100}, {60, 140}, {-40, 40}});
    const Rows rows = {hatchLine("h", {-1.485F, 1.485F}, {98.515F, 101.485F}, 200, 200)};
    const std::vector<HatchPiece> pieces = filled(boundary, rows);
    ASSERT_EQ(pieces.size(), 2U);
    EXPECT_EQ(pieces[0].from, rows[0].h1);
    EXPECT_EQ(pieces[0].to, pieces[1].from);
    EXPECT_EQ(pieces[1].to, rows[0].h2);
    EXPECT_NEAR(pieces[0].to.y - pieces[0].to.x, 2.97, 1e-3) << "the cut lies on the line";
}

TEST(HatchFill, ALineThatPassesBesideTheEndOfAnEdgeIsNotCut)
{
    // a hole in a large square; the line crosses two of its sides where they would run on
    std::vector<BoundaryLeg> legs = legsThrough({{-100, -100}, {100, -100}, {100, 100}, {-100, 100}});
    for (const BoundaryLeg& leg : legsThrough({{0, 40}, {40, 0}, {40, 40}})) legs.push_back(leg);
    const Polygon polygon = polygonOf(legs);
    HatchClip clip(polygon, hatchGrid(polygon, {{-100, -100}, 200, 200}));
    clip.line({35, 1}, {55, -7}, 0);
    EXPECT_EQ(segments(clip.take()), (std::vector<Segment>{{{35, 1}, {55, -7}}}));
}

TEST(HatchFill, TheTileIsScaled)
{
    EXPECT_EQ(segments(filled(square, levelLine, 2)), (std::vector<Segment>{{{0, 20}, {40, 20}}}));
    EXPECT_EQ(filled(square, levelLine, 0.5F).size(), 16U);
}

TEST(HatchFill, TheTileTurnsAboutTheFirstPointOfTheBoundary)
{
    const Legs boundary = legsThrough({{100, 100}, {140, 100}, {140, 140}, {100, 140}});
    const auto all = objects(boundary, levelLine, 1, 90 / 57.29578);
    ASSERT_EQ(all.size(), 4U);
    for (const EntityRecord& r : all) {
        EXPECT_NEAR(r.p1.x, r.p2.x, 1e-4) << "a level line stands upright";
        EXPECT_NEAR(std::fmod(r.p1.x, 20), 10, 1e-4) << "in the middle of a tile";
    }
}

TEST(HatchFill, ATileDrawnFromAnotherCornerHasItsRowsThere)
{
    struct Row {
        const char* what;
        float width, height;
        Point a, b;
    };
    // each says: a line from 2 to 8 to the right, 3 below the top, in a tile of 10 by 10
    const Row rows[] = {
        {"upper left to lower right", 10, 10, {2, 3}, {8, 3}},
        {"upper right to lower left", -10, 10, {-8, 3}, {-2, 3}},
        {"lower left to upper right", 10, -10, {2, -7}, {8, -7}},
        {"lower right to upper left", -10, -10, {-8, -7}, {-2, -7}},
    };
    const Legs boundary = legsThrough({{0, 0}, {10, 0}, {10, 10}, {0, 10}});
    for (const Row& row : rows) {
        EXPECT_EQ(segments(filled(boundary, {hatchLine("h", row.a, row.b, row.width, row.height)})),
                  (std::vector<Segment>{{{2, 3}, {8, 3}}}))
            << row.what;
    }
}

TEST(HatchFill, TheTileIsThatOfTheFirstRow)
{
    const Rows rows = {hatchLine("h", {0, 10}, {20, 10}, 20, 20), hatchLine("h", {0, 5}, {20, 5}, 7, 7)};
    EXPECT_EQ(filled(square, rows).size(), 8U);
}

TEST(HatchFill, ATileWithoutSizeFillsNothing)
{
    const float infinity = std::numeric_limits<float>::infinity();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (const float size : {0.0F, infinity, -infinity, nan}) {
        EXPECT_TRUE(filled(square, {hatchLine("h", {0, 5}, {20, 5}, size, 20)}).empty()) << size;
        EXPECT_TRUE(filled(square, {hatchLine("h", {0, 5}, {20, 5}, 20, size)}).empty()) << size;
    }
}

TEST(HatchFill, NoRowsOrNoNameFillNothing)
{
    EXPECT_TRUE(filled(square, {}).empty());
    EXPECT_TRUE(filled(square, {hatchLine("H", {0, 5}, {20, 5}, 20, 20)}).empty()) << "case counts";
    const Rows removed = {hatchLine("??????", {0, 10}, {20, 10}, 20, 20)};
    EXPECT_TRUE(fillHatch({square, removed, "??????", 1, 0}).empty());
}

TEST(HatchFill, ABoundaryWithinOneCellFillsNothing)
{
    EXPECT_TRUE(filled(legsThrough({{0, 0}, {8, 3}, {3, 8}}), levelLine).empty());
}

TEST(HatchFill, BoundariesWithoutAnInsideFillNothing)
{
    EXPECT_TRUE(filled(legsThrough({{0, 0}, {50, 0}, {100, 0}}), levelLine).empty());
    EXPECT_TRUE(filled(legsThrough({{5, 5}, {5, 5}, {5, 5}}), levelLine).empty());
    EXPECT_TRUE(filled({}, levelLine).empty());
}

TEST(HatchFill, AnUncutCircleStaysACircle)
{
    const auto pieces = filled(square, {hatchCircle("h", {10, 10}, 4, 20, 20)});
    ASSERT_EQ(pieces.size(), 4U);
    for (const HatchPiece& piece : pieces) {
        EXPECT_EQ(piece.kind, Kind::circle);
        EXPECT_EQ(piece.radius, 4);
    }
    EXPECT_EQ(pieces[0].from, (Point{10, 10}));
    EXPECT_EQ(pieces[3].from, (Point{30, 30}));
}

TEST(HatchFill, ACircleTouchedOnceIsUncut)
{
    const auto pieces =
        filled(legsThrough({{0, 0}, {20, 0}, {20, 20}, {0, 20}}), {hatchCircle("h", {10, 5}, 5, 20, 20)});
    ASSERT_EQ(pieces.size(), 1U);
    EXPECT_EQ(pieces[0].kind, Kind::circle);
}

TEST(HatchFill, ACircleIsCutIntoArcsThatRunCounterClockwise)
{
    // centred on the left side: its right half is left
    const Legs boundary = legsThrough({{0, 0}, {40, 0}, {40, 20}, {0, 20}});
    const Rows rows = {hatchCircle("h", {0, 10}, 5, 40, 20)};
    const auto all = objects(boundary, rows, 1, 0);
    ASSERT_EQ(all.size(), 1U);
    const EntityRecord& arc = all[0];
    EXPECT_EQ(arc.kind, Kind::arc);
    EXPECT_EQ(arc.p1, (Point{0, 10}));
    EXPECT_EQ(arc.rad, 5);
    EXPECT_EQ(arc.a1, 4.712389);
    EXPECT_EQ(arc.a2, 1.5707963);
    EXPECT_EQ(arc.p2, (Point{0, 15})) << "start";
    EXPECT_EQ(arc.p3, (Point{0, 5})) << "end";
    EXPECT_NEAR(arc.p4.x, 5, 1e-5) << "middle";
    EXPECT_NEAR(arc.p4.y, 10, 1e-5) << "middle";
}

TEST(HatchFill, ACornerCloseToACircleIsTheOnlyCrossingThere)
{
    // a wedge whose tip reaches 0.005 into the circle from above: no sliver of an arc is left
    const auto inWedge = [](float tip) {
        const Polygon wedge = polygonOf(legsThrough({{0, tip}, {-10, -20}, {10, -20}}));
        HatchClip clip(wedge, hatchGrid(wedge, {{0, 0}, 40, 40}));
        clip.circle({0, 20}, 10, 0);
        return clip.take().size();
    };
    EXPECT_EQ(inWedge(10.005F), 0U);
    EXPECT_EQ(inWedge(9.995F), 0U);
    EXPECT_EQ(inWedge(10.02F), 1U) << "further in, the two crossings count";
}

TEST(HatchFill, AnArcIsCutFromItsStartToItsEnd)
{
    HatchRow row = hatchCircle("h", {20, 20}, 25, 40, 40);
    row.hatchKind = Kind::arc;
    row.hatchA1 = 0.5;
    row.hatchA2 = 2.3;
    const auto pieces = filled(square, {row});
    // inside are the parts near the upper right corner and, cut short, near the upper left one
    ASSERT_EQ(pieces.size(), 2U);
    EXPECT_EQ(pieces[0].kind, Kind::arc);
    EXPECT_NEAR(pieces[0].a1, std::acos(0.8), 1e-6);
    EXPECT_NEAR(pieces[0].a2, std::asin(0.8), 1e-6);
    EXPECT_NEAR(pieces[1].a1, 3.1415927 - std::asin(0.8), 1e-6);
    EXPECT_EQ(pieces[1].a2, 2.3);
}

TEST(HatchFill, AnUncutArcKeepsItsAngles)
{
    HatchRow row = hatchCircle("h", {10, 10}, 4, 20, 20);
    row.hatchKind = Kind::arc;
    row.hatchA1 = 5;
    row.hatchA2 = 1;
    const auto pieces = filled(square, {row});
    ASSERT_EQ(pieces.size(), 4U);
    EXPECT_EQ(pieces[0].a1, 5);
    EXPECT_EQ(pieces[0].a2, 1);
}

TEST(HatchFill, AnglesOfArcsTurnWithTheirPoints)
{
    HatchRow row = hatchCircle("h", {10, 10}, 4, 20, 20);
    row.hatchKind = Kind::arc;
    row.hatchA1 = 5;
    row.hatchA2 = 6;
    const double rotation = 0.5;
    for (const EntityRecord& r : objects(square, {row}, 1, rotation)) {
        EXPECT_NEAR(directionAngle(r.p1, r.p2, 0), r.a1, 1e-5);
        EXPECT_NEAR(directionAngle(r.p1, r.p3, 0), r.a2, 1e-5);
        EXPECT_TRUE(r.a1 == 5.5 || r.a1 > 5.5);
        EXPECT_LE(r.a2, 6.2831853) << "reduced once when above";
    }
    EXPECT_FALSE(objects(square, {row}, 1, rotation).empty());
}

TEST(HatchFill, PointsInsideStay)
{
    HatchRow row = hatchLine("h", {15, 15}, {}, 20, 20);
    row.hatchKind = Kind::point;
    const auto pieces = filled(legsThrough({{0, 0}, {30, 0}, {30, 30}, {0, 30}}), {row});
    ASSERT_EQ(pieces.size(), 1U);
    EXPECT_EQ(pieces[0].kind, Kind::point);
    EXPECT_EQ(pieces[0].from, (Point{15, 15}));
}

TEST(HatchFill, StylesAreThoseOfTheRows)
{
    Rows rows = {hatchLine("h", {0, 5}, {20, 5}, 20, 20), hatchCircle("h", {10, 10}, 2, 20, 20)};
    rows[0].hatchStyle = 2;
    rows[1].hatchStyle = 4;
    const auto pieces = filled(square, rows);
    ASSERT_EQ(pieces.size(), 8U);
    EXPECT_EQ(pieces[0].style, 2);
    EXPECT_EQ(pieces[1].style, 4);
}

TEST(HatchFill, RowsThatAFileMayHoldDoNoHarm)
{
    const float infinity = std::numeric_limits<float>::infinity();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    Rows rows = {hatchLine("h", {0, 5}, {20, 5}, 20, 20)};
    for (const float bad : {infinity, -infinity, nan, 3e38F, -3e38F}) {
        rows.push_back(hatchLine("h", {bad, 5}, {5, bad}, 20, 20));
        rows.push_back(hatchCircle("h", {bad, bad}, bad, bad, bad));
        rows.push_back(hatchCircle("h", {5, 5}, bad, 20, 20));
        rows.push_back(rows.back());
        rows.back().hatchKind = Kind::arc;
        rows.push_back(hatchCircle("h", {5, 5}, 2, 20, 20));
        rows.back().hatchKind = Kind::arc;
        rows.back().hatchA1 = bad;
        rows.back().hatchA2 = -bad;
    }
    for (const Kind kind :
         {Kind{-32768}, Kind{0}, Kind::ellipse, Kind::text, Kind{11}, Kind{25}, Kind{32767}}) {
        rows.push_back(hatchLine("h", {0, 5}, {20, 5}, 20, 20));
        rows.back().hatchKind = kind;
    }
    rows.push_back(hatchCircle("h", {5, 5}, -3, 20, 20));
    int lines = 0;
    for (const HatchPiece& piece : filled(square, rows)) {
        EXPECT_TRUE(std::isfinite(piece.from.x) && std::isfinite(piece.from.y));
        EXPECT_TRUE(std::isfinite(piece.to.x) && std::isfinite(piece.to.y));
        EXPECT_TRUE(std::isfinite(piece.a1) && std::isfinite(piece.a2));
        EXPECT_GE(piece.radius, 0);
        lines += piece.kind == Kind::line ? 1 : 0;
    }
    EXPECT_GE(lines, 4) << "the good row is there";
}

TEST(HatchFill, TheWorkIsBoundedHoweverSmallTheTile)
{
    for (const float size : {1.0F, 1e-3F, 1e-20F, 1e-45F}) {
        const Legs boundary = legsThrough({{0, 0}, {1e6F, 0}, {1e6F, 1e6F}, {0, 1e6F}});
        const Rows rows(1000, hatchLine("h", {0, size / 2}, {size, size / 2}, size, size));
        EXPECT_LE(filled(boundary, rows).size(), hatchTableRows);
        EXPECT_LE(filled(boundary, rows, 0.1F, 0.3).size(), hatchTableRows);
    }
}

TEST(HatchFill, ATileSmallAgainstALongBoundaryFillsAsFarAsTheTableGoes)
{
    // The level at 10 lies inside from a third of the way on, so the cells of the first row are filled from
    // 33,333 on to 63,333, where the table is full; the line at 9 lies inside from 40,000 on.
    const Legs boundary = legsThrough({{100000, 0}, {100000, 15}, {0, 15}});
    Rows rows = {hatchLine("h", {0.2F, 9}, {0.8F, 9}, 1, 10)};
    EXPECT_GT(filled(boundary, rows).size(), 23000U) << "some are cut in two close to the side";
    rows[0].hatchKind = Kind::point;
    const auto points = filled(boundary, rows);
    ASSERT_EQ(points.size(), 23334U);
    EXPECT_EQ(points.front().from, (Point{40000 + 0.2F, 9}));
    EXPECT_EQ(points.back().from, (Point{63333 + 0.2F, 9}));
}

TEST(HatchFill, ATileSmallerThanAnyCoordinateEndsAtOnce)
{
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    const Legs boundary = legsThrough({{100, 0}, {100000, 15}, {0, 40000}, {7, 3}});
    for (const float width : {1e-30F, 1e-45F, 1.0F}) {
        for (const float height : {1e-30F, 1e-45F, 1.0F}) {
            EXPECT_LE(filled(boundary, {hatchLine("h", {0, 0}, {1, 1}, width, height)}).size(),
                      hatchTableRows);
        }
    }
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(10)) << "a tenth of that on a slow machine";
}

TEST(HatchFill, TheWorkIsBoundedForRowsThatMakeNoPiece)
{
    const Legs boundary = legsThrough({{0, 0}, {1000, 0}, {1000, 1000}, {0, 1000}});
    Rows rows(500, hatchLine("h", {1e6F, 1e6F}, {2e6F, 1e6F}, 1, 1));
    rows.resize(1000, hatchLine("h", {0.5F, 0.5F}, {0.5F, 0.5F}, 1, 1));
    EXPECT_TRUE(filled(boundary, rows).empty());
}

TEST(HatchFill, AnUnclosedChainAndWildCoordinatesDoNoHarm)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const std::vector<Legs> boundaries = {
        {{{0, 0}, {50, 0}}, {{50, 0}, {50, 50}}},
        {{{nan, 0}, {50, 0}}, {{50, 0}, {nan, nan}}},
        {{{-3e38F, -3e38F}, {3e38F, 3e38F}}, {{3e38F, 3e38F}, {0, 3e38F}}, {{0, 3e38F}, {-3e38F, -3e38F}}},
    };
    for (const Legs& boundary : boundaries) {
        EXPECT_LE(filled(boundary, levelLine).size(), hatchTableRows);
        EXPECT_LE(filled(boundary, levelLine, 1, 1).size(), hatchTableRows);
    }
}

} // namespace
} // namespace mirtane
