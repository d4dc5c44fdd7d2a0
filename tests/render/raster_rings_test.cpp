// However quickly circles and arcs are drawn, they have the pixels of the plainest way.

#include "hostile_numbers.h"
#include "plain_ring.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

constexpr int ringsWide = 240;
constexpr int ringsHigh = 190;

struct Picture {
    Raster quick{ringsWide, ringsHigh};
    Raster plain{ringsWide, ringsHigh};

    bool same() const { return std::ranges::equal(quick.pixels(), plain.pixels()); }
};

Stroke anyStroke(fake::HostileNumbers& numbers)
{
    return {0xFF000000U | numbers.bits(), static_cast<std::int16_t>(numbers.below(5)),
            1 + static_cast<int>(numbers.below(3))}; // small numbers
}

// Also over the edges, and as small as a pixel.
struct Placed {
    explicit Placed(fake::HostileNumbers& numbers)
        : x(numbers.between(-40, ringsWide + 40)), y(numbers.between(-40, ringsHigh + 40)),
          r(std::exp(numbers.between(-1, 5)))
    {
    }
    double x, y, r;
};

TEST(RasterRings, ACircleHasThePixelsOfThePlainestWay)
{
    fake::HostileNumbers numbers(11);
    for (int round = 0; round < 800; ++round) {
        Picture picture;
        const Placed at(numbers);
        const Stroke stroke = anyStroke(numbers);
        picture.quick.circle(at.x, at.y, at.r, stroke);
        probe::PlainRing(picture.plain, at.x, at.y, at.r).circle(stroke);
        ASSERT_TRUE(picture.same()) << round << ": " << at.x << " " << at.y << " " << at.r;
    }
}

// Angles of a turn, of many, of less than none, and those on the diagonals and the axes.
double anyAngle(fake::HostileNumbers& numbers)
{
    constexpr double eighth = std::numbers::pi / 4;
    switch (numbers.below(4)) {
    case 0:
        return numbers.between(-30, 30);
    case 1:
        return eighth * numbers.below(17);
    case 2:
        return 0.7853982 * numbers.below(9);
    default:
        return numbers.between(0, 6.2831853);
    }
}

TEST(RasterRings, AnArcHasThePixelsOfThePlainestWay)
{
    fake::HostileNumbers numbers(12);
    for (int round = 0; round < 2000; ++round) {
        Picture picture;
        const Placed at(numbers);
        const Stroke stroke = anyStroke(numbers);
        const double a1 = anyAngle(numbers);
        const double a2 = anyAngle(numbers);
        picture.quick.arc(at.x, at.y, at.r, a1, a2, stroke);
        probe::PlainRing(picture.plain, at.x, at.y, at.r).arc(a1, a2, stroke);
        ASSERT_TRUE(picture.same()) << round << ": " << at.x << " " << at.y << " " << at.r << " from " << a1
                                    << " to " << a2;
    }
}

} // namespace
} // namespace mirtane
