// exchange/spline_through.cpp: a cubic a stretch, and the tangents at the points such that the curvature runs
// on. The parameter is the length of the chords.

#include "exchange/spline.h"

#include <algorithm>
#include <memory>

namespace mirtane {
namespace {

struct Through {
    std::vector<Vec> points;
    std::vector<double> at; // the parameter of each point
    std::vector<Vec> ways;  // the derivative there

    double step(std::size_t i) const { return at[i + 1] - at[i]; }
    Vec slope(std::size_t i) const { return 1 / step(i) * (points[i + 1] - points[i]); }
};

void measureChords(Through& t)
{
    t.at.assign(1, 0.0);
    for (std::size_t i = 1; i < t.points.size(); ++i)
        t.at.push_back(t.at.back() + length(t.points[i] - t.points[i - 1]));
}

// A row of the equations: low times the tangent before, middle times this one and high times the next make
// right.
struct Row {
    double low = 0, middle = 1, high = 0;
    Vec right;
};

Row rowOf(const Through& t, std::size_t i)
{
    const double before = t.step(i - 1);
    const double after = t.step(i);
    return {after, 2 * (before + after), before, 3 * (after * t.slope(i - 1) + before * t.slope(i))};
}

void solve(Through& t, std::vector<Row> rows)
{
    for (std::size_t i = 1; i < rows.size(); ++i) {
        const double k = rows[i].low / rows[i - 1].middle;
        rows[i].middle -= k * rows[i - 1].high;
        rows[i].right = rows[i].right - k * rows[i - 1].right;
    }
    t.ways.assign(rows.size(), {});
    for (std::size_t i = rows.size(); i-- > 0;) {
        const Vec next = i + 1 < rows.size() ? t.ways[i + 1] : Vec{};
        t.ways[i] = 1 / rows[i].middle * (rows[i].right - rows[i].high * next);
    }
}

Vec unit(Vec v)
{
    const double size = length(v);
    return size > 0 && std::isfinite(size) ? 1 / size * v : Vec{};
}

// The direction at the first of some points as its chord and the next tell, with two more put before them on
// a parabola: the less the curve turns behind than before, the more the chord itself counts.
Vec estimatedWay(Vec chord, Vec next)
{
    const Vec before = 2 * chord - next;
    const double turnBefore = std::abs(cross(2 * before - chord, before));
    const double turns = turnBefore + std::abs(cross(chord, next));
    const double part = turns > 0 ? turnBefore / turns : 1;
    return unit((1 - part) * before + part * chord);
}

// The way at the point at an end, from the two next to it.
Vec wayAtEnd(Vec end, Vec next, Vec third)
{
    return estimatedWay(next - end, third - next);
}

// An end that nothing is said of goes as its neighbours tell.
void findWays(Through& t, const PassingEnds& ends)
{
    const std::vector<Vec>& p = t.points;
    const std::size_t last = p.size() - 1;
    const Vec first = last > 1 ? wayAtEnd(p[0], p[1], p[2]) : unit(p[1] - p[0]);
    const Vec final = last > 1 ? -wayAtEnd(p[last], p[last - 1], p[last - 2]) : first;
    std::vector<Row> rows;
    rows.push_back({0, 1, 0, length(ends.start) > 0 ? ends.start : first});
    for (std::size_t i = 1; i < last; ++i) rows.push_back(rowOf(t, i));
    rows.push_back({0, 1, 0, length(ends.end) > 0 ? ends.end : final});
    solve(t, std::move(rows));
}

CurvePoint pointAt(const Through& t, double s, Side side)
{
    const auto above =
        side == Side::after ? std::ranges::upper_bound(t.at, s) : std::ranges::lower_bound(t.at, s);
    const auto next = std::clamp<std::ptrdiff_t>(above - t.at.begin(), 1, std::ssize(t.at) - 1);
    const auto i = static_cast<std::size_t>(next - 1); // from 0 on
    const double h = t.step(i);
    const double u = (s - t.at[i]) / h;
    const Vec chord = t.points[i + 1] - t.points[i];
    const Vec b = 3 * chord - 2 * h * t.ways[i] - h * t.ways[i + 1];
    const Vec c = h * (t.ways[i] + t.ways[i + 1]) - 2 * chord;
    return {t.points[i] + u * (h * t.ways[i] + u * (b + u * c)), t.ways[i] + u / h * (2 * b + 3 * u * c)};
}

// How a tangent pulls dies away by a quarter from point to point: with the points given this often round
// either end, the ends of a closed curve don't know of each other.
constexpr std::size_t pointsBeyond = 24;

Through solvedRound(const std::vector<Vec>& points)
{
    const std::size_t count = points.size();
    Through round;
    for (std::size_t i = 0; i <= count + 2 * pointsBeyond; ++i)
        round.points.push_back(points[(i + count * pointsBeyond - pointsBeyond) % count]);
    measureChords(round);
    findWays(round, {});
    const auto cut = [count](auto& all) {
        all.erase(all.begin(), all.begin() + pointsBeyond);
        all.resize(count + 1);
    };
    cut(round.points);
    cut(round.at);
    cut(round.ways);
    return round;
}

} // namespace

std::vector<Curve> curvesThrough(std::vector<Vec> points, const PassingEnds& ends)
{
    const auto near = [](Vec p) { return std::abs(p.x) < farthestPoint && std::abs(p.y) < farthestPoint; };
    if (!std::ranges::all_of(points, near)) return {};
    points.erase(std::unique(points.begin(), points.end()), points.end());
    const bool isClosed = ends.isClosed && points.size() > 2;
    if (isClosed && points.front() == points.back()) points.pop_back();
    if (points.size() < 2) return {};
    auto through = std::make_shared<Through>();
    if (isClosed) {
        *through = solvedRound(points);
    } else {
        through->points = std::move(points);
        measureChords(*through);
        findWays(*through, {unit(ends.start), unit(ends.end)});
    }
    return {{[through](double t, Side side) { return pointAt(*through, t, side); }, through->at}};
}

} // namespace mirtane
