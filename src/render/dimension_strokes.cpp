// render/dimension_strokes.cpp: an axis is a unit vector with y upward, as angles are; a point moved along it
// goes up the screen where its y is positive. A piece without a direction has an axis of NaN, and all that is
// worked out with it is NaN and left out.

#include "render/dimension_strokes.h"

#include "geometry/angle.h"
#include "geometry/fault.h"

#include <limits>

namespace mirtane {
namespace {

constexpr double extensionGap =
    0.666; // of the arrow size: where extension lines start and how far they overshoot
constexpr double halfArrowWidth = 0.25; // of the arrow size

struct Axis {
    double x = 0, y = 0;

    Axis operator-() const { return {-x, -y}; }
};

Axis axisBetween(Point from, Point to)
{
    const double length = distance(from, to);
    return {quotient(double{to.x} - from.x, length), quotient(double{from.y} - to.y, length)};
}

// A quarter turn counter-clockwise.
Axis across(Axis u)
{
    return {-u.y, u.x};
}

Axis radialAxis(double angle)
{
    return {std::cos(angle), std::sin(angle)};
}

// What can't be had is NaN in both.
Point moved(Point p, double d, Axis u)
{
    constexpr float missing = std::numeric_limits<float>::quiet_NaN();
    Point to{missing, missing};
    if (!keep(to.x, p.x + d * u.x) || !keep(to.y, p.y - d * u.y)) return {missing, missing};
    return to;
}

bool isFinite(Point p)
{
    return std::isfinite(p.x) && std::isfinite(p.y);
}

class Strokes {
  public:
    explicit Strokes(StrokeSink& out) : out_(out) {}

    void line(Point a, Point b)
    {
        if (isFinite(a) && isFinite(b)) out_.line(a, b);
    }

    // A line that starts and ends a little behind its two points.
    void extension(Point from, Point to, double size)
    {
        const Axis u = axisBetween(from, to);
        line(moved(from, extensionGap * size, u), moved(to, extensionGap * size, u));
    }

    // An arrow head, its base size along the axis behind its tip.
    void head(Point tip, Axis toBase, double size, bool closed)
    {
        const Point base = moved(tip, size, toBase);
        const Point left = moved(base, halfArrowWidth * size, across(toBase));
        const Point right = moved(base, -halfArrowWidth * size, across(toBase));
        line(tip, left);
        line(tip, right);
        if (closed) line(left, right);
    }

    // A stroke through a point at 45 degrees to the axis.
    void slash(Point at, Axis u, double size)
    {
        const double d = halfArrowWidth * size;
        line(moved(moved(at, d, u), -d, across(u)), moved(moved(at, -d, u), d, across(u)));
    }

    void cross(Point centre, double size)
    {
        for (const Axis arm : {Axis{-1, 0}, Axis{1, 0}, Axis{0, 1}, Axis{0, -1}})
            line(centre, moved(centre, size, arm));
    }

    void arc(const DimensionShape& d)
    {
        const bool known = isFinite(d.p1) && isFinite(d.p4) && std::isfinite(d.rad);
        if (known && std::isfinite(d.a1) && std::isfinite(d.a2)) out_.arc(d.p1, d.p4, d.rad, d.a1, d.a2);
    }

  private:
    StrokeSink& out_;
};

bool isArrowStyle(float style)
{
    return style == arrow::closed || style == arrow::open || style == arrow::slash;
}

// The ends of a dimension line, and the axes from each into the line.
struct Shaft {
    Point ends[2];
    Axis in[2];
};

void slashedShaft(Strokes& strokes, const Shaft& shaft, float size)
{
    strokes.line(shaft.ends[0], shaft.ends[1]);
    for (const Point end : shaft.ends) strokes.slash(end, shaft.in[0], size);
}

// The arrows' tips touch the extension lines from within.
void shaftWithHeadsInside(Strokes& strokes, const Shaft& shaft, float size, bool closed)
{
    const double cut = closed ? size : 0;
    strokes.line(moved(shaft.ends[0], cut, shaft.in[0]), moved(shaft.ends[1], cut, shaft.in[1]));
    for (int i = 0; i < 2; ++i) strokes.head(shaft.ends[i], shaft.in[i], size, closed);
}

// Too short for two arrows: they point inwards from outside, each on a stub.
void shaftWithHeadsOutside(Strokes& strokes, const Shaft& shaft, float size, bool closed)
{
    strokes.line(shaft.ends[0], shaft.ends[1]);
    for (int i = 0; i < 2; ++i) {
        const Axis out = -shaft.in[i];
        strokes.line(shaft.ends[i], moved(shaft.ends[i], 2.0 * size, out));
        strokes.head(shaft.ends[i], out, size, closed);
    }
}

} // namespace

DimensionShape shapeOf(const EntityRecord& r)
{
    return {r.kind, r.p1, r.p2, r.p3, r.p4, r.s1, r.s2, r.rad, r.a1, r.a2, r.style};
}

DimensionShape shapeAt(const EntityStore& store, std::size_t at)
{
    return {store.kind[at], store.p1[at],  store.p2[at], store.p3[at], store.p4[at],   store.s1[at],
            store.s2[at],   store.rad[at], store.a1[at], store.a2[at], store.style[at]};
}

void linearDimStrokes(const DimensionShape& d, StrokeSink& out)
{
    Strokes strokes(out);
    strokes.extension(d.p2, d.p3, d.s2);
    strokes.extension(d.p1, d.p4, d.s2);
    const Axis u = axisBetween(d.p4, d.p3);
    if (!isArrowStyle(d.s1) || !std::isfinite(u.x + u.y)) return;
    const Shaft shaft{{d.p4, d.p3}, {u, -u}};
    float length = 0;
    keep(length, distance(d.p3, d.p4));
    if (d.s1 == arrow::slash) {
        slashedShaft(strokes, shaft, d.s2);
    } else if (3 * d.s2 <= length) {
        shaftWithHeadsInside(strokes, shaft, d.s2, d.s1 == arrow::closed);
    } else {
        shaftWithHeadsOutside(strokes, shaft, d.s2, d.s1 == arrow::closed);
    }
}

void radialDimStrokes(const DimensionShape& d, StrokeSink& out)
{
    Strokes strokes(out);
    if (isArrowStyle(d.s1)) {
        const Axis u = axisBetween(d.p1, d.p2);
        const double radius = distance(d.p1, d.p4);
        const Point onCircle = moved(d.p1, radius, u);
        strokes.line(moved(d.p1, d.s2, u), d.p2);
        if (d.s1 == arrow::slash) {
            strokes.slash(onCircle, u, d.s2);
        } else {
            // The arrow stands on the side of the circle that its elbow is on.
            const bool outside = distance(d.p1, d.p2) > radius;
            strokes.head(onCircle, outside ? u : -u, d.s2, d.s1 == arrow::closed);
        }
        strokes.cross(d.p1, d.s2);
    }
    strokes.line(d.p2, d.p3);
}

// A slash comes out as an open arrow here.
void leaderStrokes(const DimensionShape& d, StrokeSink& out)
{
    Strokes strokes(out);
    const bool closed = d.s1 == arrow::closed;
    const Axis u = axisBetween(d.p1, d.p2);
    strokes.line(closed ? moved(d.p1, d.a2, u) : d.p1, d.p2);
    strokes.line(d.p2, d.p3);
    strokes.head(d.p1, u, d.a2, closed);
}

// The arrows stay on the arc, however short it is.
void angularDimStrokes(const DimensionShape& d, StrokeSink& out)
{
    Strokes strokes(out);
    for (const Point end : {d.p2, d.p3}) {
        const Axis u = axisBetween(d.p1, end);
        strokes.line(moved(d.p1, extensionGap * d.s1, u), moved(d.p1, double{d.rad} + d.s1, u));
    }
    strokes.arc(d);
    if (!isArrowStyle(d.style)) return;
    const Axis into[] = {across(radialAxis(d.a1)), -across(radialAxis(d.a2))};
    const double angles[] = {d.a1, d.a2};
    for (int i = 0; i < 2; ++i) {
        const Point tip = polarPoint(d.p1, d.rad, angles[i]);
        if (d.style == arrow::slash) {
            strokes.slash(tip, into[i], d.s1);
        } else {
            strokes.head(tip, into[i], d.s1, d.style == arrow::closed);
        }
    }
}

void dimensionStrokes(const DimensionShape& d, StrokeSink& out)
{
    switch (d.kind) {
    case Kind::linearDimension:
        return linearDimStrokes(d, out);
    case Kind::radialDimension:
        return radialDimStrokes(d, out);
    case Kind::leader:
        return leaderStrokes(d, out);
    case Kind::angularDimension:
        return angularDimStrokes(d, out);
    case Kind::line:
    case Kind::circle:
    case Kind::arc:
    case Kind::ellipse:
    case Kind::point:
    case Kind::text:
        return;
    }
}

} // namespace mirtane
