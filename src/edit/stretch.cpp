#include "edit/stretch.h"

#include "commands/linear_dimension_text.h"
#include "commands/prompt.h"
#include "edit/move_copy.h"
#include "edit/selection_run.h"
#include "geometry/angle.h"
#include "geometry/arc.h"
#include "geometry/circle_through.h"
#include "geometry/fault.h"
#include "model/record_moves.h"
#include "render/redraw.h"
#include "text/utf8.h"

#include <algorithm>
#include <iterator>

namespace mirtane {
namespace {

struct Pull {
    float left, top, right, bottom;
    float dx, dy;
    const Session& s; // how numbers are shown

    bool holds(Point p) const { return p.x >= left && p.x <= right && p.y >= top && p.y <= bottom; }

    Point of(Point p) const
    {
        if (!holds(p)) return p;
        keep(p.x, static_cast<double>(p.x) + dx); // widened before the sum
        keep(p.y, static_cast<double>(p.y) + dy); // widened before the sum
        return p;
    }

    // The pairs, bits of field, that lie in the window.
    void pairs(EntityRecord& r, std::uint16_t which) const
    {
        mapPairs(r, which, [this](Point p) { return of(p); });
    }
};

// By the one point that stands for the object.
void pullWhole(const Pull& pull, EntityRecord& r)
{
    if (pull.holds(r.p1)) shift(r, pull.dx, pull.dy);
}

void pullEnds(const Pull& pull, EntityRecord& r)
{
    pull.pairs(r, field::p1 | field::p2);
}

void pullArc(const Pull& pull, EntityRecord& r)
{
    const bool start = pull.holds(r.p2);
    const bool end = pull.holds(r.p3);
    const bool middle = pull.holds(r.p4);
    if (!start && !end && !middle) return;
    if (start && end && middle) return shift(r, pull.dx, pull.dy);
    const Point from = pull.of(r.p2);
    const Point through = pull.of(r.p4);
    const Point to = pull.of(r.p3);
    const auto circle = circleThrough(from, through, to);
    if (!circle) return;
    const ArcEnds ends = endsThrough(circle->centre, from, through, to);
    r.p1 = circle->centre;
    r.rad = circle->radius;
    r.a1 = ends.a1;
    r.a2 = ends.a2;
    placeArcPoints(r);
}

void pullEllipse(const Pull& pull, EntityRecord& r)
{
    if (pull.holds(r.p2)) return shift(r, pull.dx, pull.dy);
    r.p1 = pull.of(r.p1);
}

void pullLinearDimension(const Pull& pull, EntityRecord& r)
{
    const Point points[] = {r.p1, r.p2, r.p3, r.p4};
    if (std::ranges::none_of(points, [&pull](Point p) { return pull.holds(p); })) return;
    pull.pairs(r, field::p1 | field::p2 | field::p3 | field::p4);
    float length = 0;
    keep(length, distance(r.p3, r.p4));
    r.t1 = lengthText(pull.s, length);
    const auto width = static_cast<float>(utf8Length(r.t1)) * r.s2; // a few dozen characters at most
    const DimensionLabel label = labelOfLine(r.p3, r.p4, r.s2, width);
    r.p5 = label.at;
    r.a1 = label.degrees;
}

void pullRadialDimension(const Pull& pull, EntityRecord& r)
{
    pull.pairs(r, field::p1 | field::p2 | field::p3 | field::p4 | field::p5);
}

void pullLeader(const Pull& pull, EntityRecord& r)
{
    pull.pairs(r, field::p1 | field::p2 | field::p3 | field::p5);
}

// By kind, from 1.
constexpr void (*pullRules[])(const Pull&, EntityRecord&) = {
    pullEnds,            // line
    pullWhole,           // circle
    pullArc,             // arc
    pullEllipse,         // ellipse
    pullWhole,           // point
    pullWhole,           // text
    pullLinearDimension, // linear
    pullRadialDimension, // radial
    pullLeader,          // leader
    pullWhole,           // angular
};
static_assert(std::size(pullRules) == drawnKinds);

// The second corner is where the pointer really was: ortho and snaps have no say in a window.
void takeWindow(Session& s)
{
    const auto [left, right] = std::minmax(s.pickFirst.x, s.mousePos.x);
    const auto [top, bottom] = std::minmax(s.pickFirst.y, s.mousePos.y);
    s.stretchLeft = left;
    s.stretchTop = top;
    s.stretchRight = right;
    s.stretchBottom = bottom;
}

bool pullSelection(Session& s)
{
    s.editDX = 0;
    s.editDY = 0;
    keep(s.editDX, static_cast<double>(s.pickLast.x) - s.pickFirst.x); // widened before the difference
    keep(s.editDY, static_cast<double>(s.pickLast.y) - s.pickFirst.y); // widened before the difference
    const Pull pull{s.stretchLeft, s.stretchTop, s.stretchRight, s.stretchBottom, s.editDX, s.editDY, s};
    return runOnSelection(s, Sources::goOut, [&pull](EntityRecord r) {
        pullRules[placeOf(r.kind)](pull, r); // only drawn kinds are selected
        return r;
    });
}

void drawBox(Canvas& pic1, Point a, Point b)
{
    restorePicture(pic1);
    pic1.line(a.x, a.y, b.x, a.y);
    pic1.line(b.x, a.y, b.x, b.y);
    pic1.line(b.x, b.y, a.x, b.y);
    pic1.line(a.x, b.y, a.x, a.y);
}

} // namespace

void editStretch(Session& s, Canvas& pic1)
{
    if (s.stepNo < 1) return;
    if (s.stepNo == 4) {
        if (pullSelection(s)) endRun(s, pic1);
        return;
    }
    if (s.stepNo == 1) s.editPending = 1;
    if (s.stepNo == 2) takeWindow(s);
    if (s.stepNo == 3) s.pickFirst = s.pickLast;
    setPrompt(s, pic1);
}

void stretchBand(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) drawBox(pic1, s.pickFirst, s.pickLast);
    if (s.stepNo == 3) drawSelectionGhost(s, pic1);
}

} // namespace mirtane
