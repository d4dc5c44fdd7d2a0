#include "edit/move_dimension_text.h"

#include "edit/selection_run.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "geometry/nearest.h"
#include "render/dimension_painters.h"
#include "render/redraw.h"
#include "render/text_painter.h"
#include "snap/object_search.h"

namespace mirtane {
namespace {

constexpr KindSet linearDimensions = inKind(Kind::linearDimension);

void pickText(Session& s, const Canvas& pic1)
{
    const ObjectHit hit = nearestObject(s.store, {.from = s.mousePos,
                                                  .radius = searchRadius(pic1),
                                                  .kinds = linearDimensions,
                                                  .stats = inStat(Stat::on)});
    s.pickedIndex = hit.found() ? hit.slot : PickResults::none;
    if (hit.found()) {
        s.moveText = s.store.record(hit.slot).p5;
    } else {
        s.stepNo = 0;
    }
}

// The picked slot may have gone meanwhile: undone, or with another drawing.
bool stillThere(const Session& s)
{
    const std::int32_t slot = s.pickedIndex;
    if (slot < 1 || slot >= s.store.end()) return false;
    const std::size_t at = EntityStore::at(slot);
    return s.store.kind[at] == Kind::linearDimension && s.store.isShown(slot);
}

void slideText(Session& s, const EntityRecord& r)
{
    const double length = distance(r.p4, r.p3);
    const double away = distance(r.p5, s.pickLast);
    const double dx = away * quotient(r.p3.x - r.p4.x, length);
    const double dy = away * quotient(r.p3.y - r.p4.y, length);
    Point ahead = s.moveText;
    Point behind = s.moveText;
    if (!keep(ahead.x, r.p5.x + dx) || !keep(ahead.y, r.p5.y + dy)) return;
    if (!keep(behind.x, r.p5.x - dx) || !keep(behind.y, r.p5.y - dy)) return;
    if (isNearer(s.pickLast, ahead, behind)) s.moveText = ahead;
    if (isNearer(s.pickLast, behind, ahead)) s.moveText = behind;
}

void replacePicked(Session& s)
{
    const std::int32_t old = s.pickedIndex;
    const std::int32_t slot = s.store.entCount;
    EntityRecord r = s.store.record(old);
    r.p5 = s.moveText;
    r.a2 = s.arrowSize; // the one in force; s2, which the arrows are drawn in, stays
    r.style = 0;
    s.store.setRecord(slot, r);
    s.store.setStat(slot, Stat::on);
    commitInGroup(s);
    turnSources(s, {old}, Sources::goOut);
}

} // namespace

void editMoveDimText(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) return pickText(s, pic1);
    if (s.stepNo < 2) return;
    if (!stillThere(s)) {
        s.stepNo = 0;
        restorePicture(pic1);
        return;
    }
    if (!hasRoomFor(s, 1)) return;
    replacePicked(s);
    endRun(s, pic1);
}

void drawDimTextGhost(Session& s, Canvas& pic1)
{
    if (s.stepNo < 1 || !stillThere(s)) return;
    EntityRecord r = s.store.record(s.pickedIndex);
    slideText(s, r);
    r.p5 = s.moveText;
    restorePicture(pic1);
    paintLinearDim(pic1, s, shapeOf(r));
    paintDimText(pic1, dimLettering(r));
}

std::optional<Leg> wayOfDimText(const Session& s)
{
    if (s.stepNo < 1 || !stillThere(s)) return std::nullopt;
    return Leg{s.store.record(s.pickedIndex).p5, s.moveText};
}

} // namespace mirtane
