#pragma once

#include "model/text_column.h"
#include "tables/entity_record.h"

#include <vector>

namespace mirtane {

// The drawing: one table of slots as parallel arrays, allocated once at full size. Slot 0 is the header,
// objects stand in slots 1 to entCount - 1, and no slot is compacted or reused while a drawing is open.
// The table itself refuses no insertion: past the last slot writes are dropped while entCount goes on
// growing, so readers loop to end() and not to entCount. Who adds several at once asks model/room.h before.
struct EntityStore {
    static constexpr std::int32_t slotCount = 60001;

    EntityStore();

    static bool holds(std::int32_t slot) { return slot >= 0 && slot < slotCount; }

    // One past the last object slot that exists.
    std::int32_t end() const { return entCount < slotCount ? entCount : slotCount; }

    // The fields of a slot; an empty record for a slot that does not exist.
    EntityRecord record(std::int32_t slot) const;
    // The same, of a slot that exists, into a record that was used before, whose texts keep their room.
    void fill(EntityRecord& r, std::int32_t slot) const;

    // Writes all fields of a slot but stat, ownerName and dxfTag. A slot that does not exist is passed over.
    void setRecord(std::int32_t slot, const EntityRecord& r);
    void setStat(std::int32_t slot, Stat to);

    bool isShown(std::int32_t slot) const
    {
        return stat[at(slot)] == Stat::on || stat[at(slot)] == Stat::sel;
    }

    // Index into the arrays: slots are never negative where this is used.
    static std::size_t at(std::int32_t slot) { return static_cast<std::size_t>(slot); }

    std::int32_t entCount = 1; // next free slot

    std::vector<Point> p1, p2, p3, p4, p5;
    std::vector<float> s1, s2, rad;
    std::vector<double> a1, a2, a3;
    std::vector<std::int32_t> color;
    std::vector<std::int16_t> layer, style;
    std::vector<Kind> kind;
    TextColumn t1, t2;
    std::vector<Stat> stat;
    TextColumn ownerName, dxfTag; // in memory only
};

// Every object with stat from gets stat to. Gives how many there were.
std::int32_t changeStat(EntityStore& store, Stat from, Stat to);

std::int32_t countWithStat(const EntityStore& store, Stat stat);

// Forgets which associate each slot belongs to.
void forgetOwners(EntityStore& store);

} // namespace mirtane
