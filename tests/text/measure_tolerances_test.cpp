#include "text/measure.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <string>

namespace mirtane {
namespace {

constexpr float quarter = 0.25F;
constexpr float eighth = 0.125F;
constexpr float sixteenth = 0.0625F;
constexpr float thirtySecond = 0.03125F;
constexpr float sixtyFourth = 0.015625F;

// Lengths are in world units, twelve to the inch and 144 to the foot.
struct Row {
    const char* what;
    float length;
    const char* text;
};

std::string shown(float length, float tolerance)
{
    return formatMeasure({length, {NumStyle::feetAndInches, tolerance, false}});
}

template <std::size_t count> void expectAll(const Row (&rows)[count], float tolerance)
{
    for (const Row& row : rows) EXPECT_EQ(shown(row.length, tolerance), row.text) << row.what;
}

TEST(FeetAndInchesMeasure, ToAQuarter)
{
    const Row rows[] = {
        {"nothing", 0.0F, R"(0)"},
        {"less than half a step is nothing", 1.4990234F, R"(0)"},
        {"half a step is even with nothing", 1.5F, R"(0)"},
        {"a little over half a step", 1.5009766F, R"(1/4")"},
        {"a step", 3.0F, R"(1/4")"},
        {"a step and a half goes to the even second", 4.5F, R"(1/2")"},
        {"two steps and a half go to the even second", 7.5F, R"(1/2")"},
        {"the last step below an inch", 9.0F, R"(3/4")"},
        {"a little less than half a step below an inch", 10.499023F, R"(3/4")"},
        {"half a step below an inch is the inch", 10.5F, R"(1")"},
        {"an inch", 12.0F, R"(1")"},
        {"half a step above an inch shows no fraction", 13.5F, R"(1")"},
        {"a little more than that shows one", 13.500977F, R"(1 1/4")"},
        {"three inches and a half", 42.0F, R"(3 1/2")"},
        {"six inches", 72.0F, R"(6")"},
        {"the last step below a foot", 141.0F, R"(11 3/4")"},
        {"a little less than half a step below a foot", 142.49902F, R"(11 3/4")"},
        {"half a step below a foot is the foot", 142.5F, R"(1'-0")"},
        {"a foot", 144.0F, R"(1'-0")"},
        {"half a step above a foot is still the foot", 145.5F, R"(1'-0")"},
        {"a foot and a step", 147.0F, R"(1'-0 1/4")"},
        {"a foot and a half", 216.0F, R"(1'-6")"},
        {"three feet and a half are not rounded to four", 504.0F, R"(3'-6")"},
        {"two inches and a half, likewise", 30.0F, R"(2 1/2")"},
        {"a foot and nearly another", 286.49902F, R"(1'-11 3/4")"},
        {"twelve feet, no inches, half an inch", 1734.0F, R"(12'-0 1/2")"},
        {"twelve feet three and a half", 1770.0F, R"(12'-3 1/2")"},
        {"a hundred feet less half a step", 14398.5F, R"(100'-0")"},
        {"a long wall", 17799.0F, R"(123'-7 1/4")"},
    };
    expectAll(rows, quarter);
}

TEST(FeetAndInchesMeasure, ToAnEighth)
{
    const Row rows[] = {
        {"nothing", 0.0F, R"(0)"},
        {"less than half a step is nothing", 0.74902344F, R"(0)"},
        {"half a step is even with nothing", 0.75F, R"(0)"},
        {"a little over half a step", 0.75097656F, R"(1/8")"},
        {"a step", 1.5F, R"(1/8")"},
        {"a step and a half goes to the even second", 2.25F, R"(1/4")"},
        {"two steps and a half go to the even second", 3.75F, R"(1/4")"},
        {"the last step below an inch", 10.5F, R"(7/8")"},
        {"a little less than half a step below an inch", 11.249023F, R"(7/8")"},
        {"half a step below an inch is the inch", 11.25F, R"(1")"},
        {"an inch", 12.0F, R"(1")"},
        {"half a step above an inch shows no fraction", 12.75F, R"(1")"},
        {"a little more than that shows one", 12.750977F, R"(1 1/8")"},
        {"three inches and a half", 42.0F, R"(3 1/2")"},
        {"six inches", 72.0F, R"(6")"},
        {"the last step below a foot", 142.5F, R"(11 7/8")"},
        {"a little less than half a step below a foot", 143.24902F, R"(11 7/8")"},
        {"half a step below a foot is the foot", 143.25F, R"(1'-0")"},
        {"a foot", 144.0F, R"(1'-0")"},
        {"half a step above a foot is still the foot", 144.75F, R"(1'-0")"},
        {"a foot and a step", 145.5F, R"(1'-0 1/8")"},
        {"a foot and a half", 216.0F, R"(1'-6")"},
        {"three feet and a half are not rounded to four", 504.0F, R"(3'-6")"},
        {"two inches and a half, likewise", 30.0F, R"(2 1/2")"},
        {"a foot and nearly another", 287.24902F, R"(1'-11 7/8")"},
        {"twelve feet, no inches, half an inch", 1734.0F, R"(12'-0 1/2")"},
        {"twelve feet three and a half", 1770.0F, R"(12'-3 1/2")"},
        {"a hundred feet less half a step", 14399.25F, R"(100'-0")"},
        {"a long wall", 17797.5F, R"(123'-7 1/8")"},
    };
    expectAll(rows, eighth);
}

TEST(FeetAndInchesMeasure, ToASixteenth)
{
    const Row rows[] = {
        {"nothing", 0.0F, R"(0)"},
        {"less than half a step is nothing", 0.37402344F, R"(0)"},
        {"half a step is even with nothing", 0.375F, R"(0)"},
        {"a little over half a step", 0.37597656F, R"(1/16")"},
        {"a step", 0.75F, R"(1/16")"},
        {"a step and a half goes to the even second", 1.125F, R"(1/8")"},
        {"two steps and a half go to the even second", 1.875F, R"(1/8")"},
        {"the last step below an inch", 11.25F, R"(15/16")"},
        {"a little less than half a step below an inch", 11.624023F, R"(15/16")"},
        {"half a step below an inch is the inch", 11.625F, R"(1")"},
        {"an inch", 12.0F, R"(1")"},
        {"half a step above an inch shows no fraction", 12.375F, R"(1")"},
        {"a little more than that shows one", 12.375977F, R"(1 1/16")"},
        {"three inches and a half", 42.0F, R"(3 1/2")"},
        {"six inches", 72.0F, R"(6")"},
        {"the last step below a foot", 143.25F, R"(11 15/16")"},
        {"a little less than half a step below a foot", 143.62402F, R"(11 15/16")"},
        {"half a step below a foot is the foot", 143.625F, R"(1'-0")"},
        {"a foot", 144.0F, R"(1'-0")"},
        {"half a step above a foot is still the foot", 144.375F, R"(1'-0")"},
        {"a foot and a step", 144.75F, R"(1'-0 1/16")"},
        {"a foot and a half", 216.0F, R"(1'-6")"},
        {"three feet and a half are not rounded to four", 504.0F, R"(3'-6")"},
        {"two inches and a half, likewise", 30.0F, R"(2 1/2")"},
        {"a foot and nearly another", 287.62402F, R"(1'-11 15/16")"},
        {"twelve feet, no inches, half an inch", 1734.0F, R"(12'-0 1/2")"},
        {"twelve feet three and a half", 1770.0F, R"(12'-3 1/2")"},
        {"a hundred feet less half a step", 14399.625F, R"(100'-0")"},
        {"a long wall", 17796.75F, R"(123'-7 1/16")"},
    };
    expectAll(rows, sixteenth);
}

TEST(FeetAndInchesMeasure, ToAThirtySecond)
{
    const Row rows[] = {
        {"nothing", 0.0F, R"(0)"},
        {"less than half a step is nothing", 0.18652344F, R"(0)"},
        {"half a step is even with nothing", 0.1875F, R"(0)"},
        {"a little over half a step", 0.18847656F, R"(1/32")"},
        {"a step", 0.375F, R"(1/32")"},
        {"a step and a half goes to the even second", 0.5625F, R"(1/16")"},
        {"two steps and a half go to the even second", 0.9375F, R"(1/16")"},
        {"the last step below an inch", 11.625F, R"(31/32")"},
        {"a little less than half a step below an inch", 11.811523F, R"(31/32")"},
        {"half a step below an inch is the inch", 11.8125F, R"(1")"},
        {"an inch", 12.0F, R"(1")"},
        {"half a step above an inch shows no fraction", 12.1875F, R"(1")"},
        {"a little more than that shows one", 12.188477F, R"(1 1/32")"},
        {"three inches and a half", 42.0F, R"(3 1/2")"},
        {"six inches", 72.0F, R"(6")"},
        {"the last step below a foot", 143.625F, R"(11 31/32")"},
        {"a little less than half a step below a foot", 143.81152F, R"(11 31/32")"},
        {"half a step below a foot is the foot", 143.8125F, R"(1'-0")"},
        {"a foot", 144.0F, R"(1'-0")"},
        {"half a step above a foot is still the foot", 144.1875F, R"(1'-0")"},
        {"a foot and a step", 144.375F, R"(1'-0 1/32")"},
        {"a foot and a half", 216.0F, R"(1'-6")"},
        {"three feet and a half are not rounded to four", 504.0F, R"(3'-6")"},
        {"two inches and a half, likewise", 30.0F, R"(2 1/2")"},
        {"a foot and nearly another", 287.81152F, R"(1'-11 31/32")"},
        {"twelve feet, no inches, half an inch", 1734.0F, R"(12'-0 1/2")"},
        {"twelve feet three and a half", 1770.0F, R"(12'-3 1/2")"},
        {"a hundred feet less half a step", 14399.8125F, R"(100'-0")"},
        {"a long wall", 17796.375F, R"(123'-7 1/32")"},
    };
    expectAll(rows, thirtySecond);
}

TEST(FeetAndInchesMeasure, ToASixtyFourth)
{
    const Row rows[] = {
        {"nothing", 0.0F, R"(0)"},
        {"less than half a step is nothing", 0.09277344F, R"(0)"},
        {"half a step is even with nothing", 0.09375F, R"(0)"},
        {"a little over half a step", 0.09472656F, R"(1/64")"},
        {"a step", 0.1875F, R"(1/64")"},
        {"a step and a half goes to the even second", 0.28125F, R"(1/32")"},
        {"two steps and a half go to the even second", 0.46875F, R"(1/32")"},
        {"the last step below an inch", 11.8125F, R"(63/64")"},
        {"a little less than half a step below an inch", 11.905273F, R"(63/64")"},
        {"half a step below an inch is the inch", 11.90625F, R"(1")"},
        {"an inch", 12.0F, R"(1")"},
        {"half a step above an inch shows no fraction", 12.09375F, R"(1")"},
        {"a little more than that shows one", 12.094727F, R"(1 1/64")"},
        {"three inches and a half", 42.0F, R"(3 1/2")"},
        {"six inches", 72.0F, R"(6")"},
        {"the last step below a foot", 143.8125F, R"(11 63/64")"},
        {"a little less than half a step below a foot", 143.90527F, R"(11 63/64")"},
        {"half a step below a foot is the foot", 143.90625F, R"(1'-0")"},
        {"a foot", 144.0F, R"(1'-0")"},
        {"half a step above a foot is still the foot", 144.09375F, R"(1'-0")"},
        {"a foot and a step", 144.1875F, R"(1'-0 1/64")"},
        {"a foot and a half", 216.0F, R"(1'-6")"},
        {"three feet and a half are not rounded to four", 504.0F, R"(3'-6")"},
        {"two inches and a half, likewise", 30.0F, R"(2 1/2")"},
        {"a foot and nearly another", 287.90527F, R"(1'-11 63/64")"},
        {"twelve feet, no inches, half an inch", 1734.0F, R"(12'-0 1/2")"},
        {"twelve feet three and a half", 1770.0F, R"(12'-3 1/2")"},
        {"a hundred feet less half a step", 14399.906F, R"(100'-0")"},
        {"a long wall", 17796.188F, R"(123'-7 1/64")"},
    };
    expectAll(rows, sixtyFourth);
}

} // namespace
} // namespace mirtane
