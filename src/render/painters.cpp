// render/painters.cpp: H is the height of the visible window in world units, to which all limits are
// relative.

#include "render/painters.h"

#include "geometry/angle.h"
#include "geometry/arc.h"
#include "geometry/fault.h"
#include "render/chords.h"

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

double viewHeight(const Canvas& pic1)
{
    return pic1.getScale().height;
}

Point movedRight(Point centre, double r)
{
    Point p = centre;
    keep(p.x, centre.x + r);
    return p;
}

// Past 32,767 pieces the count faults, and the least number serves.
std::int32_t chordCount(double length, double pieceLength, std::int32_t least)
{
    std::int16_t count = 0;
    keep(count, quotient(length, pieceLength));
    return std::max<std::int32_t>(count, least);
}

constexpr std::int32_t leastCircleChords = 36;
constexpr std::int32_t leastArcChords = 3;

void drawCircleChords(Canvas& pic1, const View& view, Point centre, float r)
{
    const std::int32_t count = chordCount(2 * r * halfTurn, viewHeight(pic1) / 6, leastCircleChords);
    drawChords(pic1, view, {centre, movedRight(centre, r), r, 0, fullTurn, count});
}

} // namespace

bool circleInView(const View& view, Point centre, float r)
{
    const float right = centre.x + r;
    const float left = centre.x - r;
    const float bottom = centre.y + r;
    const float top = centre.y - r;
    // A limit that faults hides the object. The difference of infinities is NaN, so one test serves for all.
    if (!std::isfinite(right - left) || !std::isfinite(bottom - top)) return false;
    return right >= view.viewLeft && left <= view.viewRight && top <= view.viewBottom &&
           bottom >= view.viewTop;
}

void paintLine(Canvas& pic1, const View& view, Point a, Point b)
{
    const double length = distance(a, b);
    if (2 * viewHeight(pic1) >= length) {
        pic1.line(a.x, a.y, b.x, b.y);
        return;
    }
    std::int32_t pieces = 0;
    keep(pieces, quotient(length, 2 * viewHeight(pic1)));
    if (pieces > 0) drawPieces(pic1, view, {a, b, pieces});
}

void paintCircle(Canvas& pic1, const View& view, Point centre, float r)
{
    if (!circleInView(view, centre, r)) return;
    if (r < viewHeight(pic1) / 2) {
        pic1.circle(centre.x, centre.y, r);
        return;
    }
    drawCircleChords(pic1, view, centre, r);
}

void paintArc(Canvas& pic1, const View& view, Point centre, Point start, float r, double a1, double a2)
{
    const double height = viewHeight(pic1);
    if (r < height) {
        pic1.arc(centre.x, centre.y, r, a1, a2);
        return;
    }
    const double covered = sweep(a1, a2);
    const double length = 2 * r * halfTurn * (covered / fullTurn);
    std::int32_t count = 0;
    keep(count, quotient(length, height / 16));
    drawChords(pic1, view, {centre, start, r, a1, covered, std::max(count, leastArcChords)});
}

void paintEllipse(Canvas& pic1, const View& view, Point axisEnd, Point centre, float ratio)
{
    const double r = distance(axisEnd, centre);
    const double ux = quotient(axisEnd.x - centre.x, r);
    const double uy = quotient(centre.y - axisEnd.y, r);
    if (!std::isfinite(ux * uy * ratio)) return;
    const std::int32_t count = chordCount(2 * r * halfTurn, viewHeight(pic1) / 6, leastCircleChords);
    const Chords chords{centre, axisEnd, r, 0, fullTurn, count, ux, uy, ratio};
    if (!pic1.smallEllipse(view, chords)) drawChords(pic1, view, chords);
}

void paintLineSegment(Canvas& pic1, const View& view, Point a, Point b)
{
    if (pieceInView(view, a, b)) paintLine(pic1, view, a, b);
}

void paintCircleImmediate(Canvas& pic1, const View& view, Point centre, float r)
{
    if (!circleInView(view, centre, r)) return;
    if (viewHeight(pic1) / 2 >= r) {
        pic1.circle(centre.x, centre.y, r);
        return;
    }
    drawCircleChords(pic1, view, centre, r);
}

void paintArcImmediate(Canvas& pic1, const View& view, Point centre, Point start, float r, double a1,
                       double a2)
{
    const double height = viewHeight(pic1);
    if (height / 2 >= r) {
        pic1.arc(centre.x, centre.y, r, a1, a2);
        return;
    }
    const double covered = sweep(a1, a2);
    const std::int32_t count = chordCount(2 * r * covered, height / 6, leastArcChords);
    drawChords(pic1, view, {centre, start, r, a1, covered, count});
}

} // namespace mirtane
