#include "commands/prompt.h"

#include "ops_text.h"

#include <gtest/gtest.h>

#include <memory>

namespace mirtane {
namespace {

struct PromptTest : testing::Test {
    std::string shown(const std::string& function, std::int16_t step)
    {
        s.curFunc = function;
        s.stepNo = step;
        setPrompt(s, pic1);
        return s.promptText;
    }

    std::unique_ptr<Session> session = std::make_unique<Session>();
    Session& s = *session;
    RecordingCanvas pic1{Size{100, 100}};
};

TEST_F(PromptTest, StandsInTheTitleBehindTheFunction)
{
    shown("Line", 0);
    EXPECT_EQ(s.controls["frmMain"_c].caption, "Mirtane 4.00    Drawing Name: untitled.mtd    Current "
                                               "Function: Line(Enter beginning point of line:)");
}

TEST_F(PromptTest, OfAnUnknownPairLeavesTheOldTextAndShowsTheFunction)
{
    shown("Line", 1);
    EXPECT_EQ(shown("Line", 5), "(Enter ending point of line:)");
    EXPECT_EQ(shown("Move Dimension Text", 0), "(Enter ending point of line:)");
    EXPECT_TRUE(s.controls["frmMain"_c].caption.ends_with(
        "Current Function: Move Dimension Text(Enter ending point of line:)"));
}

TEST_F(PromptTest, WithANumberLeavesItInText3)
{
    s.polygonSides = 12;
    EXPECT_EQ(shown("Polygon", 0), "(Enter number of sides (12) or enter center of polygon:");
    EXPECT_EQ(s.controls["Text3"_c].text, "12");
    shown("Polygon", 1);
    EXPECT_EQ(s.controls["Text3"_c].text, "12");
}

TEST_F(PromptTest, ShowsSizesInInchesAndTheScaleAsPlainText)
{
    s.hatchScale = 0.125F;
    s.textSize = 30;
    s.filletRadius = 18;
    EXPECT_EQ(shown("Hatch Scale", 1), "(Current hatch scale is (0.125) Enter new hatch scale:");
    EXPECT_EQ(shown("Text Size", 1), "(Current text size is (2.500) Enter new text size:");
    EXPECT_EQ(shown("Fillet", 1), "(Enter new radius (1.5) or click near inside of radius:");
    EXPECT_EQ(s.controls["Text3"_c].text, "1.5");
}

TEST_F(PromptTest, ShowsMetricSizesWithTheCommaWhereItIsAskedFor)
{
    s.numStyle = "br";
    s.filletRadius = 47.206F;
    EXPECT_EQ(shown("Fillet", 1), "(Enter new radius (10.000) or click near inside of radius:");
    s.numComma = 1;
    EXPECT_EQ(shown("Fillet", 1), "(Enter new radius (10,000) or click near inside of radius:");
    s.numStyle = "us";
    EXPECT_EQ(shown("Arrow Size", 1), "(Current arrow size is (4,000) Enter new arrow size:");
}

TEST_F(PromptTest, EndsTheLiveAngleAndTheConstructionLinesCaptionAndHidesTheEdits)
{
    s.liveAngle = 1;
    s.controls["blank"_c].caption = "Blank/On";
    s.controls["frmedit"_c].visible = true;
    shown("Line", 0);
    EXPECT_EQ(s.liveAngle, 0);
    EXPECT_EQ(s.controls["blank"_c].caption, "Blank/Off");
    EXPECT_FALSE(s.controls["frmedit"_c].visible);
}

struct SelectionEnds : PromptTest {
    SelectionEnds()
    {
        s.store.entCount = 2;
        s.store.setStat(1, Stat::sel);
        setText(s.controls["entry"_c], "12");
    }
};

TEST_F(SelectionEnds, WhenTheBaseFunctionChanges)
{
    s.baseFunc = "Point";
    shown("Point", 0);
    EXPECT_EQ(s.store.stat[1], Stat::on);
    EXPECT_EQ(s.controls["entry"_c].text, "");
    EXPECT_EQ(s.lastFunc, "Point");
    EXPECT_EQ(fake::only(fake::opsOn(pic1), "snapshot").size(), 1U); // all was repainted
}

TEST_F(SelectionEnds, NotWhileTheBaseFunctionStays)
{
    shown("Copy", 0);
    EXPECT_EQ(s.store.stat[1], Stat::sel);
    EXPECT_EQ(s.controls["entry"_c].text, "12");
    EXPECT_TRUE(fake::opsOn(pic1).empty());
}

TEST_F(SelectionEnds, NotWithASelectionFunction)
{
    for (const char* name : {"Object Select", "Window Select", "Window Select Filtered"}) {
        s.baseFunc = name;
        shown(name, 0);
        EXPECT_EQ(s.store.stat[1], Stat::sel) << name;
        EXPECT_EQ(s.controls["entry"_c].text, "12") << name;
        EXPECT_EQ(s.lastFunc, name);
    }
}

} // namespace
} // namespace mirtane
