#include "edit/rotate.h"

#include "commands/prompt.h"
#include "edit/selection_run.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "model/record_moves.h"

namespace mirtane {
namespace {

bool turnSelection(Session& s, Sources sources)
{
    const Turn turn(s.pickFirst, s.editAngle);
    return runOnSelection(s, sources, [&turn](EntityRecord r) {
        turn.apply(r);
        return r;
    });
}

// Of copies spread over a whole turn the last would lie on the source object; over less, the last lies on the
// end of the angle. False if there is no room for all copies.
bool makeRing(Session& s)
{
    const bool wholeTurn = s.editDegrees == 360 || s.editDegrees == -360;
    if (!wholeTurn) --s.radialCount;
    double step = 0;
    keep(step, quotient(s.editDegrees, s.radialCount));
    step *= radiansPerDegree;
    const std::int32_t passes = wholeTurn ? s.radialCount - 1 : s.radialCount;
    s.editAngle = step;
    const std::vector<std::int32_t> selected = selectedSlots(s.store);
    if (!hasRoomFor(s, std::ssize(selected) * passes)) return false;
    for (std::int32_t pass = 0; pass < passes && turnSelection(s, Sources::stay); ++pass) s.editAngle += step;
    turnSources(s, selected, Sources::comeOn);
    return true;
}

} // namespace

void editRotate(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) setPrompt(s, pic1);
    if (s.stepNo != 3) return;
    s.editAngle = s.editDegrees * radiansPerDegree;
    if (turnSelection(s, Sources::goOut)) endRun(s, pic1);
}

void editRadialCopy(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) setPrompt(s, pic1);
    if (s.stepNo != 3) return;
    if (makeRing(s)) endRun(s, pic1);
}

} // namespace mirtane
