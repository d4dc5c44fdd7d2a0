#include "exchange/dxf_groups.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace mirtane {

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
