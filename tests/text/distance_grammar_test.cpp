#include "text/distance_grammar.h"

#include <cmath>
#include <gtest/gtest.h>
#include <string>

namespace mirtane {
namespace {

constexpr bool feet = false;
constexpr bool metric = true;

struct Row {
    const char* what;
    const char* text;
    float inches;
};

TEST(DistanceGrammar, FeetAndInches)
{
    const Row rows[] = {
        {"a bare number is inches", "12", 12},
        {"a foot", "1'", 12},
        {"a foot and a half", "1'6", 18},
        {"a leading minus counts for the whole", "-1'6", -18},
        {"an inner minus is skipped", "1'-6", 18},
        {"a second mark is skipped", "1'2'3", 35},
        {"a mark at the end is skipped too", "1'6'", 18},
        {"inches after a bare mark", "'6", 6},
        {"fractions of a foot", "1.5'", 18},
        {"fractions of an inch", "1'6.25", 18.25f},
        {"less than an inch", ".5", 0.5f},
        {"minus and a bare mark", "-'6", -6},
        {"a second leading minus is skipped", "--5", -5},
        {"a minus at the end is skipped", "5-", 5},
        {"a minus between digits is skipped", "1-2", 12},
        {"a leading plus", "+5", 5},
        {"a plus ends the number", "5+3", 5},
        {"a plus in the second unit", "1'+6", 18},
        {"a plus that ends the feet", "1+2'6", 18},
        {"a plus after the minus", "-+5", -5},
        {"a minus after the plus is skipped", "+-5", 5},
        {"a second point ends the number", "1.2.3", 1.2f},
        {"nothing", "", 0},
        {"a mark alone", "'", 0},
        {"a point alone", ".", 0},
        {"letters", "abc", 0},
        {"letters for feet", "abc'6", 6},
    };
    for (const Row& row : rows) EXPECT_FLOAT_EQ(readInches(row.text, feet), row.inches) << row.what;
}

TEST(DistanceGrammar, MetresAndCentimetres)
{
    const Row rows[] = {
        {"a metre and a half", "1'50", 150 / 2.5419542f},
        {"a bare number is centimetres", "2.5419542", 1},
        {"a metre", "1'", 100 / 2.5419542f},
        {"a leading minus", "-1'50", -150 / 2.5419542f},
        {"an inner minus is skipped", "1'-50", 150 / 2.5419542f},
        {"a second mark is skipped", "1'2'3", 123 / 2.5419542f},
        {"nothing", "", 0},
    };
    for (const Row& row : rows) EXPECT_FLOAT_EQ(readInches(row.text, metric), row.inches) << row.what;
}

TEST(DistanceGrammar, ADistanceIsTwelveWorldUnitsToTheInch)
{
    EXPECT_EQ(readDistance("12", feet), 144);
    EXPECT_EQ(readDistance("1'6", feet), 216);
    EXPECT_EQ(readDistance("-1'6", feet), -216);
    EXPECT_EQ(readDistance("1'2'3", feet), 420);
    EXPECT_EQ(readDistance("0.125", feet), 1.5f);
    EXPECT_EQ(readDistance("", feet), 0);
    EXPECT_FLOAT_EQ(readDistance("1'50", metric), 1800 / 2.5419542f);
    EXPECT_FLOAT_EQ(readDistance("2.5419542", metric), 12);
}

TEST(DistanceGrammar, WhatIsTooLargeForAFloatCountsAsNothing)
{
    const std::string nines(50, '9');
    EXPECT_EQ(readInches(nines, feet), 0);
    EXPECT_EQ(readInches(nines + "'6", feet), 6);
    EXPECT_FLOAT_EQ(readInches("1'" + nines, metric), 100 / 2.5419542f);
    EXPECT_EQ(readInches("1e38'6", feet), 6); // 1e38 is a float, twelve times it is none
    EXPECT_EQ(readDistance("1e38", feet), 0);
    EXPECT_TRUE(std::isfinite(readInches("3e38'3e38", metric)));
}

TEST(DistanceGrammar, AnyBytesAreTakenWithoutHarm)
{
    std::string text;
    for (int i = 0; i < 256; ++i) text += static_cast<char>(i); // each byte once
    EXPECT_EQ(readInches(text, feet), 0);
    EXPECT_EQ(readInches(std::string(100000, '\''), feet), 0);
    EXPECT_EQ(readInches(std::string(100000, '-') + "7", feet), -7);
}

} // namespace
} // namespace mirtane
