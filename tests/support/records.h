#pragma once

// Objects by what makes them, their other fields 0. One of each kind that has all its fields is sample().

#include "geometry/angle.h"
#include "geometry/arc.h"
#include "kind_print.h"
#include "tables/entity_record.h"

#include <string>
#include <utility>

namespace mirtane::fake {

inline EntityRecord record(Kind kind, Point p1 = {}, Point p2 = {}, Point p3 = {}, Point p4 = {},
                           Point p5 = {})
{
    EntityRecord r;
    r.p1 = p1;
    r.p2 = p2;
    r.p3 = p3;
    r.p4 = p4;
    r.p5 = p5;
    r.kind = kind;
    return r;
}

inline EntityRecord line(Point from, Point to)
{
    return record(Kind::line, from, to);
}

inline EntityRecord circle(Point centre, float radius)
{
    EntityRecord r = record(Kind::circle, centre);
    r.rad = radius;
    return r;
}

// Radians, with the three points that an arc keeps beside its angles.
inline EntityRecord arc(Point centre, float radius, double a1, double a2)
{
    const ArcPoints on = arcPoints(centre, radius, a1, a2);
    EntityRecord r = record(Kind::arc, centre, on.start, on.end, on.middle);
    r.rad = radius;
    r.a1 = a1;
    r.a2 = a2;
    return r;
}

inline EntityRecord ellipse(Point axisEnd, Point centre, float ratio)
{
    return record(Kind::ellipse, axisEnd, centre, {ratio, 0});
}

inline EntityRecord point(Point at)
{
    return record(Kind::point, at);
}

// Justified left: painted where it was entered.
inline EntityRecord text(Point at, std::string words, float size = 48, std::string font = "Garamond")
{
    EntityRecord r = record(Kind::text, at, {size, 0}, {}, at);
    r.t1 = std::move(words);
    r.t2 = std::move(font);
    return r;
}

// Of any of the four kinds, with the points that it is made of.
inline EntityRecord dimension(EntityRecord points, std::string words, float arrow, float size,
                              std::string font = "Garamond")
{
    points.s1 = arrow;
    points.s2 = size;
    points.t1 = std::move(words);
    points.t2 = std::move(font);
    return points;
}

inline EntityRecord ofLooks(EntityRecord r, std::int32_t color, std::int16_t layer = 0,
                            std::int16_t style = 0)
{
    r.color = color;
    r.layer = layer;
    r.style = style;
    return r;
}

// Green and on layer 3; dashed, if the kind has a line style.
inline EntityRecord green(const EntityRecord& r)
{
    return ofLooks(r, 0x00FF00, 3, r.kind < Kind::text ? std::int16_t{1} : std::int16_t{0});
}

inline constexpr float halfRoot = 35.355339F; // of a radius of 50, along each axis at 45 degrees

inline EntityRecord sampleArc() // from the right to the top
{
    EntityRecord r = green(arc({200, 100}, 50, 0, quarterTurn));
    r.p2 = {250, 100};
    r.p3 = {200, 50};
    r.p4 = {200 + halfRoot, 100 - halfRoot};
    return r;
}

inline EntityRecord sampleText() // 30 wide
{
    EntityRecord r = green(text({50, 50}, "Hallo", 10));
    r.p3.x = 1;
    r.rad = 36;
    return r;
}

inline EntityRecord greenDimension(const EntityRecord& points, std::string words)
{
    EntityRecord r = dimension(green(points), std::move(words), 2, 10);
    r.a2 = 8;
    return r;
}

inline EntityRecord sampleAngle() // a quarter, from the right to the top; its text is 12 wide
{
    const EntityRecord points = record(Kind::angularDimension, {}, {60, 0}, {0, -60}, {50, 0}, {40, -40});
    EntityRecord r = greenDimension(points, "90");
    r.style = 2;
    r.s1 = 8;
    r.rad = 50;
    r.a1 = 0;
    r.a2 = quarterTurn;
    return r;
}

// A green object of the kind, with every field that the kind has and no other.
inline EntityRecord sample(Kind kind)
{
    switch (kind) { // no default: a new kind is a warning here
    case Kind::line:
        return green(line({10, 20}, {40, 60}));
    case Kind::circle:
        return green(circle({100, 100}, 30));
    case Kind::arc:
        return sampleArc();
    case Kind::ellipse:
        return green(ellipse({140, 100}, {100, 100}, 0.5F));
    case Kind::point:
        return green(point({7, 9}));
    case Kind::text:
        return sampleText();
    case Kind::linearDimension: // its text is 6 wide
        return greenDimension(record(kind, {}, {100, 0}, {100, 40}, {0, 40}, {30, 30}), "9");
    case Kind::radialDimension: // 12
        return greenDimension(record(kind, {}, {80, 0}, {90, 0}, {50, 0}, {95, 0}), "R5");
    case Kind::leader: // 24; it has no fourth pair, yet something stands there
        return greenDimension(record(kind, {}, {10, 10}, {20, 10}, {1, 2}, {25, 10}), "note");
    case Kind::angularDimension:
        return sampleAngle();
    }
    return green(record(kind));
}

// A kind's every pair, number and string with a value of its own, whether the kind has it or not.
inline EntityRecord filled(Kind kind)
{
    EntityRecord r = record(kind, {1, 2}, {3, 4}, {5, 6}, {7, 8}, {9, 10});
    r.s1 = 11;
    r.s2 = 12;
    r.rad = 13;
    r.a1 = 0.25;
    r.a2 = 0.5;
    r.a3 = 0.75;
    r.t1 = "words";
    r.t2 = "Garamond";
    return ofLooks(r, 0x00FF00, 7, 3);
}

} // namespace mirtane::fake
