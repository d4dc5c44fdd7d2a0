#include "edit/mirror.h"

#include "commands/prompt.h"
#include "edit/selection_run.h"
#include "edit/text_baseline.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "model/record_moves.h"
#include "render/redraw.h"
#include "tables/kinds.h"

#include <utility>

namespace mirtane {
namespace {

class MirrorLine {
  public:
    MirrorLine(Point from, Point to)
        : from_(from), dx_(static_cast<double>(to.x) - from.x), // widened before the difference
          dy_(static_cast<double>(to.y) - from.y)               // widened before the difference
    {
    }

    // A point on the line stays there.
    Point of(Point p) const { return imageAbout(from_, p); }

    // The image of a direction, radians; NaN if there is none.
    double of(double radians) const
    {
        return directionAngle({}, imageAbout({}, polarPoint({}, 1, radians)), noAngle);
    }

  private:
    // In the parallel of the line through a point.
    Point imageAbout(Point through, Point p) const
    {
        const double vx = static_cast<double>(p.x) - through.x; // widened before the difference
        const double vy = static_cast<double>(p.y) - through.y; // widened before the difference
        const double across = quotient(dx_ * vy - dy_ * vx, dx_ * dx_ + dy_ * dy_);
        keep(p.x, p.x + 2 * across * dy_);
        keep(p.y, p.y - 2 * across * dx_);
        return p;
    }

    Point from_;
    double dx_, dy_;
};

// Start and end change places, so that the arc still runs counter-clockwise.
void mirrorSweep(EntityRecord& r, const MirrorLine& line)
{
    const double oldStart = r.a1;
    std::swap(r.p2, r.p3);
    keep(r.a1, line.of(r.a2));
    keep(r.a2, line.of(oldStart));
}

// The new text starts at the image of the old end, and reads towards the image of the old start.
void layMirroredText(EntityRecord& r, const MirrorLine& line, const Baseline& old, double degrees)
{
    const Point start = line.of(old.end);
    const Point end = line.of(old.start);
    double angle = withinTurn(line.of(degrees * radiansPerDegree) + halfTurn);
    // Between two points that are rounded a slant is less exact than this, but an axis is exact.
    if (start.x == end.x || start.y == end.y) angle = directionAngle(start, end, angle);
    layText(r, {start, end}, angle * degreesPerRadian);
}

EntityRecord mirrored(Canvas& pic1, const MirrorLine& line, EntityRecord r)
{
    const KindRow* row = kindRow(r.kind);
    if (row == nullptr) return r;
    const Baseline old = baselineUnder(pic1, r, r.t1);
    mapPairs(r, row->mapped, [&line](Point p) { return line.of(p); });
    if (row->sweeps) mirrorSweep(r, line);
    if (r.kind == Kind::angularDimension) r.p4 = polarPoint(r.p1, r.rad, r.a1);
    if (row->rotation != nullptr) layMirroredText(r, line, old, r.*row->rotation);
    return r;
}

// As a second click on the first point does, which no construction line and no typed distance can be.
void giveUp(Session& s, Canvas& pic1)
{
    turnSources(s, selectedSlots(s.store), Sources::comeOn);
    s.editPending = 0;
    returnToBase(s);
    redrawAll(s, pic1);
    setPrompt(s, pic1);
}

} // namespace

void editMirror(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) setPrompt(s, pic1);
    if (s.stepNo != 2) return;
    if (s.pickFirst == s.pickLast) return giveUp(s, pic1);
    const MirrorLine line(s.pickFirst, s.pickLast);
    const auto rule = [&](EntityRecord r) { return mirrored(pic1, line, std::move(r)); };
    if (runOnSelection(s, Sources::comeOn, rule)) endRun(s, pic1);
}

void mirrorBand(Session& s, Canvas& pic1)
{
    if (s.stepNo != 1) return;
    restorePicture(pic1);
    pic1.line(s.pickFirst.x, s.pickFirst.y, s.pickLast.x, s.pickLast.y);
}

} // namespace mirtane
