#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace mirtane {

// What a drawing says in figures: lengths and areas, angles, and the sizes in prompts. No other routine turns
// one of these into text. A text keeps what it said when it was made, so the roundings here are part of the
// drawing: they follow fixed steps, odd ones among them.

enum class NumStyle {
    feetAndInches, // "us"
    decimalFeet,   // "2f"
    decimalInches, // "3i"
    metric,        // "br"
};

// The style of that name. Any other name, as a damaged file may hold, is feet and inches.
NumStyle numStyleOf(std::string_view name);

// How numbers are shown: the same for all measures of a drawing.
struct NumberDisplay {
    NumStyle style = NumStyle::feetAndInches;
    float dimTol = 0.125F; // the step of the fraction in feet and inches, in inches
    bool comma = false;    // the decimal point shows as ","
};

struct Measure {
    float length = 0; // world units, twelve to the inch; of an area: its square feet times 144
    NumberDisplay display{};
    bool area = false; // decimal feet then, or metres when metric, in every style
};

// The text of a measure:
//   feet and inches  12'-3 1/2"   to the nearest step of the tolerance; nothing is "0", without a mark
//   decimal inches   1.001"       no comma, and no zero before the point
//   decimal feet     123.45'      metric areas 11.50m
//   metric           3m 12.500cm  or 12.500cm
// Decimal feet and inches are cut behind their last place, and raised by one there if the digit cut off was
// above 5.
// Never fails. NaN and infinity show as nothing does. A count that its whole number can't hold is 0: a length
// from 2^31 feet on is "0", from 2^31 metres on all of it is centimetres, and there is no fraction where the
// tolerance is 0 or so small that the fraction has more than 32767 steps of it. A tolerance below 0 counts as
// if it were above, one above an inch as an inch.
std::string formatMeasure(const Measure& measure);

// The sweep, in radians, as degrees to three places with no sign behind: "90.000". A zero angle, and one that
// can't be had, is zeroAngle.
std::string angleDigits(double sweep);
inline constexpr std::string_view zeroAngle = ".000";

// The sweep, in radians, as an angular dimension shows it: angleDigits() and the degree sign when angFormat
// is 0, otherwise whole degrees, minutes and seconds of the unrounded angle. Seconds may come to 60 and do
// not carry: a right angle is a little short of 90 and shows 89, 59' and 60". Degrees that don't fit 16 bits
// count as 0. Never fails.
std::string formatAngle(double sweep, std::int16_t angFormat);

// A text or arrow size, in world units, as prompts show it: inches, or centimetres when metric, to three
// places. The tolerance plays no part. A size that is not finite shows as nothing does, ".000".
std::string formatSize(float size, const NumberDisplay& display);

// The inverse for a typed size, read as distances are: in world units. Metric sizes have a factor of their
// own, so that one typed in centimetres shows as it was typed. What can't be read or is too large is 0.
float readSize(std::string_view text, NumStyle style);

} // namespace mirtane
