#include "raster_probe.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>

namespace mirtane {
namespace {

using namespace probe;

constexpr double endless = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

Pixels lined(int width, int height, double x1, double y1, double x2, double y2, std::int16_t style = 0,
             int scale = 1)
{
    Raster image(width, height);
    image.line(x1, y1, x2, y2, {ink, style, scale});
    return inked(image);
}

TEST(RasterLine, HasBothEndsAndOnePixelAStepNearestToTheTrueLineInAllOctants)
{
    struct Row {
        const char* what;
        int dx, dy;
    };
    const Row rows[] = {
        {"level to the right", 20, 0},
        {"shallow down to the right", 20, 7},
        {"diagonal", 20, 20},
        {"steep down to the right", 7, 20},
        {"straight down", 0, 20},
        {"steep down to the left", -7, 20},
        {"diagonal to the left", -20, 20},
        {"shallow down to the left", -20, 7},
        {"level to the left", -20, 0},
        {"shallow up to the left", -20, -7},
        {"steep up to the left", -7, -20},
        {"straight up", 0, -20},
        {"steep up to the right", 7, -20},
        {"shallow up to the right", 20, -7},
        {"a single pixel", 0, 0},
        {"halves all along", 20, 10},
        {"halves up to the left", -20, -10},
    };
    for (const Row& row : rows) {
        const Pixels found = lined(60, 60, 30.5, 30.25, 30.5 + row.dx, 30.25 + row.dy);
        const int along = std::max(std::abs(row.dx), std::abs(row.dy));
        EXPECT_EQ(found.size(), static_cast<std::size_t>(along) + 1) << row.what;
        EXPECT_TRUE(found.contains({30, 30})) << row.what;
        EXPECT_TRUE(found.contains({30 + row.dx, 30 + row.dy})) << row.what;
        for (const auto& [x, y] : found) {
            const double off = std::abs((x - 30) * row.dy - (y - 30) * row.dx);
            EXPECT_LE(off, 0.5 * along) << row.what << " at " << x << "," << y;
        }
    }
}

TEST(RasterLine, APointBelongsToThePixelAtTheFloor)
{
    EXPECT_EQ(lined(10, 10, 3.999, 2.0, 3.0, 2.999), (Pixels{{3, 2}}));
    EXPECT_EQ(lined(10, 10, -0.001, 5.5, 0.0, 5.5), (Pixels{{0, 5}}));
    EXPECT_EQ(lined(10, 10, 9.999, 9.999, 10.0, 10.0), (Pixels{{9, 9}}));
}

TEST(RasterLine, HasTheSamePixelsFromEitherEnd)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> at(-40, 140);
    for (int i = 0; i < 2000; ++i) {
        const double x1 = at(random), y1 = at(random), x2 = at(random), y2 = at(random);
        ASSERT_EQ(lined(100, 100, x1, y1, x2, y2), lined(100, 100, x2, y2, x1, y1));
    }
}

TEST(RasterLine, ClippingMovesNoPixel)
{
    const PixelRect window{150, 130, 250, 210};
    std::mt19937 random(11);
    std::uniform_real_distribution<double> at(0, 400);
    for (int i = 0; i < 2000; ++i) {
        const double x1 = at(random), y1 = at(random), x2 = at(random), y2 = at(random);
        for (const std::int16_t style : {std::int16_t{0}, std::int16_t{3}}) {
            const Pixels whole = lined(400, 400, x1, y1, x2, y2, style);
            ASSERT_EQ(lined(100, 80, x1 - 150, y1 - 130, x2 - 150, y2 - 130, style), through(whole, window))
                << x1 << " " << y1 << " " << x2 << " " << y2;
        }
    }
}

TEST(RasterLine, FromFarOutsidePassesWithinAPixelOfTheTrueLine)
{
    for (const double far : {1e4, 1e6, 1e8, 1e9, 1e11}) {
        // Through (50, 40) with a slope of a third, from both sides.
        const Pixels found = lined(100, 100, 50 - 3 * far, 40 - far, 50 + 3 * far, 40 + far);
        EXPECT_EQ(found.size(), 100U) << far;
        for (const auto& [x, y] : found) EXPECT_NEAR(y + 0.5, 40 + (x + 0.5 - 50) / 3, 1) << far;
        const Pixels steep = lined(100, 100, 20 - far, 40 + 3 * far, 20.5, 40.5);
        for (const auto& [x, y] : steep) EXPECT_NEAR(x + 0.5, 20.5 + (40 - y) / 3.0, 1) << far;
        EXPECT_TRUE(steep.contains({20, 40})) << far;
        EXPECT_EQ(steep.size(), 60U) << far;
    }
}

TEST(RasterLine, WhatLiesOutsideDrawsNothing)
{
    EXPECT_TRUE(lined(50, 50, -10, 5, -1, 40).empty());
    EXPECT_TRUE(lined(50, 50, 50, 5, 60, 40).empty());
    EXPECT_TRUE(lined(50, 50, 5, -3, 40, -0.5).empty());
    EXPECT_TRUE(lined(50, 50, 5, 50, 40, 70).empty());
    EXPECT_TRUE(lined(50, 50, -10, 5, 5, -10).empty()) << "past the corner";
    EXPECT_TRUE(lined(50, 50, -1e30, 5e29, 5e29, -1e30).empty()) << "far past the corner";
}

TEST(RasterLine, AnyCoordinateIsHarmless)
{
    const double values[] = {
        0,        25.5,    -25.5,    1e5,        -1e5,        2147483648.0, -2147483649.0,
        1e19,     -1e19,   3.4e38,   -3.4e38,    1e300,       -1e300,       1.7e308,
        -1.7e308, endless, -endless, notANumber, 268435456.0, -268435456.0, 5e-324};
    Raster image(40, 30);
    for (const double a : values) {
        for (const double b : values) {
            for (const double c : values) {
                for (const double d : values) {
                    image.line(a, b, c, d, {ink});
                    image.line(a, b, c, d, {ink, 4, 2});
                }
            }
        }
    }
    for (const double bad : {endless, -endless, notANumber}) {
        EXPECT_TRUE(lined(20, 20, bad, 5, 10, 10).empty()) << bad;
        EXPECT_TRUE(lined(20, 20, 5, bad, 10, 10).empty()) << bad;
        EXPECT_TRUE(lined(20, 20, 5, 5, bad, 10).empty()) << bad;
        EXPECT_TRUE(lined(20, 20, 5, 5, 10, bad).empty()) << bad;
    }
}

// A row of pixels as a string, '#' on and '.' off.
std::string dashes(std::int16_t style, int scale, int length, bool upright = false, bool backward = false)
{
    Raster image(200, 200);
    const double from = backward ? length - 1 : 0;
    const double to = backward ? 0 : length - 1;
    if (upright) image.line(5, from, 5, to, {ink, style, scale});
    if (!upright) image.line(from, 5, to, 5, {ink, style, scale});
    std::string shown;
    for (int i = 0; i < length; ++i) {
        const int at = backward ? length - 1 - i : i;
        shown += (upright ? image.at(5, at) : image.at(at, 5)) == ink ? '#' : '.';
    }
    return shown;
}

TEST(RasterLine, DashesBeginAtTheFirstEndAndRepeat)
{
    struct Row {
        const char* what;
        std::int16_t style;
        int scale;
        std::string shown;
    };
    const std::string dash = "##################......";
    const std::string dashDot = "#########......###......";
    const std::string dashDotDot = "#########...###...###...";
    const Row rows[] = {
        {"solid", 0, 1, std::string(50, '#')},
        {"dash", 1, 1, dash + dash + "##"},
        {"dot", 2, 1, "###...###...###...#"},
        {"dash-dot", 3, 1, dashDot + dashDot + "#"},
        {"dash-dot-dot", 4, 1, dashDotDot + dashDotDot + "#"},
        {"dots at scale 2", 2, 2, "######......######......##"},
        {"dash at scale 3", 1, 3, std::string(54, '#') + std::string(18, '.') + "#"},
        {"a style that is none", 5, 1, std::string(50, '#')},
        {"a negative style", -1, 1, std::string(50, '#')},
    };
    for (const Row& row : rows) {
        const int length = static_cast<int>(row.shown.size());
        EXPECT_EQ(dashes(row.style, row.scale, length), row.shown) << row.what;
        EXPECT_EQ(dashes(row.style, row.scale, length, true), row.shown) << row.what << ", downward";
        EXPECT_EQ(dashes(row.style, row.scale, length, false, true), row.shown)
            << row.what << ", to the left";
    }
}

TEST(RasterLine, DashesOfASlantedLineAreCountedAlongItsLongerSide)
{
    const Pixels found = lined(100, 100, 0, 0, 59, 25, 2);
    EXPECT_EQ(found.size(), 30U);
    for (const auto& [x, y] : found) EXPECT_LT(x % 6, 3);
}

} // namespace
} // namespace mirtane
