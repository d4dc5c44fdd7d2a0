#include "library/associates.h"

#include "library_desk.h"

#include "geometry/angle.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::LibraryDesk;
using fake::marks;
using fake::Ops;

constexpr double rightAngle = 90 / 57.29578; // as the field stores it

// "Place Associate" with "Door" chosen from the list.
struct PlaceDesk : LibraryDesk {
    PlaceDesk() : LibraryDesk("Place Associate") { s.associateName = "Door"; }
    void piece(EntityRecord r, const char* owner = "Door")
    {
        r.kind = pieceOf(r.kind);
        s.store.ownerName[EntityStore::at(add(r, Stat::out))] = owner;
    }
    void reverse() { s.controls["ass5"_c].checked = true; }
};

void expectNear(Point p, float x, float y, const char* what)
{
    EXPECT_NEAR(p.x, x, 1e-4) << what;
    EXPECT_NEAR(p.y, y, 1e-4) << what;
}

EntityRecord placed(const EntityRecord& drawn, const Placement& placement)
{
    EntityRecord piece = drawn;
    piece.kind = pieceOf(piece.kind);
    EntityRecord object;
    EXPECT_TRUE(placePiece(piece, placement, object));
    return object;
}

TEST(PlaceAssociate, PutsThePiecesAtTheClick)
{
    PlaceDesk desk;
    desk.piece(fake::line({0, 0}, {10, 20}));
    desk.piece(fake::line({0, 0}, {1, 1}), "Window");
    desk.click(100, 200);
    ASSERT_EQ(desk.s.store.entCount, 4);
    EXPECT_EQ(desk.slot(3).kind, Kind::line);
    EXPECT_EQ(desk.slot(3).p1, (Point{100, 200}));
    EXPECT_EQ(desk.slot(3).p2, (Point{110, 220}));
    EXPECT_EQ(desk.stat(3), Stat::on);
}

TEST(PlaceAssociate, TurnsCounterClockwiseAboutTheClick)
{
    const EntityRecord object = placed(fake::line({12, 0}, {0, 12}), {{100, 200}, rightAngle, false});
    expectNear(object.p1, 100, 188, "to the right becomes up");
    expectNear(object.p2, 112, 200, "down becomes to the right");
}

TEST(PlaceAssociate, AtARightAngleTheAxesAreMetToTheLastBit)
{
    const EntityRecord object = placed(fake::line({12, 0}, {0, 0}), {{100, 200}, rightAngle, false});
    EXPECT_EQ(object.p1, (Point{100, 188}));
    for (const double degrees : {90.0, 180.0, 270.0, 360.0}) {
        const EntityRecord far =
            placed(fake::line({2000, 0}, {0, 0}), {{12.5F, 2500}, degrees / 57.29578, false});
        const bool level = degrees == 180 || degrees == 360;
        EXPECT_EQ(level ? far.p1.y : far.p1.x, level ? 2500 : 12.5F) << degrees;
    }
}

TEST(PlaceAssociate, APieceAtTheReferencePointStaysOnTheClick)
{
    for (double degrees = 0; degrees < 360; degrees += 7) {
        for (const bool reversed : {false, true}) {
            const EntityRecord object =
                placed(fake::circle({0, 0}, 5), {{123.25F, -77.5F}, degrees / 57.29578, reversed});
            EXPECT_EQ(object.p1, (Point{123.25F, -77.5F})) << degrees;
        }
    }
}

TEST(PlaceAssociate, ReverseMirrorsFirstAndTurnsThen)
{
    const EntityRecord object = placed(fake::line({10, 4}, {0, 0}), {{100, 100}, rightAngle, true});
    // (10, 4) becomes (-10, 4), and a quarter turn counter-clockwise takes left to down and down to right
    expectNear(object.p1, 104, 110, "mirrored, then turned");
}

TEST(PlaceAssociate, KeepsColourAndStyleAndTakesTheWorkingLayer)
{
    PlaceDesk desk;
    desk.s.workLayer = 5;
    desk.s.curColor = 0x0000FF;
    desk.s.curStyle = 1;
    desk.piece(fake::filled(Kind::line));
    desk.click(0, 0);
    const EntityRecord object = desk.slot(2);
    EXPECT_EQ(object.color, 0x00FF00);
    EXPECT_EQ(object.style, 3);
    EXPECT_EQ(object.layer, 5);
    EXPECT_EQ(desk.used(5), "Yes:");
}

EntityRecord quarterArc()
{
    // centre (10, 0), radius 10, from the right to the top
    EntityRecord r = fake::arc({10, 0}, 10, 0, 1.5707963);
    r.p2 = {20, 0};
    r.p3 = {10, -10};
    r.p4 = {17.071068F, -7.071068F};
    return r;
}

TEST(PlaceAssociate, AnArcTurnsItsAnglesAndEnds)
{
    const EntityRecord object = placed(quarterArc(), {{100, 100}, rightAngle, false});
    expectNear(object.p1, 100, 90, "centre");
    EXPECT_NEAR(object.a1, rightAngle, 1e-9);
    EXPECT_NEAR(object.a2, rightAngle + 1.5707963, 1e-9);
    expectNear(object.p2, 100, 80, "start");
    expectNear(object.p3, 90, 90, "end");
    expectNear(object.p4, 92.928932F, 82.928932F, "middle");
    EXPECT_EQ(object.rad, 10);
}

TEST(PlaceAssociate, AReversedArcStillRunsCounterClockwise)
{
    const EntityRecord object = placed(quarterArc(), {{100, 100}, 0, true});
    expectNear(object.p1, 90, 100, "centre");
    expectNear(object.p2, 90, 90, "starts where the piece ends");
    expectNear(object.p3, 80, 100, "and ends where it starts");
    expectNear(object.p4, 82.928932F, 92.928932F, "middle");
    EXPECT_EQ(object.a1, 1.5707963);
    EXPECT_EQ(object.a2, 3.1415927);
}

TEST(PlaceAssociate, AReversedArcIsTurnedToo)
{
    const EntityRecord object = placed(quarterArc(), {{100, 100}, rightAngle, true});
    expectNear(object.p1, 100, 110, "centre");
    expectNear(object.p2, 90, 110, "start");
    expectNear(object.p3, 100, 120, "end");
    EXPECT_NEAR(object.a1, 1.5707963 + rightAngle, 1e-9);
    EXPECT_NEAR(object.a2, 3.1415927 + rightAngle, 1e-9);
}

TEST(PlaceAssociate, AnglesOfArcsAreReducedOnceWhenAboveATurn)
{
    EntityRecord r = quarterArc();
    r.a1 = 6;
    r.a2 = 4.2831853;
    const EntityRecord object = placed(r, {{0, 0}, 2, false});
    EXPECT_EQ(object.a1, 6 + 2 - 6.2831853);
    EXPECT_EQ(object.a2, 4.2831853 + 2) << "a whole turn stays";
    EntityRecord dimension = fake::filled(Kind::angularDimension);
    dimension.a1 = 6;
    EXPECT_EQ(placed(dimension, {{0, 0}, 2, false}).a1, 6 + 2 - 6.2831853);
}

TEST(PlaceAssociate, DegreesOfTextsGoOnPastATurn)
{
    for (const Kind kind : {Kind::text, Kind::linearDimension, Kind::radialDimension, Kind::leader}) {
        EntityRecord r = fake::filled(kind);
        r.a1 = 300;
        const EntityRecord object = placed(r, {{0, 0}, rightAngle, false});
        EXPECT_NEAR(object.a1, 390, 1e-6) << numberOf(kind);
        if (kind == Kind::text) continue;
        EXPECT_EQ(object.a2, 0.5) << numberOf(kind) << ": the size of its arrows";
    }
    EntityRecord r = fake::filled(Kind::angularDimension);
    r.a3 = 300;
    EXPECT_NEAR(placed(r, {{0, 0}, rightAngle, false}).a3, 390, 1e-6);
}

TEST(PlaceAssociate, TextAndDimensionsKeepTheirWordsAndSizes)
{
    for (const Kind kind :
         {Kind::linearDimension, Kind::radialDimension, Kind::leader, Kind::angularDimension}) {
        const EntityRecord object = placed(fake::filled(kind), {{100, 0}, 0, false});
        EXPECT_EQ(object.p1, (Point{101, 2})) << numberOf(kind);
        EXPECT_EQ(object.p5, (Point{109, 10})) << numberOf(kind);
        EXPECT_EQ(object.s1, 11) << numberOf(kind);
        EXPECT_EQ(object.s2, 12) << numberOf(kind);
        EXPECT_EQ(object.t1, "words") << numberOf(kind);
        EXPECT_EQ(object.t2, "Garamond") << numberOf(kind);
    }
    const EntityRecord text = placed(fake::filled(Kind::text), {{100, 0}, 0, false});
    EXPECT_EQ(text.p1, (Point{101, 2}));
    EXPECT_EQ(text.p4, (Point{107, 8}));
    EXPECT_EQ(text.p2, (Point{3, 4})) << "size and justification";
    EXPECT_EQ(text.p3.x, 5) << "underline";
    EXPECT_EQ(text.rad, 13);
}

TEST(PlaceAssociate, AnEllipseKeepsTheRatioOfItsAxes)
{
    const EntityRecord object = placed(fake::filled(Kind::ellipse), {{100, 0}, 0, true});
    EXPECT_EQ(object.p1, (Point{99, 2}));
    EXPECT_EQ(object.p2, (Point{97, 4}));
    EXPECT_EQ(object.p3.x, 5);
}

TEST(PlaceAssociate, ReverseDropsTextAndDimensions)
{
    for (const Kind kind :
         {Kind::text, Kind::linearDimension, Kind::radialDimension, Kind::leader, Kind::angularDimension}) {
        EntityRecord piece = fake::filled(kind);
        piece.kind = pieceOf(piece.kind);
        EntityRecord object;
        EXPECT_FALSE(placePiece(piece, {{0, 0}, 0, true}, object)) << numberOf(kind);
        EXPECT_TRUE(placePiece(piece, {{0, 0}, 0, false}, object)) << numberOf(kind);
    }
}

TEST(PlaceAssociate, RecordsThatAreNoPiecesPlaceNothing)
{
    EntityRecord object;
    constexpr std::int16_t noPieces[] = {-32768, -1, 0, 1, 10, 21, 24, 25, 32767};
    for (const std::int16_t kind : noPieces) {
        const EntityRecord r = fake::filled(Kind{kind});
        EXPECT_FALSE(placePiece(r, {}, object)) << kind;
    }
}

TEST(PlaceAssociate, TextAloneReversedPlacesNothingAndStillClosesAGroup)
{
    PlaceDesk desk;
    desk.piece(fake::filled(Kind::text));
    desk.reverse();
    desk.click(10, 10);
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.s.log.undoLogCount, 0);
    EXPECT_EQ(desk.s.log.undoGroupNext, 1);
    EXPECT_EQ(desk.s.log.undoGroupTop, 1);
    EXPECT_EQ(desk.used(1), "No :");
}

TEST(PlaceAssociate, OneUndoTakesAWholePlacementBack)
{
    PlaceDesk desk;
    desk.piece(fake::line({0, 0}, {10, 20}));
    desk.piece(fake::circle({5, 5}, 2));
    desk.click(100, 100);
    ASSERT_EQ(desk.s.store.entCount, 5);
    undo(desk.s.store, desk.s.log);
    EXPECT_EQ(desk.stat(3), Stat::out);
    EXPECT_EQ(desk.stat(4), Stat::out);
    EXPECT_EQ(desk.stat(1), Stat::out) << "a piece is no part of the group";
    redo(desk.s.store, desk.s.log);
    EXPECT_EQ(desk.stat(3), Stat::on);
    EXPECT_EQ(desk.stat(1), Stat::out);
}

TEST(PlaceAssociate, TakesOneClickAfterTheListAndThenTwoEach)
{
    PlaceDesk desk;
    desk.piece(fake::line({0, 0}, {10, 20}));
    desk.click(100, 100);
    EXPECT_EQ(desk.s.store.entCount, 3);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.promptText, "(Select associate from list:)");
    EXPECT_EQ(desk.s.curFunc, "Place Associate");
    EXPECT_EQ(desk.s.associateName, "Door");

    desk.click(500, 500);
    EXPECT_EQ(desk.s.store.entCount, 3) << "only brings the rubber band back";
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.s.promptText, "(Enter location of associate:)");

    desk.click(300, 300);
    ASSERT_EQ(desk.s.store.entCount, 4);
    EXPECT_EQ(desk.slot(3).p1, (Point{300, 300}));
}

TEST(PlaceAssociate, WithNoneChosenAClickDoesNothing)
{
    PlaceDesk desk;
    desk.piece(fake::line({0, 0}, {10, 20}), "??????");
    desk.s.associateName = "??????";
    desk.s.promptText = "as it was";
    desk.click(100, 100);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.promptText, "as it was");
    EXPECT_EQ(desk.s.store.entCount, 2) << "removed pieces don't come back";
    EXPECT_EQ(desk.s.log.undoGroupNext, 0);
}

TEST(PlaceAssociate, WhatIsPlacedIsNoPartOfTheAssociate)
{
    PlaceDesk desk;
    desk.piece(fake::line({0, 0}, {10, 20}));
    desk.s.store.ownerName[2] = "Door"; // left over in the slot that is filled next
    desk.s.store.kind[2] = Kind{11};
    desk.click(100, 100);
    EXPECT_EQ(desk.s.store.entCount, 3);
    EXPECT_NE(desk.owner(2), "Door");
    desk.click(0, 0);
    desk.click(300, 300);
    EXPECT_EQ(desk.s.store.entCount, 4) << "one piece, one more object";
}

TEST(PlaceAssociate, DeletingAPlacedObjectLeavesTheDefinition)
{
    PlaceDesk desk;
    desk.piece(fake::line({0, 0}, {10, 20}));
    desk.click(100, 100);
    desk.s.store.setStat(2, Stat::out);
    desk.click(0, 0);
    desk.click(300, 300);
    EXPECT_EQ(desk.s.store.entCount, 4);
    EXPECT_EQ(desk.slot(3).p1, (Point{300, 300}));
}

TEST(PlaceAssociate, ShowsTheGauge)
{
    PlaceDesk desk;
    for (int i = 0; i < 149; ++i) desk.piece(fake::circle({0, 0}, 1));
    desk.click(10, 10);
    EXPECT_EQ(desk.s.store.entCount, 299);
    EXPECT_EQ(desk.text("memy"_c), "000.498");
}

TEST(PlaceAssociate, AFullTableTakesNone)
{
    PlaceDesk desk;
    desk.piece(fake::line({0, 0}, {10, 20}));
    desk.piece(fake::circle({5, 5}, 2));
    desk.s.store.entCount = EntityStore::slotCount;
    desk.click(100, 100);
    EXPECT_EQ(desk.s.store.entCount, EntityStore::slotCount);
}

TEST(PlaceAssociate, SaysForHowManyObjectsTheTableHasNoRoom)
{
    struct Row {
        const char* what;
        std::int32_t freeSlots; // of five pieces, one of them a text
        bool reversed;
        const char* said;
    };
    const Row rows[] = {
        {"all of them", 0, false, "Not done: room for 5 more objects is missing"},
        {"some", 2, false, "Not done: room for 3 more objects is missing"},
        {"one", 4, false, "Not done: room for 1 more object is missing"},
        {"a reversed text is not missed", 3, true, "Not done: room for 1 more object is missing"},
        {"none, at the last slot", 5, false, "You are out of memory! Save and exit now."},
    };
    for (const Row& row : rows) {
        PlaceDesk desk;
        if (row.reversed) desk.reverse();
        for (int i = 0; i < 4; ++i) desk.piece(fake::circle({0, 0}, 1));
        desk.piece(fake::filled(Kind::text));
        desk.s.store.entCount = EntityStore::slotCount - row.freeSlots;
        desk.click(100, 100);
        EXPECT_EQ(desk.text("entry"_c), row.said) << row.what;
    }
}

TEST(PlaceAssociate, TheGhostFollowsThePointerOverTheCleanPicture)
{
    PlaceDesk desk;
    desk.piece(fake::line({0, 0}, {10, 20}));
    desk.piece(fake::circle({5, 5}, 2));
    desk.move(100, 200);
    const Ops expected = {"restoreSnapshot", "line 100 200 110 220", "circle 105 205 2", "refresh"};
    EXPECT_EQ(desk.ops(), expected);
    desk.reverse();
    desk.move(100, 200);
    EXPECT_EQ(marks(desk.ops()), (Ops{"line 100 200 90 220", "circle 95 205 2"}));
    EXPECT_EQ(desk.s.store.entCount, 3) << "nothing is placed";
}

TEST(PlaceAssociate, TheGhostTakesANewRotationWithTheNextMove)
{
    PlaceDesk desk;
    desk.piece(fake::line({0, 0}, {12, 0}));
    desk.s.associateRotation = rightAngle;
    desk.move(100, 200);
    EXPECT_EQ(marks(desk.ops()), Ops{"line 100 200 100 188"});
}

TEST(PlaceAssociate, ThereIsNoGhostUnlessOneIsUnderWay)
{
    PlaceDesk desk;
    desk.piece(fake::line({0, 0}, {12, 0}));
    desk.s.stepNo = 0;
    desk.move(100, 200);
    EXPECT_EQ(desk.ops(), Ops{});
    desk.s.stepNo = 1;
    desk.s.associateName = "??????";
    desk.move(100, 200);
    EXPECT_EQ(desk.ops(), Ops{});
}

} // namespace
} // namespace mirtane
