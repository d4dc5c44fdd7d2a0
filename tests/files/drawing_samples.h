#pragma once

// Records and files for the tests of drawing files.

#include "files/entity_record_codec.h"
#include "model/session.h"
#include "records.h"

#include <initializer_list>
#include <limits>
#include <string>
#include <vector>

namespace mirtane::samples {

inline constexpr float nan = std::numeric_limits<float>::quiet_NaN();
inline constexpr float infinite = std::numeric_limits<float>::infinity();

inline EntityRecord object(Kind kind, std::int16_t layer)
{
    const auto number = static_cast<float>(numberOf(kind)); // a small whole one
    EntityRecord r = fake::ofLooks(fake::record(kind, {number, 1}, {number + 30, 41}), 0x0000FF, layer);
    if (kind >= Kind::text) r.t1 = "text " + std::to_string(numberOf(kind));
    return r;
}

inline EntityRecord layerName(float layer, std::string name)
{
    EntityRecord r = fake::record(layerNameKind, {layer + 2, 0});
    r.t1 = std::move(name);
    return r;
}

inline EntityRecord header()
{
    EntityRecord r;
    r.kind = headerKind;
    r.p1 = {60, 24};
    r.p2 = {3, 2};
    r.p3 = {0.25F, 1};
    r.p4 = {1, 77};
    r.a3 = 5;
    r.t1 = "br";
    r.t2 = "Courier New";
    r.layer = 2;
    r.color = 0x00FF00;
    r.style = 3;
    return r;
}

inline Bytes file(std::initializer_list<EntityRecord> records)
{
    Bytes bytes;
    ByteWriter out(bytes);
    for (const EntityRecord& r : records) writeRecord(out, r);
    return bytes;
}

// Puts an object behind the last one.
inline std::int32_t add(Session& s, const EntityRecord& r, Stat stat)
{
    const std::int32_t slot = s.store.entCount++;
    s.store.setRecord(slot, r);
    s.store.setStat(slot, stat);
    return slot;
}

// The records of a file.
inline std::vector<EntityRecord> recordsOf(const Bytes& bytes)
{
    std::vector<EntityRecord> records;
    ByteReader in(bytes);
    EntityRecord r;
    while (in.remaining() > 0 && readRecord(in, r)) records.push_back(r);
    return records;
}

} // namespace mirtane::samples
