#include "snap/snap.h"

#include "render/view.h"
#include "snap/snap_routines.h"
#include "snap/snapped_point.h"

#include <algorithm>

namespace mirtane {
namespace {

using Routine = FoundSlot (*)(Session&, const Canvas&);

constexpr auto always = [](const Session&) { return true; };

bool legIsUnderWay(const Session& s)
{
    return s.stepNo != 0 && !drawsConstructionLine(s);
}

bool tangentIsPossible(const Session& s)
{
    const EntityStore& store = s.store;
    for (std::int32_t i = 1; i < store.end(); ++i) {
        if (isRound(store.kind[EntityStore::at(i)]) && store.isShown(i)) return legIsUnderWay(s);
    }
    return false;
}

struct SnapRow {
    SnapKind snap;
    ControlId button;
    std::string_view code;
    std::string_view label;
    Routine run;
    bool (*canBeArmed)(const Session&);
    bool onConstructionLine;
};

constexpr SnapRow snapRows[] = {
    {SnapKind::point, ids::snapToPoint, "sp", "Snap Point is on:", snapPoint, always, true},
    {SnapKind::object, ids::snapToObject, "so", "Snap Object is on:", snapObject, always, true},
    {SnapKind::intersection, ids::snapToIntersection, "si", "Snap Intersection is on:", snapIntersection,
     always, true},
    {SnapKind::percentage, ids::snapToPercentage, "sf", "Snap Percentage is on:", snapPercentage, always,
     true},
    {SnapKind::perpendicular, ids::snapPerpendicular, "sn", "Snap Perpendicular is on:", snapPerpendicular,
     legIsUnderWay, false},
    {SnapKind::tangent, ids::snapTangent, "st", "Snap Tangent is on:", snapTangent, tangentIsPossible, false},
    {SnapKind::midpoint, ids::snapToMidpoint, "sm", "Snap Midpoint is on:", snapMidpoint, always, true},
};

std::optional<SnapHit> hitOf(SnapKind snap, FoundSlot found)
{
    return found ? std::optional(SnapHit{snap, *found}) : std::nullopt;
}

} // namespace

std::optional<SnapHit> holdSnap(Session& s, const Canvas& pic1)
{
    if (s.snapKey == 2) return hitOf(SnapKind::point, snapPoint(s, pic1));
    if (s.snapKey == 1) return hitOf(SnapKind::object, snapObject(s, pic1));
    return std::nullopt;
}

std::optional<SnapHit> oneShotSnap(Session& s, const Canvas& pic1)
{
    Control& snapbox = s.controls[ids::armedSnap];
    const auto* const row = std::ranges::find(snapRows, snapbox.text, &SnapRow::code);
    if (row == std::end(snapRows)) return std::nullopt;
    if (drawsConstructionLine(s) && !row->onConstructionLine) return std::nullopt;
    setText(snapbox, "");
    return hitOf(row->snap, row->run(s, pic1));
}

std::optional<SnapHit> snapClick(Session& s, const Canvas& pic1)
{
    const auto held = holdSnap(s, pic1);
    const auto armed = oneShotSnap(s, pic1);
    return armed ? armed : held;
}

void pressSnapButton(Session& s, Canvas& pic1, ControlId button)
{
    const auto* const row = std::ranges::find(snapRows, button, &SnapRow::button);
    s.controls.focus = ids::drawing;
    if (row == std::end(snapRows) || !row->canBeArmed(s)) return;
    if (zoomWindowIsOn(s.controls)) zoomWindowCancel(s, pic1); // one label tells of both
    setText(s.controls[ids::armedSnap], std::string(row->code));
    s.controls[ids::snapLabel].caption = row->label;
}

bool snapIsOn(const Session& s)
{
    return !s.controls[ids::armedSnap].text.empty() || s.snapKey != 0;
}

std::string_view nameOf(const EntityStore& store, const SnapHit& hit)
{
    if (!EntityStore::holds(hit.slot)) return "boundary";
    switch (store.kind[EntityStore::at(hit.slot)]) {
    case Kind::line:
        return "line";
    case Kind::circle:
        return "circle";
    case Kind::arc:
        return "arc";
    case Kind::ellipse:
        return "ellipse";
    case Kind::point:
        return "point";
    case Kind::text:
        return "text";
    case Kind::linearDimension:
    case Kind::radialDimension:
    case Kind::angularDimension:
        return "dimension";
    case Kind::leader:
        return "leader";
    }
    return {};
}

void showArmedSnap(Session& s)
{
    const std::string& armed = s.controls[ids::armedSnap].text;
    for (const SnapRow& row : snapRows) s.controls[row.button].checked = row.code == armed;
    s.controls[ids::drawing].checked = snapIsOn(s);
}

} // namespace mirtane
