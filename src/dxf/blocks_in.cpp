#include "dxf/blocks_in.h"

#include "dxf/file_units.h"
#include "dxf/open_slot.h"

#include <cmath>
#include <map>

namespace mirtane {
namespace {

// The lines of each block, by its name, in the order of their slots.
using BlockLines = std::map<std::string, std::vector<std::int32_t>, std::less<>>;

BlockLines linesByBlock(const EntityStore& store)
{
    BlockLines blocks;
    std::vector<std::int32_t>* lines = nullptr;
    const std::string* name = nullptr;
    for (std::int32_t i = 1; i < store.end(); ++i) {
        if (store.kind[EntityStore::at(i)] != Kind::line) continue;
        const std::string& tag = store.dxfTag[EntityStore::at(i)];
        if (name == nullptr || *name != tag) lines = &blocks[tag]; // lines of one block stand together
        name = &tag;
        lines->push_back(i);
    }
    return blocks;
}

struct Placement {
    Point place; // world units
    Point scale;
    double rotation; // radians, counter-clockwise on the screen
};

Point turned(Point p, const Placement& by)
{
    const double dx = static_cast<double>(p.x) - by.place.x; // widened before the difference
    const double dy = static_cast<double>(p.y) - by.place.y; // as above
    const double c = std::cos(by.rotation);
    const double s = std::sin(by.rotation);
    keep(p.x, by.place.x + dx * c + dy * s);
    keep(p.y, by.place.y - dx * s + dy * c);
    return p;
}

// The lines of a block are in world units already, with y down, so y is only scaled.
Point placed(Point p, const Placement& by)
{
    keep(p.x, by.scale.x * p.x + by.place.x);
    keep(p.y, by.scale.y * p.y + by.place.y);
    return by.rotation == 0 ? p : turned(p, by);
}

void addCopy(EntityStore& store, std::size_t from, const Placement& by)
{
    OpenSlot slot(store);
    slot.p1() = placed(store.p1[from], by);
    slot.p2() = placed(store.p2[from], by);
    slot.layer() = store.layer[from];
    slot.style() = store.style[from];
    slot.color() = store.color[from];
    slot.dxfTag() = noName;
    slot.close(Kind::line);
}

// An insert without a name stands for all lines that belong to no block, those of earlier inserts too.
void placeBlock(EntityStore& store, std::vector<std::int32_t>& lines, std::vector<std::int32_t>& untagged,
                const Placement& by)
{
    const std::size_t count = lines.size(); // the copies made here may join them
    for (std::size_t i = 0; i < count; ++i) {
        if (!EntityStore::holds(store.entCount)) {
            countSlots(store, static_cast<std::int64_t>(count - i)); // at most as many as the table has slots
            return;
        }
        const std::int32_t copy = store.entCount;
        addCopy(store, EntityStore::at(lines[i]), by);
        untagged.push_back(copy);
    }
}

} // namespace

void placeDxfBlocks(EntityStore& store)
{
    BlockLines blocks = linesByBlock(store);
    std::vector<std::int32_t>& untagged = blocks[std::string(noName)];
    const std::int32_t end = store.end();
    for (std::int32_t i = 1; i < end; ++i) {
        const std::size_t at = EntityStore::at(i);
        if (store.kind[at] != blockInsertKind) continue;
        const auto block = blocks.find(store.dxfTag[at]);
        if (block == blocks.end()) continue;
        Placement by{store.p1[at], store.p2[at], store.a1[at]};
        toWorld(by.place);
        placeBlock(store, block->second, untagged, by);
    }
}

} // namespace mirtane
