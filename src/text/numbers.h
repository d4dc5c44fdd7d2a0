#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

namespace mirtane {

// Numbers as text never follow the locale: the decimal point is "." until withComma() is asked to change it.

// The shortest text of a value at the digits its type can be trusted for: 7 for a float, 15 for a double.
// No trailing zeros; very large and very small values take an exponent ("1e+20"), which readNumber() reads.
// NaN and infinity give an empty text.
std::string plainNumber(float value);
std::string plainNumber(double value);

template <std::integral Whole> std::string plainNumber(Whole value)
{
    return std::to_string(value);
}

// A count with a "," before each group of three digits: "8,412".
std::string withThousands(std::int64_t count);

// How many places a number is shown with, and how many zeros stand before its point at the least.
enum class NumberFormat {
    paddedThousandths, // "000.000", the fields
    bareThousandths,   // "#.000", no zero before the point
    bareHundredths,    // "#.00"
    thousandths,       // "0.000"
};

// Rounds half away from zero on the decimal digits that plainNumber() would show, so that 2.675 with two
// places is 2.68 although its binary value lies a little below. A value that rounds to nothing has no minus.
// NaN and infinity give an empty text. The longest text, of the largest double, has 315 characters.
std::string formatNumber(float value, NumberFormat format);
std::string formatNumber(double value, NumberFormat format);

// Reads a leading number: blanks are skipped, then a sign, digits with at most one ".", and an exponent; the
// first other character ends it. Nothing readable is 0, and so is a number that a double can't hold. Gives no
// NaN, no infinity and no negative zero.
double readNumber(std::string_view text);

// text with each "." made a ",".
std::string withComma(std::string text);

} // namespace mirtane
