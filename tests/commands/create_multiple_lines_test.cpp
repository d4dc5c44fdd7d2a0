#include "commands/multiple_lines.h"

#include "function_desk.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

namespace mirtane {
namespace {

// Window Select was left for the function, and the name of the set is typed.
class Creation : public fake::FunctionDesk {
  public:
    Creation() : FunctionDesk("Window Select")
    {
        start("Create Multiple Lines");
        typeIn("Wall");
    }
    void line(Point a, Point b) { add(fake::line(a, b), Stat::sel); }
    const MultipleLine& row(std::size_t i) const { return session->multipleLinesLibrary.rows[i]; }
    std::int32_t count() const { return session->multipleLinesLibrary.count; }
};

TEST(CreateMultipleLines, OffsetsAreTheDistancesFromTheReferenceLine)
{
    struct Row {
        const char* what;
        Point a, b;
        float offset;
    };
    // the reference line runs to the right through (100, 100)
    const Row rows[] = {
        {"below", {0, 110}, {50, 110}, 10},
        {"above", {0, 80}, {50, 80}, -20},
        {"on it", {0, 100}, {50, 100}, 0},
        {"below, far to the right", {900, 110}, {950, 110}, 10},
        {"straight below the point", {100, 130}, {150, 130}, 30},
        {"in another direction: only its first point counts", {0, 140}, {0, 0}, 40},
        {"at the point itself", {100, 100}, {130, 130}, 0},
    };
    for (const Row& row : rows) {
        Creation creation;
        creation.line({0, 500}, {10, 500});
        creation.line(row.a, row.b);
        creation.click({100, 100});
        ASSERT_EQ(creation.count(), 2) << row.what;
        EXPECT_NEAR(creation.row(0).m1, 400, 1e-3) << row.what;
        EXPECT_NEAR(creation.row(1).m1, row.offset, 1e-3) << row.what;
    }
}

TEST(CreateMultipleLines, TheFirstSelectedLineGivesTheDirection)
{
    Creation creation;
    creation.line({50, 500}, {50, 0}); // upward: its right is at the right
    creation.line({20, 0}, {20, 100});
    creation.click({30, 30});
    EXPECT_NEAR(creation.row(0).m1, 20, 1e-3);
    EXPECT_NEAR(creation.row(1).m1, -10, 1e-3);
}

TEST(CreateMultipleLines, ASetIsDrawnAsItWasTaken)
{
    for (int degrees = 0; degrees < 360; degrees += 15) {
        const double a = degrees * std::numbers::pi / 180;
        const auto at = [a](double along, double beside) {
            return Point{static_cast<float>(300 + along * std::cos(a) + beside * std::sin(a)),
                         static_cast<float>(200 - along * std::sin(a) + beside * std::cos(a))};
        };
        Creation creation;
        creation.line(at(-30, 12), at(70, 12));
        creation.line(at(10, -7), at(40, -7));
        creation.click({300, 200});
        EXPECT_NEAR(creation.row(0).m1, 12, 1e-3) << degrees;
        EXPECT_NEAR(creation.row(1).m1, -7, 1e-3) << degrees;
    }
}

TEST(CreateMultipleLines, KeepsColourStyleAndName)
{
    Creation creation;
    creation.add(fake::ofLooks(fake::line({0, 110}, {50, 110}), 0x0000FF, 0, 3), Stat::sel);
    creation.click({0, 100});
    MultipleLine expected;
    expected.m1 = creation.row(0).m1;
    expected.colour = 0x0000FF;
    expected.style = 3;
    expected.name = "Wall";
    EXPECT_EQ(creation.row(0), expected) << "the leg under way starts at nothing";
}

TEST(CreateMultipleLines, TakesSelectedLinesAlone)
{
    Creation creation;
    creation.add(fake::circle({}, 0), Stat::sel);
    creation.add(fake::line({}, {10, 0}), Stat::on);
    creation.add(fake::line({}, {10, 0}), Stat::out);
    creation.line({0, 110}, {50, 110});
    creation.click({0, 100});
    EXPECT_EQ(creation.count(), 1);
    EXPECT_EQ(creation.s.store.stat[1], Stat::on) << "all that was selected comes back";
    EXPECT_EQ(creation.s.store.stat[3], Stat::out);
}

TEST(CreateMultipleLines, EndsWithTheNamesListedAndTheLastOneChosen)
{
    Creation creation;
    MultipleLine other;
    other.name = "Fence";
    creation.s.multipleLinesLibrary.add(other);
    creation.line({0, 110}, {50, 110});
    creation.click({0, 100});
    EXPECT_EQ(creation.s.curFunc, "Window Select");
    EXPECT_EQ(creation.s.stepNo, 0);
    EXPECT_EQ(creation.s.controls["Label3"_c].caption, "Select Multiple Lines");
    EXPECT_EQ(creation.s.controls["List1"_c].rows, (std::vector<std::string>{"Fence", "Wall"}));
    EXPECT_EQ(creation.s.multipleLinesName, "Wall");
    EXPECT_EQ(creation.s.log.undoLogCount, 0);
}

TEST(CreateMultipleLines, TheReferencePointIsTheSecondPointOfTheFunction)
{
    Creation creation;
    creation.s.pickFirst = {900, 900};
    creation.line({0, 110}, {50, 110});
    creation.click({0, 100});
    EXPECT_NEAR(creation.row(0).m1, 10, 1e-4);
    EXPECT_EQ(creation.s.ptA, (Point{0, 100}));
    EXPECT_EQ(creation.s.ptB, (Point{10000, 100}));
}

TEST(CreateMultipleLines, WithoutANameDoesNothing)
{
    Creation creation;
    creation.s.multipleLinesName = "??????";
    creation.line({0, 110}, {50, 110});
    creation.click({0, 100});
    EXPECT_EQ(creation.count(), 0);
    EXPECT_EQ(creation.s.store.stat[1], Stat::sel);
    EXPECT_EQ(creation.s.curFunc, "Create Multiple Lines");
}

TEST(CreateMultipleLines, StopsAtOnceWhenTheTableIsFull)
{
    Creation creation;
    creation.s.multipleLinesLibrary.count = 998;
    creation.line({0, 110}, {50, 110});
    creation.line({0, 120}, {50, 120});
    creation.line({0, 130}, {50, 130});
    creation.click({0, 100});
    EXPECT_EQ(creation.count(), 1000);
    EXPECT_NEAR(creation.row(999).m1, 20, 1e-3);
    EXPECT_EQ(creation.s.store.stat[1], Stat::sel);
    EXPECT_EQ(creation.s.curFunc, "Create Multiple Lines");
    EXPECT_EQ(creation.s.stepNo, 2);
    EXPECT_TRUE(creation.s.controls["List1"_c].rows.empty());
}

TEST(CreateMultipleLines, SaysHowManyLinesTheTableHadNoRoomFor)
{
    struct Row {
        std::int32_t count; // rows in use, of 1,000
        const char* said;   // with twelve lines
    };
    const Row rows[] = {{987, ""},
                        {988, ""},
                        {989, "The table is full: 1 piece is missing"},
                        {995, "The table is full: 7 pieces are missing"},
                        {1000, "The table is full: 12 pieces are missing"},
                        {1700, "The table is full: 12 pieces are missing"}};
    for (const Row& row : rows) {
        Creation creation;
        creation.s.multipleLinesLibrary.count = row.count;
        for (int i = 0; i < 12; ++i) creation.line({0, 110}, {50, 110});
        creation.click({0, 100});
        EXPECT_EQ(creation.s.controls["entry"_c].text, row.said) << row.count;
    }
}

TEST(CreateMultipleLines, ALineOfNoLengthGivesNoDirectionAndDoesNoHarm)
{
    Creation creation;
    creation.line({50, 50}, {50, 50});
    creation.line({0, 110}, {50, 110});
    creation.click({0, 100});
    ASSERT_EQ(creation.count(), 2);
    EXPECT_TRUE(std::isfinite(creation.row(0).m1));
    EXPECT_TRUE(std::isfinite(creation.row(1).m1));
}

} // namespace
} // namespace mirtane
