// The same texts by another road: whole numbers and digits in place of steps on floats, over many lengths.

#include "text/measure.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <gtest/gtest.h>
#include <numeric>
#include <random>
#include <string>
#include <vector>

namespace mirtane {
namespace {

constexpr int binaryPlaces = 14; // of the lengths below, all of which are whole numbers of 2^-14 units
constexpr std::int64_t one = 1 << binaryPlaces;
constexpr std::array<int, 5> stepsToTheInch{4, 8, 16, 32, 64};

std::vector<std::int64_t> manyLengths()
{
    std::vector<std::int64_t> lengths;
    for (std::int64_t k = 0; k < 2 * 12 * 128; ++k) { // each 128th of two feet, and its two neighbours
        const std::int64_t exact = k * 12 * one / 128;
        for (const std::int64_t length : {exact - 1, exact, exact + 1}) {
            if (length >= 0) lengths.push_back(length);
        }
    }
    std::mt19937 random(20); // the same ones in each run
    for (int i = 0; i < 20000; ++i) {
        lengths.push_back((random() & 0xFFFFFF) << (random() % 9)); // 24 bits, up to 262,144 units
    }
    return lengths;
}

float asFloat(std::int64_t length)
{
    return std::ldexp(static_cast<float>(length), -binaryPlaces); // exact: 24 bits at the most
}

std::int64_t nearestEven(std::int64_t value, std::int64_t step)
{
    const std::int64_t low = value / step;
    const std::int64_t twice = 2 * (value % step);
    if (twice == step) return low + low % 2;
    return twice > step ? low + 1 : low;
}

// The length as a number of steps of the tolerance, the even one when it lies half way, and that spelt out.
std::string restatedInFeet(std::int64_t length, int toTheInch)
{
    const std::int64_t steps = nearestEven(length, 12 * one / toTheInch);
    const std::int64_t feet = steps / toTheInch / 12;
    const std::int64_t inches = steps / toTheInch % 12;
    const std::int64_t over = steps % toTheInch;
    const std::int64_t common = std::gcd(over, toTheInch);

    std::string text;
    if (feet > 0) text += std::to_string(feet) + "'-";
    if (feet > 0 || inches > 0) text += std::to_string(inches);
    if (over > 0 && !text.empty()) text += ' ';
    if (over > 0) text += std::to_string(over / common) + '/' + std::to_string(toTheInch / common);
    return text.empty() ? "0" : text + '"';
}

// Reads 12'-3 1/2" back, in world units; NaN for what is no such text.
double readBack(const std::string& text)
{
    if (text == "0") return 0;
    std::string rest = text;
    double feet = 0;
    if (const auto mark = rest.find("'-"); mark != std::string::npos) {
        feet = std::stod(rest.substr(0, mark));
        rest.erase(0, mark + 2);
    }
    if (!rest.ends_with('"')) return std::nan("");
    rest.pop_back();

    double fraction = 0;
    if (const auto slash = rest.find('/'); slash != std::string::npos) {
        const auto blank = rest.find(' ');
        const auto first = blank == std::string::npos ? 0 : blank + 1;
        fraction = std::stod(rest.substr(first, slash - first)) / std::stod(rest.substr(slash + 1));
        rest.erase(blank == std::string::npos ? 0 : blank);
    }
    const double inches = rest.empty() ? 0 : std::stod(rest);
    return feet * 144 + (inches + fraction) * 12;
}

TEST(RestatedMeasure, FeetAndInchesAreTheNearestStepTheEvenOneHalfWay)
{
    for (const std::int64_t length : manyLengths()) {
        for (const int toTheInch : stepsToTheInch) {
            const Measure measure{asFloat(length),
                                  {NumStyle::feetAndInches, 1.0F / asFloat(toTheInch * one)}};
            ASSERT_EQ(formatMeasure(measure), restatedInFeet(length, toTheInch)) << measure.length;
        }
    }
}

TEST(RestatedMeasure, FeetAndInchesReadBackLieWithinHalfATolerance)
{
    for (const std::int64_t length : manyLengths()) {
        for (const int toTheInch : stepsToTheInch) {
            const Measure measure{asFloat(length),
                                  {NumStyle::feetAndInches, 1.0F / asFloat(toTheInch * one)}};
            const double back = readBack(formatMeasure(measure));
            const double off = std::fabs(back - static_cast<double>(measure.length)); // widened, to subtract
            ASSERT_LE(off, 6.0 / toTheInch) << measure.length << ": " << formatMeasure(measure);
        }
    }
}

// The seven digits of value cut behind some places, and raised there for a 6 or more: as whole last places.
std::string restatedDecimal(float value, std::size_t places)
{
    std::array<char, 40> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%.7g", static_cast<double>(value)); // as varargs widen it
    const std::string text = buffer.data();
    const std::size_t point = std::min(text.find('.'), text.size());
    std::string digits = point == text.size() ? "" : text.substr(point + 1);
    const bool raise = digits.size() > places && digits[places] > '5';
    digits.resize(places, '0');

    std::string all = std::to_string(std::stoll(text.substr(0, point) + digits) + (raise ? 1 : 0));
    if (all.size() < places) all.insert(0, places - all.size(), '0');
    return all.insert(all.size() - places, ".");
}

bool hasExponent(float value)
{
    return value != 0 && (value < 0.0001F || value >= 9999999.5F);
}

TEST(RestatedMeasure, DecimalInchesAreTheirDigitsCut)
{
    for (const std::int64_t length : manyLengths()) {
        const float inches = asFloat(length) / 12;
        if (hasExponent(inches)) continue;
        ASSERT_EQ(formatMeasure({asFloat(length), {NumStyle::decimalInches}}),
                  restatedDecimal(inches, 3) + "\"");
    }
}

TEST(RestatedMeasure, DecimalFeetAreTheirDigitsCut)
{
    for (const std::int64_t length : manyLengths()) {
        const float feet = asFloat(length) / 144;
        if (hasExponent(feet)) continue;
        ASSERT_EQ(formatMeasure({asFloat(length), {NumStyle::decimalFeet}}), restatedDecimal(feet, 2) + "'");
    }
}

TEST(RestatedMeasure, MetresAndCentimetresReadBackLieWithinHalfAThousandth)
{
    for (const std::int64_t length : manyLengths()) {
        const float units = asFloat(length);
        const std::string text = formatMeasure({units, {NumStyle::metric}});
        const auto mark = text.find("m ");
        const double metres = mark == std::string::npos ? 0 : std::stod(text.substr(0, mark));
        const double rest = std::stod(mark == std::string::npos ? text : text.substr(mark + 2));
        const double exact = units * 0.2118295;
        ASSERT_NEAR(metres * 100 + rest, exact, 0.000506 + exact * 6e-8) << text; // 7 digits of a float
        ASSERT_GE(rest, -0.0051) << text;
        ASSERT_LT(rest, 99.9955) << text;
        ASSERT_EQ(mark == std::string::npos, metres == 0) << text;
    }
}

} // namespace
} // namespace mirtane
