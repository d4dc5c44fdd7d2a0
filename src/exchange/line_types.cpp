#include "exchange/looks.h"

#include <algorithm>

namespace mirtane {
namespace {

constexpr std::int16_t solid = 0;
constexpr std::int16_t dashed = 1;
constexpr std::int16_t dotted = 2;
constexpr std::int16_t dashDot = 3;
constexpr std::int16_t dashDotDot = 4;

struct NameRow {
    std::string_view begin;
    std::int16_t style;
};

// The first that a name begins with counts.
constexpr NameRow names[] = {
    {"DASHDOTDOT", dashDotDot}, {"DASHDOT", dashDot}, {"DASHED", dashed},      {"DASH", dashed},
    {"HIDDEN", dashed},         {"BROKEN", dashed},   {"DOT", dotted},         {"CENTER", dashDot},
    {"CENTRE", dashDot},        {"BORDER", dashDot},  {"PHANTOM", dashDotDot}, {"DIVIDE", dashDotDot},
};

} // namespace

// A dash much shorter than the longest one is a dot to the eye.
std::int16_t styleOfDashes(const DxfRecord& lineType)
{
    constexpr double shortPart = 0.4;
    constexpr int dash = 49;
    double longest = 0;
    for (const DxfGroup& group : lineType.groups) {
        if (group.code == dash) longest = std::max(longest, dxfNumber(group.value));
    }
    int dots = 0;
    int dashes = 0;
    bool hasGap = false;
    for (const DxfGroup& group : lineType.groups) {
        if (group.code != dash) continue;
        const double size = dxfNumber(group.value);
        hasGap = hasGap || size < 0;
        if (size >= 0) ++(size > shortPart * longest ? dashes : dots);
    }
    if (!hasGap) return solid;
    if (dashes == 0) return dotted;
    if (dots == 0) return dashed;
    return dots <= dashes ? dashDot : dashDotDot;
}

std::int16_t styleOfName(std::string_view lineType)
{
    const auto* const row = std::ranges::find_if(names, [lineType](const NameRow& one) {
        return isSameName(one.begin, lineType.substr(0, one.begin.size()));
    });
    return row == std::end(names) ? solid : row->style;
}

} // namespace mirtane
