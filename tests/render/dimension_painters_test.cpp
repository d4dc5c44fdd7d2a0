#include "render/dimension_painters.h"

#include "drawing_desk.h"
#include "render/entity_painter.h"
#include "render/redraw.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Ops;

// Arrows of 64, so that a quarter of one is a whole number.
EntityRecord linearRecord()
{
    const EntityRecord points =
        fake::record(Kind::linearDimension, {100, 400}, {700, 400}, {700, 300}, {100, 300}, {350, 250});
    return fake::ofLooks(fake::dimension(points, "50'-0\"", arrow::open, 64), 255, 0, 4);
}

EntityRecord angularRecord()
{
    const EntityRecord points =
        fake::record(Kind::angularDimension, {300, 400}, {400, 400}, {300, 350}, {500, 400}, {450, 300});
    EntityRecord r = fake::dimension(points, "86", 64, 64);
    r.rad = 200;
    r.a2 = 1.5;
    r.a3 = 45;
    return fake::ofLooks(r, 255, 0, 0); // no arrow
}

EntityRecord leaderRecord()
{
    EntityRecord r = linearRecord();
    r.kind = Kind::leader;
    r.p1 = {100, 400};
    r.p2 = {500, 400};
    r.p3 = {564, 400};
    r.p5 = {580, 380};
    r.a2 = 64;
    return r;
}

// A view of 1000 by 800 with its corner at the origin.
struct DimensionPainting : testing::Test, fake::DrawingDesk {
    DimensionPainting() : DrawingDesk({0, 0, 1000, 800}, {500, 400}) {}

    // Without what a redraw begins and ends with.
    Ops redrawn()
    {
        redrawAll(s, pic1);
        const Ops ops = fake::opsOn(pic1);
        return {ops.begin() + 1, ops.end() - 3};
    }
};

const Ops linearLines = {"line 700 357.376 700 257.376", "line 100 357.376 100 257.376",
                         "line 100 300 700 300",         "line 100 300 164 284",
                         "line 100 300 164 316",         "line 700 300 636 316",
                         "line 700 300 636 284"};
const Ops linearWords = {"setUnderline 0", "setFontName Garamond",   "setFontSize 64",
                         "setStyle 0",     "text 350 250 0 50'-0\"", "setStyle 2"};

Ops joined(Ops a, const Ops& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

TEST_F(DimensionPainting, RedrawPaintsStrokesSolidAndThenTheText)
{
    add(linearRecord());
    const Ops pen = {"setColor 255", "setStyle 0"}; // its style field is no line style
    EXPECT_EQ(redrawn(), joined(joined(pen, linearLines), linearWords));
}

TEST_F(DimensionPainting, SelectedIsWhiteAndDotted)
{
    add(linearRecord(), Stat::sel);
    const Ops pen = {"setColor 16777215", "setStyle 2"};
    EXPECT_EQ(redrawn(), joined(joined(pen, linearLines), linearWords));
}

TEST_F(DimensionPainting, OnItsWayPaintsAsInItsPlace)
{
    paintEntity(pic1, s, linearRecord());
    EXPECT_EQ(fake::opsOn(pic1), joined(linearLines, linearWords));
}

TEST_F(DimensionPainting, AngularTextHasItsOwnAngleAndTheArcItsPainter)
{
    add(angularRecord());
    const Ops expected = {"line 342.624 400 564 400", "line 300 357.376 300 136", "arc 300 400 200 0 1.5",
                          "text 450 300 45 86"};
    EXPECT_EQ(fake::marks(redrawn()), expected);
}

TEST_F(DimensionPainting, LongStrokesAreCutIntoPieces)
{
    EntityRecord r = linearRecord();
    r.s1 = 0;
    r.p1 = r.p4 = {0, 0};
    r.p2 = {100, 100};
    r.p3 = {100, -9000};
    paintLinearDim(pic1, s, shapeOf(r));
    const Ops ops = fake::marks(fake::opsOn(pic1));
    ASSERT_EQ(ops.size(), 1U) << "of 6 pieces one is in view";
    EXPECT_TRUE(ops[0].starts_with("line 100 57.")) << ops[0];
}

TEST_F(DimensionPainting, EachPainterPaintsItsKind)
{
    const EntityRecord r = leaderRecord();
    const Ops expected = {"line 100 400 500 400", "line 500 400 564 400", "line 100 400 164 384",
                          "line 100 400 164 416"};
    paintLeader(pic1, s, shapeOf(r));
    EXPECT_EQ(fake::opsOn(pic1), expected);
    paintDimension(pic1, s, shapeOf(r));
    EXPECT_EQ(fake::opsOn(pic1), expected);
    paintAngularDim(pic1, s, shapeOf(angularRecord()));
    EXPECT_EQ(fake::opsOn(pic1).size(), 3U);
    paintRadialDim(pic1, s, shapeOf(linearRecord()));
    EXPECT_EQ(fake::opsOn(pic1).size(), 8U) << "shaft, two barbs, four strokes of the cross, shoulder";
}

struct CullRow {
    const char* what;
    Point by; // the object is moved
    bool painted;
};

EntityRecord moved(EntityRecord r, Point by)
{
    for (Point* p : {&r.p1, &r.p2, &r.p3, &r.p4, &r.p5}) *p = {p->x + by.x, p->y + by.y};
    return r;
}

// Its points reach from 100 to 700 and from 250 to 400.
TEST_F(DimensionPainting, LinearIsLeftOutWhereAllItsPointsLieBeyondOneSide)
{
    const CullRow rows[] = {
        {"in view", {0, 0}, true},
        {"right end on the left edge", {-700, 0}, true},
        {"beyond the left edge", {-701, 0}, false},
        {"left end on the right edge", {900, 0}, true},
        {"beyond the right edge", {901, 0}, false},
        {"lowest on the top edge", {0, -400}, true},
        {"above the top edge", {0, -401}, false},
        {"text on the bottom edge", {0, 550}, true},
        {"below the bottom edge", {0, 551}, false},
    };
    for (const CullRow& row : rows) {
        s.store.entCount = 1;
        add(moved(linearRecord(), row.by));
        EXPECT_EQ(!fake::marks(redrawn()).empty(), row.painted) << row.what;
    }
}

TEST_F(DimensionPainting, LinearIsPaintedWhileOnePointIsNotBeyondTheSide)
{
    for (Point EntityRecord::*point :
         {&EntityRecord::p1, &EntityRecord::p2, &EntityRecord::p3, &EntityRecord::p4, &EntityRecord::p5}) {
        s.store.entCount = 1;
        EntityRecord r = moved(linearRecord(), {-5000, 0});
        r.*point = {10, 300};
        add(r);
        EXPECT_FALSE(redrawn().empty());
    }
}

TEST_F(DimensionPainting, TheOthersAreNeverCulled)
{
    for (const Kind kind : {Kind::radialDimension, Kind::leader, Kind::angularDimension}) {
        EntityRecord r = moved(angularRecord(), {-50000, 0});
        r.kind = kind;
        s.store.entCount = 1;
        add(r);
        EXPECT_EQ(fake::only(redrawn(), "text").size(), 1U) << numberOf(kind);
    }
}

TEST_F(DimensionPainting, TextInEditIsHiddenAndItsLinesStay)
{
    add(linearRecord(), Stat::sel);
    add(leaderRecord());
    s.curFunc = "Text Edit";
    const Ops texts = {"text 580 380 0 50'-0\""};
    const Ops ops = redrawn();
    EXPECT_EQ(fake::only(ops, "text"), texts);
    EXPECT_EQ(fake::only(ops, "line").size(), linearLines.size() + 4);
}

} // namespace
} // namespace mirtane
