#include "render/painters.h"

#include "geometry/angle.h"
#include "ops_text.h"
#include "render/redraw.h"

#include <gtest/gtest.h>

#include <cmath>

namespace mirtane {
namespace {

using fake::Ops;

// The window is 600 high and so wide and so far to the left that all pieces lie in it, unless a test says
// else.
struct Painters : testing::Test {
    Painters() { look({-100000, -100000, 300000, 600}); }

    void look(Scale scale)
    {
        pic1.setScale(scale);
        readViewLimits(view, pic1);
        pic1.takeOps();
    }

    // All directions in view, yet pieces cut for a window 600 high.
    void lookEverywhere()
    {
        view.viewTop = -100000;
        view.viewBottom = 100000;
    }

    std::vector<CanvasOp> taken() { return pic1.takeOps(); }

    RecordingCanvas pic1{Size{1000, 600}};
    View view;
};

float arg(const CanvasOp& op, std::size_t i)
{
    return std::get<float>(op.args[i]);
}

void expectChain(const std::vector<CanvasOp>& ops)
{
    for (std::size_t i = 1; i < ops.size(); ++i) {
        EXPECT_EQ(arg(ops[i], 0), arg(ops[i - 1], 2)) << i;
        EXPECT_EQ(arg(ops[i], 1), arg(ops[i - 1], 3)) << i;
    }
}

struct LineRow {
    const char* what;
    float length;
    std::size_t pieces;
};

TEST_F(Painters, CutALineLongerThanTwiceTheWindowsHeight)
{
    const LineRow rows[] = {
        {"twice the height", 1200, 1},   {"2.5 heights: 1.25 rounds to one", 1500, 1},
        {"1.5 rounds to even", 1800, 2}, {"2.5 rounds to even", 3000, 2},
        {"3.5 rounds to even", 4200, 4}, {"ten", 12000, 10},
    };
    lookEverywhere();
    for (const LineRow& row : rows) {
        for (auto* painter : {paintLine, paintLineSegment}) {
            painter(pic1, view, {0, 100}, {row.length, 100});
            const auto ops = taken();
            ASSERT_EQ(ops.size(), row.pieces) << row.what;
            expectChain(ops);
            EXPECT_EQ(arg(ops.front(), 0), 0) << row.what;
            EXPECT_NEAR(arg(ops.back(), 2), row.length, 0.01) << row.what;
        }
    }
}

TEST_F(Painters, HandOnOnlyThePiecesOfALineInView)
{
    look({0, 0, 900, 600});
    paintLine(pic1, view, {-6000, 100}, {6000, 100}); // ten pieces of 1200
    const auto ops = taken();
    ASSERT_EQ(ops.size(), 2U); // the two that meet at 0, on the edge
    EXPECT_NEAR(arg(ops[0], 0), -1200, 0.01);
    EXPECT_NEAR(arg(ops[1], 2), 1200, 0.01);
}

TEST_F(Painters, OfARedrawLeaveAShortLineToTheDriverAndTheImmediateOneCulls)
{
    look({0, 0, 900, 600});
    paintLine(pic1, view, {-100, 10}, {-50, 10});
    EXPECT_EQ(taken().size(), 1U);
    paintLineSegment(pic1, view, {-100, 10}, {-50, 10});
    EXPECT_TRUE(taken().empty());
    paintLineSegment(pic1, view, {-100, 10}, {0, 10});
    EXPECT_EQ(taken().size(), 1U);
}

TEST_F(Painters, TakeALineOfNoLength)
{
    paintLine(pic1, view, {5, 5}, {5, 5});
    paintLineSegment(pic1, view, {5, 5}, {5, 5});
    EXPECT_LE(taken().size(), 2U);
}

TEST_F(Painters, CutACircleFromHalfTheHeightOn)
{
    look({-2000, -300, 4000, 600});
    paintCircle(pic1, view, {0, 0}, 299.9F);
    EXPECT_EQ(fake::opsOn(pic1), Ops{"circle 0 0 299.9"});
    paintCircle(pic1, view, {0, 0}, 300);
    EXPECT_EQ(fake::only(fake::opsOn(pic1), "circle").size(), 0U);
    paintCircleImmediate(pic1, view, {0, 0}, 300);
    EXPECT_EQ(fake::opsOn(pic1), Ops{"circle 0 0 300"}); // of that very radius: whole
    paintCircleImmediate(pic1, view, {0, 0}, 300.1F);
    EXPECT_EQ(fake::only(fake::opsOn(pic1), "circle").size(), 0U);
}

struct CountRow {
    const char* what;
    float r;
    std::size_t pieces;
};

TEST_F(Painters, CutACircleIntoPiecesOfASixthOfTheHeightAndThirtySixAtLeast)
{
    const CountRow rows[] = {
        {"half the height", 300, 36}, // 18.8
        {"1000: 62.83", 1000, 63},
        {"past a 16-bit count", 600000, 36} // 37,699 pieces fault
    };
    look({-1000000, -300, 2000000, 600});
    view.viewTop = -1000000;
    view.viewBottom = 1000000;
    for (const CountRow& row : rows) {
        for (auto* painter : {paintCircle, paintCircleImmediate}) {
            if (painter == paintCircleImmediate && row.r == 300) continue;
            painter(pic1, view, {0, 0}, row.r);
            const auto ops = taken();
            ASSERT_EQ(ops.size(), row.pieces) << row.what;
            expectChain(ops);
            EXPECT_EQ(arg(ops.front(), 0), row.r) << row.what;
            EXPECT_EQ(arg(ops.front(), 1), 0) << row.what;
            EXPECT_LT(arg(ops.front(), 3), 0) << row.what; // counter-clockwise on the screen
        }
    }
}

TEST_F(Painters, SkipACircleBeyondTheViewAndItsPiecesOutside)
{
    look({0, 0, 900, 600});
    paintCircle(pic1, view, {-20, 100}, 19);
    paintCircleImmediate(pic1, view, {-20, 100}, 19);
    EXPECT_TRUE(taken().empty());
    paintCircle(pic1, view, {-1000, 300}, 1000.5F);
    const auto ops = taken();
    EXPECT_GE(ops.size(), 1U);
    EXPECT_LT(ops.size(), 63U);
}

TEST_F(Painters, CutAnArcFromTheHeightOnAndAtOnceMadeFromHalfOfIt)
{
    paintArc(pic1, view, {0, 0}, {599, 0}, 599, 0, 1);
    EXPECT_EQ(fake::opsOn(pic1), Ops{"arc 0 0 599 0 1"});
    paintArc(pic1, view, {0, 0}, {600, 0}, 600, 0, 1);
    EXPECT_TRUE(fake::only(fake::opsOn(pic1), "arc").empty());
    paintArcImmediate(pic1, view, {0, 0}, {300, 0}, 300, 0, 1);
    EXPECT_EQ(fake::opsOn(pic1), Ops{"arc 0 0 300 0 1"});
    paintArcImmediate(pic1, view, {0, 0}, {301, 0}, 301, 0, 1);
    EXPECT_TRUE(fake::only(fake::opsOn(pic1), "arc").empty());
}

TEST_F(Painters, CutArcsIntoPiecesByTheirOwnMeasure)
{
    lookEverywhere();
    // 1000 times half a radian is 500 long: 500 / (600 / 16) is 13.3
    paintArc(pic1, view, {0, 0}, {1000, 0}, 1000, 0, 0.5);
    EXPECT_EQ(taken().size(), 13U);
    // twice that by a sixth of the height: 1000 / 100
    paintArcImmediate(pic1, view, {0, 0}, {1000, 0}, 1000, 0, 0.5);
    EXPECT_EQ(taken().size(), 10U);
    // three at least
    paintArc(pic1, view, {0, 0}, {1000, 0}, 1000, 0, 0.01);
    EXPECT_EQ(taken().size(), 3U);
    paintArcImmediate(pic1, view, {0, 0}, {1000, 0}, 1000, 0, 0.01);
    EXPECT_EQ(taken().size(), 3U);
}

TEST_F(Painters, StartAnArcAtItsStoredPoint)
{
    lookEverywhere();
    for (auto* painter : {paintArc, paintArcImmediate}) {
        painter(pic1, view, {0, 0}, {1000, 77}, 1000, 0, 0.5);
        const auto ops = taken();
        ASSERT_FALSE(ops.empty());
        EXPECT_EQ(arg(ops.front(), 1), 77);
        EXPECT_NEAR(arg(ops.back(), 2), 1000 * std::cos(0.5), 0.01);
        EXPECT_NEAR(arg(ops.back(), 3), -1000 * std::sin(0.5), 0.01);
    }
}

// A file of another program may have put it anywhere.
TEST_F(Painters, StartALongArcAtItsStoredPointThoughItLiesOffTheCircle)
{
    view.viewLeft = 49990;
    view.viewRight = 50010;
    view.viewTop = -50010;
    view.viewBottom = -49990;
    paintArc(pic1, view, {0, 0}, {50000, -50000}, 100000, 0, 1.5);
    const auto ops = taken();
    ASSERT_EQ(ops.size(), 1U);
    EXPECT_EQ(arg(ops[0], 0), 50000);
    EXPECT_EQ(arg(ops[0], 1), -50000);
}

TEST_F(Painters, SweepAnArcThroughTheAngleZeroWhenItsEndLiesBelowItsStart)
{
    lookEverywhere();
    const double a1 = 6, a2 = 0.2831853; // 0.5664 of a radian
    const Point start{static_cast<float>(1000 * std::cos(a1)), static_cast<float>(-1000 * std::sin(a1))};
    paintArc(pic1, view, {0, 0}, start, 1000, a1, a2);
    const auto ops = taken();
    EXPECT_EQ(ops.size(), 15U); // 566.37 / 37.5 is 15.1
    EXPECT_NEAR(arg(ops.back(), 2), 1000 * std::cos(a2), 0.01);
    EXPECT_NEAR(arg(ops.back(), 3), -1000 * std::sin(a2), 0.01);
}

TEST_F(Painters, AlwaysDrawAnEllipseInPieces)
{
    lookEverywhere();
    paintEllipse(pic1, view, {10, 0}, {0, 0}, 0.5F);
    auto ops = taken();
    ASSERT_EQ(ops.size(), 36U);
    expectChain(ops);
    EXPECT_EQ(arg(ops.front(), 0), 10);
    EXPECT_NEAR(arg(ops[8], 2), 0, 0.001); // a quarter of the way: the end of the second axis, upward
    EXPECT_NEAR(arg(ops[8], 3), -5, 0.001);
    EXPECT_NEAR(arg(ops.back(), 2), 10, 0.001);
    paintEllipse(pic1, view, {1000, 0}, {0, 0}, 0.5F);
    EXPECT_EQ(taken().size(), 63U);
}

TEST_F(Painters, KeepAnEllipseRightAtAnyRotationAndRatio)
{
    lookEverywhere();
    paintEllipse(pic1, view, {100, -100}, {0, 0}, 2); // first axis 45 degrees up, second twice as long
    const auto ops = taken();
    EXPECT_NEAR(arg(ops[8], 2), -200, 0.01);
    EXPECT_NEAR(arg(ops[8], 3), -200, 0.01);
    paintEllipse(pic1, view, {100, 0}, {0, 0}, 1);
    for (const CanvasOp& op : taken()) EXPECT_NEAR(std::hypot(arg(op, 2), arg(op, 3)), 100, 0.01);
}

TEST_F(Painters, DrawNothingOfAnEllipseWithoutARadius)
{
    paintEllipse(pic1, view, {5, 5}, {5, 5}, 0.5F);
    EXPECT_TRUE(taken().empty());
}

// Half a thousand million pieces lie between the places where it is above the window and where it is beside.
TEST_F(Painters, PassOverALineThatIsFarFromTheWindowAndHugelyLong)
{
    look({0, 0, 1000, 600});
    constexpr float farAway = 1e12F;
    for (int i = 0; i < 50; ++i) {
        paintLine(pic1, view, {-farAway, farAway / 2}, {farAway / 2, -farAway});
        paintLineSegment(pic1, view, {-farAway, farAway / 2}, {farAway / 2, -farAway});
    }
    EXPECT_TRUE(taken().empty());
}

// Each has 32,767 chords, and would take its milliseconds if they were walked.
TEST_F(Painters, PassOverACircleThatSurroundsTheWindowFarAway)
{
    look({1000, 2000, 1000, 600});
    for (int i = 0; i < 100'000; ++i) paintCircle(pic1, view, {0, 0}, 3e6F);
    EXPECT_TRUE(taken().empty());
}

// Of its hundreds of millions of chords those that point at the window are walked, and no others.
TEST_F(Painters, FindTheChordsOfAnArcWhoseCentreIsHugelyFarAway)
{
    look({0, 0, 1200, 800});
    const Point centre{823932354560.0F, -25300408320.0F};
    for (int i = 0; i < 50; ++i) paintArc(pic1, view, centre, {0, 0}, 824320720896.0F, 3.17229, 3.19223);
    EXPECT_LE(taken().size(), 50 * 100U);
}

} // namespace
} // namespace mirtane
