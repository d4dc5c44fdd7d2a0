#include "text/measure.h"
#include "text/numbers.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace mirtane {
namespace {

TEST(SizeText, IsInInchesOrCentimetresToThreePlaces)
{
    struct Row {
        const char* what;
        float size;
        NumStyle style;
        const char* text;
    };
    using enum NumStyle;
    const Row rows[] = {
        {"the size a drawing starts with", 48, feetAndInches, "4.000"},
        {"decimal feet show inches too", 48, decimalFeet, "4.000"},
        {"decimal inches", 48, decimalInches, "4.000"},
        {"metric: 10.16819", 48, metric, "10.168"},
        {"no zero before the point", 6, feetAndInches, ".500"},
        {"nothing", 0, feetAndInches, ".000"},
        {"nothing, metric", 0, metric, ".000"},
        {"an eighth", 1.5F, feetAndInches, ".125"},
        {"a sixteenth is rounded up, not cut", 0.75F, feetAndInches, ".063"},
        {"a foot", 144, feetAndInches, "12.000"},
        {"below nothing", -48, feetAndInches, "-4.000"},
        {"a centimetre", 4.7206F, metric, "1.000"},
        {"half of one", 2.3603F, metric, ".500"},
        {"ten", 47.206F, metric, "10.000"},
    };
    for (const Row& row : rows) EXPECT_EQ(formatSize(row.size, {row.style}), row.text) << row.what;
}

TEST(SizeText, ACommaStandsForThePointInEveryStyle)
{
    EXPECT_EQ(formatSize(48, {NumStyle::metric, 0.125F, true}), "10,168");
    EXPECT_EQ(formatSize(48, {NumStyle::feetAndInches, 0.125F, true}), "4,000");
    EXPECT_EQ(formatSize(48, {NumStyle::decimalInches, 0.125F, true}), "4,000");
}

TEST(SizeText, WhatIsNoSizeShowsAsNothing)
{
    using Single = std::numeric_limits<float>;
    for (const float size : {Single::quiet_NaN(), Single::infinity(), -Single::infinity()}) {
        EXPECT_EQ(formatSize(size, {NumStyle::feetAndInches}), ".000") << size;
        EXPECT_EQ(formatSize(size, {NumStyle::metric}), ".000") << size;
    }
}

TEST(TypedSize, IsReadAsDistancesAreInEveryStyleButMetric)
{
    struct Row {
        const char* what;
        const char* text;
        float size;
    };
    const Row rows[] = {
        {"inches", "4", 48},
        {"as a prompt shows it", "4.000", 48},
        {"a foot", "1'", 144},
        {"a foot and a half", "1'6", 216},
        {"with the usual stroke between", "1'-6", 216},
        {"below nothing", "-1", -12},
        {"nothing", "", 0},
        {"no number", "abc", 0},
    };
    for (const Row& row : rows) {
        for (const char* style : {"us", "2f", "3i"}) {
            EXPECT_EQ(readSize(row.text, numStyleOf(style)), row.size) << row.what << ", " << style;
        }
    }
}

TEST(TypedSize, IsInCentimetresOfItsOwnFactorWhenMetric)
{
    struct Row {
        const char* what;
        const char* text;
        float size; // 4.7206 to the centimetre
    };
    const Row rows[] = {
        {"centimetres", "10", 47.206F},
        {"one", "1", 4.7206F},
        {"with a point", "12.5", 59.0075F},
        {"a metre", "1'", 472.06F},
        {"a metre and a half", "1'50", 708.09F},
        {"with a stroke between", "1'-50", 708.09F},
        {"a second mark is skipped", "1'2'3", 580.6338F},
        {"a mark in front", "'5", 23.603F},
        {"below nothing", "-10", -47.206F},
        {"below nothing, with a mark in front", "-'5", -23.603F},
        {"a minus in front is for the whole", "-1'50", -708.09F},
        {"a minus behind is skipped", "5-", 23.603F},
        {"nothing", "", 0},
        {"no number", "abc", 0},
        {"letters for metres", "abc'5", 23.603F},
        {"too large for a float", "1e39", 0},
        {"too large in world units", "1e38", 0},
        {"too many metres", "1e38'5", 23.603F},
    };
    for (const Row& row : rows) EXPECT_EQ(readSize(row.text, NumStyle::metric), row.size) << row.what;
}

TEST(TypedSize, ShowsAsItWasTyped)
{
    for (int thousandths = 1; thousandths < 100'000; thousandths += 7) {
        const std::string typed = formatNumber(thousandths / 1000.0, NumberFormat::bareThousandths);
        for (const NumStyle style : {NumStyle::feetAndInches, NumStyle::metric}) {
            ASSERT_EQ(formatSize(readSize(typed, style), {style}), typed);
        }
    }
}

} // namespace
} // namespace mirtane
