#include "commands/text.h"

#include "text_desk.h"

#include <gtest/gtest.h>

#include <limits>

namespace mirtane {
namespace {

using fake::Ops;

struct PlaceText : testing::Test, fake::TextDesk {
    PlaceText() : TextDesk("Place Text") {}
};

TEST_F(PlaceText, FirstClickSaysWhereAndAsksForTheText)
{
    click(100, 200);
    EXPECT_EQ(s.stepNo, 1);
    EXPECT_EQ(s.promptText, "(Enter text:)");
    EXPECT_EQ(s.pickFirst, (Point{100, 200}));
    EXPECT_EQ(s.ptA, (Point{100, 200}));
    EXPECT_TRUE(texts().empty());
}

TEST_F(PlaceText, EachCharacterShowsTheLineSoFar)
{
    click(100, 200);
    ops();
    type("Ab");
    const Ops expected = {"restoreSnapshot", "setFontName Garamond", "setFontSize 48",
                          "setUnderline 0",  "setFontName Garamond", "setFontSize 48",
                          "setStyle 0",      "text 100 200 0 A",     "setStyle 2",
                          "restoreSnapshot", "setFontName Garamond", "setFontSize 48",
                          "setUnderline 0",  "setFontName Garamond", "setFontSize 48",
                          "setStyle 0",      "text 100 200 0 Ab",    "setStyle 2"};
    EXPECT_EQ(ops(), expected);
    EXPECT_EQ(text3(), "Ab");
    EXPECT_EQ(s.textLength, 2);
    EXPECT_EQ(s.promptText, "(Enter text:)");
    EXPECT_EQ(s.store.entCount, 1);
}

TEST_F(PlaceText, EnterPlacesTheLineAndGoesOnBelow)
{
    s.curColor = 255;
    s.curStyle = 1;
    click(100, 200);
    type("Level");
    ops();
    enter();
    EXPECT_EQ(s.store.entCount, 2);
    const EntityRecord r = slot(1);
    EXPECT_EQ(r.kind, Kind::text);
    EXPECT_EQ(r.p1, (Point{100, 200}));
    EXPECT_EQ(r.p2, (Point{48, 0}));
    EXPECT_EQ(r.p3.x, 0);
    EXPECT_EQ(r.p4, (Point{100, 200}));
    EXPECT_FLOAT_EQ(r.rad, 172.8F) << "1.2 of 5 characters";
    EXPECT_EQ(r.a1, 0);
    EXPECT_EQ(r.t1, "Level");
    EXPECT_EQ(r.t2, "Garamond");
    EXPECT_EQ(r.style, 0);
    EXPECT_EQ(r.color, 255);
    EXPECT_EQ(stat(1), Stat::on);
    EXPECT_EQ(s.stepNo, 2);
    EXPECT_EQ(s.promptText, "(Enter new location of text line:)");
    EXPECT_EQ(text3(), "");
    EXPECT_EQ(s.textLength, 0);
    EXPECT_FLOAT_EQ(s.pickFirst.y, 252.8F);
    EXPECT_EQ(s.pickFirst.x, 100);
    EXPECT_EQ(s.ptA, s.pickFirst);
    EXPECT_EQ(s.log.undoGroupTop, 1);
    EXPECT_EQ(s.layerTable.find(1)->layerUsed, "Yes:");
}

TEST_F(PlaceText, PlacedLineIsPaintedInItsColourIntoTheCleanPicture)
{
    s.curColor = 255;
    click(100, 200);
    type("A");
    ops();
    enter();
    const Ops expected = {"restoreSnapshot",      "setFontName Garamond",
                          "setFontSize 48",       "setColor 255",
                          "setStyle 0",           "setUnderline 0",
                          "setFontName Garamond", "setFontSize 48",
                          "setStyle 0",           "text 100 200 0 A",
                          "setStyle 2",           "snapshot",
                          "setColor 16777215",    "setStyle 2"};
    EXPECT_EQ(ops(), expected);
}

TEST_F(PlaceText, EnterOnNoCharactersStoresNothing)
{
    click(100, 200);
    s.controls["Text3"_c].text = "left by another";
    ops();
    enter();
    EXPECT_EQ(s.store.entCount, 1);
    EXPECT_EQ(s.stepNo, 1);
    EXPECT_EQ(text3(), "");
    EXPECT_EQ(s.pickFirst, (Point{100, 200}));
    const Ops expected = {"restoreSnapshot"};
    EXPECT_EQ(ops(), expected);
}

TEST_F(PlaceText, TakesKeysOnlyOnceItsPlaceIsGiven)
{
    type("A");
    enter();
    EXPECT_EQ(s.textLength, 0);
    EXPECT_EQ(text3(), "");
    EXPECT_TRUE(ops().empty());
}

struct JustifiedRow {
    std::int16_t justification;
    double rotation;
    Point start;
};

// "Level" is 144 wide.
TEST_F(PlaceText, JustificationMovesTheStartAlongTheBaseline)
{
    const JustifiedRow rows[] = {
        {0, 0, {1000, 1000}},  {0, 45, {1000, 1000}},   {1, 0, {856, 1000}},    {2, 0, {928, 1000}},
        {1, 90, {1000, 1144}}, {2, 90, {1000, 1072}},   {1, 180, {1144, 1000}}, {2, 270, {1000, 928}},
        {1, -90, {1000, 856}}, {1, 30, {875.3F, 1072}},
    };
    for (const JustifiedRow& row : rows) {
        s.textJust = row.justification;
        s.textRotation = row.rotation;
        s.stepNo = 0;
        s.store.entCount = 1;
        click(1000, 1000);
        type("Level");
        enter();
        const EntityRecord r = slot(1);
        EXPECT_EQ(r.p1, (Point{1000, 1000}));
        EXPECT_NEAR(r.p4.x, row.start.x, 0.02) << row.justification << " at " << row.rotation;
        EXPECT_NEAR(r.p4.y, row.start.y, 0.02) << row.justification << " at " << row.rotation;
        EXPECT_EQ(r.p2.y, row.justification);
        EXPECT_EQ(r.a1, row.rotation);
    }
}

TEST_F(PlaceText, NextLineStartsFromThePointAsEntered)
{
    s.textJust = 1;
    click(1000, 1000);
    type("Level");
    enter();
    EXPECT_EQ(s.pickFirst.x, 1000);
    EXPECT_FLOAT_EQ(s.pickFirst.y, 1052.8F);
}

TEST_F(PlaceText, PreviewStandsWhereTheLineWillBePlaced)
{
    s.textJust = 1;
    s.textRotation = 90.4;
    s.controls["tk12"_c].checked = true;
    click(1000, 1000);
    type("Leve");
    ops();
    type("l");
    const Ops preview = ops();
    enter();
    EXPECT_EQ(fake::only(preview, "text"), texts());
    const Ops underlined = {"setUnderline 1"};
    EXPECT_EQ(fake::only(preview, "setUnderline"), underlined);
}

TEST_F(PlaceText, UnderlineIsThatOfTheMomentOfPlacing)
{
    click(100, 200);
    type("A");
    s.controls["tk12"_c].checked = true;
    enter();
    EXPECT_EQ(slot(1).p3.x, 1);
    s.controls["tk12"_c].checked = false;
    type("B");
    enter();
    EXPECT_EQ(slot(2).p3.x, 0);
    EXPECT_EQ(slot(1).p3.x, 1);
}

TEST_F(PlaceText, AllSettingsHoldForTheNextLine)
{
    s.textFont = "Courier";
    s.textSize = 24;
    s.textJust = 2;
    s.textRotation = 180;
    click(1000, 1000);
    for (const char* line : {"one", "two", "three"}) {
        type(line);
        enter();
    }
    ASSERT_EQ(s.store.entCount, 4);
    for (std::int32_t i = 1; i < 4; ++i) {
        EXPECT_EQ(slot(i).t2, "Courier");
        EXPECT_EQ(slot(i).p2, (Point{24, 2}));
        EXPECT_EQ(slot(i).a1, 180);
        EXPECT_FLOAT_EQ(slot(i).p1.y, 1000 - 26.4F * static_cast<float>(i - 1));
    }
    EXPECT_EQ(s.stepNo, 4) << "each line counts";
    EXPECT_EQ(s.promptText, "(Enter new location of text line:)");
}

TEST_F(PlaceText, EachLineIsOneUndo)
{
    click(1000, 1000);
    type("one");
    enter();
    type("two");
    enter();
    undo(s.store, s.log);
    EXPECT_EQ(stat(1), Stat::on);
    EXPECT_EQ(stat(2), Stat::out);
}

TEST_F(PlaceText, LineFollowsThePointerAtStepTwoAlone)
{
    click(1000, 1000);
    type("A");
    ops();
    move(1500, 1500);
    EXPECT_TRUE(ops().empty()) << "step 1";
    EXPECT_EQ(s.pickFirst, (Point{1000, 1000}));
    enter();
    ops();
    move(1600, 1700);
    EXPECT_EQ(s.pickFirst, (Point{1600, 1700}));
    EXPECT_EQ(s.ptA, s.pickFirst);
    const Ops clean = {"restoreSnapshot"};
    EXPECT_EQ(ops(), clean) << "nothing typed yet";
    type("B");
    ops();
    move(1700, 1800);
    const Ops moved = {"text 1700 1800 0 B"};
    EXPECT_EQ(texts(), moved);
    enter();
    ops();
    move(2000, 2000);
    EXPECT_TRUE(ops().empty()) << "step 3";
    EXPECT_EQ(slot(2).p1, (Point{1700, 1800}));
}

TEST_F(PlaceText, LaterClickGivesANewPlace)
{
    click(1000, 1000);
    click(2000, 1000);
    EXPECT_EQ(s.stepNo, 2);
    EXPECT_EQ(s.promptText, "(Enter new location of text line:)");
    EXPECT_EQ(s.pickFirst, (Point{2000, 1000}));
    click(3000, 1000);
    EXPECT_EQ(s.stepNo, 1) << "3 begins anew";
    EXPECT_EQ(s.promptText, "(Enter text:)");
    EXPECT_EQ(s.pickFirst, (Point{3000, 1000})) << "the point of the click that was counted as 3";
    type("A");
    enter();
    EXPECT_EQ(slot(1).p1, (Point{3000, 1000}));
}

TEST_F(PlaceText, FontOfTheSurfaceIsThatOfNewTextBeforeItIsMeasured)
{
    pic1.setFontName("left by a redraw");
    pic1.setFontSize(7);
    s.textFont = "Courier";
    click(1000, 1000);
    type("A");
    enter();
    EXPECT_FLOAT_EQ(slot(1).rad, 1.2F * 0.6F * 48);
    EXPECT_EQ(slot(1).t2, "Courier");
}

TEST_F(PlaceText, PastTheEndOfTheTableIsLostWithoutHarm)
{
    s.store.entCount = EntityStore::slotCount;
    click(1000, 1000);
    type("A");
    enter();
    EXPECT_EQ(s.store.entCount, EntityStore::slotCount + 1);
    EXPECT_EQ(s.stepNo, 2);
}

struct LineRow {
    double rotation;
    Point next;
};

// One line is 110 for a size of 100.
TEST(NextLine, LiesAcrossTheBaselineInEveryDirection)
{
    const LineRow rows[] = {
        {0, {500, 610}},          {30, {555, 595.263F}},      {60, {595.263F, 555}},  {90, {610, 500}},
        {120, {595.263F, 445}},   {150, {555, 404.737F}},     {180, {500, 390}},      {210, {445, 404.737F}},
        {240, {404.737F, 445}},   {270, {390, 500}},          {300, {404.737F, 555}}, {330, {445, 595.263F}},
        {0.001, {500.002F, 610}}, {359.999, {499.998F, 610}},
    };
    for (const LineRow& row : rows) {
        const Point next = nextLine({500, 500}, 100, row.rotation);
        EXPECT_NEAR(next.x, row.next.x, 0.002) << row.rotation;
        EXPECT_NEAR(next.y, row.next.y, 0.002) << row.rotation;
    }
}

TEST(NextLine, IsExactAlongTheAxes)
{
    EXPECT_EQ(nextLine({500, 500}, 100, 90), (Point{610, 500}));
    EXPECT_EQ(nextLine({500, 500}, 100, 180), (Point{500, 390}));
    EXPECT_EQ(nextLine({500, 500}, 100, 270), (Point{390, 500}));
}

TEST(NextLine, StaysBelowZeroAndFromAFullTurnOn)
{
    for (const double rotation : {-0.001, -90.0, 360.0, 450.0, 1e300, std::nan("")})
        EXPECT_EQ(nextLine({5, 6}, 100, rotation), (Point{5, 6})) << rotation;
}

TEST(NextLine, KeepsACoordinateThatWouldOverflow)
{
    const float most = std::numeric_limits<float>::max();
    EXPECT_EQ(nextLine({5, most}, most, 0), (Point{5, most}));
}

TEST(JustifiedStart, OfAnUnknownJustificationIsThePointItself)
{
    constexpr std::int16_t unknown[] = {-1, 3, 32767};
    for (const std::int16_t odd : unknown)
        EXPECT_EQ(justifiedStart({5, 6}, 100, 30, odd), (Point{5, 6})) << odd;
}

} // namespace
} // namespace mirtane
