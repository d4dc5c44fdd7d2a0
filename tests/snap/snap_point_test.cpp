#include "click_desk.h"

namespace mirtane {
namespace {

using fake::ClickDesk;

TEST(SnapPoint, EachKindOffersItsPoints)
{
    struct Row {
        const char* what;
        EntityRecord object;
        Point mouse, snapped;
    };
    const EntityRecord line = fake::line({100, 100}, {200, 150});
    const EntityRecord circle = fake::circle({300, 300}, 50);
    const EntityRecord arc = fake::record(Kind::arc, {300, 300}, {350, 300}, {300, 250}, {335, 265});
    const EntityRecord ellipse = fake::ellipse({500, 300}, {400, 300}, 0.5f);
    const EntityRecord text = fake::record(Kind::text, {300, 300}, {48, 0}, {}, {320, 300});
    const EntityRecord leader =
        fake::record(Kind::leader, {100, 100}, {200, 200}, {250, 200}, {}, {260, 190});
    const Row rows[] = {
        {"start of a line", line, {101, 101}, {100, 100}},
        {"end of a line", line, {190, 150}, {200, 150}},
        {"centre of a circle", circle, {310, 310}, {300, 300}},
        {"no quadrant of a circle", circle, {350, 300}, {300, 300}},
        {"centre of an arc", arc, {301, 301}, {300, 300}},
        {"start of an arc", arc, {349, 299}, {350, 300}},
        {"end of an arc", arc, {301, 252}, {300, 250}},
        {"the middle of an arc is none of its points", arc, {336, 270}, {350, 300}},
        {"end of the first axis", ellipse, {490, 305}, {500, 300}},
        {"its mirror", ellipse, {310, 305}, {300, 300}},
        {"upper end of the second axis", ellipse, {400, 260}, {400, 250}},
        {"lower end of the second axis", ellipse, {400, 340}, {400, 350}},
        {"the centre of an ellipse is none of its points", ellipse, {403, 299}, {400, 250}},
        {"a point", fake::point({10, 20}), {15, 25}, {10, 20}},
        {"a text where it was entered", text, {310, 300}, {300, 300}},
        {"not where it is painted", text, {320, 300}, {300, 300}},
        {"its size and justification", text, {60, 10}, {48, 0}},
        {"text of a leader", leader, {262, 188}, {260, 190}},
        {"arrow of a leader", leader, {90, 90}, {100, 100}},
        {"shoulder of a leader", leader, {205, 205}, {200, 200}},
        {"not the end of the shoulder", leader, {241, 199}, {260, 190}},
    };
    for (const Row& row : rows) {
        ClickDesk desk;
        desk.add(row.object);
        EXPECT_EQ(desk.snapped("sp", row.mouse), row.snapped) << row.what;
    }
}

TEST(SnapPoint, ATurnedEllipseOffersTheEndsOfItsAxes)
{
    ClickDesk desk;
    desk.ellipse({430, 260}, {400, 300}, 2); // 30 to the right, 40 up; the second axis is twice as long
    EXPECT_EQ(desk.snapped("sp", {425, 255}), (Point{430, 260}));
    EXPECT_EQ(desk.snapped("sp", {375, 345}), (Point{370, 340}));
    EXPECT_EQ(desk.snapped("sp", {325, 245}), (Point{320, 240}));
    EXPECT_EQ(desk.snapped("sp", {475, 355}), (Point{480, 360}));
}

TEST(SnapPoint, OtherKindsOfferNothing)
{
    constexpr std::int16_t others[] = {7, 8, 10, 11, 15, 24, 25, 30, 35};
    for (const std::int16_t kind : others) {
        ClickDesk desk;
        desk.add(fake::record(Kind{kind}, {100, 100}, {100, 100}, {100, 100}, {100, 100}, {100, 100}));
        EXPECT_EQ(desk.snapped("sp", {101, 101}), (Point{0, 0})) << kind;
    }
}

TEST(SnapPoint, OnlyWhatIsShownOffersPoints)
{
    for (const Stat stat : {Stat::off, Stat::out, Stat::none}) {
        ClickDesk desk;
        desk.point({100, 100}, stat);
        desk.point({900, 100});
        EXPECT_EQ(desk.snapped("sp", {101, 101}), (Point{900, 100})) << nameOf(stat);
    }
    ClickDesk desk;
    desk.point({100, 100}, Stat::sel);
    EXPECT_EQ(desk.snapped("sp", {101, 101}), (Point{100, 100}));
}

TEST(SnapPoint, WithNothingToFindItGivesTheOrigin)
{
    ClickDesk desk;
    EXPECT_EQ(desk.snapped("sp", {100, 100}), (Point{0, 0}));
    EXPECT_TRUE(desk.s.pointWasSnapped);
}

TEST(SnapPoint, APointAsFarAsTheViewIsWideIsNotFound)
{
    ClickDesk desk;
    desk.point({1250, 50});
    EXPECT_EQ(desk.snapped("sp", {50, 50}), (Point{0, 0}));
    EXPECT_EQ(desk.snapped("sp", {50.5f, 50}), (Point{1250, 50}));
}

TEST(SnapPoint, OfPointsEquallyNearTheFirstIsTaken)
{
    ClickDesk desk;
    desk.point({100, 110});
    desk.point({110, 100});
    desk.line({90, 100}, {100, 90});
    EXPECT_EQ(desk.snapped("sp", {100, 100}), (Point{100, 110}));
}

TEST(SnapPoint, TheHeaderAndSlotsPastTheLastAreNotLookedAt)
{
    ClickDesk desk;
    desk.put(0, fake::point({100, 100}));
    desk.s.store.setStat(0, Stat::on);
    desk.point({100, 100});
    --desk.s.store.entCount;
    EXPECT_EQ(desk.snapped("sp", {101, 101}), (Point{0, 0}));
}

TEST(SnapPoint, AFullTableIsSearchedToItsLastSlot)
{
    ClickDesk desk;
    desk.s.store.entCount = EntityStore::slotCount - 1;
    desk.point({100, 100});
    desk.s.store.entCount += 10; // insertions past the end are lost
    EXPECT_EQ(desk.snapped("sp", {105, 100}), (Point{100, 100}));
}

TEST(SnapPoint, TheCornersOfABoundaryAreFound)
{
    struct Row {
        const char* function;
        int legs;
        Point snapped;
    };
    const Row rows[] = {
        {"Place Hatch", 2, {300, 300}},  {"Measure Area", 2, {300, 300}}, {"Line", 2, {0, 0}},
        {"Measure Area", 1, {200, 100}}, {"Measure Area", 0, {0, 0}},     {"Measure Area", -1, {0, 0}},
    };
    for (const Row& row : rows) {
        ClickDesk desk(row.function);
        desk.s.boundary[0] = {{100, 100}, {200, 100}};
        desk.s.boundary[1] = {{200, 100}, {300, 300}};
        desk.s.boundaryCount = row.legs;
        EXPECT_EQ(desk.snapped("sp", {290, 290}), row.snapped) << row.function << ' ' << row.legs;
    }
}

TEST(SnapPoint, TheFirstPointOfABoundaryClosesIt)
{
    ClickDesk desk("Measure Area");
    desk.s.boundary[0] = {{100, 100}, {200, 100}};
    desk.s.boundaryCount = 1;
    EXPECT_EQ(desk.snappedSecond("sp", {200, 100}, {103, 104}), (Point{100, 100}));
}

TEST(SnapPoint, LegsPastTheTableOfABoundaryAreNotLookedAt)
{
    ClickDesk desk("Place Hatch");
    for (BoundaryLeg& leg : desk.s.boundary) leg = {{500, 500}, {600, 600}};
    desk.s.boundaryCount = 130;
    EXPECT_EQ(desk.snapped("sp", {590, 590}), (Point{600, 600}));
}

TEST(SnapPoint, WithOrthoOnItGivesTheFootOnTheLeg)
{
    struct Row {
        const char* function;
        int step;
        bool ortho;
        Point snapped; // of (300, 220) on the leg from (100, 100) to the right
    };
    const Point foot{300, 100};
    const Point whole{300, 220};
    const Row rows[] = {
        {"Line", 2, true, foot},
        {"Line", 2, false, whole},
        {"Polygon", 2, true, foot},
        {"Ortho Dimension", 2, true, whole},
        {"Ortho Dimension", 3, true, whole},
        {"3pt. Circle", 2, true, whole},
        {"3pt. Arc", 3, true, whole},
        {"Curve", 2, true, whole},
        {"Radial Dimension", 2, true, whole},
        {"Angular Dimension", 2, true, whole},
        {"Place Associate", 2, true, whole},
        {"Break", 2, true, whole},
        {"Measure Area", 2, true, whole},
        {"Leader", 2, true, whole},
        {"Create Associate", 2, true, whole},
        {"Ortho Angle Match", 2, true, whole},
        {"Stretch", 2, true, whole},
        {"Stretch", 3, true, whole},
        {"Stretch", 4, true, foot},
        {"Stretch", 4, false, whole},
        {"Place Hatch", 2, true, foot},
        {"Create Hatch", 2, true, foot},
        {"Text Rotation Match", 2, true, foot},
        {"Rotate", 2, true, foot},
        {"Scale", 2, true, foot},
        {"Radial Copy", 2, true, foot},
        {"Point", 2, true, foot},
        {"Trim", 2, true, foot},
        {"Fillet", 2, true, foot},
        {"Place Text", 2, true, foot},
    };
    for (const Row& row : rows) {
        for (const char* code : {"sp", "sm"}) {
            ClickDesk desk(row.function);
            desk.point({300, 220});
            desk.line({290, 210}, {310, 230}); // its middle is the same point
            desk.ortho(row.ortho);
            desk.laterClick({100, 100}, {301, 220}, {301, 100},
                            static_cast<std::int16_t>(row.step)); // 2 to 4
            desk.shoot(code);
            EXPECT_EQ(desk.s.pickLast, row.snapped) << row.function << ' ' << row.step << ' ' << code;
            EXPECT_EQ(desk.s.pickFirst, (Point{100, 100})) << row.function;
            EXPECT_TRUE(desk.s.pointWasSnapped) << row.function;
        }
    }
}

TEST(SnapPoint, TheFootLiesOnATurnedLeg)
{
    ClickDesk desk;
    desk.ortho(true);
    desk.point({300, 100});
    desk.laterClick({100, 100}, {299, 101}, {150, 50}); // up to the right
    desk.shoot("sp");
    fake::expectPoint(desk.s.pickLast, {200, 0}, "half way up");
}

TEST(SnapPoint, ALegOfNoLengthGivesItsPoint)
{
    ClickDesk desk;
    desk.ortho(true);
    desk.point({300, 220});
    desk.laterClick({100, 100}, {300, 220}, {100, 100});
    desk.shoot("sp");
    EXPECT_EQ(desk.s.pickLast, (Point{100, 100}));
}

TEST(SnapPoint, AFirstClickTakesThePointWithOrthoOn)
{
    ClickDesk desk;
    desk.ortho(true);
    desk.point({300, 220});
    EXPECT_EQ(desk.snapped("sp", {310, 230}), (Point{300, 220}));
}

TEST(SnapPoint, BeforeTheFirstClickNothingIsWritten)
{
    ClickDesk desk;
    desk.ortho(true);
    desk.point({300, 220});
    desk.s.pickFirst = {1, 2};
    desk.s.pickLast = {3, 4};
    desk.s.mousePos = {300, 220};
    desk.shoot("sp");
    EXPECT_EQ(desk.s.pickFirst, (Point{1, 2}));
    EXPECT_EQ(desk.s.pickLast, (Point{3, 4}));
    EXPECT_FALSE(desk.s.pointWasSnapped);
    EXPECT_EQ(desk.armed(), "");
}

} // namespace
} // namespace mirtane
