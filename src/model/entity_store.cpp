#include "model/entity_store.h"

#include <algorithm>

namespace mirtane {

EntityStore::EntityStore()
    : p1(slotCount), p2(slotCount), p3(slotCount), p4(slotCount), p5(slotCount), s1(slotCount), s2(slotCount),
      rad(slotCount), a1(slotCount), a2(slotCount), a3(slotCount), color(slotCount), layer(slotCount),
      style(slotCount), kind(slotCount), t1(slotCount), t2(slotCount), stat(slotCount), ownerName(slotCount),
      dxfTag(slotCount)
{
}

EntityRecord EntityStore::record(std::int32_t slot) const
{
    EntityRecord r;
    if (holds(slot)) fill(r, slot);
    return r;
}

void EntityStore::fill(EntityRecord& r, std::int32_t slot) const
{
    const std::size_t i = at(slot);
    r.p1 = p1[i];
    r.p2 = p2[i];
    r.p3 = p3[i];
    r.p4 = p4[i];
    r.p5 = p5[i];
    r.s1 = s1[i];
    r.s2 = s2[i];
    r.rad = rad[i];
    r.a1 = a1[i];
    r.a2 = a2[i];
    r.a3 = a3[i];
    r.color = color[i];
    r.layer = layer[i];
    r.style = style[i];
    r.kind = kind[i];
    r.t1 = t1[i];
    r.t2 = t2[i];
}

void EntityStore::setRecord(std::int32_t slot, const EntityRecord& r)
{
    if (!holds(slot)) return;
    const std::size_t i = at(slot);
    p1[i] = r.p1;
    p2[i] = r.p2;
    p3[i] = r.p3;
    p4[i] = r.p4;
    p5[i] = r.p5;
    s1[i] = r.s1;
    s2[i] = r.s2;
    rad[i] = r.rad;
    a1[i] = r.a1;
    a2[i] = r.a2;
    a3[i] = r.a3;
    color[i] = r.color;
    layer[i] = r.layer;
    style[i] = r.style;
    kind[i] = r.kind;
    t1.set(i, r.t1);
    t2.set(i, r.t2);
}

void EntityStore::setStat(std::int32_t slot, Stat to)
{
    if (holds(slot)) stat[at(slot)] = to;
}

std::int32_t changeStat(EntityStore& store, Stat from, Stat to)
{
    std::int32_t changed = 0;
    for (std::int32_t i = 1; i < store.end(); ++i) {
        if (store.stat[EntityStore::at(i)] != from) continue;
        store.setStat(i, to);
        ++changed;
    }
    return changed;
}

std::int32_t countWithStat(const EntityStore& store, Stat stat)
{
    const auto first = store.stat.begin() + 1;
    return static_cast<std::int32_t>(
        std::count(first, store.stat.begin() + store.end(), stat)); // at most 60,000
}

void forgetOwners(EntityStore& store)
{
    store.ownerName.setAll(noName);
}

} // namespace mirtane
