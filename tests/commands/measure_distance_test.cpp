#include "commands/measure_distance.h"

#include "commands/line.h"

#include "text_desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Ops;

struct MeasureDistance : testing::Test, fake::TextDesk {
    MeasureDistance() : TextDesk("Measure Distance") {}

    std::string shown() const { return s.controls["entry"_c].text; }
};

TEST_F(MeasureDistance, ShowsTheValueAloneAndStoresNothing)
{
    click(100, 100);
    EXPECT_EQ(s.promptText, "(Enter ending point of line:)");
    s.controls["Text3"_c].text = "old";
    ops();
    click(532, 676); // 432 and 576: five times 144
    EXPECT_EQ(shown(), "5'-0\"");
    EXPECT_EQ(text3(), "");
    EXPECT_EQ(s.store.entCount, 1);
    EXPECT_EQ(s.log.undoLogCount, 0);
    const Ops bandGone = {"restoreSnapshot"};
    EXPECT_EQ(ops(), bandGone);
}

TEST_F(MeasureDistance, GoesOnFromTheEndPoint)
{
    click(100, 100);
    click(244, 100);
    EXPECT_EQ(shown(), "1'-0\"");
    EXPECT_EQ(s.stepNo, 1);
    EXPECT_EQ(s.ptA, (Point{244, 100}));
    EXPECT_EQ(s.pickFirst, (Point{244, 100}));
    click(244, 388);
    EXPECT_EQ(shown(), "2'-0\"");
}

struct StyleRow {
    const char* style;
    std::int16_t comma;
    const char* shown;
};

TEST_F(MeasureDistance, ShowsItInEveryStyleAndStaysAtStepOne)
{
    const StyleRow rows[] = {
        {"us", 0, "3'-0\""},   {"3i", 0, "36.000\""}, {"2f", 0, "3.00'"},
        {"br", 0, "91.510cm"}, {"br", 1, "91,510cm"},
    };
    for (const StyleRow& row : rows) {
        s.stepNo = 0;
        s.numStyle = row.style;
        s.numComma = row.comma;
        click(100, 100);
        click(532, 100);
        EXPECT_EQ(shown(), row.shown) << row.style;
        EXPECT_EQ(s.stepNo, 1) << row.style;
    }
}

TEST_F(MeasureDistance, HasTheBandOfALine)
{
    move(5, 5);
    EXPECT_TRUE(ops().empty());
    click(100, 100);
    ops();
    move(250, 120);
    const Ops expected = {"restoreSnapshot", "line 100 100 250 120"};
    EXPECT_EQ(ops(), expected);
}

} // namespace
} // namespace mirtane
