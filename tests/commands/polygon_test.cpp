#include "commands/polygon.h"

#include "desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

struct Polygon : testing::Test {
    Polygon() { desk.press("Command9"_c); }

    void typeSides(const std::string& sides)
    {
        desk.type(sides);
        desk.enter();
    }

    Desk desk;
};

TEST_F(Polygon, PromptsForSidesWithTheCurrentNumber)
{
    EXPECT_EQ(desk.title(), fake::titleOf("Polygon(Enter number of sides (3) or enter center of polygon:"));
}

TEST_F(Polygon, TakesThreeToSixtyFourSidesAndClearsTheTextEitherWay)
{
    struct Row {
        const char* typed;
        std::int16_t sides;
    };
    const Row rows[] = {{"64", 64}, {"65", 64}, {"2", 64}, {"5", 5}, {"3", 3}, {"0", 3}, {"99999999999", 3}};
    for (const Row& row : rows) {
        typeSides(row.typed);
        EXPECT_EQ(desk.s.polygonSides, row.sides) << row.typed;
        EXPECT_EQ(desk.text("entry"_c), "") << row.typed;
        EXPECT_EQ(desk.focused(), "pic1") << row.typed;
    }
}

TEST_F(Polygon, ShowsTheNewCountInItsPrompt)
{
    typeSides("12");
    EXPECT_EQ(desk.s.promptText, "(Enter number of sides (12) or enter center of polygon:");
    EXPECT_EQ(desk.text("Text3"_c), "12");
}

TEST_F(Polygon, TakesOnlyDigitsForItsSides)
{
    desk.type("a-.,'");
    EXPECT_EQ(desk.focused(), "pic1");
    desk.type("1x2.-'");
    EXPECT_EQ(desk.text("entry"_c), "12");
    desk.backspace();
    EXPECT_EQ(desk.text("entry"_c), "1");
}

TEST_F(Polygon, EnterOnAnEmptyTextKeepsTheCount)
{
    desk.type("7");
    desk.backspace();
    desk.enter();
    EXPECT_EQ(desk.s.polygonSides, 3);
    EXPECT_EQ(desk.focused(), "pic1");
}

TEST_F(Polygon, IsAsManyLinesThatUndoOneByOne)
{
    typeSides("4");
    desk.click(1000, 1000);
    EXPECT_EQ(desk.s.promptText, "(Enter (1) corner of polygon:)");
    desk.click(1100, 1000);
    ASSERT_EQ(desk.s.store.entCount, 5);
    const Point corners[] = {{1100, 1000}, {1000, 900}, {900, 1000}, {1000, 1100}, {1100, 1000}};
    for (std::int32_t i = 1; i <= 4; ++i) {
        const EntityRecord side = desk.slot(i);
        EXPECT_EQ(side.kind, Kind::line);
        EXPECT_NEAR(side.p1.x, corners[i - 1].x, 0.001) << i;
        EXPECT_NEAR(side.p1.y, corners[i - 1].y, 0.001) << i;
        EXPECT_NEAR(side.p2.x, corners[i].x, 0.001) << i;
        EXPECT_NEAR(side.p2.y, corners[i].y, 0.001) << i;
    }
    desk.press("undu"_c);
    EXPECT_EQ(desk.stat(3), Stat::on);
    EXPECT_EQ(desk.stat(4), Stat::out);
    EXPECT_EQ(desk.s.layerTable.find(1)->layerUsed, "Yes:");
}

TEST_F(Polygon, EndsReadyForTheNextWithItsCornerAsFirstPoint)
{
    setText(desk.s.controls["calc"_c], "5");
    desk.click(1000, 1000);
    desk.click(1100, 1000);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.workRadius, 0);
    EXPECT_EQ(desk.text("calc"_c), "");
    EXPECT_EQ(desk.s.pickFirst, (Point{1100, 1000}));
    EXPECT_EQ(desk.s.promptText, "(Enter number of sides (3) or enter center of polygon:");
}

TEST_F(Polygon, RestoresOnceAndKeepsThePictureOnce)
{
    desk.click(1000, 1000);
    desk.move(1100, 1000);
    desk.ops();
    desk.down(1, 1100, 1000);
    const fake::Ops ops = desk.ops();
    EXPECT_EQ(fake::only(ops, "restoreSnapshot").size(), 1U);
    EXPECT_EQ(fake::only(ops, "snapshot").size(), 1U);
    EXPECT_EQ(fake::only(ops, "line").size(), 3U);
}

TEST_F(Polygon, BandShowsAllSidesAndStoresNone)
{
    desk.click(1000, 1000);
    desk.ops();
    desk.move(1100, 1000);
    EXPECT_EQ(fake::only(desk.ops(), "line").size(), 3U);
    EXPECT_EQ(desk.s.store.entCount, 1);
}

TEST_F(Polygon, TakesATypedRadius)
{
    typeSides("4");
    desk.click(1000, 1000);
    desk.move(1300, 1000);
    desk.type("10");
    desk.enter();
    ASSERT_EQ(desk.s.store.entCount, 5);
    EXPECT_EQ(desk.slot(1).p1, (Point{1120, 1000}));
}

} // namespace
} // namespace mirtane
