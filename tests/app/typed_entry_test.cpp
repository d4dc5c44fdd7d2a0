#include "desk.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

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

TEST(Sizes, TakeOnlyWhatIsAboveNothingAndSaySo)
{
    for (const char* style : {"us", "2f", "3i", "br"}) {
        for (const char* typed : {"0", "-2", "-0", "0.000", "-1'6", "..", "-", "'", "0'0", "-.5", "-,25"}) {
            for (const ControlId menu : {"tk3"_c, "dim7"_c}) {
                Desk desk;
                desk.s.numStyle = style;
                desk.s.numComma = 1;
                desk.s.textSize = 31;
                desk.s.arrowSize = 17;
                desk.press(menu);
                desk.type(typed);
                desk.enter();
                const std::string what = std::string(menu.row().name) + " " + style + " " + typed;
                EXPECT_EQ(desk.s.textSize, 31) << what;
                EXPECT_EQ(desk.s.arrowSize, 17) << what;
                EXPECT_EQ(desk.text("entry"_c), "Size not changed: it must be above 0") << what;
                EXPECT_EQ(desk.s.curFunc, "Line") << what;
                EXPECT_EQ(desk.s.stepNo, 0) << what;
                EXPECT_EQ(desk.focused(), "pic1") << what;
            }
        }
    }
}

TEST(Sizes, TakeTheSmallestThatIsAboveNothing)
{
    for (const char* style : {"us", "2f", "3i", "br"}) {
        Desk desk;
        desk.s.numStyle = style;
        desk.press("tk3"_c);
        desk.type(".001");
        desk.enter();
        EXPECT_GT(desk.s.textSize, 0) << style;
        EXPECT_LT(desk.s.textSize, 1) << style;
        EXPECT_EQ(desk.text("entry"_c), "") << style;
    }
}

// -- a distance with no move of the pointer before it --

TEST(TypedDistances, InAFreshProgramRunToTheRightBeforeThePointerHasMoved)
{
    struct Row {
        ControlId starter;
        const char* typed;
        Point at, to; // where pickLast is then
    };
    const Row rows[] = {
        {"Command1"_c, "5", {1000, 700}, {1060, 700}},   {"Command2"_c, "10", {1000, 700}, {1120, 700}},
        {"Command4"_c, "2", {3000, 2500}, {3024, 2500}}, {"Command7"_c, "4", {123, 456}, {171, 456}},
        {"Command9"_c, "1'", {-500, 80}, {-356, 80}},
    };
    for (const Row& row : rows) {
        Desk desk;
        desk.press(row.starter);
        desk.down(1, row.at.x, row.at.y);
        desk.type(row.typed);
        desk.enter();
        EXPECT_EQ(desk.s.pickLast, row.to) << row.starter.row().name;
    }
}

TEST(TypedDistances, InAFreshProgramFollowTheOrthoAngleBeforeThePointerHasMoved)
{
    Desk desk;
    desk.shell.giveFocus("angle"_c);
    setText(desk.s.controls["angle"_c], "");
    desk.type("30");
    desk.enter();
    desk.down(1, 1000, 1000);
    desk.type("10");
    desk.enter();
    EXPECT_NEAR(desk.slot(1).p2.x, 1000 + 120 * 0.8660254, 1e-3);
    EXPECT_NEAR(desk.slot(1).p2.y, 1000 - 60, 1e-3);
}

TEST(TypedDistances, OfAFreshConstructionLineRunToTheRightToo)
{
    Desk desk;
    desk.press("blank"_c);
    desk.down(1, 2000, 900);
    desk.type("5");
    desk.enter();
    EXPECT_EQ(desk.s.blankStart, (Point{2060, 900}));
}

TEST(TypedDistances, FirstOfAllAfterCloseAndOpenHaveADirectionToo)
{
    Desk desk;
    desk.saveAs("empty");
    desk.press("fil5"_c);
    desk.open("empty");
    EXPECT_EQ(desk.s.orthoSector, 1);
    desk.down(1, 1000, 700);
    desk.type("10");
    desk.enter();
    EXPECT_EQ(desk.slot(1).p2, (Point{1120, 700}));
}

// A chain with ortho off from `from`, whose pointer moves once, to `aim`; then distances alone are typed.
struct ChainRow {
    const char* what;
    Point from, aim;
    std::vector<const char*> typed;
    std::vector<double> along; // where each leg ends, units from `from` towards `aim`
};

const ChainRow chainRows[] = {
    {"level", {1000, 1000}, {1300, 1000}, {"10", "5", "1'"}, {120, 180, 324}},
    {"slanted", {1000, 1000}, {1600, 1800}, {"10", "2.5", "3"}, {120, 150, 186}},
    {"straight up", {40, 900}, {40, 100}, {"1", "2", "3", "4"}, {12, 36, 72, 120}},
    {"a negative one goes back, and the next goes on that way",
     {500, 500},
     {300, 900},
     {"10", "-4", "2"},
     {120, 72, 48}},
    {"two negative ones", {500, 500}, {300, 900}, {"10", "-4", "-1"}, {120, 72, 84}},
    {"negative from the start", {0, 2000}, {100, 1700}, {"-5", "3"}, {-60, -96}},
    {"far from the origin",
     {1000000, -700000},
     {1000300, -700500},
     {"9", "9", "9", "9", "9", "9"},
     {108, 216, 324, 432, 540, 648}},
};

Point placeAlong(const ChainRow& row, double d)
{
    const double dx = row.aim.x - row.from.x, dy = row.aim.y - row.from.y;
    const double length = std::hypot(dx, dy);
    return {static_cast<float>(row.from.x + d * dx / length),
            static_cast<float>(row.from.y + d * dy / length)};
}

TEST(TypedDistances, OfALineWithOrthoOffGoOnInTheDirectionOfTheLastLeg)
{
    for (const ChainRow& row : chainRows) {
        Desk desk;
        desk.drawLine(2, 0, 10, 0);
        desk.press("freecurs"_c);
        desk.click(row.from.x, row.from.y);
        desk.move(row.aim.x, row.aim.y);
        const double tolerance = std::abs(row.from.x) > 1e5 ? 0.2 : 1e-3;
        for (std::size_t i = 0; i < row.typed.size(); ++i) {
            desk.type(row.typed[i]);
            desk.enter();
            const Point end = placeAlong(row, row.along[i]);
            const EntityRecord leg = desk.slot(static_cast<std::int32_t>(2 + i));
            EXPECT_NEAR(leg.p2.x, end.x, tolerance) << row.what << " " << i;
            EXPECT_NEAR(leg.p2.y, end.y, tolerance) << row.what << " " << i;
            EXPECT_NE(leg.p1, leg.p2) << row.what << " " << i;
        }
    }
}

TEST(TypedDistances, OfMultipleLinesWithOrthoOffGoOnInTheDirectionOfTheLastLeg)
{
    for (const ChainRow& row : chainRows) {
        Desk desk;
        desk.drawLine(2, 0, 10, 0);
        MultipleLine onThePath;
        onThePath.name = "wall";
        desk.s.multipleLinesLibrary.add(onThePath);
        desk.press("freecurs"_c);
        desk.press("Command10"_c);
        desk.shell.clickRow("List1"_c, 0);
        desk.click(row.from.x, row.from.y);
        desk.move(row.aim.x, row.aim.y);
        const double tolerance = std::abs(row.from.x) > 1e5 ? 0.2 : 1e-3;
        for (std::size_t i = 0; i < row.typed.size(); ++i) {
            desk.type(row.typed[i]);
            desk.enter();
            const Point end = placeAlong(row, row.along[i]);
            EXPECT_NEAR(desk.s.pickLast.x, end.x, tolerance) << row.what << " " << i;
            EXPECT_NEAR(desk.s.pickLast.y, end.y, tolerance) << row.what << " " << i;
        }
    }
}

TEST(TypedDistances, GoOnFromALegThatWasClickedOrSnappedOrReleased)
{
    Desk desk;
    desk.drawLine(2000, 1000, 2300, 1400);
    desk.press("freecurs"_c);
    desk.click(1000, 1000);
    desk.click(1300, 1400); // clicked
    desk.type("5");
    desk.enter();
    EXPECT_EQ(desk.slot(3).p2, (Point{1336, 1448}));
    desk.press("Command35"_c);
    desk.click(2001, 1001); // onto the end at (2000, 1000)
    desk.type("10");
    desk.enter();
    const double length = std::hypot(664.0, 448.0);
    EXPECT_NEAR(desk.slot(5).p2.x, 2000 + 120 * 664 / length, 1e-3);
    EXPECT_NEAR(desk.slot(5).p2.y, 1000 - 120 * 448 / length, 1e-3);
    const Point from = desk.slot(5).p2;
    desk.press("blank"_c);
    desk.down(1, from.x, from.y + 500);
    desk.press("blank"_c); // a leg straight down
    desk.type("1");
    desk.enter();
    EXPECT_NEAR(desk.slot(7).p2.x, from.x, 1e-3);
    EXPECT_NEAR(desk.slot(7).p2.y, from.y + 512, 1e-3);
}

TEST(TypedDistances, TakeTheNewDirectionOnceThePointerHasMoved)
{
    Desk desk;
    desk.press("freecurs"_c);
    desk.click(1000, 1000);
    desk.move(1500, 1000);
    desk.type("10");
    desk.enter();
    desk.move(1120, 1700);
    desk.type("10");
    desk.enter();
    EXPECT_EQ(desk.slot(2).p2, (Point{1120, 1120}));
    desk.move(1120, 1120); // onto the end itself, which is no direction
    desk.type("10");
    desk.enter();
    EXPECT_EQ(desk.slot(3).p2, (Point{1120, 1240}));
}

TEST(TypedDistances, GoOnAlongALegThatOrthoMade)
{
    Desk desk;
    desk.click(1000, 1000);
    desk.move(1010, 400); // up
    desk.type("10");
    desk.enter();
    desk.press("freecurs"_c);
    desk.type("5");
    desk.enter();
    EXPECT_NEAR(desk.slot(2).p2.x, 1000, 1e-3);
    EXPECT_NEAR(desk.slot(2).p2.y, 820, 1e-3);
}

// A dimension's offset is no leg: the line before it has no say in it.
TEST(TypedDistances, ALineDrawnBeforeGivesAnotherFunctionNoDirection)
{
    Desk desk;
    desk.press("freecurs"_c);
    desk.click(1000, 1000);
    desk.click(1300, 1000);
    desk.cancel();
    desk.press("Command11"_c);
    desk.press("Command35"_c);
    desk.click(1001, 1001);
    desk.press("Command35"_c);
    desk.click(1301, 1001);
    desk.type("5");
    desk.enter();
    EXPECT_EQ(desk.s.store.entCount, 3);
    EXPECT_EQ(desk.slot(2).kind, Kind::linearDimension);
    EXPECT_EQ(desk.slot(2).p3, (Point{1300, 1000}));
}

} // namespace
} // namespace mirtane
