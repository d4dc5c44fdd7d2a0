// render/painters.cpp: H is the height of the visible window in world units, to which all limits are
// relative.

#include "render/painters.h"

#include "geometry/angle.h"
#include "geometry/fault.h"

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

double viewHeight(const Canvas& pic1)
{
    return pic1.getScale().height;
}

void drawIfInView(Canvas& pic1, const View& view, Point a, Point b)
{
    if (pieceInView(view, a, b)) pic1.line(a.x, a.y, b.x, b.y);
}

Point moved(Point from, double dx, double dy)
{
    Point p = from;
    keep(p.x, from.x + dx);
    keep(p.y, from.y + dy);
    return p;
}

// More pieces than this would keep the user waiting; the surface clips for itself, so such an object goes to
// it whole.
constexpr std::int32_t mostPieces = 200000;

void drawLinePieces(Canvas& pic1, const View& view, Point a, Point b, double length)
{
    std::int32_t pieces = 0;
    keep(pieces, quotient(length, 2 * viewHeight(pic1)));
    if (pieces > mostPieces) {
        pic1.line(a.x, a.y, b.x, b.y);
        return;
    }
    const double pieceLength = quotient(length, pieces);
    const double ux = quotient(b.x - a.x, length);
    const double uy = quotient(a.y - b.y, length);
    for (std::int32_t k = 1; k <= pieces; ++k) {
        const Point next = moved(a, pieceLength * ux, -pieceLength * uy);
        drawIfInView(pic1, view, a, next);
        a = next;
    }
}

struct Chords {
    Point centre;
    Point start;
    double r;
    double firstAngle;
    double sweep;
    std::int32_t count;
};

void drawChords(Canvas& pic1, const View& view, const Chords& chords)
{
    if (!std::isfinite(chords.r) || !std::isfinite(chords.sweep)) return;
    const double step = chords.sweep / chords.count;
    double angle = chords.firstAngle;
    Point previous = chords.start;
    for (std::int32_t k = 1; k <= chords.count; ++k) {
        angle += step;
        const Point next = moved(chords.centre, chords.r * std::cos(angle), -chords.r * std::sin(angle));
        drawIfInView(pic1, view, previous, next);
        previous = next;
    }
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
    drawChords(pic1, view, {centre, moved(centre, r, 0), r, 0, fullTurn, count});
}

double sweepOf(double a1, double a2)
{
    const double sweep = a2 - a1;
    return sweep < 0 ? sweep + fullTurn : sweep;
}

} // namespace

bool pieceInView(const View& view, Point a, Point b)
{
    const bool beyond =
        (a.x < view.viewLeft && b.x < view.viewLeft) || (a.x > view.viewRight && b.x > view.viewRight) ||
        (a.y < view.viewTop && b.y < view.viewTop) || (a.y > view.viewBottom && b.y > view.viewBottom);
    return !beyond;
}

bool circleInView(const View& view, Point centre, float r)
{
    const bool beyond = centre.x + r < view.viewLeft || centre.x - r > view.viewRight ||
                        centre.y - r > view.viewBottom || centre.y + r < view.viewTop;
    return !beyond;
}

void paintLine(Canvas& pic1, const View& view, Point a, Point b)
{
    const double length = distance(a, b);
    if (2 * viewHeight(pic1) >= length) {
        pic1.line(a.x, a.y, b.x, b.y);
        return;
    }
    drawLinePieces(pic1, view, a, b, length);
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
    const double sweep = sweepOf(a1, a2);
    const double length = 2 * r * halfTurn * (sweep / fullTurn);
    std::int32_t count = 0;
    keep(count, quotient(length, height / 16));
    if (count > mostPieces) {
        pic1.arc(centre.x, centre.y, r, a1, a2);
        return;
    }
    drawChords(pic1, view, {centre, start, r, a1, sweep, std::max(count, leastArcChords)});
}

void paintEllipse(Canvas& pic1, const View& view, Point axisEnd, Point centre, float ratio)
{
    const double dx = axisEnd.x - centre.x;
    const double dy = centre.y - axisEnd.y;
    const double r = distance(axisEnd, centre);
    const double ux = quotient(dx, r);
    const double uy = quotient(dy, r);
    if (!std::isfinite(ux * uy * ratio)) return;
    const std::int32_t count = chordCount(2 * r * halfTurn, viewHeight(pic1) / 6, leastCircleChords);
    const double step = fullTurn / count;
    Point previous = axisEnd;
    double theta = 0;
    for (std::int32_t k = 1; k <= count; ++k) {
        theta += step;
        const double c = r * std::cos(theta);
        const double s = r * std::sin(theta) * ratio;
        const Point next = moved(centre, c * ux - s * uy, -c * uy - s * ux);
        drawIfInView(pic1, view, previous, next);
        previous = next;
    }
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
    const double sweep = sweepOf(a1, a2);
    const std::int32_t count = chordCount(2 * r * sweep, height / 6, leastArcChords);
    drawChords(pic1, view, {centre, start, r, a1, sweep, count});
}

} // namespace mirtane
