#include "app/dispatch.h"

#include "commands/arc.h"
#include "commands/circle.h"
#include "commands/curve.h"
#include "commands/ellipse.h"
#include "commands/line.h"
#include "commands/match.h"
#include "commands/polygon.h"
#include "edit/mirror.h"
#include "edit/move_copy.h"
#include "edit/rotate.h"
#include "edit/scale.h"

#include <algorithm>

namespace mirtane {
namespace {

constexpr DispatchRow notBuilt(std::string_view name)
{
    return {name, nullptr, nullptr, false};
}

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
    {"Ortho Angle Match", matchStep, matchBand},
    {"Text Rotation Match", matchStep, matchBand},
    {"Copy", editMoveCopy, drawSelectionGhost},
    {"Move", editMoveCopy, drawSelectionGhost},
    {"Mirror Copy", editMirror, mirrorBand},
    {"Rotate", editRotate, nullptr},
    {"Scale", editScale, nullptr},
    {"Radial Copy", editRotate, nullptr},
    // These have no routine for a click.
    {"Blank Line", nullptr, nullptr},
    {"Concentric Copy", nullptr, nullptr}, // takes a typed distance
    {"Change", nullptr, nullptr},          // is a dialog
    {"Object Select", nullptr, nullptr},
    {"Window Select", nullptr, nullptr},
    {"Window Select Filtered", nullptr, nullptr},
    notBuilt("Measure Distance"),
    notBuilt("Multiple Lines"),
    notBuilt("Create Multiple Lines"),
    notBuilt("Ortho Dimension"),
    notBuilt("Radial Dimension"),
    notBuilt("Angular Dimension"),
    notBuilt("Leader"),
    notBuilt("Place Text"),
    notBuilt("Text Edit"),
    notBuilt("Place Hatch"),
    notBuilt("Create Hatch"),
    notBuilt("Hatch Scale"),
    notBuilt("Place Associate"),
    notBuilt("Create Associate"),
    notBuilt("Break"),
    notBuilt("Trim"),
    notBuilt("Fillet"),
    notBuilt("Stretch"),
    notBuilt("Text Size"),
    notBuilt("Arrow Size"),
    notBuilt("Measure Area"),
    notBuilt("Move Dimension Text"),
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
    if (row != nullptr && row->step != nullptr) row->step(s, pic1);
}

void callBand(Session& s, Canvas& pic1)
{
    const DispatchRow* row = dispatchOf(s.curFunc);
    if (row != nullptr && row->band != nullptr) row->band(s, pic1);
}

} // namespace mirtane
