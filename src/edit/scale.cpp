// edit/scale.cpp: X and Y scale may differ, and a negative one mirrors; yet circles stay circles, ellipses
// keep right angles, and texts stay upright letters. What each kind makes of that is a row of a table.

#include "edit/scale.h"

#include "commands/prompt.h"
#include "edit/selection_run.h"
#include "edit/text_baseline.h"
#include "geometry/angle.h"
#include "geometry/ellipse.h"
#include "geometry/fault.h"
#include "model/record_moves.h"
#include "model/three_point_scratch.h"
#include "tables/kinds.h"

#include <cmath>
#include <iterator>
#include <utility>

namespace mirtane {
namespace {

struct Scaling {
    Point base;
    double x, y;
    Canvas& pic1; // measures texts

    bool mirrors() const { return x * y < 0; }

    Point of(Point p) const
    {
        keep(p.x, base.x + (static_cast<double>(p.x) - base.x) * x); // widened before the difference
        keep(p.y, base.y + (static_cast<double>(p.y) - base.y) * y); // widened before the difference
        return p;
    }
};

void scalePairs(const Scaling& scaling, EntityRecord& r)
{
    const KindRow* row = kindRow(r.kind);
    if (row != nullptr) mapPairs(r, row->mapped, [&scaling](Point p) { return scaling.of(p); });
}

void scaleCircle(const Scaling& scaling, EntityRecord& r)
{
    scalePairs(scaling, r);
    keep(r.rad, std::abs(scaling.x * r.rad));
}

// The construction runs at this many times the size, for the sake of its 32-bit steps.
constexpr float finer = 10000;

Point enlarged(Point p)
{
    return {p.x * finer, p.y * finer};
}

Point reduced(Point p)
{
    return {p.x / finer, p.y / finer};
}

// Not if they lie on one line, nor if they fault or overflow.
bool makeAnArc(Point a, Point b, Point c)
{
    const double abx = static_cast<double>(b.x) - a.x; // widened before the difference, as below
    const double aby = static_cast<double>(b.y) - a.y;
    const double acx = static_cast<double>(c.x) - a.x;
    const double acy = static_cast<double>(c.y) - a.y;
    const double across = abx * acy - aby * acx;
    return std::isfinite(across) && across != 0;
}

// The arc through the images of start, middle and end, by the construction that draws arcs, which also
// settles the direction. Where three images make no arc, the old one stays as it is.
void scaleArc(const Scaling& scaling, EntityRecord& r)
{
    ScratchPoints through;
    through.ptA = enlarged(scaling.of(r.p2));
    through.ptB = enlarged(scaling.of(r.p4));
    through.ptC = enlarged(scaling.of(r.p3));
    if (!makeAnArc(through.ptA, through.ptB, through.ptC)) return;
    through.ptF = enlarged(r.p1);
    through.arcStart = r.a1;
    through.arcEnd = r.a2;
    markBisector(through);
    constructArc(through);
    keep(through.workRadius, through.workRadius / finer);
    placeArcPoints(through, reduced(through.ptF));
    r.p1 = through.ptA;
    r.p2 = through.ptB;
    r.p3 = through.ptC;
    r.p4 = through.ptD;
    r.rad = through.workRadius;
    r.a1 = through.arcStart;
    r.a2 = through.arcEnd;
}

// The axes stay at right angles, whatever the scale makes of them.
void scaleEllipse(const Scaling& scaling, EntityRecord& r)
{
    const Point second = scaling.of(axisEnds({r.p1, r.p2, r.p3.x})[2]);
    scalePairs(scaling, r);
    keep(r.p3.x, quotient(distance(r.p2, second), distance(r.p2, r.p1)));
}

// The text of the object goes on the image of its baseline, from whose length its size follows. A scale that
// mirrors changes the baseline's ends. Gives the factor of the size.
double scaleTextLine(const Scaling& scaling, EntityRecord& r)
{
    const KindRow* row = kindRow(r.kind);
    if (row == nullptr || row->rotation == nullptr) return 1;
    const double angle = r.*row->rotation * radiansPerDegree;
    const double right = scaling.x * std::cos(angle);
    const double up = scaling.y * std::sin(angle);
    const double sign = scaling.mirrors() ? -1 : 1;
    const Baseline old = baselineUnder(scaling.pic1, r, r.t1.empty() ? emptyTextStandIn : r.t1);
    scalePairs(scaling, r);
    Point towards;
    keep(towards.x, sign * right);
    keep(towards.y, -sign * up);
    const double degrees = directionAngle({}, towards, noAngle) * degreesPerRadian;
    if (scaling.mirrors()) {
        layText(r, {scaling.of(old.end), scaling.of(old.start)}, degrees);
    } else {
        keep(r.*row->rotation, degrees);
    }
    return std::sqrt(right * right + up * up);
}

void scaleText(const Scaling& scaling, EntityRecord& r)
{
    const double factor = scaleTextLine(scaling, r);
    keep(r.p2.x, r.p2.x * factor);
    keep(r.rad, r.rad * factor);
}

// The size of the arrow of a leader stands elsewhere, and stays.
void scaleDimension(const Scaling& scaling, EntityRecord& r)
{
    const double factor = scaleTextLine(scaling, r);
    keep(r.s2, r.s2 * factor);
}

void scaleAngularDimension(const Scaling& scaling, EntityRecord& r)
{
    scalePairs(scaling, r);
    if (scaling.mirrors()) std::swap(r.p2, r.p3);
    keep(r.rad, distance(r.p1, r.p4));
    keep(r.a1, directionAngle(r.p1, r.p2, r.a1));
    keep(r.a2, directionAngle(r.p1, r.p3, r.a2));
    r.p4 = polarPoint(r.p1, r.rad, r.a1);
}

using ScaleRule = void (*)(const Scaling&, EntityRecord&);

// By kind, from 1.
constexpr ScaleRule scaleRules[] = {
    scalePairs, // line
    scaleCircle,
    scaleArc,
    scaleEllipse,
    scalePairs, // point
    scaleText,
    scaleDimension, // linear
    scaleDimension, // radial
    scaleDimension, // leader
    scaleAngularDimension,
};

static_assert(std::size(scaleRules) == drawnKinds);

} // namespace

void editScale(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) setPrompt(s, pic1);
    if (s.stepNo != 3) return;
    const Scaling scaling{s.pickFirst, s.editDX, s.editDY, pic1};
    const bool done = runOnSelection(s, Sources::goOut, [&scaling](EntityRecord r) {
        scaleRules[placeOf(r.kind)](scaling, r);
        return r;
    });
    if (done) endRun(s, pic1);
}

} // namespace mirtane
