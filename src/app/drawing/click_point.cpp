#include "app/drawing/click_point.h"

#include "app/drawing/construction_line.h"
#include "geometry/angle.h"
#include "geometry/ortho.h"
#include "model/rehearsal.h"
#include "render/view.h"
#include "snap/snap.h"

namespace mirtane {
namespace {

void confineClick(Session& s, const FunctionRow& row)
{
    if (s.stepNo < 2 || !orthoIsOn(s.controls) || !applies(row.orthoOnClick, s.stepNo)) return;
    confinePickLast(s, distance(s.pickFirst, s.pickLast));
}

// A snapped click is a point of its own, whatever the ortho. To be asked before the snap is disarmed.
bool takesSnapAsItIs(const Session& s, const FunctionRow& row)
{
    return row.orthoOnClick == Ortho::unlessSnapped && snapIsOn(s);
}

std::optional<SnapMark> markAt(const std::optional<SnapHit>& hit, Point at)
{
    return hit ? std::optional(SnapMark{*hit, at}) : std::nullopt;
}

} // namespace

bool takesWindow(const Session& s)
{
    return zoomWindowIsOn(s.controls) || isWindowFunction(s.curFunc);
}

void storeClick(Session& s, int button, Point at)
{
    if (button == leftButton) countStep(s);
    if (s.stepNo == 1) s.pickFirst = at;
    if (s.stepNo > 1) s.pickLast = at;
    s.mousePos = at;
}

bool bringsBackNextCopy(const Session& s, const FunctionRow& row)
{
    return row.starts == Starts::fromList && row.firstStep == 1 && s.stepNo == 1;
}

std::optional<SnapHit> landClick(Session& s, const Canvas& pic1, const FunctionRow& row)
{
    s.pointWasSnapped = false;
    if (!takesSnapAsItIs(s, row)) confineClick(s, row);
    return snapClick(s, pic1);
}

void confinePickLast(Session& s, double d)
{
    s.pickLast = pointOnAxis(s.pickFirst, d, s.orthoSector, s.orthoAngle, s.pickLast);
}

std::optional<SnapMark> aimOfClick(Session& s, const Canvas& pic1, Point at)
{
    const FunctionRow* const row = findFunction(s.curFunc);
    if (!snapIsOn(s) || takesWindow(s) || row == nullptr || waitsForName(*row, s.stepNo)) return std::nullopt;
    if (row->clicks == Clicks::pickObjects) return std::nullopt;
    const Rehearsal rehearsal(s);
    if (row->clicks == Clicks::layConstructionLine) {
        const auto hit = placeConstructionClick(s, pic1, at);
        return markAt(hit, s.blankStep == 1 ? s.blankStart : s.blankEnd);
    }
    storeClick(s, leftButton, at);
    if (bringsBackNextCopy(s, *row)) return std::nullopt;
    const auto hit = landClick(s, pic1, *row);
    return markAt(hit, s.stepNo == 1 ? s.pickFirst : s.pickLast);
}

} // namespace mirtane
