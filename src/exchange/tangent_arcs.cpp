// exchange/tangent_arcs.cpp: a stretch of the curve is two arcs that leave its ends in their directions and
// touch each other; from where the last pair ends, the next goes as far as the tolerance lets it.

#include "exchange/tangent_arcs.h"

#include <algorithm>
#include <numbers>
#include <optional>

namespace mirtane {
namespace {

constexpr double pi = std::numbers::pi;
constexpr int samplesOfFormula = 6;
constexpr std::size_t fewestSteps = 1500;  // that any curve may take, two strokes each
constexpr std::size_t stepsOfFormula = 12; // that one of many formulas may take
constexpr int mostHalvings = 24;           // of the whole range of the parameter
constexpr int growthTries = 3;
constexpr double margin = 0.9; // of the tolerance: between two points looked at the curve may be farther off

struct Pair {
    Stroke first, second;
};

// How far along the two directions the corners of the pair lie, equally far at either end. NaN if nowhere.
double reachOfPair(Vec chord, Vec way0, Vec way1)
{
    const double both = dot(chord, way0 + way1);
    const double apart = 2 * (1 - dot(way0, way1));
    const double square = dot(chord, chord);
    if (apart < 1e-12) return square / (2 * both);
    return (std::sqrt(both * both + apart * square) - both) / apart;
}

std::optional<Pair> touchingPair(Vec from, Vec way0, Vec to, Vec way1)
{
    const Vec chord = to - from;
    const double reach = reachOfPair(chord, way0, way1);
    if (!(reach > 0) || !std::isfinite(reach)) return std::nullopt;
    const Vec middle = 0.5 * (from + reach * way0 + to - reach * way1);
    const Stroke second = arcLeaving(to, -way1, middle); // from its end, turned round below
    return Pair{arcLeaving(from, way0, middle), {middle, to, second.centre, second.radius, -second.sweep}};
}

bool isOnOneCircle(const Stroke& a, const Stroke& b, double tolerance)
{
    return a.isArc() && b.isArc() && (a.sweep > 0) == (b.sweep > 0) &&
           std::abs(a.radius - b.radius) <= tolerance && length(a.centre - b.centre) <= tolerance &&
           std::abs(a.sweep + b.sweep) <= 2 * pi + 1e-9;
}

bool isOnOneLine(const Stroke& a, const Stroke& b, double tolerance)
{
    const Vec whole = b.to - a.from;
    return !a.isArc() && !b.isArc() && dot(a.to - a.from, b.to - b.from) > 0 &&
           std::abs(cross(whole, a.to - a.from)) <= tolerance * length(whole);
}

// As near as makes no visible corner.
bool runsAlong(Vec way, Vec chord)
{
    constexpr double little = 1e-4;
    const double along = dot(way, chord);
    return along > 0 && std::abs(cross(way, chord)) <= little * along;
}

class Fitter {
  public:
    Fitter(const Curve& curve, double tolerance) : curve_(curve), tolerance_(tolerance) {}

    // How much of the range came before there were too many strokes; 1: all.
    double run();
    std::vector<Stroke> take() { return std::move(strokes_); }

  private:
    Vec wayAt(double t, Side side, double towards) const;
    bool fits(double from, double to);
    bool isNear(double from, double to) const;
    void lengthen(double from, double& step, double tooFar);
    void add(const Stroke& stroke) { append(strokes_, stroke, tolerance_); }
    double first() const { return curve_.breaks.front(); }
    double last() const { return curve_.breaks.back(); }

    const Curve& curve_;
    double tolerance_;
    Pair pair_;
    bool isLine_ = false;
    std::vector<Stroke> strokes_;
};

// A direction of length 1. Where the curve stands still for a moment, that of the way to a point nearby.
Vec Fitter::wayAt(double t, Side side, double towards) const
{
    const CurvePoint here = curve_.at(t, side);
    Vec way = here.way;
    const double range = towards - t;
    const Vec nearby = curve_.at(t + range * 1e-3, side).at - here.at;
    if (length(way) * std::abs(range) * 1e-3 < 0.05 * length(nearby)) way = (range < 0 ? -1 : 1) * nearby;
    const double size = length(way);
    return size > 0 ? 1 / size * way : Vec{};
}

bool Fitter::fits(double from, double to)
{
    const Vec start = curve_.at(from, Side::after).at;
    const Vec end = curve_.at(to, Side::before).at;
    pair_ = {straightStroke(start, end), straightStroke(end, end)};
    isLine_ = true;
    const Vec chord = end - start;
    const Vec way0 = wayAt(from, Side::after, to);
    const Vec way1 = wayAt(to, Side::before, from);
    const bool runsOn = runsAlong(way0, chord) && runsAlong(way1, chord);
    if (runsOn && isNear(from, to)) return true;
    const auto pair = touchingPair(start, way0, end, way1);
    if (!pair) return false;
    pair_ = *pair;
    isLine_ = false;
    return isNear(from, to);
}

bool Fitter::isNear(double from, double to) const
{
    const auto near = [&](double t) {
        const Vec p = curve_.at(t, Side::after).at;
        const double far = std::min(distanceTo(pair_.first, p), distanceTo(pair_.second, p));
        return far <= margin * tolerance_; // and not if there is none
    };
    double a = from;
    auto next = std::ranges::upper_bound(curve_.breaks, from);
    while (a < to) {
        const double b = next != curve_.breaks.end() ? std::min(*next++, to) : to;
        for (int i = 1; i < samplesOfFormula; ++i) {
            if (!near(a + (b - a) * i / samplesOfFormula)) return false;
        }
        if (b < to && !near(b)) return false;
        a = b;
    }
    return true;
}

// A step that fits is made longer, short of one that does not.
void Fitter::lengthen(double from, double& step, double tooFar)
{
    for (int i = 0; i < growthTries; ++i) {
        const double middle = (step + tooFar) / 2;
        (fits(from, from + middle) ? step : tooFar) = middle;
    }
    fits(from, from + step);
}

double Fitter::run()
{
    const double smallest = std::ldexp(last() - first(), -mostHalvings);
    const std::size_t mostSteps = std::max(fewestSteps, stepsOfFormula * curve_.breaks.size());
    double from = first();
    double step = last() - from;
    std::size_t steps = 0;
    while (from < last()) {
        step = std::min(step, last() - from);
        double tooFar = step;
        while (!fits(from, from + step) && step > smallest) {
            tooFar = step;
            step /= 2;
        }
        if (step <= smallest) {
            pair_.first =
                straightStroke(curve_.at(from, Side::after).at, curve_.at(from + step, Side::before).at);
            isLine_ = true;
        } else if (step < tooFar) {
            lengthen(from, step, tooFar);
        }
        add(pair_.first);
        if (!isLine_) add(pair_.second);
        if (++steps > mostSteps) return (from - first()) / (last() - first());
        const bool isEnd = from + step >= last() || from + step <= from;
        from = isEnd ? last() : from + step;
        step *= 2;
    }
    return 1;
}

// The larger side of the box about some of its points.
double sizeOf(const Curve& curve)
{
    constexpr int looks = 32;
    const double from = curve.breaks.front();
    const double range = curve.breaks.back() - from;
    Vec low = curve.at(from, Side::after).at;
    Vec high = low;
    for (int i = 1; i <= looks; ++i) {
        const Vec p = curve.at(from + range * i / looks, Side::before).at;
        low = {std::min(low.x, p.x), std::min(low.y, p.y)};
        high = {std::max(high.x, p.x), std::max(high.y, p.y)};
    }
    return std::max(high.x - low.x, high.y - low.y);
}

// By how much the tolerance has to grow for a curve of which so much was done: a pair of arcs strays from it
// as the cube of its length.
double coarserBy(double done)
{
    constexpr double least = 8, most = 1e6;
    return std::clamp(1 / (done * done * done), least, most); // a range of which nothing was done takes most
}

} // namespace

std::vector<Stroke> tangentArcs(const Curve& curve, double tolerance)
{
    if (curve.breaks.size() < 2) return {};
    constexpr double coarsest = 1.0 / 4000, finest = 1.0 / 32'000'000; // of its size; finer than 32 bits tell
    const double size = sizeOf(curve);
    if (size > 0) tolerance = std::clamp(tolerance, finest * size, coarsest * size);
    constexpr int coarser = 8;
    for (int i = 0; i < coarser; ++i) {
        Fitter fitter(curve, tolerance);
        const double done = fitter.run();
        if (done >= 1) return fitter.take();
        tolerance *= coarserBy(done);
    }
    return {};
}

void append(std::vector<Stroke>& strokes, const Stroke& stroke, double tolerance)
{
    if (!isFinite(stroke.from) || !isFinite(stroke.to) || (stroke.from == stroke.to && !stroke.isArc()))
        return;
    const double same = tolerance / 20;
    const bool runsOn = !strokes.empty() && length(strokes.back().to - stroke.from) <= same;
    if (runsOn && isOnOneCircle(strokes.back(), stroke, same)) {
        strokes.back().sweep += stroke.sweep;
        strokes.back().to = stroke.to;
    } else if (runsOn && isOnOneLine(strokes.back(), stroke, same)) {
        strokes.back().to = stroke.to;
    } else {
        strokes.push_back(stroke);
    }
}

Stroke arcLeaving(Vec from, Vec way, Vec to)
{
    const Vec chord = to - from;
    const double across = cross(way, chord);
    const double sweep = 2 * std::atan2(across, dot(way, chord));
    constexpr double straight = 1e-9;
    if (std::abs(sweep) < straight || !std::isfinite(sweep)) return straightStroke(from, to);
    const double radius = dot(chord, chord) / (2 * across); // below 0 where the centre lies to the right
    if (!std::isfinite(radius)) return straightStroke(from, to);
    return {from, to, from + radius * turnedLeft(way), std::abs(radius), sweep};
}

Stroke bulgeStroke(Vec from, Vec to, double bulge)
{
    const Vec chord = to - from;
    const double size = length(chord);
    if (!(size > 0) || bulge == 0) return straightStroke(from, to);
    const double half = 2 * std::atan(bulge); // from the way at the start to the chord
    const Vec along = 1 / size * chord;
    const double c = std::cos(half);
    const double s = std::sin(half);
    return arcLeaving(from, {along.x * c + along.y * s, along.y * c - along.x * s}, to);
}

Vec pointOn(const Stroke& stroke, double part)
{
    if (!stroke.isArc()) return stroke.from + part * (stroke.to - stroke.from);
    const Vec out = stroke.from - stroke.centre;
    const double c = std::cos(stroke.sweep * part);
    const double s = std::sin(stroke.sweep * part);
    return stroke.centre + Vec{out.x * c - out.y * s, out.x * s + out.y * c};
}

double distanceTo(const Stroke& stroke, Vec p)
{
    if (stroke.isArc()) {
        const Vec out = p - stroke.centre;
        const Vec start = stroke.from - stroke.centre;
        const double sign = stroke.sweep < 0 ? -1 : 1;
        double turn = sign * std::atan2(cross(start, out), dot(start, out));
        if (turn < 0) turn += 2 * pi;
        if (turn <= std::abs(stroke.sweep)) return std::abs(length(out) - stroke.radius);
        return std::min(length(p - stroke.from), length(p - stroke.to));
    }
    const Vec chord = stroke.to - stroke.from;
    const double square = dot(chord, chord);
    const double part = square > 0 ? std::clamp(dot(p - stroke.from, chord) / square, 0.0, 1.0) : 0.0;
    return length(p - stroke.from - part * chord);
}

} // namespace mirtane
