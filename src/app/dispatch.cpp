#include "app/dispatch.h"

#include "commands/arc.h"
#include "commands/circle.h"
#include "commands/curve.h"
#include "commands/ellipse.h"
#include "commands/line.h"
#include "commands/match.h"
#include "commands/polygon.h"

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
    {"Blank Line", nullptr, nullptr}, // the construction line takes its clicks before they are counted
    notBuilt("Measure Distance"),
    notBuilt("Multiple Lines"),
    notBuilt("Create Multiple Lines"),
    notBuilt("Ortho Dimension"),
    notBuilt("Radial Dimension"),
    notBuilt("Angular Dimension"),
    notBuilt("Leader"),
    notBuilt("Place Text"),
    notBuilt("Text Edit"),
    notBuilt("Object Select"),
    notBuilt("Window Select"),
    notBuilt("Window Select Filtered"),
    notBuilt("Place Hatch"),
    notBuilt("Create Hatch"),
    notBuilt("Hatch Scale"),
    notBuilt("Place Associate"),
    notBuilt("Create Associate"),
    notBuilt("Copy"),
    notBuilt("Move"),
    notBuilt("Mirror Copy"),
    notBuilt("Rotate"),
    notBuilt("Scale"),
    notBuilt("Radial Copy"),
    notBuilt("Concentric Copy"),
    notBuilt("Break"),
    notBuilt("Trim"),
    notBuilt("Fillet"),
    notBuilt("Stretch"),
    notBuilt("Change"),
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
