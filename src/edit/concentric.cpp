#include "edit/concentric.h"

#include "edit/selection_run.h"
#include "geometry/fault.h"
#include "model/record_moves.h"

#include <utility>

namespace mirtane {
namespace {

EntityRecord offset(EntityRecord r, float by)
{
    keep(r.rad, static_cast<double>(by) + r.rad); // widened before the sum
    if (r.kind != Kind::arc) return r;
    placeArcPoints(r);
    return r;
}

} // namespace

void editConcentric(Session& s, Canvas& pic1)
{
    const float by = s.offsetDistance;
    const bool done = runOnSelection(
        s, Sources::comeOn, [by](EntityRecord r) { return offset(std::move(r), by); }, isRound);
    if (done) endRun(s, pic1);
}

} // namespace mirtane
