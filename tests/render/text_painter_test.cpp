#include "render/text_painter.h"

#include "drawing_desk.h"
#include "render/entity_painter.h"
#include "render/redraw.h"

#include <gtest/gtest.h>

#include <limits>

namespace mirtane {
namespace {

using fake::Ops;

EntityRecord textRecord()
{
    EntityRecord r = fake::text({500, 400}, "Level 1", 48, "Courier");
    r.p2.y = 1;
    r.p4 = {380, 400};
    r.rad = 144;
    r.color = 255;
    return r;
}

// A view of 1000 by 800 with its corner at the origin.
struct TextPainting : testing::Test, fake::DrawingDesk {
    TextPainting() : DrawingDesk({0, 0, 1000, 800}, {500, 400}) {}

    // Without what a redraw begins and ends with.
    Ops redrawn()
    {
        redrawAll(s, pic1);
        const Ops ops = fake::opsOn(pic1);
        return {ops.begin() + 1, ops.end() - 3};
    }

    Ops painted(const EntityRecord& r)
    {
        paintText(pic1, textLettering(r));
        return fake::opsOn(pic1);
    }
};

TEST_F(TextPainting, StartsWhereTheTextWasPlacedWhateverItsJustification)
{
    for (const float justification : {0.0F, 1.0F, 2.0F}) {
        EntityRecord r = textRecord();
        r.p2.y = justification;
        const Ops expected = {"text 380 400 0 Level 1"};
        EXPECT_EQ(fake::marks(painted(r)), expected) << justification;
    }
}

TEST_F(TextPainting, SetsTheFontAndLeavesThePenDotted)
{
    const Ops expected = {"setUnderline 0", "setFontName Courier",    "setFontSize 48",
                          "setStyle 0",     "text 380 400 0 Level 1", "setStyle 2"};
    EXPECT_EQ(painted(textRecord()), expected);
}

struct AngleRow {
    double degrees;
    const char* written;
};

TEST_F(TextPainting, AngleGoesToTheNearestWholeDegreeTiesToEven)
{
    const AngleRow rows[] = {
        {90, "90"},   {44.4, "44"}, {44.6, "45"},        {0.5, "0"},         {1.5, "2"},     {2.5, "2"},
        {-0.5, "0"},  {-1.5, "-2"}, {-90, "-90"},        {359.7, "360"},     {720.2, "720"}, {32767, "32767"},
        {32768, "0"}, {1e300, "0"}, {std::nan(""), "0"}, {-32768, "-32768"}, {-32769, "0"},
    };
    for (const AngleRow& row : rows) {
        EntityRecord r = textRecord();
        r.a1 = row.degrees;
        const Ops expected = {"text 380 400 " + std::string(row.written) + " Level 1"};
        EXPECT_EQ(fake::marks(painted(r)), expected) << row.degrees;
    }
}

TEST_F(TextPainting, IsUnderlinedByExactlyOne)
{
    for (const float field : {0.0F, 0.5F, 2.0F, -1.0F}) {
        EntityRecord r = textRecord();
        r.p3.x = field;
        EXPECT_EQ(painted(r)[0], "setUnderline 0") << field;
    }
    EntityRecord r = textRecord();
    r.p3.x = 1;
    EXPECT_EQ(painted(r)[0], "setUnderline 1");
}

TEST_F(TextPainting, ADimensionIsNotUnderlinedByACoordinateOfOne)
{
    EntityRecord r = textRecord();
    r.kind = Kind::linearDimension;
    r.p3.x = 1;
    r.p5 = {7, 8};
    r.s2 = 24;
    r.a1 = 30;
    paintDimText(pic1, dimLettering(r));
    const Ops expected = {"setUnderline 0", "setFontName Courier", "setFontSize 24",
                          "setStyle 0",     "text 7 8 30 Level 1", "setStyle 2"};
    EXPECT_EQ(fake::opsOn(pic1), expected);
    paintDimText(pic1, textLettering(r));
    EXPECT_EQ(fake::opsOn(pic1)[0], "setUnderline 0");
}

TEST_F(TextPainting, AnAnglesTextTurnsByItsThirdAngle)
{
    EntityRecord r = textRecord();
    r.kind = Kind::angularDimension;
    r.a1 = 1;
    r.a3 = 60.5;
    EXPECT_EQ(dimLettering(r).degrees, 60.5);
    add(r);
    EXPECT_EQ(dimLetteringAt(s.store, 1).degrees, 60.5);
    EXPECT_EQ(letteringOf(r).degrees, 60.5);
}

TEST_F(TextPainting, RedrawPaintsTextInItsColourWithASolidPen)
{
    add(textRecord());
    const Ops expected = {"setColor 255",   "setStyle 0", "setUnderline 0",         "setFontName Courier",
                          "setFontSize 48", "setStyle 0", "text 380 400 0 Level 1", "setStyle 2"};
    EXPECT_EQ(redrawn(), expected);
}

TEST_F(TextPainting, SelectedShowsByWhiteAlone)
{
    add(textRecord(), Stat::sel);
    const Ops ops = redrawn();
    EXPECT_EQ(ops[0], "setColor 16777215");
    EXPECT_EQ(fake::marks(ops).size(), 1U);
}

TEST_F(TextPainting, OnItsWayPaintsAsInItsPlace)
{
    paintEntity(pic1, s, textRecord());
    const Ops shown = fake::opsOn(pic1);
    EXPECT_EQ(shown, painted(textRecord()));
    EXPECT_EQ(fake::marks(shown).size(), 1U);
}

TEST_F(TextPainting, IsLeftOutOnlyWhereItsWidthAllRoundCanNotReachTheView)
{
    struct Row {
        Point entered;
        bool painted;
    };
    const Row rows[] = {
        {{-144, 400}, true}, {{-145, 400}, false}, {{1144, 400}, true}, {{1145, 400}, false},
        {{500, -144}, true}, {{500, -145}, false}, {{500, 944}, true},  {{500, 945}, false},
    };
    for (const Row& row : rows) {
        s.store.entCount = 1;
        EntityRecord r = textRecord();
        r.p1 = row.entered;
        add(r);
        EXPECT_EQ(!redrawn().empty(), row.painted) << row.entered.x << " " << row.entered.y;
    }
}

TEST_F(TextPainting, TextInEditIsHiddenAndNoOther)
{
    add(textRecord(), Stat::sel);
    EntityRecord other = textRecord();
    other.t1 = "Level 2";
    add(other);
    const Ops both = {"text 380 400 0 Level 1", "text 380 400 0 Level 2"};
    EXPECT_EQ(fake::marks(redrawn()), both);
    s.curFunc = "Text Edit";
    const Ops one = {"text 380 400 0 Level 2"};
    EXPECT_EQ(fake::marks(redrawn()), one);
}

TEST_F(TextPainting, NumbersThatCanNotBeAreHandedOnWithoutHarm)
{
    for (const float bad :
         {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()}) {
        EntityRecord r = textRecord();
        r.p4 = {bad, bad};
        r.p2.x = bad;
        EXPECT_EQ(fake::only(painted(r), "text").size(), 1U) << "the surface leaves it out";
    }
}

TEST_F(TextPainting, WidthIsAskedForInItsOwnFontAndSize)
{
    EXPECT_FLOAT_EQ(textWidthIn(pic1, "Courier", 10, "abcd"), 24);
    const Ops expected = {"setFontName Courier", "setFontSize 10"};
    EXPECT_EQ(fake::opsOn(pic1), expected);
}

} // namespace
} // namespace mirtane
