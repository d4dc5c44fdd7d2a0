#include "exchange/dxf_groups.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace mirtane {

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t";
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

double dxfNumber(std::string_view value, double fallback)
{
    value = trimmed(value);
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
