#include "library/hatch_clip.h"

#include "geometry/angle.h"
#include "geometry/arc.h"
#include "geometry/crossing.h"

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

// A crossing counts on a segment if the ways to its two ends are no longer than the segment by more than this
// part of it. Beside a line that runs close along an edge that makes a cut where nothing crosses; its two
// pieces are one to the eye.
constexpr double slack = 0.001;

// A corner of the boundary so near to a circle, world units, is itself the crossing.
constexpr double cornerOnCircle = 0.01;

// Rounding moves a crossing by less than this part of the lengths of line and edge.
constexpr double rounding = 1e-12;

Place placeOf(Point p)
{
    return {p.x, p.y};
}

Place minus(Place a, Place b)
{
    return {a.x - b.x, a.y - b.y};
}

double dot(Place a, Place b)
{
    return a.x * b.x + a.y * b.y;
}

double cross(Place a, Place b)
{
    return a.x * b.y - a.y * b.x;
}

double lengthOf(Place a)
{
    return std::sqrt(dot(a, a)); // of coordinates that fit a float, so nothing overflows
}

Point pointOf(Place p)
{
    return {static_cast<float>(p.x), static_cast<float>(p.y)}; // lies between two points that are floats
}

bool isApart(double low1, double high1, double low2, double high2)
{
    return high1 < low2 || high2 < low1;
}

Place lowerOf(Place a, Place b)
{
    return {std::min(a.x, b.x), std::min(a.y, b.y)};
}

Place higherOf(Place a, Place b)
{
    return {std::max(a.x, b.x), std::max(a.y, b.y)};
}

template <class Value> void sortOnce(std::vector<Value>& values)
{
    std::ranges::sort(values);
    values.erase(std::unique(values.begin(), values.end()), values.end());
}

} // namespace

HatchClip::HatchClip(const Polygon& polygon, const HatchGrid& grid)
    : polygon_(polygon), low_{grid.uprights.at(grid.uprights.first()), grid.levels.at(grid.levels.first())},
      high_{grid.uprights.at(grid.uprights.last()), grid.levels.at(grid.levels.last())}
{
    for (const Side& side : polygon) {
        const Place way = minus(side.b, side.a);
        const double length = lengthOf(way);
        if (length == 0) continue; // it cuts nothing
        edges_.push_back({side,
                          lowerOf(side.a, side.b),
                          higherOf(side.a, side.b),
                          {way.x / length, way.y / length},
                          length});
    }
}

void HatchClip::add(const HatchPiece& piece, Place middle)
{
    if (isSpent()) return;
    const bool fits = tried_ < hatchTableRows && !isClosed_;
    ++tried_;
    if (!isInside(polygon_, middle)) return;
    if (fits) pieces_.push_back(piece);
    if (!fits) ++dropped_;
}

bool HatchClip::isBeyondGrid(Place low, Place high) const
{
    return high.x < low_.x || low.x > high_.x || high.y < low_.y || low.y > high_.y;
}

// -- lines --

void HatchClip::line(Point a, Point b, std::int16_t style)
{
    const Place start = placeOf(a);
    const Place end = placeOf(b);
    const Place way = minus(end, start);
    if (a == b || !std::isfinite(lengthOf(way)) || isBeyondGrid(lowerOf(start, end), higherOf(start, end)))
        return;
    findCuts(start, end);
    Place from = start;
    for (const Cut& cut : cuts_) {
        const HatchPiece piece{Kind::line, style, pointOf(from), pointOf(cut.at)};
        if (piece.from != piece.to) add(piece, {(from.x + cut.at.x) / 2, (from.y + cut.at.y) / 2});
        from = cut.at;
    }
}

// Leaves the ends of the pieces in cuts_, in order.
void HatchClip::findCuts(Place a, Place b)
{
    cuts_.assign(1, Cut{1, b});
    const Place low = lowerOf(a, b);
    const Place high = higherOf(a, b);
    for (const Edge& edge : edges_) {
        if (isApart(low.x, high.x, edge.low.x, edge.high.x)) continue;
        if (isApart(low.y, high.y, edge.low.y, edge.high.y)) continue;
        cut(edge, a, b);
    }
    if (cuts_.size() > 1) sortOnce(cuts_); // most lines cross nothing
}

// The crossing divides the way between the feet of a and b on the edge as their distances from it. With both
// on one side that is no true crossing, and the cut is where the line comes closest to it.
void HatchClip::cut(const Edge& edge, Place a, Place b)
{
    const Place toA = minus(a, edge.side.a);
    const Place toB = minus(b, edge.side.a);
    const double sideOfA = cross(edge.unit, toA);
    const double sideOfB = cross(edge.unit, toB);
    const double distances = std::abs(sideOfA) + std::abs(sideOfB);
    if (distances == 0) return;
    const double footOfA = dot(edge.unit, toA);
    const double footOfB = dot(edge.unit, toB);
    const double along = footOfA + (footOfB - footOfA) * (std::abs(sideOfA) / distances);
    const double beyond = std::max(-along, along - edge.length);
    if (2 * beyond > slack * edge.length) return;
    const Place c{edge.side.a.x + along * edge.unit.x, edge.side.a.y + along * edge.unit.y};
    const Place way = minus(b, a);
    const double detour = lengthOf(minus(c, a)) + lengthOf(minus(c, b));
    if (sideOfA * sideOfB > 0 && detour > (1 + slack) * lengthOf(way)) return;
    addCut(edge, a, b, std::clamp(dot(minus(c, a), way) / dot(way, way), 0.0, 1.0));
}

// An end or a corner that is the cut but for the rounding is the cut, so that two edges that meet there make
// one cut and not a speck of a piece between two. Otherwise an upright or a level edge gives its coordinate.
void HatchClip::addCut(const Edge& edge, Place a, Place b, double part)
{
    const Place way = minus(b, a);
    const double length = lengthOf(way);
    const double tolerance = rounding * (length + edge.length);
    Place at{a.x + part * way.x, a.y + part * way.y};
    for (const Place end : {a, b, edge.side.a, edge.side.b}) {
        const Place off = minus(at, end);
        if (std::abs(off.x) > tolerance || std::abs(off.y) > tolerance) continue;
        cuts_.push_back({std::clamp(dot(minus(end, a), way) / dot(way, way), 0.0, 1.0), end});
        return;
    }
    if (edge.low.x == edge.high.x) at.x = edge.low.x;
    if (edge.low.y == edge.high.y) at.y = edge.low.y;
    cuts_.push_back({part, at});
}

// -- circles and arcs --

void HatchClip::circle(Point centre, float radius, std::int16_t style)
{
    const Place low{static_cast<double>(centre.x) - radius,
                    static_cast<double>(centre.y) - radius}; // widened
    const Place high{static_cast<double>(centre.x) + radius,
                     static_cast<double>(centre.y) + radius}; // widened
    if (!(radius >= 0) || !std::isfinite(dot(low, high)) || isBeyondGrid(low, high)) return;
    findCrossings(centre, radius);
    if (angles_.size() < 2) {
        add({Kind::circle, style, centre, {}, radius}, {high.x, centre.y});
        return;
    }
    for (std::size_t i = 0; i < angles_.size(); ++i) {
        addStretch(centre, radius, angles_[i], angles_[(i + 1) % angles_.size()], style);
    }
}

void HatchClip::arc(Point centre, float radius, double a1, double a2, std::int16_t style)
{
    const Place low{static_cast<double>(centre.x) - radius,
                    static_cast<double>(centre.y) - radius}; // widened
    const Place high{static_cast<double>(centre.x) + radius,
                     static_cast<double>(centre.y) + radius}; // widened
    if (!(radius >= 0) || !std::isfinite(dot(low, high)) || isBeyondGrid(low, high)) return;
    if (!std::isfinite(sweep(a1, a2))) return;
    findCrossings(centre, radius);
    std::erase_if(angles_,
                  [&](double angle) { return !(sweep(a1, angle) > 0 && sweep(a1, angle) < sweep(a1, a2)); });
    std::ranges::sort(angles_, {}, [a1](double angle) { return sweep(a1, angle); });
    double from = a1;
    for (const double angle : angles_) {
        addStretch(centre, radius, from, angle, style);
        from = angle;
    }
    addStretch(centre, radius, from, a2, style);
}

void HatchClip::addStretch(Point centre, float radius, double a1, double a2, std::int16_t style)
{
    const Point middle = polarPoint(centre, radius, middleAngle(a1, a2));
    add({Kind::arc, style, centre, {}, radius, a1, a2}, placeOf(middle));
}

// Leaves the directions of the crossings in angles_, sorted, each once.
void HatchClip::findCrossings(Point centre, float radius)
{
    angles_.clear();
    for (const Edge& edge : edges_) crossCircle(edge, centre, radius);
    sortOnce(angles_);
}

void HatchClip::crossCircle(const Edge& edge, Point centre, float radius)
{
    const double reach = radius + cornerOnCircle;
    if (isApart(centre.x - reach, centre.x + reach, edge.low.x, edge.high.x)) return;
    if (isApart(centre.y - reach, centre.y + reach, edge.low.y, edge.high.y)) return;
    const Point a = pointOf(edge.side.a);
    const Point b = pointOf(edge.side.b);
    const bool startsOn = std::abs(distance(centre, a) - radius) <= cornerOnCircle;
    const bool endsOn = std::abs(distance(centre, b) - radius) <= cornerOnCircle;
    if (startsOn) angles_.push_back(directionAngle(centre, a, 0));
    const Crossings found = crossLineCircle(a, b, centre, radius);
    for (int i = 0; i < found.count; ++i) {
        const Point p = found.points[static_cast<std::size_t>(i)]; // i is 0 or 1
        const double along = dot(minus(placeOf(p), edge.side.a), edge.unit);
        if (along < 0 || along > edge.length) continue;
        // A corner stands for the crossing beside it; the next edge starts with the corner at this one's end.
        if (startsOn && distance(a, p) <= 2 * cornerOnCircle) continue;
        if (endsOn && distance(b, p) <= 2 * cornerOnCircle) continue;
        angles_.push_back(directionAngle(centre, p, 0));
    }
}

// -- points --

void HatchClip::point(Point p, std::int16_t style)
{
    if (std::isfinite(p.x) && std::isfinite(p.y)) add({Kind::point, style, p, {}}, placeOf(p));
}

} // namespace mirtane
