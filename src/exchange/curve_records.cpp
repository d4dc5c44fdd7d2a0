// exchange/curve_records.cpp: curves, lines without an end, and tables, which are drawn by a block of their
// own.

#include "exchange/curve_records.h"

#include "exchange/arrows.h"
#include "exchange/curve_strokes.h"
#include "exchange/group_run.h"
#include "exchange/spline.h"

#include <numbers>

namespace mirtane {
namespace {

// Of a helix the groups behind its name tell how it is wound; the curve itself is a spline.
DxfGroups groupsOfSpline(const DxfRecord& record)
{
    return dividedAt(record.groups, 100, "AcDbHelix").before;
}

Vec wayIn(DxfGroups groups, int code, const DrawingMaker& maker)
{
    const auto ways = pointsOf(groups, code);
    return ways.empty() ? Vec{} : maker.flatWay(ways.front());
}

} // namespace

void takeEllipse(const DxfRecord& record, DrawingMaker& maker)
{
    constexpr double whole = 2 * std::numbers::pi;
    const Vec3 major = record.point(11);
    const Vec3 normal = record.point(210, {0, 0, 1});
    const double size = length(normal);
    const Vec3 minor = record.number(40, 1) / (size > 0 ? size : 1) * cross(normal, major);
    const double from = std::fmod(record.number(41), whole);
    double to = record.number(42, whole) - (record.number(41) - from);
    if (to <= from) to += whole * std::ceil((from - to + 1e-12) / whole);
    if (to - from > whole) to = from + whole;
    maker.arc({maker.flat(record.point(10)), maker.flatWay(major), maker.flatWay(minor), from, to});
}

void takeSpline(const DxfRecord& record, DrawingMaker& maker)
{
    constexpr int closed = 1;
    const DxfGroups groups = groupsOfSpline(record);
    const auto points = flatPoints(pointsOf(groups, 10), maker);
    std::vector<Curve> curves;
    if (!points.empty()) {
        curves = curvesOf({record.whole(71, 3), numbersOf(groups, 40), points, numbersOf(groups, 41)});
    } else {
        const PassingEnds ends{wayIn(groups, 12, maker), wayIn(groups, 13, maker),
                               (record.whole(70) & closed) != 0};
        curves = curvesThrough(flatPoints(pointsOf(groups, 11), maker), ends);
    }
    if (curves.empty()) return maker.leftOut(record.type, "not whole");
    maker.strokes(strokesOf(curves, maker.tolerance()));
}

void takeRay(const DxfRecord& record, DrawingMaker& maker)
{
    maker.endless(maker.flat(record.point(10)), maker.flatWay(record.point(11)), false);
}

void takeEndlessLine(const DxfRecord& record, DrawingMaker& maker)
{
    maker.endless(maker.flat(record.point(10)), maker.flatWay(record.point(11)), true);
}

void takeTable(const DxfRecord& record, DrawingMaker& maker)
{
    if (!maker.block(record.name(2), moved(record.point(10))))
        maker.leftOut(record.type, "without a picture");
}

} // namespace mirtane
