#include "dxf/dimensions_out.h"

#include "dxf/file_units.h"
#include "geometry/angle.h"
#include "geometry/fault.h"

namespace mirtane {
namespace {

constexpr float closedArrow = 1;
constexpr float openArrow = 2;
constexpr float slash = 3;
constexpr float extensionGap = 0.666F;  // of the arrow size, before and behind an extension line
constexpr float halfArrowWidth = 0.25F; // of the arrow size

Point along(Point p, float d, Point u)
{
    return {p.x + d * u.x, p.y + d * u.y};
}

Point leftNormal(Point w)
{
    return {-w.y, w.x};
}

Point reversed(Point w)
{
    return {-w.x, -w.y};
}

bool isArrowStyle(float style)
{
    return style == closedArrow || style == openArrow || style == slash;
}

} // namespace

Point DxfDimensions::unit(Point from, Point to)
{
    return directionBetween(scratch_, from, to);
}

float DxfDimensions::takeArrowSize(const EntityRecord& r)
{
    keep(scratch_.arrowSize, r.s2 / worldPerFile);
    return scratch_.arrowSize;
}

void DxfDimensions::text(const EntityRecord& r, double degrees)
{
    out_.text({r.p5, r.s2, degrees, r.t1, r.p2.y});
}

bool DxfDimensions::write(const EntityRecord& r)
{
    switch (r.kind) {
    case Kind::radialDimension:
        return radial(r);
    case Kind::angularDimension:
        return angular(r);
    case Kind::leader:
        leader(r);
        return true;
    case Kind::line:
    case Kind::circle:
    case Kind::arc:
    case Kind::ellipse:
    case Kind::point:
    case Kind::text:
    case Kind::linearDimension:
        linear(r);
        return true;
    }
    return true;
}

void DxfDimensions::extension(Point from, Point to, float h)
{
    const Point e = unit(from, to);
    out_.line(along(from, extensionGap * h, e), along(to, extensionGap * h, e));
}

void DxfDimensions::barbs(Point first, Point second, Point tip, bool closed)
{
    out_.line(first, tip);
    out_.line(second, tip);
    if (closed) out_.line(first, second);
}

void DxfDimensions::arrow(Point tip, Point axis, float h, bool closed)
{
    const Point base = along(tip, h, axis);
    const Point n = leftNormal(axis);
    barbs(along(base, -halfArrowWidth * h, n), along(base, halfArrowWidth * h, n), tip, closed);
}

void DxfDimensions::tick(Point tip, Point u, Point n, float h)
{
    const float q = halfArrowWidth * h;
    out_.line(along(along(tip, q, u), -q, n), along(along(tip, -q, u), q, n));
}

void DxfDimensions::linear(const EntityRecord& r)
{
    const float h = takeArrowSize(r);
    const Point p3 = toFile(r.p3);
    const Point p4 = toFile(r.p4);
    const Point w = unit(p4, p3);
    extension(toFile(r.p2), p3, h);
    extension(toFile(r.p1), p4, h);
    if (r.s1 == slash || !(3 * h > lengthBetween(p3, p4))) {
        linearInside(r.s1, p3, p4, w, h);
    } else {
        linearOutside(r.s1, p3, p4, w, h);
    }
    scratch_.textSecond = toFile(r.p2);
    text(r, r.a1);
}

void DxfDimensions::linearInside(float style, Point p3, Point p4, Point w, float h)
{
    if (!isArrowStyle(style)) return;
    if (style == closedArrow) {
        out_.line(along(p3, -h, w), along(p4, h, w));
    } else {
        out_.line(p3, p4);
    }
    if (style == slash) {
        tick(p3, w, leftNormal(w), h);
        tick(p4, w, leftNormal(w), h);
        return;
    }
    arrow(p3, reversed(w), h, style == closedArrow);
    arrow(p4, w, h, style == closedArrow);
}

void DxfDimensions::linearOutside(float style, Point p3, Point p4, Point w, float h)
{
    if (style != closedArrow && style != openArrow) return;
    const bool closed = style == closedArrow;
    const float start = closed ? h : 0;
    out_.line(along(p3, start, w), along(p3, 2 * h, w));
    arrow(p3, w, h, closed);
    out_.line(along(p4, -start, w), along(p4, -2 * h, w));
    arrow(p4, reversed(w), h, closed);
}

bool DxfDimensions::radial(const EntityRecord& r)
{
    const float h = takeArrowSize(r);
    const Point centre = toFile(r.p1);
    const Point elbow = toFile(r.p2);
    const float radius = lengthBetween(centre, toFile(r.p4));
    const Point u = unit(centre, elbow);
    if (!isArrowStyle(r.s1)) return false;
    if (r.s1 == closedArrow) {
        out_.line(along(centre, h, u), along(centre, radius, u));
        out_.line(along(centre, radius + h, u), elbow);
    } else {
        out_.line(along(centre, h, u), elbow);
    }
    radialArrow(r.s1, centre, radius, u, h);
    out_.line(elbow, toFile(r.p3));
    centreCross(centre, h);
    text(r, r.a1);
    return true;
}

// Its slash leans the other way than that of the other dimensions, and its barbs come in the other order.
void DxfDimensions::radialArrow(float style, Point centre, float radius, Point u, float h)
{
    const float q = halfArrowWidth * h;
    const Point n = leftNormal(u);
    if (style == slash) {
        out_.line(along(along(centre, radius - q, u), q, n), along(along(centre, radius + q, u), -q, n));
        return;
    }
    const Point tip = along(centre, radius, u);
    const Point base = along(tip, h, u);
    const Point minus = along(base, -q, n);
    const Point plus = along(base, q, n);
    barbs(plus, minus, tip, false);
    if (style == closedArrow) out_.line(minus, plus);
}

void DxfDimensions::centreCross(Point centre, float h)
{
    for (const Point arm : {Point{1, 0}, Point{-1, 0}, Point{0, 1}, Point{0, -1}})
        out_.line(centre, along(centre, h, arm));
}

void DxfDimensions::leader(const EntityRecord& r)
{
    text(r, r.a1);
    const float h = takeArrowSize(r);
    const Point tip = toFile(r.p1);
    const Point shoulder = toFile(r.p2);
    const Point u = unit(tip, shoulder);
    if (!isArrowStyle(r.s1)) return;
    const bool closed = r.s1 == closedArrow;
    const Point base = along(tip, h, u);
    const Point minus = along(base, -halfArrowWidth * h, leftNormal(u));
    const Point plus = along(base, halfArrowWidth * h, leftNormal(u));
    out_.line(closed ? base : tip, shoulder);
    out_.line(shoulder, toFile(r.p3));
    out_.line(tip, minus);
    out_.line(tip, plus);
    if (closed) out_.line(plus, minus);
}

bool DxfDimensions::angular(const EntityRecord& r)
{
    const float h = takeArrowSize(r);
    const float q = halfArrowWidth * h;
    const float radius = r.rad / worldPerFile;
    const Point centre = toFile(r.p1);
    const Point ends[] = {toFile(r.p2), toFile(r.p3)};
    const Point us[] = {unit(centre, ends[0]), unit(centre, ends[1])};
    const float arrowAlong[] = {h, -h}; // the arrows stand against each other on the arc
    for (int side = 0; side < 2; ++side) {
        const Point u = us[side];
        const Point n = leftNormal(u);
        const Point tip = along(centre, radius, u);
        out_.line(along(ends[side], extensionGap * h, u), along(centre, radius + h, u));
        if (!isArrowStyle(r.style)) return false;
        if (r.style == slash) {
            tick(tip, u, n, h);
        } else {
            const Point base = along(tip, arrowAlong[side], n);
            barbs(along(base, q, u), along(base, -q, u), tip, r.style == closedArrow);
        }
    }
    out_.arc(centre, radius, r.a1, r.a2);
    text(r, r.a3);
    return true;
}

} // namespace mirtane
