// text/measure.cpp: each number is found in the steps, and in the 32-bit floats, that drawings were always
// labelled with. A step that can't be done leaves its number at the 0 that it starts with.

#include "text/measure.h"

#include "geometry/angle.h"
#include "geometry/fault.h"
#include "text/distance_grammar.h"
#include "text/numbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <utility>

namespace mirtane {
namespace {

constexpr double unitsPerInch = 12;
constexpr double unitsPerFoot = 144;

// These three do not quite agree with each other, nor with an inch of 2.54 cm. Drawings hold texts made with
// them.
constexpr double centimetresPerUnit = 0.2118295;
constexpr double unitsPerCentimetreOfSize = 4.7206;
constexpr double squareFeetPerSquareMetre = 10.74008;

// How many wholes of that size value has, where a value that misses the next one by no more than slack counts
// as having it. 0 when there are more than Whole can count.
template <class Whole> Whole wholesIn(double value, double size, double slack)
{
    Whole count = 0;
    if (!keep(count, quotient(value, size))) return 0;
    if (value + slack < count * size) keep(count, count - 1.0);
    return count;
}

// -- feet and inches --

// x inches as a fraction in 64ths; "" for what is nearer to nothing. Half way between two is the lower one.
std::string fractionText(double x)
{
    int shown = 0;
    for (int k = 1; k <= 63; ++k) {
        if (x > (2 * k - 1) / 128.0) shown = k;
    }
    if (shown == 0) return {};
    const int common = std::gcd(shown, 64);
    return std::to_string(shown / common) + "/" + std::to_string(64 / common) + "\"";
}

std::string feetAndInchesText(std::int32_t feet, std::int32_t inches, const std::string& fraction)
{
    if (feet == 0 && inches == 0) return fraction.empty() ? "0" : fraction;
    const std::string front = feet == 0 ? "" : std::to_string(feet) + "'-";
    return front + std::to_string(inches) + (fraction.empty() ? "\"" : " " + fraction);
}

// A file may hold a tolerance that no menu offers: its sign is no matter, and above an inch it is an inch.
std::string feetAndInches(double length, double anyTolerance)
{
    const double tolerance = std::min(1.0, std::fabs(anyTolerance));
    const double halfStep = tolerance * unitsPerInch / 2;
    const auto feet = wholesIn<std::int32_t>(length, unitsPerFoot, halfStep);
    double overFeet = 0;
    keep(overFeet, length - feet * unitsPerFoot);
    const auto inches = wholesIn<std::int32_t>(overFeet, unitsPerInch, halfStep);
    const double partOfInch = (overFeet - inches * unitsPerInch) / unitsPerInch; // may lie just below 0

    std::int16_t steps = 0;
    keep(steps, quotient(partOfInch, tolerance));
    if (steps * tolerance > 1) --steps; // a fraction is below an inch
    return feetAndInchesText(feet, inches, fractionText(steps * tolerance));
}

// -- decimal feet and inches --

struct Places {
    std::size_t count;
    double lastPlace;
    NumberFormat format;
};

constexpr Places hundredths{2, 0.01, NumberFormat::bareHundredths};
constexpr Places thousandths{3, 0.001, NumberFormat::bareThousandths};

// A digit of exactly 5 behind the last place is dropped, whatever follows it. A value whose text has an
// exponent or no such digit stays as it is.
float cutBehind(float value, const Places& places)
{
    const std::string text = plainNumber(value);
    const std::size_t point = text.find('.');
    if (point == std::string::npos || text.find('e') != std::string::npos) return value;
    const std::size_t next = point + places.count + 1;
    if (next >= text.size()) return value;
    const double cut = readNumber(text.substr(0, next));
    keep(value, text[next] > '5' ? cut + places.lastPlace : cut);
    return value;
}

std::string decimalText(float value, const Places& places)
{
    return formatNumber(cutBehind(value, places), places.format);
}

std::string decimalInches(float length)
{
    float inches = 0;
    keep(inches, length / unitsPerInch);
    return decimalText(inches, thousandths) + "\"";
}

std::string decimalFeet(float length, bool metric)
{
    float feet = 0;
    keep(feet, length / unitsPerFoot);
    if (metric) keep(feet, feet / squareFeetPerSquareMetre); // metric comes here with areas alone
    return decimalText(feet, hundredths) + (metric ? "m" : "'");
}

// -- metres and centimetres --

std::string metresAndCentimetres(float length)
{
    constexpr double slack = 0.005;
    float centimetres = 0;
    keep(centimetres, length * centimetresPerUnit);
    const auto metres = wholesIn<std::int32_t>(centimetres, centimetresPerMetre, slack);
    keep(centimetres, centimetres - metres * centimetresPerMetre); // below 0 just under a whole metre
    const std::string front = metres == 0 ? "" : std::to_string(metres) + "m ";
    return front + formatNumber(centimetres, NumberFormat::thousandths) + "cm";
}

std::string withPointOf(const NumberDisplay& display, std::string text)
{
    return display.comma ? withComma(std::move(text)) : text;
}

// -- angles --

constexpr const char* degreeSign = "\xC2\xB0";

double degreesIn(double sweep)
{
    double degrees = 0;
    keep(degrees, sweep * degreesPerRadian);
    return degrees;
}

std::string degreesMinutesSeconds(double degrees)
{
    const auto whole = wholesIn<std::int16_t>(degrees, 1, 0);
    const double inMinutes = (degrees - whole) * 60;
    const auto minutes = wholesIn<std::int16_t>(inMinutes, 1, 0);
    std::int16_t seconds = 0;
    keep(seconds, (inMinutes - minutes) * 60);
    return std::to_string(whole) + degreeSign + " " + std::to_string(minutes) + "' " +
           std::to_string(seconds) + "\"";
}

// -- sizes --

// Metres and centimetres as one number. The marks are those of distances, but a metre has a hundred.
float readCentimetres(std::string_view text)
{
    const bool minus = text.starts_with('-');
    const std::size_t mark = text.find('\'');
    std::string metres(mark == std::string_view::npos ? "" : text.substr(0, mark));
    std::string centimetres(mark == std::string_view::npos ? text : text.substr(mark));
    for (std::string* part : {&metres, &centimetres}) {
        std::erase_if(*part, [](char c) { return c == '-' || c == '\''; });
    }
    float sum = 0;
    keep(sum, readInches(metres, false) * centimetresPerMetre);
    keep(sum, sum + static_cast<double>(readInches(centimetres, false))); // widened, so that overflow is seen
    return minus ? -sum : sum;
}

} // namespace

NumStyle numStyleOf(std::string_view name)
{
    constexpr std::array<std::pair<std::string_view, NumStyle>, 4> names{{
        {"us", NumStyle::feetAndInches},
        {"2f", NumStyle::decimalFeet},
        {"3i", NumStyle::decimalInches},
        {"br", NumStyle::metric},
    }};
    const auto* const found = std::ranges::find(names, name, &std::pair<std::string_view, NumStyle>::first);
    return found == names.end() ? NumStyle::feetAndInches : found->second;
}

std::string formatMeasure(const Measure& measure)
{
    const NumberDisplay& display = measure.display;
    const bool metric = display.style == NumStyle::metric;
    if (measure.area) return withPointOf(display, decimalFeet(measure.length, metric));
    switch (display.style) {
    case NumStyle::metric:
        return withPointOf(display, metresAndCentimetres(measure.length));
    case NumStyle::decimalFeet:
        return withPointOf(display, decimalFeet(measure.length, false));
    case NumStyle::decimalInches:
        return decimalInches(measure.length);
    case NumStyle::feetAndInches:
        break;
    }
    return feetAndInches(measure.length, display.dimTol);
}

std::string angleDigits(double sweep)
{
    return formatNumber(degreesIn(sweep), NumberFormat::bareThousandths);
}

std::string formatAngle(double sweep, std::int16_t angFormat)
{
    if (angFormat == 0) return angleDigits(sweep) + degreeSign;
    return degreesMinutesSeconds(degreesIn(sweep));
}

std::string formatSize(float size, const NumberDisplay& display)
{
    float shown = 0;
    keep(shown, size / (display.style == NumStyle::metric ? unitsPerCentimetreOfSize : unitsPerInch));
    return withPointOf(display, formatNumber(shown, NumberFormat::bareThousandths));
}

float readSize(std::string_view text, NumStyle style)
{
    if (style != NumStyle::metric) return readDistance(text, false);
    float size = 0;
    keep(size, readCentimetres(text) * unitsPerCentimetreOfSize);
    return size;
}

} // namespace mirtane
