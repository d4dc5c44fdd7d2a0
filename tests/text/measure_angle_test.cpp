#include "geometry/angle.h"
#include "text/measure.h"

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace mirtane {
namespace {

constexpr std::int16_t decimalDegrees = 0;
constexpr std::int16_t minutesAndSeconds = 1;

TEST(AngleText, ThreePlacesOrMinutesAndSeconds)
{
    struct Row {
        const char* what;
        double sweep; // radians
        const char* digits;
        const char* parts;
    };
    const Row rows[] = {
        {"a radian: 17.7468 minutes, 44.81 seconds", 1.0, "57.296", "57° 17' 45\""},
        {"two: 35.4936, 29.62", 2.0, "114.592", "114° 35' 30\""},
        {"three: 53.2404, 14.42", 3.0, "171.887", "171° 53' 14\""},
        {"four: 10.9872, 59.23", 4.0, "229.183", "229° 10' 59\""},
        {"six: 46.4808, 28.85", 6.0, "343.775", "343° 46' 29\""},
        {"a half: 38.8734, 52.40", 0.5, "28.648", "28° 38' 52\""},
        {"a quarter: 19.4367, 26.20", 0.25, "14.324", "14° 19' 26\""},
        {"five and a half: 7.6074, 36.44", 5.5, "315.127", "315° 7' 36\""},
        {"below a degree: 34.377468, 22.65", 0.01, ".573", "0° 34' 23\""},
        {"below a minute: 0.0573 degrees is 3.4377, 26.26", 0.001, ".057", "0° 3' 26\""},
        {"seconds alone: 0.0005729578 degrees is 2.06 seconds", 0.00001, ".001", "0° 0' 2\""},
        {"a degree", radiansPerDegree, "1.000", "1° 0' 0\""},
        {"half a right angle is a little over 45", eighthTurn, "45.000", "45° 0' 0\""},
        {"a right angle is 89.99999923, and seconds don't carry", quarterTurn, "90.000", "89° 59' 60\""},
        {"half a turn", halfTurn, "180.000", "180° 0' 0\""},
        {"three quarters", threeQuartersTurn, "270.000", "270° 0' 0\""},
        {"a turn", fullTurn, "360.000", "360° 0' 0\""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(angleDigits(row.sweep), row.digits) << row.what;
        EXPECT_EQ(formatAngle(row.sweep, decimalDegrees), row.digits + std::string("°")) << row.what;
        EXPECT_EQ(formatAngle(row.sweep, minutesAndSeconds), row.parts) << row.what;
    }
}

TEST(AngleText, AnAngleThatRoundsToNothingIsTheZeroAngle)
{
    EXPECT_EQ(angleDigits(0), zeroAngle);
    EXPECT_EQ(angleDigits(0.000008), zeroAngle) << "0.00046 degrees";
    EXPECT_NE(angleDigits(0.000009), zeroAngle) << "0.00052 degrees";
}

TEST(AngleText, WhatIsNoAngleIsTheZeroAngle)
{
    const double infinite = std::numeric_limits<double>::infinity();
    for (const double sweep : {std::nan(""), infinite, -infinite, std::numeric_limits<double>::max()}) {
        EXPECT_EQ(angleDigits(sweep), zeroAngle) << sweep;
        EXPECT_EQ(formatAngle(sweep, decimalDegrees), ".000°") << sweep;
        EXPECT_EQ(formatAngle(sweep, minutesAndSeconds), "0° 0' 0\"") << sweep;
    }
}

TEST(AngleText, DegreesBeyondAWholeNumberOf16BitsCountAsNothing)
{
    EXPECT_EQ(formatAngle(571, minutesAndSeconds), "32715° 53' 25\"") << "32715.89038: 53.4228, 25.37";
    EXPECT_EQ(formatAngle(572, minutesAndSeconds), "0° 0' 0\"") << "32773.2";
    EXPECT_EQ(formatAngle(572, decimalDegrees), "32773.186°");
}

TEST(AngleText, EveryFormatButZeroIsMinutesAndSeconds)
{
    for (const std::int16_t format : {std::int16_t{2}, std::int16_t{-1}, std::int16_t{32767}}) {
        EXPECT_EQ(formatAngle(1.0, format), "57° 17' 45\"") << format;
    }
}

} // namespace
} // namespace mirtane
