// dxf/number_text.cpp: a file holds hundreds of thousands of numbers, so those of an ordinary size are cut
// into digits here. The rest goes to the standard library, which gives the same texts.

#include "dxf/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace mirtane {
namespace {

constexpr int singleDigits = 7;
constexpr int doubleDigits = 15;
constexpr double least = 1e-4; // below, and from 1e7 on, the form with E begins
constexpr std::int32_t beyondDigits = 10000000;

// 10 to the power of 0 to 10. The product of a float and one of these fits the 53 bits of a double, so it is
// exact and is rounded as the value itself would be.
constexpr double powersOfTen[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10};

std::string_view textIn(const NumberBuffer& buffer, const char* end)
{
    return {buffer.data(), static_cast<std::size_t>(end - buffer.data())}; // end lies behind its begin
}

std::string_view generalText(NumberBuffer& buffer, double value, int digits, char decimalPoint)
{
    char* const begin = buffer.data();
    if (!std::isfinite(value) || value == 0) value = 0; // of either sign
    char* const end =
        std::to_chars(begin, begin + buffer.size(), value, std::chars_format::general, digits).ptr;
    std::replace(begin, end, 'e', 'E');
    std::replace(begin, end, '.', decimalPoint);
    return textIn(buffer, end);
}

// How many places are needed behind the point for seven digits in all.
int placesFor(double magnitude)
{
    int places = 6;
    for (; places > 0 && magnitude >= powersOfTen[7 - places]; --places) {}
    for (; places < 10 && magnitude * powersOfTen[places] < 1e6; ++places) {}
    return places;
}

// The digits of number with its point before the last places of them.
char* writeDigits(char* out, std::int32_t number, int places, char decimalPoint)
{
    for (; places > 0 && number % 10 == 0; --places) number /= 10;
    char digits[16];
    int count = 0;
    for (; number > 0 || count <= places; number /= 10)
        digits[count++] = static_cast<char>('0' + number % 10);
    while (count > 0) {
        *out++ = digits[--count];
        if (count == places && places > 0) *out++ = decimalPoint;
    }
    return out;
}

} // namespace

std::string_view dxfNumber(NumberBuffer& buffer, double value, char decimalPoint)
{
    return generalText(buffer, value, doubleDigits, decimalPoint);
}

std::string_view dxfNumber(NumberBuffer& buffer, float value, char decimalPoint)
{
    const double wide = value;
    const double magnitude = std::fabs(wide);
    if (!(magnitude >= least && magnitude < beyondDigits))
        return generalText(buffer, wide, singleDigits, decimalPoint);
    const int places = placesFor(magnitude);
    const auto digits = static_cast<std::int32_t>(std::nearbyint(magnitude * powersOfTen[places])); // <= 1e7
    if (digits == beyondDigits && places == 0) return generalText(buffer, wide, singleDigits, decimalPoint);
    char* out = buffer.data();
    if (value < 0) *out++ = '-';
    return textIn(buffer, writeDigits(out, digits, places, decimalPoint));
}

} // namespace mirtane
