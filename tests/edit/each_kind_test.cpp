// What each edit makes of each kind, all fields before and after.

#include "edit_desk.h"

#include "edit/change.h"
#include "edit/concentric.h"
#include "edit/mirror.h"
#include "edit/move_copy.h"
#include "edit/rotate.h"
#include "edit/scale.h"

namespace mirtane {
namespace {

using fake::EditDesk;
using fake::expectRecord;
using fake::halfRoot;
using fake::sample;

struct Row {
    Kind kind;
    void (*change)(EntityRecord&);
};

// The new object is sample with change done to it, in a slot of its own.
template <std::size_t count>
void expectEach(const char* who, const Row (&rows)[count], void (*edit)(EditDesk&))
{
    for (const Row& row : rows) {
        EditDesk desk;
        desk.add(sample(row.kind));
        edit(desk);
        EntityRecord expected = sample(row.kind);
        row.change(expected);
        ASSERT_EQ(desk.s.store.entCount, 3) << who << numberOf(row.kind);
        expectRecord(desk.slot(2), expected, 2e-3, who);
        EXPECT_EQ(desk.stat(2), Stat::on);
        EXPECT_EQ(desk.slot(1), sample(row.kind)) << who << ": the old object changed";
    }
}

void shiftFive(EntityRecord& r)
{
    for (Point* p : {&r.p1, &r.p2, &r.p3, &r.p4, &r.p5}) *p = {p->x + 5, p->y - 3};
}

constexpr Row moved[] = {
    {Kind::line,
     [](EntityRecord& r) {
         r.p1 = {15, 17};
         r.p2 = {45, 57};
     }},
    {Kind::circle,
     [](EntityRecord& r) {
         r.p1 = {105, 97};
     }},
    {Kind::arc,
     [](EntityRecord& r) {
         r.p1 = {205, 97};
         r.p2 = {255, 97};
         r.p3 = {205, 47};
         r.p4 = {205 + halfRoot, 97 - halfRoot};
     }},
    {Kind::ellipse,
     [](EntityRecord& r) {
         r.p1 = {145, 97};
         r.p2 = {105, 97};
     }},
    {Kind::point,
     [](EntityRecord& r) {
         r.p1 = {12, 6};
     }},
    {Kind::text,
     [](EntityRecord& r) {
         r.p1 = {55, 47};
         r.p4 = {55, 47};
     }},
    {Kind::linearDimension, shiftFive},
    {Kind::radialDimension, shiftFive},
    {Kind::leader, shiftFive},
    {Kind::angularDimension, shiftFive},
};

TEST(EditOfEachKind, Move)
{
    expectEach("Move", moved, [](EditDesk& desk) {
        desk.begin("Move");
        desk.click(100, 100);
        desk.click(105, 97);
        EXPECT_EQ(desk.stat(1), Stat::out);
    });
}

TEST(EditOfEachKind, Copy)
{
    expectEach("Copy", moved, [](EditDesk& desk) {
        desk.begin("Copy");
        desk.click(100, 100);
        desk.click(105, 97);
        EXPECT_EQ(desk.stat(1), Stat::sel);
    });
}

// A quarter turn about the origin brings (x, y) to (y, -x).
constexpr Row turned[] = {
    {Kind::line,
     [](EntityRecord& r) {
         r.p1 = {20, -10};
         r.p2 = {60, -40};
     }},
    {Kind::circle,
     [](EntityRecord& r) {
         r.p1 = {100, -100};
     }},
    {Kind::arc,
     [](EntityRecord& r) {
         r.p1 = {100, -200};
         r.p2 = {100, -250};
         r.p3 = {50, -200};
         r.p4 = {100 - halfRoot, -200 - halfRoot};
         r.a1 = quarterTurn;
         r.a2 = halfTurn;
     }},
    {Kind::ellipse,
     [](EntityRecord& r) {
         r.p1 = {100, -140};
         r.p2 = {100, -100};
     }},
    {Kind::point,
     [](EntityRecord& r) {
         r.p1 = {9, -7};
     }},
    {Kind::text,
     [](EntityRecord& r) {
         r.p1 = {50, -50};
         r.p4 = {50, -50};
         r.a1 = 90;
     }},
    {Kind::linearDimension,
     [](EntityRecord& r) {
         r.p2 = {0, -100};
         r.p3 = {40, -100};
         r.p4 = {40, 0};
         r.p5 = {30, -30};
         r.a1 = 90;
     }},
    {Kind::radialDimension,
     [](EntityRecord& r) {
         r.p2 = {0, -80};
         r.p3 = {0, -90};
         r.p4 = {0, -50};
         r.p5 = {0, -95};
         r.a1 = 90;
     }},
    {Kind::leader,
     [](EntityRecord& r) { // what stands in the fourth pair is copied
         r.p2 = {10, -10};
         r.p3 = {10, -20};
         r.p5 = {10, -25};
         r.a1 = 90;
     }},
    {Kind::angularDimension,
     [](EntityRecord& r) {
         r.p2 = {0, -60};
         r.p3 = {-60, 0};
         r.p4 = {0, -50};
         r.p5 = {-40, -40};
         r.a1 = quarterTurn;
         r.a2 = halfTurn;
         r.a3 = 90;
     }},
};

TEST(EditOfEachKind, Rotate)
{
    expectEach("Rotate", turned, [](EditDesk& desk) {
        desk.begin("Rotate");
        desk.click(0, 0);
        desk.s.editDegrees = 90;
        desk.run(3);
        EXPECT_EQ(desk.stat(1), Stat::out);
    });
}

TEST(EditOfEachKind, RadialCopyOfTwoOverARightAngle)
{
    expectEach("Radial Copy", turned, [](EditDesk& desk) {
        desk.begin("Radial Copy");
        desk.click(0, 0);
        desk.s.editDegrees = 90;
        desk.s.radialCount = 2;
        desk.run(3);
        EXPECT_EQ(desk.stat(1), Stat::on);
    });
}

// The mirror line is x = 100: (x, y) goes to (200 - x, y).
constexpr Row mirroredAcross[] = {
    {Kind::line,
     [](EntityRecord& r) {
         r.p1 = {190, 20};
         r.p2 = {160, 60};
     }},
    {Kind::circle, [](EntityRecord&) {}}, // its centre stands on the line
    {Kind::arc,
     [](EntityRecord& r) {
         r.p1 = {0, 100};
         r.p2 = {0, 50};
         r.p3 = {-50, 100};
         r.p4 = {-halfRoot, 100 - halfRoot};
         r.a1 = quarterTurn;
         r.a2 = halfTurn;
     }},
    {Kind::ellipse,
     [](EntityRecord& r) {
         r.p1 = {60, 100};
     }},
    {Kind::point,
     [](EntityRecord& r) {
         r.p1 = {193, 9};
     }},
    {Kind::text,
     [](EntityRecord& r) {
         r.p1 = {120, 50};
         r.p4 = {120, 50};
     }},
    {Kind::linearDimension,
     [](EntityRecord& r) {
         r.p1 = {200, 0};
         r.p2 = {100, 0};
         r.p3 = {100, 40};
         r.p4 = {200, 40};
         r.p5 = {164, 30};
     }},
    {Kind::radialDimension,
     [](EntityRecord& r) {
         r.p1 = {200, 0};
         r.p2 = {120, 0};
         r.p3 = {110, 0};
         r.p4 = {150, 0};
         r.p5 = {93, 0};
     }},
    {Kind::leader,
     [](EntityRecord& r) {
         r.p1 = {200, 0};
         r.p2 = {190, 10};
         r.p3 = {180, 10};
         r.p5 = {151, 10};
     }},
    {Kind::angularDimension,
     [](EntityRecord& r) {
         r.p1 = {200, 0};
         r.p2 = {200, -60};
         r.p3 = {140, 0};
         r.p4 = {200, -50};
         r.p5 = {148, -40};
         r.a1 = quarterTurn;
         r.a2 = halfTurn;
     }},
};

TEST(EditOfEachKind, MirrorCopy)
{
    expectEach("Mirror Copy", mirroredAcross, [](EditDesk& desk) {
        desk.begin("Mirror Copy");
        desk.click(100, 0);
        desk.click(100, 500);
        EXPECT_EQ(desk.stat(1), Stat::on);
    });
}

void doublePairs(EntityRecord& r)
{
    for (Point* p : {&r.p1, &r.p2, &r.p3, &r.p4, &r.p5}) *p = {p->x * 2, p->y * 2};
}

void doubleDimension(EntityRecord& r)
{
    doublePairs(r);
    r.s2 = 20; // the arrow's size in a2 stays
}

void scale(EditDesk& desk, float x, float y)
{
    desk.begin("Scale");
    desk.click(0, 0);
    desk.s.editDX = x;
    desk.s.editDY = y;
    desk.run(3);
    EXPECT_EQ(desk.stat(1), Stat::out);
}

constexpr Row doubled[] = {
    {Kind::line, doublePairs},
    {Kind::circle,
     [](EntityRecord& r) {
         r.p1 = {200, 200};
         r.rad = 60;
     }},
    {Kind::arc,
     [](EntityRecord& r) {
         doublePairs(r);
         r.rad = 100;
     }},
    {Kind::ellipse,
     [](EntityRecord& r) {
         r.p1 = {280, 200};
         r.p2 = {200, 200};
     }},
    {Kind::point, doublePairs},
    {Kind::text,
     [](EntityRecord& r) {
         r.p1 = r.p4 = {100, 100};
         r.p2.x = 20;
         r.rad = 72;
     }},
    {Kind::linearDimension, doubleDimension},
    {Kind::radialDimension, doubleDimension},
    {Kind::leader,
     [](EntityRecord& r) {
         doubleDimension(r);
         r.p4 = {1, 2};
     }},
    {Kind::angularDimension,
     [](EntityRecord& r) {
         doublePairs(r);
         r.rad = 100;
     }}, // both its sizes stay
};

TEST(EditOfEachKind, ScaleByTwo)
{
    expectEach("Scale", doubled, [](EditDesk& desk) { scale(desk, 2, 2); });
}

// X by -2: (x, y) goes to (-2x, y), start and end change places, texts read on from the image of their end.
constexpr Row stretchedAndMirrored[] = {
    {Kind::line,
     [](EntityRecord& r) {
         r.p1 = {-20, 20};
         r.p2 = {-80, 60};
     }},
    {Kind::circle,
     [](EntityRecord& r) {
         r.p1 = {-200, 100};
         r.rad = 60;
     }},
    {Kind::ellipse,
     [](EntityRecord& r) {
         r.p1 = {-280, 100};
         r.p2 = {-200, 100};
         r.p3.x = 0.25F;
     }},
    {Kind::point,
     [](EntityRecord& r) {
         r.p1 = {-14, 9};
     }},
    {Kind::text,
     [](EntityRecord& r) {
         r.p1 = r.p4 = {-160, 50};
         r.p2.x = 20;
         r.rad = 72;
     }},
    {Kind::linearDimension,
     [](EntityRecord& r) {
         r.p2 = {-200, 0};
         r.p3 = {-200, 40};
         r.p4 = {0, 40};
         r.p5 = {-72, 30};
         r.s2 = 20;
     }},
    {Kind::radialDimension,
     [](EntityRecord& r) {
         r.p2 = {-160, 0};
         r.p3 = {-180, 0};
         r.p4 = {-100, 0};
         r.p5 = {-214, 0};
         r.s2 = 20;
     }},
    {Kind::leader,
     [](EntityRecord& r) {
         r.p2 = {-20, 10};
         r.p3 = {-40, 10};
         r.p5 = {-98, 10};
         r.s2 = 20;
     }},
    {Kind::angularDimension,
     [](EntityRecord& r) {
         r.p2 = {0, -60};
         r.p3 = {-120, 0};
         r.rad = 100;
         r.p4 = {0, -100};
         r.p5 = {-80, -40};
         r.a1 = quarterTurn;
         r.a2 = halfTurn;
     }},
};

TEST(EditOfEachKind, ScaleByMinusTwoAlongX)
{
    expectEach("Scale", stretchedAndMirrored, [](EditDesk& desk) { scale(desk, -2, 1); });
}

TEST(EditOfEachKind, ScaleByMinusOneAlongXTurnsAnArcRound)
{
    constexpr Row rows[] = {{Kind::arc, [](EntityRecord& r) {
                                 r.p1 = {-200, 100};
                                 r.p2 = {-200, 50};
                                 r.p3 = {-250, 100};
                                 r.p4 = {-200 - halfRoot, 100 - halfRoot};
                                 r.a1 = quarterTurn;
                                 r.a2 = halfTurn;
                             }}};
    expectEach("Scale", rows, [](EditDesk& desk) { scale(desk, -1, 1); });
}

constexpr Row offsetByTen[] = {
    {Kind::circle, [](EntityRecord& r) { r.rad = 40; }},
    {Kind::arc,
     [](EntityRecord& r) {
         r.rad = 60;
         r.p2 = {260, 100};
         r.p3 = {200, 40};
         r.p4 = {200 + 42.426407F, 100 - 42.426407F};
     }},
};

TEST(EditOfEachKind, ConcentricCopy)
{
    expectEach("Concentric Copy", offsetByTen, [](EditDesk& desk) {
        desk.begin("Concentric Copy");
        desk.s.offsetDistance = 10;
        editConcentric(desk.s, desk.pic1);
        EXPECT_EQ(desk.stat(1), Stat::on);
    });
    for (const Kind other : everyKind) {
        if (other == Kind::circle || other == Kind::arc) continue;
        EditDesk desk;
        desk.add(sample(other));
        desk.s.offsetDistance = 10;
        editConcentric(desk.s, desk.pic1);
        EXPECT_EQ(desk.s.store.entCount, 2) << numberOf(other);
        EXPECT_EQ(desk.stat(1), Stat::on) << numberOf(other);
    }
}

void recolour(EntityRecord& r)
{
    r.layer = 9;
    r.color = 0x0080FF;
}

void recolourAndRestyle(EntityRecord& r)
{
    recolour(r);
    r.style = 4;
}

// A point keeps its style, and an angular dimension the arrow that stands there.
constexpr Row changed[] = {{Kind::line, recolourAndRestyle},  {Kind::circle, recolourAndRestyle},
                           {Kind::arc, recolourAndRestyle},   {Kind::ellipse, recolourAndRestyle},
                           {Kind::point, recolour},           {Kind::text, recolour},
                           {Kind::linearDimension, recolour}, {Kind::radialDimension, recolour},
                           {Kind::leader, recolour},          {Kind::angularDimension, recolour}};

TEST(EditOfEachKind, Change)
{
    expectEach("Change", changed, [](EditDesk& desk) {
        changeSelection(desk.s, desk.pic1, {std::int16_t{9}, 0x0080FF, std::int16_t{4}});
        EXPECT_EQ(desk.stat(1), Stat::out);
        EXPECT_EQ(desk.s.layerTable.layers[9].layerUsed, "Yes:");
    });
}

TEST(EditOfEachKind, ChangeOfNothingMakesCopies)
{
    constexpr auto same = [](EntityRecord&) {};
    constexpr Row rows[] = {{Kind::line, same},
                            {Kind::circle, same},
                            {Kind::arc, same},
                            {Kind::ellipse, same},
                            {Kind::point, same},
                            {Kind::text, same},
                            {Kind::linearDimension, same},
                            {Kind::radialDimension, same},
                            {Kind::leader, same},
                            {Kind::angularDimension, same}};
    expectEach("Change", rows, [](EditDesk& desk) { changeSelection(desk.s, desk.pic1, {}); });
}

} // namespace
} // namespace mirtane
