// files/drawing_file.cpp: which slots go into a file, and what follows from the records of one.

#include "files/drawing_file.h"

#include "files/entity_record_codec.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "model/attribute_rows.h"
#include "tables/pens.h"

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

// Slot 0 as the current attributes fill it.
EntityRecord headerRecord(const Session& s)
{
    EntityRecord r = s.store.record(0);
    for (const AttributeRow& row : attributeRows()) {
        if (row.fillHeader != nullptr) row.fillHeader(r, s);
    }
    r.kind = headerKind;
    return r;
}

bool isWritten(const Session& s, std::int32_t slot, SaveWhat what)
{
    const std::size_t at = EntityStore::at(slot);
    const Stat stat = s.store.stat[at];
    switch (what) {
    case SaveWhat::layer:
        return s.store.layer[at] == s.chosenLayer;
    case SaveWhat::selected:
        return stat == Stat::sel || s.store.kind[at] == layerNameKind;
    case SaveWhat::drawing:
        break;
    }
    return stat == Stat::on || stat == Stat::sel || stat == Stat::off;
}

struct RecordCount {
    std::int32_t taken = 0;
    Untaken untaken = {};
};

// Reads whole records, and gives as many as the table has slots to take().
template <class Take> RecordCount readRecords(const Bytes& file, Take take)
{
    ByteReader in(file);
    EntityRecord record;
    RecordCount count;
    while (in.remaining() > 0 && readRecord(in, record)) {
        if (count.taken == EntityStore::slotCount) {
            ++count.untaken.withoutRoom; // below 2^31, as a record has 90 bytes and a file that is read half
                                         // a gigabyte
            continue;
        }
        if (record.color == fileGrey) record.color = white;
        take(record);
        ++count.taken;
    }
    count.untaken.isCut = !in.ok();
    return count;
}

void storeRecord(Session& s, std::int32_t slot, const EntityRecord& record)
{
    s.store.setRecord(slot, record);
    s.store.setStat(slot, Stat::on);
    markUsed(s.layerTable, record.layer);
}

// Fills the slots from 0 on.
RecordCount readSlots(Session& s, const Bytes& file)
{
    s.store.entCount = 0;
    s.dimensionCount = 0;
    clearRecords(s.log);
    const RecordCount count = readRecords(file, [&s](const EntityRecord& record) {
        storeRecord(s, s.store.entCount, record);
        ++s.store.entCount;
    });
    s.store.entCount = std::max(s.store.entCount, 1);
    s.savedCount = s.store.entCount;
    return count;
}

// Sets dimensionCount, and layerCount to the highest layer that an object or a layer name has.
void countDimensionsAndLayers(Session& s)
{
    std::int32_t& highest = s.layerTable.layerCount;
    highest = 0;
    for (std::int32_t i = 1; i < s.store.end(); ++i) {
        const std::size_t at = EntityStore::at(i);
        const Kind k = s.store.kind[at];
        if (isDimension(k)) ++s.dimensionCount;
        std::int16_t named = 0; // a layer's number has 16 bits: a value beyond them names none
        if (k == layerNameKind && keep(named, s.store.p1[at].x - layer::nameOffset))
            highest = std::max<std::int32_t>(highest, named);
        highest = std::max<std::int32_t>(highest, s.store.layer[at]);
    }
}

// Each attribute takes its value from the header unless the value does not fit it.
void takeHeader(Session& s)
{
    const EntityRecord header = s.store.record(0);
    for (const AttributeRow& row : attributeRows()) {
        if (row.takeHeader != nullptr) row.takeHeader(s, header);
    }
}

// The working layer may lie above the rows that the objects call for; it still gets a row to be shown.
void rebuildLayers(Session& s)
{
    const std::int32_t last = std::min(s.layerTable.layerCount, LayerTable::rowLimit - 1);
    for (std::int32_t i = 0; i <= last; ++i) s.layerTable.resetRow(i, s.workLayer);
    s.layerTable.resetRow(s.workLayer, s.workLayer);
}

// The slots that serve other ends, layer names among them, have the numbers above those of objects.
bool marksItsLayer(Kind kind)
{
    return isDrawnKind(kind) || numberOf(kind) <= 0;
}

void nameAndMarkLayers(Session& s)
{
    for (std::int32_t i = 1; i < s.store.end(); ++i) {
        const std::size_t at = EntityStore::at(i);
        std::int16_t named = 0;
        if (s.store.kind[at] == layerNameKind && keep(named, s.store.p1[at].x - layer::nameOffset)) {
            if (Layer* row = s.layerTable.find(named)) row->layerName = s.store.t1[at];
        }
        if (marksItsLayer(s.store.kind[at])) markUsed(s.layerTable, s.store.layer[at]);
    }
}

// Degrees to radians, a right angle being one exactly, although the short literals would miss it.
double directionOf(double degrees)
{
    if (degrees == 90) return quarterTurn;
    if (degrees == 180) return halfTurn;
    if (degrees == 270) return threeQuartersTurn;
    return degrees * radiansPerDegree;
}

// How far a text starts before its point as entered, world units.
double setback(double textWidth, float justification)
{
    const double w = textWidth * 0.75;
    if (justification == 0) return 0;
    if (justification == 1) return w * 1.1;
    if (justification == 2) return w / 2;
    return w;
}

} // namespace

void refreshHeader(Session& s)
{
    s.store.setRecord(0, headerRecord(s));
    s.store.setStat(0, Stat::on);
}

Bytes drawingBytes(const Session& s, SaveWhat what)
{
    Bytes file;
    file.reserve(recordBytesWithoutTexts * EntityStore::at(s.store.end() + 1));
    ByteWriter out(file);
    writeRecord(out, headerRecord(s));
    EntityRecord record;
    for (std::int32_t i = 1; i < s.store.end(); ++i) {
        if (!isWritten(s, i, what)) continue;
        s.store.fill(record, i);
        writeRecord(out, record);
    }
    return file;
}

void afterSave(Session& s, SaveWhat what)
{
    refreshHeader(s);
    if (what == SaveWhat::layer) return;
    changeStat(s.store, Stat::sel, Stat::on);
    if (what == SaveWhat::drawing) s.savedCount = s.store.entCount;
}

Untaken replaceDrawing(Session& s, const Bytes& file)
{
    const RecordCount count = readSlots(s, file);
    countDimensionsAndLayers(s);
    if (count.taken > 0) takeHeader(s);
    rebuildLayers(s);
    nameAndMarkLayers(s);
    constexpr std::int32_t highestCount = 32767; // it counts in 16 bits
    s.layerTable.layerCount = std::min(s.layerTable.layerCount + 1, highestCount);
    return count.untaken;
}

// A layer name is written like the others, but the next record takes its slot.
Untaken mergeLayer(Session& s, const Bytes& file, std::int16_t layer)
{
    const std::int32_t lostBefore = std::max(0, s.store.entCount - EntityStore::slotCount);
    RecordCount count = readRecords(file, [&s, layer](EntityRecord record) {
        record.layer = layer;
        storeRecord(s, s.store.entCount, record);
        if (record.kind != layerNameKind) ++s.store.entCount;
    });
    count.untaken.withoutRoom += std::max(0, s.store.entCount - EntityStore::slotCount) - lostBefore;
    return count.untaken;
}

void setTextAnchors(EntityStore& store, const TextWidthOf& widthOf)
{
    for (std::int32_t i = 1; i < store.end(); ++i) {
        const std::size_t at = EntityStore::at(i);
        if (store.kind[at] != Kind::text) continue;
        const double back = setback(widthOf(store.record(i)), store.p2[at].y);
        const double direction = directionOf(store.a1[at]);
        if (!std::isfinite(back) || !std::isfinite(direction)) continue;
        const Point anchor = polarPoint(store.p1[at], -back, direction);
        keep(store.p4[at].x, anchor.x);
        keep(store.p4[at].y, anchor.y);
    }
}

void fixUpLinesAndCircles(EntityStore& store)
{
    for (std::int32_t i = 1; i < store.end(); ++i) {
        const std::size_t at = EntityStore::at(i);
        const Point a = store.p1[at];
        if (store.kind[at] == Kind::line) {
            const Point b = store.p2[at];
            const double length = distance(a, b);
            keep(store.p3[at].x, a.x + length / 2 * quotient(b.x - a.x, length));
            keep(store.p3[at].y, a.y - length / 2 * quotient(a.y - b.y, length));
        } else if (store.kind[at] == Kind::circle) {
            keep(store.p2[at].x, a.x - store.rad[at]);
            keep(store.p2[at].y, a.y);
        }
    }
}

} // namespace mirtane
