#include "library/boundary.h"

#include "library_desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::LibraryDesk;
using fake::Ops;

BoundaryClick lastClick;

// Asks the routine itself what it makes of a click, which the steps that call it keep to themselves.
struct BoundaryDesk : LibraryDesk {
    BoundaryDesk() : LibraryDesk("Measure Area") {}
    void click(float x, float y)
    {
        countStep(s);
        (s.stepNo == 1 ? s.pickFirst : s.pickLast) = {x, y};
        lastClick = takeBoundaryClick(s);
    }
};

TEST(Boundary, TakesALegWithEachClickAfterTheFirst)
{
    BoundaryDesk desk;
    desk.click(10, 20);
    EXPECT_EQ(desk.s.boundaryCount, 0);
    EXPECT_EQ(desk.s.boundary[0].from, (Point{10, 20}));
    desk.click(50, 20);
    desk.click(50, 90);
    EXPECT_EQ(lastClick, BoundaryClick::taken);
    EXPECT_EQ(desk.s.boundaryCount, 2);
    EXPECT_EQ(desk.s.boundary[0].from, (Point{10, 20}));
    EXPECT_EQ(desk.s.boundary[0].to, (Point{50, 20}));
    EXPECT_EQ(desk.s.boundary[1].from, (Point{50, 20}));
    EXPECT_EQ(desk.s.boundary[1].to, (Point{50, 90}));
}

TEST(Boundary, TheLastPointTakenIsTheOneWhoseRepeatCancels)
{
    BoundaryDesk desk;
    desk.click(10, 20);
    desk.click(50, 20);
    EXPECT_EQ(desk.s.pickFirst, (Point{50, 20}));
    desk.click(50, 90);
    EXPECT_EQ(desk.s.pickFirst, (Point{50, 90}));
}

TEST(Boundary, AClickOnExactlyTheFirstPointCloses)
{
    BoundaryDesk desk;
    desk.click(10, 20);
    desk.click(50, 20);
    desk.click(50, 90);
    desk.click(10, 20);
    EXPECT_EQ(lastClick, BoundaryClick::closed);
    EXPECT_EQ(desk.s.boundaryCount, 2) << "the index of the last leg";
    const auto legs = closedBoundary(desk.s);
    ASSERT_EQ(legs.size(), 3U);
    EXPECT_EQ(legs[2].from, (Point{50, 90}));
    EXPECT_EQ(legs[2].to, (Point{10, 20}));
}

TEST(Boundary, AClickBesideTheFirstPointByAnyDistanceIsOneMoreLeg)
{
    BoundaryDesk desk;
    desk.click(10, 20);
    desk.click(50, 20);
    desk.click(50, 90);
    desk.click(10, std::nextafter(20.0F, 21.0F));
    EXPECT_EQ(lastClick, BoundaryClick::taken);
    EXPECT_EQ(desk.s.boundaryCount, 3);
}

TEST(Boundary, ANewOneForgetsTheLast)
{
    BoundaryDesk desk;
    desk.click(10, 20);
    desk.click(50, 20);
    desk.s.stepNo = 0;
    desk.click(500, 600);
    EXPECT_EQ(desk.s.boundaryCount, 0);
    EXPECT_EQ(desk.s.boundary[0].from, (Point{500, 600}));
}

constexpr const char* full = "100 edges at most: close the boundary";

// The hundredth edge is the one that closes: were it any other, the boundary could no more be closed.
TEST(Boundary, AfterNinetyNineLegsOnlyTheOneThatClosesIsTaken)
{
    BoundaryDesk desk;
    desk.click(0, 0);
    for (int i = 1; i <= 99; ++i) desk.click(static_cast<float>(i), 1);
    EXPECT_EQ(lastClick, BoundaryClick::taken);
    EXPECT_EQ(desk.text("entry"_c), "");
    for (int i = 100; i <= 40000; ++i) {
        setText(desk.s.controls["entry"_c], "");
        desk.click(static_cast<float>(i), 1);
        ASSERT_EQ(desk.text("entry"_c), full) << i;
    }
    EXPECT_EQ(lastClick, BoundaryClick::refused);
    EXPECT_EQ(desk.s.boundaryCount, 99);
    EXPECT_EQ(desk.s.boundary[98].to, (Point{99, 1}));
    EXPECT_EQ(desk.s.pickFirst, (Point{99, 1})) << "the next edge starts from the last that was taken";
    EXPECT_EQ(desk.s.stepNo, 100) << "a refused click is no step";
    desk.ops();
    desk.move(50, 70);
    const Ops band = fake::only(desk.ops(), "line");
    EXPECT_EQ(band.size(), 100U);
    EXPECT_EQ(band.front(), "line 99 1 50 70");
    EXPECT_EQ(band.back(), "line 98 1 99 1");
    desk.click(0, 0);
    EXPECT_EQ(lastClick, BoundaryClick::closed);
    ASSERT_EQ(closedBoundary(desk.s).size(), 100U);
    EXPECT_EQ(closedBoundary(desk.s)[99].from, (Point{99, 1}));
    EXPECT_EQ(closedBoundary(desk.s)[99].to, (Point{0, 0}));
}

TEST(Boundary, NinetyNineLegsLeaveAPlaceForTheOneThatCloses)
{
    BoundaryDesk desk;
    desk.click(0, 0);
    for (int i = 1; i <= 99; ++i) desk.click(static_cast<float>(i), 1);
    desk.click(0, 0);
    ASSERT_EQ(closedBoundary(desk.s).size(), 100U);
    EXPECT_EQ(closedBoundary(desk.s)[99].from, (Point{99, 1}));
    EXPECT_EQ(closedBoundary(desk.s)[99].to, (Point{0, 0}));
}

TEST(Boundary, DroppedItIsNowhere)
{
    BoundaryDesk desk;
    desk.click(10, 20);
    desk.click(50, 20);
    dropBoundary(desk.s);
    EXPECT_EQ(desk.s.boundaryCount, 0);
    EXPECT_EQ(desk.s.boundary[0].from, (Point{1000000, 1000000}));
}

TEST(Boundary, TheBandIsTheWayToThePointerAndEveryLeg)
{
    BoundaryDesk desk;
    desk.move(5, 5);
    EXPECT_EQ(desk.ops(), Ops{}) << "nothing is under way";
    desk.click(10, 20);
    desk.click(50, 20);
    desk.click(50, 90);
    desk.ops();
    desk.move(30, 70);
    EXPECT_EQ(desk.ops(),
              (Ops{"restoreSnapshot", "line 50 90 30 70", "line 10 20 50 20", "line 50 20 50 90"}));
}

} // namespace
} // namespace mirtane
