#include "model/kind_fields.h"

#include "tables/kinds.h"

namespace mirtane {
namespace {

using namespace field;

void writePairs(EntityStore& store, std::size_t at, const EntityRecord& r, std::uint16_t fields)
{
    if ((fields & p1) != 0) store.p1[at] = r.p1;
    if ((fields & p2) != 0) store.p2[at] = r.p2;
    if ((fields & p3) != 0) store.p3[at] = r.p3;
    if ((fields & p4) != 0) store.p4[at] = r.p4;
    if ((fields & p5) != 0) store.p5[at] = r.p5;
    if ((fields & p3x) != 0) store.p3[at].x = r.p3.x;
}

void writeValues(EntityStore& store, std::size_t at, const EntityRecord& r, std::uint16_t fields)
{
    if ((fields & s1) != 0) store.s1[at] = r.s1;
    if ((fields & s2) != 0) store.s2[at] = r.s2;
    if ((fields & rad) != 0) store.rad[at] = r.rad;
    if ((fields & a1) != 0) store.a1[at] = r.a1;
    if ((fields & a2) != 0) store.a2[at] = r.a2;
    if ((fields & a3) != 0) store.a3[at] = r.a3;
    if ((fields & words) == 0) return;
    store.t1[at] = r.t1;
    store.t2[at] = r.t2;
}

} // namespace

void writeFieldsOfKind(EntityStore& store, std::int32_t slot, const EntityRecord& r)
{
    const KindRow* row = kindRow(r.kind);
    if (row == nullptr || !EntityStore::holds(slot)) return;
    const std::size_t at = EntityStore::at(slot);
    const auto fields = static_cast<std::uint16_t>(row->moved | row->values); // bits of field, as both are
    store.kind[at] = r.kind;
    store.color[at] = r.color;
    store.layer[at] = r.layer;
    store.style[at] = r.style;
    writePairs(store, at, r, fields);
    writeValues(store, at, r, fields);
}

} // namespace mirtane
