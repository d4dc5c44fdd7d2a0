// exchange/multilines.cpp: lines side by side, each with its own distance at every corner.

#include "exchange/curve_records.h"
#include "exchange/group_run.h"

#include <algorithm>

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

// What all multiple lines of a style have in common.
struct Style {
    int flags = 0;
    std::vector<int> colors; // one a line, by number
};

Style styleOf(const DxfRecord& record, const DxfList& list)
{
    Style style;
    const auto found = list.objects.find(record.name(340));
    if (found == list.objects.end()) return style;
    style.flags = found->second.whole(70);
    for (const DxfGroup& group : found->second.groups) {
        if (group.code == 49) style.colors.push_back(256); // as the layer, if it does not say
        if (group.code == 62 && !style.colors.empty()) style.colors.back() = dxfWhole(group.value, 256);
    }
    return style;
}

Vec cornerOf(const Corner& corner, double along, const DrawingMaker& maker)
{
    return maker.flat(corner.at + along * corner.across);
}

void drawCap(const Corner& corner, DrawingMaker& maker)
{
    if (corner.along.empty()) return;
    const auto [least, most] = std::ranges::minmax(corner.along);
    maker.line(cornerOf(corner, least, maker), cornerOf(corner, most, maker));
}

namespace style_flag {
constexpr int joints = 2, startCap = 16, endCap = 256;
}
namespace multiline_flag {
constexpr int closed = 2, noStartCap = 4, noEndCap = 8;
}

void drawCaps(const std::vector<Corner>& corners, int flags, int styleFlags, DrawingMaker& maker)
{
    const bool isOpen = (flags & multiline_flag::closed) == 0;
    const bool starts =
        isOpen && (styleFlags & style_flag::startCap) != 0 && (flags & multiline_flag::noStartCap) == 0;
    const bool ends =
        isOpen && (styleFlags & style_flag::endCap) != 0 && (flags & multiline_flag::noEndCap) == 0;
    if (starts) drawCap(corners.front(), maker);
    if (ends) drawCap(corners.back(), maker);
    if ((styleFlags & style_flag::joints) == 0) return;
    for (std::size_t i = 1; i + 1 < corners.size(); ++i) drawCap(corners[i], maker);
}

} // namespace

void takeMultiline(const DxfRecord& record, DrawingMaker& maker)
{
    const auto corners = cornersOf(record);
    if (corners.size() < 2) return maker.leftOut(record.type, "not whole");
    const Style style = styleOf(record, maker.list());
    const int flags = record.whole(71);
    drawCaps(corners, flags, style.flags, maker);
    std::size_t lines = corners[0].along.size();
    for (const Corner& corner : corners) lines = std::min(lines, corner.along.size());
    const Look own = maker.look;
    for (std::size_t i = 0; i < lines; ++i) {
        std::vector<Vec> points;
        for (const Corner& corner : corners) points.push_back(cornerOf(corner, corner.along[i], maker));
        if (i < style.colors.size()) maker.look.color = maker.penOf(style.colors[i]);
        maker.polyline(points, (flags & multiline_flag::closed) != 0);
        maker.look = own;
    }
}

} // namespace mirtane
