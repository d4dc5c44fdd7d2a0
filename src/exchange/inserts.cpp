// exchange/inserts.cpp: blocks in their places.

#include "exchange/group_run.h"
#include "exchange/simple_records.h"

#include <algorithm>
#include <numbers>

namespace mirtane {
namespace {

// A factor of 0 would leave nothing to be seen; files have it for those that were never set.
double factor(const DxfRecord& record, int code)
{
    const double number = record.number(code, 1);
    return number == 0 ? 1 : number;
}

Transform3 scaled(const DxfRecord& record)
{
    return {{factor(record, 41), 0, 0}, {0, factor(record, 42), 0}, {0, 0, factor(record, 43)}, {}};
}

struct Grid {
    int rows, columns;
    double down, across;
};

Grid gridOf(const DxfRecord& record)
{
    constexpr int most = 32767;
    return {std::clamp(record.whole(71, 1), 1, most), std::clamp(record.whole(70, 1), 1, most),
            record.number(45), record.number(44)};
}

// Rows and columns run in the turned directions of the insert, unscaled.
bool drawGrid(const DxfRecord& record, DrawingMaker& maker)
{
    const Transform3 place =
        then(then(turned(record.number(50) * exactRadiansPerDegree), moved(record.point(10))),
             planeOfNormal(record.point(210, {0, 0, 1})));
    const Grid grid = gridOf(record);
    const Transform3 own = scaled(record);
    for (int row = 0; row < grid.rows; ++row) {
        for (int column = 0; column < grid.columns; ++column) {
            const Vec3 step{column * grid.across, row * grid.down, 0};
            maker.attributes(record, place.way(step));
            if (!maker.block(record.name(2), then(then(own, moved(step)), place))) return false;
        }
    }
    return true;
}

bool isAnotherFile(std::string_view name, const DxfList& list)
{
    const auto block = list.blocks.find(name);
    return block != list.blocks.end() && block->second.isElsewhere && block->second.records.empty();
}

// The dictionary or whatever else stands under a name in a dictionary; null for nothing.
const DxfRecord* entryOf(const DxfRecord& dictionary, std::string_view name, const DxfList& list)
{
    bool isNext = false;
    for (const DxfGroup& group : dictionary.groups) {
        if (isNext && (group.code == 350 || group.code == 360)) {
            const auto found = list.objects.find(trimmed(group.value));
            return found == list.objects.end() ? nullptr : &found->second;
        }
        if (group.code == 3) isNext = isSameName(trimmed(group.value), name);
    }
    return nullptr;
}

// Whether a boundary is kept with it outside of which nothing is to be seen.
bool isClipped(const DxfRecord& record, const DxfList& list)
{
    const DxfRecord own{record.type, dividedAt(record.groups, 102, "{ACAD_XDICTIONARY").from, {}};
    const auto dictionary = list.objects.find(own.name(360));
    if (own.groups.empty() || dictionary == list.objects.end()) return false;
    const DxfRecord* const filters = entryOf(dictionary->second, "ACAD_FILTER", list);
    return filters != nullptr && entryOf(*filters, "SPATIAL", list) != nullptr;
}

} // namespace

void takeInsert(const DxfRecord& record, DrawingMaker& maker)
{
    if (!drawGrid(record, maker)) maker.leftOut("INSERT", "can't be drawn");
    if (isClipped(record, maker.list())) maker.leftOut("INSERT", "the clipping, drawn whole");
    if (isAnotherFile(record.name(2), maker.list())) maker.leftOut("INSERT", "of another file");
}

} // namespace mirtane
