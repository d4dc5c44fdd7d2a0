#include "render/redraw.h"

#include "drawing_desk.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace mirtane {
namespace {

using fake::Ops;

// A view of 1000 by 800 with its corner at the origin.
struct Redraw : testing::Test, fake::DrawingDesk {
    Redraw() : DrawingDesk({0, 0, 1000, 800}, {500, 200}) {}

    void add(Kind kind, Point p1, Point p2 = {}, float rad = 0, Stat stat = Stat::on)
    {
        EntityRecord r = fake::record(kind, p1, p2);
        r.rad = rad;
        if (kind == Kind::ellipse) r.p3.x = 0.5F;
        if (kind == Kind::arc) r.a2 = 1;
        DrawingDesk::add(fake::ofLooks(r, 255, 0, 1), stat);
    }

    Ops painted()
    {
        pic1.takeOps();
        redrawAll(s, pic1);
        return fake::opsOn(pic1);
    }
};

TEST_F(Redraw, OfAnEmptyDrawingJustClearsAndKeepsThePicture)
{
    const Ops expected = {"clear", "snapshot", "setColor 16777215", "setStyle 2"};
    EXPECT_EQ(painted(), expected);
}

TEST_F(Redraw, PaintsInSlotOrderEachInItsOwnPen)
{
    add(Kind::line, {0, 0}, {10, 5});
    add(Kind::circle, {100, 100}, {}, 50);
    add(Kind::point, {7, 8});
    const Ops ops = painted();
    ASSERT_GE(ops.size(), 7U);
    const Ops line(ops.begin(), ops.begin() + 4);
    const Ops expected = {"clear", "setColor 255", "setStyle 1", "line 0 0 10 5"};
    EXPECT_EQ(line, expected);
    const Ops order = {"line 0 0 10 5", "circle 100 100 50", "point 7 8"};
    EXPECT_EQ(fake::marks(ops), order);
    EXPECT_EQ(ops.back(), "setStyle 2");
    EXPECT_EQ(ops[ops.size() - 2], "setColor 16777215");
    EXPECT_EQ(ops[ops.size() - 3], "snapshot");
    EXPECT_TRUE(fake::only(ops, "refresh").empty()); // its callers do that
}

TEST_F(Redraw, NeverPaintsHiddenDeletedOrForeignSlots)
{
    add(Kind::line, {0, 0}, {10, 5}, 0, Stat::off);
    add(Kind::line, {0, 0}, {10, 5}, 0, Stat::out);
    constexpr std::int16_t others[] = {11, 12, 15, 20, 24, 25, 30, 35, 0, -1, 32767};
    for (const std::int16_t other : others) add(Kind{other}, {0, 0}, {10, 5}, 5);
    EXPECT_TRUE(fake::marks(painted()).empty());
}

TEST_F(Redraw, NeverPaintsTheHeader)
{
    s.store.setRecord(0, fake::line({}, {10, 10}));
    s.store.setStat(0, Stat::on);
    add(Kind::point, {7, 8});
    EXPECT_EQ(fake::marks(painted()), Ops{"point 7 8"});
}

TEST_F(Redraw, ShowsTheSelectionDottedWhiteAndEllipsesAShadeYellower)
{
    add(Kind::line, {0, 0}, {10, 5}, 0, Stat::sel);
    add(Kind::ellipse, {150, 100}, {100, 100}, 0, Stat::sel);
    const Ops ops = painted();
    const Ops colors = {"setColor 16777215", "setColor 1703935", "setColor 16777215"};
    EXPECT_EQ(fake::only(ops, "setColor"), colors);
    EXPECT_EQ(1703935, 255 + 255 * 256 + 25 * 65536);
    const Ops styles = {"setStyle 2", "setStyle 2", "setStyle 2"};
    EXPECT_EQ(fake::only(ops, "setStyle"), styles);
}

TEST_F(Redraw, LeavesOutTheSelectionWhileItFollowsThePointer)
{
    add(Kind::line, {0, 0}, {10, 5}, 0, Stat::sel);
    add(Kind::point, {7, 8});
    s.workAngle = 25;
    EXPECT_EQ(fake::marks(painted()), Ops{"point 7 8"});
    s.workAngle = 24.9;
    EXPECT_EQ(fake::marks(painted()).size(), 2U);
}

struct CulledRow {
    const char* what;
    Kind kind;
    Point p1, p2;
    float rad;
    bool painted;
};

TEST_F(Redraw, SkipsWhatLiesWhollyBeyondOneSideAndCountsTheEdgeAsInside)
{
    const CulledRow rows[] = {
        {"a line on the left edge", Kind::line, {-5, 10}, {0, 10}, 0, true},
        {"a line on the right edge", Kind::line, {1000, 10}, {1200, 10}, 0, true},
        {"a line on the top edge", Kind::line, {5, -10}, {5, 0}, 0, true},
        {"a line on the bottom edge", Kind::line, {5, 800}, {5, 900}, 0, true},
        {"a line left of it", Kind::line, {-5, 10}, {-0.1F, 20}, 0, false},
        {"a line right of it", Kind::line, {1000.1F, 10}, {1200, 20}, 0, false},
        {"a line above it", Kind::line, {5, -10}, {9, -0.1F}, 0, false},
        {"a line below it", Kind::line, {5, 800.1F}, {9, 900}, 0, false},
        {"a line that passes outside a corner", Kind::line, {-100, 10}, {10, -100}, 0, true},
        {"a circle that touches the left edge", Kind::circle, {-10, 10}, {}, 10, true},
        {"a circle beyond it", Kind::circle, {-10.5F, 10}, {}, 10, false},
        {"a circle that touches the bottom", Kind::circle, {10, 810}, {}, 10, true},
        {"a circle beyond it", Kind::circle, {10, 811}, {}, 10, false},
        {"an arc by its whole circle", Kind::arc, {-9, 10}, {}, 10, true},
        {"an arc beyond", Kind::arc, {-11, 10}, {}, 10, false},
        {"a point outside is painted all the same", Kind::point, {-50, -50}, {}, 0, true},
        {"an ellipse beyond", Kind::ellipse, {-20, 100}, {-50, 100}, 0, false},
    };
    for (const CulledRow& row : rows) {
        s.store.entCount = 1;
        add(row.kind, row.p1, row.p2, row.rad);
        EXPECT_EQ(!fake::marks(painted()).empty(), row.painted) << row.what;
    }
}

TEST_F(Redraw, CullsAnEllipseByItsFirstAxisAboutItsCentre)
{
    add(Kind::ellipse, {-20, 100}, {10, 100}); // radius 30 about (10, 100)
    EXPECT_FALSE(fake::marks(painted()).empty());
    s.store.entCount = 1;
    add(Kind::ellipse, {-20, 100}, {-60, 100}); // radius 40 about (-60, 100): it ends at -20
    EXPECT_TRUE(fake::marks(painted()).empty());
}

// Its first axis is out of view, and the tip of the second in the middle of it.
TEST_F(Redraw, PaintsAnEllipseWhoseLongerSecondAxisReachesIntoTheView)
{
    for (int degrees = 0; degrees < 360; degrees += 23) {
        for (const float ratio : {-31.0F, 7.5F, 29.0F, 400.0F}) {
            const double angle = degrees * 0.0174532925;
            const double x = 20 * std::cos(angle), y = -20 * std::sin(angle);
            const Point centre{500 + static_cast<float>(ratio * y), 400 - static_cast<float>(ratio * x)};
            const Point end{centre.x + static_cast<float>(x), centre.y + static_cast<float>(y)};
            s.store.entCount = 1;
            DrawingDesk::add(fake::ellipse(end, centre, ratio));
            look({480, 384, 40, 32});
            EXPECT_FALSE(fake::marks(painted()).empty()) << degrees << " " << ratio;
        }
    }
}

// A text of that width and size, turned about its upper corner, and the view round one point of its cell.
struct CellRow {
    const char* what;
    std::string words;
    float size, width, along, below;
    bool painted;
};

TEST_F(Redraw, PaintsATextAsFarAsItsCellReaches)
{
    const CellRow rows[] = {
        {"the foot of a letter", "I", 48, 22, 11, 61, true},
        {"the last letter", "Kitchen", 24, 140, 138, 16, true},
        {"below the line", "Kitchen", 24, 140, 70, 260, false},
        {"far behind the line", "Kitchen", 24, 140, 260, 16, false},
    };
    for (const CellRow& row : rows) {
        for (int degrees = 0; degrees < 360; degrees += 19) {
            const double angle = degrees * 0.0174532925;
            const double x = row.along * std::cos(angle) + row.below * std::sin(angle);
            const double y = -row.along * std::sin(angle) + row.below * std::cos(angle);
            EntityRecord r = fake::text({9000.5F, -700.25F}, row.words, row.size);
            r.rad = 1.2F * row.width;
            r.a1 = degrees;
            s.store.entCount = 1;
            DrawingDesk::add(r);
            look({9000.5F + static_cast<float>(x) - 1, -700.25F + static_cast<float>(y) - 1, 2, 1.6F});
            EXPECT_EQ(!fake::only(painted(), "text").empty(), row.painted) << row.what << " " << degrees;
        }
    }
}

TEST_F(Redraw, PaintsADimensionAsFarAsItsFiguresAndArrowsReach)
{
    EntityRecord r = fake::record(Kind::linearDimension, {100, 500}, {130, 500}, {100, 400}, {130, 400});
    r.p5 = {140, 380};
    r = fake::dimension(r, "2'-6 1/2\"", 2, 20);
    struct Row {
        const char* what;
        Scale view;
        bool painted;
    };
    const Row rows[] = {
        {"the last figures", {200, 385, 10, 8}, true}, {"the foot of the figures", {145, 402, 5, 4}, true},
        {"the arrow outside", {66, 398, 5, 4}, true},  {"beside all of it", {20, 398, 5, 4}, false},
        {"below all of it", {110, 520, 5, 4}, false},  {"far behind the figures", {700, 385, 10, 8}, false},
    };
    DrawingDesk::add(r);
    for (const Row& row : rows) {
        look(row.view);
        const bool anything = fake::only(painted(), "text").size() + fake::only(painted(), "line").size() > 0;
        EXPECT_EQ(anything, row.painted) << row.what;
    }
}

TEST_F(Redraw, GoesStraightToTheSurfaceAfterZoomAllForLinesAndCirclesAlone)
{
    add(Kind::line, {-10000, 10}, {10000, 10});
    add(Kind::circle, {500, 400}, {}, 450);
    s.wholeViewFlag = 1;
    const Ops expected = {"line -10000 10 10000 10", "circle 500 400 450"};
    EXPECT_EQ(fake::marks(painted()), expected);
    s.wholeViewFlag = 0;
    EXPECT_GT(fake::marks(painted()).size(), 2U);
    s.store.entCount = 1;
    add(Kind::arc, {500, 400}, {}, 850);
    s.wholeViewFlag = 1;
    EXPECT_TRUE(fake::only(painted(), "arc").empty()); // its painter is used as ever
}

TEST_F(Redraw, SkipsAnObjectWhoseCullFaultsAndGoesOn)
{
    const float largest = std::numeric_limits<float>::max();
    add(Kind::circle, {largest, 400}, {}, largest); // its right end can't be had
    add(Kind::point, {7, 8});
    EXPECT_EQ(fake::marks(painted()), Ops{"point 7 8"});
}

TEST_F(Redraw, OfWildNumbersGoesOn)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float infinite = std::numeric_limits<float>::infinity();
    for (const float wild : {nan, infinite, -infinite, std::numeric_limits<float>::max()}) {
        for (const Kind kind : everyKind) {
            add(kind, {wild, 10}, {500, wild}, wild);
            add(kind, {500, 400}, {wild, wild}, 1);
        }
    }
    add(Kind::point, {7, 8});
    EXPECT_EQ(fake::marks(painted()).back(), "point 7 8");
}

TEST_F(Redraw, TakesThePixelFactorsFromTheSurface)
{
    pic1.setScale({100, 50, 1000, 800});
    painted();
    EXPECT_EQ(s.pixelOriginX, 100);
    EXPECT_EQ(s.pixelOriginY, 50);
    EXPECT_EQ(s.pixelPerUnitX, 0.5F);
    EXPECT_EQ(s.pixelPerUnitY, 0.25F);
}

TEST_F(Redraw, AfterDeselectingRefreshesToo)
{
    add(Kind::line, {0, 0}, {10, 5}, 0, Stat::sel);
    add(Kind::line, {0, 0}, {10, 5}, 0, Stat::off);
    pic1.takeOps();
    deselectAll(s, pic1);
    EXPECT_EQ(s.store.stat[1], Stat::on);
    EXPECT_EQ(s.store.stat[2], Stat::off);
    const Ops ops = fake::opsOn(pic1);
    EXPECT_EQ(ops.front(), "clear");
    EXPECT_EQ(ops.back(), "refresh");
}

} // namespace
} // namespace mirtane
