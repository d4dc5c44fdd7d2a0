#include "geometry/fault.h"

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

namespace mirtane {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr float singleInfinity = std::numeric_limits<float>::infinity();

TEST(Quotient, OfNumbersThatDivideIsTheirQuotient)
{
    EXPECT_EQ(quotient(1, 4), 0.25);
    EXPECT_EQ(quotient(-6, 3), -2);
    EXPECT_EQ(quotient(0, 5), 0);
    EXPECT_EQ(quotientSingle(1, 3), 1.0f / 3.0f);
}

TEST(Quotient, ThatCannotBeHadIsNaNAndNeverInfinity)
{
    EXPECT_TRUE(std::isnan(quotient(0, 0)));
    EXPECT_TRUE(std::isnan(quotient(1, 0)));
    EXPECT_TRUE(std::isnan(quotient(-1, -0.0)));
    EXPECT_TRUE(std::isnan(quotient(1e308, 1e-10)));
    EXPECT_TRUE(std::isnan(quotient(infinity, 2)));
    EXPECT_TRUE(std::isnan(quotient(2, infinity))); // the division would give an innocent 0
    EXPECT_TRUE(std::isnan(quotient(nan, 2)));
    EXPECT_TRUE(std::isnan(quotient(2, nan)));
    EXPECT_TRUE(std::isnan(quotientSingle(0, 0)));
    EXPECT_TRUE(std::isnan(quotientSingle(1, 0)));
    EXPECT_TRUE(std::isnan(quotientSingle(1e38f, 1e-10f)));
    EXPECT_TRUE(std::isnan(quotientSingle(2, singleInfinity)));
}

TEST(Keep, StoresWhatFits)
{
    double d = 7;
    float f = 7;
    EXPECT_TRUE(keep(d, -1e300));
    EXPECT_EQ(d, -1e300);
    EXPECT_TRUE(keep(f, 0.1));
    EXPECT_EQ(f, 0.1f);
}

TEST(Keep, LeavesTheTargetAsItWasOnAFault)
{
    const double faults[] = {nan, infinity, -infinity};
    for (const double fault : faults) {
        double d = 7;
        float f = 7;
        std::int16_t i16 = 7;
        std::int32_t i32 = 7;
        EXPECT_FALSE(keep(d, fault));
        EXPECT_FALSE(keep(f, fault));
        EXPECT_FALSE(keep(i16, fault));
        EXPECT_FALSE(keep(i32, fault));
        EXPECT_TRUE(d == 7 && f == 7 && i16 == 7 && i32 == 7) << fault;
    }
}

TEST(Keep, ADoubleTooLargeForAFloatIsAFault)
{
    float f = 7;
    EXPECT_FALSE(keep(f, 1e39));
    EXPECT_FALSE(keep(f, -1e39));
    EXPECT_EQ(f, 7);
    EXPECT_TRUE(
        keep(f, static_cast<double>(std::numeric_limits<float>::max()))); // widened: the value is the same
    EXPECT_EQ(f, std::numeric_limits<float>::max());
}

TEST(Keep, WholeNumbersAreRoundedHalfToEven)
{
    struct Row {
        double value;
        std::int16_t whole;
    };
    const Row rows[] = {
        {0.5, 0},   {1.5, 2},  {2.5, 2},  {3.5, 4},    {-0.5, 0}, {-1.5, -2},
        {-2.5, -2}, {2.49, 2}, {2.51, 3}, {-2.51, -3}, {0, 0},    {36.4999, 36},
    };
    for (const Row& row : rows) {
        std::int16_t i16 = 99;
        std::int32_t i32 = 99;
        EXPECT_TRUE(keep(i16, row.value));
        EXPECT_TRUE(keep(i32, row.value));
        EXPECT_EQ(i16, row.whole) << row.value;
        EXPECT_EQ(i32, row.whole) << row.value;
    }
}

TEST(Keep, WholeNumbersOutOfRangeAreFaults)
{
    struct Row {
        double value;
        bool fits16, fits32;
    };
    const Row rows[] = {
        {32767, true, true},          {32767.4, true, true},        {32767.5, false, true}, // rounds to 32768
        {-32768.5, true, true}, // rounds to -32768, the even one
        {-32768.6, false, true},      {2147483647, false, true},    {2147483647.4, false, true},
        {2147483647.5, false, false}, {-2147483648.5, false, true}, {-2147483649.0, false, false},
        {1e300, false, false},
    };
    for (const Row& row : rows) {
        std::int16_t i16 = 99;
        std::int32_t i32 = 99;
        EXPECT_EQ(keep(i16, row.value), row.fits16) << row.value;
        EXPECT_EQ(keep(i32, row.value), row.fits32) << row.value;
        EXPECT_EQ(i16 == 99, !row.fits16) << row.value;
        EXPECT_EQ(i32 == 99, !row.fits32) << row.value;
    }
}

} // namespace
} // namespace mirtane
