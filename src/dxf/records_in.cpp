// dxf/records_in.cpp: a line is compared as a whole, and never known to stand for a code or a value; so the
// value of a group that the record does not know may be taken for a code.

#include "dxf/records_in.h"

#include "dxf/tables.h"

namespace mirtane {
namespace {

const std::string untagged{noName};

} // namespace

void DxfRecordReader::read(std::string_view name, const std::string& block)
{
    if (name == "LINE") {
        if (takeGroups(&DxfRecordReader::takeLine)) finish(Kind::line, block);
    } else if (name == "CIRCLE") {
        if (takeGroups(&DxfRecordReader::takeCircle)) finish(Kind::circle, untagged);
    } else if (name == "ARC") {
        if (takeGroups(&DxfRecordReader::takeArc)) finish(Kind::arc, untagged);
    } else if (name == "TEXT") {
        text();
    } else if (name == "INSERT") {
        insert();
    } else if (name == "POLYLINE") {
        polyline();
    }
}

void DxfRecordReader::finish(Kind kind, const std::string& tag)
{
    slot_.dxfTag() = tag;
    slot_.close(kind);
}

void DxfRecordReader::text()
{
    slot_.p2().y = 0;
    slot_.a1() = 0;
    slot_.t2() = "Garamond";
    if (takeGroups(&DxfRecordReader::takeText)) finish(Kind::text, untagged);
}

void DxfRecordReader::insert()
{
    slot_.p2() = {1, 1};
    slot_.a1() = 0;
    if (takeGroups(&DxfRecordReader::takeInsert)) slot_.close(blockInsertKind);
}

// Gives whether the record counts.
bool DxfRecordReader::takeGroups(Take take)
{
    source_.tookValues();
    std::string_view line;
    while (source_.next(line)) {
        const int code = groupCode(line);
        if (code == 0) return true;
        if (code > 0) (this->*take)(code);
    }
    return source_.tookValues();
}

void DxfRecordReader::takeLine(int code)
{
    switch (code) {
    case 10:
        return source_.number(slot_.p1().x);
    case 20:
        return source_.number(slot_.p1().y);
    case 11:
        return source_.number(slot_.p2().x);
    case 21:
        return source_.number(slot_.p2().y);
    default:
        return takeShared(code);
    }
}

void DxfRecordReader::takeCircle(int code)
{
    switch (code) {
    case 10:
        return source_.number(slot_.p1().x);
    case 20:
        return source_.number(slot_.p1().y);
    case 40:
        return source_.number(slot_.rad());
    default:
        return takeShared(code);
    }
}

void DxfRecordReader::takeArc(int code)
{
    switch (code) {
    case 50:
        return source_.angle(slot_.a1());
    case 51:
        return source_.angle(slot_.a2());
    default:
        return takeCircle(code);
    }
}

void DxfRecordReader::takeText(int code)
{
    switch (code) {
    case 10:
        return source_.number(slot_.p1().x);
    case 20:
        return source_.number(slot_.p1().y);
    case 40:
        return source_.number(slot_.p2().x);
    case 1:
        return source_.text(slot_.t1());
    case 50:
        return source_.number(slot_.a1());
    case 72:
        return source_.number(slot_.p2().y);
    case 11:
        return source_.number(slot_.p3().x);
    case 21:
        return source_.number(slot_.p3().y);
    default:
        return takeShared(code);
    }
}

void DxfRecordReader::takeInsert(int code)
{
    switch (code) {
    case 2:
        return source_.blockName(slot_.dxfTag());
    case 10:
        return source_.number(slot_.p1().x);
    case 20:
        return source_.number(slot_.p1().y);
    case 41:
        return source_.number(slot_.p2().x);
    case 42:
        return source_.number(slot_.p2().y);
    case 50:
        return source_.angle(slot_.a1());
    default:
        return;
    }
}

void DxfRecordReader::takeShared(int code)
{
    switch (code) {
    case 8:
        return takeLayer();
    case 6:
        return takeLineType();
    case 62:
        return takeColor();
    default:
        return;
    }
}

void DxfRecordReader::takeLayer()
{
    std::string_view name;
    if (source_.value(name)) layers_.find(name, slot_.layer());
}

void DxfRecordReader::takeLineType()
{
    std::string_view name;
    if (!source_.value(name)) return;
    if (const std::optional<std::int16_t> style = styleOfDxf(name)) slot_.style() = *style;
}

void DxfRecordReader::takeColor()
{
    std::int16_t number = 0; // what can't be read is a number of no colour
    source_.whole(number);
    slot_.color() = colorOfDxf(number);
}

} // namespace mirtane
