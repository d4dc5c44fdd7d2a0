#include "desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

// A line begun at (1000, 1000) and pointing right.
struct TypedDistanceTest : testing::Test {
    TypedDistanceTest()
    {
        desk.click(1000, 1000);
        desk.move(1300, 1000);
    }

    void distance(const std::string& typed)
    {
        desk.type(typed);
        desk.enter();
    }

    Desk desk;
};

struct DistanceRow {
    const char* typed;
    float units; // twelve to the inch
};

TEST(TypedDistances, AreReadAsFeetAndInches)
{
    const DistanceRow rows[] = {{"12", 144},    {"1'", 144},   {"1'6", 216},   {"-1'6", -216}, {"1'-6", 216},
                                {"1'2'3", 420}, {"1.5'", 216}, {"5+3", 60},    {"0,5", 6},     {"3", 36},
                                {"'6", 72},     {".25", 3},    {"1'6.5", 222}, {"2-", 24}};
    for (const DistanceRow& row : rows) {
        Desk desk;
        desk.drawLine(2, 0, 10, 0); // so that a negative one counts
        desk.click(1000, 1000);
        desk.move(1300, 1000);
        desk.type(row.typed);
        desk.enter();
        EXPECT_EQ(desk.slot(2).p2, (Point{1000 + row.units, 1000})) << row.typed;
        EXPECT_EQ(desk.focused(), "pic1") << row.typed;
        EXPECT_EQ(desk.text("entry"_c), "") << row.typed;
    }
}

TEST(TypedDistances, AreReadAsMetresAndCentimetresInMetric)
{
    const DistanceRow rows[] = {{"1'50", static_cast<float>(12 * 150 / 2.5419542)},
                                {"10", static_cast<float>(12 * 10 / 2.5419542)},
                                {"-2", static_cast<float>(-12 * 2 / 2.5419542)}};
    for (const DistanceRow& row : rows) {
        Desk desk;
        desk.drawLine(2, 0, 10, 0);
        desk.s.numStyle = "br";
        desk.click(1000, 1000);
        desk.move(1300, 1000);
        desk.type(row.typed);
        desk.enter();
        EXPECT_NEAR(desk.slot(2).p2.x, 1000 + row.units, 0.001) << row.typed;
    }
}

TEST(TypedDistances, AreInchesInEveryOtherStyle)
{
    for (const char* style : {"us", "2f", "3i"}) {
        Desk desk;
        desk.s.numStyle = style;
        desk.click(1000, 1000);
        desk.move(1300, 1000);
        desk.type("12");
        desk.enter();
        EXPECT_EQ(desk.slot(1).p2, (Point{1144, 1000})) << style;
    }
}

TEST_F(TypedDistanceTest, FollowsThePointersDirectionWithOrthoOff)
{
    desk.press("freecurs"_c);
    desk.move(1300, 1400);
    distance("10");
    EXPECT_EQ(desk.slot(1).p2, (Point{1072, 1096})); // 120 units along 3, 4
}

TEST_F(TypedDistanceTest, RunsBackwardWhenNegativeWithOrthoOff)
{
    distance("5");
    desk.press("freecurs"_c);
    desk.move(1060, 1400); // straight down
    distance("-10");
    EXPECT_EQ(desk.slot(2).p1, (Point{1060, 1000}));
    EXPECT_EQ(desk.slot(2).p2, (Point{1060, 880}));
}

TEST_F(TypedDistanceTest, ChainsLikeAClickDoes)
{
    distance("10");
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.s.pickFirst, (Point{1120, 1000}));
    desk.move(1120, 500); // up
    distance("5");
    EXPECT_EQ(desk.slot(2).p1, (Point{1120, 1000}));
    EXPECT_EQ(desk.slot(2).p2, (Point{1120, 940}));
}

TEST_F(TypedDistanceTest, BelowAThousandthOfAnInchIsDroppedInAnEmptyDrawing)
{
    for (const char* typed : {"0", "-5", ".0009"}) {
        distance(typed);
        EXPECT_EQ(desk.s.stepNo, 1) << typed;
        EXPECT_EQ(desk.s.store.entCount, 1) << typed;
        EXPECT_EQ(desk.text("entry"_c), "") << typed;
        EXPECT_EQ(desk.focused(), "pic1") << typed;
    }
    distance(".002");
    EXPECT_EQ(desk.s.store.entCount, 2);
}

TEST_F(TypedDistanceTest, OfZeroStoresALineOfNoLengthOnceThereIsAnObject)
{
    distance("5");
    distance("0");
    EXPECT_EQ(desk.s.store.entCount, 3);
    EXPECT_EQ(desk.slot(2).p1, desk.slot(2).p2);
    EXPECT_EQ(desk.s.stepNo, 1); // the chain goes on
}

TEST_F(TypedDistanceTest, OnAnEmptyTextShowsThePromptAndWaits)
{
    desk.type("5");
    desk.backspace();
    desk.enter();
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_EQ(desk.title(), fake::titleOf("Line(Enter ending point of line:)"));
}

TEST_F(TypedDistanceTest, DropsAllOtherKeys)
{
    desk.type("1a b/2;\"+.'-3");
    EXPECT_EQ(desk.text("entry"_c), "12+.'-3");
    desk.backspace();
    EXPECT_EQ(desk.text("entry"_c), "12+.'-");
}

TEST_F(TypedDistanceTest, TurnsACommaIntoAPoint)
{
    desk.type("1,5");
    EXPECT_EQ(desk.text("entry"_c), "1.5");
}

TEST_F(TypedDistanceTest, ReadsWhatIsNoNumberAsZero)
{
    distance("5");
    distance("..");
    EXPECT_EQ(desk.slot(2).p1, desk.slot(2).p2);
}

TEST_F(TypedDistanceTest, LeavesTheFlagOfASnappedPoint)
{
    desk.s.pointWasSnapped = false;
    distance("5");
    EXPECT_FALSE(desk.s.pointWasSnapped);
}

TEST(TypedDistances, AreDiscardedByOtherFunctionsThoughTheStepIsCounted)
{
    Desk desk;
    desk.drawLine(2, 0, 10, 0);
    desk.press("angle"_c);
    desk.type("m");
    desk.click(1000, 1000);
    desk.move(1300, 1300);
    desk.type("5");
    desk.enter();
    EXPECT_EQ(desk.s.stepNo, 2);
    EXPECT_EQ(desk.s.curFunc, "Ortho Angle Match");
    EXPECT_EQ(desk.s.orthoAngle, 0);
    EXPECT_EQ(desk.focused(), "pic1");
}

TEST(Entry, TakesAllKeysAtStepZeroAndEnterDoesNothing)
{
    Desk desk;
    desk.shell.giveFocus("entry"_c);
    desk.type("abc 1;");
    EXPECT_EQ(desk.text("entry"_c), "abc 1;");
    desk.enter();
    EXPECT_EQ(desk.text("entry"_c), "abc 1;");
    EXPECT_EQ(desk.s.stepNo, 0);
}

TEST(Entry, GivesTheFocusBackAtAClick)
{
    Desk desk;
    desk.press("entry"_c);
    EXPECT_EQ(desk.focused(), "pic1");
}

TEST(Fillet, TakesADistanceAtEveryStepAsItsRadius)
{
    for (const std::int16_t step : {std::int16_t{0}, std::int16_t{1}}) {
        Desk desk;
        desk.s.curFunc = "Fillet";
        desk.s.stepNo = step;
        desk.type("2");
        EXPECT_EQ(desk.focused(), "entry") << step;
        desk.enter();
        EXPECT_EQ(desk.s.filletRadius, 24) << step;
        EXPECT_EQ(desk.focused(), "pic1") << step;
        EXPECT_EQ(desk.s.promptText, "(Enter new radius (2) or click near inside of radius:") << step;
    }
}

TEST(Sizes, TakeADistanceAndReturnToTheBaseFunction)
{
    for (const char* name : {"Text Size", "Arrow Size"}) {
        Desk desk;
        desk.s.curFunc = name;
        desk.s.stepNo = 1;
        desk.type("2.5");
        desk.enter();
        const bool text = std::string_view(name) == "Text Size";
        EXPECT_EQ(text ? desk.s.textSize : desk.s.arrowSize, 30) << name;
        EXPECT_EQ(text ? desk.s.arrowSize : desk.s.textSize, 48) << name;
        EXPECT_EQ(desk.s.curFunc, "Line") << name;
        EXPECT_EQ(desk.s.stepNo, 0) << name;
        EXPECT_EQ(desk.title(), fake::titleOf("Line(Enter beginning point of line:)")) << name;
        EXPECT_EQ(desk.focused(), "pic1") << name;
    }
}

} // namespace
} // namespace mirtane
