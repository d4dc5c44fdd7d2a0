// exchange/meshes.cpp: bodies whose faces are lists of corners.

#include "exchange/simple_records.h"

#include <algorithm>

namespace mirtane {
namespace {

struct MeshParts {
    std::vector<Vec3> corners;
    std::vector<int> faces; // for each the number of its corners, and then these, counted from 0
};

// The same code stands for the members of several lists; the one of the faces begins with 93 and ends
// with 94.
MeshParts partsOf(const DxfRecord& record)
{
    MeshParts parts;
    bool inFaces = false;
    for (const DxfGroup& group : record.groups) {
        const double number = dxfNumber(group.value);
        if (group.code == 93) inFaces = true;
        if (group.code == 94) break;
        if (group.code == 90 && inFaces) parts.faces.push_back(dxfWhole(group.value));
        if (inFaces) continue;
        if (group.code == 10) parts.corners.push_back({number, 0, 0});
        if (group.code == 20 && !parts.corners.empty()) parts.corners.back().y = number;
        if (group.code == 30 && !parts.corners.empty()) parts.corners.back().z = number;
    }
    return parts;
}

void drawFace(std::span<const int> face, const std::vector<Vec3>& corners, DrawingMaker& maker)
{
    std::vector<Vec> outline;
    for (const int number : face) {
        if (number < 0 || static_cast<std::size_t>(number) >= corners.size()) return; // not negative
        outline.push_back(maker.flat(corners[static_cast<std::size_t>(number)]));
    }
    maker.polyline(outline, true);
}

} // namespace

void takeMeshOfFaces(const DxfRecord& record, DrawingMaker& maker)
{
    const MeshParts parts = partsOf(record);
    std::span<const int> rest(parts.faces);
    while (!rest.empty()) {
        const std::size_t count = static_cast<std::size_t>(std::max(rest[0], 0)); // not negative
        if (count >= rest.size()) return maker.leftOut(record.type, "not whole");
        drawFace(rest.subspan(1, count), parts.corners, maker);
        rest = rest.subspan(1 + count);
    }
}

} // namespace mirtane
