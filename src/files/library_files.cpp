#include "files/library_files.h"

#include "files/entity_record_codec.h"
#include "files/library_row_codec.h"

namespace mirtane {
namespace {

constexpr int mostPieces = 60000;
constexpr int mostHatchRows = 30000;
constexpr int mostMultipleLines = 99;

// Reads whole records and gives each to take(), most of them at the most, which tells whether it had room.
template <class Record, class Take>
Untaken readRecords(const Bytes& file, int most, bool (*read)(ByteReader&, Record&), Take take)
{
    ByteReader in(file);
    Record record;
    Untaken untaken;
    for (int i = 0; in.remaining() > 0 && read(in, record); ++i) {
        if (i >= most || !take(record)) ++untaken.withoutRoom;
    }
    untaken.isCut = !in.ok();
    return untaken;
}

template <class Row>
Bytes bytesOf(const LibraryTable<Row>& library, std::string_view name, void (*write)(ByteWriter&, const Row&))
{
    Bytes file;
    ByteWriter out(file);
    for (const Row& row : library.used()) {
        if (bearsName(nameOf(row), name)) write(out, row);
    }
    return file;
}

bool addPiece(EntityStore& store, const EntityRecord& piece, std::string_view name)
{
    const std::int32_t slot = store.entCount;
    ++store.entCount;
    if (!EntityStore::holds(slot)) return false;
    store.setRecord(slot, piece);
    store.setStat(slot, Stat::out);
    store.ownerName[EntityStore::at(slot)] = name;
    return true;
}

} // namespace

Bytes associateBytes(const EntityStore& store, std::string_view name)
{
    Bytes file;
    ByteWriter out(file);
    for (std::int32_t i = 1; i < store.end(); ++i) {
        if (bearsName(store.ownerName[EntityStore::at(i)], name)) writeRecord(out, store.record(i));
    }
    return file;
}

Bytes hatchBytes(const HatchLibrary& library, std::string_view name)
{
    return bytesOf(library, name, writeHatchRow);
}

Bytes multipleLinesBytes(const MultipleLinesLibrary& library, std::string_view name)
{
    return bytesOf(library, name, writeMultipleLine);
}

std::int32_t piecesIn(const Bytes& file)
{
    return readRecords(file, 0, readRecord, [](const EntityRecord&) { return false; }).withoutRoom;
}

Untaken addAssociate(Session& s, const Bytes& file, std::string_view name)
{
    markUsed(s.layerTable, 0);
    return readRecords(file, mostPieces, readRecord,
                       [&](const EntityRecord& piece) { return addPiece(s.store, piece, name); });
}

Untaken addHatch(HatchLibrary& library, const Bytes& file)
{
    return readRecords(file, mostHatchRows, readHatchRow,
                       [&](const HatchRow& row) { return library.add(row); });
}

Untaken addMultipleLines(MultipleLinesLibrary& library, const Bytes& file)
{
    return readRecords(file, mostMultipleLines, readMultipleLine,
                       [&](const MultipleLine& row) { return library.add(row); });
}

std::string_view baseName(std::string_view fileName)
{
    return fileName.substr(0, fileName.rfind('.'));
}

} // namespace mirtane
