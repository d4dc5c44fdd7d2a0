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

std::optional<Leg> fromFirst(const Session& s)
{
    return Leg{s.pickFirst, s.pickLast};
}

std::optional<Leg> throughPoints(const Session& s)
{
    return Leg{s.stepNo == 1 ? s.ptA : s.ptB, s.pickLast};
}

// Its later arcs begin where the one before has ended.
std::optional<Leg> alongCurve(const Session& s)
{
    return s.stepNo <= 2 ? throughPoints(s) : Leg{s.ptA, s.pickLast};
}

std::optional<Leg> ofRadius(const Session& s)
{
    return s.stepNo == 1 ? fromFirst(s) : Leg{s.ptA, s.ptC};
}

std::optional<Leg> ofLeader(const Session& s)
{
    return s.stepNo >= 2 ? std::optional(Leg{s.ptA, s.pickLast}) : std::nullopt;
}

std::optional<Leg> ofStretch(const Session& s)
{
    return s.stepNo == 3 ? fromFirst(s) : std::nullopt;
}

// How far the line stands from the second point.
std::optional<Leg> ofDimensionLine(const Session& s)
{
    return s.stepNo == 2 ? fromFirst(s) : std::nullopt;
}

// From the round line on.
std::optional<Leg> ofRadialDimension(const Session& s)
{
    return s.stepNo == 1 ? std::optional(Leg{s.ptC, s.pickLast}) : std::nullopt;
}

std::optional<Leg> ofAngularDimension(const Session& s)
{
    return s.stepNo >= 3 ? std::optional(Leg{s.ptA, s.pickLast}) : std::nullopt;
}

std::optional<Leg> ofTypedText(const Session& s)
{
    return s.stepNo == 2 && s.textLength > 0 ? std::optional(Leg{s.ptB, s.pickLast}) : std::nullopt;
}

// It hangs on the pointer from the start; the last point that was given is what it is measured from.
std::optional<Leg> ofAssociate(const Session& s)
{
    return s.stepNo == 1 && s.associateName != noName ? fromFirst(s) : std::nullopt;
}

std::optional<Leg> ofConstructionLine(const Session& s)
{
    return s.blankStep >= 1 ? std::optional(Leg{s.blankStart, s.blankEnd}) : std::nullopt;
}

constexpr DispatchRow rows[] = {
    {"Line", lineStep, lineBand, fromFirst},
    {"2pt. Circle", circleTwoStep, circleTwoBand, fromFirst},
    {"3pt. Circle", circleThreeStep, circleThreeBand, throughPoints},
    {"2pt. Arc", arcTwoStep, arcTwoBand, ofRadius},
    {"3pt. Arc", arcThreeStep, arcThreeBand, throughPoints},
    {"Curve", curveStep, curveBand, alongCurve},
    {"Ellipse", ellipseStep, ellipseBand, fromFirst},
    {"Point", pointStep, nullptr},
    {"Polygon", polygonStep, polygonBand, fromFirst},
    {"Ortho Angle Match", orthoAngleMatchStep, matchBand, fromFirst},
    {"Text Rotation Match", textRotationMatchStep, matchBand, fromFirst},
    {"Copy", editCopy, drawSelectionGhost, fromFirst},
    {"Move", editMove, drawSelectionGhost, fromFirst},
    {"Mirror Copy", editMirror, mirrorBand, fromFirst},
    {"Rotate", editRotate, nullptr},
    {"Scale", editScale, nullptr},
    {"Radial Copy", editRadialCopy, nullptr},
    {"Multiple Lines", multipleLinesStep, multipleLinesBand, fromFirst, true},
    {"Create Multiple Lines", createMultipleLinesStep, nullptr},
    {"Place Hatch", placeHatchStep, boundaryBand, fromFirst},
    {"Create Hatch", createHatchStep, nullptr},
    {"Place Associate", placeAssociateStep, placeAssociateBand, ofAssociate},
    {"Create Associate", createAssociateStep, nullptr},
    {"Measure Area", measureAreaStep, boundaryBand, fromFirst},
    {"Place Text", placeTextStep, placeTextBand, ofTypedText},
    {"Text Edit", textEditStep, nullptr},
    {"Measure Distance", measureDistanceStep, lineBand, fromFirst},
    {"Ortho Dimension", linearDimensionStep, linearDimensionBand, ofDimensionLine},
    {"Radial Dimension", radialDimensionStep, radialDimensionBand, ofRadialDimension},
    {"Angular Dimension", angularDimensionStep, angularDimensionBand, ofAngularDimension},
    {"Leader", leaderStep, leaderBand, ofLeader},
    {"Move Dimension Text", editMoveDimText, drawDimTextGhost, wayOfDimText},
    {"Break", editBreak, nullptr},
    {"Trim", editTrim, nullptr},
    {"Fillet", editFillet, nullptr},
    {"Stretch", editStretch, stretchBand, ofStretch},
    // These have no routine for a click.
    {"Blank Line", nullptr, nullptr, ofConstructionLine},
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
    s.band.reset();
    if (s.stepNo == 1) s.lastWay = {}; // a first point has no leg behind it
    if (row != nullptr && row->step != nullptr) row->step(s, pic1);
}

void callBand(Session& s, Canvas& pic1)
{
    const DispatchRow* row = dispatchOf(s.curFunc);
    if (row != nullptr && row->band != nullptr) row->band(s, pic1);
}

std::optional<Leg> legOfBand(const Session& s)
{
    const DispatchRow* row = dispatchOf(s.curFunc);
    return row == nullptr || row->leg == nullptr ? std::nullopt : row->leg(s);
}

} // namespace mirtane
