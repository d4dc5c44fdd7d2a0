#include "text/numbers.h"

#include <clocale>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <locale>
#include <string>

namespace mirtane {
namespace {

using enum NumberFormat;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(PlainNumber, DoubleHasFifteenDigitsAndNoTrailingZeros)
{
    struct Row {
        const char* what;
        double value;
        const char* shown;
    };
    const Row rows[] = {
        {"a whole number", 3.0, "3"},
        {"a whole number that ends in zeros", 1200.0, "1200"},
        {"an eighth", 0.125, "0.125"},
        {"a tenth, which has no exact bits", 0.1, "0.1"},
        {"a sum that misses its decimal text by a bit", 0.1 + 0.2, "0.3"},
        {"a third", 1.0 / 3.0, "0.333333333333333"},
        {"a negative number", -2.5, "-2.5"},
        {"nothing", 0.0, "0"},
        {"nothing from below", -0.0, "0"},
        {"fifteen digits before the point", 123456789012345.0, "123456789012345"},
        {"sixteen digits before the point", 1e15, "1e+15"},
        {"the smallest without an exponent", 0.0001, "0.0001"},
        {"smaller", 0.00001, "1e-05"},
        {"not a number", nan, ""},
        {"without end", infinity, ""},
        {"without end, below", -infinity, ""},
    };
    for (const Row& row : rows) EXPECT_EQ(plainNumber(row.value), row.shown) << row.what;
}

TEST(PlainNumber, SingleHasSevenDigits)
{
    struct Row {
        const char* what;
        float value;
        const char* shown;
    };
    const Row rows[] = {
        {"a tenth shows none of its float's further digits", 0.1f, "0.1"},
        {"a third", 1.0f / 3.0f, "0.3333333"},
        {"the fillet radius at the start", 72.0f / 12.0f, "6"},
        {"seven digits before the point", 1234567.0f, "1234567"},
        {"eight digits before the point", 12345678.0f, "1.234568e+07"},
        {"nothing from below", -0.0f, "0"},
        {"not a number", std::numeric_limits<float>::quiet_NaN(), ""},
    };
    for (const Row& row : rows) EXPECT_EQ(plainNumber(row.value), row.shown) << row.what;
}

TEST(PlainNumber, WholeNumbersOfEveryWidth)
{
    EXPECT_EQ(plainNumber(64), "64");
    EXPECT_EQ(plainNumber(std::int16_t{-32768}), "-32768");
    EXPECT_EQ(plainNumber(std::int32_t{12345678}), "12345678");
    EXPECT_EQ(plainNumber(std::size_t{60000}), "60000");
}

TEST(FormatNumber, EachFormatPadsAndCutsInItsOwnWay)
{
    struct Row {
        const char* what;
        double value;
        NumberFormat format;
        const char* shown;
    };
    const Row rows[] = {
        {"nothing in a field", 0, paddedThousandths, "000.000"},
        {"a half in a field", 0.5, paddedThousandths, "000.500"},
        {"the snap percentage at the start", 25, paddedThousandths, "025.000"},
        {"an angle", 359.5, paddedThousandths, "359.500"},
        {"a negative angle", -12.5, paddedThousandths, "-012.500"},
        {"more digits than the field pads", 12345.25, paddedThousandths, "12345.250"},
        {"rounding runs through the nines", 999.9995, paddedThousandths, "1000.000"},
        {"nothing, bare", 0, bareThousandths, ".000"},
        {"a half, bare", 0.5, bareThousandths, ".500"},
        {"minus a half, bare", -0.5, bareThousandths, "-.500"},
        {"text size at the start", 4, bareThousandths, "4.000"},
        {"zeros within the places stay", 0.004, bareThousandths, ".004"},
        {"zeros within the number stay", 100.05, bareThousandths, "100.050"},
        {"nothing, two places", 0, bareHundredths, ".00"},
        {"an area", 123.45, bareHundredths, "123.45"},
        {"an area with one digit", 11.5, bareHundredths, "11.50"},
        {"nothing, metric", 0, thousandths, "0.000"},
        {"a half, metric", 0.5, thousandths, "0.500"},
        {"centimetres", 12.5, thousandths, "12.500"},
        {"minus a half, metric", -0.5, thousandths, "-0.500"},
    };
    for (const Row& row : rows) EXPECT_EQ(formatNumber(row.value, row.format), row.shown) << row.what;
}

TEST(FormatNumber, RoundsHalfAwayFromZeroOnTheDecimalText)
{
    struct Row {
        const char* what;
        double value;
        NumberFormat format;
        const char* shown;
    };
    const Row rows[] = {
        {"a half below an even digit goes up", 0.0625, bareThousandths, ".063"},
        {"a half below an odd digit goes up", 0.1875, bareThousandths, ".188"},
        {"a negative half goes down", -0.0625, bareThousandths, "-.063"},
        {"half a place of nothing", 0.0005, bareThousandths, ".001"},
        {"bits below the half, text on it", 2.675, bareHundredths, "2.68"},
        {"bits below the half, text on it, small", 1.005, bareHundredths, "1.01"},
        {"sixteenth digit makes it a half", 0.12449999999999999, bareThousandths, ".125"},
        {"fifteenth digit keeps it below", 0.124499999999999, bareThousandths, ".124"},
        {"nine tenths of a place", 0.9999, bareThousandths, "1.000"},
        {"half of the first place before the kept ones", 0.005, bareHundredths, ".01"},
        {"less than the digits reach", 0.00005, bareThousandths, ".000"},
        {"nine of the first digit not reached", 0.00009, bareThousandths, ".000"},
        {"far less", 1e-300, thousandths, "0.000"},
    };
    for (const Row& row : rows) EXPECT_EQ(formatNumber(row.value, row.format), row.shown) << row.what;
}

TEST(FormatNumber, SinglesAreRoundedOnSevenDigits)
{
    EXPECT_EQ(formatNumber(0.0015f, bareThousandths), ".002"); // its bits lie a little below
    EXPECT_EQ(formatNumber(1.0005f, bareThousandths), "1.001");
    EXPECT_EQ(formatNumber(0.1f, paddedThousandths), "000.100");
    EXPECT_EQ(formatNumber(12345.678f, bareThousandths), "12345.680");
    EXPECT_EQ(formatNumber(16777216.0f, bareThousandths), "16777220.000");
}

TEST(FormatNumber, WhatRoundsToNothingHasNoMinus)
{
    EXPECT_EQ(formatNumber(-0.0004, paddedThousandths), "000.000");
    EXPECT_EQ(formatNumber(-0.0049, bareHundredths), ".00");
    EXPECT_EQ(formatNumber(-0.0, thousandths), "0.000");
    EXPECT_EQ(formatNumber(-0.0005, paddedThousandths), "-000.001");
}

TEST(FormatNumber, ValuesOfAnySizeAreTakenWithoutHarm)
{
    EXPECT_EQ(formatNumber(1e20, bareThousandths), "1" + std::string(20, '0') + ".000");
    EXPECT_EQ(formatNumber(-1e308, thousandths), "-1" + std::string(308, '0') + ".000");
    EXPECT_EQ(formatNumber(-std::numeric_limits<double>::max(), thousandths).size(), 314u);
    EXPECT_EQ(formatNumber(std::numeric_limits<double>::denorm_min(), thousandths), "0.000");
    EXPECT_EQ(formatNumber(nan, paddedThousandths), "");
    EXPECT_EQ(formatNumber(infinity, bareHundredths), "");
    EXPECT_EQ(formatNumber(-std::numeric_limits<float>::infinity(), thousandths), "");
}

TEST(ReadNumber, ReadsALeadingNumberAndStopsAtWhatCannotContinueIt)
{
    struct Row {
        const char* text;
        double value;
    };
    const Row rows[] = {
        {"12", 12},
        {"  12", 12},
        {"\t12", 12},
        {"-3.5", -3.5},
        {"+5", 5},
        {"5+3", 5},
        {"5-3", 5},
        {".5", 0.5},
        {"-.5", -0.5},
        {"5.", 5},
        {"1.2.3", 1.2},
        {"1,5", 1},
        {"12abc", 12},
        {"1 2", 1},
        {"1e3", 1000},
        {"1E+3", 1000},
        {"25e-1", 2.5},
        {"1e", 1},
        {"1e+", 1},
        {"1ex", 1},
        {"1.e2", 100},
        {"007", 7},
        {"0x10", 0},
        {"--5", 0},
        {"+-5", 0},
        {"- 5", 0},
        {"", 0},
        {" ", 0},
        {"-", 0},
        {".", 0},
        {"-.", 0},
        {".e5", 0},
        {"e5", 0},
        {"abc", 0},
        {"'", 0},
        {"\xC2\xA0"
         "7",
         0},
        {"1d3", 1},
        {"1\xC2\xB0", 1},
    };
    for (const Row& row : rows) EXPECT_EQ(readNumber(row.text), row.value) << '"' << row.text << '"';
}

TEST(ReadNumber, NoTextGivesNaNOrInfinityOrANegativeZero)
{
    const std::string long9(100000, '9');
    const std::string rows[] = {"nan",      "NaN",    "-nan",
                                "inf",      "-inf",   "infinity",
                                "1e999",    "-1e999", "1e99999999999999999999",
                                "1e-999",   "-0",     "-0.0e5",
                                "0e999999", long9,    "-" + long9};
    for (const std::string& text : rows) {
        const double value = readNumber(text);
        EXPECT_EQ(value, 0) << text.substr(0, 30);
        EXPECT_FALSE(std::signbit(value)) << text.substr(0, 30);
    }
}

TEST(ReadNumber, ManyDigitsAreReadAsTheNumberTheyAre)
{
    EXPECT_EQ(readNumber("0." + std::string(5000, '0') + "1e5001"), 1);
    EXPECT_EQ(readNumber("1." + std::string(5000, '0')), 1);
    EXPECT_EQ(readNumber(std::string(5000, '0') + "8"), 8);
}

TEST(ReadNumber, ReadsOnlyTheCharactersItIsGiven)
{
    EXPECT_EQ(readNumber(std::string_view("123456").substr(0, 3)), 123);
    EXPECT_EQ(readNumber(std::string_view("1e5").substr(0, 2)), 1);
    EXPECT_EQ(readNumber(std::string_view()), 0);
}

TEST(ReadNumber, ReadsBackWhatPlainNumberWrote)
{
    const double values[] = {0.125, 3, -72, 1e20, 1e-7, 123456789.25};
    for (const double value : values) EXPECT_EQ(readNumber(plainNumber(value)), value);
}

// Numbers as some countries write them: a comma before the places, a point between the thousands.
class CommaNumbers : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(Numbers, DoNotFollowTheLocale)
{
    const std::locale before =
        std::locale::global(std::locale(std::locale(), new CommaNumbers)); // the locale owns it
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8"}) std::setlocale(LC_ALL, name); // where installed
    EXPECT_EQ(plainNumber(0.5), "0.5");
    EXPECT_EQ(plainNumber(60000), "60000");
    EXPECT_EQ(formatNumber(1234.5, thousandths), "1234.500");
    EXPECT_EQ(readNumber("0.5"), 0.5);
    EXPECT_EQ(readNumber("1,5"), 1);
    std::setlocale(LC_ALL, "C");
    std::locale::global(before);
}

TEST(WithComma, ReplacesEveryPoint)
{
    EXPECT_EQ(withComma("12.500cm"), "12,500cm");
    EXPECT_EQ(withComma("3m 12.500cm."), "3m 12,500cm,");
    EXPECT_EQ(withComma("12"), "12");
    EXPECT_EQ(withComma(""), "");
}

TEST(WithThousands, SetsACommaBeforeEachGroupOfThree)
{
    struct Row {
        std::int64_t count;
        const char* shown;
    };
    const Row rows[] = {
        {0, "0"},
        {7, "7"},
        {999, "999"},
        {1000, "1,000"},
        {8412, "8,412"},
        {60001, "60,001"},
        {999999, "999,999"},
        {1000000, "1,000,000"},
        {-4, "-4"},
        {-999, "-999"},
        {-1234567, "-1,234,567"},
        {9223372036854775807, "9,223,372,036,854,775,807"},
    };
    for (const Row& row : rows) EXPECT_EQ(withThousands(row.count), row.shown);
}

} // namespace
} // namespace mirtane
