#include "dxf/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <string>

namespace mirtane {
namespace {

std::string textOfFloat(float value, char point = '.')
{
    NumberBuffer buffer;
    return std::string(dxfNumber(buffer, value, point));
}

std::string textOfDouble(double value, char point = '.')
{
    NumberBuffer buffer;
    return std::string(dxfNumber(buffer, value, point));
}

TEST(DxfNumber, FloatHasSevenDigits)
{
    const struct {
        float value;
        const char* shown;
    } rows[] = {
        {0.0F, "0"},
        {-0.0F, "0"},
        {1.0F, "1"},
        {-1.0F, "-1"},
        {0.5F, "0.5"},
        {-0.25F, "-0.25"},
        {1.0F / 3, "0.3333333"},
        {2.0F / 3, "0.6666667"},
        {100000, "100000"},
        {1234567.8F, "1234568"},
        {1234567.5F, "1234568"},
        {1234566.5F, "1234566"},
        {9999999, "9999999"},
        {10000000, "1E+07"},
        {12345678, "1.234568E+07"},
        {0.0001F, "0.0001"},
        {0.00012345678F, "0.0001234568"},
        {1e-5F, "1E-05"},
        {1e-7F, "1E-07"},
        {3.4e38F, "3.4E+38"},
        {9.9999999F, "10"},
        {99.99999F, "99.99999"},
        {std::numeric_limits<float>::quiet_NaN(), "0"},
        {-std::numeric_limits<float>::infinity(), "0"},
    };
    for (const auto& row : rows) EXPECT_EQ(textOfFloat(row.value), row.shown);
}

TEST(DxfNumber, DoubleHasFifteenDigits)
{
    EXPECT_EQ(textOfDouble(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(textOfDouble(90), "90");
    EXPECT_EQ(textOfDouble(-0.0), "0");
    EXPECT_EQ(textOfDouble(1e15), "1E+15");
    EXPECT_EQ(textOfDouble(123456789012345), "123456789012345");
    EXPECT_EQ(textOfDouble(std::numeric_limits<double>::infinity()), "0");
}

TEST(DxfNumber, DecimalPointMayBeAComma)
{
    EXPECT_EQ(textOfFloat(0.5F, ','), "0,5");
    EXPECT_EQ(textOfFloat(12345678, ','), "1,234568E+07");
    EXPECT_EQ(textOfDouble(-2.25, ','), "-2,25");
}

TEST(DxfNumber, EveryFloatIsAsThePlainFormatHasIt)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<double> exponent(-9, 12);
    std::uniform_int_distribution<int> sixteenths(-2000000, 2000000);
    for (int i = 0; i < 200000; ++i) {
        const bool round = i % 2 == 0; // halves and sixteenths meet the ties of rounding
        const double wide = round ? sixteenths(random) / 16.0 : std::pow(10, exponent(random));
        const auto value = static_cast<float>(wide); // any float will do
        char plain[64];
        std::snprintf(plain, sizeof plain, "%.7G", static_cast<double>(value)); // widened: the same value
        ASSERT_EQ(textOfFloat(value), plain);
    }
}

} // namespace
} // namespace mirtane
