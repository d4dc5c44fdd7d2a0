#include "edit/selection_run.h"

#include "commands/prompt.h"
#include "model/kind_fields.h"
#include "render/redraw.h"
#include "tables/kinds.h"

#include <algorithm>

namespace mirtane {

std::vector<std::int32_t> selectedSlots(const EntityStore& store)
{
    std::vector<std::int32_t> selected;
    for (std::int32_t i = 1; i < store.end(); ++i) {
        const std::size_t at = EntityStore::at(i);
        if (store.stat[at] == Stat::sel && isDrawnKind(store.kind[at])) selected.push_back(i);
    }
    return selected;
}

std::int64_t countSelected(const EntityStore& store, bool (*takes)(Kind))
{
    return std::ranges::count_if(selectedSlots(store),
                                 [&](std::int32_t slot) { return takes(store.kind[EntityStore::at(slot)]); });
}

void addObject(Session& s, const EntityRecord& r)
{
    const std::int32_t slot = s.store.entCount;
    writeFieldsOfKind(s.store, slot, r);
    s.store.setStat(slot, Stat::on);
    commitInGroup(s);
}

void turnSources(Session& s, const std::vector<std::int32_t>& selected, Sources to)
{
    if (to == Sources::stay) return;
    for (const std::int32_t slot : selected) {
        s.store.setStat(slot, to == Sources::goOut ? Stat::out : Stat::on);
        if (to == Sources::goOut) logFlip(s.log, slot, Stat::out);
    }
}

void closeGroup(Session& s, Canvas& pic1)
{
    updateGauge(s);
    endGroup(s.log);
    redrawAll(s, pic1);
    pic1.refresh();
}

void endRun(Session& s, Canvas& pic1)
{
    s.editPending = 0;
    s.workAngle = 0; // before the redraw, which leaves out a selection that follows the pointer
    returnToBase(s);
    closeGroup(s, pic1);
    setPrompt(s, pic1);
}

} // namespace mirtane
