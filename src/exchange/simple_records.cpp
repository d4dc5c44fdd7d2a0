#include "exchange/simple_records.h"

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

bool isUnturned(const Transform2& plane)
{
    return plane.x == Vec{1, 0} && plane.y == Vec{0, 1};
}

bool isInOneTurn(double from, double to)
{
    return from >= 0 && to >= 0 && std::max(from, to) < wholeTurn;
}

} // namespace

void takeLine(const DxfRecord& record, DrawingMaker& maker)
{
    maker.line(maker.flat(record.point(10)), maker.flat(record.point(11)));
}

void takePoint(const DxfRecord& record, DrawingMaker& maker)
{
    maker.point(maker.flat(record.point(10)));
}

void takeCircle(const DxfRecord& record, DrawingMaker& maker)
{
    const Vec3 centre = record.point(10);
    const double radius = std::abs(record.number(40));
    maker.arc(transformed(wholeCircle({centre.x, centre.y}, radius), maker.plane(record)));
}

// Where nothing is turned the ends are as they are said: angles that are added up and taken apart again are
// a bit off.
void takeArc(const DxfRecord& record, DrawingMaker& maker)
{
    const Vec3 centre = record.point(10);
    const double radius = std::abs(record.number(40));
    const double from = record.number(50) * exactRadiansPerDegree;
    const double to = record.number(51, 360) * exactRadiansPerDegree;
    const EllipseArc arc = circularArc({centre.x, centre.y}, radius, from, to);
    const Transform2 plane = maker.plane(record);
    if (!arc.isWhole() && arc.to - arc.from >= leastTurnOfArc && isUnturned(plane) && isInOneTurn(from, to))
        return maker.add({.kind = Kind::arc,
                          .p = {plane({centre.x, centre.y})},
                          .radius = radius,
                          .from = from,
                          .to = to});
    maker.arc(transformed(arc, plane));
}

// Its third and fourth corners are the other way round than one walks.
void takeSolid(const DxfRecord& record, DrawingMaker& maker)
{
    const Transform2 plane = maker.plane(record);
    std::vector<Vec> corners;
    for (const int code : {10, 11, 13, 12}) {
        if (!record.has(code)) continue;
        const Vec3 p = record.point(code);
        const Vec corner = plane({p.x, p.y});
        if (corners.empty() || corners.back() != corner) corners.push_back(corner);
    }
    maker.polyline(corners, true);
}

// A bit of group 70 hides an edge. The last one closes the outline, of three corners too.
void takeFace(const DxfRecord& record, DrawingMaker& maker)
{
    std::vector<Vec> corners;
    for (const int code : {10, 11, 12, 13}) {
        if (record.has(code)) corners.push_back(maker.flat(record.point(code)));
    }
    if (corners.size() == 4 && corners[2] == corners[3]) corners.pop_back();
    const int hidden = record.whole(70);
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const bool closes = i + 1 == corners.size();
        if ((hidden >> (closes ? 3 : i) & 1) == 0) maker.line(corners[i], corners[(i + 1) % corners.size()]);
    }
}

void takeNothing(const DxfRecord&, DrawingMaker&) {}

// Its outline in parts of a picture of one unit: x from -0.5 to the right, y from -0.5 down.
void takeWipeout(const DxfRecord& record, DrawingMaker& maker)
{
    const Vec3 u = record.point(11);
    const Vec3 v = record.point(12);
    const Vec size{record.number(13, 1), record.number(23, 1)};
    std::vector<Vec> marks;
    for (const DxfGroup& group : record.groups) {
        if (group.code == 14) marks.push_back({dxfNumber(group.value), 0});
        if (group.code == 24 && !marks.empty()) marks.back().y = dxfNumber(group.value);
    }
    if (marks.size() == 2) marks = {marks[0], {marks[1].x, marks[0].y}, marks[1], {marks[0].x, marks[1].y}};
    std::vector<Vec> corners;
    for (const Vec mark : marks)
        corners.push_back(maker.flat(record.point(10) + (mark.x + 0.5) * u + (size.y - mark.y - 0.5) * v));
    if (corners.size() > 1 && corners.front() == corners.back()) corners.pop_back();
    maker.polyline(corners, true);
}

} // namespace mirtane
