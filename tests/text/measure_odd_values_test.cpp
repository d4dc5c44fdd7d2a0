#include "text/measure.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace mirtane {
namespace {

using Single = std::numeric_limits<float>;
constexpr float eighth = 0.125F;

std::string inFeet(float length, float tolerance)
{
    return formatMeasure({length, {NumStyle::feetAndInches, tolerance}});
}

TEST(NumStyle, IsFoundByItsNameAndIsFeetAndInchesOtherwise)
{
    EXPECT_EQ(numStyleOf("us"), NumStyle::feetAndInches);
    EXPECT_EQ(numStyleOf("2f"), NumStyle::decimalFeet);
    EXPECT_EQ(numStyleOf("3i"), NumStyle::decimalInches);
    EXPECT_EQ(numStyleOf("br"), NumStyle::metric);
    for (const char* other : {"", "BR", "b", "br ", "2", "4k", "a long name that no menu sets"}) {
        EXPECT_EQ(numStyleOf(other), NumStyle::feetAndInches) << other;
    }
}

TEST(OddMeasure, WhatIsNoLengthShowsAsNothing)
{
    for (const float length : {Single::quiet_NaN(), Single::infinity(), -Single::infinity()}) {
        EXPECT_EQ(inFeet(length, eighth), "0") << length;
        EXPECT_EQ(formatMeasure({length, {NumStyle::decimalFeet}}), ".00'") << length;
        EXPECT_EQ(formatMeasure({length, {NumStyle::decimalInches}}), ".000\"") << length;
        EXPECT_EQ(formatMeasure({length, {NumStyle::metric}}), "0.000cm") << length;
        EXPECT_EQ(formatMeasure({length, {NumStyle::metric}, true}), ".00m") << length;
    }
}

TEST(OddMeasure, FeetBeyondAWholeNumberShowAsNothing)
{
    EXPECT_EQ(inFeet(154618822656.0F, eighth), "1073741824'-0\"") << "2^30 feet";
    EXPECT_EQ(inFeet(309237645312.0F, eighth), "0") << "2^31 feet";
    EXPECT_EQ(inFeet(3e38F, eighth), "0");
    EXPECT_EQ(inFeet(-3e38F, eighth), "0");
}

TEST(OddMeasure, MetresBeyondAWholeNumberStayCentimetres)
{
    EXPECT_EQ(formatMeasure({2e12F, {NumStyle::metric}}), "423659000000.000cm");
    EXPECT_EQ(formatMeasure({3e38F, {NumStyle::metric}}), "6354885" + std::string(31, '0') + ".000cm");
}

TEST(OddMeasure, TheLargestDecimalsAreWrittenOut)
{
    EXPECT_EQ(formatMeasure({3e38F, {NumStyle::decimalInches}}), "25" + std::string(36, '0') + ".000\"");
    EXPECT_EQ(formatMeasure({3e38F, {NumStyle::decimalFeet}}), "2083333" + std::string(30, '0') + ".00'");
}

TEST(OddMeasure, ALengthBelowNothingGoesThroughTheSameSteps)
{
    EXPECT_EQ(inFeet(-100, eighth), "-1'-3 5/8\"") << "44 units above minus one foot";
    EXPECT_EQ(inFeet(-0.5F, eighth), "0") << "within half a step of nothing";
    EXPECT_EQ(formatMeasure({-12, {NumStyle::decimalInches}}), "-1.000\"");
    EXPECT_EQ(formatMeasure({-144, {NumStyle::decimalFeet}}), "-1.00'");
    EXPECT_EQ(formatMeasure({-708.1167F, {NumStyle::metric}}), "-2m 50.000cm");
}

TEST(OddTolerance, OfNothingShowsNoFraction)
{
    EXPECT_EQ(inFeet(42, 0), "3\"");
    EXPECT_EQ(inFeet(188.25F, 0), "1'-3\"");
    EXPECT_EQ(inFeet(143.9F, 0), "11\"") << "and nothing is rounded up";
    EXPECT_EQ(inFeet(0, 0), "0");
    EXPECT_EQ(inFeet(6, -0.0F), "0");
}

TEST(OddTolerance, SoSmallThatItsStepsCannotBeCountedShowsNoFraction)
{
    for (const float tiny : {1e-6F, Single::min(), Single::denorm_min()}) {
        EXPECT_EQ(inFeet(42, tiny), "3\"") << tiny;
        EXPECT_EQ(inFeet(144, tiny), "1'-0\"") << tiny;
    }
    EXPECT_EQ(inFeet(42, 0.001F), "3 1/2\"") << "500 steps can";
}

TEST(OddTolerance, BelowNothingIsTheSameAbove)
{
    for (const float length : {0.0F, 0.1F, 42.0F, 143.9F, 188.25F}) {
        for (const float tolerance : {0.25F, 0.125F, 0.015625F}) {
            EXPECT_EQ(inFeet(length, -tolerance), inFeet(length, tolerance)) << length;
        }
    }
    EXPECT_EQ(inFeet(143.9F, -eighth), "1'-0\"");
}

TEST(OddTolerance, BeyondAnInchShowsWholeInches)
{
    for (const float tolerance : {1.0F, 1.5F, 100.0F, Single::max(), Single::infinity()}) {
        EXPECT_EQ(inFeet(41, tolerance), "3\"") << tolerance;
        EXPECT_EQ(inFeet(42, tolerance), "4\"") << tolerance << ": half an inch below";
        EXPECT_EQ(inFeet(143, tolerance), "1'-0\"") << tolerance;
        EXPECT_EQ(inFeet(100, tolerance), "8\"") << tolerance;
        EXPECT_EQ(inFeet(0, tolerance), "0") << tolerance;
    }
}

TEST(OddTolerance, OffTheMenuShowsTheNearestSixtyFourth)
{
    struct Row {
        const char* what;
        float length;
        float tolerance;
        const char* text;
    };
    const Row rows[] = {
        {"a tenth is 6.4 of them", 1.2F, 0.1F, "3/32\""},
        {"a third is 21.3", 4, 1 / 3.0F, "21/64\""},
        {"half", 6, 0.5F, "1/2\""},
        {"2.67 steps of three tenths are three: 57.6", 9.6F, 0.3F, "29/32\""},
        {"half of the least is nothing", 0.09375F, 1 / 128.0F, "0"},
        {"all of the least", 0.1875F, 1 / 128.0F, "1/64\""},
        {"half way to the second is the first", 0.28125F, 1 / 128.0F, "1/64\""},
        {"half way to the last is the one before it", 11.71875F, 1 / 128.0F, "31/32\""},
    };
    for (const Row& row : rows) EXPECT_EQ(inFeet(row.length, row.tolerance), row.text) << row.what;
}

// Whatever comes out of a file, a measure is one number with one mark.
TEST(OddMeasure, EveryMixtureGivesAWellFormedText)
{
    std::vector<float> values{0, -0.0F, Single::quiet_NaN(), Single::infinity(), Single::max()};
    for (int exponent = -149; exponent < 128; exponent += 3) {
        values.push_back(std::ldexp(1.0F, exponent));
        values.push_back(std::ldexp(1.7F, exponent));
        values.push_back(-std::ldexp(1.3F, exponent));
    }
    for (const float length : values) {
        for (const float tolerance : values) {
            const std::string text = inFeet(std::fabs(length), tolerance);
            const bool zero = text == "0";
            ASSERT_TRUE(zero || text.ends_with('"')) << text;
            ASSERT_EQ(text.find("--"), std::string::npos) << text;
            ASSERT_FALSE(text.starts_with('-')) << text;
            ASSERT_FALSE(inFeet(-std::fabs(length), tolerance).empty()) << text;
        }
        ASSERT_TRUE(formatMeasure({length, {NumStyle::metric}}).ends_with("cm")) << length;
        ASSERT_TRUE(formatMeasure({length, {NumStyle::metric}, true}).ends_with("m")) << length;
        ASSERT_TRUE(formatMeasure({length, {NumStyle::decimalFeet}}).ends_with("'")) << length;
        ASSERT_TRUE(formatMeasure({length, {NumStyle::decimalInches}}).ends_with("\"")) << length;
    }
}

} // namespace
} // namespace mirtane
