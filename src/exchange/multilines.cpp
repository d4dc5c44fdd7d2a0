// exchange/multilines.cpp: lines side by side, each with its own distance at every corner.

#include "exchange/curve_records.h"
#include "exchange/group_run.h"

namespace mirtane {
namespace {

// A corner: where it is, the way on which the lines have their corners there, and how far on it each of them
// is.
struct Corner {
    Vec3 at, across;
    std::vector<double> along; // one a line
};

std::vector<Corner> cornersOf(const DxfRecord& record)
{
    std::vector<Corner> corners;
    const auto at = pointsOf(record.groups, 11);
    const auto across = pointsOf(record.groups, 13);
    for (std::size_t i = 0; i < at.size() && i < across.size(); ++i)
        corners.push_back({at[i], across[i], {}});
    std::size_t corner = 0;
    bool isFirst = false; // of an element's numbers; the others tell where it is cut
    for (const DxfGroup& group : record.groups) {
        if (group.code == 11) ++corner;
        if (group.code == 74) isFirst = true;
        if (group.code == 41 && isFirst && corner > 0 && corner <= corners.size()) {
            corners[corner - 1].along.push_back(dxfNumber(group.value));
            isFirst = false;
        }
    }
    return corners;
}

} // namespace

void takeMultiline(const DxfRecord& record, DrawingMaker& maker)
{
    constexpr int closed = 2;
    const auto corners = cornersOf(record);
    if (corners.size() < 2) return maker.leftOut(record.type, "not whole");
    std::size_t lines = corners[0].along.size();
    for (const Corner& corner : corners) lines = std::min(lines, corner.along.size());
    for (std::size_t i = 0; i < lines; ++i) {
        std::vector<Vec> points;
        for (const Corner& corner : corners)
            points.push_back(maker.flat(corner.at + corner.along[i] * corner.across));
        maker.polyline(points, (record.whole(71) & closed) != 0);
    }
}

} // namespace mirtane
