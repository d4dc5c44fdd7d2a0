#include "raster_probe.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <random>

namespace mirtane {
namespace {

using namespace probe;

constexpr double pi = std::numbers::pi;

Pixels circled(int side, double cx, double cy, double r, std::int16_t style = 0)
{
    Raster image(side, side);
    image.circle(cx, cy, r, {ink, style});
    return inked(image);
}

Pixels arced(double r, double a1, double a2)
{
    Raster image(200, 200);
    image.arc(100, 100, r, a1, a2, {ink});
    return inked(image);
}

double directionOf(int x, int y)
{
    const double a = std::atan2(100 - y, x - 100);
    return a < 0 ? a + 2 * pi : a;
}

TEST(RasterCircle, LiesAtItsRadiusAndIsTheSameInAllMirrors)
{
    for (const double r : {1.0, 2.0, 3.3, 5.0, 8.51, 20.0, 20.5, 20.52, 47.9, 90.0}) {
        const Pixels found = circled(200, 100.7, 100.2, r);
        ASSERT_FALSE(found.empty()) << r;
        for (const auto& [x, y] : found) {
            const int dx = x - 100, dy = y - 100;
            EXPECT_NEAR(std::hypot(dx, dy), r, r < 2 ? 0.75 : 0.55) << r;
            EXPECT_TRUE(found.contains({100 - dx, y})) << r;
            EXPECT_TRUE(found.contains({x, 100 - dy})) << r;
            EXPECT_TRUE(found.contains({100 + dy, 100 + dx})) << r;
        }
    }
}

TEST(RasterCircle, IsClosed)
{
    for (double r = 1; r < 95; r += 0.37) {
        const Pixels found = circled(200, 100, 100, r);
        for (const auto& [x, y] : found) {
            int neighbours = 0;
            for (int dx = -1; dx <= 1; ++dx) {
                for (int dy = -1; dy <= 1; ++dy) {
                    neighbours += (dx != 0 || dy != 0) && found.contains({x + dx, y + dy}) ? 1 : 0;
                }
            }
            ASSERT_GE(neighbours, 2) << r << " at " << x << "," << y;
        }
        const std::size_t least = static_cast<std::size_t>(4 * std::sqrt(2) * r) - 4;
        ASSERT_GE(found.size() + 4, least) << r;
    }
}

TEST(RasterCircle, HasNoSinglePixelAtItsExtremes)
{
    for (double r = 4; r < 60; r += 0.01) {
        const Pixels found = circled(130, 64, 64, r);
        const int last = found.rbegin()->first;
        ASSERT_TRUE(found.contains({last, 63}) && found.contains({last, 65})) << r;
    }
}

TEST(RasterCircle, NoRadiusIsOnePixel)
{
    EXPECT_EQ(circled(10, 4.5, 6.5, 0), (Pixels{{4, 6}}));
    EXPECT_EQ(circled(10, 4.5, 6.5, 0.3), (Pixels{{4, 6}}));
    EXPECT_TRUE(circled(10, 4.5, 6.5, -1).empty());
}

TEST(RasterCircle, ClippingMovesNoPixel)
{
    const PixelRect window{150, 130, 250, 230};
    std::mt19937 random(3);
    std::uniform_real_distribution<double> at(100, 300);
    std::uniform_real_distribution<double> size(0, 99);
    for (int i = 0; i < 500; ++i) {
        const double cx = at(random), cy = at(random), r = size(random);
        for (const std::int16_t style : {std::int16_t{0}, std::int16_t{2}}) {
            const Pixels whole = circled(400, cx, cy, r, style);
            ASSERT_EQ(circled(100, cx - 150, cy - 130, r, style), through(whole, window))
                << cx << " " << cy << " " << r;
        }
    }
}

TEST(RasterCircle, OfAnySizePassesWhereItShould)
{
    for (const double r : {1e3, 1e5, 1e7, 1e9, 1e11}) {
        const Pixels found = circled(100, 50 - r, 50, r); // its right extreme in the middle of the image
        EXPECT_GE(found.size(), 100U) << r;
        for (const auto& [x, y] : found) EXPECT_NEAR(std::hypot(x - 50 + r, y - 50) - r, 0, 1) << r;
    }
}

TEST(RasterCircle, AnyNumberIsHarmless)
{
    const double values[] = {0,
                             25.5,
                             -25.5,
                             1e5,
                             -1e5,
                             1e12,
                             -1e12,
                             1e19,
                             3.4e38,
                             -3.4e38,
                             1e300,
                             std::numeric_limits<double>::infinity(),
                             -std::numeric_limits<double>::infinity(),
                             std::numeric_limits<double>::quiet_NaN()};
    Raster image(40, 30);
    for (const double a : values) {
        for (const double b : values) {
            for (const double c : values) {
                image.circle(a, b, c, {ink});
                image.circle(a, b, c, {ink, 1, 2});
                image.arc(20, 15, 10, a, b, {ink});
                image.arc(a, b, c, 1, 5, {ink, 3, 1});
            }
        }
    }
    EXPECT_TRUE(circled(20, 10, 10, std::numeric_limits<double>::infinity()).empty());
    EXPECT_TRUE(circled(20, std::numeric_limits<double>::quiet_NaN(), 10, 5).empty());
}

TEST(RasterCircle, DottedHasHalfOfItsPixels)
{
    const Pixels solid = circled(200, 100, 100, 80);
    const Pixels dotted = circled(200, 100, 100, 80, 2);
    EXPECT_NEAR(static_cast<double>(dotted.size()) / static_cast<double>(solid.size()), 0.5, 0.02);
    for (const auto& pixel : dotted) EXPECT_TRUE(solid.contains(pixel));
    EXPECT_TRUE(dotted.contains({180, 100}) && dotted.contains({180, 98})) << "three on from angle 0 upward";
    EXPECT_FALSE(dotted.contains({180, 97}) || dotted.contains({180, 95})) << "then three off";
}

TEST(RasterArc, HasThePixelsOfItsCircleBetweenItsAngles)
{
    struct Row {
        const char* what;
        double a1, a2;
    };
    const Row rows[] = {
        {"first quadrant", 0, pi / 2},
        {"second quadrant", pi / 2, pi},
        {"third quadrant", pi, 1.5 * pi},
        {"fourth quadrant", 1.5 * pi, 2 * pi - 0.001},
        {"upper half", 0, pi},
        {"through angle 0", 1.75 * pi, 0.25 * pi},
        {"almost all, through angle 0", 1, 0.8},
        {"a little", 2, 2.1},
        {"through 0 with a negative start", -0.5, 0.5},
        {"across a diagonal", 0.7, 0.9},
    };
    const Pixels ring = circled(200, 100, 100, 70.3);
    for (const Row& row : rows) {
        const Pixels found = arced(70.3, row.a1, row.a2);
        const double sweep = row.a2 < row.a1 ? row.a2 - row.a1 + 2 * pi : row.a2 - row.a1;
        for (const auto& [x, y] : ring) {
            const double on = std::fmod(directionOf(x, y) - row.a1 + 4 * pi, 2 * pi);
            const double slack = 1.0 / 70;
            if (on > slack && on < sweep - slack) {
                EXPECT_TRUE(found.contains({x, y})) << row.what << " " << on;
            }
            if (on > sweep + slack && on < 2 * pi - slack) {
                EXPECT_FALSE(found.contains({x, y})) << row.what << " " << on;
            }
        }
        for (const auto& pixel : found) EXPECT_TRUE(ring.contains(pixel)) << row.what;
        const auto end = [](double a) {
            return std::pair(100 + 70.3 * std::cos(a), 100 - 70.3 * std::sin(a));
        };
        for (const double a : {row.a1, row.a2}) {
            const auto [ex, ey] = end(a);
            bool reached = false;
            for (const auto& [x, y] : found)
                reached = reached || (std::abs(x - ex) < 1 && std::abs(y - ey) < 1);
            EXPECT_TRUE(reached) << row.what << " end at " << a;
        }
    }
}

TEST(RasterArc, AFullTurnIsTheCircle)
{
    const Pixels ring = circled(200, 100, 100, 70);
    EXPECT_EQ(arced(70, 0, 6.2831853), ring);
    EXPECT_EQ(arced(70, 0, 2 * pi), ring);
    EXPECT_EQ(arced(70, 1.5707963, 1.5707963 + 6.2831853), ring);
}

// As degrees were turned into angles that are a little too large.
TEST(RasterArc, AFullTurnInDegreesIsTheCircle)
{
    const Pixels ring = circled(200, 100, 100, 61.4);
    for (const double degrees : {0.0, 33.3, 90.0, 215.0, 359.5}) {
        EXPECT_EQ(arced(61.4, degrees * 0.0174533, (degrees + 360) * 0.0174533), ring) << degrees;
    }
}

TEST(RasterArc, EqualAnglesAreOnePixel)
{
    EXPECT_EQ(arced(70, 0, 0), (Pixels{{170, 100}}));
    EXPECT_EQ(arced(70, pi / 2, pi / 2), (Pixels{{100, 30}}));
}

} // namespace
} // namespace mirtane
