// Texts of four characters, forty units wide as measured, so 32 units in the drawing.

#include "dxf_samples.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using namespace samples;

EntityRecord opened(std::string_view justification, std::string_view angle = "0")
{
    Opened o(lines({"TEXT", " 10", "10", " 20", "20", " 40", "2", "  1", "Wall", " 50", angle, " 72",
                    justification, " 11", "30", " 21", "20", "  0"}));
    return o.at(1);
}

void expectNear(Point p, float x, float y)
{
    EXPECT_NEAR(p.x, x, 1e-3);
    EXPECT_NEAR(p.y, y, 1e-3);
}

TEST(DxfText, LeftStandsAboveItsPoint)
{
    const EntityRecord r = opened("     0");
    EXPECT_EQ(r.kind, Kind::text);
    EXPECT_EQ(r.t1, "Wall");
    EXPECT_EQ(r.t2, "Garamond");
    EXPECT_EQ(r.p2, (Point{24, 0}));
    EXPECT_EQ(r.p1, (Point{120, -264}));
    EXPECT_EQ(r.p4, r.p1);
    EXPECT_EQ(r.rad, 32);
    EXPECT_EQ(r.p3.x, 0);
    EXPECT_EQ(r.style, 0);
}

TEST(DxfText, CentredMovesAlongByHalfItsWidth)
{
    const EntityRecord r = opened("1");
    EXPECT_EQ(r.p2.y, 2);
    expectNear(r.p1, 120 + 0.575F * 32, -264);
    expectNear(r.p4, 120 + 0.575F * 32 + 0.5175F * 32, -264);
    EXPECT_EQ(r.p3.x, 0);
}

TEST(DxfText, RightMovesAlongByItsWidth)
{
    const EntityRecord r = opened("2");
    EXPECT_EQ(r.p2.y, 1);
    expectNear(r.p1, 120 + 1.15F * 32, -264);
    expectNear(r.p4, 120 + 1.15F * 32 + 1.0925F * 32, -264);
}

TEST(DxfText, FittedStandsInTheMiddleOfItsTwoPoints)
{
    const EntityRecord r = opened("5");
    EXPECT_EQ(r.p2.y, 0);
    expectNear(r.p1, 120 + 120 - 16, -264);
    EXPECT_EQ(r.p4, r.p1);
    EXPECT_EQ(r.p3.x, 0);
    EXPECT_EQ(r.rad, 32);
}

TEST(DxfText, FittedBetweenEqualPointsStays)
{
    Opened o(lines({"TEXT", " 10", "1", " 20", "2", " 11", "1", " 21", "2", " 72", "5", "  1", "a", "  0"}));
    EXPECT_EQ(o.at(1).p1, (Point{12, -24}));
}

TEST(DxfText, OtherJustificationsStayAsRead)
{
    for (const std::string_view justification : {"3", "4", "-1", "1.5"}) {
        const EntityRecord r = opened(justification);
        EXPECT_EQ(r.p1, (Point{120, -240})) << justification;
        EXPECT_EQ(r.p2.x, 24);
        EXPECT_EQ(r.p3, (Point{360, -240}));
        EXPECT_EQ(r.p4, (Point{0, 0}));
        EXPECT_EQ(r.rad, 0);
    }
}

TEST(DxfText, TurnedMovesAcrossItsDirection)
{
    const EntityRecord r = opened("1", "90");
    EXPECT_EQ(r.a1, 90);
    expectNear(r.p1, 120 - 24, -240 - 0.575F * 32);
    expectNear(r.p4, 120 - 24, -240 - 0.575F * 32 - 0.5175F * 32);
}

TEST(DxfText, PresetsHoldWhereGroupsAreMissing)
{
    Opened o(lines({"TEXT", " 72", "2", " 50", "45", "  1", "old", "  0"}));
    o.read(lines({"TEXT", "  0"}));
    EXPECT_EQ(o.at(1).p2.y, 0);
    EXPECT_EQ(o.at(1).a1, 0);
    EXPECT_EQ(o.at(1).t1, "old");
}

TEST(DxfText, BytesAreWindows1252)
{
    Opened o(lines({"TEXT", "  1", " 5 \x80 \xE9 ", "  0"}));
    EXPECT_EQ(o.at(1).t1, " 5 \xE2\x82\xAC \xC3\xA9 ");
}

TEST(DxfText, SizeShrinksOnItsWayOutAndBack)
{
    EntityRecord r = object(Kind::text);
    r.p2.x = 48;
    r.t1 = "Wall";
    Drawing drawing{r};
    Opened o(drawing.file());
    EXPECT_NEAR(o.at(1).p2.x, 32, 1e-4);
}

} // namespace
} // namespace mirtane
