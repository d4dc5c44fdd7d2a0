#include "exchange/dxf_groups.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <optional>
#include <string>

namespace mirtane {
namespace {

// A decimal of few digits without an exponent, which most numbers are. Its digits and the power of ten are
// exact, so that one division rounds as the library does, in a quarter of its time.
std::optional<double> shortDecimal(std::string_view value)
{
    constexpr double tens[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                               1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    constexpr std::size_t most = std::size(tens) - 1;
    const bool isNegative = value.starts_with('-');
    if (isNegative) value.remove_prefix(1);
    std::int64_t digits = 0;
    std::size_t count = 0;
    std::size_t whole = most + 1; // digits before the point
    for (const char c : value) {
        if ((c == '.' || c == ',') && whole > most) {
            whole = count;
        } else if (c >= '0' && c <= '9' && ++count <= most) {
            digits = 10 * digits + (c - '0');
        } else {
            return std::nullopt;
        }
    }
    if (count == 0) return std::nullopt;
    const double number = static_cast<double>(digits) / tens[count - std::min(whole, count)]; // both exact
    return isNegative ? -number : number;
}

// What is too little for a number is nothing.
bool isTooLittle(std::string_view value, std::errc fault)
{
    return fault == std::errc::result_out_of_range && value.substr(1).find('-') != std::string_view::npos;
}

// The number that a value begins with, and what stands behind it.
struct Beginning {
    std::optional<double> number;
    std::string_view rest;
};

Beginning beginningOf(std::string_view value)
{
    if (value.starts_with('+')) value.remove_prefix(1);
    double number = 0;
    const auto [stop, fault] = std::from_chars(value.data(), value.data() + value.size(), number);
    const std::string_view rest = value.substr(static_cast<std::size_t>(stop - value.data())); // not negative
    if (isTooLittle(value, fault)) return {0, rest};
    const bool isGood = fault == std::errc{} && std::isfinite(number);
    return {isGood ? std::optional(number) : std::nullopt, rest};
}

std::optional<double> longDecimal(std::string_view value)
{
    const Beginning beginning = beginningOf(value);
    return beginning.rest.empty() ? beginning.number : std::nullopt;
}

// Some programs write a comma for the point, as their user's country does.
std::optional<double> withComma(std::string_view value)
{
    const std::size_t comma = value.find(',');
    if (comma == std::string_view::npos || value.find('.') != std::string_view::npos) return std::nullopt;
    std::string spelled(value);
    spelled[comma] = '.';
    return longDecimal(spelled);
}

std::optional<double> numberIn(std::string_view value)
{
    value = trimmed(value);
    if (const auto number = shortDecimal(value)) return number;
    if (const auto number = longDecimal(value)) return number;
    return withComma(value);
}

// Eight characters at once. Numbers are short, and there are many of them.
std::uint64_t eightAt(const char* from)
{
    std::uint64_t eight = 0;
    std::memcpy(&eight, from, sizeof eight);
    return eight;
}

// The highest bit of each character that is not among the digits, the minus and the point.
constexpr std::uint64_t othersIn(std::uint64_t eight)
{
    constexpr std::uint64_t ones = 0x0101'0101'0101'0101, highest = ones << 7, lower = ~highest;
    const std::uint64_t fromMinusOn = (eight | highest) - ones * '-';
    const std::uint64_t behindNine = ((eight & lower) + ones * (0x7F - '9')) | eight;
    return (~fromMinusOn | behindNine) & highest;
}

bool hasOthers(std::string_view value)
{
    constexpr std::size_t step = 8;
    if (value.size() < step) return std::ranges::any_of(value, [](char c) { return c < '-' || c > '9'; });
    std::uint64_t others = othersIn(eightAt(value.data() + value.size() - step));
    for (std::size_t i = 0; i + step < value.size(); i += step) others |= othersIn(eightAt(value.data() + i));
    return others != 0;
}

} // namespace

double dxfNumber(std::string_view value, double fallback)
{
    if (const auto number = numberIn(value)) return *number;
    return beginningOf(trimmed(value)).number.value_or(fallback);
}

bool isNoNumber(std::string_view value)
{
    return hasOthers(value) && !numberIn(value);
}

int dxfWhole(std::string_view value, int fallback)
{
    constexpr double limit = 2147483647;
    const double number = dxfNumber(value, fallback);
    return std::abs(number) <= limit ? static_cast<int>(number) : fallback; // within the limit just tested
}

const DxfGroup* findGroup(DxfGroups groups, int code)
{
    for (const DxfGroup& group : groups) {
        if (group.code == code) return &group;
    }
    return nullptr;
}

} // namespace mirtane
