// exchange/hatches.cpp: a hatch becomes the lines of its pattern, a solid one lines close together within its
// outline, and one that would be too many lines its outline alone.

#include "exchange/curve_records.h"
#include "exchange/curve_strokes.h"
#include "exchange/hatch_boundary.h"

#include <algorithm>
#include <numbers>
#include <string>

namespace mirtane {
namespace {

constexpr std::size_t mostLines = 8000;

namespace islands {
constexpr int outer = 1, ignored = 2;
}

// The paths that count: all, or those next to the outside, or the outside alone.
std::vector<Loop> loopsThatCount(const std::vector<HatchPath>& paths, int style, DrawingMaker& maker)
{
    std::vector<Loop> loops;
    loops.reserve(paths.size());
    for (const HatchPath& path : paths) loops.push_back(loopOf(path, maker.tolerance()));
    if (style != islands::outer && style != islands::ignored) return loops;
    const std::vector<int> depths = depthsOf(loops, maker.patternWork());
    const int deepest = style == islands::outer ? 1 : 0;
    std::vector<Loop> counting;
    for (std::size_t i = 0; i < loops.size(); ++i) {
        if (depths[i] <= deepest) counting.push_back(std::move(loops[i]));
    }
    return counting;
}

PatternRow takeRow(GroupRun& groups, const Transform2& plane)
{
    const Vec way = plane.way(wayAt(groups.number(53) * exactRadiansPerDegree));
    const double scale = length(way);
    const double baseX = groups.number(43);
    const Vec base{baseX, groups.number(44)};
    const double offsetX = groups.number(45);
    const Vec offset{offsetX, groups.number(46)};
    PatternRow row{plane(base), 1 / scale * way, plane.way(offset), {}};
    const std::size_t dashes = groups.count(79);
    for (std::size_t i = 0; i < dashes && groups.isAt(49); ++i)
        row.dashes.push_back(groups.number(49) * scale);
    return row;
}

std::vector<PatternRow> takeRows(GroupRun& groups, const Transform2& plane)
{
    std::vector<PatternRow> rows;
    if (!groups.find(78)) return rows;
    const std::size_t count = groups.count(78);
    for (std::size_t i = 0; i < count && groups.isAt(53); ++i) rows.push_back(takeRow(groups, plane));
    return rows;
}

// Lines as close as a sheet shows them, and in a large area so many that it looks filled.
PatternRow fillRow(const std::vector<Loop>& loops, double tolerance)
{
    constexpr double closest = 25; // tolerances, a quarter of a unit
    constexpr double parts = 100;
    Vec low{1e300, 1e300};
    Vec high{-1e300, -1e300};
    for (const Loop& loop : loops) {
        for (const Vec p : loop) {
            low = {std::min(low.x, p.x), std::min(low.y, p.y)};
            high = {std::max(high.x, p.x), std::max(high.y, p.y)};
        }
    }
    const double apart = std::max(closest * tolerance, length(high - low) / parts);
    const Vec way = wayAt(std::numbers::pi / 4);
    return {low, way, apart * turnedLeft(way), {}};
}

std::vector<Stroke> outlineOf(const std::vector<HatchPath>& paths)
{
    std::vector<Stroke> outline;
    for (const HatchPath& path : paths)
        outline.insert(outline.end(), path.strokes.begin(), path.strokes.end());
    return outline;
}

} // namespace

void takeHatch(const DxfRecord& record, DrawingMaker& maker)
{
    if (!maker.takesPatterns()) return maker.leftOut(record.type, "no room");
    const Transform2 plane = maker.plane(record);
    const bool isSolid = record.whole(70) != 0;
    GroupRun groups(record.groups);
    const std::vector<HatchPath> paths = takePaths(groups, plane, maker.tolerance());
    if (paths.empty()) return; // nothing of it was ever seen
    const int style = groups.find(75) ? groups.whole(75) : 0;
    const std::vector<Loop> loops = loopsThatCount(paths, style, maker);
    const std::vector<PatternRow> rows =
        isSolid ? std::vector{fillRow(loops, maker.tolerance())} : takeRows(groups, plane);
    auto lines = patternLines(loops, rows, mostLines, maker.patternWork());
    const bool isOutlined = isSolid || rows.empty() || !lines;
    if (rows.empty()) maker.leftOut(record.type, "the lines, without a pattern");
    if (!lines) maker.leftOut(record.type, "the lines, too dense");
    maker.pattern({lines ? std::move(*lines) : std::vector<PatternLine>(), outlineOf(paths), isOutlined});
}

} // namespace mirtane
