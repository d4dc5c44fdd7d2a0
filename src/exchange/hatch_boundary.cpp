// exchange/hatch_boundary.cpp: the loops of a hatch are polylines with bulges, or edges that follow one
// another in any direction.

#include "exchange/hatch_boundary.h"

#include "exchange/curve_strokes.h"
#include "exchange/spline.h"

#include <algorithm>
#include <utility>

namespace mirtane {
namespace {

using EdgeStrokes = std::vector<Stroke>;

// What an edge may be: programs do not agree on how the ends of a part of an ellipse are counted.
using Readings = std::vector<EdgeStrokes>;

EdgeStrokes lineEdge(GroupRun& groups, const Transform2& plane)
{
    const Vec from = groups.point(10);
    const Vec to = groups.point(11);
    return {straightStroke(plane(from), plane(to))};
}

// Clockwise ones count their angles clockwise.
struct Range {
    double from = 0, to = 0;
};
Range rangeOf(double from, double to, bool counterClockwise)
{
    const Range range = counterClockwise ? Range{from, to} : Range{-to, -from};
    const double turn = std::fmod(range.to - range.from, wholeTurn);
    return {range.from, range.from + (turn <= 1e-9 ? turn + wholeTurn : turn)};
}

struct ArcGroups {
    Vec centre;
    double from = 0, to = 0;
    bool counterClockwise = true;
};

void takeRange(GroupRun& groups, ArcGroups& arc)
{
    arc.from = groups.number(50) * exactRadiansPerDegree;
    arc.to = groups.number(51, 360) * exactRadiansPerDegree;
    arc.counterClockwise = groups.whole(73, 1) != 0;
}

EdgeStrokes arcEdge(GroupRun& groups, const Transform2& plane, double tolerance)
{
    ArcGroups arc{groups.point(10)};
    const double radius = groups.number(40);
    takeRange(groups, arc);
    const Range range = rangeOf(arc.from, arc.to, arc.counterClockwise);
    return strokesOf(transformed({arc.centre, {radius, 0}, {0, radius}, range.from, range.to}, plane),
                     tolerance);
}

// The parameter of an ellipse where it is seen at an angle.
double parameterAt(double angle, double ratio)
{
    const double turns = std::round(angle / wholeTurn) * wholeTurn;
    return turns + std::atan2(std::sin(angle), ratio * std::cos(angle));
}

Readings ellipseEdge(GroupRun& groups, const Transform2& plane, double tolerance)
{
    ArcGroups arc{groups.point(10)};
    const Vec major = groups.point(11);
    const double ratio = groups.number(40, 1);
    takeRange(groups, arc);
    const auto reading = [&](double from, double to) {
        const Range range = rangeOf(from, to, arc.counterClockwise);
        return strokesOf(
            transformed({arc.centre, major, ratio * turnedLeft(major), range.from, range.to}, plane),
            tolerance);
    };
    Readings readings{reading(arc.from, arc.to)};
    if (ratio > 0) readings.push_back(reading(parameterAt(arc.from, ratio), parameterAt(arc.to, ratio)));
    return readings;
}

EdgeStrokes splineEdge(GroupRun& groups, const Transform2& plane, double tolerance)
{
    Spline spline;
    spline.degree = groups.whole(94, 3);
    groups.whole(73);
    groups.whole(74);
    const std::size_t knots = groups.count(95);
    const std::size_t points = groups.count(96);
    for (std::size_t i = 0; i < knots && groups.isAt(40); ++i) spline.knots.push_back(groups.number(40));
    for (std::size_t i = 0; i < points && groups.isAt(10); ++i) {
        spline.points.push_back(plane(groups.point(10)));
        if (groups.isAt(42)) spline.weights.push_back(groups.number(42));
    }
    std::vector<Vec> through;
    if (groups.isAt(97)) {
        const std::size_t count = groups.count(97);
        for (std::size_t i = 0; i < count && groups.isAt(11); ++i) through.push_back(plane(groups.point(11)));
        if (groups.isAt(12)) groups.point(12);
        if (groups.isAt(13)) groups.point(13);
    }
    return strokesOf(spline.points.empty() ? curvesThrough(through, {}) : curvesOf(spline), tolerance);
}

Readings takeEdge(GroupRun& groups, const Transform2& plane, double tolerance)
{
    switch (groups.whole(72)) {
    case 1:
        return {lineEdge(groups, plane)};
    case 2:
        return {arcEdge(groups, plane, tolerance)};
    case 3:
        return ellipseEdge(groups, plane, tolerance);
    case 4:
        return {splineEdge(groups, plane, tolerance)};
    default:
        return {{}};
    }
}

double nearest(Vec p, const EdgeStrokes& edge)
{
    return std::min(length(p - edge.front().from), length(p - edge.back().to));
}

double gap(const EdgeStrokes& edge, const EdgeStrokes& other)
{
    return std::min(nearest(edge.front().from, other), nearest(edge.back().to, other));
}

// Of several readings that which its neighbours go with best.
EdgeStrokes chosen(const std::vector<Readings>& edges, std::size_t at)
{
    const Readings& readings = edges[at];
    const EdgeStrokes& before = edges[(at + edges.size() - 1) % edges.size()].front();
    const EdgeStrokes& after = edges[(at + 1) % edges.size()].front();
    const auto badness = [&](const EdgeStrokes& one) {
        return one.empty() || before.empty() || after.empty() ? 0 : gap(one, before) + gap(one, after);
    };
    return *std::ranges::min_element(readings, {}, badness);
}

void reverse(EdgeStrokes& strokes)
{
    std::ranges::reverse(strokes);
    for (Stroke& one : strokes) {
        std::swap(one.from, one.to);
        one.sweep = -one.sweep;
    }
}

// Whether the way from a loop's end to its start is no longer than that to the next edge.
bool isClosed(const EdgeStrokes& loop, const EdgeStrokes& next)
{
    return length(loop.back().to - loop.front().from) <= nearest(loop.back().to, next);
}

// The edges of a path that are not yet part of a loop.
class EdgesLeft {
  public:
    explicit EdgesLeft(std::vector<EdgeStrokes> edges) : edges_(std::move(edges)) { passTaken(); }

    bool isEmpty() const { return first_ == edges_.size(); }
    // That which begins or ends nearest to p; of equals the first.
    EdgeStrokes& nearestTo(Vec p);
    EdgeStrokes& first() { return edges_[first_]; }
    // It is taken by leaving it empty.
    void passTaken()
    {
        while (!isEmpty() && edges_[first_].empty()) ++first_;
    }

  private:
    std::vector<EdgeStrokes> edges_;
    std::size_t first_ = 0;
};

EdgeStrokes& EdgesLeft::nearestTo(Vec p)
{
    constexpr std::size_t mostCompared = 2000; // the edges of long paths follow one another, as they should
    const std::size_t end = std::min(edges_.size(), first_ + mostCompared);
    std::size_t best = first_;
    for (std::size_t i = first_ + 1; i < end; ++i) {
        if (!edges_[i].empty() && nearest(p, edges_[i]) < nearest(p, edges_[best])) best = i;
    }
    return edges_[best];
}

// Edges stand in any order and direction: each is followed by the one that begins or ends nearest, until the
// way back to the start is shorter. What is left then is a loop of its own.
std::vector<EdgeStrokes> loopsOf(const std::vector<Readings>& readings)
{
    std::vector<EdgeStrokes> edges;
    for (std::size_t i = 0; i < readings.size(); ++i) edges.push_back(chosen(readings, i));
    EdgesLeft left(std::move(edges));
    std::vector<EdgeStrokes> loops;
    for (; !left.isEmpty(); left.passTaken()) {
        EdgeStrokes edge = loops.empty() ? std::exchange(left.first(), {})
                                         : std::exchange(left.nearestTo(loops.back().back().to), {});
        const bool isNew = loops.empty() || isClosed(loops.back(), edge);
        if (isNew) loops.emplace_back();
        EdgeStrokes& loop = loops.back();
        if (!isNew && length(loop.back().to - edge.back().to) < length(loop.back().to - edge.front().from))
            reverse(edge);
        loop.insert(loop.end(), edge.begin(), edge.end());
    }
    return loops;
}

EdgeStrokes polylinePath(GroupRun& groups, const Transform2& plane, double tolerance)
{
    groups.whole(72);
    groups.whole(73);
    const std::size_t count = groups.count(93);
    std::vector<std::pair<Vec, double>> corners;
    for (std::size_t i = 0; i < count && groups.isAt(10); ++i) {
        const Vec corner = groups.point(10);
        corners.push_back({corner, groups.number(42)});
    }
    EdgeStrokes strokes;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const auto [from, bulge] = corners[i];
        const Vec to = corners[(i + 1) % corners.size()].first;
        if (from == to) continue;
        const EdgeStrokes leg = std::abs(bulge) > 1e-9
                                    ? strokesOf(transformed(arcOfBulge(from, to, bulge), plane), tolerance)
                                    : EdgeStrokes{straightStroke(plane(from), plane(to))};
        EdgeStrokes turned = leg;
        if (!turned.empty() && bulge < 0) reverse(turned);
        strokes.insert(strokes.end(), turned.begin(), turned.end());
    }
    return strokes;
}

std::vector<EdgeStrokes> edgePath(GroupRun& groups, const Transform2& plane, double tolerance)
{
    const std::size_t count = groups.count(93);
    std::vector<Readings> edges;
    for (std::size_t i = 0; i < count && groups.isAt(72); ++i)
        edges.push_back(takeEdge(groups, plane, tolerance));
    return loopsOf(edges);
}

} // namespace

std::vector<HatchPath> takePaths(GroupRun& groups, const Transform2& plane, double tolerance)
{
    std::vector<HatchPath> paths;
    if (!groups.find(91)) return paths;
    const std::size_t count = groups.count(91);
    for (std::size_t i = 0; i < count && groups.isAt(92); ++i) {
        constexpr int polyline = 2;
        const int flags = groups.whole(92);
        const bool isPolyline = (flags & polyline) != 0;
        const std::vector<EdgeStrokes> loops =
            isPolyline ? std::vector<EdgeStrokes>{polylinePath(groups, plane, tolerance)}
                       : edgePath(groups, plane, tolerance);
        while (groups.isAt(97) || groups.isAt(330)) groups.next(); // what it was made of
        for (const EdgeStrokes& loop : loops) {
            if (!loop.empty()) paths.push_back({loop});
        }
    }
    return paths;
}

Loop loopOf(const HatchPath& path, double tolerance)
{
    Loop loop;
    const auto add = [&loop](Vec p) {
        if (isFinite(p) && (loop.empty() || loop.back() != p)) loop.push_back(p);
    };
    for (const Stroke& stroke : path.strokes) {
        constexpr double fewest = 2, most = 200;
        const double step = stroke.isArc() ? std::min(0.06, std::sqrt(8 * tolerance / stroke.radius)) : 1;
        const double chords =
            stroke.isArc() ? std::clamp(std::ceil(std::abs(stroke.sweep) / step), fewest, most) : 1;
        for (double i = 0; i < chords; ++i) add(pointOn(stroke, i / chords));
        add(stroke.to);
    }
    return loop;
}

} // namespace mirtane
