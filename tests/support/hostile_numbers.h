#pragma once

// Numbers by chance as a file made to harm has them: the greatest, the smallest, those that are none, those
// next to others, and between them ordinary ones. The same seed gives the same ones.

#include "tables/entity_record.h"
#include "tables/kinds.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

namespace mirtane::fake {

class HostileNumbers {
  public:
    explicit HostileNumbers(std::uint32_t seed) : generator_(seed) {}

    std::uint32_t bits() { return static_cast<std::uint32_t>(generator_()); } // of 32 bits
    std::uint32_t below(std::uint32_t limit) { return bits() % limit; }
    double between(double low, double high) { return low + (high - low) * (bits() / 4294967295.0); }

    float anyFloat()
    {
        constexpr float largest = std::numeric_limits<float>::max();
        constexpr std::array<float, 12> special{0,           -0.0F,           largest, -largest,
                                                largest / 2, 1.17549435e-38F, 1e-45F,  2147483648.0F,
                                                1e9F,        -3e38F,          1.7e38F, 0.05F};
        switch (below(6)) {
        case 0:
            return special[below(special.size())];
        case 1:
            return std::bit_cast<float>(bits()); // NaN and infinity among them
        case 2:
            return std::nextafter(special[below(special.size())], 0.0F);
        case 3:
            return static_cast<float>(std::ldexp(between(-1, 1), static_cast<int>(below(256)) - 127));
        default:
            return static_cast<float>(between(-3000, 3000));
        }
    }

    double anyDouble()
    {
        switch (below(4)) {
        case 0:
            return std::bit_cast<double>(std::uint64_t{bits()} << 32 | bits());
        case 1:
            return std::ldexp(between(-1, 1), static_cast<int>(below(400)) - 100);
        case 2:
            return anyFloat();
        default:
            return between(-7, 7);
        }
    }

  private:
    std::mt19937 generator_;
};

// A record of any kind with such numbers in all of its fields; some of its points lie in one place.
inline EntityRecord anyRecord(HostileNumbers& numbers)
{
    EntityRecord r;
    r.kind = everyKind[numbers.below(std::size(everyKind))];
    for (Point* p : {&r.p1, &r.p2, &r.p3, &r.p4, &r.p5}) *p = {numbers.anyFloat(), numbers.anyFloat()};
    if (numbers.below(3) == 0) r.p2 = r.p1;
    if (numbers.below(3) == 0) r.p4 = r.p3;
    for (float* f : {&r.s1, &r.s2, &r.rad}) *f = numbers.anyFloat();
    if (numbers.below(2) == 0) r.s1 = static_cast<float>(numbers.below(4)); // the style of an arrow
    for (double* a : {&r.a1, &r.a2, &r.a3}) *a = numbers.anyDouble();
    r.color = static_cast<std::int32_t>(numbers.bits());   // any bits are one
    r.style = static_cast<std::int16_t>(numbers.below(7)); // two of them none
    r.t1 = "text";
    r.t2 = "Garamond";
    return r;
}

} // namespace mirtane::fake
