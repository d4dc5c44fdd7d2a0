#include "print/page.h"

#include "print/recording_printer.h"
#include "records.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <numbers>

namespace mirtane {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

using Ops = std::vector<std::string>;

std::string tenths(double value)
{
    char digits[64];
    std::snprintf(digits, sizeof digits, "%.1f", value + 0.0); // no negative zero
    return digits;
}

std::string wordOf(const PrintOp::Arg& arg)
{
    if (const auto* const text = std::get_if<std::string>(&arg)) return *text;
    if (const auto* const flag = std::get_if<bool>(&arg)) return *flag ? "yes" : "no";
    return tenths(std::get<double>(arg));
}

// "line 360.0 7920.0 11880.0 7920.0": numbers to a tenth of a twip.
std::string textOf(const PrintOp& op)
{
    std::string text(op.name);
    for (const PrintOp::Arg& arg : op.args) text += " " + wordOf(arg);
    return text;
}

constexpr std::int32_t white = 0xFFFFFF;

EntityRecord record(Kind kind, Point p1 = {}, Point p2 = {})
{
    return fake::ofLooks(fake::record(kind, p1, p2), white);
}

EntityRecord lineOf(Point from, Point to, std::int32_t color = white, std::int16_t style = 0)
{
    return fake::ofLooks(fake::line(from, to), color, 0, style);
}

EntityRecord roundOf(Kind kind, Point centre, float rad)
{
    EntityRecord r = record(kind, centre);
    r.rad = rad;
    return r;
}

EntityRecord ellipseOf(Point end, Point centre, float ratio)
{
    return fake::ofLooks(fake::ellipse(end, centre, ratio), white);
}

// 12 units high.
EntityRecord textAt(Point painted, const std::string& words)
{
    return fake::ofLooks(fake::text(painted, words, 12, "Serif"), white);
}

class Page : public testing::Test {
  protected:
    Page() { paper(12240, 15840); }

    void paper(float width, float height)
    {
        state.pageWidth = width;
        state.pageHeight = height;
    }

    void add(const EntityRecord& r, Stat stat = Stat::sel)
    {
        const std::int32_t slot = store.entCount++;
        store.setRecord(slot, r);
        store.setStat(slot, stat);
    }

    // 1152 world units across: ten twips to the unit on letter paper, (x, 0) at (360 + 10 x, 7920).
    void addTenfold() { add(lineOf({0, 0}, {1152, 0})); }

    Ops print()
    {
        RecordingPrinter printer(state.pageWidth, state.pageHeight);
        drawPage(store, pageMapping(state, store), 4800, printer);
        Ops ops;
        for (const PrintOp& op : printer.printed()) ops.push_back(textOf(op));
        return ops;
    }

    Ops printed(const std::string& name)
    {
        Ops found;
        for (const std::string& op : print()) {
            if (op.substr(0, op.find(' ')) == name) found.push_back(op);
        }
        return found;
    }

    std::vector<float> bounds()
    {
        fittedScale(state, store);
        return {state.printMinX, state.printMinY, state.printMaxX, state.printMaxY};
    }

    std::unique_ptr<EntityStore> owned = std::make_unique<EntityStore>();
    EntityStore& store = *owned;
    PrintState state;
};

TEST_F(Page, WhatIsWideFitsByWidthAndIsCentredUpAndDown)
{
    add(lineOf({100, 200}, {1252, 776}));
    EXPECT_FLOAT_EQ(fittedScale(state, store), 12); // 96 drawing units on 8 inches
    EXPECT_THAT(printed("line"), ElementsAre("line 360.0 5040.0 11880.0 10800.0"));
    EXPECT_FLOAT_EQ(state.printScale, 10);
    EXPECT_FLOAT_EQ(state.printOriginX, 640);
    EXPECT_FLOAT_EQ(state.printOriginY, -3040);
}

TEST_F(Page, WhatIsTallFitsByHeightAndIsCentredAcross)
{
    add(lineOf({-50, -1000}, {50, 512}));
    EXPECT_FLOAT_EQ(fittedScale(state, store), 12); // 126 drawing units on 10.5 inches
    EXPECT_THAT(printed("line"), ElementsAre("line 5620.0 360.0 6620.0 15480.0"));
}

TEST_F(Page, TheFitTakesTheShapeOfTheReducedPageAndTheMappingThatOfTheWholePage)
{
    add(lineOf({0, 0}, {770, 1000}));
    EXPECT_NEAR(fittedScale(state, store), 8.020833, 0.000002); // by width: 770 / 12 on 8 inches
    // By height: 15.12 twips to the unit, so that 61 twips of each margin are lost at the sides.
    EXPECT_THAT(printed("line"), ElementsAre("line 298.8 360.0 11941.2 15480.0"));
}

TEST_F(Page, ATieOfTheWholePageGoesByWidth)
{
    paper(12288, 16384);
    add(lineOf({0, 0}, {1200, 1600}));
    print();
    EXPECT_FLOAT_EQ(state.printScale, 11568.F / 1200);
}

TEST_F(Page, ATieOfTheReducedPageGoesByWidth)
{
    paper(12240, 23760); // 8 and 16 inches are left
    add(lineOf({0, 0}, {960, 1920}));
    EXPECT_FLOAT_EQ(fittedScale(state, store), 10);
}

TEST_F(Page, AFactorOfOneHalfHalvesThePictureAboutTheCentreOfThePage)
{
    state.printFactor = 0.5F;
    add(lineOf({100, 200}, {1252, 776}));
    EXPECT_THAT(printed("line"), ElementsAre("line 3240.0 6480.0 9000.0 9360.0"));
}

TEST_F(Page, ASinglePointFitsAtNoughtAndKeepsTheLastScaleTimesTheFactorOnceMore)
{
    add(record(Kind::point, {500, 500}));
    EXPECT_EQ(fittedScale(state, store), 0);
    EXPECT_THAT(printed("point"), ElementsAre("point 6120.0 7920.0"));
    EXPECT_FLOAT_EQ(state.printScale, 1);
    state.printScale = 10;
    state.printFactor = 0.5F;
    EXPECT_THAT(printed("point"), ElementsAre("point 6120.0 7920.0"));
    EXPECT_FLOAT_EQ(state.printScale, 5);
    print();
    EXPECT_FLOAT_EQ(state.printScale, 2.5F);
}

TEST_F(Page, OnlySelectedObjectsOfTheDrawnKindsAreMeasuredAndPrinted)
{
    add(lineOf({-9000, -9000}, {9000, 9000}), Stat::on);
    add(lineOf({-9000, -9000}, {9000, 9000}), Stat::off);
    add(lineOf({-9000, -9000}, {9000, 9000}), Stat::out);
    add(record(pieceOf(Kind::line), {-9000, -9000}, {9000, 9000}));
    addTenfold();
    EXPECT_THAT(bounds(), ElementsAre(0, 0, 1152, 0));
    EXPECT_THAT(printed("line"), ElementsAre("line 360.0 7920.0 11880.0 7920.0"));
}

TEST_F(Page, TheFirstPointSetsAllFourBounds)
{
    add(lineOf({500, 600}, {700, 900}));
    EXPECT_THAT(bounds(), ElementsAre(500, 600, 700, 900));
}

struct BoundsRow {
    const char* what;
    EntityRecord object;
    std::vector<float> expected;
};

// Five points that all widen the box, each on its own account.
EntityRecord spread(Kind kind)
{
    EntityRecord r = record(kind, {0, 0}, {10, 1});
    r.p3 = {-20, 2};
    r.p4 = {3, 300};
    r.p5 = {4, -40};
    return r;
}

TEST_F(Page, EachKindIsMeasuredByItsOwnPoints)
{
    const BoundsRow rows[] = {
        {"a line by both ends, its other pairs never", spread(Kind::line), {0, 0, 10, 1}},
        {"a circle by its radius", roundOf(Kind::circle, {100, 200}, 30), {70, 170, 130, 230}},
        {"an arc by its radius, whatever its angles",
         roundOf(Kind::arc, {100, 200}, 30),
         {70, 170, 130, 230}},
        {"an ellipse by the ends of both axes", ellipseOf({200, 100}, {100, 100}, 0.5F), {0, 50, 200, 150}},
        {"an ellipse that stands", ellipseOf({100, 0}, {100, 100}, 0.5F), {50, 0, 150, 200}},
        {"a point by itself", spread(Kind::point), {0, 0, 0, 0}},
        {"a text by both its points", spread(Kind::text), {0, 0, 3, 300}},
        {"a linear dimension by all five", spread(Kind::linearDimension), {-20, -40, 10, 300}},
        {"a radial dimension by all but the fourth", spread(Kind::radialDimension), {-20, -40, 10, 2}},
        {"a leader by all but the fourth", spread(Kind::leader), {-20, -40, 10, 2}},
        {"an angular dimension by all but the fourth", spread(Kind::angularDimension), {-20, -40, 10, 2}},
    };
    for (const BoundsRow& row : rows) {
        store.entCount = 1;
        add(row.object);
        EXPECT_EQ(bounds(), row.expected) << row.what;
    }
}

TEST_F(Page, TheProgramsNameStandsAtTheCornerBeforeAnyObject)
{
    addTenfold();
    EXPECT_THAT(print(), ElementsAre("font Garamond 8.0", "text 0.0 0.0 Mirtane 4.00", "pen 0.0 14.0",
                                     "line 360.0 7920.0 11880.0 7920.0"));
}

TEST_F(Page, AllTextGoesBeforeAllGeometryAndEachInSlotOrder)
{
    addTenfold();
    add(textAt({100, 0}, "first"));
    EntityRecord leader = record(Kind::leader, {200, 0}, {300, 0});
    leader.p3 = leader.p5 = {400, 0};
    leader.s2 = 12;
    leader.a2 = 10;
    leader.s1 = 2;
    leader.t1 = "second";
    add(leader);
    add(textAt({500, 0}, "third"));
    Ops order;
    for (const std::string& op : print()) {
        if (op.starts_with("rotatedText")) order.push_back(op.substr(op.rfind(' ') + 1));
        if (op.starts_with("line")) order.emplace_back("line");
    }
    EXPECT_THAT(order, ElementsAre("first", "second", "third", "line", "line", "line", "line", "line"));
}

struct WidthRow {
    std::int32_t color;
    const char* pen;
};

TEST_F(Page, TheColourChoosesTheWidthOfThePen)
{
    const WidthRow rows[] = {
        {0xFF0000, "pen 0.0 1.0"},  {0x00FF00, "pen 0.0 2.0"},  {0xFFFF00, "pen 0.0 4.0"},
        {0x0000FF, "pen 0.0 6.0"},  {0xFF00FF, "pen 0.0 8.0"},  {0x0080FF, "pen 0.0 10.0"},
        {0x00FFFF, "pen 0.0 12.0"}, {0xFFFFFF, "pen 0.0 14.0"},
    };
    Ops expected;
    for (const WidthRow& row : rows) {
        add(lineOf({0, 0}, {1152, 0}, row.color));
        expected.emplace_back(row.pen);
    }
    EXPECT_EQ(printed("pen"), expected);
}

TEST_F(Page, AColourOutsideTheTableKeepsTheWidthOfTheObjectBeforeIt)
{
    for (const std::int32_t color : {0xE0E0E0, 0x0000FF, 0xE0E0E0, 0, 0x00FF00, 0x123456})
        add(lineOf({0, 0}, {1152, 0}, color));
    EXPECT_THAT(printed("pen"), ElementsAre("pen 0.0 1.0", "pen 0.0 6.0", "pen 0.0 6.0", "pen 0.0 6.0",
                                            "pen 0.0 2.0", "pen 0.0 2.0"));
    EXPECT_THAT(printed("pen")[0], "pen 0.0 1.0"); // and no width is kept from the page before
}

TEST_F(Page, TheStyleStaysAtAnyWidthAndDimensionsAreSolid)
{
    add(lineOf({0, 0}, {1152, 0}, 0xFFFFFF, 3));
    EntityRecord circle = roundOf(Kind::circle, {500, 0}, 100);
    circle.style = 1;
    add(circle);
    EntityRecord angular = record(Kind::angularDimension, {100, 0}, {200, 0});
    angular.p3 = angular.p5 = {100, 100};
    angular.style = 2; // the arrow's, not the pen's
    add(angular);
    EXPECT_THAT(printed("pen"), ElementsAre("pen 3.0 14.0", "pen 1.0 14.0", "pen 0.0 14.0"));
}

TEST_F(Page, LengthsAreScaledAndAnglesStay)
{
    addTenfold();
    add(roundOf(Kind::circle, {500, 20}, 100));
    EntityRecord arc = roundOf(Kind::arc, {600, -20}, 50);
    arc.a1 = 0.5;
    arc.a2 = 3.5;
    add(arc);
    add(record(Kind::point, {10, -30}));
    // The circle reaches from -80 to 120, the arc to -70: the middle of the page is at 20.
    EXPECT_THAT(printed("circle"), ElementsAre("circle 5360.0 7920.0 1000.0"));
    EXPECT_THAT(printed("arc"), ElementsAre("arc 6360.0 7520.0 500.0 0.5 3.5"));
    EXPECT_THAT(printed("point"), ElementsAre("point 460.0 7420.0"));
}

TEST_F(Page, AnEllipseIsAClosedChainOfThirtySixChordsOnItsCurve)
{
    addTenfold();
    add(ellipseOf({600, 0}, {500, 0}, 0.5F));
    RecordingPrinter printer;
    drawPage(store, pageMapping(state, store), 4800, printer);
    std::vector<std::vector<double>> chords;
    for (const PrintOp& op : printer.printed()) {
        if (op.name != "line") continue;
        std::vector<double> ends;
        for (const PrintOp::Arg& arg : op.args) ends.push_back(std::get<double>(arg));
        chords.push_back(ends);
    }
    chords.erase(chords.begin()); // the line
    ASSERT_EQ(chords.size(), 36U);
    EXPECT_NEAR(chords.front()[0], 6360, 0.1);
    EXPECT_NEAR(chords.front()[1], 7920, 0.1);
    EXPECT_NEAR(chords.back()[2], 6360, 0.1);
    EXPECT_NEAR(chords.back()[3], 7920, 0.1);
    EXPECT_NEAR(chords[8][2], 5360, 0.1); // a quarter on, counter-clockwise: up, half as far
    EXPECT_NEAR(chords[8][3], 7420, 0.1);
    for (std::size_t i = 0; i + 1 < chords.size(); ++i) EXPECT_EQ(chords[i][2], chords[i + 1][0]) << i;
    for (const auto& c : chords) EXPECT_NEAR(std::hypot((c[2] - 5360) / 1000, (c[3] - 7920) / 500), 1, 0.001);
}

TEST_F(Page, TextIsAsHighOnPaperAsTheGeometryBesideIt)
{
    addTenfold();
    EntityRecord slanted = textAt({100, 0}, "wall");
    slanted.p1 = {90, 0};
    slanted.a1 = 30;
    add(slanted);
    const Ops ops = print();
    ASSERT_GE(ops.size(), 4U);
    EXPECT_EQ(ops[2], "font Serif 6.0"); // 12 units of ten twips are 120 twips, and 20 make a point
    EXPECT_EQ(ops[3], "rotatedText 1360.0 7920.0 120.0 30.0 no wall");
}

TEST_F(Page, OnlyATextIsUnderlined)
{
    addTenfold();
    EntityRecord text = textAt({100, 0}, "text");
    text.p3.x = 1;
    add(text);
    EntityRecord dimension = record(Kind::linearDimension, {100, 0}, {200, 0});
    dimension.p3 = {1, 0};
    dimension.p5 = {150, 0};
    dimension.s2 = 12;
    dimension.a1 = 90;
    dimension.t1 = "dimension";
    add(dimension);
    EXPECT_THAT(printed("rotatedText"), ElementsAre("rotatedText 1360.0 7920.0 120.0 0.0 yes text",
                                                    "rotatedText 1860.0 7920.0 120.0 90.0 no dimension"));
}

TEST_F(Page, TheTextOfAnAngularDimensionStandsAtItsThirdAngle)
{
    addTenfold();
    EntityRecord angular = record(Kind::angularDimension, {100, 0}, {200, 0});
    angular.p5 = {150, 0};
    angular.s2 = 24;
    angular.a1 = 1;
    angular.a3 = 45;
    angular.t1 = "90";
    add(angular);
    EXPECT_THAT(printed("rotatedText"), ElementsAre("rotatedText 1860.0 7920.0 240.0 45.0 no 90"));
}

TEST_F(Page, ALinearDimensionIsDrawnOfTheStrokesThatTheSurfaceHas)
{
    EntityRecord d = record(Kind::linearDimension, {0, 100}, {1152, 100});
    d.p3 = {1152, 0};
    d.p4 = {0, 0};
    d.p5 = {500, 50};
    d.s1 = 3; // a slash
    d.s2 = 30;
    add(d);
    const Ops lines = printed("line");
    EXPECT_EQ(lines.size(), 5U); // two extension lines, the shaft, two slashes
    // They begin and end two thirds of an arrow on: 19.98 units.
    EXPECT_THAT(lines, Contains("line 11880.0 8220.2 11880.0 7220.2"));
    EXPECT_THAT(lines, Contains("line 360.0 8220.2 360.0 7220.2"));
    const std::string shaft = "line 360.0 7420.0 11880.0 7420.0";
    const std::string back = "line 11880.0 7420.0 360.0 7420.0";
    EXPECT_THAT(lines, testing::AnyOf(Contains(shaft), Contains(back)));
}

TEST_F(Page, AnAngularDimensionHasItsArcOnThePage)
{
    addTenfold();
    EntityRecord d = record(Kind::angularDimension, {500, 0}, {550, 0});
    d.p3 = {500, 0.5F};
    d.p4 = {600, 0};
    d.rad = 100;
    d.s1 = 5;
    d.a1 = 0;
    d.a2 = 1.5;
    d.style = 2;
    add(d);
    EXPECT_THAT(printed("arc"),
                ElementsAre(testing::MatchesRegex("arc 5360.0 79[12][0-9].. 1000.0 0.0 1.5")));
}

TEST_F(Page, NothingIsCutUpOrLeftOutWhereverItLies)
{
    add(lineOf({1e7F, 1e7F}, {1e7F + 115200, 1e7F}));
    EXPECT_THAT(printed("line"), ElementsAre("line 360.0 7920.0 11880.0 7920.0"));
}

TEST_F(Page, CoincidentPointsAndNumbersThatAreNoneDoNoHarm)
{
    addTenfold();
    add(ellipseOf({5, 0}, {5, 0}, 1));
    add(record(Kind::linearDimension));
    EntityRecord odd = lineOf({NAN, 0}, {INFINITY, 0});
    add(odd);
    EXPECT_THAT(printed("line"), Contains("line 360.0 7920.0 11880.0 7920.0"));
}

TEST(RecordedPage, IsTheSameWhenItIsPrintedOnceMore)
{
    RecordingPrinter first;
    first.beginPage({});
    first.font("Serif", 6);
    first.text(1, 2, "a");
    first.pen(3, 14);
    first.line(1, 2, 3, 4);
    first.circle(1, 2, 3);
    first.arc(1, 2, 3, 0.5, 1.5);
    first.point(1, 2);
    first.rotatedText(1, 2, 120, 30, true, "b");
    RecordingPrinter second;
    second.beginPage({});
    replay(first.printed(), second);
    EXPECT_EQ(second.printed().size(), 8U);
    EXPECT_EQ(second.printed(), first.printed());
    second.beginPage({});
    EXPECT_TRUE(second.printed().empty()); // a page knows nothing of the one before
}

} // namespace
} // namespace mirtane
