#include "exchange/group_run.h"

#include <algorithm>

namespace mirtane {

std::vector<Vec3> pointsOf(DxfGroups groups, int code)
{
    std::vector<Vec3> points;
    for (const DxfGroup& group : groups) {
        if (group.code == code) points.push_back({dxfNumber(group.value), 0, 0});
        if (points.empty()) continue;
        if (group.code == code + 10) points.back().y = dxfNumber(group.value);
        if (group.code == code + 20) points.back().z = dxfNumber(group.value);
    }
    return points;
}

std::vector<double> numbersOf(DxfGroups groups, int code)
{
    std::vector<double> numbers;
    for (const DxfGroup& group : groups) {
        if (group.code == code) numbers.push_back(dxfNumber(group.value));
    }
    return numbers;
}

DividedGroups dividedAt(DxfGroups groups, int code, std::string_view value)
{
    const auto found = std::ranges::find_if(
        groups, [&](const DxfGroup& g) { return g.code == code && isSameName(trimmed(g.value), value); });
    const auto before = static_cast<std::size_t>(found - groups.begin()); // not before the first
    return {groups.first(before), groups.subspan(before)};
}

} // namespace mirtane
