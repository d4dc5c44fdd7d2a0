// dxf/polyline_in.cpp: a polyline becomes a slot to each of its segments, at first with its bulge.

#include "dxf/records_in.h"

namespace mirtane {

struct DxfRecordReader::Polyline {
    std::int32_t vertices = 0; // of the open segment: 1 has its start, 2 wants its end
    float bulge = 0;
    std::int16_t flag = 0; // of the last vertex that had one
    Point first;
};

namespace {

bool isClosed(std::int16_t flag)
{
    return flag == 1 || flag == 32 || flag == 129;
}

} // namespace

// The end of the file leaves the figure open: what is whole stays.
void DxfRecordReader::polyline()
{
    Polyline line;
    std::string_view text;
    while (source_.next(text)) {
        if (text == "SEQEND") {
            if (isClosed(line.flag)) closePolyline(line);
            return;
        }
        if (text == "VERTEX") ++line.vertices;
        const int code = groupCode(text);
        if (code > 0) takeVertex(line, code);
    }
}

// A point of the polyline itself stands before the first vertex and means nothing.
void DxfRecordReader::takeVertex(Polyline& line, int code)
{
    const bool starts = line.vertices == 1;
    const bool ends = line.vertices == 2;
    if (code == 10 && (starts || ends)) {
        source_.number(starts ? slot_.p1().x : slot_.p2().x);
        if (starts) line.first.x = slot_.p1().x;
    } else if (code == 20 && (starts || ends)) {
        const bool isCut = source_.atEnd();
        source_.number(starts ? slot_.p1().y : slot_.p2().y);
        if (starts) line.first.y = slot_.p1().y;
        if (ends && !isCut) endSegment(line);
    } else if (code == 42) {
        source_.number(line.bulge);
    } else if (code == 70) {
        source_.whole(line.flag);
    } else {
        takeShared(code);
    }
}

// The end of a segment is the start of the next one.
void DxfRecordReader::endSegment(Polyline& line)
{
    slot_.p3().x = line.bulge;
    slot_.dxfTag() = noName;
    const Point end = slot_.p2();
    slot_.close(polylineSegmentKind);
    slot_.p1() = end;
    line.vertices = 1;
    line.bulge = 0;
}

// Only this segment takes its looks from the one before it.
void DxfRecordReader::closePolyline(const Polyline& line)
{
    const std::int32_t previous = store_.entCount - 1;
    if (EntityStore::holds(previous)) {
        const std::size_t at = EntityStore::at(previous);
        slot_.color() = store_.color[at];
        slot_.style() = store_.style[at];
        slot_.layer() = store_.layer[at];
    }
    slot_.p2() = line.first;
    slot_.p3().x = line.bulge;
    slot_.close(polylineSegmentKind);
}

} // namespace mirtane
