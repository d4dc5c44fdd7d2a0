// files/library_row_codec.cpp: 68 and 26 fixed bytes, each with a counted string behind it; little-endian.

#include "files/library_row_codec.h"

#include "files/fields.h"

namespace mirtane {
namespace {

// Row is not const for the reader and const for the writer.
template <class Stream, class Row> void hatchFields(Stream&& f, Row& r)
{
    f(r.h1.x, r.h1.y, r.h2.x, r.h2.y, r.h3.x, r.h3.y, r.h4.x, r.h4.y);
    f(r.hatchTileW, r.hatchTileH, r.hatchRad);
    f(r.hatchA1, r.hatchA2);
    f(r.hatchColor, r.hatchStyle, r.hatchKind);
    f(r.hatchName);
}

template <class Stream, class Row> void multipleLineFields(Stream&& f, Row& r)
{
    f(r.m1, r.legStart.x, r.legStart.y, r.legEnd.x, r.legEnd.y);
    f(r.colour, r.style);
    f(r.name);
}

} // namespace

bool readHatchRow(ByteReader& in, HatchRow& row)
{
    hatchFields(FieldReader(in), row);
    return in.ok();
}

bool readMultipleLine(ByteReader& in, MultipleLine& row)
{
    multipleLineFields(FieldReader(in), row);
    return in.ok();
}

void writeHatchRow(ByteWriter& out, const HatchRow& row)
{
    hatchFields(FieldWriter(out), row);
}

void writeMultipleLine(ByteWriter& out, const MultipleLine& row)
{
    multipleLineFields(FieldWriter(out), row);
}

} // namespace mirtane
