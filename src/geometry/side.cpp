#include "geometry/side.h"

#include <algorithm>
#include <array>

namespace mirtane {
namespace {

// Both together are exactly the sum of two numbers: its rounded value, and what the rounding left out.
struct Sum {
    double rounded, rest;
};

Sum sumOf(double a, double b)
{
    const double rounded = a + b;
    const double ofB = rounded - a;
    return {rounded, (a - (rounded - ofB)) + (b - ofB)};
}

int signOf(double value)
{
    return (value > 0) - (value < 0);
}

// Of the exact sum. It is kept in parts that overlap in no digit, the least first, so that the largest one
// that is not 0 has its sign.
int signOfSum(const std::array<double, 6>& terms)
{
    std::array<double, 6> parts{};
    for (double carried : terms) {
        for (double& part : parts) {
            const Sum sum = sumOf(carried, part);
            part = sum.rest;
            carried = sum.rounded;
        }
        std::rotate(parts.begin(), parts.begin() + 1, parts.end());
        parts.back() = carried;
    }
    const auto largest = std::find_if(parts.rbegin(), parts.rend(), [](double part) { return part != 0; });
    return largest == parts.rend() ? 0 : signOf(*largest);
}

// Two 32-bit numbers multiply exactly in a double.
double product(float a, float b)
{
    return static_cast<double>(a) * b;
}

} // namespace

int sideOfLine(Point p, Point a, Point b)
{
    // (b - a) x (p - a), multiplied out: the differences would round.
    return signOfSum({product(b.x, p.y), -product(b.x, a.y), -product(a.x, p.y), -product(b.y, p.x),
                      product(b.y, a.x), product(a.y, p.x)});
}

} // namespace mirtane
