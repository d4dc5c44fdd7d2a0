// edit/scale.cpp: X and Y scale may differ, and a negative one mirrors; yet circles stay circles, ellipses
// keep right angles, and texts stay upright letters. What each kind makes of that is a row of a table.

#include "edit/scale.h"

#include "commands/prompt.h"
#include "edit/scaled_arc.h"
#include "edit/selection_run.h"
#include "edit/text_baseline.h"
#include "geometry/angle.h"
#include "geometry/ellipse.h"
#include "geometry/fault.h"
#include "model/record_moves.h"
#include "tables/kinds.h"

#include <cmath>
#include <iterator>
#include <utility>

namespace mirtane {
namespace {

struct Scaling : Factors {
    Canvas& pic1; // measures texts
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

void scaleArc(const Scaling& scaling, EntityRecord& r)
{
    r = scaledArc(r, scaling);
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
    const Scaling scaling{{s.pickFirst, s.editDX, s.editDY}, pic1};
    const bool done = runOnSelection(s, Sources::goOut, [&scaling](EntityRecord r) {
        scaleRules[placeOf(r.kind)](scaling, r);
        return r;
    });
    if (done) endRun(s, pic1);
}

} // namespace mirtane
