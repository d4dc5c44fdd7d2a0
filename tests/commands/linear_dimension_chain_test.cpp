#include "commands/linear_dimension.h"

#include "dimension_desk.h"
#include "geometry/angle.h"
#include "model/undo_log.h"

#include <random>

namespace mirtane {
namespace {

using fake::expectDegrees;
using fake::expectNear;
using fake::LinearDesk;
using fake::onTurn;

TEST(LinearDimension, EachFurtherPointMakesTheNextOfAChainOnTheSameLine)
{
    LinearDesk desk;
    desk.measure({1000, 1000}, {1432, 1000}, {1432, 800});
    desk.snap({1576, 1100});
    desk.snap({1864, 900});
    ASSERT_EQ(desk.madeCount(), 3);
    const EntityRecord second = desk.made(2);
    EXPECT_EQ(second.p1, (Point{1432, 1000}));
    EXPECT_EQ(second.p2, (Point{1576, 1100}));
    EXPECT_EQ(second.p4, (Point{1432, 800}));
    EXPECT_EQ(second.p3, (Point{1576, 800}));
    EXPECT_EQ(second.t1, "1'-0\"");
    const EntityRecord third = desk.made(3);
    EXPECT_EQ(third.p1, (Point{1576, 1100}));
    EXPECT_EQ(third.p2, (Point{1864, 900}));
    EXPECT_EQ(third.p4, (Point{1576, 800}));
    EXPECT_EQ(third.p3, (Point{1864, 800}));
    EXPECT_EQ(third.t1, "2'-0\"");
    EXPECT_EQ(desk.s.stepNo, 5);
    EXPECT_EQ(desk.s.pickFirst, (Point{1864, 900})); // so that a second click there ends the chain
}

TEST(LinearDimension, ChainMayTurnBackAndItsTextStaysUpright)
{
    LinearDesk desk;
    desk.measure({1000, 1000}, {1432, 1000}, {1432, 800});
    desk.snap({1288, 1000});
    const EntityRecord back = desk.made(2);
    EXPECT_EQ(back.p3, (Point{1288, 800}));
    EXPECT_EQ(back.p4, (Point{1432, 800}));
    expectDegrees(back.a1, 0, "backwards");
    EXPECT_EQ(back.t1, "1'-0\"");
    expectNear(back.p5, {1306, 728}, "five characters of 28.8, 72 - 54 along"); // from the left end
}

TEST(LinearDimension, ChainsOnASlope)
{
    LinearDesk desk;
    desk.measure({1000, 1000}, {1300, 600}, {1220, 540});
    desk.snap({1600, 200});
    const EntityRecord r = desk.made(2);
    expectNear(r.p4, {1220, 540}, "p4");
    expectNear(r.p3, {1520, 140}, "p3");
    EXPECT_EQ(r.t1, "3'-5 5/8\"");
}

TEST(LinearDimension, EachOfAChainIsUndoneByItself)
{
    LinearDesk desk;
    desk.measure({1000, 1000}, {1432, 1000}, {1432, 800});
    desk.snap({1576, 1000});
    undo(desk.s.store, desk.s.log);
    EXPECT_EQ(desk.madeStat(1), Stat::on);
    EXPECT_EQ(desk.madeStat(2), Stat::out);
    undo(desk.s.store, desk.s.log);
    EXPECT_EQ(desk.madeStat(1), Stat::out);
}

TEST(LinearDimension, NothingInAChainEndsIt)
{
    LinearDesk desk;
    desk.measure({1000, 1000}, {1432, 1000}, {1432, 800});
    desk.snap({1432, 1300}); // straight below the second point
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.madeCount(), 1);
    EXPECT_EQ(desk.s.promptText, "(Enter first dimension point:)");
}

TEST(LinearDimension, TextKeepsTheNumbersOfItsMoment)
{
    LinearDesk desk;
    desk.measure({1000, 1000}, {1432, 1000}, {1432, 800});
    desk.s.numStyle = "3i";
    desk.snap({1576, 1000});
    EXPECT_EQ(desk.made(1).t1, "3'-0\"");
    EXPECT_EQ(desk.made(2).t1, "12.000\"");
    desk.s.numStyle = "2f";
    desk.snap({1720, 1000});
    EXPECT_EQ(desk.made(3).t1, "1.00'");
    desk.s.numStyle = "br";
    desk.s.numComma = 1;
    desk.snap({1864, 1000});
    EXPECT_EQ(desk.made(4).t1, "30,503cm");
}

// Distance of p from the endless line through a and b.
double offLine(Point p, Point a, Point b)
{
    const double dx = double{b.x} - a.x;
    const double dy = double{b.y} - a.y;
    return std::abs((double{p.x} - a.x) * dy - (double{p.y} - a.y) * dx) / std::hypot(dx, dy);
}

double alongLine(Point p, Point a, Point b)
{
    const double dx = double{b.x} - a.x;
    const double dy = double{b.y} - a.y;
    return ((double{p.x} - a.x) * dx + (double{p.y} - a.y) * dy) / std::hypot(dx, dy);
}

void expectSquare(const EntityRecord& r, const std::string& what)
{
    const double length = distance(r.p3, r.p4);
    EXPECT_NEAR(alongLine(r.p2, r.p4, r.p3), length, 0.05) << what << ": p2 to p3 is square to the line";
    EXPECT_NEAR(alongLine(r.p1, r.p4, r.p3), 0, 0.05) << what << ": p1 to p4 is square to the line";
    EXPECT_NEAR(offLine(r.p5, r.p3, r.p4), 1.5 * r.s2, 0.05) << what << ": the text is off the line";
    EXPECT_TRUE(r.a1 < 91.01 || r.a1 > 270.99) << what << ": the text is upright at " << r.a1;
    const Point reading = onTurn(r.a1, 100);
    const double width = static_cast<double>(r.t1.size()) * fake::characterWidth;
    const Point end{r.p5.x + reading.x, r.p5.y + reading.y};
    EXPECT_NEAR(alongLine({(r.p3.x + r.p4.x) / 2, (r.p3.y + r.p4.y) / 2}, r.p5, end), 0.375 * width, 0.05)
        << what << ": the text is in the middle";
}

TEST(LinearDimension, AnyThreeClicksGiveASquareDimensionWithItsTextOffTheMiddle)
{
    std::mt19937 random(20261121);
    std::uniform_real_distribution<float> anywhere(0, 4000);
    const auto point = [&] { return Point{anywhere(random), anywhere(random)}; };
    LinearDesk desk;
    desk.s.numStyle = "3i";
    int made = 0;
    for (int i = 0; i < 500; ++i) {
        desk.s.stepNo = 0;
        const Point first = point();
        const Point second = point();
        const Point offset = point();
        desk.measure(first, second, offset);
        const EntityRecord r = desk.last();
        const std::string what = "run " + std::to_string(i);
        EXPECT_EQ(r.p1, first) << what;
        EXPECT_EQ(r.p2, second) << what;
        EXPECT_EQ(r.p3, offset) << what;
        if (distance(r.p3, r.p4) < 20 || distance(second, offset) < 20) continue; // its direction is coarse
        ++made;
        expectSquare(r, what);
        const Point third = point();
        desk.snap(third);
        const EntityRecord next = desk.last();
        EXPECT_EQ(next.p1, second) << what;
        EXPECT_EQ(next.p2, third) << what;
        EXPECT_EQ(next.p4, r.p3) << what;
        EXPECT_NEAR(offLine(next.p3, r.p3, r.p4), 0, 0.05) << what << ": one line";
        if (distance(next.p3, next.p4) > 100) expectSquare(next, what + ", chained");
    }
    EXPECT_GT(made, 400);
}

} // namespace
} // namespace mirtane
