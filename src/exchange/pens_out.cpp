#include "exchange/pens_out.h"

#include "exchange/look.h"

#include <algorithm>
#include <iterator>

namespace mirtane {
namespace {

constexpr PenOut pensOut[] = {
    {0xFF0000, 5, 5},   // blue
    {0x00FF00, 3, 9},   // green
    {0xFFFF00, 4, 18},  // aqua
    {0x0000FF, 1, 25},  // red
    {0xFF00FF, 6, 35},  // purple
    {0x0080FF, 30, 40}, // brown
    {0x00FFFF, 2, 50},  // yellow
    {0xFFFFFF, 7, 60},  // white
};

constexpr double dashedLengths[] = {0.5, -0.25};
constexpr double dottedLengths[] = {0, -0.25};
constexpr double dashDottedLengths[] = {0.5, -0.25, 0, -0.25};
constexpr double dashTwiceDottedLengths[] = {0.5, -0.25, 0, -0.25, 0, -0.25};

// By style, from 0 on.
constexpr LineTypeOut lineTypeRows[] = {
    {"Continuous", "Solid line", {}},
    {"DASHED", "__ __ __ __ __ __ __ __ __ __", dashedLengths},
    {"DOT", ". . . . . . . . . . . . . . .", dottedLengths},
    {"DASHDOT", "__ . __ . __ . __ . __ . __ .", dashDottedLengths},
    {"DIVIDE", "__ . . __ . . __ . . __ . . __", dashTwiceDottedLengths},
};

std::int32_t turnedRound(std::int32_t color) // 0xBBGGRR to 0xRRGGBB
{
    return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

} // namespace

const PenOut& penOut(std::int32_t color)
{
    const auto* found = std::ranges::find(pensOut, color, &PenOut::color);
    if (found == std::end(pensOut))
        found = std::ranges::find(pensOut, penOfTrueColor(turnedRound(color)), &PenOut::color);
    return found == std::end(pensOut) ? *std::prev(std::end(pensOut)) : *found;
}

const LineTypeOut& lineTypeOut(std::int16_t style)
{
    const bool known = style >= 0 && style < std::ssize(lineTypeRows);
    return lineTypeRows[known ? style : 0];
}

std::span<const LineTypeOut> lineTypesOut()
{
    return lineTypeRows;
}

} // namespace mirtane
