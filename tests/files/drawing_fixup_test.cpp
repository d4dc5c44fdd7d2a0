// The fields of a drawing just opened that are computed anew.

#include "drawing_samples.h"
#include "files/drawing_file.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using namespace samples;

// A text of that justification and rotation at (1000, 500).
EntityRecord textOf(float justification, double degrees)
{
    EntityRecord r = fake::text({1000, 500}, "text");
    r.p2.y = justification;
    r.p4 = {-1, -1};
    r.a1 = degrees;
    return r;
}

TEST(SetTextAnchors, TheTextStartsBackAlongItsDirection)
{
    struct Row {
        const char* what;
        float justification;
        double degrees;
        Point anchor;
    };
    const Row rows[] = {
        {"left", 0, 0, {1000, 500}},
        {"left, turned", 0, 30, {1000, 500}},
        {"right", 1, 0, {1000 - 165, 500}}, // 200 x 0.75 x 1.1
        {"right, upward", 1, 90, {1000, 500 + 165}},
        {"right, upside down", 1, 180, {1000 + 165, 500}},
        {"right, downward", 1, 270, {1000, 500 - 165}},
        {"centre", 2, 0, {1000 - 75, 500}},
        {"centre in the first quadrant", 2, 30, {1000 - 64.952F, 500 + 37.5F}},
        {"centre in the second", 2, 120, {1000 + 37.5F, 500 + 64.952F}},
        {"centre in the third", 2, 210, {1000 + 64.952F, 500 - 37.5F}},
        {"centre in the fourth", 2, 300, {1000 - 37.5F, 500 - 64.952F}},
        {"a justification that there is not", 7, 0, {1000 - 150, 500}},
    };
    for (const Row& row : rows) {
        Session s;
        add(s, textOf(row.justification, row.degrees), Stat::on);
        setTextAnchors(s.store, [](const EntityRecord& r) { return r.t1 == "text" ? 200.0F : 0.0F; });
        EXPECT_NEAR(s.store.p4[1].x, row.anchor.x, 0.002) << row.what;
        EXPECT_NEAR(s.store.p4[1].y, row.anchor.y, 0.002) << row.what;
    }
}

TEST(SetTextAnchors, AFaultLeavesTheAnchor)
{
    Session s;
    EntityRecord noDirection = textOf(1, 0);
    noDirection.a1 = infinite;
    EntityRecord noPlace = textOf(1, 0);
    noPlace.p1.x = nan;
    add(s, noDirection, Stat::on);
    add(s, noPlace, Stat::on);
    add(s, textOf(1, 0), Stat::on);
    s.store.t1[3] = "no width";
    setTextAnchors(s.store, [](const EntityRecord& r) { return r.t1 == "no width" ? nan : 200.0F; });
    EXPECT_EQ(s.store.p4[1], (Point{-1, -1}));
    EXPECT_EQ(s.store.p4[2], (Point{-1, 500}));
    EXPECT_EQ(s.store.p4[3], (Point{-1, -1}));
}

TEST(SetTextAnchors, OtherKindsAndSlotsBeyondTheDrawingKeepTheirs)
{
    Session s;
    EntityRecord dimension = textOf(1, 0);
    dimension.kind = Kind::leader;
    add(s, dimension, Stat::on);
    add(s, textOf(1, 0), Stat::on);
    s.store.entCount = 2;
    setTextAnchors(s.store, [](const EntityRecord&) { return 200.0F; });
    EXPECT_EQ(s.store.p4[1], (Point{-1, -1}));
    EXPECT_EQ(s.store.p4[2], (Point{-1, -1}));
}

TEST(FixUp, ALineGetsItsMiddleAndACircleThePointAtItsLeft)
{
    Session s;
    const EntityRecord line = fake::line({10, 20}, {-30, 100});
    const EntityRecord circle = fake::circle({10, 20}, 15);
    EntityRecord arc = circle;
    arc.kind = Kind::arc;
    add(s, line, Stat::on);
    add(s, circle, Stat::on);
    add(s, arc, Stat::on);
    fixUpLinesAndCircles(s.store);
    EXPECT_NEAR(s.store.p3[1].x, -10, 1e-5);
    EXPECT_NEAR(s.store.p3[1].y, 60, 1e-5);
    EXPECT_EQ(s.store.p2[2], (Point{-5, 20}));
    EXPECT_EQ(s.store.p2[3], arc.p2);
}

TEST(FixUp, AFaultLeavesTheField)
{
    Session s;
    EntityRecord noLength = object(Kind::line, 1);
    noLength.p1 = noLength.p2 = {10, 20};
    noLength.p3 = {7, 8};
    EntityRecord noPlace = noLength;
    noPlace.p2 = {nan, 30};
    EntityRecord noRadius = object(Kind::circle, 1);
    noRadius.p2 = {7, 8};
    noRadius.p1 = {10, 20};
    noRadius.rad = infinite;
    add(s, noLength, Stat::on);
    add(s, noPlace, Stat::on);
    add(s, noRadius, Stat::on);
    fixUpLinesAndCircles(s.store);
    EXPECT_EQ(s.store.p3[1], (Point{7, 8}));
    EXPECT_EQ(s.store.p3[2], (Point{7, 8}));
    EXPECT_EQ(s.store.p2[3], (Point{7, 20}));
}

} // namespace
} // namespace mirtane
