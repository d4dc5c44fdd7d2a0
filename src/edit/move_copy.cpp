#include "edit/move_copy.h"

#include "commands/prompt.h"
#include "edit/selection_run.h"
#include "model/record_moves.h"
#include "render/entity_painter.h"
#include "render/redraw.h"

namespace mirtane {
namespace {

void drawGhost(const Session& s, Canvas& pic1, Point from, Point to)
{
    const float dx = to.x - from.x;
    const float dy = to.y - from.y;
    restorePicture(pic1);
    pic1.line(from.x, from.y, to.x, to.y);
    for (std::int32_t i = 1; i < s.store.end(); ++i) {
        if (s.store.stat[EntityStore::at(i)] != Stat::sel) continue;
        EntityRecord r = s.store.record(i);
        shift(r, dx, dy);
        paintEntity(pic1, s, r);
    }
}

// The objects leave their place in the clean picture. pickLast is still that of an earlier function.
void liftSelection(Session& s, Canvas& pic1)
{
    s.workAngle = selectionFollowsPointer;
    redrawAll(s, pic1);
    drawGhost(s, pic1, s.pickFirst, s.pickFirst);
    pic1.refresh();
}

void setOffset(Session& s)
{
    if (s.stepNo == 2) {
        keep(s.editStepX, static_cast<double>(s.pickLast.x) - s.pickFirst.x); // widened before the difference
        keep(s.editStepY, static_cast<double>(s.pickLast.y) - s.pickFirst.y); // widened before the difference
        s.editDX = s.editStepX;
        s.editDY = s.editStepY;
    } else {
        keep(s.editDX, static_cast<double>(s.editDX) + s.editStepX); // widened before the sum
        keep(s.editDY, static_cast<double>(s.editDY) + s.editStepY); // widened before the sum
    }
}

bool copyWithOffset(Session& s, Sources sources)
{
    setOffset(s);
    return runOnSelection(s, sources, [&s](EntityRecord r) {
        shift(r, s.editDX, s.editDY);
        return r;
    });
}

} // namespace

void editMove(Session& s, Canvas& pic1)
{
    if (s.stepNo < 1) return;
    if (s.stepNo == 1) {
        liftSelection(s, pic1);
        setPrompt(s, pic1);
        return;
    }
    if (copyWithOffset(s, Sources::goOut)) endRun(s, pic1);
}

void editCopy(Session& s, Canvas& pic1)
{
    if (s.stepNo < 1) return;
    if (s.stepNo > 1) {
        if (!copyWithOffset(s, Sources::stay)) return;
        closeGroup(s, pic1);
    }
    setPrompt(s, pic1);
}

void drawSelectionGhost(Session& s, Canvas& pic1)
{
    if (s.stepNo >= 1) drawGhost(s, pic1, s.pickFirst, s.pickLast);
}

} // namespace mirtane
