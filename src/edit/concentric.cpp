#include "edit/concentric.h"

#include "edit/selection_run.h"
#include "geometry/angle.h"
#include "geometry/arc.h"
#include "geometry/fault.h"

#include <utility>

namespace mirtane {
namespace {

bool isRound(std::int16_t kind)
{
    return kind == kind::circle || kind == kind::arc;
}

EntityRecord offset(EntityRecord r, float by)
{
    keep(r.rad, static_cast<double>(by) + r.rad); // widened before the sum
    if (r.kind != kind::arc) return r;
    r.p2 = polarPoint(r.p1, r.rad, r.a1);
    r.p3 = polarPoint(r.p1, r.rad, r.a2);
    r.p4 = polarPoint(r.p1, r.rad, middleWithinTurn(r.a1, r.a2));
    return r;
}

} // namespace

void editConcentric(Session& s, Canvas& pic1)
{
    const float by = s.offsetDistance;
    runOnSelection(
        s, Sources::comeOn, [by](EntityRecord r) { return offset(std::move(r), by); }, isRound);
    endRun(s, pic1);
}

} // namespace mirtane
