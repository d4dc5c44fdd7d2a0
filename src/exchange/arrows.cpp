// exchange/arrows.cpp: the common arrow is a triangle; others are blocks, drawn for an arrow of size 1 that
// points to the right.

#include "exchange/arrows.h"

#include <algorithm>

namespace mirtane {
namespace {

// Those that lie on the line, which goes on to the tip.
bool liesOnLine(std::string_view block)
{
    constexpr std::string_view names[] = {"_None",      "_Oblique",  "_ArchTick", "_DotSmall",
                                          "_SmallSize", "_Integral", "_Open30",   "_Open"};
    return std::ranges::any_of(names, [block](std::string_view name) { return isSameName(name, block); });
}

void drawTriangle(Vec3 tip, Vec3 foot, Vec along, double size, DrawingMaker& maker)
{
    const Vec side = size / 6 * turnedLeft(along);
    const Vec3 aside{side.x, side.y, 0};
    maker.polyline(std::vector{maker.flat(tip), maker.flat(foot + aside), maker.flat(foot - aside)}, true);
}

} // namespace

void drawArrow(std::vector<Vec3>& line, const Arrow& arrow, DrawingMaker& maker)
{
    if (line.size() < 2 || !(arrow.size > 0)) return;
    const Vec leg{line[1].x - line[0].x, line[1].y - line[0].y};
    const double reach = length(leg);
    if (!(reach >= 2 * arrow.size)) return;
    const Vec along = 1 / reach * leg;
    const Vec3 tip = line[0];
    const Vec3 foot = tip + arrow.size * Vec3{along.x, along.y, 0};
    const std::string_view name = maker.list().nameByHandle(arrow.block);
    const Transform3 sized{{arrow.size, 0, 0}, {0, arrow.size, 0}, {0, 0, arrow.size}, {}};
    const bool isBlock =
        !name.empty() && maker.block(name, then(then(sized, turned(directionOf(-along))), moved(tip)));
    if (!isBlock) drawTriangle(tip, foot, along, arrow.size, maker);
    if (!liesOnLine(name)) line[0] = foot;
}

std::vector<Vec> flatPoints(std::span<const Vec3> points, const DrawingMaker& maker)
{
    std::vector<Vec> flat;
    for (const Vec3 p : points) flat.push_back(maker.flat(p));
    return flat;
}

} // namespace mirtane
