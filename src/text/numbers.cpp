// text/numbers.cpp: numbers are rounded on their decimal digits, as a person reads them, and not on the bits.

#include "text/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace mirtane {
namespace {

constexpr int singleDigits = 7;
constexpr int doubleDigits = 15;

std::string toText(double value, std::chars_format style, int precision)
{
    std::array<char, 64> buffer{}; // at these precisions the longest text has 22 characters
    char* const begin = buffer.data();
    return {begin, std::to_chars(begin, begin + buffer.size(), value, style, precision).ptr};
}

std::string plain(double value, int digits)
{
    if (!std::isfinite(value)) return {};
    if (value == 0) return "0"; // of either sign
    return toText(value, std::chars_format::general, digits);
}

// The digits of a number and the place of its point: 12.5 is "125" with 2 digits before the point.
struct Decimal {
    std::string digits;
    int beforePoint = 0; // below 0: zeros stand between the point and the first digit
};

Decimal decimalOf(double magnitude, int digits)
{
    const std::string text = toText(magnitude, std::chars_format::scientific, digits - 1);
    const std::size_t e = text.find('e');
    const bool small = text[e + 1] == '-';
    int exponent = 0;
    std::from_chars(text.data() + e + 2, text.data() + text.size(), exponent);

    Decimal result{text.substr(0, e), (small ? -exponent : exponent) + 1};
    std::erase(result.digits, '.');
    return result;
}

void addOne(std::string& digits)
{
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
        if (*digit != '9') {
            ++*digit;
            return;
        }
        *digit = '0';
    }
    digits.insert(digits.begin(), '1');
}

// The digits of the number times 10 to the power of places, rounded to a whole number; empty when that is 0.
std::string roundedDigits(const Decimal& number, int places)
{
    if (number.beforePoint + places < 0) return {};
    const auto kept = static_cast<std::size_t>(number.beforePoint + places); // 0 or more, tested above
    std::string digits = number.digits;
    const bool up = kept < digits.size() && digits[kept] >= '5';
    digits.resize(kept, '0');
    if (up) addOne(digits);
    return digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
}

struct Layout {
    std::size_t leastWhole;
    int places;
};

Layout layoutOf(NumberFormat format)
{
    switch (format) {
    case NumberFormat::paddedThousandths:
        return {3, 3};
    case NumberFormat::bareThousandths:
        return {0, 3};
    case NumberFormat::bareHundredths:
        return {0, 2};
    case NumberFormat::thousandths:
        break;
    }
    return {1, 3};
}

std::string formatted(double value, int trustedDigits, NumberFormat format)
{
    if (!std::isfinite(value)) return {};
    const Layout layout = layoutOf(format);
    std::string digits = roundedDigits(decimalOf(std::fabs(value), trustedDigits), layout.places);
    const bool minus = value < 0 && !digits.empty();

    const auto places = static_cast<std::size_t>(layout.places); // 2 or 3
    const std::size_t least = layout.leastWhole + places;
    if (digits.size() < least) digits.insert(0, least - digits.size(), '0');
    digits.insert(digits.size() - places, 1, '.');
    return minus ? "-" + digits : digits;
}

} // namespace

std::string plainNumber(float value)
{
    return plain(static_cast<double>(value), singleDigits); // widened on purpose: the value is the same
}

std::string plainNumber(double value)
{
    return plain(value, doubleDigits);
}

std::string formatNumber(float value, NumberFormat format)
{
    const auto widened = static_cast<double>(value); // the value is the same
    return formatted(widened, singleDigits, format);
}

std::string formatNumber(double value, NumberFormat format)
{
    return formatted(value, doubleDigits, format);
}

double readNumber(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
    const bool minus = text.starts_with('-');
    if (minus || text.starts_with('+')) text.remove_prefix(1);
    if (text.empty() || std::string_view("0123456789.").find(text[0]) == std::string_view::npos) {
        return 0; // among others the words for infinity and not-a-number, which from_chars would take
    }

    double value = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (fault != std::errc{} || value == 0) return 0;
    return minus ? -value : value;
}

std::string withThousands(std::int64_t count)
{
    std::string text = std::to_string(count);
    const std::size_t sign = count < 0 ? 1 : 0;
    for (std::size_t at = text.size(); at > sign + 3; at -= 3) text.insert(at - 3, 1, ',');
    return text;
}

std::string withComma(std::string text)
{
    std::ranges::replace(text, '.', ',');
    return text;
}

} // namespace mirtane
