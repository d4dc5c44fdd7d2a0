#include "model/insertion.h"

#include "kind_print.h"

#include <gtest/gtest.h>

#include <memory>

namespace mirtane {
namespace {

struct Insertion : testing::Test {
    Insertion()
    {
        s.ptA = {1, 2};
        s.ptB = {3, 4};
        s.ptC = {5, 6};
        s.ptD = {7, 8};
        s.ptE = {9, 10};
        s.ptF = {11, 12};
        s.ptG = {13, 14};
        s.ptH = {15, 16};
        s.pickFirst = {17, 18};
        s.workRadius = 19;
        s.arcStart = 0.5;
        s.arcEnd = 1.5;
        s.dimAngle = 30;
        s.textSize = 24;
        s.arrowSize = 36;
        s.textJust = 2;
        s.textRotation = 45;
        s.textFont = "Courier";
        s.dimStyle = 3;
        s.workLayer = 4;
        s.curColor = 0x00FF00;
        s.curStyle = 1;
        setText(s.controls["Text3"_c], "words");
        stale.p1 = stale.p2 = stale.p3 = stale.p4 = stale.p5 = {-1, -2};
        stale.s1 = stale.s2 = stale.rad = -3;
        stale.a1 = stale.a2 = stale.a3 = -4;
        stale.color = -5;
        stale.layer = stale.style = 99;
        stale.kind = Kind{99};
        stale.t1 = "old words";
        stale.t2 = "old font";
        s.store.setRecord(1, stale);
    }

    EntityRecord expected(Kind kind) const
    {
        EntityRecord r = stale;
        r.kind = kind;
        r.layer = 4;
        r.color = 0x00FF00;
        r.style = 1;
        return r;
    }

    EntityRecord expectedWords(Kind kind) const
    {
        EntityRecord r = expected(kind);
        r.style = 0;
        r.t1 = "words";
        r.t2 = "Courier";
        return r;
    }

    EntityRecord expectedDimension(Kind kind) const
    {
        EntityRecord r = expectedWords(kind);
        r.s1 = 3;
        r.s2 = 36;
        r.a1 = 0;
        r.a2 = 36;
        return r;
    }

    std::unique_ptr<Session> session = std::make_unique<Session>();
    Session& s = *session;
    EntityRecord stale; // what slot 1 held before
};

// Each keeps what the slot held in the fields that its kind does not use.

TEST_F(Insertion, OfALineWritesItsEnds)
{
    addLine(s);
    EntityRecord r = expected(Kind::line);
    r.p1 = {1, 2};
    r.p2 = {3, 4};
    EXPECT_EQ(s.store.record(1), r);
}

TEST_F(Insertion, OfACircleWritesCentreAndRadius)
{
    addCircle(s);
    EntityRecord r = expected(Kind::circle);
    r.p1 = {11, 12};
    r.rad = 19;
    EXPECT_EQ(s.store.record(1), r);
}

TEST_F(Insertion, OfAnArcWritesFourPointsRadiusAndAngles)
{
    addArc(s);
    EntityRecord r = expected(Kind::arc);
    r.p1 = {1, 2};
    r.p2 = {3, 4};
    r.p3 = {5, 6};
    r.p4 = {7, 8};
    r.rad = 19;
    r.a1 = 0.5;
    r.a2 = 1.5;
    EXPECT_EQ(s.store.record(1), r);
}

TEST_F(Insertion, OfAnEllipseWritesAxisEndCentreAndRatio)
{
    addEllipse(s);
    EntityRecord r = expected(Kind::ellipse);
    r.p1 = {3, 4};
    r.p2 = {5, 6};
    r.p3.x = 11;
    EXPECT_EQ(s.store.record(1), r);
}

TEST_F(Insertion, OfAPointWritesOnePoint)
{
    addPoint(s);
    EntityRecord r = expected(Kind::point);
    r.p1 = {1, 2};
    EXPECT_EQ(s.store.record(1), r);
}

TEST_F(Insertion, OfTextWritesSizeJustificationAndAnchor)
{
    addText(s, 50);
    EntityRecord r = expectedWords(Kind::text);
    r.p1 = {1, 2};
    r.p2 = {24, 2};
    r.p3.x = 0;
    r.p4 = {17, 18};
    r.rad = s.store.record(1).rad;
    r.a1 = 45;
    EXPECT_EQ(s.store.record(1), r);
    EXPECT_NEAR(r.rad, 60, 0.0001); // a fifth wider than the text
}

TEST_F(Insertion, OfTextNotesThatItIsUnderlined)
{
    s.controls["tk12"_c].checked = true;
    addText(s, 50);
    EXPECT_EQ(s.store.record(1).p3.x, 1.0F);
}

TEST_F(Insertion, OfALinearDimension)
{
    addLinearDim(s);
    EntityRecord r = expectedDimension(Kind::linearDimension);
    r.p1 = {9, 10};
    r.p2 = {11, 12};
    r.p3 = {13, 14};
    r.p4 = {15, 16};
    r.p5 = {1, 2};
    r.a1 = 30;
    EXPECT_EQ(s.store.record(1), r);
}

TEST_F(Insertion, OfARadialDimension)
{
    addRadialDim(s);
    EntityRecord r = expectedDimension(Kind::radialDimension);
    r.p1 = {1, 2};
    r.p2 = {3, 4};
    r.p3 = {9, 10};
    r.p4 = {5, 6};
    r.p5 = {7, 8};
    EXPECT_EQ(s.store.record(1), r);
}

TEST_F(Insertion, OfALeaderLeavesTheFourthPoint)
{
    addLeader(s);
    EntityRecord r = expectedDimension(Kind::leader);
    r.p1 = {1, 2};
    r.p2 = {3, 4};
    r.p3 = {5, 6};
    r.p5 = {7, 8};
    EXPECT_EQ(s.store.record(1), r);
}

TEST_F(Insertion, OfAnAngularDimensionIsCrossed)
{
    addAngularDim(s);
    EntityRecord r = expectedWords(Kind::angularDimension);
    r.style = 3; // the arrow style
    r.s1 = 36;
    r.s2 = 36;
    r.p1 = {1, 2};
    r.p2 = {13, 14};
    r.p3 = {15, 16};
    r.p4 = {5, 6};
    r.p5 = {3, 4};
    r.a1 = 0.5;
    r.a2 = 1.5;
    r.a3 = 30;
    r.rad = 19;
    EXPECT_EQ(s.store.record(1), r);
}

TEST_F(Insertion, OverAFormerTextKeepsItsWords)
{
    addLine(s);
    EXPECT_EQ(s.store.record(1).t1, "old words");
    EXPECT_EQ(s.store.record(1).t2, "old font");
}

TEST_F(Insertion, TurnsTheSlotOnAndDoesNotAdvance)
{
    s.store.setStat(1, Stat::out);
    addLine(s);
    EXPECT_EQ(s.store.stat[1], Stat::on);
    EXPECT_EQ(s.store.entCount, 1);
    EXPECT_EQ(s.log.undoLogCount, 0);
}

TEST_F(Insertion, PastTheTableIsLostWithoutAWordWhileTheCountGrows)
{
    s.store.entCount = 60000;
    addLine(s);
    commitSlot(s);
    addLine(s);
    commitSlot(s);
    EXPECT_EQ(s.store.entCount, 60002);
    EXPECT_EQ(s.store.record(60000).kind, Kind::line);
    EXPECT_EQ(s.store.stat.size(), 60001U);
}

TEST_F(Insertion, CommitLogsTheSlotAsAGroupOfItsOwn)
{
    s.log.undoGroupNext = 7;
    addLine(s);
    commitSlot(s);
    EXPECT_EQ(s.log.logSlot[0], 1);
    EXPECT_EQ(s.log.logStat[0], Stat::on);
    EXPECT_EQ(s.log.logGroup[0], 7);
    EXPECT_EQ(s.log.undoLogCount, 1);
    EXPECT_EQ(s.log.undoGroupNext, 8);
    EXPECT_EQ(s.log.undoGroupTop, 8);
    EXPECT_EQ(s.store.entCount, 2);
}

TEST_F(Insertion, CommitInAGroupLeavesTheGroupOpen)
{
    addLine(s);
    commitInGroup(s);
    addLine(s);
    commitInGroup(s);
    EXPECT_EQ(s.log.logGroup[0], s.log.logGroup[1]);
    EXPECT_EQ(s.log.undoGroupNext, 0);
    EXPECT_EQ(s.log.undoGroupTop, 0);
}

TEST_F(Insertion, CommitMarksTheLayerOfTheSlotAsUsed)
{
    addLine(s);
    s.workLayer = 9; // changed in between: the slot's own layer counts
    commitSlot(s);
    EXPECT_EQ(s.layerTable.find(4)->layerUsed, "Yes:");
    EXPECT_EQ(s.layerTable.find(9)->layerUsed, "No :");
}

TEST_F(Insertion, CommitOnALayerWithoutARowDoesNoHarm)
{
    s.workLayer = -3;
    addLine(s);
    commitSlot(s);
    EXPECT_EQ(s.store.entCount, 2);
}

TEST_F(Insertion, TheLogWrapsAtFortyThousand)
{
    s.log.undoLogCount = 39999;
    addLine(s);
    commitSlot(s);
    EXPECT_EQ(s.log.logSlot[39999], 1);
    EXPECT_EQ(s.log.undoLogCount, 0);
}

struct GaugeRow {
    const char* what;
    std::int32_t entCount;
    std::int16_t numComma;
    const char* shown;
};

TEST(Gauge, ShowsTheShareOfSixtyThousandSlots)
{
    const GaugeRow rows[] = {
        {"an empty drawing", 1, 0, "000.002"}, {"half a percent", 300, 0, "000.500"},
        {"with the comma", 300, 1, "000,500"}, {"half", 30000, 0, "050.000"},
        {"full", 60000, 0, "100.000"},
    };
    const auto s = std::make_unique<Session>();
    for (const GaugeRow& row : rows) {
        s->store.entCount = row.entCount;
        s->numComma = row.numComma;
        updateGauge(*s);
        EXPECT_EQ(s->controls["memy"_c].text, row.shown) << row.what;
    }
}

TEST(Gauge, LagsOneObjectBehindAnInsertion)
{
    const auto s = std::make_unique<Session>();
    s->store.entCount = 299;
    addLine(*s);
    commitSlot(*s);
    EXPECT_EQ(s->controls["memy"_c].text, "000.498"); // 299 of 60,000
}

TEST(Gauge, WarnsNotOfTheLineAtSlot59899ButOfTheNext)
{
    const auto s = std::make_unique<Session>();
    s->store.entCount = 59899;
    addLine(*s);
    commitSlot(*s);
    EXPECT_EQ(s->controls["entry"_c].text, "");
    addLine(*s);
    commitSlot(*s);
    EXPECT_EQ(s->controls["entry"_c].text, "You are out of memory! Save and exit now.");
    EXPECT_EQ(s->store.entCount, 59901);
}

TEST(Gauge, CountsALayerNameAndAHiddenPieceOfAnAssociate)
{
    const auto s = std::make_unique<Session>();
    EntityRecord name;
    name.kind = layerNameKind;
    EntityRecord piece;
    piece.kind = pieceOf(Kind::line);
    s->store.setRecord(1, name);
    s->store.setStat(1, Stat::on);
    s->store.setRecord(2, piece);
    s->store.setStat(2, Stat::out);
    s->store.entCount = 3;
    updateGauge(*s);
    EXPECT_EQ(s->controls["memy"_c].text, "000.005");
}

} // namespace
} // namespace mirtane
