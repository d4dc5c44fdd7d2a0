// files/entity_record_codec.cpp: 86 fixed bytes, then two counted strings; little-endian.

#include "files/entity_record_codec.h"

#include "files/fields.h"

namespace mirtane {
namespace {

// Record is EntityRecord for the reader and const EntityRecord for the writer.
template <class Stream, class Record> void fields(Stream&& f, Record& r)
{
    f(r.p1.x, r.p1.y, r.p2.x, r.p2.y, r.p3.x, r.p3.y, r.p4.x, r.p4.y, r.p5.x, r.p5.y);
    f(r.s1, r.s2, r.rad);
    f(r.a1, r.a2, r.a3);
    f(r.color, r.layer, r.style, r.kind);
    f(r.t1, r.t2);
}

} // namespace

bool readRecord(ByteReader& in, EntityRecord& record)
{
    fields(FieldReader(in), record);
    return in.ok();
}

void writeRecord(ByteWriter& out, const EntityRecord& record)
{
    fields(FieldWriter(out), record);
}

} // namespace mirtane
