#include "geometry/flat_arc.h"

#include "geometry/angle.h"
#include "geometry/fault.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace mirtane {
namespace {

// As parts of the chord.
constexpr double flatFrom = 100;
constexpr double flattest = 1e5;

// A gap at an end is seen before a bulge as high is.
constexpr double gapWeight = 8;

constexpr int trials = 400;
constexpr double nextTrial = 0.985; // down to a four-hundredth of the first radius

struct Difference {
    double x, y;
};

Difference difference(Point a, Point b)
{
    return {static_cast<double>(b.x) - a.x, static_cast<double>(b.y) - a.y}; // widened before the differences
}

double lengthOf(Difference v)
{
    return std::sqrt(v.x * v.x + v.y * v.y);
}

// How high the arc stands over its chord.
double bulge(double chord, double radius)
{
    return chord * chord / (8 * radius);
}

// The circles by way of two points, with the centre on one side.
class ChordCircles {
  public:
    ChordCircles(Point a, Point b, Way towards) : a_(a), b_(b), chord_(lengthOf(difference(a, b)))
    {
        const Difference along = difference(a, b);
        const double side = along.x * towards.y - along.y * towards.x > 0 ? 1 : -1;
        across_ = {-side * quotient(along.y, chord_), side * quotient(along.x, chord_)};
        middle_ = {a.x + along.x / 2, a.y + along.y / 2};
    }

    double chord() const { return chord_; }

    // As 32 bits hold it.
    FlatCircle of(double radius) const
    {
        const double off = std::sqrt(radius * radius - chord_ * chord_ / 4);
        FlatCircle circle{a_, 0};
        keep(circle.centre.x, middle_.x + off * across_.x);
        keep(circle.centre.y, middle_.y + off * across_.y);
        keep(circle.radius, lengthOf(difference(circle.centre, a_)));
        return circle;
    }

    // By how much it misses the two points.
    double missed(const FlatCircle& circle) const
    {
        return std::max(std::abs(lengthOf(difference(circle.centre, a_)) - circle.radius),
                        std::abs(lengthOf(difference(circle.centre, b_)) - circle.radius));
    }

  private:
    Point a_, b_;
    double chord_;
    Difference across_{}, middle_{};
};

// Of the direction up to a right angle: how far it rises.
double slopeAngle(double up, double along)
{
    return std::atan(quotient(up, along));
}

} // namespace

bool isFlat(double radius, double chord)
{
    return radius > flatFrom * chord;
}

FlatCircle flatCircle(Point a, Point b, Way towards, double radius)
{
    const ChordCircles circles(a, b, towards);
    const double wanted = bulge(circles.chord(), radius);
    double tried = std::min(radius, flattest * circles.chord());
    FlatCircle best = circles.of(tried);
    double leastOff = std::numeric_limits<double>::infinity();
    for (int i = 0; i < trials; ++i, tried *= nextTrial) {
        const FlatCircle circle = circles.of(tried);
        const double off =
            gapWeight * circles.missed(circle) + std::abs(bulge(circles.chord(), tried) - wanted);
        if (!(off < leastOff)) continue;
        leastOff = off;
        best = circle;
    }
    return best;
}

double fullDirection(Point a, Point b)
{
    const Difference way = difference(a, b);
    const double right = std::abs(way.x);
    const double up = std::abs(way.y);
    if (way.x == 0) return way.y < 0 ? quarterTurn : threeQuartersTurn;
    if (way.y == 0) return way.x > 0 ? 0 : halfTurn;
    if (way.x > 0 && way.y < 0) return slopeAngle(up, right);
    if (way.y < 0) return halfTurn - slopeAngle(up, right);
    return way.x < 0 ? halfTurn + slopeAngle(up, right) : fullTurn - slopeAngle(up, right);
}

} // namespace mirtane
