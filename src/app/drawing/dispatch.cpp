#include "app/drawing/dispatch.h"

#include "commands/angular_dimension.h"
#include "commands/arc.h"
#include "commands/circle.h"
#include "commands/curve.h"
#include "commands/ellipse.h"
#include "commands/leader.h"
#include "commands/line.h"
#include "commands/linear_dimension.h"
#include "commands/match.h"
#include "commands/measure_distance.h"
#include "commands/multiple_lines.h"
#include "commands/polygon.h"
#include "commands/radial_dimension.h"
#include "commands/text.h"
#include "commands/text_edit.h"
#include "edit/break.h"
#include "edit/fillet.h"
#include "edit/mirror.h"
#include "edit/move_copy.h"
#include "edit/move_dimension_text.h"
#include "edit/rotate.h"
#include "edit/scale.h"
#include "edit/stretch.h"
#include "edit/trim.h"
#include "library/associates.h"
#include "library/boundary.h"
#include "library/hatch.h"
#include "library/measure_area.h"

#include <algorithm>

namespace mirtane {
namespace {

constexpr DispatchRow rows[] = {
    {"Line", lineStep, lineBand},
    {"2pt. Circle", circleTwoStep, circleTwoBand},
    {"3pt. Circle", circleThreeStep, circleThreeBand},
    {"2pt. Arc", arcTwoStep, arcTwoBand},
    {"3pt. Arc", arcThreeStep, arcThreeBand},
    {"Curve", curveStep, curveBand},
    {"Ellipse", ellipseStep, ellipseBand},
    {"Point", pointStep, nullptr},
    {"Polygon", polygonStep, polygonBand},
    {"Ortho Angle Match", orthoAngleMatchStep, matchBand},
    {"Text Rotation Match", textRotationMatchStep, matchBand},
    {"Copy", editCopy, drawSelectionGhost},
    {"Move", editMove, drawSelectionGhost},
    {"Mirror Copy", editMirror, mirrorBand},
    {"Rotate", editRotate, nullptr},
    {"Scale", editScale, nullptr},
    {"Radial Copy", editRadialCopy, nullptr},
    {"Multiple Lines", multipleLinesStep, multipleLinesBand},
    {"Create Multiple Lines", createMultipleLinesStep, nullptr},
    {"Place Hatch", placeHatchStep, boundaryBand},
    {"Create Hatch", createHatchStep, nullptr},
    {"Place Associate", placeAssociateStep, placeAssociateBand},
    {"Create Associate", createAssociateStep, nullptr},
    {"Measure Area", measureAreaStep, boundaryBand},
    {"Place Text", placeTextStep, placeTextBand},
    {"Text Edit", textEditStep, nullptr},
    {"Measure Distance", measureDistanceStep, lineBand},
    {"Ortho Dimension", linearDimensionStep, linearDimensionBand},
    {"Radial Dimension", radialDimensionStep, radialDimensionBand},
    {"Angular Dimension", angularDimensionStep, angularDimensionBand},
    {"Leader", leaderStep, leaderBand},
    {"Move Dimension Text", editMoveDimText, drawDimTextGhost},
    {"Break", editBreak, nullptr},
    {"Trim", editTrim, nullptr},
    {"Fillet", editFillet, nullptr},
    {"Stretch", editStretch, stretchBand},
    // These have no routine for a click.
    {"Blank Line", nullptr, nullptr},
    {"Concentric Copy", nullptr, nullptr}, // takes a typed distance
    {"Hatch Scale", nullptr, nullptr},     // takes a typed number
    {"Text Size", nullptr, nullptr},
    {"Arrow Size", nullptr, nullptr},
    {"Change", nullptr, nullptr}, // is a dialog
    {"Object Select", nullptr, nullptr},
    {"Window Select", nullptr, nullptr},
    {"Window Select Filtered", nullptr, nullptr},
};

} // namespace

std::span<const DispatchRow> dispatchTable()
{
    return rows;
}

const DispatchRow* dispatchOf(std::string_view name)
{
    const auto* const found = std::ranges::find(rows, name, &DispatchRow::name);
    return found == std::end(rows) ? nullptr : found;
}

void callStep(Session& s, Canvas& pic1)
{
    const DispatchRow* row = dispatchOf(s.curFunc);
    if (s.stepNo == 1) s.lastWay = {}; // a first point has no leg behind it
    if (row != nullptr && row->step != nullptr) row->step(s, pic1);
}

void callBand(Session& s, Canvas& pic1)
{
    const DispatchRow* row = dispatchOf(s.curFunc);
    if (row != nullptr && row->band != nullptr) row->band(s, pic1);
}

} // namespace mirtane
