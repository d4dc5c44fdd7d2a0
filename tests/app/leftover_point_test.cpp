// The first point of the function before stands in the session until the next one takes its own. Where a
// name, a text or a number comes before the points, it stands there still, and a click on it is one like any
// other.

#include "desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

// What is drawn before, each of which leaves its point.
void centreOfACircle(Desk& desk, Point p)
{
    desk.press("Command2"_c);
    desk.click(p.x, p.y);
    desk.click(p.x + 50, p.y);
    desk.cancel();
}

void endOfAChain(Desk& desk, Point p)
{
    desk.press("Command1"_c);
    desk.click(p.x - 300, p.y + 200);
    desk.click(p.x, p.y);
    desk.cancel();
}

// How the click on it is made.
void plainly(Desk& desk, Point p)
{
    desk.click(p.x, p.y);
}

void snapped(Desk& desk, Point p)
{
    desk.press("Command35"_c);
    desk.click(p.x + 1, p.y - 1);
}

void snappedByTheKey(Desk& desk, Point p)
{
    desk.shell.keyDown(17);
    desk.click(p.x - 1, p.y + 1);
    desk.shell.keyUp(17);
}

using Draw = void (*)(Desk&, Point);

void create(Desk& desk, ControlId menu)
{
    desk.s.store.setStat(1, Stat::sel);
    desk.press(menu);
    desk.type("door");
    desk.enter();
    ASSERT_EQ(desk.s.stepNo, 1);
}

struct Case {
    const char* what;
    void (*begin)(Desk&);
    void (*go)(Desk&, Point, Draw); // the clicks of the function, that at the point among them
    bool (*isDone)(const Desk&);
};

const Case cases[] = {
    {"the reference point of an associate", [](Desk& d) { create(d, "ass7"_c); },
     [](Desk& d, Point p, Draw click) { click(d, p); },
     [](const Desk& d) { return d.rows("List1"_c) == std::vector<std::string>{"door"}; }},
    {"the reference point of multiple lines", [](Desk& d) { create(d, "ml3"_c); },
     [](Desk& d, Point p, Draw click) { click(d, p); },
     [](const Desk& d) { return d.s.multipleLinesLibrary.count == 1; }},
    {"the first corner of a hatch", [](Desk& d) { create(d, "ht5"_c); },
     [](Desk& d, Point p, Draw click) {
         click(d, p);
         d.click(p.x + 77, p.y + 55);
     },
     [](const Desk& d) { return d.rows("List1"_c) == std::vector<std::string>{"door"}; }},
    {"the second corner of a hatch", [](Desk& d) { create(d, "ht5"_c); },
     [](Desk& d, Point p, Draw click) {
         d.click(p.x - 77, p.y - 55);
         click(d, p);
     },
     [](const Desk& d) { return d.rows("List1"_c) == std::vector<std::string>{"door"}; }},
    {"the tip of a leader",
     [](Desk& d) {
         d.press("Command14"_c);
         d.type("oak");
         d.enter();
     },
     [](Desk& d, Point p, Draw click) {
         click(d, p);
         d.click(p.x + 300, p.y - 200);
     },
     [](const Desk& d) { return d.slot(d.s.store.entCount - 1).kind == Kind::leader; }},
    {"the elbow of a leader",
     [](Desk& d) {
         d.press("Command14"_c);
         d.type("oak");
         d.enter();
     },
     [](Desk& d, Point p, Draw click) {
         d.click(p.x + 300, p.y - 200);
         click(d, p);
     },
     [](const Desk& d) { return d.slot(d.s.store.entCount - 1).kind == Kind::leader; }},
};

TEST(LeftoverPoint, OfTheFunctionBeforeEndsNoNewOne)
{
    for (const Case& row : cases) {
        for (const Draw before : {centreOfACircle, endOfAChain}) {
            for (const Draw click : {plainly, snapped, snappedByTheKey}) {
                for (const Point p :
                     {Point{1000, 700}, Point{-733.25F, 51234.5F}, Point{90000.5F, -72111.25F}}) {
                    Desk desk;
                    desk.press("freecurs"_c);
                    desk.drawLine(p.x - 40, p.y - 900, p.x + 60, p.y - 940);
                    before(desk, p);
                    ASSERT_EQ(desk.s.pickFirst, p);
                    row.begin(desk);
                    row.go(desk, p, click);
                    EXPECT_TRUE(row.isDone(desk)) << row.what << " at " << p.x;
                }
            }
        }
    }
}

TEST(LeftoverPoint, IsTheReferencePointWhereItIsClicked)
{
    Desk desk;
    desk.press("freecurs"_c);
    desk.drawLine(812, 640, 1130, 905);
    centreOfACircle(desk, {950, 777});
    create(desk, "ass7"_c);
    snapped(desk, {950, 777});
    EXPECT_EQ(desk.slot(3).p1, (Point{812 - 950, 640 - 777}));
    EXPECT_EQ(desk.slot(3).p2, (Point{1130 - 950, 905 - 777}));
}

TEST(LeftoverPoint, IsAClickInsideAFilletLikeAnyOther)
{
    for (const Point p : {Point{1000, 900}, Point{-3000.5F, 7000.25F}}) {
        Desk desk;
        desk.press("freecurs"_c);
        desk.drawLine(p.x - 500, p.y + 120, p.x + 100, p.y + 100);
        desk.drawLine(p.x + 80, p.y - 500, p.x + 100, p.y + 100);
        centreOfACircle(desk, p);
        desk.press("Command20"_c);
        desk.s.store.setStat(1, Stat::sel);
        desk.s.store.setStat(2, Stat::sel);
        desk.shell.clickRow("List1"_c, 11);
        ASSERT_EQ(desk.s.curFunc, "Fillet");
        desk.click(p.x, p.y);
        EXPECT_EQ(desk.s.store.entCount, 7) << p.x;
        EXPECT_EQ(desk.slot(4).kind, Kind::arc) << p.x;
    }
}

} // namespace
} // namespace mirtane
