// exchange/leaders.cpp: a leader is its line and its arrow; the text that it points from is a record of its
// own.

#include "exchange/arrows.h"
#include "exchange/curve_records.h"
#include "exchange/curve_strokes.h"
#include "exchange/dimension_variables.h"
#include "exchange/group_run.h"
#include "exchange/spline.h"

namespace mirtane {

void takeLeader(const DxfRecord& record, DrawingMaker& maker)
{
    constexpr int bent = 1;
    constexpr int asTheObject = 0, asTheLayer = 256;
    const DimensionVariables variables = dimensionVariables(record, maker.list());
    const Look own = maker.look;
    const int color = variables.leaderColor;
    if (color != asTheObject && color != asTheLayer) maker.look.color = maker.penOf(color);
    std::vector<Vec3> line = pointsOf(record.groups, 10);
    if (record.whole(71, 1) != 0) drawArrow(line, {variables.arrow, variables.leaderArrow}, maker);
    if (record.whole(72) == bent)
        maker.strokes(strokesOf(curvesThrough(flatPoints(line, maker), {}), maker.tolerance()));
    else
        maker.polyline(flatPoints(line, maker), false);
    maker.look = own;
}

} // namespace mirtane
