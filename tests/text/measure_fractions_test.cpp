#include "text/measure.h"

#include <gtest/gtest.h>
#include <string>

namespace mirtane {
namespace {

constexpr float quarter = 0.25F;
constexpr float eighth = 0.125F;
constexpr float sixteenth = 0.0625F;
constexpr float thirtySecond = 0.03125F;
constexpr float sixtyFourth = 0.015625F;

std::string shown(float length, float tolerance)
{
    return formatMeasure({length, {NumStyle::feetAndInches, tolerance, false}});
}

TEST(FeetAndInchesMeasure, EachSixtyFourthIsShownInLowestTerms)
{
    struct Row {
        const char* what;
        float length; // world units, 12/64 a step
        const char* text;
    };
    const Row rows[] = {
        {"1 of 64", 0.1875F, R"(1/64")"},    {"2 of 64", 0.375F, R"(1/32")"},
        {"3 of 64", 0.5625F, R"(3/64")"},    {"4 of 64", 0.75F, R"(1/16")"},
        {"5 of 64", 0.9375F, R"(5/64")"},    {"6 of 64", 1.125F, R"(3/32")"},
        {"7 of 64", 1.3125F, R"(7/64")"},    {"8 of 64", 1.5F, R"(1/8")"},
        {"9 of 64", 1.6875F, R"(9/64")"},    {"10 of 64", 1.875F, R"(5/32")"},
        {"11 of 64", 2.0625F, R"(11/64")"},  {"12 of 64", 2.25F, R"(3/16")"},
        {"13 of 64", 2.4375F, R"(13/64")"},  {"14 of 64", 2.625F, R"(7/32")"},
        {"15 of 64", 2.8125F, R"(15/64")"},  {"16 of 64", 3.0F, R"(1/4")"},
        {"17 of 64", 3.1875F, R"(17/64")"},  {"18 of 64", 3.375F, R"(9/32")"},
        {"19 of 64", 3.5625F, R"(19/64")"},  {"20 of 64", 3.75F, R"(5/16")"},
        {"21 of 64", 3.9375F, R"(21/64")"},  {"22 of 64", 4.125F, R"(11/32")"},
        {"23 of 64", 4.3125F, R"(23/64")"},  {"24 of 64", 4.5F, R"(3/8")"},
        {"25 of 64", 4.6875F, R"(25/64")"},  {"26 of 64", 4.875F, R"(13/32")"},
        {"27 of 64", 5.0625F, R"(27/64")"},  {"28 of 64", 5.25F, R"(7/16")"},
        {"29 of 64", 5.4375F, R"(29/64")"},  {"30 of 64", 5.625F, R"(15/32")"},
        {"31 of 64", 5.8125F, R"(31/64")"},  {"32 of 64", 6.0F, R"(1/2")"},
        {"33 of 64", 6.1875F, R"(33/64")"},  {"34 of 64", 6.375F, R"(17/32")"},
        {"35 of 64", 6.5625F, R"(35/64")"},  {"36 of 64", 6.75F, R"(9/16")"},
        {"37 of 64", 6.9375F, R"(37/64")"},  {"38 of 64", 7.125F, R"(19/32")"},
        {"39 of 64", 7.3125F, R"(39/64")"},  {"40 of 64", 7.5F, R"(5/8")"},
        {"41 of 64", 7.6875F, R"(41/64")"},  {"42 of 64", 7.875F, R"(21/32")"},
        {"43 of 64", 8.0625F, R"(43/64")"},  {"44 of 64", 8.25F, R"(11/16")"},
        {"45 of 64", 8.4375F, R"(45/64")"},  {"46 of 64", 8.625F, R"(23/32")"},
        {"47 of 64", 8.8125F, R"(47/64")"},  {"48 of 64", 9.0F, R"(3/4")"},
        {"49 of 64", 9.1875F, R"(49/64")"},  {"50 of 64", 9.375F, R"(25/32")"},
        {"51 of 64", 9.5625F, R"(51/64")"},  {"52 of 64", 9.75F, R"(13/16")"},
        {"53 of 64", 9.9375F, R"(53/64")"},  {"54 of 64", 10.125F, R"(27/32")"},
        {"55 of 64", 10.3125F, R"(55/64")"}, {"56 of 64", 10.5F, R"(7/8")"},
        {"57 of 64", 10.6875F, R"(57/64")"}, {"58 of 64", 10.875F, R"(29/32")"},
        {"59 of 64", 11.0625F, R"(59/64")"}, {"60 of 64", 11.25F, R"(15/16")"},
        {"61 of 64", 11.4375F, R"(61/64")"}, {"62 of 64", 11.625F, R"(31/32")"},
        {"63 of 64", 11.8125F, R"(63/64")"},
    };
    for (const Row& row : rows) EXPECT_EQ(shown(row.length, sixtyFourth), row.text) << row.what;
}

TEST(FeetAndInchesMeasure, TheSameLengthAtOtherTolerances)
{
    struct Row {
        const char* what;
        float length;
        float tolerance;
        const char* text;
    };
    const Row rows[] = {
        {"a tenth of a unit below a foot", 143.9F, eighth, R"(1'-0")"},
        {"15 11/16 goes up to the even quarter", 188.25F, quarter, R"(1'-3 3/4")"},
        {"15 11/16 is between two eighths, the even one", 188.25F, eighth, R"(1'-3 3/4")"},
        {"15 11/16 at its own step", 188.25F, sixteenth, R"(1'-3 11/16")"},
        {"15 11/16 at a finer step", 188.25F, thirtySecond, R"(1'-3 11/16")"},
        {"15 11/16 at the finest", 188.25F, sixtyFourth, R"(1'-3 11/16")"},
        {"3 1/16 is half a step above 3", 36.75F, eighth, R"(3")"},
        {"3 3/16 is half a step below 3 1/4", 38.25F, eighth, R"(3 1/4")"},
        {"3 15/16 is half a step below 4", 47.25F, eighth, R"(4")"},
        {"a third of an inch", 4.0F, eighth, R"(3/8")"},
        {"a third of an inch, finest", 4.0F, sixtyFourth, R"(21/64")"},
        {"a third of a foot", 48.0F, eighth, R"(4")"},
        {"a tenth of a foot", 14.4F, sixtyFourth, R"(1 13/64")"},
        {"a metre", 472.0777F, sixteenth, R"(3'-3 5/16")"},
        {"one unit is a twelfth of an inch", 1.0F, quarter, R"(0)"},
        {"one unit, finer", 1.0F, sixtyFourth, R"(5/64")"},
        {"a unit short of two feet", 287.0F, eighth, R"(1'-11 7/8")"},
        {"a mile", 760320.0F, eighth, R"(5280'-0")"},
        {"a mile less a sixteenth", 760319.25F, eighth, R"(5280'-0")"},
        {"a million feet", 144000000.0F, eighth, R"(1000000'-0")"},
        {"the smallest float above nothing", 1e-45F, sixtyFourth, R"(0)"},
        {"a thousandth of an inch", 0.012F, sixtyFourth, R"(0)"},
        {"eleven inches and a half", 138.0F, quarter, R"(11 1/2")"},
        {"0.99 inch", 11.88F, sixtyFourth, R"(63/64")"},
        {"0.995 inch is the inch", 11.94F, sixtyFourth, R"(1")"},
    };
    for (const Row& row : rows) EXPECT_EQ(shown(row.length, row.tolerance), row.text) << row.what;
}

TEST(FeetAndInchesMeasure, ACommaChangesNothing)
{
    EXPECT_EQ(formatMeasure({1770, {NumStyle::feetAndInches, eighth, true}}), R"(12'-3 1/2")");
}

} // namespace
} // namespace mirtane
