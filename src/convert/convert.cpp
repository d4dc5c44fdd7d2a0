#include "convert/convert.h"

#include "convert/desk.h"
#include "convert/exports.h"
#include "render/view.h"
#include "tables/kinds.h"
#include "text/numbers.h"

#include <new>

namespace mirtane::convert {
namespace {

// A drawing does not keep what is hidden: who opens it would see it.
void leaveOutHidden(EntityStore& store, Outcome& outcome)
{
    const std::int32_t hidden = changeStat(store, Stat::off, Stat::out);
    if (hidden == 0) return;
    outcome.leftOut = true;
    outcome.remarks.push_back(withThousands(hidden) + (hidden == 1 ? " object" : " objects") +
                              " on hidden layers left out");
}

void hideOtherLayers(EntityStore& store, std::int16_t layer)
{
    for (std::int32_t i = 1; i < store.end(); ++i) {
        if (store.layer[EntityStore::at(i)] != layer) store.setStat(i, Stat::off);
    }
}

bool showsAnything(const EntityStore& store)
{
    for (std::int32_t i = 1; i < store.end(); ++i) {
        if (store.isShown(i) && isDrawnKind(store.kind[EntityStore::at(i)])) return true;
    }
    return false;
}

std::string nothingThere(const Job& job, const Wishes& wishes)
{
    if (wishes.layer) return "no objects on layer " + std::to_string(*wishes.layer);
    if (formatOf(job.in) == Format::dxf && wishes.asWindow)
        return "no objects in it (a DXF file of another program needs to be read without --as-window)";
    return "no objects in it";
}

// One line says it all.
void refuseForNothing(const Job& job, const Wishes& wishes, Outcome& outcome)
{
    const bool isCut = formatOf(job.in) == Format::mtd && outcome.leftOut;
    if (isCut) outcome.remarks.clear();
    outcome.fault = nothingThere(job, wishes) + (isCut ? ": it is cut off, or no drawing" : "");
}

void convertOn(Desk& desk, const Job& job, const Wishes& wishes, Outcome& outcome)
{
    open(desk.app, job, wishes.asWindow, outcome);
    if (outcome.fault) return;
    EntityStore& store = desk.session->store;
    if (wishes.layer) {
        hideOtherLayers(store, *wishes.layer);
        zoomAll(*desk.session, desk.surface);
    } else if (wishes.format == Format::mtd && formatOf(job.in) == Format::dxf) {
        leaveOutHidden(store, outcome);
    }
    if (!showsAnything(store) && wishes.format != Format::txt)
        refuseForNothing(job, wishes, outcome);
    else
        exportTo(job.out, wishes, desk.app, desk.surface, outcome);
    if (!outcome.fault && store.entCount > EntityStore::slotCount)
        outcome.fault = "more than 60,000 objects: the rest of them is lost in " + job.out;
}

} // namespace

Outcome convert(const Job& job, const Wishes& wishes)
{
    Outcome outcome;
    try {
        Desk desk(wishes.format == Format::png ? wishes.size : unseen);
        convertOn(desk, job, wishes, outcome);
    } catch (const std::bad_alloc&) {
        outcome.fault = "not enough memory";
    }
    return outcome;
}

} // namespace mirtane::convert
