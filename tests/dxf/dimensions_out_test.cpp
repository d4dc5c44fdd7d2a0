// Dimensions with an arrow size of one file unit, on axes, so that every number can be checked by eye.

#include "dxf_samples.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using namespace samples;

EntityRecord dimension(Kind kind, float style)
{
    EntityRecord r = object(kind);
    r.p5 = world(5, 6);
    return fake::dimension(r, "10", style, 12, "");
}

// Measures 10 units from left to right; the dimension line lies 5 above.
EntityRecord linear(float style, float length = 10)
{
    EntityRecord r = dimension(Kind::linearDimension, style);
    r.p1 = world(0, 0);
    r.p2 = world(length, 0);
    r.p3 = world(length, 5);
    r.p4 = world(0, 5);
    return r;
}

std::string words(std::string_view secondX, std::string_view secondY)
{
    return text({"5", "5", secondX, secondY, "0.6666667", "0", "10"});
}

const std::string extensions = line("10", "0.666", "10", "5.666") + line("0", "0.666", "0", "5.666");

TEST(DxfLinearDimension, ClosedArrowsInside)
{
    Drawing drawing{linear(1)};
    EXPECT_EQ(drawing.file(), head() + extensions + line("9", "5", "1", "5") + line("9", "5.25", "10", "5") +
                                  line("9", "4.75", "10", "5") + line("9", "5.25", "9", "4.75") +
                                  line("1", "4.75", "0", "5") + line("1", "5.25", "0", "5") +
                                  line("1", "4.75", "1", "5.25") + words("0.8333333", "-1") + tail());
}

TEST(DxfLinearDimension, OpenArrowsInside)
{
    Drawing drawing{linear(2)};
    EXPECT_EQ(drawing.objects(), extensions + line("10", "5", "0", "5") + line("9", "5.25", "10", "5") +
                                     line("9", "4.75", "10", "5") + line("1", "4.75", "0", "5") +
                                     line("1", "5.25", "0", "5") + words("0.8333333", "-1"));
}

TEST(DxfLinearDimension, SlashesInside)
{
    Drawing drawing{linear(3)};
    EXPECT_EQ(drawing.objects(), extensions + line("10", "5", "0", "5") +
                                     line("10.25", "4.75", "9.75", "5.25") +
                                     line("0.25", "4.75", "-0.25", "5.25") + words("0.8333333", "-1"));
}

const std::string shortExtensions = line("2", "0.666", "2", "5.666") + line("0", "0.666", "0", "5.666");

TEST(DxfLinearDimension, ClosedArrowsOutside)
{
    Drawing drawing{linear(1, 2)};
    EXPECT_EQ(drawing.objects(), shortExtensions + line("3", "5", "4", "5") + line("3", "4.75", "2", "5") +
                                     line("3", "5.25", "2", "5") + line("3", "4.75", "3", "5.25") +
                                     line("-1", "5", "-2", "5") + line("-1", "5.25", "0", "5") +
                                     line("-1", "4.75", "0", "5") + line("-1", "5.25", "-1", "4.75") +
                                     words("0.1666667", "-1"));
}

TEST(DxfLinearDimension, OpenArrowsOutside)
{
    Drawing drawing{linear(2, 2)};
    EXPECT_EQ(drawing.objects(), shortExtensions + line("2", "5", "4", "5") + line("3", "4.75", "2", "5") +
                                     line("3", "5.25", "2", "5") + line("0", "5", "-2", "5") +
                                     line("-1", "5.25", "0", "5") + line("-1", "4.75", "0", "5") +
                                     words("0.1666667", "-1"));
}

TEST(DxfLinearDimension, SlashesAreTheSameOutside)
{
    Drawing drawing{linear(3, 2)};
    EXPECT_EQ(drawing.objects(), shortExtensions + line("2", "5", "0", "5") +
                                     line("2.25", "4.75", "1.75", "5.25") +
                                     line("0.25", "4.75", "-0.25", "5.25") + words("0.1666667", "-1"));
}

TEST(DxfLinearDimension, ThreeArrowsLongHasThemInside)
{
    Drawing inside{linear(2, 3)};
    EXPECT_NE(inside.objects().find(line("3", "5", "0", "5")), std::string::npos);
    Drawing outside{linear(2, 2.99F)};
    EXPECT_EQ(outside.objects().find(line("2.99", "5", "0", "5")), std::string::npos);
}

TEST(DxfLinearDimension, UnknownStyleKeepsExtensionsAndText)
{
    for (const float style : {0.0F, 4.0F, 1.5F}) {
        Drawing drawing{linear(style)};
        EXPECT_EQ(drawing.file(), head() + extensions + words("0.8333333", "-1") + tail()) << style;
    }
}

TEST(DxfLinearDimension, JustificationIsTakenFromItsOwnField)
{
    EntityRecord r = linear(0);
    r.p2 = {120, 2};
    Drawing drawing{r};
    EXPECT_NE(drawing.objects().find(" 72\r\n     1\r\n"), std::string::npos);
}

TEST(DxfLinearDimension, CoincidentPointsTakeTheDirectionBefore)
{
    EntityRecord r = linear(3);
    r.p2 = r.p3; // the first extension line has no direction: it takes that of the dimension line
    Drawing drawing{r};
    EXPECT_TRUE(drawing.objects().starts_with(line("10.666", "5", "10.666", "5"))) << drawing.objects();
}

// Centre, elbow, shoulder and the point of the circle on one axis.
EntityRecord radial(float style)
{
    EntityRecord r = dimension(Kind::radialDimension, style);
    r.p1 = world(0, 0);
    r.p2 = world(6, 0);
    r.p3 = world(8, 0);
    r.p4 = world(3, 0);
    return r;
}

const std::string radialEnd = line("6", "0", "8", "0") + line("0", "0", "1", "0") +
                              line("0", "0", "-1", "0") + line("0", "0", "0", "1") +
                              line("0", "0", "0", "-1") + words("0", "-1");

TEST(DxfRadialDimension, EachStyle)
{
    Drawing closed{radial(1)};
    EXPECT_EQ(closed.file(), head() + line("1", "0", "3", "0") + line("4", "0", "6", "0") +
                                 line("4", "0.25", "3", "0") + line("4", "-0.25", "3", "0") +
                                 line("4", "-0.25", "4", "0.25") + radialEnd + tail());
    Drawing open{radial(2)};
    EXPECT_EQ(open.objects(), line("1", "0", "6", "0") + line("4", "0.25", "3", "0") +
                                  line("4", "-0.25", "3", "0") + radialEnd);
    Drawing slash{radial(3)};
    EXPECT_EQ(slash.objects(), line("1", "0", "6", "0") + line("2.75", "0.25", "3.25", "-0.25") + radialEnd);
}

TEST(DxfRadialDimension, UnknownStyleEndsTheFileThere)
{
    Drawing drawing{lineObject(1, 2, 3, 4), radial(4), lineObject(5, 6, 7, 8)};
    EXPECT_EQ(drawing.file(), head() + line("1", "2", "3", "4"));
    EXPECT_FALSE(drawing.whole);
    EXPECT_EQ(countWithStat(*drawing.store, Stat::sel), 3);
}

EntityRecord leader(float style)
{
    EntityRecord r = dimension(Kind::leader, style);
    r.p1 = world(0, 0);
    r.p2 = world(4, 0);
    r.p3 = world(6, 0);
    return r;
}

TEST(DxfLeader, EachStyleWithTheTextFirst)
{
    Drawing closed{leader(1)};
    EXPECT_EQ(closed.file(), head() + words("0", "-1") + line("1", "0", "4", "0") + line("4", "0", "6", "0") +
                                 line("0", "0", "1", "-0.25") + line("0", "0", "1", "0.25") +
                                 line("1", "0.25", "1", "-0.25") + tail());
    for (const float style : {2.0F, 3.0F}) {
        Drawing open{leader(style)};
        EXPECT_EQ(open.objects(), words("0", "-1") + line("0", "0", "4", "0") + line("4", "0", "6", "0") +
                                      line("0", "0", "1", "-0.25") + line("0", "0", "1", "0.25"));
    }
    Drawing other{leader(7)};
    EXPECT_EQ(other.file(), head() + words("0", "-1") + tail());
}

// A quarter turn from the right to the top, its radius 5.
EntityRecord angular(std::int16_t style)
{
    EntityRecord r = dimension(Kind::angularDimension, 12);
    r.style = style;
    r.p1 = world(0, 0);
    r.p2 = world(7, 0);
    r.p3 = world(0, 7);
    r.rad = 60;
    r.a1 = 0;
    r.a2 = 0.5;
    return r;
}

const std::string extension2 = line("7.666", "0", "6", "0");
const std::string extension3 = line("0", "7.666", "0", "6");
const std::string angularEnd = arc("0", "0", "5", "0", "28.64789") + words("0", "-1");

TEST(DxfAngularDimension, EachStyle)
{
    Drawing closed{angular(1)};
    EXPECT_EQ(closed.file(), head() + extension2 + line("5.25", "1", "5", "0") + line("4.75", "1", "5", "0") +
                                 line("5.25", "1", "4.75", "1") + extension3 + line("1", "5.25", "0", "5") +
                                 line("1", "4.75", "0", "5") + line("1", "5.25", "1", "4.75") + angularEnd +
                                 tail());
    Drawing open{angular(2)};
    EXPECT_EQ(open.objects(), extension2 + line("5.25", "1", "5", "0") + line("4.75", "1", "5", "0") +
                                  extension3 + line("1", "5.25", "0", "5") + line("1", "4.75", "0", "5") +
                                  angularEnd);
    Drawing slash{angular(3)};
    EXPECT_EQ(slash.objects(), extension2 + line("5.25", "-0.25", "4.75", "0.25") + extension3 +
                                   line("0.25", "5.25", "-0.25", "4.75") + angularEnd);
}

TEST(DxfAngularDimension, UnknownStyleEndsTheFileBehindItsFirstExtensionLine)
{
    Drawing drawing{angular(0), lineObject(5, 6, 7, 8)};
    EXPECT_EQ(drawing.file(), head() + extension2);
    EXPECT_FALSE(drawing.whole);
}

TEST(DxfAngularDimension, TextTurnsByItsThirdAngle)
{
    EntityRecord r = angular(1);
    r.a1 = 1;
    r.a3 = 30;
    Drawing drawing{r};
    const std::string made = drawing.objects();
    EXPECT_NE(made.find(" 41\r\n1.0\r\n 50\r\n30\r\n"), std::string::npos) << made;
}

TEST(DxfTextPoint, SecondPointStaysFromObjectToObjectAndFileToFile)
{
    EntityRecord r = object(Kind::text);
    r.p4 = world(20, 20);
    r.p2.x = 12;
    Drawing drawing{leader(7), r, leader(7), linear(0), leader(7)};
    const std::string first = drawing.objects();
    const std::string own = text({"0", "-1", "20", "19", "0.6666667", "0", ""});
    EXPECT_EQ(first, words("0", "-1") + own + words("20", "19") + extensions + words("0.8333333", "-1") +
                         words("0.8333333", "-1"));
    EXPECT_TRUE(drawing.objects().starts_with(words("0.8333333", "-1")));
}

TEST(DxfDirection, StaysFromObjectToObject)
{
    EntityRecord r = leader(2);
    r.p2 = r.p1; // no direction: that of the leader before
    Drawing drawing{leader(2), r};
    EXPECT_TRUE(drawing.objects().ends_with(line("0", "0", "1", "-0.25") + line("0", "0", "1", "0.25")));
    Drawing alone{r};
    EXPECT_TRUE(alone.objects().ends_with(line("0", "0", "0", "0") + line("0", "0", "0", "0")));
}

TEST(DxfWriter, DrawingOfAllKinds)
{
    EntityRecord round = object(Kind::circle);
    round.p1 = world(1, 1);
    round.rad = 12;
    EntityRecord part = round;
    part.kind = Kind::arc;
    part.a1 = 0.5;
    part.a2 = 1;
    part.style = 4;
    EntityRecord dot = object(Kind::point);
    dot.p1 = world(2, 2);
    dot.color = 0x0000FF;
    EntityRecord note = object(Kind::text);
    note.p1 = note.p4 = world(3, 3);
    note.p2 = {12, 2};
    note.t1 = "note";
    Drawing drawing{lineObject(0, 0, 9, 0),
                    round,
                    part,
                    levelEllipse(),
                    dot,
                    note,
                    linear(2),
                    radial(3),
                    leader(9),
                    angular(3)};
    EXPECT_EQ(drawing.file(),
              head() + line("0", "0", "9", "0") + circle("1", "1", "1") +
                  arc("1", "1", "1", "28.64789", "57.29578", {"PHANTOM"}) + levelEllipseLines() +
                  line("2", "2", "2", "2", {"CONTINUOUS", "     4"}) +
                  text({"3", "2", "3", "2", "0.6666667", "0", "note", "     1"}) + extensions +
                  line("10", "5", "0", "5") + line("9", "5.25", "10", "5") + line("9", "4.75", "10", "5") +
                  line("1", "4.75", "0", "5") + line("1", "5.25", "0", "5") + words("0.8333333", "-1") +
                  line("1", "0", "6", "0") + line("2.75", "0.25", "3.25", "-0.25") +
                  line("6", "0", "8", "0") + line("0", "0", "1", "0") + line("0", "0", "-1", "0") +
                  line("0", "0", "0", "1") + line("0", "0", "0", "-1") + words("0.8333333", "-1") +
                  words("0.8333333", "-1") + extension2 + line("5.25", "-0.25", "4.75", "0.25") + extension3 +
                  line("0.25", "5.25", "-0.25", "4.75") + arc("0", "0", "5", "0", "28.64789") +
                  words("0.8333333", "-1") + tail());
}

} // namespace
} // namespace mirtane
