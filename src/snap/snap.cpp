#include "snap/snap.h"

#include "render/view.h"
#include "snap/snap_routines.h"
#include "snap/snapped_point.h"

#include <algorithm>

namespace mirtane {
namespace {

using Routine = void (*)(Session&, const Canvas&);

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
    ControlId button;
    std::string_view code;
    std::string_view label;
    Routine run;
    bool (*canBeArmed)(const Session&);
    bool onConstructionLine;
};

constexpr SnapRow snapRows[] = {
    {ids::snapToPoint, "sp", "Snap Point is on:", snapPoint, always, true},
    {ids::snapToObject, "so", "Snap Object is on:", snapObject, always, true},
    {ids::snapToIntersection, "si", "Snap Intersection is on:", snapIntersection, always, true},
    {ids::snapToPercentage, "sf", "Snap Percentage is on:", snapPercentage, always, true},
    {ids::snapPerpendicular, "sn", "Snap Perpendicular is on:", snapPerpendicular, legIsUnderWay, false},
    {ids::snapTangent, "st", "Snap Tangent is on:", snapTangent, tangentIsPossible, false},
    {ids::snapToMidpoint, "sm", "Snap Midpoint is on:", snapMidpoint, always, true},
};

} // namespace

void holdSnap(Session& s, const Canvas& pic1)
{
    if (s.snapKey == 2) snapPoint(s, pic1);
    if (s.snapKey == 1) snapObject(s, pic1);
}

void oneShotSnap(Session& s, const Canvas& pic1)
{
    Control& snapbox = s.controls[ids::armedSnap];
    const auto* const row = std::ranges::find(snapRows, snapbox.text, &SnapRow::code);
    if (row == std::end(snapRows)) return;
    if (drawsConstructionLine(s) && !row->onConstructionLine) return;
    setText(snapbox, "");
    row->run(s, pic1);
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

void showArmedSnap(Session& s)
{
    const std::string& armed = s.controls[ids::armedSnap].text;
    for (const SnapRow& row : snapRows) s.controls[row.button].checked = row.code == armed;
    s.controls[ids::drawing].checked = snapIsOn(s);
}

} // namespace mirtane
