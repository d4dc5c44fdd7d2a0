#pragma once

// Lines as they come about on the screen, each point rounded to 32 bits as it is stored: legs drawn with
// ortho, their copies, pieces and offsets.

#include "geometry/angle.h"
#include "geometry/ortho.h"
#include "model/record_moves.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>

namespace mirtane::fake {

struct Segment {
    Point from, to;

    double length() const { return std::hypot(double{to.x} - from.x, double{to.y} - from.y); }
    // The largest coordinate, by which rounding goes.
    double reach() const
    {
        return std::max({std::abs(from.x), std::abs(from.y), std::abs(to.x), std::abs(to.y)});
    }
    Segment reversed() const { return {to, from}; }
    // The point at a share of the way, and so far to the side.
    Point at(double share, double aside = 0) const
    {
        const double dx = double{to.x} - from.x;
        const double dy = double{to.y} - from.y;
        return {static_cast<float>(from.x + share * dx - aside * dy / length()), // as stored
                static_cast<float>(from.y + share * dy + aside * dx / length())};
    }
};

// The same numbers on every machine.
class Slanted {
  public:
    explicit Slanted(std::uint32_t seed) : engine_(seed) {}

    double between(double low, double high)
    {
        const auto thrown = static_cast<double>(engine_()); // of 32 bits: exact
        return low + (high - low) * thrown / 4294967296.0;
    }
    // As many small ones as large ones.
    double anySize(double low, double high) { return std::exp(between(std::log(low), std::log(high))); }
    int below(int limit) { return static_cast<int>(between(0, limit)); } // of small numbers
    bool chance() { return below(2) == 0; }

    Point pointWithin(Point middle, double reach)
    {
        const auto x = static_cast<float>(middle.x + between(-reach, reach)); // as stored
        return {x, static_cast<float>(middle.y + between(-reach, reach))};
    }

    // A leg along one axis of ortho, either way.
    Segment leg(Point from, double length, double orthoAngle)
    {
        const auto sector = static_cast<std::int16_t>(chance() ? 1 : 3);
        return {from, pointOnAxis(from, length, sector, orthoAngle, from)};
    }

  private:
    std::mt19937 engine_;
};

inline Segment copied(const Segment& s, Point by)
{
    return {{s.from.x + by.x, s.from.y + by.y}, {s.to.x + by.x, s.to.y + by.y}};
}

inline Segment piece(const Segment& s, double from, double to)
{
    return {s.at(from), s.at(to)};
}

inline Segment offset(const Segment& s, double aside)
{
    return {s.at(0, aside), s.at(1, aside)};
}

// Two lines that were drawn parallel, or one after the other on one line.
struct Pair {
    const char* how;
    Segment one, other;
};

inline Pair drawnParallel(Slanted& dice, Point place, double size, double orthoAngle)
{
    const auto somewhere = [&] { return dice.pointWithin(place, size); };
    const auto someLength = [&] { return dice.between(size / 20, size); };
    const Segment leg = dice.leg(somewhere(), someLength(), orthoAngle);
    const Point by = dice.pointWithin({0, 0}, size);
    const double cut = dice.between(0.2, 0.8);
    switch (dice.below(8)) {
    case 0:
        return {"two legs", leg, dice.leg(somewhere(), someLength(), orthoAngle)};
    case 1:
        return {"a copy", leg, copied(leg, by)};
    case 2:
        return {"a copy of a copy", leg, copied(copied(leg, by), dice.pointWithin({0, 0}, size))};
    case 3:
        return {"halves", piece(leg, 0, cut), piece(leg, cut, 1)};
    case 4:
        return {"an offset", leg, offset(leg, dice.between(-size, size))};
    case 6: {
        const Turn halfTurn(somewhere(), (dice.chance() ? 180 : -180) * radiansPerDegree);
        return {"turned half round", leg, {halfTurn.of(leg.from), halfTurn.of(leg.to)}};
    }
    case 5:
        return {"a piece of a copy", leg, piece(copied(leg, by), cut, 1)};
    default:
        return {"legs one after the other", leg, dice.leg(leg.to, someLength(), orthoAngle)};
    }
}

} // namespace mirtane::fake
