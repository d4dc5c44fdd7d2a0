// exchange/polylines.cpp: lines and arcs in a row, and what the same record stands for besides: a curve
// through points, a mesh of rows and columns, a body of faces.

#include "exchange/simple_records.h"

#include <algorithm>

namespace mirtane {
namespace {

struct Vertex {
    Vec at;
    double bulge = 0;
};

namespace polyline_flag {
constexpr int closed = 1;
constexpr int inSpace = 8;
constexpr int mesh = 16;
constexpr int closedAcross = 32;
constexpr int polyface = 64;
} // namespace polyline_flag

namespace vertex_flag {
constexpr int frame = 16; // the points that a fitted curve is drawn by
constexpr int face = 128;
constexpr int corner = 64;
} // namespace vertex_flag

void drawRun(const std::vector<Vertex>& run, bool closed, const Transform2& plane, DrawingMaker& maker)
{
    constexpr double leastBulge = 1e-9;
    const std::size_t legs = run.empty() ? 0 : closed && run.size() > 1 ? run.size() : run.size() - 1;
    for (std::size_t i = 0; i < legs; ++i) {
        const Vertex& from = run[i];
        const Vertex& to = run[(i + 1) % run.size()];
        if (std::abs(from.bulge) < leastBulge || from.at == to.at)
            maker.line(plane(from.at), plane(to.at));
        else
            maker.arc(transformed(arcOfBulge(from.at, to.at, from.bulge), plane));
    }
}

void takeFlat(const DxfRecord& record, DrawingMaker& maker)
{
    std::vector<Vertex> run;
    for (const DxfRecord& part : record.parts) {
        if ((part.whole(70) & vertex_flag::frame) != 0) continue;
        const Vec3 p = part.point(10);
        run.push_back({{p.x, p.y}, part.number(42)});
    }
    drawRun(run, (record.whole(70) & polyline_flag::closed) != 0, maker.plane(record), maker);
}

std::vector<Vec> cornersOf(const DxfRecord& record, int left, const DrawingMaker& maker)
{
    std::vector<Vec> corners;
    for (const DxfRecord& part : record.parts) {
        if ((part.whole(70) & left) == 0) corners.push_back(maker.flat(part.point(10)));
    }
    return corners;
}

// A smooth mesh has its points behind those it is drawn by, and counts of its own.
void takeMesh(const DxfRecord& record, DrawingMaker& maker)
{
    const std::vector<Vec> corners = cornersOf(record, vertex_flag::frame, maker);
    const int flags = record.whole(70);
    const bool smooth = record.whole(75) != 0;
    const auto rows =
        static_cast<std::size_t>(std::clamp(record.whole(smooth ? 73 : 71), 0, 32767)); // not negative
    const auto columns =
        static_cast<std::size_t>(std::clamp(record.whole(smooth ? 74 : 72), 0, 32767)); // likewise
    if (rows * columns > corners.size() || rows == 0 || columns == 0)
        return maker.leftOut("POLYLINE", "not whole");
    const auto at = [&](std::size_t row, std::size_t column) {
        return corners[row % rows * columns + column % columns];
    };
    const std::size_t downs = rows - ((flags & polyline_flag::closed) != 0 ? 0 : 1);
    const std::size_t acrosses = columns - ((flags & polyline_flag::closedAcross) != 0 ? 0 : 1);
    for (std::size_t r = 0; r < rows; ++r) {
        for (std::size_t c = 0; c < columns; ++c) {
            if (r < downs) maker.line(at(r, c), at(r + 1, c));
            if (c < acrosses) maker.line(at(r, c), at(r, c + 1));
        }
    }
}

// The edges of a face go from corner to corner, counted from 1; a corner below zero hides the edge behind it.
void takeFaceOf(const std::vector<Vec>& corners, const DxfRecord& face, DrawingMaker& maker)
{
    std::vector<int> numbers;
    for (const int code : {71, 72, 73, 74}) {
        const int number = face.whole(code);
        if (number != 0 && std::abs(number) <= static_cast<int>(std::min<std::size_t>(corners.size(), 32767)))
            numbers.push_back(number);
    }
    const auto at = [&corners](int number) {
        return corners[static_cast<std::size_t>(std::abs(number) - 1)];
    };
    for (std::size_t i = 0; i < numbers.size() && numbers.size() > 1; ++i) {
        if (numbers[i] > 0) maker.line(at(numbers[i]), at(numbers[(i + 1) % numbers.size()]));
    }
}

void takePolyface(const DxfRecord& record, DrawingMaker& maker)
{
    std::vector<Vec> corners;
    for (const DxfRecord& part : record.parts) {
        if ((part.whole(70) & vertex_flag::corner) != 0) corners.push_back(maker.flat(part.point(10)));
    }
    for (const DxfRecord& part : record.parts) {
        const int flags = part.whole(70);
        if ((flags & vertex_flag::face) != 0 && (flags & vertex_flag::corner) == 0)
            takeFaceOf(corners, part, maker);
    }
}

} // namespace

// All vertices stand in the one record, each from its group 10 on.
void takeLightPolyline(const DxfRecord& record, DrawingMaker& maker)
{
    std::vector<Vertex> run;
    for (const DxfGroup& group : record.groups) {
        if (group.code == 10) run.push_back({{dxfNumber(group.value), 0}, 0});
        if (run.empty()) continue;
        if (group.code == 20) run.back().at.y = dxfNumber(group.value);
        if (group.code == 42) run.back().bulge = dxfNumber(group.value);
    }
    const bool closed = (record.whole(70) & polyline_flag::closed) != 0;
    drawRun(run, closed, maker.plane(record.point(210, {0, 0, 1}), record.number(38)), maker);
}

void takePolyline(const DxfRecord& record, DrawingMaker& maker)
{
    const int flags = record.whole(70);
    if ((flags & polyline_flag::polyface) != 0) return takePolyface(record, maker);
    if ((flags & polyline_flag::mesh) != 0) return takeMesh(record, maker);
    if ((flags & polyline_flag::inSpace) != 0)
        return maker.polyline(cornersOf(record, vertex_flag::frame, maker),
                              (flags & polyline_flag::closed) != 0);
    takeFlat(record, maker);
}

} // namespace mirtane
